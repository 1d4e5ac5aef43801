#include "MemberTexts_p.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr std::string_view sByteOrderMark = "\xef\xbb\xbf";

constexpr bool isStructural(char character)
{
    switch (character) {
    case '"':
    case '{':
    case '}':
    case '[':
    case ']':
    case ',': return true;
    default: return false;
    }
}

constexpr bool endsString(char character)
{
    return character == '"' || character == '\\';
}

/// Reads the text from its start to its end. Every function returns false, or a null view, at the
/// first character that does not fit.
class Splitter
{
public:
    explicit Splitter(std::string_view text) : mRest(text)
    {
        if (mRest.substr(0, sByteOrderMark.size()) == sByteOrderMark)
            mRest.remove_prefix(sByteOrderMark.size());
    }

    bool read(std::vector<MemberText> *members)
    {
        if (!skip('{'))
            return false;
        if (skip('}'))
            return isAtEnd();
        do {
            MemberText member;
            if (!readString(&member.rawName) || !skip(':') || !readValue(&member.value))
                return false;
            members->push_back(member);
        } while (skip(','));
        return skip('}') && isAtEnd();
    }

private:
    void skipSpace()
    {
        mRest.remove_prefix(std::min(mRest.find_first_not_of(" \t\r\n"), mRest.size()));
    }

    bool isAtEnd()
    {
        skipSpace();
        return mRest.empty();
    }

    bool skip(char character)
    {
        skipSpace();
        if (mRest.empty() || mRest.front() != character)
            return false;
        mRest.remove_prefix(1);
        return true;
    }

    /// Returns the position of the first character from `at` on for which `isWanted` is true. Much
    /// faster than std::string_view::find_first_of().
    template<class Predicate> size_t find(size_t at, Predicate isWanted) const
    {
        while (at < mRest.size() && !isWanted(mRest[at]))
            ++at;
        return at < mRest.size() ? at : std::string_view::npos;
    }

    /// Returns the position behind the string that starts with the quote at `start`, or `npos`.
    size_t endOfString(size_t start) const
    {
        size_t at = find(start + 1, endsString);
        while (at != std::string_view::npos && mRest[at] == '\\')
            at = find(at + 2, endsString);
        return at == std::string_view::npos ? at : at + 1;
    }

    bool readString(std::string_view *content)
    {
        skipSpace();
        if (mRest.empty() || mRest.front() != '"')
            return false;
        const size_t end = endOfString(0);
        if (end == std::string_view::npos)
            return false;
        *content = mRest.substr(1, end - 2);
        mRest.remove_prefix(end);
        return true;
    }

    bool readValue(std::string_view *value)
    {
        skipSpace();
        size_t at = 0;
        int depth = 0;
        while (at < mRest.size()) {
            at = find(at, isStructural);
            if (at == std::string_view::npos)
                return false;
            const char found = mRest[at];
            if (found == '"') {
                at = endOfString(at);
                continue;
            }
            if (found == '{' || found == '[')
                ++depth;
            else if (depth == 0)
                break; // a comma, or the end of the object
            else if (found != ',')
                --depth;
            ++at;
        }
        if (at >= mRest.size() || at == 0)
            return false;
        *value = mRest.substr(0, at);
        value->remove_suffix(at - 1 - value->find_last_not_of(" \t\r\n"));
        mRest.remove_prefix(at);
        return true;
    }

    std::string_view mRest;
};

} // namespace

QString MemberText::name() const
{
    const auto size = static_cast<int>(rawName.size());
    if (rawName.find('\\') == std::string_view::npos)
        return QString::fromUtf8(rawName.data(), size);
    const QByteArray array = "[\"" + QByteArray(rawName.data(), size) + "\"]";
    return QJsonDocument::fromJson(array).array().at(0).toString();
}

std::optional<std::vector<MemberText>> splitMembers(const QByteArray &text)
{
    std::vector<MemberText> members;
    if (Splitter({text.constData(), static_cast<size_t>(text.size())}).read(&members))
        return members;
    return std::nullopt;
}

std::vector<NamedText> sortedByName(const std::vector<MemberText> &members)
{
    std::vector<NamedText> sorted;
    sorted.reserve(members.size());
    for (const MemberText &member : members)
        sorted.push_back({member.name(), member.value});
    const auto precedes = [](const NamedText &a, const NamedText &b) { return a.name < b.name; };
    const auto isUnordered = [](const NamedText &a, const NamedText &b) {
        return !(a.name < b.name);
    };
    if (std::adjacent_find(sorted.cbegin(), sorted.cend(), isUnordered) == sorted.cend())
        return sorted;
    std::stable_sort(sorted.begin(), sorted.end(), precedes);
    const auto lastOfEach = std::unique(
        sorted.rbegin(), sorted.rend(),
        [](const NamedText &a, const NamedText &b) { return a.name == b.name; });
    sorted.erase(sorted.begin(), lastOfEach.base());
    return sorted;
}

const MemberText *MemberIndex::find(std::string_view rawName)
{
    if (mNext < mMembers.size() && mMembers[mNext].rawName == rawName)
        return &mMembers[mNext++];
    if (mPositions.empty()) {
        for (size_t i = 0; i < mMembers.size(); ++i)
            mPositions[mMembers[i].rawName] = i;
    }
    const auto found = mPositions.find(rawName);
    if (found == mPositions.end())
        return nullptr;
    mNext = found->second + 1;
    return &mMembers[found->second];
}
