#pragma once

#include <QLockFile>
#include <QString>

/// The lock of a file that several programs change: a QLockFile beside it, with the ending ".lock".
/// A lock that a killed program left is taken over; that of a running program on a local disk never
/// is, because the running program holds a lock of the operating system on it.
class FileLock
{
public:
    enum class Result {
        Locked,
        NotPermitted, ///< the lock file cannot be created; nobody without more rights can lock
        TimedOut      ///< another program holds the lock
    };

    /// `path` may be a link: the lock is beside the file that it leads to.
    explicit FileLock(const QString &path);

    /// Waits at most `Limits::sLockTimeout` milliseconds for the lock.
    Result lock();

    /// Releases the lock. The destructor does so, too.
    void unlock() { mLock.unlock(); }

    QString path() const { return mPath; }

private:
    const QString mPath;
    QLockFile mLock;
};
