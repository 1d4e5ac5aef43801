#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

/// A hotkey as the desktop portal transmits it.
struct PortalShortcut
{
    QString id;
    QVariantMap properties; ///< description, preferred_trigger; in answers trigger_description

    /// Returns the hotkeys of an answer; empty if `argument` has another type.
    static QList<PortalShortcut> listFrom(const QVariant &argument)
    {
        const auto list = argument.value<QDBusArgument>();
        // Qt does not check the types.
        return list.currentSignature() == QLatin1String("a(sa{sv})")
                   ? qdbus_cast<QList<PortalShortcut>>(list)
                   : QList<PortalShortcut>();
    }
};
Q_DECLARE_METATYPE(PortalShortcut)

inline QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}
