#include "PosixFile_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/param.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

namespace {

constexpr qint64 sBlockSize = 64 * 1024;
constexpr int sRandomLength = 7; // 32 bits in base 36
constexpr mode_t sOwner = S_IRUSR | S_IWUSR;

/// Repeats `call` as long as a signal interrupts it.
template<class Call> auto uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

int openDescriptor(const QByteArray &name, int flags, mode_t mode = 0)
{
    return uninterrupted([&] { return ::open(name.constData(), flags | O_CLOEXEC, mode); });
}

int flagsOf(PosixFile::Mode mode)
{
    // Without O_NONBLOCK opening a pipe waits for another program. It changes nothing else.
    switch (mode) {
    case PosixFile::Mode::Read: return O_RDONLY | O_NONBLOCK;
    case PosixFile::Mode::ReadNoLink: return O_RDONLY | O_NOFOLLOW | O_NONBLOCK;
    case PosixFile::Mode::ReadWrite: return O_RDWR | O_CREAT | O_NONBLOCK;
    case PosixFile::Mode::EditNoLink: return O_RDWR | O_NOFOLLOW | O_NONBLOCK;
    case PosixFile::Mode::WriteOrDevice: break;
    }
    return O_WRONLY | O_CREAT | O_NONBLOCK;
}

/// Returns the absolute path without links, or an empty text if it cannot be found.
QString pathOfDescriptor(int descriptor)
{
#ifdef F_GETPATH
    QByteArray path(MAXPATHLEN, '\0');
    return ::fcntl(descriptor, F_GETPATH, path.data()) == 0 ? QFile::decodeName(path.constData())
                                                            : QString();
#else
    return QFileInfo(QStringLiteral("/proc/self/fd/%1").arg(descriptor)).symLinkTarget();
#endif
}

bool syncDescriptor(int descriptor)
{
#ifdef F_FULLFSYNC
    // On macOS fsync() leaves the content in the cache of the drive.
    if (::fcntl(descriptor, F_FULLFSYNC) == 0)
        return true;
#endif
    return uninterrupted([&] { return ::fsync(descriptor); }) == 0;
}

} // namespace

PosixFile::Status PosixFile::open(const QString &path, Mode mode, Access access)
{
    constexpr mode_t sEverybody = 0666; // without the bits of the umask, as Qt creates files
    close();
    if (path.contains(QChar(u'\0')))
        return Status::Missing; // the system would open the path before the null character
    mPath = path;
    mDescriptor = openDescriptor(QFile::encodeName(path), flagsOf(mode),
                                 access == Access::OwnerOnly ? sOwner : sEverybody);
    if (mDescriptor == -1) {
        switch (errno) {
        case ENOENT:
        case ENOTDIR: return Status::Missing;
        case EISDIR:
        case ENXIO: // a pipe that nobody reads, or a socket
        case ELOOP: return Status::Refused;
        default: return Status::Failed;
        }
    }
    struct stat found = {};
    if (!status(&found)) {
        close();
        return Status::Failed;
    }
    const bool isDevice = mode == Mode::WriteOrDevice && S_ISCHR(found.st_mode);
    if (S_ISREG(found.st_mode) || isDevice)
        return Status::Done;
    close();
    return Status::Refused;
}

PosixFile::Status PosixFile::createNew(const QString &path)
{
    close();
    mPath = path;
    mDescriptor = openDescriptor(QFile::encodeName(path), O_WRONLY | O_CREAT | O_EXCL, sOwner);
    if (mDescriptor != -1)
        return Status::Done;
    return errno == EEXIST ? Status::Refused : Status::Failed;
}

QString PosixFile::create(const QString &path)
{
    constexpr int sTries = 100; // that many random names are not all taken
    QString tried = path;
    ::unlink(QFile::encodeName(path).constData());
    for (int i = 0; i < sTries; ++i) {
        const Status created = createNew(tried);
        if (created == Status::Done)
            return tried;
        if (created == Status::Failed)
            break;
        tried = uniquePath(path);
    }
    return QString();
}

void PosixFile::close()
{
    if (mDescriptor != -1)
        ::close(std::exchange(mDescriptor, -1));
}

PosixFile::Content PosixFile::read(qint64 limit) const
{
    // The size that the system reports may be wrong, as for the files in /proc, or too large.
    constexpr qint64 sLargestBlock = 256 * sBlockSize;
    struct stat found = {};
    const qint64 likelySize = status(&found) ? qint64(found.st_size) + 1 : sBlockSize;
    QByteArray bytes;
    ::lseek(mDescriptor, 0, SEEK_SET);
    while (bytes.size() <= limit) {
        const auto size = bytes.size();
        const qint64 expected = likelySize - size;
        const auto room = static_cast<int>(
            qMin(expected > 0 ? qMin(expected, sLargestBlock) : sBlockSize, limit + 1 - size));
        bytes.resize(size + room);
        const auto count = uninterrupted(
            [&] { return ::read(mDescriptor, bytes.data() + size, static_cast<size_t>(room)); });
        if (count < 0)
            return {Status::Failed, QByteArray()};
        bytes.resize(size + static_cast<int>(count));
        if (count == 0)
            return {Status::Done, bytes};
    }
    return {Status::TooLarge, QByteArray()};
}

bool PosixFile::clear() const
{
    struct stat found = {};
    if (!status(&found))
        return false;
    return !S_ISREG(found.st_mode)
           || uninterrupted([&] { return ::ftruncate(mDescriptor, 0); }) == 0;
}

bool PosixFile::write(const QByteArray &bytes) const
{
    ::lseek(mDescriptor, 0, SEEK_SET);
    for (qint64 written = 0; written < bytes.size();) {
        const auto count = uninterrupted([&] {
            return ::write(mDescriptor, bytes.constData() + written,
                           static_cast<size_t>(bytes.size() - written));
        });
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

bool PosixFile::sync() const
{
    return syncDescriptor(mDescriptor);
}

bool PosixFile::status(struct stat *result) const
{
    return ::fstat(mDescriptor, result) == 0;
}

bool PosixFile::copyAccess(const PosixFile &other, Access access) const
{
    constexpr auto sUnchanged = static_cast<uid_t>(-1);
    struct stat ours = {};
    struct stat theirs = {};
    if (!status(&ours) || !other.status(&theirs))
        return false;
    if (ours.st_uid != theirs.st_uid && ::fchown(mDescriptor, theirs.st_uid, sUnchanged) != 0)
        return false;
    if (access == Access::OwnerOnly)
        return ::fchmod(mDescriptor, sOwner) == 0;
    const bool hasGroup = ours.st_gid == theirs.st_gid
                          || ::fchown(mDescriptor, sUnchanged, theirs.st_gid) == 0;
    const bool isShared = hasGroup && !other.hasAccessControlList();
    const mode_t mode = isShared ? theirs.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO) : sOwner;
    return ::fchmod(mDescriptor, mode) == 0;
}

bool PosixFile::hasAccessControlList() const
{
#ifdef Q_OS_LINUX
    return ::fgetxattr(mDescriptor, "system.posix_acl_access", nullptr, 0) > 0;
#else
    return true; // it may have one
#endif
}

QString PosixFile::resolvedPath() const
{
    const QString path = pathOfDescriptor(mDescriptor);
    // The folder /proc may be missing in a container.
    const QFileInfo given(mPath);
    if (path.isEmpty())
        return given.canonicalFilePath();
    return path == QDir::cleanPath(given.absoluteFilePath()) ? mPath : path;
}

QString PosixFile::targetPath(const QString &path)
{
    constexpr int sMaxLinks = 40; // as the system's own limit
    QFileInfo file(path);
    for (int i = 0; i < sMaxLinks && file.isSymLink() && !file.exists(); ++i)
        file.setFile(file.symLinkTarget());
    if (file.exists())
        return file.canonicalFilePath();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? file.absoluteFilePath() : QDir(folder).filePath(file.fileName());
}

PosixFile::Content PosixFile::read(const QString &path, qint64 limit)
{
    PosixFile file;
    const Status opened = file.open(path, Mode::Read);
    return opened == Status::Done ? file.read(limit) : Content{opened, QByteArray()};
}

bool PosixFile::isOwnedFor(const QString &path, const struct stat &status)
{
    struct stat file = {};
    return status.st_uid == ::geteuid()
           || (::stat(QFile::encodeName(path).constData(), &file) == 0
               && status.st_uid == file.st_uid);
}

QString PosixFile::uniquePath(const QString &path)
{
    constexpr int sBase = 36; // digits and letters
    const quint32 random = QRandomGenerator::system()->generate();
    return path + QLatin1Char('-')
           + QString::number(random, sBase).rightJustified(sRandomLength, QLatin1Char('0'));
}

bool PosixFile::isUniquePath(const QString &path, const QString &original)
{
    return path.size() == original.size() + 1 + sRandomLength
           && path.startsWith(original + QLatin1Char('-'));
}

bool PosixFile::rename(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool PosixFile::syncFolderOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const int descriptor = openDescriptor(folder, O_RDONLY | O_DIRECTORY);
    if (descriptor == -1)
        return false;
    // Some file systems cannot sync folders and return EINVAL.
    const bool synced = syncDescriptor(descriptor) || errno == EINVAL;
    ::close(descriptor);
    return synced;
}
