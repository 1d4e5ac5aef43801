#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariant>

class QDBusMessage;
class QDBusPendingCallWatcher;

/// One call of a method of the desktop portal that answers later, with the signal Response of a
/// request object. Never blocks. Deleting an unfinished request closes it, and with it a dialog
/// that the desktop shows.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    /// Response codes of the portal. Other codes are treated as Ended.
    enum Response { Success = 0, Cancelled = 1, Ended = 2 };

    /// Calls `method` of the interface GlobalShortcuts of the portal, which has the unique bus name
    /// `portal`. `options` is the last argument; its handle_token is set here.
    PortalRequest(const QDBusConnection &bus, const QString &portal, const QString &method,
                  const QVariantList &arguments, QVariantMap options, QObject *parent);
    ~PortalRequest() override;

Q_SIGNALS:
    /// Emitted at most once, and never together with `failed`.
    void responded(PortalRequest::Response response, const QVariantMap &results);
    /// Emitted at most once, if the portal rejected the call or broke the protocol.
    void failed(const QString &reason);

private Q_SLOTS:
    void handleResponse(const QDBusMessage &message);

private:
    void handleReply(QDBusPendingCallWatcher &call);
    bool listen(const QString &path);
    void unlisten();
    void fail(const QString &reason);

    QDBusConnection mBus;
    const QString mPortal;
    QString mPath; // of the request object; empty after the response
};
