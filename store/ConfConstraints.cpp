#include "ConfConstraints_p.h"

#include "BoundCopy_p.h"
#include "ConfObservers_p.h"
#include "EntryLog_p.h"

#include <QDebug>

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
    const std::optional<QJsonValue> accepted = constraint(value);
    if (accepted == value)
        return json;
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
    const QString name = key; // which may refer to one of the maps
    if (!mConstraints)
        mConstraints = std::make_shared<ConfConstraints>();
    mConstraints->set(name, constraint);
    const auto meta = mConfMetas.constFind(name);
    if (!constraint || meta == mConfMetas.constEnd() || (meta->flags & FlagIsDefault))
        return;
    // The value was loaded before.
    const QJsonValue json = mConfValues.value(name).toJsonValue();
    const std::optional<QJsonValue> fitting = constrained(name, json);
    if (!fitting)
        restore(name, QDateTime());
    else if (*fitting != json)
        applyConstrained(name, *fitting);
}

/// Returns the value that `key` accepts instead of `json`, or nothing. Runs code of the host.
std::optional<QJsonValue> ConfStorage::constrained(const QString &key, const QJsonValue &json) const
{
    const std::shared_ptr<ConfConstraints> constraints = mConstraints;
    return constraints ? constraints->accepted(key, mConfValues.value(key), json) : json;
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

/// Sets `key` to what its constraint makes of `value`. Returns false if that is `value`.
bool ConfStorage::setConstrained(const QString &key, const ConfValue &value)
{
    const auto stored = mConfValues.constFind(key);
    if (!mConstraints->contains(key) || stored == mConfValues.constEnd()
        || stored->mType != value.mType)
        return false;
    const QJsonValue json = value.toJsonValue();
    const std::optional<QJsonValue> fitting = constrained(key, json);
    if (!fitting)
        return true;
    if (*fitting == json)
        return false;
    const ChangePtr change = ConfObservers::beginChange(*this, key, ConfChange::Cause::Set);
    if (loadValue(key, *fitting))
        markUserChange(key, nullptr, change);
    return true;
}
