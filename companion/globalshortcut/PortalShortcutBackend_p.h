#pragma once

#include "GlobalShortcutBackend_p.h"
#include "PortalShortcut_p.h"
#include "PortalWatcher_p.h"

#include <QDBusConnection>
#include <QMap>
#include <QObject>
#include <QTimer>

#include <memory>

class PortalSession;

/// Registers hotkeys with the desktop, through the interface GlobalShortcuts of its portal on the
/// session bus: the only way on Wayland. The desktop asks the user, who may choose other keys.
///
/// A session of the portal binds hotkeys once. So all actions are bound in a new session after a
/// change, once for all changes of one turn of the event loop.
class PortalShortcutBackend : public GlobalShortcutBackend
{
public:
    /// Uses a connection to the session bus of its own: the portal must learn the id of the program
    /// before any other call, and Qt may have called it with the shared connection.
    static QDBusConnection connectToSessionBus();

    /// Ends the connection `bus` at the end.
    PortalShortcutBackend(Listener &listener, const QDBusConnection &bus);
    ~PortalShortcutBackend() override;
    Q_DISABLE_COPY(PortalShortcutBackend)

    /// True until the portal turns out to be missing, and again when one is started.
    bool isSupported() const override { return mState != State::Missing; }
    void add(const Action &action) override;
    void change(const Action &action) override;
    void remove(const QString &id) override;
    void suspend(bool suspended) override { mSuspended = suspended; }

private:
    enum class State { Searching, Found, Missing };

    struct Entry
    {
        Action action;
        Result result;
    };

    void bindLater();
    void bind();
    void closeSessions();
    void handleFound(const QString &portal);
    void handleLost();
    void handleMissing();
    void handleBound(const QList<PortalShortcut> &shortcuts);
    void handleChanged(const QList<PortalShortcut> &shortcuts);
    void handleActivated(const QString &id, const QString &activationToken);
    void refuse();
    void setResult(const QString &id, const Result &result);
    void setAll(QxtGlobalShortcut::Failure failure);

    Listener &mListener;
    const QString mBusName;
    QMap<QString, Entry> mEntries;
    State mState = State::Searching;
    bool mSuspended = false;
    bool mWasBound = false; // by the portal that was found last
    QString mPortal;        // unique bus name
    std::unique_ptr<PortalWatcher> mWatcher;
    QTimer mBinding;                   // and the owner of the sessions
    PortalSession *mSession = nullptr; // that is used; null before it is created and after its end
};
