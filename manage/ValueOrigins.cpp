#include "ValueOrigins_p.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <utility>

namespace MtConf {

ValueOrigins::ValueOrigins()
    : mObserver(ConfStorage::instance(), [this](const ConfChange &change) { onChange(change); })
{
}

ValueOrigins::Origin ValueOrigins::originOf(const QString &key) const
{
    const ConfStorage *const store = ConfStorage::instance();
    if (store->isLocked(key))
        return Origin::Locked;
    if (store->isEqualToDefault(key))
        return Origin::Default;
    return mOrigins.value(key, Origin::Changed);
}

void ValueOrigins::onChange(const ConfChange &change)
{
    const bool isMerged = change.cause == ConfChange::Cause::Loaded
                          && ConfStorage::instance()->mLocalLoaded;
    const Origin origin = mScope->value_or(isMerged ? Origin::Elsewhere : Origin::Changed);
    if (origin == Origin::Changed)
        mOrigins.remove(change.key);
    else
        mOrigins.insert(change.key, origin);
}

ValueOrigins::Scope::Scope(const ValueOrigins *origins, Origin origin)
    : mCurrent(origins ? origins->mScope : std::make_shared<std::optional<Origin>>()),
      mFormer(std::exchange(*mCurrent, origin))
{
}

ValueOrigins::Scope::~Scope()
{
    *mCurrent = mFormer;
}

} // namespace MtConf
