#include "PosixFile_p.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PosixFile {

namespace {

mode_t toMode(QFile::Permissions permissions)
{
    mode_t mode = 0;
    const auto add = [&](QFile::Permission permission, mode_t bit) {
        if (permissions & permission)
            mode |= bit;
    };
    add(QFile::ReadOwner, S_IRUSR);
    add(QFile::WriteOwner, S_IWUSR);
    add(QFile::ReadGroup, S_IRGRP);
    add(QFile::WriteGroup, S_IWGRP);
    add(QFile::ReadOther, S_IROTH);
    add(QFile::WriteOther, S_IWOTH);
    return mode;
}

bool isPipe(const QByteArray &name)
{
    struct stat status = {};
    return ::stat(name.constData(), &status) == 0 && S_ISFIFO(status.st_mode);
}

/// Retries if a signal interrupts the call. Returns a descriptor, or -1.
int openUninterrupted(const QByteArray &name, int flags, mode_t mode = 0)
{
    int descriptor = -1;
    do {
        descriptor = ::open(name.constData(), flags | O_CLOEXEC, mode);
    } while (descriptor == -1 && errno == EINTR);
    return descriptor;
}

} // namespace

int openForWriting(const QString &path)
{
    constexpr mode_t sEverybody = 0666; // without the bits of the umask, as Qt creates files
    const QByteArray name = QFile::encodeName(path);
    return isPipe(name) ? -1 : openUninterrupted(name, O_WRONLY | O_CREAT, sEverybody);
}

int createNew(const QString &path, QFile::Permissions permissions)
{
    const QByteArray name = QFile::encodeName(path);
    ::unlink(name.constData());
    // Other users cannot read the file before it has its permissions.
    const int descriptor = openUninterrupted(name, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
    if (descriptor != -1)
        ::fchmod(descriptor, toMode(permissions));
    return descriptor;
}

bool replace(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool sync(int descriptor)
{
#ifdef F_FULLFSYNC
    // On macOS fsync() leaves the content in the cache of the drive.
    if (::fcntl(descriptor, F_FULLFSYNC) == 0)
        return true;
#endif
    int result = 0;
    do {
        result = ::fsync(descriptor);
    } while (result == -1 && errno == EINTR);
    return result == 0;
}

bool syncFolderOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const int descriptor = openUninterrupted(folder, O_RDONLY | O_DIRECTORY);
    if (descriptor == -1)
        return false;
    // Some file systems cannot sync folders and return EINVAL.
    const bool synced = sync(descriptor) || errno == EINVAL;
    ::close(descriptor);
    return synced;
}

} // namespace PosixFile
