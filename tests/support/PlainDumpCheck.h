#pragma once

#include "MaltoConfiguration/store/PlainDump_p.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

/// Returns whether both are the same in a file: Qt 5 compares whole numbers beyond 2^53 exactly,
/// but a file has them as a double.
inline bool isSame(const QJsonValue &a, const QJsonValue &b)
{
    return a == b || (a.isDouble() && b.isDouble() && a.toDouble() == b.toDouble());
}

/// Returns whether `readPlainDump` parses `text` differently from QJsonDocument and `ParsedMember`.
/// Rejecting it is not a mistake.
inline bool isMistaken(const QByteArray &text, TimeRange times)
{
    const auto members = readPlainDump(text, times);
    if (!members)
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return true;
    QStringList names;
    for (const PlainMember &member : *members) {
        const QJsonObject entry = document.object().value(member.key()).toObject();
        const ParsedMember parsed(entry, times);
        const int count = int(member.time().has_value()) + int(member.removalTime().has_value())
                          + int(!member.value().isUndefined());
        if (member.time() != parsed.time() || member.removalTime() != parsed.removalTime()
            || member.value() != parsed.value() || count != entry.size())
            return true;
        const QJsonValue written = member.entry();
        const ParsedMember again(written, times);
        if (again.time() != parsed.time() || again.removalTime() != parsed.removalTime()
            || !isSame(again.value(), parsed.value()) || written.toObject().size() != count)
            return true;
        names.append(member.key());
    }
    return names != document.object().keys();
}

/// The same for each range of timestamps.
inline bool isMistaken(const QByteArray &text)
{
    return isMistaken(text, TimeRange::Until2038) || isMistaken(text, TimeRange::Long);
}
