#include "FakePortal.h"

#include <PortalNames_p.h>

#include <QDBusMetaType>
#include <QDBusObjectPath>

FakePortal::FakePortal(const PrivateBus &bus) : mPrivateBus(bus), mBus(QString())
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
}

FakePortal::~FakePortal()
{
    crash();
}

void FakePortal::start()
{
    mBus = mPrivateBus.connect();
    mBus.registerVirtualObject(PortalNames::sPath, this, QDBusConnection::SubPath);
    mBus.registerService(PortalNames::sService);
}

void FakePortal::crash()
{
    const QString name = mBus.name();
    mBus.unregisterObject(PortalNames::sPath, QDBusConnection::UnregisterTree);
    mBus = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

QStringList FakePortal::boundIds() const
{
    QStringList ids;
    for (const PortalShortcut &shortcut : bound)
        ids.append(shortcut.id);
    return ids;
}

// The last argument of each method is its options.
QString FakePortal::pathOf(const QDBusMessage &call) const
{
    const auto options = qdbus_cast<QVariantMap>(call.arguments().last());
    const QString token = ignoresTokens ? QStringLiteral("own")
                                        : options["handle_token"].toString();
    return QString("%1/request/%2/%3")
        .arg(PortalNames::sPath, call.service().mid(1).replace('.', '_'), token);
}

void FakePortal::send(const QDBusMessage &message)
{
    mBus.send(message);
}

void FakePortal::reply(const QDBusMessage &call)
{
    replyWith(call, {QVariant::fromValue(QDBusObjectPath(pathOf(call)))});
}

void FakePortal::replyWith(const QDBusMessage &call, const QVariantList &arguments)
{
    send(call.createReply(arguments));
}

void FakePortal::respond(const QDBusMessage &call, uint code, const QVariantMap &results)
{
    respondWith(call, {code, results});
}

void FakePortal::respondWith(const QDBusMessage &call, const QVariantList &arguments)
{
    auto signal = QDBusMessage::createTargetedSignal(call.service(), pathOf(call),
                                                     PortalNames::sRequest, "Response");
    signal.setArguments(arguments);
    send(signal);
}

void FakePortal::emitSignal(const QString &name, const QVariantList &arguments)
{
    auto signal = QDBusMessage::createTargetedSignal(mProgram, PortalNames::sPath,
                                                     PortalNames::sShortcuts, name);
    signal.setArguments(arguments);
    send(signal);
}

void FakePortal::activate(const QString &id, const QVariantMap &options)
{
    emitSignal("Activated", {QVariant::fromValue(QDBusObjectPath(mSession)), id,
                             QVariant::fromValue(quint64(1)), options});
}

void FakePortal::closeSession()
{
    auto signal = QDBusMessage::createTargetedSignal(mProgram, mSession, PortalNames::sSession,
                                                     "Closed");
    signal.setArguments({QVariantMap()});
    send(signal);
}

QVariantMap FakePortal::results(const QList<PortalShortcut> &shortcuts)
{
    return {{"shortcuts", QVariant::fromValue(shortcuts)}};
}

QList<PortalShortcut> FakePortal::granted(const QString &trigger) const
{
    QList<PortalShortcut> shortcuts;
    for (const PortalShortcut &shortcut : bound)
        shortcuts.append({shortcut.id, {{"trigger_description", trigger}}});
    return shortcuts;
}

void FakePortal::hold(const QDBusMessage &call)
{
    reply(call);
    unfinished.append(call);
}

void FakePortal::create(const QDBusMessage &call)
{
    const auto options = qdbus_cast<QVariantMap>(call.arguments().last());
    mSession = QString("%1/session/%2/%3")
                   .arg(PortalNames::sPath, call.service().mid(1).replace('.', '_'),
                        options["session_handle_token"].toString());
    if (needsId && applicationId.isEmpty()) {
        send(call.createErrorReply("org.freedesktop.portal.Error.NotAllowed",
                                   "An app id is required"));
    } else if (onCreate) {
        onCreate(call);
    } else {
        reply(call);
        respond(call, 0, {{"session_handle", mSession}});
    }
}

void FakePortal::bind(const QDBusMessage &call)
{
    bound = PortalShortcut::listFrom(call.arguments().at(1));
    if (onBind) {
        onBind(call);
    } else {
        reply(call);
        respond(call, 0, results(granted("Granted keys")));
    }
}

bool FakePortal::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    const QString method = message.member();
    calls.append(method);
    mProgram = message.service();
    if (method == answersUntil) {
        message.setDelayedReply(true);
    } else if (method == "Register" && hasRegistry) {
        applicationId = message.arguments().value(0).toString();
        send(message.createReply());
    } else if (method == "Get" && hasShortcuts) {
        send(message.createReply(QVariant::fromValue(QDBusVariant(2U))));
    } else if (method == "CreateSession" && hasShortcuts) {
        create(message);
    } else if (method == "BindShortcuts" && hasShortcuts) {
        bind(message);
    } else if (method == "Close") {
        send(message.createReply());
    } else {
        return false;
    }
    return true;
}
