#pragma once

#include "MaltoConfiguration/store/StoreObserver_p.h"
#include "SettingsStep_p.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUndoStack>

#include <memory>

namespace MtConf {

/// The changes that the user has made to the settings since the object was created, to be undone
/// and redone one by one.
///
/// A step is everything that one operation of the store has changed; see `SettingsStep`. Recorded
/// are operations that begin with an edit, with a restored default value, or with the creation or
/// removal of a dynamic key. What the program sets, what is loaded, and the keys of the library
/// itself, "Malto.…", are not recorded. Values stay in memory, and no message or signal contains
/// one.
class SettingsHistory : public QObject
{
    Q_OBJECT
public:
    /// Observes `store`, which must outlive the object.
    explicit SettingsHistory(ConfStorage *store, QObject *parent = nullptr);
    ~SettingsHistory() override;

    /// Returns whether there is a step to undo.
    bool canUndo();
    /// Returns whether there is a step to redo.
    bool canRedo();
    /// Undoes the last step. Drops steps whose keys were all changed by others meanwhile. Does
    /// nothing while another step is being undone or redone. Callbacks may destroy the object.
    void undo();
    /// Redoes the step that was undone last; see `undo`.
    void redo();
    /// Makes the next edit a step of its own. To be called when the keyboard focus moves.
    void endTyping() { ++mTyping; }

    /// Returns the history of a settings window, or null if it has none.
    static SettingsHistory *of(const QObject *window)
    {
        return window->findChild<SettingsHistory *>();
    }

    /// Records the operations that are begun during the lifetime of the object, whatever their
    /// cause, such as the load of a file that the user imports.
    class Recording
    {
    public:
        /// `history` may be null.
        explicit Recording(SettingsHistory *history);
        ~Recording();
        Q_DISABLE_COPY(Recording)

    private:
        const QPointer<SettingsHistory> mHistory;
    };

Q_SIGNALS:
    /// Emitted after a step was recorded, when control is back in the event loop or the next
    /// operation begins: the cause of its first change, and the keys that were not changed in
    /// answer to another change.
    void recorded(ConfChange::Cause cause, const QStringList &keys);
    /// Emitted after `undo` or `redo` with the keys of the step.
    void applied(const QStringList &keys);

private:
    enum class Direction { Undo, Redo };

    void observe(const ConfChange &change);
    bool isRecorded(const ConfChange &first) const;
    void finishStep();
    void apply(Direction direction);
    void renewIfCleared();

    ConfStorage *const mStore;
    std::unique_ptr<StoreObserver> mObserver;
    std::shared_ptr<QUndoStack> mSteps;  // shared, because a callback may destroy this object
    std::unique_ptr<SettingsStep> mOpen; // of the running operation, or of the last one
    quint64 mOperation = 0;
    bool mIsOperationRecorded = false;
    int mRecordings = 0;
    int mTyping = 0;
    bool mIsApplying = false;
    bool mIsFinishQueued = false;
};

} // namespace MtConf
