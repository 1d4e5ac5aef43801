#pragma once

#include "MaltoConfiguration/store/PlainDump_p.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

/// Returns whether `readPlainDump` parses `text` differently from QJsonDocument. Rejecting it is
/// not a mistake.
inline bool isMistaken(const QByteArray &text)
{
    const auto members = readPlainDump(text);
    if (!members)
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return true;
    QStringList names;
    for (const PlainMember &member : *members) {
        const QJsonObject entry = document.object().value(member.key()).toObject();
        const auto isSame = [&](const char *name, const std::optional<int> &seconds) {
            const auto parsed = entry.constFind(QLatin1String(name));
            return parsed != entry.constEnd() ? seconds == parsed->toInt(-1) : !seconds;
        };
        const int count = int(member.time().has_value()) + int(member.removalTime().has_value())
                          + int(!member.value().isUndefined());
        if (!isSame("t", member.time()) || !isSame("d", member.removalTime())
            || member.value() != entry.value("v") || count != entry.size())
            return true;
        names.append(member.key());
    }
    return names != document.object().keys();
}
