#pragma once

#include <MaltoConfiguration/store/ConfChange.h>

#include <QHash>
#include <QStringList>
#include <QUndoCommand>
#include <QVector>

class ConfStorage;

namespace MtConf {

/// One step of the history of a store: everything that one operation has changed, including the
/// changes that callbacks and observers made in answer.
///
/// Undo and redo are changes with timestamps of their own, which are newer than those of what they
/// replace, so that all copies of a configuration that are merged get the restored values.
class SettingsStep : public QUndoCommand
{
public:
    /// Begins the step with the first change of an operation. `typing` numbers the stays of the
    /// keyboard focus in an editor: see `mergeWith`.
    SettingsStep(ConfStorage *store, const ConfChange &first, int typing);

    /// Adds another change of the operation.
    void add(const ConfChange &change);

    /// Returns whether the operation changed anything that can be undone.
    bool hasDifference() const;
    /// Returns the cause of the first change of the operation.
    ConfChange::Cause cause() const { return mCause; }
    /// Returns the keys that the operation changed, in the order of the changes.
    QStringList keys() const;
    /// Returns those keys that were not changed in answer to another change.
    QStringList directKeys() const;

    /// The same for all steps, so that `mergeWith` decides.
    int id() const override { return 1; }
    /// Merges a later part of the same operation, and another edit of the same key if the keyboard
    /// focus has not moved since. A flag that is switched twice remains two steps.
    bool mergeWith(const QUndoCommand *command) override;

    /// Restores the states from before the step. Keys that somebody else has changed since keep
    /// their states. The step becomes obsolete if all were.
    void undo() override;
    /// Does the same for the states after the step. The first call does nothing: the store has
    /// them already.
    void redo() override;
    /// Returns whether the last call of `undo` or `redo` had a value to change. A user does not see
    /// whether a default value was set or restored.
    bool hasApplied() const { return mHasApplied; }

private:
    using State = ConfChange::State;
    struct Entry
    {
        QString key;
        bool isDirect = false;
        State before;
        State after;
    };
    using Side = State Entry::*;

    /// The changes of one operation, one entry for each key.
    class Entries
    {
    public:
        /// Adds a change of the operation. An observer may be notified of a change that another one
        /// made in answer before the change that caused it.
        void add(const ConfChange &change, bool isDirect);
        /// Adds the later change `entry`.
        void append(const Entry &entry);
        /// Sets the entry of `entry.key`.
        void set(const Entry &entry);
        void removeUnchanged();
        Entry *find(const QString &key);
        const Entry *find(const QString &key) const;

        QVector<Entry> list;

    private:
        QHash<QString, int> mIndexes;
    };

    bool continuesTyping(const SettingsStep &next) const;
    void apply(Side from, Side to);
    QStringList ownKeys(Side from, Side to);
    void reach(const QStringList &keys, Side to);
    void restore(const QString &key, const State &state);

    ConfStorage *const mStore;
    const ConfChange::Cause mCause;
    const quint64 mOperation;
    const int mTyping;
    bool mIsDone = true;
    bool mHasApplied = false;
    Entries mEntries;
};

} // namespace MtConf
