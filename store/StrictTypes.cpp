#include "StrictTypes_p.h"

#include "EntryLog_p.h"
#include "ValueText_p.h"

#include <QDebug>

#include <cmath>
#include <limits>

namespace {

bool isInt(const QJsonValue &json)
{
    const double number = json.toDouble(0.5);
    return std::trunc(number) == number && number >= std::numeric_limits<int>::min()
           && number <= std::numeric_limits<int>::max();
}

bool isFont(const QString &text)
{
    QFont font;
    return parseFontText(text, &font) && hasUsableSize(font);
}

/// The number of a text that `appendJsonValue` writes for a number that JSON does not have.
std::optional<QJsonValue> numberOf(const QString &text)
{
    if (text == QLatin1String("nan"))
        return QJsonValue(std::numeric_limits<double>::quiet_NaN());
    if (text == QLatin1String("inf"))
        return QJsonValue(std::numeric_limits<double>::infinity());
    if (text == QLatin1String("-inf"))
        return QJsonValue(-std::numeric_limits<double>::infinity());
    return std::nullopt;
}

bool fits(const QJsonValue &json, ConfValue::ConfType type)
{
    switch (type) {
    case ConfValue::TyQColor: return json.isString() && isColorText(json.toString());
    case ConfValue::TyInt32: return isInt(json);
    case ConfValue::TyQreal: return json.isDouble();
    case ConfValue::TyBool: return json.isBool();
    case ConfValue::TyQFont: return json.isString() && isFont(json.toString());
    case ConfValue::TyQString:
    case ConfValue::TyQKeySequence: return json.isString();
    case ConfValue::TyQJsonObject: return json.isObject();
    case ConfValue::TyQJsonArray: return json.isArray();
    case ConfValue::TyNone: break;
    }
    return true;
}

} // namespace

std::optional<QJsonValue> strictJson(const QJsonValue &json, ConfValue::ConfType type)
{
    if (json.isNull() || json.isUndefined())
        return json;
    if (const MtConf::JsonOperations *operations = MtConf::jsonOperations(type))
        return operations->accepts(json) ? std::optional<QJsonValue>(json) : std::nullopt;
    if (fits(json, type))
        return json;
    return type == ConfValue::TyQreal ? numberOf(json.toString()) : std::nullopt;
}

void logOtherType(const QString &key)
{
    if (EntryLog::permits())
        qWarning() << "ConfStorage::loadConf() value of another type refused: "
                   << EntryLog::truncated(key);
}
