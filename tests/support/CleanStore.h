#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

/// Resets the store of the process. Every test calls this before it starts and when it ends.
inline void clearStore()
{
    ConfStorage *store = ConfStorage::instance();
    store->mChanged = false;
    store->mLocalLoaded = false;
    store->mConfValues.clear();
    store->mConfMetas.clear();
    store->mLocalSaveFile.clear();
    store->mPresetDynamicConfs.clear();
    store->mDynamicConfClasses.clear();
    store->mRemovedDynamicConfs.clear();
}
