#pragma once

#include "PrivateBus.h"

#include <PortalShortcut_p.h>

#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <functional>

/// A desktop portal that does what a test tells it, also what a portal must not do. It can be one
/// of another version than the one of the system.
class FakePortal : public QDBusVirtualObject
{
public:
    /// What a method does.
    using Answer = std::function<void(const QDBusMessage &call)>;

    explicit FakePortal(const PrivateBus &bus);
    ~FakePortal() override;
    Q_DISABLE_COPY(FakePortal)

    /// Takes the name of the portal.
    void start();
    /// Ends the connection, as a portal that crashes.
    void crash();

    bool hasShortcuts = true;   ///< whether there is the interface
    bool hasRegistry = false;   ///< whether programs can register their id
    bool needsId = false;       ///< whether a session needs the id of the program
    bool ignoresTokens = false; ///< whether it chooses the paths of requests itself
    QString answersUntil;       ///< the method that it and later ones are not answered; empty: none
    Answer onCreate;            ///< replaces the answer to CreateSession
    Answer onBind;              ///< replaces the answer to BindShortcuts

    QStringList calls;              ///< the methods called so far
    QString applicationId;          ///< that was registered last
    QList<PortalShortcut> bound;    ///< the argument of the last BindShortcuts
    QList<QDBusMessage> unfinished; ///< calls of BindShortcuts that `hold` has received

    /// Returns the ids in the last BindShortcuts.
    QStringList boundIds() const;
    /// Returns how often a method was called.
    qsizetype count(const QString &method) const { return calls.count(method); }
    /// Returns the path of the last session.
    QString session() const { return mSession; }
    /// Sends the reply of a method that returns a request object.
    void reply(const QDBusMessage &call);
    /// Sends any arguments as the reply of a method.
    void replyWith(const QDBusMessage &call, const QVariantList &arguments);
    /// Sends the response to a call.
    void respond(const QDBusMessage &call, uint code, const QVariantMap &results = {});
    /// Sends any arguments as the response to a call.
    void respondWith(const QDBusMessage &call, const QVariantList &arguments);
    /// Sends a signal of the interface GlobalShortcuts to the program.
    void emitSignal(const QString &name, const QVariantList &arguments);
    /// Sends Activated for a hotkey of the last session.
    void activate(const QString &id, const QVariantMap &options = {});
    /// Sends Closed for the last session.
    void closeSession();
    /// Returns the results of a response with these hotkeys.
    static QVariantMap results(const QList<PortalShortcut> &shortcuts);
    /// Returns the hotkeys of the last BindShortcuts, each with the keys `trigger`.
    QList<PortalShortcut> granted(const QString &trigger) const;
    /// An answer that only replies, and keeps the call in `unfinished`.
    void hold(const QDBusMessage &call);

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return {}; }

private:
    QString pathOf(const QDBusMessage &call) const;
    void create(const QDBusMessage &call);
    void bind(const QDBusMessage &call);
    void send(const QDBusMessage &message);

    const PrivateBus &mPrivateBus;
    QDBusConnection mBus;
    QString mProgram; // unique bus name of the caller
    QString mSession;
    int mSessions = 0;
};
