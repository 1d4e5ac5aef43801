#include "FileLock_p.h"

#include "Limits_p.h"
#include "PosixFile_p.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>

FileLock::FileLock(const QString &path)
    : mPath(PosixFile::targetPath(path) + QLatin1String(".lock")), mLock(mPath)
{
    // QLockFile recognises the lock of a program that does not run any more, but not one without
    // content, which is left by a program that was killed between creating and writing it. Locks of
    // this age are tried again, which only works if no program holds them.
    constexpr int sStaleAfter = 2000;
    mLock.setStaleLockTime(sStaleAfter);
}

FileLock::Result FileLock::lock()
{
    // QLockFile would read a pipe, and so wait for another program to write it.
    const QFileInfo file(mPath);
    if (file.exists() && !file.isFile())
        return Result::NotPermitted;
    // Not QLockFile's own waiting, whose pauses grow to seconds.
    constexpr int sLongestPause = 15; // milliseconds; longer than a save with a solid-state drive
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        if (mLock.tryLock(0))
            return Result::Locked;
        if (mLock.error() != QLockFile::LockFailedError)
            return Result::NotPermitted;
        if (timer.hasExpired(Limits::sLockTimeout))
            return Result::TimedOut;
        const auto pause = 1 + QRandomGenerator::global()->bounded(sLongestPause);
        QThread::msleep(static_cast<unsigned long>(pause));
    }
}
