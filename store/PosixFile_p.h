#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

struct stat;

/// An open regular file, used by its descriptor. The path is looked at only once, by `open`, so it
/// makes no difference if another program exchanges the file meanwhile. Anything but a regular file
/// is refused without waiting for it. Calls that a signal interrupts are repeated. Nothing is
/// logged.
class PosixFile
{
public:
    enum class Status {
        Done,
        Missing,  ///< the path names no file
        Refused,  ///< the path names a folder, a pipe, a device or a socket
        TooLarge, ///< the file has more bytes than the limit
        Failed    ///< any other error of the operating system
    };

    enum class Mode {
        Read,
        ReadNoLink,   ///< a link is refused
        ReadWrite,    ///< creates the file if it is missing, and does not truncate it
        EditNoLink,   ///< to read and write an existing file; a link is refused
        WriteOrDevice ///< like ReadWrite, but write-only; also opens a character device
    };

    /// Who can access a new file.
    enum class Access {
        AsUsual,  ///< as the process creates files, or as the other file is
        OwnerOnly ///< its owner alone
    };

    /// The content of a file.
    struct Content
    {
        Status status = Status::Missing;
        QByteArray bytes; ///< empty unless `status` is `Done`
    };

    PosixFile() = default;
    ~PosixFile() { close(); }
    Q_DISABLE_COPY(PosixFile)

    /// Opens the file `path`. The operating system follows a link. `access` is that of a file that
    /// is created; an existing one keeps its own.
    Status open(const QString &path, Mode mode, Access access = Access::AsUsual);

    /// Creates the file `path` for writing, which only its owner can access. Returns `Refused` if
    /// the path is taken.
    Status createNew(const QString &path);

    /// Creates the file `path` for writing, which only its owner can access. Replaces an existing
    /// file or link; if that is not permitted, the path gets a random ending. Returns the path, or
    /// an empty text if that fails.
    QString create(const QString &path);

    void close();

    /// Reads the file from its start, but never more than `limit` bytes and one.
    Content read(qint64 limit) const;

    /// Removes the content of the file. Does nothing if it is a device.
    bool clear() const;

    /// Writes `bytes` at the start of the file.
    bool write(const QByteArray &bytes) const;

    /// Waits until the content is on the disk.
    bool sync() const;

    /// Reads the owner, the permissions and the number of names of the file.
    bool status(struct stat *result) const;

    /// Gives this file the owner, the group and the permissions of `other`. If it cannot get the
    /// group, or `other` has an access control list, only its owner has access: others could be
    /// excluded from `other`. With `OwnerOnly` only the owner of `other` has access. Returns false
    /// if it cannot get the owner.
    bool copyAccess(const PosixFile &other, Access access = Access::AsUsual) const;

    /// Returns the path of the file without links: as it was given, or absolute if there are links.
    /// Empty if the file has no name any more.
    QString resolvedPath() const;

    /// Returns the path of the file that `path` leads to, which need not exist: the links are
    /// followed, and the path is absolute.
    static QString targetPath(const QString &path);

    /// Opens and reads the file `path`.
    static Content read(const QString &path, qint64 limit);

    /// Returns whether a file with this status belongs to the user of the process, or to the owner
    /// of the file `path`. In a folder where every user may create files, those of other users are
    /// not to be trusted.
    static bool isOwnedFor(const QString &path, const struct stat &status);

    /// Returns `path` with a random ending that nobody can predict.
    static QString uniquePath(const QString &path);

    /// Returns whether `path` may be a result of uniquePath(`original`).
    static bool isUniquePath(const QString &path, const QString &original);

    /// Renames the file `from` to `to` atomically and replaces an existing file. Returns whether
    /// that worked.
    static bool rename(const QString &from, const QString &to);

    /// Waits until the names in the folder of the file `path` are on the disk. Returns whether that
    /// worked.
    static bool syncFolderOf(const QString &path);

private:
    bool hasAccessControlList() const;

    int mDescriptor = -1;
    QString mPath; // as it was opened
};
