#pragma once

#include "ApplicationStart_p.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <tuple>

class QFileSystemWatcher;
class QTimer;

/// Hears when other programs change a file. The system reports changes of the file and of its
/// folder; the folder is needed for files that are created or replaced. In addition the status of
/// the file is looked at every few seconds, because file systems of networks do not report the
/// changes of other computers, and because the number of watches is limited. Does nothing without
/// an application object.
class ConfFileWatch
{
public:
    /// `handleChange` is called when the content of the file may have changed. It may destroy this
    /// object.
    explicit ConfFileWatch(std::function<void()> handleChange);
    ~ConfFileWatch();
    Q_DISABLE_COPY(ConfFileWatch)

    /// Watches the file `path`, which may be a link, and notes `content` as its current content.
    void watch(const QString &path, const QByteArray &content);

    /// The path of the last call of `watch`.
    QString path() const { return mPath; }

    /// Notes `content` as the current content of the file.
    void note(const QByteArray &content);

    /// Returns whether `content` is what was noted last.
    bool isNoted(const QByteArray &content) const;

private:
    /// What a change of a file changes: device, inode, size, and the time of the last change in
    /// seconds and nanoseconds. All 0 if there is no file.
    using Status = std::tuple<quint64, quint64, qint64, qint64, qint64>;

    static Status statusOf(const QString &path);
    void start();
    void addPaths();
    void check();

    const std::function<void()> mHandleChange;
    QString mPath;
    QByteArray mHash;
    Status mStatus;
    QString mTarget;         // of the link, as it is watched
    QStringList mRefused;    // paths that the system does not watch; each attempt logs a warning
    bool mIsChanged = false; // the system reports a change of the file
    const std::unique_ptr<QObject> mContext; // of all connections
    QPointer<QFileSystemWatcher> mWatcher;   // a child of the application
    QPointer<QTimer> mDelay;                 // a child of the watcher
    const ApplicationStart mApplicationStart;
};
