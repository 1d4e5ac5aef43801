#pragma once

#include "PrivateBus.h"

#include <PortalShortcut_p.h>

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>

/// The system's xdg-desktop-portal on a bus of the test's own, and behind it a desktop that does
/// what the test tells it.
class FakeDesktop : public QDBusVirtualObject
{
public:
    /// What the user does with the dialog of the desktop.
    enum class User { Accepts, Refuses, Waits };

    /// Installs the portal on the bus, which starts it when it is called.
    explicit FakeDesktop(PrivateBus &bus);
    ~FakeDesktop() override;

    /// Lets the portal, which must not run yet, not know of the hotkeys.
    void hideHotkeys();
    /// Connects to the bus.
    void start();
    /// Ends the connection, as a desktop that crashes.
    void crash();
    /// Kills the portal.
    void killPortal();

    User user = User::Accepts;
    QString trigger = QStringLiteral("Granted keys"); ///< the text for keys that are accepted
    QStringList calls;                                ///< the methods called so far
    QList<PortalShortcut> bound;                      ///< the hotkeys of the last dialog
    QString session;                                  ///< path of the last session

    /// Returns the ids in the last dialog.
    QStringList boundIds() const;
    /// Ends the dialog of a user who waits.
    void accept();
    /// Emits Activated for a hotkey, as after a press of its keys.
    void activate(const QString &id, const QVariantMap &options = {});
    /// Emits ShortcutsChanged, as after the user has chosen other keys in the desktop's settings.
    void changeKeys(const QString &id, const QString &keys);
    /// Closes the session.
    void closeSession();

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return {}; }

private:
    void answer(const QDBusMessage &call, uint code);
    void emitSignal(const QString &name, const QVariantList &arguments);

    PrivateBus &mPrivateBus;
    QTemporaryDir mPortals;
    QDBusConnection mBus;
    QDBusMessage mDialog;
};
