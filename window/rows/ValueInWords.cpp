#include "ValueInWords_p.h"

#include "MaltoConfiguration/store/SecretText_p.h"
#include "MaltoConfiguration/widgets/EditorTexts_p.h"
#include "MaltoConfiguration/widgets/JsonFlags_p.h"
#include "MaltoConfiguration/widgets/LangCodeTable_p.h"
#include "MaltoConfiguration/widgets/RangeCheck_p.h"

#include <MaltoConfiguration/manage/ConfItem.h>
#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <algorithm>

namespace MtConf {

namespace {

QString yes()
{
    return QCoreApplication::translate("MtConf::ValueInWords", "Yes");
}
QString no()
{
    return QCoreApplication::translate("MtConf::ValueInWords", "No");
}
QString none()
{
    return QCoreApplication::translate("MtConf::ValueInWords", "None");
}
QString notSet()
{
    return QCoreApplication::translate("MtConf::ValueInWords", "Not set");
}
QString empty()
{
    return QCoreApplication::translate("MtConf::ValueInWords", "Empty");
}

bool isSecret(const ConfItem &item)
{
    return ConfStorage::instance()->mConfMetas.value(item.getFullName()).flags
           & ConfStorage::FlagSecret;
}

/// Returns `value` as a `T`, read by the rules of the store.
template<class T> T valueOf(const QJsonValue &value)
{
    ConfValue copy = ConfValue::owned(T());
    copy.loadFromJsonValue(value);
    return copy.get<T>();
}

QString textOf(const QString &text)
{
    QString line = text;
    line.replace(QLatin1Char('\n'), QChar(0x21b5)); // the symbol of the return key
    return line.isEmpty() ? empty() : line;
}

QString jsonText(const QJsonDocument &document)
{
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

QString listText(const QJsonArray &list)
{
    QStringList texts;
    for (const QJsonValue &element : list) {
        if (!element.isString())
            return jsonText(QJsonDocument(list));
        texts.append(textOf(element.toString()));
    }
    return texts.isEmpty() ? empty() : texts.join(listSeparator());
}

/// Returns the labels of the choices that `value` is, or nothing if it is none of them.
QString choiceText(const ConfItem &item, const QJsonValue &value)
{
    const JsonFlags form(item.getFullName());
    const bool isMulti = item.properties.value(QStringLiteral("MultiSelect")).toBool();
    QStringList labels;
    for (const ConfChoice &choice : item.choices) {
        const QJsonValue offered = form.normalized(choice.value);
        if (isMulti ? form.contains(value, offered) : offered == value)
            labels.append(choice.text());
    }
    if (isMulti && labels.isEmpty() && form.contains(value, form.normalized(0)))
        return none();
    return labels.join(listSeparator());
}

QString languageText(const QString &code)
{
    if (code == QLatin1String("auto"))
        return ConfWidgetLanguage::tr("Follow the system");
    return LangCodeTable::displayName(code);
}

bool isLanguage(const ConfItem &item)
{
    using Factory = ConfigItemWidget *(*)(ConfItem *, QWidget *);
    const Factory *const factory = item.widgetCreator.target<Factory>();
    return factory && *factory == ConfWidgetLanguage::CreatConfWidget;
}

/// Returns the text of a value whose meaning only the item knows, or nothing.
QString ownText(const ConfItem &item, const QJsonValue &value)
{
    if (!item.choices.isEmpty())
        return choiceText(item, value);
    if (item.properties.contains(QStringLiteral("Kind")) && value.isDouble())
        return mouseActionText(value.toInt());
    return isLanguage(item) ? languageText(value.toString()) : QString();
}

QString colorText(const QJsonValue &value)
{
    const auto color = valueOf<QColor>(value);
    if (!color.isValid())
        return none();
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString fontText(const QJsonValue &value)
{
    const auto font = valueOf<QFont>(value);
    const QLocale locale;
    const bool isInPixels = font.pixelSize() > 0;
    QStringList parts(font.family());
    parts.append(isInPixels ? QCoreApplication::translate("MtConf::ValueInWords", "%1 px")
                                  .arg(numberText(locale, font.pixelSize()))
                            : QCoreApplication::translate("MtConf::ValueInWords", "%1 pt")
                                  .arg(numberText(locale, font.pointSizeF())));
    if (font.bold())
        parts.append(QCoreApplication::translate("MtConf::ValueInWords", "bold"));
    if (font.italic())
        parts.append(QCoreApplication::translate("MtConf::ValueInWords", "italic"));
    if (font.underline())
        parts.append(QCoreApplication::translate("MtConf::ValueInWords", "underlined"));
    return parts.join(listSeparator());
}

QString hotkeyText(const QJsonValue &value)
{
    const QString text = valueOf<QKeySequence>(value).toString(QKeySequence::NativeText);
    return text.isEmpty() ? notSet() : text;
}

QString timeText(const QJsonValue &value)
{
    const QDateTime time = valueOf<QDateTime>(value).toLocalTime();
    const QLocale locale;
    return time.isValid() ? locale.toString(time, dateTimeFormat(locale, time)) : notSet();
}

QString suffixOf(const ConfItem &item)
{
    if (item.properties.contains(QStringLiteral("Malto.Suffix")))
        return item.suffixText();
    if (!item.properties.contains(QStringLiteral("Malto.SecondsPerUnit")))
        return QString();
    const char *const unit = unitSuffix(item);
    return unit ? QObject::tr(unit) : QString();
}

struct TextOfType
{
    ConfValue::ConfType type;
    QString (*text)(const QJsonValue &value);
};

/// Returns the function for types whose JSON is not what users read; null for other types.
const TextOfType *textOfType(int type)
{
    static const TextOfType sTypes[] = {{ConfValue::typeOf<QColor>(), colorText},
                                        {ConfValue::typeOf<QFont>(), fontText},
                                        {ConfValue::typeOf<QKeySequence>(), hotkeyText},
                                        {ConfValue::typeOf<QDateTime>(), timeText}};
    const auto found = std::find_if(std::begin(sTypes), std::end(sTypes),
                                    [type](const TextOfType &t) { return int(t.type) == type; });
    return found == std::end(sTypes) ? nullptr : found;
}

} // namespace

QString listSeparator()
{
    return QCoreApplication::translate("MtConf::ModernPageBuilder", ", ",
                                       "between the chosen entries");
}

QString isolated(const QString &text)
{
    constexpr char16_t sFirstStrongIsolate = 0x2068;
    constexpr char16_t sPopDirectionalIsolate = 0x2069;
    if (text.isEmpty() || !QGuiApplication::isRightToLeft())
        return text;
    return QChar(sFirstStrongIsolate) + text + QChar(sPopDirectionalIsolate);
}

QString valueInWords(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool: return value.toBool() ? yes() : no();
    case QJsonValue::Double: return numberText(QLocale(), value.toDouble());
    case QJsonValue::String: return textOf(value.toString());
    case QJsonValue::Array: return listText(value.toArray());
    case QJsonValue::Object:
        return value.toObject().isEmpty() ? empty() : jsonText(QJsonDocument(value.toObject()));
    case QJsonValue::Null: return none();
    case QJsonValue::Undefined: break;
    }
    return QString();
}

QString valueInWords(const ConfItem &item, const QJsonValue &value)
{
    if (value.isUndefined())
        return QString();
    if (isSecret(item))
        return sSecretText;
    const QString own = ownText(item, value);
    if (!own.isEmpty())
        return own;
    const TextOfType *const special = textOfType(item.valueType);
    if (special && value.isString())
        return special->text(value);
    const bool isNumber = value.isDouble() || (item.isWholeNumber && value.isString());
    return valueInWords(value) + (isNumber ? suffixOf(item) : QString());
}

QColor colorOfValue(const ConfItem &item, const QJsonValue &value)
{
    const bool isColor = item.valueType == ConfValue::TyQColor && value.isString();
    return isColor && !isSecret(item) ? valueOf<QColor>(value) : QColor();
}

} // namespace MtConf
