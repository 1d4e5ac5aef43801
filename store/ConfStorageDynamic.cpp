#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfLoad_p.h"
#include "ConfMisuse_p.h"
#include "ConfObservers_p.h"
#include "EntryLog_p.h"

#include <MaltoConfiguration/store/ConfOperation.h>

#include <QDebug>
#include <QJsonValue>

#include <algorithm>

namespace {

void logClassNotFound(const QString &key)
{
    // Removal logs the message of creation deliberately: both mean that the key has no class.
    if (EntryLog::permits())
        qCritical() << "ConfStorage::createDynamicConf() dynamicConfClass not found: "
                    << EntryLog::truncated(key);
}

} // namespace

const ConfStorage::DynamicConfClass *ConfStorage::findDynamicConfClass(const QString &key) const
{
    const auto found = std::find_if(
        mDynamicConfClasses.cbegin(), mDynamicConfClasses.cend(),
        [&](const DynamicConfClass *cls) { return cls && key.startsWith(cls->prefix); });
    return found != mDynamicConfClasses.cend() ? *found : nullptr;
}

void ConfStorage::createDynamicConf(const QString &key, const QJsonValue &value,
                                    const DynamicConfClass *cls)
{
    const ChangePtr change = ConfObservers::beginChange(*this, key, ConfChange::Cause::Created);
    if (createDynamic(key, value, cls))
        ConfObservers::finishChange(*this, change);
}

/// Creates a key without calling the observers. Returns whether it was created.
bool ConfStorage::createDynamic(const QString &key, const QJsonValue &value,
                                const DynamicConfClass *cls)
{
    if (mMisuse) {
        checkUse("createDynamicConf");
        mMisuse->checkDynamicKey(key);
    }
    if (!cls)
        cls = findDynamicConfClass(key);
    if (!cls) {
        logClassNotFound(key);
        return false;
    }
    if (mConfValues.contains(key) || mBusyDynamicConfs.contains(key)) {
        if (EntryLog::permits())
            qCritical() << "ConfStorage::createDynamicConf() key already exists: "
                        << EntryLog::truncated(key);
        return false;
    }
    // Copies, because `key` may refer to a map that changes here, and the creator is code of the
    // host: it may even replace the class.
    const QString name = key;
    const QJsonValue initial = value;
    const auto creator = cls->creator;
    const quint32 flags = cls->flags;

    mRemovedDynamicConfs.remove(name);
    mBusyDynamicConfs.insert(name);
    if (creator) {
        const ConfObservers::HostCode hostCode(mObservers);
        creator(name, &initial);
    }
    mBusyDynamicConfs.remove(name);
    // Again, because the creator may have loaded a removal of its own key. Creating a key drops its
    // tombstone whatever its timestamp, and is the newer change: it gets its own timestamp now.
    if (mConfValues.contains(name))
        mRemovedDynamicConfs.remove(name);
    ConfMeta &meta = mConfMetas[name];
    meta.lastChangeTime = ConfLoad::timeOfUserChange(*this, name);
    meta.flags |= flags;
    mChanged = true;
    return true;
}

void ConfStorage::removeDynamicConf(const QString &key)
{
    if (mMisuse)
        checkUse("removeDynamicConf");
    if (isLocked(key))
        return;
    const ChangePtr change = ConfObservers::beginChange(*this, key, ConfChange::Cause::Removed);
    if (removeDynamic(key))
        ConfObservers::finishChange(*this, change);
}

/// Removes a key without calling the observers. Returns whether it was removed.
bool ConfStorage::removeDynamic(const QString &key)
{
    const DynamicConfClass *cls = findDynamicConfClass(key);
    if (!cls) {
        logClassNotFound(key);
        return false;
    }
    if (!mConfValues.contains(key) || mBusyDynamicConfs.contains(key)) {
        if (EntryLog::permits())
            qCritical() << "ConfStorage::removeDynamicConf() key not found: "
                        << EntryLog::truncated(key);
        return false;
    }
    // Copies, for the reasons given in createDynamicConf.
    const QString name = key;
    const auto remover = cls->remover;
    mBusyDynamicConfs.insert(name);
    if (remover) {
        const ConfObservers::HostCode hostCode(mObservers);
        remover(name);
    }
    mBusyDynamicConfs.remove(name);
    mRemovedDynamicConfs[name] = ConfLoad::timeOfUserChange(*this, name);
    mConfValues.remove(name);
    mConfMetas.remove(name);
    mChanged = true;
    return true;
}

void ConfStorage::restoreDynamicConf(const QString &prefix)
{
    const EntryLog log;
    const ConfOperation operation(this);
    const QString start = prefix; // which may refer to a class that a callback destroys
    const QList<QString> keys = mConfValues.keys();
    for (const QString &key : keys) {
        if (!key.startsWith(start))
            continue;
        if (mPresetDynamicConfs.contains(key))
            setToDefault(key, true);
        else
            removeDynamicConf(key); // logs that a callback has removed the key meanwhile
    }
    // The presets of every class, not only of `prefix`: restoring one class deliberately restores
    // the removed presets of the others.
    const QMap<QString, QJsonValue> presets = mPresetDynamicConfs;
    for (auto preset = presets.cbegin(); preset != presets.cend(); ++preset) {
        if (!mConfValues.contains(preset.key()))
            createDynamicConf(preset.key(), preset.value(), nullptr);
    }
    mChanged = true;
}

void ConfStorage::loadPresetDynamicConf()
{
    const EntryLog log;
    const ConfOperation operation(this);
    ConfLoad::loadKeptOfClasses(*this);
    const QList<QString> keys = mPresetDynamicConfs.keys();
    for (const QString &key : keys) {
        // A preset that was never changed is not dumped, and does not count as a change.
        if (!mConfValues.contains(key) && !mRemovedDynamicConfs.contains(key))
            restorePreset(key, QDateTime());
    }
}
