#pragma once

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

class ConfStorage;

namespace MtConf {

/// What it would change in a store to import a dump, and the import itself.
///
/// The user has chosen the file now, so an imported value is a change of this moment: it wins on
/// this computer, whatever the times in the file, and against older changes when copies are merged.
/// Settings that the dump does not contain stay as they are.
class SettingsImport
{
public:
    /// What the dump contains and is not offered.
    struct LeftOut
    {
        int unknown = 0;     ///< entries of keys that are not declared here
        int unreadable = 0;  ///< members that are no entries
        int locked = 0;      ///< entries of locked keys
        int local = 0;       ///< entries of keys that stay on each computer
        QStringList refused; ///< keys whose value in the dump is not accepted here
    };

    /// Compares `dump` with `store`. `formerNames` are the names that keys had in older versions.
    SettingsImport(const ConfStorage &store, const QJsonObject &dump,
                   const QStringList &formerNames = QStringList());

    /// The changes that the user would notice, in the order of the keys, one for each key.
    const QVector<ConfChange> &changes() const { return mChanges; }
    const LeftOut &leftOut() const { return mLeftOut; }

    /// Makes the changes of `keys`, as one operation with the cause `Loaded`. Callbacks of the host
    /// run meanwhile. Returns what the store reports.
    ConfLoadReport apply(ConfStorage *store, const QStringList &keys) const;

private:
    QJsonObject offeredEntries(const ConfStorage &store, const QJsonObject &dump,
                               const QStringList &formerNames);
    bool isOffered(const ConfStorage &store, const QString &key, const QJsonObject &entry,
                   bool isFormer);

    QVector<ConfChange> mChanges;
    LeftOut mLeftOut;
};

} // namespace MtConf
