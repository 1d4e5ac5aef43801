#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

/// A member of a JSON object, in the text of the object.
struct MemberText
{
    QString name() const;

    std::string_view rawName; ///< without quotes, with its escapes
    std::string_view value;   ///< not parsed
};

/// Splits the text of a JSON object into its members without parsing their values. The members
/// point into `text`. Returns nothing if `text` is no object. Values are not checked: brackets and
/// strings in them are closed, but they need not be JSON.
std::optional<std::vector<MemberText>> splitMembers(const QByteArray &text);

/// A member with its name, without escapes.
struct NamedText
{
    QString name;
    std::string_view value;
};

/// Returns the members in the order of their names. Of several with the same name, the last one
/// counts.
std::vector<NamedText> sortedByName(const std::vector<MemberText> &members);

/// Finds members by their raw name. Searches in the order of the members are cheap.
class MemberIndex
{
public:
    /// `members` must outlive the index.
    explicit MemberIndex(const std::vector<MemberText> &members) : mMembers(members) {}

    /// Returns null if there is no such member. Of several with the same name, the last one counts.
    const MemberText *find(std::string_view rawName);

private:
    const std::vector<MemberText> &mMembers;
    std::unordered_map<std::string_view, size_t> mPositions; // filled when it is needed
    size_t mNext = 0;
};
