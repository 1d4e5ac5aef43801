#include "ConfLoad_p.h"

#include "ConfFileSharing_p.h"
#include "ConfKeptEntries_p.h"
#include "EntryLog_p.h"
#include "JsonText_p.h"
#include "Limits_p.h"
#include "StrictTypes_p.h"

#include <QDebug>

// The entries that a load refuses, and those that it keeps without loading them.

/// Returns whether `value` needs more than `limit` bytes of the local file, so that all further
/// saves could fail, and logs this.
bool ConfLoad::isRefused(const QString &key, const QJsonValue &value, qint64 limit)
{
    if (isSavable(value, limit))
        return false;
    refuse(key, ConfLoadReport::Reason::NotSavable);
    forgetPosition();
    if (EntryLog::permits())
        qCritical() << "ConfStorage::loadConf() value could not be saved: "
                    << EntryLog::truncated(key);
    return true;
}

/// Refuses a value of another type and logs this.
void ConfLoad::refuseType(const QString &key, bool isMarked, const QJsonValue &entry)
{
    refuseAndKeep(key, ConfLoadReport::Reason::WrongType, isMarked, entry);
    if (!mIsRetry)
        logOtherType(key);
}

/// Loads a value of a key with a constraint, which logs what it does not accept.
void ConfLoad::loadConstrained(const QString &key, const QJsonValue &value, const QJsonValue &entry,
                               std::optional<qint64> time)
{
    forgetPosition();
    const std::optional<QJsonValue> accepted = mStore.constrained(key, value);
    // Looked up now: the constraint is code of the host.
    const auto stored = mStore.mConfValues.find(key);
    const auto meta = mStore.mConfMetas.find(key);
    if (stored == mStore.mConfValues.end() || meta == mStore.mConfMetas.end())
        return;
    if (accepted) {
        // Another copy may have the value that this one has changed, with the same timestamp.
        const bool isKnown = time && meta->lastChangeTime.isValid()
                             && meta->lastChangeTime.toSecsSinceEpoch() == *time
                             && !(meta->flags & ConfStorage::FlagIsDefault)
                             && stored->toJsonValue() == *accepted;
        if (isKnown && !replaces()) {
            ++mReport.newerHere;
            return;
        }
        ++mReport.taken;
        meta->lastChangeTime = timeOfChange(time);
        applyValue(key, *accepted, stored, meta);
        return;
    }
    refuseAndKeep(key, ConfLoadReport::Reason::OutOfRange,
                  meta->flags & ConfStorage::FlagSystemIndependent,
                  mUnconverted ? *mUnconverted : entry);
}

/// Refuses an entry. That of a local file is kept. That of a dump is not, as it would replace the
/// entry of this program in the local file.
void ConfLoad::refuseAndKeep(const QString &key, ConfLoadReport::Reason reason, bool isMarked,
                             const QJsonValue &entry)
{
    refuse(key, reason);
    if (mIsLocal && !mIsKept
        && (mStore.mFileOptions & (ConfStorage::KeepUnknownEntries | ConfStorage::SharedFile)))
        keep(isMarked ? addSysMark(key) : key, entry);
    forgetPosition();
}

/// Returns whether a file may not add the key to the store, and logs this.
bool ConfLoad::isBeyondLimits(const QString &key)
{
    const bool isLong = key.size() > Limits::sMaxKeyLength;
    // Records, because a key has one even if its creator did not accept the value.
    const ConfKeptEntries *kept = mStore.mKeptEntries.get();
    const bool isFull = mStore.mConfMetas.size() + mStore.mRemovedDynamicConfs.size()
                            + (kept ? kept->entries().size() : 0)
                        >= Limits::sMaxKeys;
    if (!isLong && !isFull)
        return false;
    if (kept && kept->entries().contains(key))
        return false; // adds nothing
    if (mStore.mConfMetas.contains(key) || mStore.mRemovedDynamicConfs.contains(key))
        return false; // adds nothing
    refuse(key, ConfLoadReport::Reason::LimitExceeded);
    forgetPosition();
    if (!EntryLog::permits())
        return true;
    if (isLong)
        qCritical() << "ConfStorage::loadConf() key too long: " << EntryLog::truncated(key);
    else
        qCritical() << "ConfStorage::loadConf() too many keys: " << EntryLog::truncated(key);
    return true;
}

void ConfLoad::refuse(const QString &key, ConfLoadReport::Reason reason)
{
    if (mReport.refusedCount++ < Limits::sMaxLoggedEntries)
        mReport.refused.append({key, reason});
}

/// Returns whether kept entries could make the local file too large, and logs this.
bool ConfLoad::hasNoRoom(const QString &name, const QJsonValue &entry)
{
    // The other half of the file is for the settings of this program.
    return isRefused(name, entry, mStore.mMaxFileSize / 2 - mStore.mKeptEntries->size());
}

/// Returns whether an entry is kept if its key is not declared: each one with the option, and that
/// of a key that was released.
bool ConfLoad::keeps(const QString &name) const
{
    return mKeepsUnknown || (mStore.mKeptEntries && mStore.mKeptEntries->entries().contains(name));
}

/// Keeps an entry that is not loaded. `name` is that of the member, with the system mark. What the
/// local file contains is always kept; others can add to it within limits.
void ConfLoad::keep(const QString &name, const QJsonValue &entry)
{
    if (!mStore.mKeptEntries)
        mStore.mKeptEntries = std::make_unique<ConfKeptEntries>();
    if (!mIsLocal && (isBeyondLimits(name) || hasNoRoom(name, entry)))
        return;
    if (mReplaces)
        mStore.mKeptEntries->remove(name);
    if (!mStore.mKeptEntries->keep(name, entry,
                                   mResolvesTies ? KeptTie::Resolved : KeptTie::Stored))
        return;
    mStore.mChanged = true;
    if (mStore.mFileSharing && mReport.file.isEmpty())
        mStore.mFileSharing->touchKept(name);
}
