#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

/// Empties the store of the process: every test starts from a clean one and leaves one.
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
