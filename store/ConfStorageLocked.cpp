#include <MaltoConfiguration/store/ConfStorage.h>

#include "LockedConfs_p.h"

bool ConfStorage::isLocked(const QString &key) const
{
    return mLockedConfs && mLockedConfs->contains(key);
}
