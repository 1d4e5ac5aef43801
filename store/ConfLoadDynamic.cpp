#include "ConfLoad_p.h"

#include "ConfObservers_p.h"
#include "EntryLog_p.h"
#include "MergeTies_p.h"
#include "PlainDump_p.h"

#include <QDebug>

// Merges the entries of dynamic keys, which a load can create and remove.

bool ConfLoad::storedWins(const QDateTime &stored, const QDateTime &incoming) const
{
    return stored.isValid() && storedWins(stored.toMSecsSinceEpoch(), incoming.toMSecsSinceEpoch());
}

template<class Member> bool ConfLoad::mergeDynamic(const QString &key, const Member &member,
                                                   const ConfStorage::DynamicConfClass *cls)
{
    const std::optional<qint64> removalTime = member.removalTime();
    const std::optional<qint64> time = member.time();
    const std::optional<qint64> seconds = removalTime ? removalTime : time;
    const QDateTime incoming = timeOfChange(seconds);

    const auto record = mStore.mConfMetas.constFind(key);
    const QDateTime stored = record != mStore.mConfMetas.constEnd()
                                 ? record->lastChangeTime
                                 : mStore.mRemovedDynamicConfs.value(key);
    const bool isTie = stored.isValid() && seconds == stored.toSecsSinceEpoch();
    const bool isKept = isTie && resolvesTies() ? !incomingWinsTie(
                            mStore, key, removalTime.has_value(), newValue(member))
                                                : storedWins(stored, incoming);
    if (isKept) {
        ++mReport.newerHere;
        return true;
    }
    if (removalTime) {
        mergeRemoval(key, incoming);
        return true;
    }
    const QJsonValue value = newValue(member);
    const bool exists = mStore.mConfValues.contains(key);
    if (value.isUndefined()) {
        if (mKeepsUnknown && !exists && !mStore.mPresetDynamicConfs.contains(key))
            keepDynamic(key, member.entry(), cls->flags); // of a version that has a preset
        else
            mergeDefault(key, incoming, time.has_value());
        return true;
    }
    if (!exists
        && (isBeyondLimits(key) || (!mIsSavable && isRefused(key, value, mStore.mMaxFileSize))))
        return true;
    mStore.mRemovedDynamicConfs.remove(key);
    if (exists)
        return false;
    const QJsonValue entry = mKeepsUnknown ? member.entry() : QJsonValue();
    const quint32 flags = cls->flags;
    const auto change = ConfObservers::beginChange(mStore, key, ConfChange::Cause::Created);
    const bool isCreated = mStore.createDynamic(key, value, cls);
    const auto meta = mStore.mConfMetas.find(key);
    if (meta != mStore.mConfMetas.end()) {
        if (mKeepsUnknown && isCreated && !mStore.mConfValues.contains(key))
            keepDynamic(key, entry, flags); // the creator does not accept it
        else
            ++mReport.taken;
        meta->lastChangeTime = incoming;
        // A value that equals the preset stays a value, as it is in the other copy.
        if (mResolvesTies)
            meta->flags &= ~ConfStorage::FlagIsDefault;
    } else {
        ++mReport.unknown;
        if (EntryLog::permits())
            qCritical() << "createDynamicConf Not create conf: " << EntryLog::truncated(key);
    }
    if (isCreated)
        ConfObservers::finishChange(mStore, change);
    return true;
}

/// Keeps an entry that creates nothing. `flags` are those of its class.
void ConfLoad::keepDynamic(const QString &key, const QJsonValue &entry, quint32 flags)
{
    ++mReport.unknown;
    const bool isMarked = flags & ConfStorage::FlagSystemIndependent;
    if (!mIsKept)
        keep(isMarked ? addSysMark(key) : key, mUnconverted ? *mUnconverted : entry);
}

void ConfLoad::mergeDefault(const QString &key, const QDateTime &incoming, bool isTimed)
{
    const auto change = ConfObservers::beginChange(mStore, key, ConfChange::Cause::Loaded);
    const auto known = mStore.mConfMetas.constFind(key);
    const bool isPresent = mStore.mConfValues.contains(key);
    const bool isDefault = known != mStore.mConfMetas.constEnd()
                           && (known->flags & ConfStorage::FlagIsDefault);
    if (isPresent)
        mStore.restore(key, incoming);
    else
        mStore.restorePreset(key, incoming);
    const auto meta = mStore.mConfMetas.find(key);
    const bool isKnown = meta != mStore.mConfMetas.end();
    ++(isKnown ? mReport.taken : mReport.unknown);
    if (isKnown && isTimed)
        meta->lastChangeTime = incoming;
    if (isPresent && isDefault && isTimed)
        ConfObservers::finishChange(mStore, change); // only the timestamp has changed
}

void ConfLoad::mergeRemoval(const QString &key, const QDateTime &incoming)
{
    if (isBeyondLimits(key))
        return;
    const auto change = ConfObservers::beginChange(mStore, key, ConfChange::Cause::Removed);
    const bool isPresent = mStore.mConfValues.contains(key);
    if (isPresent)
        mStore.removeDynamic(key);
    const QDateTime removed = mStore.mRemovedDynamicConfs.value(key);
    if (!isPresent && storedWins(removed, incoming)) {
        ++mReport.newerHere;
        return;
    }
    ++mReport.taken;
    mStore.mRemovedDynamicConfs[key] = incoming;
    ConfObservers::finishChange(mStore, change);
}

template bool ConfLoad::mergeDynamic(const QString &key, const PlainMember &member,
                                     const ConfStorage::DynamicConfClass *cls);
template bool ConfLoad::mergeDynamic(const QString &key, const ParsedMember &member,
                                     const ConfStorage::DynamicConfClass *cls);
