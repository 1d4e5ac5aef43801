#include "PortalWatcher_p.h"

#include "PortalNames_p.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <QFileInfo>
#include <QGuiApplication>
#include <QVariantMap>

#include <algorithm>
#include <utility>

PortalWatcher::PortalWatcher(const QDBusConnection &bus) : mBus(bus)
{
    const auto *owner = new QDBusServiceWatcher(PortalNames::sService, mBus,
                                                QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this, &PortalWatcher::handleOwner);
    // The bus library itself reports the end of the connection, as a signal of this object.
    mBus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                 QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                 SLOT(handleDisconnected()));
    look();
}

QString PortalWatcher::applicationId()
{
    QString id = QGuiApplication::desktopFileName();
    const QString suffix = QStringLiteral(".desktop");
    if (id.endsWith(suffix))
        id.chop(suffix.size());
    if (!id.isEmpty())
        return id;
    QStringList parts = QCoreApplication::organizationDomain().split(QLatin1Char('.'),
                                                                     Qt::SkipEmptyParts);
    std::reverse(parts.begin(), parts.end());
    parts.append(QFileInfo(QCoreApplication::applicationFilePath()).baseName());
    return parts.join(QLatin1Char('.'));
}

void PortalWatcher::look()
{
    introduce(++mSearch);
}

// Portals give hotkeys only to programs that they know. They must be told before the first request;
// older portals lack this interface, so the answer does not matter.
void PortalWatcher::introduce(int search)
{
    QDBusMessage call = PortalNames::call(PortalNames::sService, PortalNames::sRegistry,
                                          QStringLiteral("Register"));
    call.setArguments({applicationId(), QVariantMap()});
    auto *watcher = new QDBusPendingCallWatcher(mBus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, search] {
        watcher->deleteLater();
        if (search == mSearch)
            askForVersion(search);
    });
}

void PortalWatcher::askForVersion(int search)
{
    QDBusMessage call = PortalNames::call(PortalNames::sService,
                                          QLatin1String("org.freedesktop.DBus.Properties"),
                                          QStringLiteral("Get"));
    call.setArguments({QString(PortalNames::sShortcuts), QStringLiteral("version")});
    auto *watcher = new QDBusPendingCallWatcher(mBus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, search] {
        watcher->deleteLater();
        if (search == mSearch)
            conclude(watcher->reply());
    });
}

void PortalWatcher::conclude(const QDBusMessage &answer)
{
    if (answer.type() == QDBusMessage::ReplyMessage) {
        mPortal = answer.service();
        Q_EMIT found(mPortal);
    } else {
        Q_EMIT missing();
    }
}

void PortalWatcher::handleOwner(const QString &, const QString &before, const QString &now)
{
    const bool isLost = !mPortal.isEmpty() && before == mPortal;
    if (isLost) {
        mPortal.clear();
        Q_EMIT lost();
    }
    if (!now.isEmpty() && now != mPortal)
        look();
}

void PortalWatcher::handleDisconnected()
{
    ++mSearch;
    mPortal.clear();
    Q_EMIT missing();
}
