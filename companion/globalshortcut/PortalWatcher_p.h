#pragma once

#include <QDBusConnection>
#include <QObject>

class QDBusMessage;
class QDBusServiceWatcher;

/// Finds the desktop portal with the interface for hotkeys, and tells when it ends and comes back.
/// Never blocks.
class PortalWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches the portal on `bus`, on which nothing else may have called the portal before. Starts
    /// to look for it as `look` does.
    explicit PortalWatcher(const QDBusConnection &bus);

    /// Returns the id of the program for the desktop: the name of its desktop file, or the one that
    /// Qt gives to its Wayland windows.
    static QString applicationId();

    /// Looks for the portal, which starts it if it is not running. Answers with `found` or
    /// `missing`.
    void look();

Q_SIGNALS:
    /// Emitted when there is a portal with hotkeys; `portal` is its unique bus name.
    void found(const QString &portal);
    /// Emitted when there is no portal, or none with hotkeys. One that is started later is found.
    void missing();
    /// Emitted when the portal that was found has ended. Another one is found when it is started.
    void lost();

private Q_SLOTS:
    void handleOwner(const QString &service, const QString &before, const QString &now);
    void handleDisconnected();

private:
    void introduce(int search);
    void askForVersion(int search);
    void conclude(const QDBusMessage &answer);

    QDBusConnection mBus;
    QString mPortal; // that was found
    int mSearch = 0; // number of the current search; answers to others are outdated
};
