#pragma once

#include "PosixFile_p.h"

/// The backup of a local file: the last good content before the newest save, in "<file>.backup".
class FileBackup
{
public:
    /// The backup is beside `file`, or beside the target of its link.
    explicit FileBackup(const PosixFile &file);

    /// The path of the backup.
    QString path() const { return mPath; }

    /// Replaces the backup with `text`, the content of `file`. The backup has the access of the
    /// file or less. Does not wait for the disk: during a loss of power the file itself or its
    /// journal is intact. Returns whether that worked; otherwise the previous backup stays.
    bool write(const QByteArray &text, const PosixFile &file, PosixFile::Access access) const;

    /// Returns the content of the backup. Empty if there is none of at most `limit` bytes, if it is
    /// not a JSON object, or if it belongs to another user than the file.
    QByteArray read(qint64 limit) const;

private:
    QString mFilePath;
    QString mPath;
};
