#include "JsonText_p.h"

#include "Limits_p.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QLocale>
#include <QString>

#include <algorithm>
#include <cmath>

namespace {

constexpr double sLargestExactInteger = 9007199254740992.0; // 2^53
constexpr double sBeyond64Bits = 18446744073709551616.0;    // 2^64
constexpr double sSmallestDecimal = 0.0001;                 // smaller numbers have an exponent

/// Serializes `value` as the only element of an array: QJsonDocument accepts no other values.
void appendByDocument(QByteArray &text, const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    text.append(array.constData() + 1, array.size() - 2);
}

/// Returns whether the character is written as itself in JSON, as one byte.
bool isPlain(ushort character)
{
    return character >= 0x20 && character < 0x7f && character != '"' && character != '\\';
}

/// Appends a string that needs more than quotes. Qt's parsers drop U+FEFF at the start of a string
/// as a byte order mark, unless it is an escape.
void appendOtherString(QByteArray &text, const QString &string)
{
    if (!string.startsWith(QChar(QChar::ByteOrderMark))) {
        appendByDocument(text, string);
        return;
    }
    const auto start = text.size();
    appendByDocument(text, string.mid(1));
    text.insert(start + 1, "\\ufeff");
}

/// Returns the text of the QJsonDocument of Qt 5. That of Qt 6 writes whole numbers that no double
/// can hold, and chooses an exponent for other numbers than Qt 5, as for 0.0004 and 1e17.
QByteArray fractionText(double number)
{
    const double size = std::abs(number);
    const QByteArray decimal = QByteArray::number(number, 'f', QLocale::FloatingPointShortest);
    if (size >= sSmallestDecimal && size < sBeyond64Bits)
        return decimal;
    const QByteArray scientific = QByteArray::number(number, 'e', QLocale::FloatingPointShortest);
    return size < sSmallestDecimal || scientific.size() < decimal.size() ? scientific : decimal;
}

void appendNumber(QByteArray &text, double number)
{
    if (number == 0)
        appendByDocument(text, number); // may be negative
    else if (!std::isfinite(number))
        text += std::isnan(number) ? "\"nan\"" : number > 0 ? "\"inf\"" : "\"-inf\"";
    else if (std::trunc(number) == number && std::abs(number) < sLargestExactInteger)
        text += QByteArray::number(static_cast<qint64>(number));
    else
        text += fractionText(number);
}

/// Returns the most bytes that the text of `value` can have, or more than `limit` if they are more
/// or if `value` has more than `levels` levels.
qint64 mostBytes(const QJsonValue &value, qint64 limit, int levels)
{
    constexpr qint64 sMostOfACharacter = 6; // an escape
    constexpr qint64 sMostOfANumber = 32;
    if (value.isString())
        return sMostOfACharacter * value.toString().size() + 2;
    if (!value.isArray() && !value.isObject())
        return sMostOfANumber;
    qint64 bytes = levels > 0 ? 2 : limit + 1;
    const QJsonArray array = value.toArray();
    for (auto it = array.begin(); it != array.end() && bytes <= limit; ++it)
        bytes += 1 + mostBytes(*it, limit, levels - 1);
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end() && bytes <= limit; ++it)
        bytes += 4 + sMostOfACharacter * it.key().size() + mostBytes(*it, limit, levels - 1);
    return bytes;
}

bool hasTooManyLevels(const QJsonValue &value, int levels)
{
    if (!value.isArray() && !value.isObject())
        return false;
    if (levels == 0)
        return true;
    const QJsonArray array = value.toArray();
    const QJsonObject object = value.toObject();
    const auto isTooDeep = [levels](const QJsonValue &child) {
        return hasTooManyLevels(child, levels - 1);
    };
    return std::any_of(array.begin(), array.end(), isTooDeep)
           || std::any_of(object.begin(), object.end(), isTooDeep);
}

void appendArray(QByteArray &text, const QJsonArray &array)
{
    text += '[';
    const auto start = text.size();
    for (const QJsonValue &element : array) {
        if (text.size() > start)
            text += ',';
        appendJsonValue(text, element);
    }
    text += ']';
}

void appendObject(QByteArray &text, const QJsonObject &object)
{
    text += '{';
    const auto start = text.size();
    for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
        if (text.size() > start)
            text += ',';
        appendJsonString(text, member.key());
        text += ':';
        appendJsonValue(text, member.value());
    }
    text += '}';
}

/// Returns the number of four hexadecimal digits, or -1.
int numberOfDigits(const QChar *digits)
{
    int number = 0;
    for (int i = 0; i < 4; ++i) {
        const ushort digit = digits[i].unicode();
        const ushort letter = digit | 0x20; // in lower case
        if (digit >= '0' && digit <= '9')
            number = 16 * number + digit - '0';
        else if (letter >= 'a' && letter <= 'f')
            number = 16 * number + letter - 'a' + 10;
        else
            return -1;
    }
    return number;
}

/// Sets `*character` to that of the escape whose backslash is before `*in`, and moves `*in` behind
/// the escape. Returns false for an escape that is left to Qt's parser.
bool unescapeOne(const QChar **in, const QChar *end, QChar *character)
{
    constexpr int sDigits = 4;
    const QChar kind = *(*in)++;
    switch (kind.unicode()) {
    case '"':
    case '\\':
    case '/': *character = kind; return true;
    case 'b': *character = QLatin1Char('\b'); return true;
    case 'f': *character = QLatin1Char('\f'); return true;
    case 'n': *character = QLatin1Char('\n'); return true;
    case 'r': *character = QLatin1Char('\r'); return true;
    case 't': *character = QLatin1Char('\t'); return true;
    case 'u': break;
    default: return false;
    }
    if (end - *in < sDigits)
        return false;
    const int number = numberOfDigits(*in);
    if (number < 0 || QChar::isSurrogate(static_cast<uint>(number)))
        return false;
    *character = QChar(static_cast<ushort>(number));
    *in += sDigits;
    return true;
}

} // namespace

void appendJsonString(QByteArray &text, const QString &string)
{
    const auto start = text.size();
    text.resize(start + string.size() + 2);
    char *out = text.data() + start;
    *out++ = '"';
    for (const QChar character : string) {
        if (!isPlain(character.unicode())) {
            text.truncate(start);
            appendOtherString(text, string);
            return;
        }
        *out++ = static_cast<char>(character.unicode());
    }
    *out = '"';
}

bool unescape(QString *text)
{
    const auto first = text->indexOf(QLatin1Char('\\'));
    if (first < 0)
        return true;
    QChar *const begin = text->data();
    QChar *out = begin + first;
    const QChar *const end = begin + text->size();
    for (const QChar *in = out; in != end;) {
        if (*in != QLatin1Char('\\')) {
            *out++ = *in++;
            continue;
        }
        if (++in == end || !unescapeOne(&in, end, out++))
            return false;
    }
    text->truncate(static_cast<QString::size_type>(out - begin));
    return true;
}

void appendJsonValue(QByteArray &text, const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool: text += value.toBool() ? "true" : "false"; return;
    case QJsonValue::String: appendJsonString(text, value.toString()); return;
    case QJsonValue::Double: appendNumber(text, value.toDouble()); return;
    case QJsonValue::Array: appendArray(text, value.toArray()); return;
    case QJsonValue::Object: appendObject(text, value.toObject()); return;
    case QJsonValue::Null:
    case QJsonValue::Undefined: text += "null"; return;
    }
}

bool isSavable(const QJsonValue &value, qint64 limit)
{
    if (mostBytes(value, limit, Limits::sMaxValueLevels) <= limit)
        return true;
    if (hasTooManyLevels(value, Limits::sMaxValueLevels))
        return false;
    QByteArray text;
    appendJsonValue(text, value);
    return text.size() <= limit;
}
