#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <new>

/// Makes the store of the process as it was at the start of the process. Every test starts with a
/// clean store and leaves one.
inline void clearStore()
{
    ConfStorage *store = ConfStorage::instance();
    // Made anew in its place, because a list of its members would miss the next one.
    store->~ConfStorage();
    new (store) ConfStorage;
}
