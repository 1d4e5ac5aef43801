#pragma once

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QVector>

#include <memory>
#include <optional>

/// The observers of a store, and the operation that is running. Exists only in a store that has, or
/// had, an observer.
class ConfObservers
{
public:
    /// Returns the observers of `store`, and creates them if there were none.
    static std::shared_ptr<ConfObservers> of(ConfStorage &store);

    /// Returns the present state of `key` in `store`.
    static ConfChange::State stateOf(const ConfStorage &store, const QString &key);

    int add(ConfObserver observer);
    /// The same for one of the library, which neither looks at the states of a change nor changes
    /// the store. If there are only such, loads need not compute states and keep their position.
    int addSimple(ConfObserver observer);
    void remove(int id);
    void removeAll();

    /// Begins an operation, whose direct changes have the cause `cause`, or that of the operation
    /// around it if it is null. Each call needs one of `end`.
    void begin(std::optional<ConfChange::Cause> cause);
    void end();

    /// Begins a change of `key` with the cause `cause`, unless the running operation has another
    /// one. Returns null if nobody observes `store`. The change is an operation as long as the
    /// pointer is kept.
    static std::shared_ptr<ConfChange> beginChange(const ConfStorage &store, const QString &key,
                                                   ConfChange::Cause cause)
    {
        return store.mObservers ? newChange(store, key, cause) : nullptr;
    }
    /// Returns whether an observer may look at the states of changes, or change the store.
    static bool areStatesNeeded(const ConfStorage &store)
    {
        return store.mObservers && store.mObservers->mNeedsStates;
    }
    /// Calls the simple observers for a loaded value, which nobody else has to hear of.
    static void tellLoaded(const ConfStorage &store, const QString &key, const QDateTime &time);
    /// Returns how many calls of host code are nested now. An observer is one of them.
    int hostDepth() const { return mHostDepth; }
    /// Returns whether a load is running. False if nobody observes `store`.
    static bool isLoading(const ConfStorage &store);
    /// Calls the observers with `change`, which is complete now. Does nothing if it is null.
    static void finishChange(const ConfStorage &store, const std::shared_ptr<ConfChange> &change);

    /// Marks that code of the host runs during the lifetime of the object: what it changes belongs
    /// to the same operation and has causes of its own.
    class HostCode
    {
    public:
        explicit HostCode(const std::shared_ptr<ConfObservers> &observers);
        ~HostCode();
        Q_DISABLE_COPY(HostCode)

    private:
        const std::shared_ptr<ConfObservers> mObservers; // may be null
    };

private:
    struct Entry
    {
        int id;
        ConfObserver observer;
        bool isSimple;
    };

    int add(ConfObserver observer, bool isSimple);
    void update();
    ConfChange::Cause causeOf(ConfChange::Cause cause) const;
    void beginHostCode();
    void endHostCode();
    static std::shared_ptr<ConfChange> newChange(const ConfStorage &store, const QString &key,
                                                 ConfChange::Cause cause);
    const Entry *find(int id) const;
    /// Calls every observer that was added before the call and is not removed during it.
    void notify(const ConfChange &change);

    QVector<Entry> mObservers;
    int mLastId = 0;
    bool mNeedsStates = false;
    int mNotifyDepth = 0;
    int mHostDepth = 0;
    bool mIsStopped = false;
    quint64 mLastOperation = 0;
    QVector<std::optional<ConfChange::Cause>> mCauses; // of the running operations; null: any
};
