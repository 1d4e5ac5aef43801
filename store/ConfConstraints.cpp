#include "ConfConstraints_p.h"

#include "BoundCopy_p.h"
#include "ConfFileSharing_p.h"
#include "ConfObservers_p.h"
#include "EntryLog_p.h"
#include "StrictTypes_p.h"

#include <QDebug>

#include <cmath>

namespace {

/// Whether both are the same value; NaN is the same as NaN.
bool isSame(const QJsonValue &a, const QJsonValue &b)
{
    return a == b || (a.isDouble() && b.isDouble() && std::isnan(a.toDouble() + b.toDouble()));
}

} // namespace

void ConfConstraints::set(const QString &key, const ConfConstraint &constraint)
{
    if (constraint)
        mConstraints[key] = constraint;
    else
        mConstraints.remove(key);
}

std::optional<QJsonValue> ConfConstraints::accepted(const QString &key, const ConfValue &stored,
                                                    const QJsonValue &json) const
{
    const ConfConstraint constraint = mConstraints.value(key); // a copy, as it may replace itself
    if (!constraint || json.isNull() || json.isUndefined())
        return json;
    BoundCopy copy = boundCopy(stored);
    copy.value.loadFromJsonValue(json);
    const QJsonValue value = copy.value.toJsonValue();
    std::optional<QJsonValue> accepted = constraint(value);
    if (accepted && isSame(*accepted, value))
        return json;
    if (accepted
        && (accepted->isNull() || accepted->isUndefined() || !strictJson(*accepted, stored.mType)))
        accepted.reset(); // a value that the type does not have
    if (EntryLog::permits()) {
        if (accepted)
            qWarning() << "ConfStorage::setConfConstraint() value changed: "
                       << EntryLog::truncated(key);
        else
            qWarning() << "ConfStorage::setConfConstraint() value refused: "
                       << EntryLog::truncated(key);
    }
    return accepted;
}

void ConfStorage::setConfConstraint(const QString &key, const ConfConstraint &constraint)
{
    if (mMisuse)
        checkUse("setConfConstraint");
    const QString name = key; // which may refer to one of the maps
    if (!mConstraints)
        mConstraints = std::make_shared<ConfConstraints>();
    mConstraints->set(name, constraint);
    const auto meta = mConfMetas.constFind(name);
    const bool isDefault = meta == mConfMetas.constEnd() || (meta->flags & FlagIsDefault);
    if (!constraint || isDefault || isLocked(name))
        return;
    // The value was loaded before.
    const QJsonValue json = mConfValues.value(name).toJsonValue();
    const std::optional<QJsonValue> fitting = constrained(name, json);
    if (!fitting)
        refuseLoaded(name);
    else if (*fitting != json)
        applyConstrained(name, *fitting);
}

bool ConfStorage::hasConfConstraint(const QString &key) const
{
    return mConstraints && mConstraints->contains(key);
}

/// Returns the value that `key` accepts instead of `json`, or nothing. Runs code of the host.
std::optional<QJsonValue> ConfStorage::constrained(const QString &key, const QJsonValue &json) const
{
    const std::shared_ptr<ConfConstraints> constraints = mConstraints;
    return constraints ? constraints->accepted(key, mConfValues.value(key), json) : json;
}

/// Undoes the load of a value that is refused now: its entry is kept, and counts as never merged.
void ConfStorage::refuseLoaded(const QString &key)
{
    if (mFileOptions & (KeepUnknownEntries | SharedFile))
        keepEntryOf(key);
    const bool wasChanged = mChanged;
    {
        const ConfFileSharing::UnchangedEntry unchanged(mFileSharing, key);
        restore(key, QDateTime());
    }
    mChanged = wasChanged;
    const auto meta = mConfMetas.find(key);
    if (meta != mConfMetas.end() && (meta->flags & FlagIsDefault))
        meta->lastChangeTime = QDateTime();
}

/// Sets a value that was changed by its constraint. Keeps the timestamp.
void ConfStorage::applyConstrained(const QString &key, const QJsonValue &json)
{
    const ChangePtr change = ConfObservers::beginChange(*this, key, ConfChange::Cause::Set);
    if (!loadValue(key, json))
        return;
    if (change)
        finishChange(change);
    else
        callChangedCallback(key, mConfMetas[key]);
}

/// Sets a key that has a constraint to what that makes of `value`. Returns false if the key has
/// none.
bool ConfStorage::setConstrained(const QString &key, const ConfValue &value)
{
    const auto stored = mConfValues.constFind(key);
    if (!mConstraints->contains(key) || stored == mConfValues.constEnd()
        || stored->mType != value.mType)
        return false;
    const QString name = key; // which may refer to one of the maps
    const QJsonValue json = value.toJsonValue();
    const std::optional<QJsonValue> fitting = constrained(name, json);
    if (!fitting || !mConfValues.contains(name))
        return true;
    const ChangePtr change = ConfObservers::beginChange(*this, name, ConfChange::Cause::Set);
    if (isSame(*fitting, json))
        mConfValues[name].set(value);
    else if (!loadValue(name, *fitting))
        return true;
    markUserChange(name, nullptr, change);
    return true;
}
