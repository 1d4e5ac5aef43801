#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>
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
