#include <MaltoConfiguration/store/ConfValue.h>

#include "BoundCopy_p.h"
#include "EntryLog_p.h"
#include "ValueText_p.h"

#include <QDebug>
#include <QJsonValue>

namespace {

/// Calls `visitor` with a null pointer to the C++ type of `type`; logs an unknown type.
template<class Visitor> void visitType(ConfValue::ConfType type, Visitor visitor)
{
    switch (type) {
    case ConfValue::TyQColor: visitor(static_cast<QColor *>(nullptr)); return;
    case ConfValue::TyInt32: visitor(static_cast<int *>(nullptr)); return;
    case ConfValue::TyQreal: visitor(static_cast<qreal *>(nullptr)); return;
    case ConfValue::TyBool: visitor(static_cast<bool *>(nullptr)); return;
    case ConfValue::TyQString: visitor(static_cast<QString *>(nullptr)); return;
    case ConfValue::TyQFont: visitor(static_cast<QFont *>(nullptr)); return;
    case ConfValue::TyQKeySequence: visitor(static_cast<QKeySequence *>(nullptr)); return;
    case ConfValue::TyQJsonObject: visitor(static_cast<QJsonObject *>(nullptr)); return;
    case ConfValue::TyQJsonArray: visitor(static_cast<QJsonArray *>(nullptr)); return;
    case ConfValue::TyNone: break;
    }
    qCritical() << "restoreDefault: unknow type: " << static_cast<quint32>(type);
}

QJsonValue toJson(const QColor &color)
{
    return color.isValid() ? QString::number(toRgba(color), 16) : QStringLiteral("None");
}
QJsonValue toJson(const QFont &font)
{
    return toFontText(font);
}
QJsonValue toJson(const QKeySequence &keys)
{
    return toKeysText(keys);
}
template<class T> QJsonValue toJson(const T &value)
{
    return value;
}

void fromJson(const QJsonValue &json, QColor &color)
{
    color = readColorText(json.toString());
}
void fromJson(const QJsonValue &json, int &number)
{
    number = json.toInt(0);
}
void fromJson(const QJsonValue &json, qreal &number)
{
    number = json.toDouble(0.0);
}
void fromJson(const QJsonValue &json, bool &flag)
{
    flag = json.toBool(false);
}
void fromJson(const QJsonValue &json, QString &text)
{
    text = json.toString();
}
void fromJson(const QJsonValue &json, QFont &font)
{
    QFont read;
    if (!readFontText(json.toString(), &read))
        return;
    if (hasUsableSize(read))
        font = read;
    else if (EntryLog::permits())
        qWarning() << "ConfValue::loadFromJsonValue() font size out of range: "
                   << EntryLog::truncated(json.toString());
}
void fromJson(const QJsonValue &json, QKeySequence &keys)
{
    keys = readKeysText(json.toString());
}
void fromJson(const QJsonValue &json, QJsonObject &object)
{
    object = json.toObject();
}
void fromJson(const QJsonValue &json, QJsonArray &array)
{
    array = json.toArray();
}

/// The variable of a bound value of a type with a `JsonForm`.
void *variableOf(const ConfValue &value)
{
    return value.mValue.value<void *>();
}

/// Whether the value is of a type with a `JsonForm`. Equal values have equal JSON.
bool isJsonType(const ConfValue &value)
{
    return value.mType > ConfValue::TyQJsonArray && MtConf::jsonOperations(value.mType);
}

/// What QVariant::isNull() says with Qt 5: with Qt 6 it no longer asks the text that it holds, and
/// says yes to a pointer that is null.
bool isNull(const ConfValue &value)
{
    const QVariant &content = value.mValue;
    if (value.mIsPtr)
        return !content.isValid();
    return content.isNull()
           || (content.userType() == QMetaType::QString && content.toString().isNull());
}

} // namespace

BoundCopy boundCopy(const ConfValue &value)
{
    BoundCopy copy{value, nullptr};
    const MtConf::JsonOperations *operations = MtConf::jsonOperations(value.mType);
    if (value.mIsPtr && operations) {
        if (const void *variable = variableOf(value))
            copy.variable = operations->copy(variable);
        copy.value.mValue = QVariant::fromValue(copy.variable.get());
    } else if (value.mIsPtr) {
        visitType(value.mType, [&](auto *type) {
            using T = std::remove_pointer_t<decltype(type)>;
            const auto variable = std::make_shared<T>(value.get<T>());
            copy = {ConfValue::bound(variable.get()), variable};
        });
    }
    return copy;
}

/// Sets the value of a type with a `JsonForm`. Returns false if the form refuses it.
bool ConfValue::setJson(const QJsonValue &json)
{
    const MtConf::JsonOperations *operations = MtConf::jsonOperations(mType);
    if (void *variable = mIsPtr ? variableOf(*this) : nullptr)
        return operations->fromJson(json, variable);
    const bool isAccepted = operations->accepts(json);
    if (isAccepted && !mIsPtr)
        mValue.setValue(json);
    return isAccepted;
}

void ConfValue::logGetMismatch()
{
    qWarning() << "ConfValue::get() type mismatch";
}

void ConfValue::set(const ConfValue &other)
{
    if (other.mType != mType) {
        qWarning() << "ConfValue::set() type mismatch";
        return;
    }
    if (isJsonType(other)) {
        setJson(other.toJsonValue());
        return;
    }
    visitType(mType, [&](auto *type) {
        using T = std::remove_pointer_t<decltype(type)>;
        set<T>(other.get<T>());
    });
}

bool ConfValue::operator==(const ConfValue &other) const
{
    bool equal = false;
    if (mType == other.mType && isJsonType(other)) {
        equal = toJsonValue() == other.toJsonValue();
    } else if (mType == other.mType) {
        visitType(mType, [&](auto *type) {
            using T = std::remove_pointer_t<decltype(type)>;
            equal = get<T>() == other.get<T>();
        });
    }
    return equal;
}

QJsonValue ConfValue::toJsonValue() const
{
    if (mType == TyNone || isNull(*this))
        return QJsonValue();
    QJsonValue json;
    if (isJsonType(*this)) {
        const void *variable = mIsPtr ? variableOf(*this) : nullptr;
        return variable ? MtConf::jsonOperations(mType)->toJson(variable)
                        : mValue.value<QJsonValue>();
    }
    visitType(mType, [&](auto *type) {
        using T = std::remove_pointer_t<decltype(type)>;
        json = toJson(get<T>());
    });
    return json;
}

void ConfValue::loadFromJsonValue(const QJsonValue &value)
{
    if (value.isNull() || value.isUndefined()) {
        // Unbinds deliberately: from now on the store treats the key as a key without a value.
        *this = ConfValue();
        return;
    }
    if (isJsonType(*this)) {
        if (!setJson(value) && EntryLog::permits())
            qWarning() << "ConfValue::loadFromJsonValue() value refused: "
                       << static_cast<quint32>(mType);
        return;
    }
    visitType(mType, [&](auto *type) {
        using T = std::remove_pointer_t<decltype(type)>;
        T loaded{};
        fromJson(value, loaded);
        set<T>(loaded);
    });
}
