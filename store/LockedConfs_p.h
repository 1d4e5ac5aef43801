#pragma once

#include "ShadowStore_p.h"

#include <QJsonValue>
#include <QMap>
#include <QString>

#include <memory>

/// The values that an administrator has fixed, and what they hide: the user's own values.
///
/// The own value of a locked key is in a store of its own, where loads merge into it, and replaces
/// the locked one in dumps. The record in the main store has the timestamp of the own value.
class LockedConfs
{
public:
    LockedConfs() = default;
    LockedConfs(const LockedConfs &other);
    LockedConfs &operator=(const LockedConfs &) = delete;

    bool contains(const QString &key) const { return mFixed.contains(key); }

    /// Fixes the value of `key` in `store`, or its default value if `value` is null. The own value
    /// of a key that is locked already stays.
    void add(const ConfStorage &store, const QString &key, const QJsonValue &value);
    /// Makes the current value of a locked key the own one, because the key was reserved again.
    void takeOwn(const ConfStorage &store, const QString &key);
    /// Sets the variable of a locked key. Calls no callback.
    void apply(ConfStorage &store, const QString &key) const;

    /// The own values, with the options and classes of `store`, and the record of `key` as it is
    /// there. It may be destroyed while log handlers run, so callers keep the pointer.
    std::shared_ptr<ShadowStore> ownStore(const ConfStorage &store, const QString &key);

    /// Puts the own values in place of the locked ones.
    void restoreOwn(QMap<QString, ConfValue> *values,
                    QMap<QString, ConfStorage::ConfMeta> *metas) const;
    /// The removals of dynamic keys that are locked.
    const QMap<QString, QDateTime> &tombstones() const
    {
        return mOwn->store().mRemovedDynamicConfs;
    }

private:
    QMap<QString, QJsonValue> mFixed; // by key
    std::shared_ptr<ShadowStore> mOwn = std::make_shared<ShadowStore>();
};
