#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

/// Clears the store of the process. Every test starts with a clean store and leaves one.
inline void clearStore()
{
    ConfStorage::instance()->clear();
}
