#pragma once

#include "DumpMember_p.h"
#include "MemberTexts_p.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <string_view>
#include <vector>

/// Reads and writes the entries of a dump in its text, without parsing the rest.
namespace EntryTexts {

QByteArray toBytes(std::string_view text);
std::string_view view(const QByteArray &text);

/// Returns the key of a member, whose name may have the system mark.
QString keyOf(const QString &name);

/// Undefined if `value` is not JSON.
QJsonValue parsed(const QByteArray &value);

/// Returns the time of a change or a removal in seconds; 0 if there is none.
qint64 timeOf(std::string_view value, TimeRange times);

/// Appends a member to the text of an object, which begins with its brace.
void appendMember(QByteArray *text, const QString &name, std::string_view value);

/// Returns an object with the newest entry of each name. A tie takes that of `known`.
QByteArray newestOf(const std::vector<MemberText> &known, const std::vector<MemberText> &others,
                    TimeRange times);

} // namespace EntryTexts
