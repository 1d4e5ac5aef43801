#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

class QByteArray;

/// One member of a dump, as `readPlainDump` finds it. It points into the text.
struct PlainMember
{
    QString key() const;
    /// True, unlike of members that are parsed; each is an entry of this form.
    bool isObject() const { return true; }
    /// The member "t".
    std::optional<int> time() const;
    /// The member "v", or undefined.
    QJsonValue value() const;
    /// The whole, as QJsonDocument reads it.
    QJsonObject toObject() const;

    std::string_view name; ///< in ASCII
    std::string_view text; ///< of the whole after the name
    int seconds = 0;
    bool isRemoval = false;  ///< the seconds are those of the member "d", and there is no other
    std::string_view string; ///< the value in UTF-8; null when it is no string, or has escapes
    QJsonValue otherValue{QJsonValue::Undefined};
};

/// The members of the text of a dump, without a document: building one takes most of the time of a
/// load.
///
/// The text is read only as the library writes it: compact, members in the order of their names,
/// names of printable ASCII, times first. A value that is neither a whole number, a flag nor a
/// string without escapes is parsed by QJsonDocument. So is every other text as a whole, by the
/// caller: nothing is returned then. No text means anything else here than there.
std::optional<std::vector<PlainMember>> readPlainDump(const QByteArray &text);
