#pragma once

#include "MaltoConfiguration/store/PlainDump_p.h"

#include <QJsonDocument>
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
        const auto time = entry.constFind("t");
        const bool hasSameTime = time != entry.constEnd() ? member.time() == time->toInt(-1)
                                                          : !member.time();
        if (member.toObject() != entry || member.value() != entry.value("v") || !hasSameTime)
            return true;
        names.append(member.key());
    }
    return names != document.object().keys();
}
