#pragma once

#include "DumpMember_p.h"

#include <QByteArray>
#include <QJsonValue>
#include <QLatin1String>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

/// A member of a dump, in the text of the dump, which must outlive it. Its functions are those of
/// `ParsedMember` and return the same.
struct PlainMember
{
    QString key() const { return nameText(); }
    QLatin1String nameText() const
    {
        return QLatin1String(name.data(), static_cast<QString::size_type>(name.size()));
    }
    /// Always true: `readPlainDump` accepts no other entries.
    bool isObject() const { return true; }
    std::optional<qint64> time() const;
    std::optional<qint64> removalTime() const;
    QJsonValue value() const;
    QJsonValue entry() const;
    bool isText() const { return string.data() != nullptr; } ///< whether the value is a string
    QString text() const;                                    ///< the string

    std::string_view name; ///< in ASCII
    qint64 seconds = 0;
    bool isRemoval = false;  ///< `seconds` are those of "d" and not of "t"
    std::string_view string; ///< a string value in UTF-8, or else null
    QString decoded;         ///< the same without escapes, if the bytes are not its characters
    QJsonValue otherValue{QJsonValue::Undefined};
};

/// The text of a dump, and its members if `readPlainDump` has returned them, which need not be
/// parsed again.
struct DumpText
{
    QByteArray text;
    std::optional<std::vector<PlainMember>> members;
};

/// Parses the text of a dump without a QJsonDocument, whose construction takes most of the time of
/// a load. The members point into `text`.
///
/// Accepts text as the library writes it: compact, members in the order of their names, names of
/// printable ASCII, times first and in range. QJsonDocument parses single values that are neither a
/// whole number, a boolean nor a string with usual escapes. Any other text is refused: nothing is
/// returned, and the caller uses QJsonDocument. Both parsers accept the same texts and produce the
/// same values.
std::optional<std::vector<PlainMember>> readPlainDump(const QByteArray &text,
                                                      TimeRange times = TimeRange::Until2038);
