#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfFileSharing_p.h"
#include "ConfObservers_p.h"
#include "ConfVersions_p.h"
#include "EntryLog_p.h"
#include "LockedConfs_p.h"
#include "StrictTypes_p.h"

#include <QDebug>

bool ConfStorage::isLocked(const QString &key) const
{
    return mLockedConfs && mLockedConfs->contains(key);
}

void ConfStorage::lockConf(const QString &key, const QJsonValue &value)
{
    if (mMisuse)
        checkUse("lockConf");
    const QString name = key; // which may refer to one of the maps
    QJsonValue fixed = mVersions ? mVersions->convert(name, value) : value;
    if (fixed.isUndefined())
        fixed = QJsonValue();
    const auto stored = mConfValues.constFind(name);
    if (stored == mConfValues.constEnd())
        return;
    if (isStrictType(mFileOptions & StrictTypes, stored->mType)) {
        const auto fitting = strictJson(fixed, stored->mType);
        if (!fitting) {
            logOtherType(name);
            return;
        }
        fixed = *fitting;
    }
    const std::optional<QJsonValue> accepted = constrained(name, fixed);
    if (!accepted || !mConfValues.contains(name))
        return;
    fixed = *accepted;
    const ChangePtr change = ConfObservers::beginChange(*this, name, ConfChange::Cause::Loaded);
    const QJsonValue before = mConfValues.value(name).toJsonValue();
    if (!mLockedConfs)
        mLockedConfs = std::make_unique<LockedConfs>();
    mLockedConfs->add(*this, name, fixed);
    mLockedConfs->apply(*this, name);
    if (EntryLog::permits())
        qDebug() << "ConfStorage::lockConf() value locked: " << EntryLog::truncated(name);
    const auto meta = mConfMetas.constFind(name);
    if (meta == mConfMetas.constEnd() || mConfValues.value(name).toJsonValue() == before)
        return;
    const ConfFileSharing::UnchangedEntry unchanged(mFileSharing, name);
    if (change)
        finishChange(change);
    else
        callChangedCallback(name, *meta);
}
