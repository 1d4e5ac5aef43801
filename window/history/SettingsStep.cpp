#include "SettingsStep_p.h"

#include "MaltoConfiguration/store/ConfObservers_p.h"
#include "MaltoConfiguration/store/StoreObserver_p.h"

#include <MaltoConfiguration/store/ConfOperation.h>

#include <algorithm>

namespace MtConf {

namespace {

/// Callbacks run again while a step is undone, and may change its keys again.
constexpr int sMaxPasses = 3;

/// Returns whether both have the same value, be it a default value or not.
bool hasSameValue(const ConfChange::State &a, const ConfChange::State &b)
{
    return a.isPresent == b.isPresent && (!a.isPresent || a.value == b.value);
}

bool isEqual(const ConfChange::State &a, const ConfChange::State &b)
{
    return hasSameValue(a, b) && (!a.isPresent || a.isDefault == b.isDefault);
}

/// Returns whether a key with the state `current` needs no change to have the state `wanted`.
bool isReached(const ConfChange::State &current, const ConfChange::State &wanted)
{
    // The variable of a default value may have been written by the program.
    const bool areDefault = current.isPresent && current.isDefault && wanted.isPresent
                            && wanted.isDefault;
    return areDefault || isEqual(current, wanted);
}

/// Returns the timestamp of a key or of its tombstone in the store, or null.
QDateTime *timeOf(ConfStorage &store, const QString &key)
{
    const auto meta = store.mConfMetas.find(key);
    if (meta != store.mConfMetas.end())
        return &meta->lastChangeTime;
    const auto removed = store.mRemovedDynamicConfs.find(key);
    return removed != store.mRemovedDynamicConfs.end() ? &*removed : nullptr;
}

/// Makes the last change of `key` newer than `previous`, which other copies may have. A file has
/// whole seconds, and the clock of another copy may be fast.
void makeNewer(ConfStorage &store, const QString &key, const QDateTime &previous)
{
    QDateTime *const time = timeOf(store, key);
    if (!time || time->isNull() || previous.isNull())
        return;
    const qint64 seconds = previous.toSecsSinceEpoch();
    if (time->toSecsSinceEpoch() <= seconds)
        *time = QDateTime::fromSecsSinceEpoch(seconds + 1, Qt::UTC);
}

} // namespace

SettingsStep::Entry *SettingsStep::Entries::find(const QString &key)
{
    const auto index = mIndexes.constFind(key);
    return index != mIndexes.constEnd() ? &list[*index] : nullptr;
}

const SettingsStep::Entry *SettingsStep::Entries::find(const QString &key) const
{
    const auto index = mIndexes.constFind(key);
    return index != mIndexes.constEnd() ? &list.at(*index) : nullptr;
}

void SettingsStep::Entries::set(const Entry &entry)
{
    if (Entry *const known = find(entry.key)) {
        *known = entry;
        return;
    }
    mIndexes.insert(entry.key, static_cast<int>(list.size()));
    list.append(entry);
}

void SettingsStep::Entries::append(const Entry &entry)
{
    if (Entry *const known = find(entry.key))
        known->after = entry.after;
    else
        set(entry);
}

void SettingsStep::Entries::add(const ConfChange &change, bool isDirect)
{
    Entry *const known = find(change.key);
    if (!known) {
        set({change.key, isDirect, change.before, change.after});
        return;
    }
    known->isDirect = known->isDirect || isDirect;
    const bool isNext = isEqual(change.before, known->after);
    if (!isNext && isEqual(change.after, known->before))
        known->before = change.before; // the change that caused the known one
    else if (!isNext && isEqual(change.after, known->after))
        known->before = change.before; // a creation, whose creator made the known change
    else
        known->after = change.after;
}

void SettingsStep::Entries::removeUnchanged()
{
    QVector<Entry> changed;
    for (const Entry &entry : std::as_const(list)) {
        if (!isEqual(entry.before, entry.after))
            changed.append(entry);
    }
    list.clear();
    mIndexes.clear();
    for (const Entry &entry : std::as_const(changed))
        set(entry);
}

SettingsStep::SettingsStep(ConfStorage *store, const ConfChange &first, int typing)
    : mStore(store), mCause(first.cause), mOperation(first.operation), mTyping(typing)
{
    add(first);
}

void SettingsStep::add(const ConfChange &change)
{
    mEntries.add(change, change.cause == mCause);
}

bool SettingsStep::hasDifference() const
{
    return std::any_of(mEntries.list.cbegin(), mEntries.list.cend(),
                       [](const Entry &entry) { return !isEqual(entry.before, entry.after); });
}

QStringList SettingsStep::keys() const
{
    QStringList keys;
    for (const Entry &entry : mEntries.list) {
        if (!isEqual(entry.before, entry.after))
            keys.append(entry.key);
    }
    return keys;
}

QStringList SettingsStep::directKeys() const
{
    QStringList keys;
    for (const Entry &entry : mEntries.list) {
        if (entry.isDirect && !isEqual(entry.before, entry.after))
            keys.append(entry.key);
    }
    return keys;
}

bool SettingsStep::mergeWith(const QUndoCommand *command)
{
    const auto *next = static_cast<const SettingsStep *>(command);
    const bool isSameOperation = next->mOperation == mOperation;
    if (!isSameOperation && !continuesTyping(*next))
        return false;
    for (const Entry &entry : next->mEntries.list)
        mEntries.append(entry);
    setObsolete(!hasDifference());
    return true;
}

bool SettingsStep::continuesTyping(const SettingsStep &next) const
{
    using Cause = ConfChange::Cause;
    const QStringList keys = directKeys();
    if (mCause != Cause::Edited || next.mCause != Cause::Edited || mTyping != next.mTyping
        || keys.size() != 1 || keys != next.directKeys())
        return false;
    const Entry *const edited = mEntries.find(keys.first());
    const Entry *const editedNext = next.mEntries.find(keys.first());
    return !editedNext->after.value.isBool() && isEqual(edited->after, editedNext->before);
}

void SettingsStep::undo()
{
    mIsDone = false;
    apply(&Entry::after, &Entry::before);
}

void SettingsStep::redo()
{
    if (!mIsDone)
        apply(&Entry::before, &Entry::after);
    mIsDone = true;
}

/// Changes the keys from the states `from` to the states `to`.
void SettingsStep::apply(Side from, Side to)
{
    mEntries.removeUnchanged();
    const QStringList keys = ownKeys(from, to);
    mHasApplied = std::any_of(keys.cbegin(), keys.cend(), [this](const QString &key) {
        const Entry &entry = *mEntries.find(key);
        return !hasSameValue(entry.before, entry.after);
    });
    if (keys.isEmpty())
        return;
    Entries answers;
    {
        const auto note = [&](const ConfChange &change) {
            if (!mEntries.find(change.key))
                answers.add(change, false);
        };
        const StoreObserver observer(mStore, note);
        const ConfOperation operation(mStore, ConfChange::Cause::Edited);
        reach(keys, to);
    }
    // A constraint may have changed a value. The way back begins with what is there now.
    for (const QString &key : keys) {
        const State current = ConfObservers::stateOf(*mStore, key);
        Entry &entry = *mEntries.find(key);
        if (current.isPresent && (entry.*to).isPresent && !isEqual(current, entry.*from))
            entry.*to = current;
    }
    for (const Entry &answer : std::as_const(answers.list)) {
        Entry entry{answer.key, false, {}, {}};
        entry.*from = answer.before;
        entry.*to = answer.after;
        mEntries.set(entry);
    }
}

/// Returns the keys that need a change and that nobody else has changed since the step, in the
/// order in which they are to be changed.
QStringList SettingsStep::ownKeys(Side from, Side to)
{
    QStringList keys;
    bool areOthers = true;
    for (const Entry &entry : std::as_const(mEntries.list)) {
        if (mStore->isLocked(entry.key))
            continue;
        const State current = ConfObservers::stateOf(*mStore, entry.key);
        const bool isDone = isReached(current, entry.*to);
        const bool isOwn = hasSameValue(current, entry.*from);
        if (isOwn && !isDone)
            keys.append(entry.key);
        areOthers = areOthers && !isOwn && !isDone;
    }
    setObsolete(areOthers);
    if (!mIsDone)
        std::reverse(keys.begin(), keys.end());
    return keys;
}

void SettingsStep::reach(const QStringList &keys, Side to)
{
    bool isComplete = false;
    for (int pass = 0; pass < sMaxPasses && !isComplete; ++pass) {
        isComplete = true;
        for (const QString &key : keys) {
            const State wanted = mEntries.find(key)->*to;
            if (isReached(ConfObservers::stateOf(*mStore, key), wanted))
                continue;
            isComplete = false;
            restore(key, wanted);
        }
    }
}

void SettingsStep::restore(const QString &key, const State &state)
{
    const bool isPresent = mStore->mConfValues.contains(key);
    // Keys that were released are not created, and null would unbind the variable.
    const bool isDynamic = mStore->findDynamicConfClass(key);
    if ((isPresent != state.isPresent && !isDynamic)
        || (state.isPresent && (state.value.isNull() || state.value.isUndefined())))
        return;
    const QDateTime *const time = timeOf(*mStore, key);
    const QDateTime previous = time ? *time : QDateTime();
    if (!state.isPresent)
        mStore->removeDynamicConf(key);
    else if (!isPresent)
        mStore->createDynamicConf(key, state.value, nullptr);
    else if (!state.isDefault)
        mStore->loadValueFromJson(key, state.value);
    // Not before the creation: only an existing key has a default state.
    if (state.isDefault && mStore->mConfValues.contains(key))
        mStore->setToDefault(key, true);
    makeNewer(*mStore, key, previous);
}

} // namespace MtConf
