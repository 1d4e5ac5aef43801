#include "LockedConfs_p.h"

#include "BoundCopy_p.h"

namespace {

quint32 mixedFlags(quint32 ownFlags, quint32 flags)
{
    constexpr quint32 sOwn = ConfStorage::FlagIsDefault; // the others are set by the host
    return (ownFlags & sOwn) | (flags & ~sOwn);
}

} // namespace

LockedConfs::LockedConfs(const LockedConfs &other) : mFixed(other.mFixed)
{
    mOwn->copyRules(other.mOwn->store());
    mOwn->copyContent(other.mOwn->store());
}

void LockedConfs::add(const ConfStorage &store, const QString &key, const QJsonValue &value)
{
    if (!contains(key))
        mOwn->copyKey(store, key);
    mFixed[key] = value;
}

void LockedConfs::takeOwn(const ConfStorage &store, const QString &key)
{
    mOwn->store().mRemovedDynamicConfs.remove(key);
    mOwn->copyKey(store, key);
}

void LockedConfs::apply(ConfStorage &store, const QString &key) const
{
    const QJsonValue fixed = mFixed.value(key);
    BoundCopy copy = boundCopy(store.mConfValues.value(key));
    if (copy.value.mType == ConfValue::TyNone)
        return;
    if (fixed.isNull())
        copy.value.set(store.mConfMetas.value(key).defaultValue);
    else
        copy.value.loadFromJsonValue(fixed);
    // Looked up now: a font may have been logged, and a log handler may change the store.
    const auto value = store.mConfValues.find(key);
    const auto meta = store.mConfMetas.find(key);
    if (value == store.mConfValues.end() || meta == store.mConfMetas.end())
        return;
    value->set(copy.value);
    meta->flags &= ~ConfStorage::FlagIsDefault;
    if (store.isEqualToDefault(key))
        meta->flags |= ConfStorage::FlagIsDefault;
}

std::shared_ptr<ShadowStore> LockedConfs::ownStore(const ConfStorage &store, const QString &key)
{
    mOwn->copyRules(store);
    const auto own = mOwn->store().mConfMetas.find(key);
    const auto meta = store.mConfMetas.constFind(key);
    const auto removed = mOwn->store().mRemovedDynamicConfs.find(key);
    if (meta == store.mConfMetas.constEnd())
        return mOwn;
    if (own != mOwn->store().mConfMetas.end()) {
        own->lastChangeTime = meta->lastChangeTime;
        own->flags = mixedFlags(own->flags, meta->flags);
    } else if (removed != mOwn->store().mRemovedDynamicConfs.end()) {
        *removed = meta->lastChangeTime;
    }
    return mOwn;
}

void LockedConfs::restoreOwn(QMap<QString, ConfValue> *values,
                             QMap<QString, ConfStorage::ConfMeta> *metas) const
{
    const ConfStorage &own = mOwn->store();
    for (auto fixed = mFixed.cbegin(); fixed != mFixed.cend(); ++fixed) {
        const auto value = values->find(fixed.key());
        const auto meta = metas->find(fixed.key());
        if (value == values->end() || meta == metas->end())
            continue; // released
        const auto ownValue = own.mConfValues.constFind(fixed.key());
        if (ownValue == own.mConfValues.constEnd()) {
            values->erase(value);
            continue;
        }
        *value = *ownValue;
        meta->flags = mixedFlags(own.mConfMetas.value(fixed.key()).flags, meta->flags);
    }
}
