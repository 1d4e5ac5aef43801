#include "PortalSession_p.h"

#include "PortalNames_p.h"
#include "PortalRequest_p.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace {

/// Returns the object path in `value`, or an empty string: the documented type is a path, portals
/// send a string.
QString pathFrom(const QVariant &value)
{
    const auto path = value.value<QDBusObjectPath>().path();
    const QString text = path.isEmpty() ? value.toString() : path;
    return text.startsWith(QLatin1Char('/')) ? text : QString();
}

} // namespace

PortalSession::PortalSession(const QDBusConnection &bus, const QString &portal,
                             const QList<PortalShortcut> &shortcuts, QObject *parent)
    : QObject(parent), mBus(bus), mPortal(portal), mShortcuts(shortcuts)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    mBus.connect(mPortal, PortalNames::sPath, PortalNames::sShortcuts, QStringLiteral("Activated"),
                 this, SLOT(handleActivated(QDBusMessage)));
    mBus.connect(mPortal, PortalNames::sPath, PortalNames::sShortcuts,
                 QStringLiteral("ShortcutsChanged"), this,
                 SLOT(handleShortcutsChanged(QDBusMessage)));
    const QString token = PortalNames::newToken();
    listen(PortalNames::objectPath(mBus, QLatin1String("session"), token));
    const auto *creation = request(QStringLiteral("CreateSession"), {},
                                   {{QStringLiteral("session_handle_token"), token}});
    connect(creation, &PortalRequest::responded, this,
            [this](PortalRequest::Response response, const QVariantMap &results) {
                if (response == PortalRequest::Success)
                    bind(results);
                else
                    Q_EMIT refused();
            });
}

PortalSession::~PortalSession()
{
    // First the dialog, then what it is about.
    qDeleteAll(findChildren<PortalRequest *>());
    mBus.send(QDBusMessage::createMethodCall(mPortal, mPath, PortalNames::sSession,
                                             QStringLiteral("Close")));
}

PortalRequest *PortalSession::request(const QString &method, const QVariantList &arguments,
                                      const QVariantMap &options)
{
    auto *request = new PortalRequest(mBus, mPortal, method, arguments, options, this);
    connect(request, &PortalRequest::responded, request, &QObject::deleteLater);
    connect(request, &PortalRequest::failed, request, &QObject::deleteLater);
    connect(request, &PortalRequest::failed, this, &PortalSession::failed);
    return request;
}

void PortalSession::bind(const QVariantMap &session)
{
    const QString path = pathFrom(session.value(QStringLiteral("session_handle")));
    if (path.isEmpty()) {
        Q_EMIT failed(QStringLiteral("no session"));
        return;
    }
    if (path != mPath)
        listen(path);
    const QString noParentWindow;
    const auto *binding = request(QStringLiteral("BindShortcuts"),
                                  {QVariant::fromValue(QDBusObjectPath(mPath)),
                                   QVariant::fromValue(mShortcuts), noParentWindow});
    connect(binding, &PortalRequest::responded, this,
            [this](PortalRequest::Response response, const QVariantMap &results) {
                if (response == PortalRequest::Success)
                    Q_EMIT bound(
                        PortalShortcut::listFrom(results.value(QStringLiteral("shortcuts"))));
                else
                    Q_EMIT refused();
            });
}

void PortalSession::listen(const QString &path)
{
    mPath = path;
    mBus.connect(mPortal, mPath, PortalNames::sSession, QStringLiteral("Closed"), this,
                 SLOT(handleClosed()));
}

// Signals of the portal may belong to another session of the program.
bool PortalSession::concerns(const QDBusMessage &message, QLatin1String signature) const
{
    return message.signature() == signature && pathFrom(message.arguments().at(0)) == mPath;
}

void PortalSession::handleActivated(const QDBusMessage &message)
{
    if (!concerns(message, QLatin1String("osta{sv}")))
        return;
    const auto options = qdbus_cast<QVariantMap>(message.arguments().at(3));
    Q_EMIT activated(message.arguments().at(1).toString(),
                     options.value(QStringLiteral("activation_token")).toString());
}

void PortalSession::handleShortcutsChanged(const QDBusMessage &message)
{
    if (concerns(message, QLatin1String("oa(sa{sv})")))
        Q_EMIT changed(PortalShortcut::listFrom(message.arguments().at(1)));
}

void PortalSession::handleClosed()
{
    Q_EMIT closed();
}
