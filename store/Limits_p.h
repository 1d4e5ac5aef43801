#pragma once

#include <QtGlobal>

/// The limits for what is read from files and written to the log, in one place. Nothing that comes
/// from a file can cost more memory or more log lines than they allow.
namespace Limits {

/// Bytes of a configuration file. For the local file a host can change
/// `ConfStorage::mMaxFileSize`, which has the same value.
constexpr qint64 sMaxConfigFileSize = 16 * 1024 * 1024;

/// Bytes of a style sheet, a translation, or the geometry file.
constexpr qint64 sMaxSmallFileSize = 4 * 1024 * 1024;

/// Levels of arrays and objects in a value. Qt's parser accepts 1,024, two of which the file needs.
constexpr int sMaxValueLevels = 1022;

/// Characters of a key or a value in one line of the log.
constexpr int sMaxLoggedLength = 200;

/// Lines about single entries that one call logs. The rest is counted in one more line.
constexpr int sMaxLoggedEntries = 20;

/// Rows of the table that `ConfStorage::debugTable` returns. The rest is counted in one more line.
constexpr int sMaxTableRows = 10000;

} // namespace Limits
