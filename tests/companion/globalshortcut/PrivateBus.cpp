#include "PrivateBus.h"

#include <QDBusMessage>
#include <QDir>
#include <QFile>

namespace {

const char *const sConfiguration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <auth>EXTERNAL</auth>
  <servicedir>%1/services</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
  <limit name="max_message_size">1000000000</limit>
</busconfig>
)";

void write(const QString &path, const QString &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

PrivateBus::PrivateBus()
{
    QDir(mFolder.path()).mkdir("services");
    const QString configuration = mFolder.filePath("bus.conf");
    write(configuration, QString(sConfiguration).arg(mFolder.path()));
    mDaemon.setStandardErrorFile(QProcess::nullDevice()); // and that of the services
    mDaemon.setProcessEnvironment(environment());
    mDaemon.start("dbus-daemon", {"--config-file=" + configuration, "--nofork", "--print-address"});
    while (!mDaemon.canReadLine() && mDaemon.waitForReadyRead())
        continue;
    mAddress = QString::fromUtf8(mDaemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus()
{
    stop();
}

QDBusConnection PrivateBus::connect() const
{
    static int sCount = 0;
    return QDBusConnection::connectToBus(mAddress, QString("private bus %1").arg(++sCount));
}

void PrivateBus::stop()
{
    mDaemon.kill();
    mDaemon.waitForFinished();
}

void PrivateBus::addService(const QString &name, const QString &command)
{
    write(mFolder.filePath("services/" + name + ".service"),
          QString("[D-BUS Service]\nName=%1\nExec=%2\n").arg(name, command));
    auto bus = connect();
    bus.call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/", "org.freedesktop.DBus",
                                            "ReloadConfig"));
    QDBusConnection::disconnectFromBus(bus.name());
}

QProcessEnvironment PrivateBus::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + mFolder.filePath("bus"));
    environment.insert("XDG_RUNTIME_DIR", mFolder.path());
    environment.insert("HOME", mFolder.path());
    return environment;
}
