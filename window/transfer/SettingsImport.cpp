#include "SettingsImport_p.h"

#include "SettingsFile_p.h"

#include "MaltoConfiguration/store/DumpMember_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QSet>

#include <algorithm>

namespace MtConf {

namespace {

/// Returns when `key` was changed or removed last; null if it never was.
QDateTime timeOf(const ConfStorage &store, const QString &key)
{
    const auto meta = store.mConfMetas.constFind(key);
    return meta != store.mConfMetas.constEnd() ? meta->lastChangeTime
                                               : store.mRemovedDynamicConfs.value(key);
}

/// Returns the second of a change that is made now and wins against the change `stored`.
qint64 secondAfter(const QDateTime &stored)
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    return stored.isNull() ? now : std::max(now, stored.toSecsSinceEpoch() + 1);
}

/// Returns a second in which a change wins against all of `store`.
qint64 secondAfterAll(const ConfStorage &store)
{
    qint64 latest = secondAfter(QDateTime());
    for (const ConfStorage::ConfMeta &meta : store.mConfMetas)
        latest = std::max(latest, secondAfter(meta.lastChangeTime));
    for (const QDateTime &removed : store.mRemovedDynamicConfs)
        latest = std::max(latest, secondAfter(removed));
    return latest;
}

bool isRemoval(const QJsonObject &entry)
{
    return entry.contains(sRemovedKey.name());
}

/// Returns the entry with the time `second`. One without a value restores the default value.
QJsonObject entryAt(qint64 second, const QJsonValue &value)
{
    QJsonObject entry{{sTimeKey.name(), second}};
    if (!value.isUndefined() && !value.isNull()) // null unbinds the key from its variable
        entry.insert(sValueKey.name(), value);
    return entry;
}

QJsonObject removalAt(qint64 second)
{
    return {{sRemovedKey.name(), second}};
}

QJsonObject entryAt(qint64 second, const ConfChange::State &state)
{
    if (!state.isPresent)
        return removalAt(second);
    return entryAt(second, state.isDefault ? QJsonValue(QJsonValue::Undefined) : state.value);
}

/// Returns whether the user sees another value.
bool isDifferent(const ConfChange &change)
{
    return change.before.isPresent != change.after.isPresent
           || change.before.value != change.after.value;
}

/// Returns whether the store has the key, or can create it.
bool isKnown(const ConfStorage &store, const QString &key)
{
    return store.mConfValues.contains(key) || store.findDynamicConfClass(key);
}

} // namespace

SettingsImport::SettingsImport(const ConfStorage &store, const QJsonObject &dump,
                               const QStringList &formerNames)
{
    const QJsonObject entries = offeredEntries(store, dump, formerNames);
    const QVector<ConfChange> loaded = store.previewLoad(entries, ConfStorage::LoadLocal);
    QSet<QString> taken;
    for (const ConfChange &change : loaded) {
        if (taken.contains(change.key)) {
            mChanges.last().after = change.after; // the changes of a key follow each other
            continue;
        }
        taken.insert(change.key);
        mChanges.append(change);
    }
    const auto isLeftOut = [&store](const ConfChange &change) {
        // A former name may lead to a key that stays here.
        return !isDifferent(change) || staysHere(store, change.key) || store.isLocked(change.key);
    };
    mChanges.erase(std::remove_if(mChanges.begin(), mChanges.end(), isLeftOut), mChanges.end());
    for (auto entry = entries.constBegin(); entry != entries.constEnd(); ++entry) {
        if (!taken.contains(entry.key()) && isKnown(store, entry.key())
            && !isRemoval(entry.value().toObject()))
            mLeftOut.refused.append(entry.key());
    }
}

/// Returns the entries that can be imported, by key. In the preview all of them win.
QJsonObject SettingsImport::offeredEntries(const ConfStorage &store, const QJsonObject &dump,
                                           const QStringList &formerNames)
{
    const qint64 second = secondAfterAll(store);
    const QSet<QString> former(formerNames.cbegin(), formerNames.cend());
    QJsonObject entries;
    for (auto member = dump.constBegin(); member != dump.constEnd(); ++member) {
        const QString key = keyOfEntry(member.key());
        const QJsonObject entry = member.value().toObject();
        if (isOffered(store, key, entry, former.contains(key)))
            entries.insert(key, isRemoval(entry) ? removalAt(second)
                                                 : entryAt(second, entry.value(sValueKey.name())));
    }
    return entries;
}

/// Returns whether the entry can be imported, or counts it.
bool SettingsImport::isOffered(const ConfStorage &store, const QString &key,
                               const QJsonObject &entry, bool isFormer)
{
    const bool isEntry = isRemoval(entry) || entry.contains(sTimeKey.name())
                         || entry.contains(sValueKey.name());
    int *count = nullptr;
    if (!isEntry
        || (isRemoval(entry) && store.mConfValues.contains(key)
            && !store.findDynamicConfClass(key)))
        count = &mLeftOut.unreadable;
    else if (staysHere(store, key))
        count = &mLeftOut.local;
    else if (key.isEmpty() || (!isKnown(store, key) && !isFormer))
        count = &mLeftOut.unknown;
    else if (store.isLocked(key))
        count = &mLeftOut.locked;
    if (count)
        ++*count;
    return !count;
}

ConfLoadReport SettingsImport::apply(ConfStorage *store, const QStringList &keys) const
{
    const QSet<QString> wanted(keys.cbegin(), keys.cend());
    QJsonObject entries;
    for (const ConfChange &change : mChanges) {
        if (wanted.contains(change.key))
            entries.insert(change.key,
                           entryAt(secondAfter(timeOf(*store, change.key)), change.after));
    }
    store->loadConf(entries, ConfStorage::LoadLocal);
    store->mChanged = true; // a load alone does not ask for a save
    return store->lastLoad();
}

} // namespace MtConf
