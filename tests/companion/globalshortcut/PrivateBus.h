#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

/// A message bus of the test's own, on which no service of the computer can be started.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    Q_DISABLE_COPY(PrivateBus)

    /// Returns the address; empty if dbus-daemon did not start.
    QString address() const { return mAddress; }
    /// Returns a new connection; the caller ends it with QDBusConnection::disconnectFromBus.
    QDBusConnection connect() const;
    /// Ends the bus, and with it all connections.
    void stop();
    /// Lets the bus start `command` when the service `name` is called.
    void addService(const QString &name, const QString &command);
    /// Returns an environment in which this bus is the session bus.
    QProcessEnvironment environment() const;

private:
    QTemporaryDir mFolder;
    QProcess mDaemon;
    QString mAddress;
};
