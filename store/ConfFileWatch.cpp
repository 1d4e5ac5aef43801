#include "ConfFileWatch_p.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTimer>

#include <sys/stat.h>
#include <utility>

namespace {

/// Milliseconds from the first report of a change until it is handled. A save causes several.
constexpr int sDelay = 50;

/// Milliseconds between two looks at the status of the file. Changes that the system reports do not
/// wait for it; a process that wakes up more often would use the battery of a laptop.
constexpr int sPollInterval = 5000;

QByteArray hashOf(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256);
}

} // namespace

ConfFileWatch::ConfFileWatch(std::function<void()> handleChange)
    : mHandleChange(std::move(handleChange)), mContext(std::make_unique<QObject>()),
      mApplicationStart([this] { start(); })
{
}

ConfFileWatch::~ConfFileWatch()
{
    // One of its timers may be what calls this.
    if (mWatcher)
        mWatcher->deleteLater();
}

void ConfFileWatch::start()
{
    mWatcher = new QFileSystemWatcher(QCoreApplication::instance());
    mDelay = new QTimer(mWatcher);
    mDelay->setSingleShot(true);
    mDelay->setInterval(sDelay);
    auto *const poll = new QTimer(mWatcher);
    poll->setTimerType(Qt::VeryCoarseTimer);
    QObject::connect(mDelay, &QTimer::timeout, mContext.get(), [this] { check(); });
    QObject::connect(poll, &QTimer::timeout, mContext.get(), [this] { check(); });
    // The delay is not started again for each report, so reports without an end do not defer it.
    const auto startDelay = [this] {
        if (!mDelay->isActive())
            mDelay->start();
    };
    QObject::connect(mWatcher, &QFileSystemWatcher::directoryChanged, mContext.get(), startDelay);
    QObject::connect(mWatcher, &QFileSystemWatcher::fileChanged, mContext.get(),
                     [this, startDelay] {
                         mIsChanged = true;
                         startDelay();
                     });
    poll->start(sPollInterval);
    if (mPath.isEmpty())
        return;
    mDelay->start(); // the file may have changed before it was watched
    addPaths();
}

void ConfFileWatch::watch(const QString &path, const QByteArray &content)
{
    note(content);
    const bool isNew = mPath != path;
    if (isNew) {
        mPath = path;
        mTarget.clear();
        mRefused.clear();
    }
    if (!mWatcher)
        return;
    if (isNew)
        mDelay->start();
    addPaths();
}

void ConfFileWatch::note(const QByteArray &content)
{
    mHash = hashOf(content);
}

bool ConfFileWatch::isNoted(const QByteArray &content) const
{
    return mHash == hashOf(content);
}

ConfFileWatch::Status ConfFileWatch::statusOf(const QString &path)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0)
        return {};
#ifdef Q_OS_DARWIN
    const struct timespec &time = found.st_mtimespec;
#else
    const struct timespec &time = found.st_mtim;
#endif
    return {found.st_dev, found.st_ino, found.st_size, time.tv_sec, time.tv_nsec};
}

/// Watches the file, its folder and that of a link to it. Does nothing for what is watched already.
/// Qt logs a warning if that fails, and a log handler may destroy this object.
void ConfFileWatch::addPaths()
{
    const QFileInfo file(mPath);
    const QString target = file.canonicalFilePath();
    if (!target.isEmpty())
        mTarget = target; // a missing file may be created where it was
    QStringList paths{file.absolutePath()};
    if (!mTarget.isEmpty())
        paths << mTarget << QFileInfo(mTarget).path();
    const QPointer<QObject> context(mContext.get());
    QStringList watched = mWatcher->files() + mWatcher->directories();
    for (const QString &path : std::as_const(watched)) {
        if (!paths.contains(path))
            mWatcher->removePath(path);
    }
    for (const QString &path : std::as_const(paths)) {
        if (watched.contains(path) || mRefused.contains(path) || !QFileInfo::exists(path))
            continue;
        watched.append(path);
        const bool isWatched = mWatcher->addPath(path);
        if (!context)
            return;
        if (!isWatched)
            mRefused.append(path);
    }
}

void ConfFileWatch::check()
{
    // Before the file is read: if it changes meanwhile, the next look finds another status.
    const Status status = statusOf(mPath);
    if (std::get<1>(status) != std::get<1>(mStatus) && !mTarget.isEmpty())
        mWatcher->removePath(mTarget); // the watch belongs to the file that was replaced
    const bool isChanged = std::exchange(mIsChanged, false) || status != mStatus;
    mStatus = status;
    const QPointer<QObject> context(mContext.get());
    addPaths();
    if (!isChanged || !context)
        return;
    const std::function<void()> handleChange = mHandleChange; // which may destroy this object
    handleChange();
}
