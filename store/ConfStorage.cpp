#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfAutosave_p.h"
#include "ConfConstraints_p.h"
#include "ConfDump_p.h"
#include "ConfFileSharing_p.h"
#include "ConfFileWatch_p.h"
#include "ConfKeptEntries_p.h"
#include "ConfLoad_p.h"
#include "ConfMisuse_p.h"
#include "ConfObservers_p.h"
#include "ConfVersions_p.h"
#include "EntryLog_p.h"
#include "LockedConfs_p.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>

#include <QDebug>
#include <QJsonObject>
#include <QScopedValueRollback>

#include <algorithm>
#include <new>

namespace {

/// How many callbacks may be nested. Far more than a host needs, and far fewer than the stack can
/// contain: a callback that keeps setting its own key is stopped instead of overflowing the stack.
constexpr int sMaxCallbackDepth = 200;

} // namespace

ConfStorage::ConfStorage() = default;

ConfStorage::~ConfStorage() = default;

ConfStorage *ConfStorage::instance()
{
    static ConfStorage *sInstance = new ConfStorage;
    return sInstance;
}

void ConfStorage::clear()
{
    if (mObservers)
        mObservers->removeAll(); // some may be about to be called
    // Constructed again in place, because a list of the members would miss the next one.
    this->~ConfStorage();
    new (this) ConfStorage;
}

void ConfStorage::reserveValue(const QString &key, ConfValue &&bound, ConfValue &&current)
{
    if (mMisuse)
        checkUse("reserveConf");
    // A concatenated string has spare capacity, which the store would keep as long as the key.
    const QString exactKey = key.capacity() > key.size() ? QString(key.constData(), key.size())
                                                         : key;
    if (mConstraints && mConfValues.contains(exactKey))
        mConstraints->set(exactKey, nullptr);

    ConfMeta meta;
    if (isDynamicWithoutPreset(key))
        meta.flags &= ~FlagIsDefault;
    const auto preset = mPresetDynamicConfs.constFind(key);
    if (preset == mPresetDynamicConfs.constEnd()) {
        meta.defaultValue = std::move(current);
    } else {
        if (MtConf::jsonOperations(bound.mType)) {
            meta.defaultValue = std::move(current);
            meta.defaultValue.loadFromJsonValue(*preset);
        } else {
            meta.defaultValue = ConfValue::owned(preset->toObject());
        }
        if (meta.defaultValue != bound)
            meta.flags &= ~FlagIsDefault;
    }
    // insert() because operator[] searches twice for a new key, and an empty value because a copy
    // of a bound one asks Qt's meta-type system.
    *mConfValues.insert(exactKey, ConfValue()) = std::move(bound);
    mConfMetas.insert(exactKey, meta);
    if (mFileSharing)
        mFileSharing->addReserved(exactKey);
    if (isLocked(exactKey))
        mLockedConfs->takeOwn(*this, exactKey);
    if (mKeptEntries && !mBusyDynamicConfs.contains(exactKey))
        ConfLoad(*this, LoadLocal).loadKept(exactKey);
    if (isLocked(exactKey))
        mLockedConfs->apply(*this, exactKey);
}

void ConfStorage::releaseConf(const QString &key)
{
    if (mMisuse)
        checkUse("releaseConf");
    const QString name = key; // which may refer to one of the maps
    if (mFileOptions & (KeepUnknownEntries | SharedFile))
        keepEntryOf(name);
    if (mConstraints)
        mConstraints->set(name, nullptr);
    mConfValues.remove(name);
    mConfMetas.remove(name);
}

/// Keeps the entry of a key whose value will not be saved any more.
void ConfStorage::keepEntryOf(const QString &key)
{
    const QJsonObject entry = ConfDump(*this, key).toObject();
    if (!mKeptEntries && !entry.isEmpty())
        mKeptEntries = std::make_unique<ConfKeptEntries>();
    for (auto it = entry.constBegin(); it != entry.constEnd(); ++it)
        mKeptEntries->keepReleased(it.key(), it.value());
    if (mKeptEntries && (mConfMetas.value(key).flags & FlagSecret))
        mKeptEntries->setSecret(key);
}

void ConfStorage::setToDefault(const QString &key, bool updateTime)
{
    if (mMisuse)
        checkUse("setToDefault");
    if (isLocked(key))
        return;
    const QDateTime time = ConfLoad::timeOfUserChange(*this, key);
    if (mConfValues.contains(key))
        restore(key, updateTime ? time : QDateTime());
    else
        restorePreset(key, time);
}

/// Restores the default value of a key that exists. A null time keeps the timestamp.
void ConfStorage::restore(const QString &key, const QDateTime &time)
{
    auto meta = mConfMetas.find(key);
    if (meta == mConfMetas.end() || (meta->flags & FlagIsDefault))
        return;
    const QString name = meta.key();
    const ChangePtr change = ConfObservers::beginChange(*this, name, ConfChange::Cause::Restored);
    mConfValues[name].set(meta->defaultValue);
    // A default value of another type, that of a preset, is logged, and a log handler may change
    // the store.
    meta = mConfMetas.find(name);
    if (meta == mConfMetas.end() || !mConfValues.contains(name))
        return;
    if (!time.isNull())
        meta->lastChangeTime = time;
    meta->flags |= FlagIsDefault;
    if (change)
        finishChange(change);
    else
        callChangedCallback(name, *meta);
    mChanged = true;
}

/// Creates a key that does not exist from its preset, with the timestamp `time`.
void ConfStorage::restorePreset(const QString &key, const QDateTime &time)
{
    const auto preset = mPresetDynamicConfs.constFind(key);
    if (preset == mPresetDynamicConfs.constEnd()) {
        // Deliberately the message of `set`: both mean that the key is not reserved.
        if (EntryLog::permits())
            qCritical() << "ConfStorage::set key not found: " << EntryLog::truncated(key);
        return;
    }
    // Copies, because the creator may change the presets.
    const QString name = key;
    const QJsonValue value = *preset;
    const ChangePtr change = ConfObservers::beginChange(*this, name, ConfChange::Cause::Restored);
    const bool isCreated = createDynamic(name, value, nullptr);
    const auto meta = mConfMetas.find(name);
    if (meta != mConfMetas.end()) {
        if (!isLocked(name))
            meta->flags |= FlagIsDefault;
        if (isCreated || time.isNull())
            meta->lastChangeTime = time;
    }
    if (isCreated)
        ConfObservers::finishChange(*this, change);
    mChanged = true;
}

bool ConfStorage::isEqualToDefault(const QString &key) const
{
    if (mMisuse)
        checkUse("isEqualToDefault");
    const auto meta = mConfMetas.constFind(key);
    if (meta == mConfMetas.constEnd() || (meta->flags & FlagIsDefault))
        return true;
    // The record of such a key contains its initial value, but the key has no default value.
    if (isDynamicWithoutPreset(key))
        return false;
    return meta->defaultValue == mConfValues.value(key);
}

void ConfStorage::setConfChangedCallback(const QString &key, ConfChangedCallback cb)
{
    if (mConfValues.contains(key))
        mConfMetas[key].changedCallback = std::move(cb);
    else
        qDebug() << "ConfStorage::setConfChangedCallback key not found: " << key;
}

/// `value` is the entry of the key if the caller knows that it is still valid, or else null.
void ConfStorage::markUserChange(const QString &key, ConfValue *value, const ChangePtr &change)
{
    ConfMeta &meta = mConfMetas[key];
    meta.lastChangeTime = ConfLoad::timeOfUserChange(*this, key);
    meta.flags &= ~FlagIsDefault;
    if (change)
        finishChange(change);
    else
        callChangedCallback(key, meta, value);
    mChanged = true;
}

/// Calls the observers, then the callback of the key, which an observer may have removed.
void ConfStorage::finishChange(const ChangePtr &change)
{
    ConfObservers::finishChange(*this, change);
    const auto meta = mConfMetas.constFind(change->key);
    if (meta != mConfMetas.constEnd())
        callChangedCallback(change->key, *meta);
}

void ConfStorage::callChangedCallback(const QString &key, const ConfMeta &meta, ConfValue *value)
{
    if (!meta.changedCallback)
        return;
    if (mCallbackDepth == 0)
        mCallbacksStopped = false;
    if (mCallbacksStopped)
        return;
    if (mCallbackDepth >= sMaxCallbackDepth) {
        // No callback is called until the outermost one returns: callbacks that cause two others
        // each would otherwise run almost forever below the limit.
        mCallbacksStopped = true;
        if (EntryLog::permits())
            qCritical() << "ConfStorage::callChangedCallback nested too deeply: "
                        << EntryLog::truncated(key);
        return;
    }
    // Copies, because the callback may remove or reserve its key again, and so destroy its record.
    const QString name = key;
    const ConfChangedCallback callback = meta.changedCallback;
    const QScopedValueRollback<int> depth(mCallbackDepth, mCallbackDepth + 1);
    const ConfObservers::HostCode hostCode(mObservers);
    callback(name, value ? value : &mConfValues[name]);
}

QDateTime ConfStorage::calcLastConfTime() const
{
    QDateTime newest;
    for (const ConfMeta &meta : mConfMetas) {
        if (!meta.lastChangeTime.isNull() && !(meta.flags & FlagLocalOnly))
            newest = std::max(newest, meta.lastChangeTime);
    }
    for (const QDateTime &removed : mRemovedDynamicConfs)
        newest = std::max(newest, removed);
    return newest.toLocalTime();
}

bool ConfStorage::isDynamicWithoutPreset(const QString &key) const
{
    return !mPresetDynamicConfs.contains(key) && findDynamicConfClass(key);
}

void ConfStorage::logNullPointer(const QString &key)
{
    qCritical() << "ConfStorage::reserveConf null pointer: " << key;
}

void ConfStorage::logGetNotFound(const QString &key)
{
    qCritical() << "ConfStorage::get key not found: " << key;
}

void ConfStorage::logSetNotFound(const QString &key)
{
    qWarning() << "ConfStorage::set key not found: " << key;
}
