#pragma once

#include "PortalShortcut_p.h"

#include <QDBusConnection>
#include <QObject>

class PortalRequest;
class QDBusMessage;

/// A session of the desktop portal, with hotkeys that are bound once. Never blocks. Deleting it
/// closes the session, which releases the hotkeys.
class PortalSession : public QObject
{
    Q_OBJECT

public:
    /// Creates a session with the portal that has the unique bus name `portal` and binds
    /// `shortcuts` in it. The desktop may ask the user.
    PortalSession(const QDBusConnection &bus, const QString &portal,
                  const QList<PortalShortcut> &shortcuts, QObject *parent);
    ~PortalSession() override;

Q_SIGNALS:
    /// Emitted when the desktop has bound the hotkeys. `shortcuts` are those that it accepted.
    void bound(const QList<PortalShortcut> &shortcuts);
    /// Emitted when the user or the desktop has refused the session or the hotkeys.
    void refused();
    /// Emitted when the portal has rejected a call or has broken the protocol.
    void failed(const QString &reason);
    /// Emitted when the desktop has changed hotkeys that are bound.
    void changed(const QList<PortalShortcut> &shortcuts);
    /// Emitted when the keys of a hotkey were pressed. `activationToken` may be empty.
    void activated(const QString &id, const QString &activationToken);
    /// Emitted when the portal has closed the session.
    void closed();

private Q_SLOTS:
    void handleActivated(const QDBusMessage &message);
    void handleShortcutsChanged(const QDBusMessage &message);
    void handleClosed();

private:
    PortalRequest *request(const QString &method, const QVariantList &arguments,
                           const QVariantMap &options = {});
    void bind(const QVariantMap &session);
    void listen(const QString &path);
    bool concerns(const QDBusMessage &message, QLatin1String signature) const;

    QDBusConnection mBus;
    const QString mPortal;
    const QList<PortalShortcut> mShortcuts;
    QString mPath; // of the session object
};
