#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QLatin1String>

/// Names of the desktop portal on the bus.
namespace PortalNames {

constexpr QLatin1String sService("org.freedesktop.portal.Desktop");
constexpr QLatin1String sPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String sShortcuts("org.freedesktop.portal.GlobalShortcuts");
constexpr QLatin1String sRequest("org.freedesktop.portal.Request");
constexpr QLatin1String sSession("org.freedesktop.portal.Session");
constexpr QLatin1String sRegistry("org.freedesktop.host.portal.Registry");

/// Returns a call of the portal with the bus name `service`.
inline QDBusMessage call(const QString &service, QLatin1String interface, const QString &method)
{
    return QDBusMessage::createMethodCall(service, sPath, interface, method);
}

/// Returns a token, the last part of an object's path, that the process has not used yet.
inline QString newToken()
{
    static quint64 sCount = 0;
    return QStringLiteral("malto%1").arg(++sCount);
}

/// Returns the path of an object that the portal makes for this connection; `kind` is "request" or
/// "session".
inline QString objectPath(const QDBusConnection &bus, QLatin1String kind, const QString &token)
{
    QString sender = bus.baseService().mid(1); // without the colon
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("%1/%2/%3/%4").arg(sPath, kind, sender, token);
}

} // namespace PortalNames
