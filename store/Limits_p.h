#pragma once

#include <QtGlobal>

/// The limits for what is read from files and written to the log, in one place. Nothing that comes
/// from a file can cost more memory or more log lines than they allow.
namespace Limits {

/// Bytes of a configuration file. For the local file a host can change
/// `ConfStorage::mMaxFileSize`, which has the same value.
constexpr qint64 sMaxConfigFileSize = 16 * 1024 * 1024;

/// Bytes of a style sheet or a translation.
constexpr qint64 sMaxSmallFileSize = 4 * 1024 * 1024;

/// Bytes of the file with the geometry of the window.
constexpr qint64 sMaxGeometryFileSize = 64 * 1024;

/// Levels of arrays and objects in a value. Qt's parser accepts 1,024, two of which the file needs.
constexpr int sMaxValueLevels = 1022;

/// Characters (UTF-16 units) of a dynamic key that a file or a dump adds.
constexpr int sMaxKeyLength = 65536;

/// Keys and tombstones of a store to which a file or a dump can add another one.
constexpr int sMaxKeys = 1000000;

/// Characters of a key or a value in one line of the log.
constexpr int sMaxLoggedLength = 200;

/// Lines about single entries that one call logs. The rest is counted in one more line.
constexpr int sMaxLoggedEntries = 20;

/// Rows of the table that `ConfStorage::debugTable` returns. The rest is counted in one more line.
constexpr int sMaxTableRows = 10000;

/// Milliseconds that a load or a save waits for another program that has locked the file.
constexpr int sLockTimeout = 5000;

} // namespace Limits
