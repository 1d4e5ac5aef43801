#include "ConfObservers_p.h"

#include "EntryLog_p.h"

#include <MaltoConfiguration/store/ConfOperation.h>

#include <QDebug>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int sMaxNotifyDepth = 200; // as for callbacks

QDateTime timeOf(const ConfStorage &store, const QString &key)
{
    const auto meta = store.mConfMetas.constFind(key);
    return meta != store.mConfMetas.constEnd() ? meta->lastChangeTime
                                               : store.mRemovedDynamicConfs.value(key);
}

} // namespace

ConfChange::State ConfObservers::stateOf(const ConfStorage &store, const QString &key)
{
    ConfChange::State state;
    const auto value = store.mConfValues.constFind(key);
    state.isPresent = value != store.mConfValues.constEnd();
    if (state.isPresent && value->mType != ConfValue::TyNone)
        state.value = value->toJsonValue();
    const auto meta = store.mConfMetas.constFind(key);
    state.isDefault = meta != store.mConfMetas.constEnd()
                      && (meta->flags & ConfStorage::FlagIsDefault);
    return state;
}

std::shared_ptr<ConfObservers> ConfObservers::of(ConfStorage &store)
{
    if (!store.mObservers)
        store.mObservers = std::make_shared<ConfObservers>();
    return store.mObservers;
}

int ConfObservers::add(ConfObserver observer)
{
    return add(std::move(observer), false);
}

int ConfObservers::addSimple(ConfObserver observer)
{
    return add(std::move(observer), true);
}

int ConfObservers::add(ConfObserver observer, bool isSimple)
{
    mObservers.append({++mLastId, std::move(observer), isSimple});
    update();
    return mLastId;
}

/// Call it after each change of the list.
void ConfObservers::update()
{
    mNeedsStates = !std::all_of(mObservers.cbegin(), mObservers.cend(),
                                [](const Entry &entry) { return entry.isSimple; });
}

void ConfObservers::removeAll()
{
    mObservers.clear();
    update();
}

void ConfObservers::remove(int id)
{
    const auto isRemoved = [id](const Entry &entry) { return entry.id == id; };
    mObservers.erase(std::remove_if(mObservers.begin(), mObservers.end(), isRemoved),
                     mObservers.end());
    update();
}

const ConfObservers::Entry *ConfObservers::find(int id) const
{
    const auto found = std::find_if(mObservers.cbegin(), mObservers.cend(),
                                    [id](const Entry &entry) { return entry.id == id; });
    return found != mObservers.cend() ? &*found : nullptr;
}

void ConfObservers::notify(const ConfChange &change)
{
    if (mNotifyDepth == 0)
        mIsStopped = false;
    if (mIsStopped)
        return;
    if (mNotifyDepth >= sMaxNotifyDepth) {
        mIsStopped = true;
        if (EntryLog::permits())
            qCritical() << "ConfStorage::addObserver nested too deeply: "
                        << EntryLog::truncated(change.key);
        return;
    }
    const QScopedValueRollback<int> depth(mNotifyDepth, mNotifyDepth + 1);
    QVector<int> ids;
    for (const Entry &entry : std::as_const(mObservers))
        ids.append(entry.id);
    for (const int id : std::as_const(ids)) {
        const Entry *entry = find(id);
        if (!entry || !entry->observer)
            continue;
        const ConfObserver observer = entry->observer; // it may remove itself
        observer(change);
    }
}

void ConfObservers::begin(std::optional<ConfChange::Cause> cause)
{
    if (mCauses.isEmpty())
        ++mLastOperation;
    mCauses.append(cause || mCauses.isEmpty() ? cause : mCauses.last());
}

void ConfObservers::beginHostCode()
{
    ++mHostDepth;
    mCauses.append(std::nullopt);
}

void ConfObservers::endHostCode()
{
    end();
    --mHostDepth;
}

void ConfObservers::end()
{
    mCauses.removeLast();
}

/// Returns the cause of the running operation, or `cause` if it has none.
ConfChange::Cause ConfObservers::causeOf(ConfChange::Cause cause) const
{
    return mCauses.isEmpty() ? cause : mCauses.last().value_or(cause);
}

std::shared_ptr<ConfChange> ConfObservers::newChange(const ConfStorage &store, const QString &key,
                                                     ConfChange::Cause cause)
{
    const std::shared_ptr<ConfObservers> observers = store.mObservers;
    const ConfChange::Cause actualCause = observers->causeOf(cause);
    observers->begin(std::nullopt);
    const auto end = [observers](ConfChange *change) {
        observers->end();
        delete change;
    };
    const std::shared_ptr<ConfChange> change(new ConfChange, end);
    change->key = key;
    change->cause = actualCause;
    change->before = stateOf(store, key);
    change->operation = observers->mLastOperation;
    return change;
}

void ConfObservers::tellLoaded(const ConfStorage &store, const QString &key, const QDateTime &time)
{
    const std::shared_ptr<ConfObservers> observers = store.mObservers;
    if (!observers)
        return;
    ConfChange change;
    change.key = key;
    change.cause = observers->causeOf(ConfChange::Cause::Loaded);
    change.time = time;
    change.operation = observers->mLastOperation;
    const HostCode code(observers); // as in finishChange, so that observers see the same depth
    for (const Entry &entry : std::as_const(observers->mObservers))
        entry.observer(change);
}

bool ConfObservers::isLoading(const ConfStorage &store)
{
    return store.mObservers && store.mObservers->mCauses.contains(ConfChange::Cause::Loaded);
}

void ConfObservers::finishChange(const ConfStorage &store,
                                 const std::shared_ptr<ConfChange> &change)
{
    if (!change)
        return;
    change->after = stateOf(store, change->key);
    change->time = timeOf(store, change->key);
    const std::shared_ptr<ConfObservers> observers = store.mObservers;
    const HostCode code(observers);
    if (observers)
        observers->notify(*change);
}

ConfObservers::HostCode::HostCode(const std::shared_ptr<ConfObservers> &observers)
    : mObservers(observers)
{
    if (mObservers)
        mObservers->beginHostCode();
}

ConfObservers::HostCode::~HostCode()
{
    if (mObservers)
        mObservers->endHostCode();
}

ConfOperation::ConfOperation(ConfStorage *store) : mObservers(store->mObservers)
{
    if (mObservers)
        mObservers->begin(std::nullopt);
}

ConfOperation::ConfOperation(ConfStorage *store, ConfChange::Cause cause)
    : mObservers(store->mObservers)
{
    if (mObservers)
        mObservers->begin(cause);
}

ConfOperation::~ConfOperation()
{
    if (mObservers)
        mObservers->end();
}

int ConfStorage::addObserver(ConfObserver observer)
{
    if (mMisuse)
        checkUse("addObserver");
    return ConfObservers::of(*this)->add(std::move(observer));
}

void ConfStorage::removeObserver(int id)
{
    if (mObservers)
        mObservers->remove(id);
}

ConfStorage::ChangePtr ConfStorage::beginSet(const QString &key) const
{
    return ConfObservers::beginChange(*this, key, ConfChange::Cause::Set);
}
