#include "ConfKeptEntries_p.h"

#include "DumpMember_p.h"
#include "JsonText_p.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>

#include <utility>

namespace {

/// Returns `entry` with a timestamp, as loading a declared key would give it one.
QJsonValue timed(const QJsonValue &entry)
{
    QJsonObject object = entry.toObject();
    if (!object.contains(sValueKey.name()) || ConfKeptEntries::timeOf(entry))
        return entry;
    object.insert(sTimeKey.name(), QDateTime::currentSecsSinceEpoch());
    return object;
}

/// What decides ties between entries, as `incomingWinsTie` does for declared keys: removals win
/// over values, and values over defaults. Of two values the greater text wins.
std::pair<int, QByteArray> rankOf(const QJsonValue &entry)
{
    const ParsedMember member(entry, TimeRange::Long);
    if (member.removalTime())
        return {2, QByteArray()};
    if (member.value().isUndefined() || member.value().isNull())
        return {0, QByteArray()};
    QByteArray text;
    appendJsonValue(text, member.value());
    return {1, text};
}

} // namespace

bool ConfKeptEntries::keep(const QString &name, const QJsonValue &entry, KeptTie tie)
{
    const QJsonValue incoming = timed(entry);
    const auto stored = mEntries.find(name);
    if (stored == mEntries.end()) {
        mEntries.insert(name, incoming);
        mSize += sizeOf(name, incoming);
        return true;
    }
    const std::optional<qint64> time = timeOf(incoming);
    const bool isMadeNow = time && !timeOf(entry); // always wins, as for declared keys
    const std::optional<qint64> storedTime = timeOf(*stored);
    const bool winsTie = tie == KeptTie::Resolved && time == storedTime
                         && rankOf(incoming) > rankOf(*stored);
    if (!time || (!isMadeNow && !winsTie && time <= storedTime)) // no time is less than any
        return false;
    mSize += sizeOf(name, incoming) - sizeOf(name, *stored);
    *stored = incoming;
    return true;
}

void ConfKeptEntries::keepReleased(const QString &name, const QJsonValue &entry)
{
    if (timeOf(mEntries.value(name)) <= timeOf(entry))
        remove(name);
    keep(name, entry);
}

void ConfKeptEntries::remove(const QString &name)
{
    const auto stored = mEntries.find(name);
    if (stored == mEntries.end())
        return;
    mSize -= sizeOf(name, *stored);
    mEntries.erase(stored);
}

QByteArray ConfKeptEntries::stamp(const QString &name, qint64 seconds)
{
    QJsonObject entry = mEntries.value(name).toObject();
    const bool isRemoval = entry.contains(sRemovedKey.name());
    entry.insert(isRemoval ? sRemovedKey.name() : sTimeKey.name(), seconds);
    remove(name);
    keep(name, entry);
    QByteArray text;
    appendJsonValue(text, entry);
    return text;
}

std::optional<qint64> ConfKeptEntries::timeOf(const QJsonValue &entry)
{
    // All timestamps count, so that no option of the store decides which entry is newer.
    const ParsedMember member(entry, TimeRange::Long);
    const std::optional<qint64> removalTime = member.removalTime();
    return removalTime ? removalTime : member.time();
}

qint64 ConfKeptEntries::sizeOf(const QString &name, const QJsonValue &entry)
{
    QByteArray text;
    appendJsonString(text, name);
    appendJsonValue(text, entry);
    return text.size() + 2; // colon and comma
}
