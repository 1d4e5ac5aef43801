#pragma once

#include <QFile>

/// What the files of values need of the operating system, and Qt does not offer.
namespace PosixFile {

/// What no memory holds would end the process: files of more bytes are not read.
constexpr qint64 sMaxSize = 128 * 1024 * 1024;

/// Opens the file `path` for writing without truncating it, and creates it if it is missing. QFile
/// has no such mode: it truncates, needs the permission to read, or warns about devices. Returns a
/// descriptor, or -1, also for a named pipe, where opening would block until somebody reads from
/// it.
int openForWriting(const QString &path);

/// Creates the file `path` with `permissions`, in place of one that is there; links are not
/// followed. Returns a descriptor for writing, or -1.
int createAnew(const QString &path, QFile::Permissions permissions);

/// Gives the file `from` the name `to` at once, in place of a file that has it. False on failure.
bool replace(const QString &from, const QString &to);

/// Returns once the content behind `descriptor` is on the disk. False on failure.
bool sync(int descriptor);

/// Returns once the names in the folder of the file `path` are on the disk. False on failure.
bool syncFolderOf(const QString &path);

} // namespace PosixFile
