#include "SettingsHistory_p.h"

#include <QMetaObject>

namespace MtConf {

namespace {

constexpr int sMaxSteps = 200;

/// Returns whether `key` belongs to the library, such as the place of the window.
bool isOwnKey(const QString &key)
{
    return key.startsWith(QLatin1String("Malto."));
}

} // namespace

SettingsHistory::Recording::Recording(SettingsHistory *history) : mHistory(history)
{
    if (history)
        ++history->mRecordings;
}

SettingsHistory::Recording::~Recording()
{
    if (mHistory)
        --mHistory->mRecordings;
}

SettingsHistory::SettingsHistory(ConfStorage *store, QObject *parent)
    : QObject(parent), mStore(store), mSteps(std::make_shared<QUndoStack>())
{
    mSteps->setUndoLimit(sMaxSteps);
    renewIfCleared();
}

SettingsHistory::~SettingsHistory() = default;

bool SettingsHistory::canUndo()
{
    finishStep();
    return mSteps->canUndo();
}

bool SettingsHistory::canRedo()
{
    finishStep();
    return mSteps->canRedo();
}

void SettingsHistory::undo()
{
    apply(Direction::Undo);
}

void SettingsHistory::redo()
{
    apply(Direction::Redo);
}

/// `ConfStorage::clear` removes the observer and all keys that the steps name.
void SettingsHistory::renewIfCleared()
{
    if (mObserver && mObserver->isActive())
        return;
    mOpen.reset();
    mSteps->clear();
    mOperation = 0;
    mObserver = std::make_unique<StoreObserver>(
        mStore, [this](const ConfChange &change) { observe(change); });
}

bool SettingsHistory::isRecorded(const ConfChange &first) const
{
    using Cause = ConfChange::Cause;
    return mRecordings > 0 || (first.cause != Cause::Set && first.cause != Cause::Loaded);
}

void SettingsHistory::observe(const ConfChange &change)
{
    if (mIsApplying || isOwnKey(change.key))
        return;
    if (change.operation != mOperation) {
        finishStep();
        mOperation = change.operation;
        mIsOperationRecorded = isRecorded(change);
    }
    if (!mIsOperationRecorded)
        return;
    if (mOpen)
        mOpen->add(change);
    else
        mOpen = std::make_unique<SettingsStep>(mStore, change, mTyping);
    if (!mIsFinishQueued)
        mIsFinishQueued = QMetaObject::invokeMethod(
            this,
            [this] {
                mIsFinishQueued = false;
                finishStep();
            },
            Qt::QueuedConnection);
}

/// Puts the open step on the stack. The store does not tell when an operation ends, so that happens
/// when the next one begins, or when control is back in the event loop.
void SettingsHistory::finishStep()
{
    if (mIsApplying || !mOpen)
        return;
    std::unique_ptr<SettingsStep> step = std::move(mOpen);
    if (!step->hasDifference())
        return;
    const ConfChange::Cause cause = step->cause();
    const QStringList keys = step->directKeys();
    mSteps->push(step.release()); // which may merge and delete it
    Q_EMIT recorded(cause, keys);
}

void SettingsHistory::apply(Direction direction)
{
    if (mIsApplying)
        return;
    renewIfCleared();
    finishStep();
    endTyping();
    const auto steps = mSteps;
    const QPointer<SettingsHistory> self(this);
    const bool isUndo = direction == Direction::Undo;
    QStringList keys;
    bool hasApplied = false;
    mIsApplying = true;
    while (!hasApplied && (isUndo ? steps->canUndo() : steps->canRedo())) {
        const int index = isUndo ? steps->index() - 1 : steps->index();
        const auto *step = static_cast<const SettingsStep *>(steps->command(index));
        const int count = steps->count();
        isUndo ? steps->undo() : steps->redo();
        if (!self)
            return;
        if (steps->count() < count) // it was dropped
            continue;
        hasApplied = step->hasApplied();
        keys += step->keys();
    }
    mIsApplying = false;
    renewIfCleared();
    if (!keys.isEmpty())
        Q_EMIT applied(keys);
}

} // namespace MtConf
