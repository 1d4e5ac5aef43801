#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <MaltoConfiguration/store/ConfChange.h>

#include <memory>
#include <utility>

namespace MtConf {

/// An observer of a store that is removed with this object.
class StoreObserver
{
public:
    StoreObserver(ConfStorage *store, ConfObserver observer) : mStore(store)
    {
        const auto alive = std::make_shared<bool>(true);
        mAlive = alive;
        mId = store->addObserver([alive, observer = std::move(observer)](const ConfChange &change) {
            observer(change);
        });
    }
    ~StoreObserver()
    {
        // A store that was cleared counts its observers from 1 again.
        if (isActive())
            mStore->removeObserver(mId);
    }
    Q_DISABLE_COPY(StoreObserver)

    /// Returns false after `ConfStorage::clear`, which removes all observers.
    bool isActive() const { return !mAlive.expired(); }

private:
    ConfStorage *const mStore;
    std::weak_ptr<bool> mAlive;
    int mId = 0;
};

} // namespace MtConf
