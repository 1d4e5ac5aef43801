#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfKeptEntries_p.h"
#include "ConfLoad_p.h"
#include "ConfVersions_p.h"
#include "EntryLog_p.h"
#include "LockedConfs_p.h"
#include "SecretText_p.h"
#include "ShadowStore_p.h"

#include <MaltoConfiguration/store/ConfChange.h>

#include <algorithm>

namespace {

template<class T> std::unique_ptr<T> copyOf(const std::unique_ptr<T> &object)
{
    return object ? std::make_unique<T>(*object) : nullptr;
}

/// Returns `change` without its values if the key is secret.
ConfChange masked(ConfChange change, quint32 flags)
{
    for (ConfChange::State *state : {&change.before, &change.after}) {
        if ((flags & ConfStorage::FlagSecret) && !state->value.isUndefined())
            state->value = sSecretText;
    }
    return change;
}

} // namespace

QVector<ConfChange> ConfStorage::previewLoad(const QJsonObject &conf, LoadConfType type) const
{
    if (mMisuse)
        checkUse("previewLoad");
    const EntryLog log;
    // Loaded by the code that loads, so that no rule can differ.
    ShadowStore shadow;
    shadow.copyRules(*this);
    shadow.copyContent(*this);
    ConfStorage &store = shadow.store();
    store.mBusyDynamicConfs = mBusyDynamicConfs;
    store.mKeptEntries = copyOf(mKeptEntries);
    store.mVersions = copyOf(mVersions);
    store.mLockedConfs = copyOf(mLockedConfs);

    QVector<ConfChange> changes;
    store.addObserver([&](const ConfChange &change) {
        const DynamicConfClass *cls = findDynamicConfClass(change.key);
        const quint32 flags = mConfMetas.value(change.key).flags | (cls ? cls->flags : 0);
        changes.append(masked(change, flags));
    });
    ConfLoad(store, type).loadObject(conf);
    std::stable_sort(changes.begin(), changes.end(),
                     [](const ConfChange &a, const ConfChange &b) { return a.key < b.key; });
    return changes;
}
