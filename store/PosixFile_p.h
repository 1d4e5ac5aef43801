#pragma once

#include <QFile>

/// File operations of the operating system that Qt does not offer.
namespace PosixFile {

/// Files with more bytes are not read: larger files could exhaust memory.
constexpr qint64 sMaxSize = 128 * 1024 * 1024;

/// Opens the file `path` for writing without truncating it, and creates it if it is missing. QFile
/// has no such mode: it truncates, needs the permission to read, or warns about devices. Returns a
/// descriptor, or -1, also for a named pipe, where opening would block until somebody reads from
/// it.
int openForWriting(const QString &path);

/// Creates the file `path` with `permissions` and replaces an existing file or link of that name.
/// Returns a descriptor for writing, or -1.
int createNew(const QString &path, QFile::Permissions permissions);

/// Renames the file `from` to `to` atomically and replaces an existing file. Returns whether that
/// worked.
bool replace(const QString &from, const QString &to);

/// Waits until the content of the file is on the disk. Returns whether that worked.
bool sync(int descriptor);

/// Waits until the names in the folder of the file `path` are on the disk. Returns whether that
/// worked.
bool syncFolderOf(const QString &path);

} // namespace PosixFile
