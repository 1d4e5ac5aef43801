#include "FakeDesktop.h"

#include <PortalNames_p.h>

#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QFile>

#include <csignal>

namespace {

const QString sName = QStringLiteral("org.freedesktop.impl.portal.desktop.test");
const QString sInterface = QStringLiteral("org.freedesktop.impl.portal.GlobalShortcuts");

} // namespace

FakeDesktop::FakeDesktop(PrivateBus &bus) : mPrivateBus(bus), mBus(QString())
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    QFile description(mPortals.filePath("test.portal"));
    if (!description.open(QIODevice::WriteOnly))
        qFatal("no temporary folder");
    description.write(QString("[portal]\nDBusName=%1\nInterfaces=%2\nUseIn=test\n")
                          .arg(sName, sInterface)
                          .toUtf8());
    bus.addService(PortalNames::sService,
                   QString("/usr/bin/env XDG_CURRENT_DESKTOP=test XDG_DESKTOP_PORTAL_DIR=%1 %2")
                       .arg(mPortals.path(), XDG_DESKTOP_PORTAL));
}

FakeDesktop::~FakeDesktop()
{
    killPortal();
    crash();
}

void FakeDesktop::hideHotkeys()
{
    QFile::remove(mPortals.filePath("test.portal"));
}

void FakeDesktop::start()
{
    mBus = mPrivateBus.connect();
    mBus.registerVirtualObject(PortalNames::sPath, this, QDBusConnection::SubPath);
    mBus.registerService(sName);
}

void FakeDesktop::crash()
{
    const QString name = mBus.name();
    mBus.unregisterObject(PortalNames::sPath, QDBusConnection::UnregisterTree);
    mBus = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(name);
}

void FakeDesktop::killPortal()
{
    if (!mBus.isConnected())
        return;
    const QDBusReply<uint> process = mBus.interface()->servicePid(PortalNames::sService);
    if (process.isValid())
        ::kill(static_cast<pid_t>(process.value()), SIGKILL);
}

QStringList FakeDesktop::boundIds() const
{
    QStringList ids;
    for (const PortalShortcut &shortcut : bound)
        ids.append(shortcut.id);
    return ids;
}

void FakeDesktop::accept()
{
    answer(mDialog, 0);
}

void FakeDesktop::answer(const QDBusMessage &call, uint code)
{
    QList<PortalShortcut> granted;
    for (const PortalShortcut &shortcut : std::as_const(bound))
        granted.append({shortcut.id, {{"trigger_description", trigger}}});
    mBus.send(call.createReply({code, QVariantMap{{"shortcuts", QVariant::fromValue(granted)}}}));
}

void FakeDesktop::emitSignal(const QString &name, const QVariantList &arguments)
{
    auto signal = QDBusMessage::createSignal(PortalNames::sPath, sInterface, name);
    signal.setArguments(QVariantList{QVariant::fromValue(QDBusObjectPath(session))} + arguments);
    mBus.send(signal);
}

void FakeDesktop::activate(const QString &id, const QVariantMap &options)
{
    emitSignal("Activated", {id, QVariant::fromValue(quint64(1)), options});
}

void FakeDesktop::changeKeys(const QString &id, const QString &keys)
{
    const QList<PortalShortcut> shortcuts{{id, {{"trigger_description", keys}}}};
    emitSignal("ShortcutsChanged", {QVariant::fromValue(shortcuts)});
}

void FakeDesktop::closeSession()
{
    mBus.send(QDBusMessage::createSignal(session, "org.freedesktop.impl.portal.Session", "Closed"));
}

bool FakeDesktop::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    const QString method = message.member();
    calls.append(method);
    if (method == "GetAll") {
        mBus.send(message.createReply(QVariantMap{{"version", 1U}}));
    } else if (method == "CreateSession") {
        session = message.arguments().at(1).value<QDBusObjectPath>().path();
        mBus.send(message.createReply({0U, QVariantMap()}));
    } else if (method == "BindShortcuts") {
        bound = PortalShortcut::listFrom(message.arguments().at(2));
        if (user == User::Waits) {
            message.setDelayedReply(true);
            mDialog = message;
        } else {
            answer(message, user == User::Accepts ? 0 : 1);
        }
    } else if (method == "Close") {
        mBus.send(message.createReply());
    } else {
        return false;
    }
    return true;
}
