#include "FileBackup_p.h"

#include "DamagedFile_p.h"

#include <QFile>

#include <sys/stat.h>

FileBackup::FileBackup(const PosixFile &file)
    : mFilePath(file.resolvedPath()), mPath(mFilePath + QLatin1String(".backup"))
{
}

bool FileBackup::write(const QByteArray &text, const PosixFile &file,
                       PosixFile::Access access) const
{
    PosixFile backup;
    const QString unfinished = backup.create(mPath + QLatin1String(".new"));
    if (unfinished.isEmpty())
        return false;
    // Without the right to give the backup to the owner of the file, it stays private to this user,
    // who can read the file as well.
    backup.copyAccess(file, access);
    const bool isWhole = backup.write(text);
    backup.close();
    if (isWhole && PosixFile::rename(unfinished, mPath))
        return true;
    QFile::remove(unfinished);
    return false;
}

QByteArray FileBackup::read(qint64 limit) const
{
    PosixFile backup;
    struct stat status = {};
    if (backup.open(mPath, PosixFile::Mode::ReadNoLink) != PosixFile::Status::Done
        || !backup.status(&status) || !PosixFile::isOwnedFor(mFilePath, status))
        return QByteArray();
    const QByteArray text = backup.read(limit).bytes;
    return DamagedFile::isDamaged(text) ? QByteArray() : text;
}
