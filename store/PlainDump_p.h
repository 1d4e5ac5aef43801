#pragma once

#include "DumpMember_p.h"

#include <QJsonValue>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

class QByteArray;

/// A member of a dump, in the text of the dump, which must outlive it. Its functions are those of
/// `ParsedMember` and return the same.
struct PlainMember
{
    QString key() const;
    /// Always true: `readPlainDump` accepts no other entries.
    bool isObject() const { return true; }
    std::optional<qint64> time() const;
    std::optional<qint64> removalTime() const;
    QJsonValue value() const;
    QJsonValue entry() const;

    std::string_view name; ///< in ASCII
    qint64 seconds = 0;
    bool isRemoval = false;  ///< `seconds` are those of "d" and not of "t"
    std::string_view string; ///< a string value without escapes in UTF-8, or else null
    QJsonValue otherValue{QJsonValue::Undefined};
};

/// Parses the text of a dump without a QJsonDocument, whose construction takes most of the time of
/// a load. The members point into `text`.
///
/// Accepts text as the library writes it: compact, members in the order of their names, names of
/// printable ASCII, times first and in range. QJsonDocument parses single values that are neither a
/// whole number, a boolean nor a string without escapes. Any other text is refused: nothing is
/// returned, and the caller uses QJsonDocument. Both parsers accept the same texts and produce the
/// same values.
std::optional<std::vector<PlainMember>> readPlainDump(const QByteArray &text,
                                                      TimeRange times = TimeRange::Until2038);
