#include "PortalRequest_p.h"

#include "PortalNames_p.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusPendingReply>

PortalRequest::PortalRequest(const QDBusConnection &bus, const QString &portal,
                             const QString &method, const QVariantList &arguments,
                             QVariantMap options, QObject *parent)
    : QObject(parent), mBus(bus), mPortal(portal)
{
    const QString token = PortalNames::newToken();
    options.insert(QStringLiteral("handle_token"), token);
    // Listen before the call: the response may be faster than the reply.
    listen(PortalNames::objectPath(mBus, QLatin1String("request"), token));
    auto call = PortalNames::call(mPortal, PortalNames::sShortcuts, method);
    call.setArguments(arguments + QVariantList{options});
    auto *watcher = new QDBusPendingCallWatcher(mBus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        handleReply(*watcher);
    });
}

PortalRequest::~PortalRequest()
{
    if (mPath.isEmpty())
        return;
    mBus.send(QDBusMessage::createMethodCall(mPortal, mPath, PortalNames::sRequest,
                                             QStringLiteral("Close")));
    unlisten();
}

bool PortalRequest::listen(const QString &path)
{
    mPath = path;
    return mBus.connect(mPortal, mPath, PortalNames::sRequest, QStringLiteral("Response"), this,
                        SLOT(handleResponse(QDBusMessage)));
}

void PortalRequest::unlisten()
{
    mBus.disconnect(mPortal, mPath, PortalNames::sRequest, QStringLiteral("Response"), this,
                    SLOT(handleResponse(QDBusMessage)));
    mPath.clear();
}

void PortalRequest::handleReply(QDBusPendingCallWatcher &call)
{
    if (mPath.isEmpty())
        return;
    const QDBusPendingReply<QDBusObjectPath> reply = call;
    if (reply.isError()) {
        fail(reply.error().message());
        return;
    }
    const QString path = reply.value().path();
    if (path == mPath)
        return;
    // Portals that do not know the token choose the path themselves.
    unlisten();
    listen(path);
}

void PortalRequest::handleResponse(const QDBusMessage &message)
{
    if (mPath.isEmpty())
        return;
    if (message.signature() != QLatin1String("ua{sv}")) {
        fail(QStringLiteral("response of the wrong type"));
        return;
    }
    unlisten();
    const uint code = message.arguments().at(0).toUInt();
    const auto results = qdbus_cast<QVariantMap>(message.arguments().at(1));
    Q_EMIT responded(code <= Ended ? static_cast<Response>(code) : Ended, results);
}

void PortalRequest::fail(const QString &reason)
{
    unlisten();
    Q_EMIT failed(reason);
}
