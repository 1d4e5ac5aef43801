#include "PlainDump_p.h"

#include "JsonText_p.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstring>

namespace {

constexpr int sMostDigits = 18;  // any number with so many digits fits into 64 bits
constexpr int sMostLevels = 500; // fewer than QJsonDocument supports
constexpr QLatin1String sByteOrderMark("\xef\xbb\xbf");

/// What a byte is in a JSON string.
enum ByteKind : uchar {
    Plain,       ///< a character without an escape
    BeyondAscii, ///< part of a character in UTF-8
    Backslash,
    Quote,
    Control ///< not allowed, and DEL, about which Qt's parser decides
};

constexpr ByteKind kindOfByte(int byte)
{
    if (byte == '"')
        return Quote;
    if (byte == '\\')
        return Backslash;
    if (byte >= 0x80)
        return BeyondAscii;
    return byte < 0x20 || byte == 0x7f ? Control : Plain;
}

constexpr std::array<ByteKind, 256> kindsOfBytes()
{
    std::array<ByteKind, 256> kinds{};
    for (int byte = 0; byte < 256; ++byte)
        kinds[static_cast<size_t>(byte)] = kindOfByte(byte);
    return kinds;
}

ByteKind kindOf(char byte)
{
    static constexpr std::array<ByteKind, 256> sKinds = kindsOfBytes();
    return sKinds[static_cast<uchar>(byte)];
}

/// Returns the first byte of another kind.
const char *endOfPlain(const char *start, const char *end)
{
    while (start != end && kindOf(*start) == Plain)
        ++start;
    return start;
}

QLatin1String latin1(std::string_view bytes)
{
    return QLatin1String(bytes.data(), static_cast<QString::size_type>(bytes.size()));
}

/// Returns the text of a string in JSON, or null if Qt's parser has to decide about it: if the
/// bytes are not valid UTF-8, contain the replacement character itself or a byte order mark, or if
/// it has unusual escapes.
QString decoded(std::string_view json)
{
    QString text = QString::fromUtf8(json.data(), static_cast<QString::size_type>(json.size()));
    if (text.contains(QChar::ReplacementCharacter) || latin1(json).startsWith(sByteOrderMark)
        || !unescape(&text))
        return QString();
    return text;
}

/// Parses a text from start to end. If one function fails, the whole text is rejected.
class Scanner
{
public:
    Scanner(const QByteArray &text, TimeRange times)
        : mTimes(times), mNext(text.constData()), mEnd(mNext + text.size())
    {
    }

    bool isAtEnd() const { return mNext == mEnd; }
    bool take(QLatin1String literal);
    bool takeMember(PlainMember *member);

private:
    bool isNext(char byte) const { return mNext != mEnd && *mNext == byte; }
    bool takeName(std::string_view *name);
    bool takeString(PlainMember *member);
    bool takeNumber(qint64 *number);
    bool takeSeconds(qint64 *seconds);
    bool takeValue(PlainMember *member);
    bool takePlainValue(PlainMember *member);
    bool takeParsedValue(PlainMember *member);
    const char *endOfValue() const;

    const TimeRange mTimes;
    const char *mNext;
    const char *const mEnd;
};

bool Scanner::take(QLatin1String literal)
{
    const auto size = static_cast<size_t>(literal.size());
    if (mEnd - mNext < literal.size() || std::memcmp(mNext, literal.data(), size) != 0)
        return false;
    mNext += literal.size();
    return true;
}

bool Scanner::takeName(std::string_view *name)
{
    if (!isNext('"'))
        return false;
    const char *const start = mNext + 1;
    const char *const end = endOfPlain(start, mEnd);
    if (end == mEnd || *end != '"')
        return false;
    *name = std::string_view(start, static_cast<size_t>(end - start));
    mNext = end + 1;
    return true;
}

bool Scanner::takeString(PlainMember *member)
{
    if (!isNext('"'))
        return false;
    const char *const start = mNext + 1;
    const char *end = endOfPlain(start, mEnd);
    const bool isItself = end != mEnd && *end == '"'; // whether each byte is a character
    while (end != mEnd && *end != '"') {
        if (*end == '\\' && ++end == mEnd)
            return false;
        if (kindOf(*end) == Control)
            return false;
        end = endOfPlain(end + 1, mEnd);
    }
    if (end == mEnd)
        return false;
    member->string = std::string_view(start, static_cast<size_t>(end - start));
    if (!isItself) {
        member->decoded = decoded(member->string);
        if (member->decoded.isNull())
            return false;
    }
    mNext = end + 1;
    return true;
}

/// Also takes the first digits of a longer number or of a fraction: the caller checks what follows.
bool Scanner::takeNumber(qint64 *number)
{
    const bool isNegative = isNext('-');
    const char *const start = isNegative ? mNext + 1 : mNext;
    const char *end = start;
    qint64 sum = 0;
    while (end != mEnd && *end >= '0' && *end <= '9' && end - start < sMostDigits)
        sum = 10 * sum + (*end++ - '0');
    // JSON has no leading zeros, and minus zero is not an integer.
    if (end == start || (*start == '0' && (isNegative || end - start > 1)))
        return false;
    *number = isNegative ? -sum : sum;
    mNext = end;
    return true;
}

bool Scanner::takeSeconds(qint64 *seconds)
{
    return takeNumber(seconds) && isInRange(static_cast<double>(*seconds), mTimes);
}

bool Scanner::takeValue(PlainMember *member)
{
    const char *const start = mNext;
    if (takePlainValue(member) && isNext('}'))
        return true;
    mNext = start;
    member->string = std::string_view();
    member->decoded = QString();
    return takeParsedValue(member);
}

bool Scanner::takePlainValue(PlainMember *member)
{
    qint64 number = 0;
    if (takeNumber(&number))
        member->otherValue = number;
    else if (take(QLatin1String("true")))
        member->otherValue = true;
    else if (take(QLatin1String("false")))
        member->otherValue = false;
    else
        return takeString(member);
    return true;
}

bool Scanner::takeParsedValue(PlainMember *member)
{
    const char *const end = endOfValue();
    if (!end)
        return false;
    const auto size = static_cast<QByteArray::size_type>(end - mNext);
    const QByteArray text = QByteArray::fromRawData(mNext, size);
    // Parsed as the only element of an array: QJsonDocument accepts no other values.
    const QJsonArray array = QJsonDocument::fromJson('[' + text + ']').array();
    if (array.size() != 1)
        return false;
    member->otherValue = array.first();
    mNext = end;
    return true;
}

/// Returns the end of a value without parsing it: only strings and brackets are recognized.
const char *Scanner::endOfValue() const
{
    int level = 0;
    bool isInString = false;
    for (const char *at = mNext; at != mEnd; ++at) {
        if (isInString) {
            if (*at != '\\')
                isInString = *at != '"';
            else if (++at == mEnd)
                break;
            continue;
        }
        if (level == 0 && *at == '}')
            return at;
        if (*at == '"')
            isInString = true;
        else if (*at == '[' || *at == '{')
            ++level;
        else if (*at == ']' || *at == '}')
            --level;
        if (level < 0 || level > sMostLevels)
            return nullptr;
    }
    return nullptr;
}

bool Scanner::takeMember(PlainMember *member)
{
    if (!takeName(&member->name) || !take(QLatin1String(":{")))
        return false;
    member->isRemoval = take(sRemovedKey.inText());
    if (!member->isRemoval && !take(sTimeKey.inText()))
        return false;
    if (!takeSeconds(&member->seconds))
        return false;
    const bool hasValue = !member->isRemoval && take(QLatin1String(","));
    if (hasValue && (!take(sValueKey.inText()) || !takeValue(member)))
        return false;
    return take(QLatin1String("}"));
}

} // namespace

QString PlainMember::text() const
{
    return decoded.isNull() ? QString(latin1(string)) : decoded;
}

std::optional<qint64> PlainMember::time() const
{
    return isRemoval ? std::nullopt : std::make_optional(seconds);
}

std::optional<qint64> PlainMember::removalTime() const
{
    return isRemoval ? std::make_optional(seconds) : std::nullopt;
}

QJsonValue PlainMember::value() const
{
    return isText() ? QJsonValue(text()) : otherValue;
}

QJsonValue PlainMember::entry() const
{
    if (isRemoval)
        return QJsonObject{{sRemovedKey.name(), seconds}};
    QJsonObject entry{{sTimeKey.name(), seconds}};
    const QJsonValue newValue = value();
    if (!newValue.isUndefined())
        entry.insert(sValueKey.name(), newValue);
    return entry;
}

std::optional<std::vector<PlainMember>> readPlainDump(const QByteArray &text, TimeRange times)
{
    Scanner scanner(text, times);
    constexpr QByteArray::size_type sUsualSize = 64; // of a member
    std::vector<PlainMember> members;
    members.reserve(static_cast<size_t>(text.size() / sUsualSize));
    if (!scanner.take(QLatin1String("{")))
        return std::nullopt;
    do {
        PlainMember member;
        if (!scanner.takeMember(&member))
            return std::nullopt;
        // An object is sorted by name and keeps the last of several members with the same name.
        if (!members.empty() && members.back().name >= member.name)
            return std::nullopt;
        members.push_back(std::move(member));
    } while (scanner.take(QLatin1String(",")));
    if (!scanner.take(QLatin1String("}")) || !scanner.isAtEnd())
        return std::nullopt;
    return members;
}
