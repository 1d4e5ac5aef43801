#include "PortalShortcutBackend_p.h"

#include "PortalSession_p.h"
#include "PortalTrigger_p.h"

#include <QDebug>
#include <QKeySequence>

#include <utility>

namespace {

using Failure = QxtGlobalShortcut::Failure;

PortalShortcut shortcutFor(const GlobalShortcutBackend::Action &action)
{
    // Desktops list the hotkeys by their descriptions.
    const QString description = action.description.isEmpty()
                                    ? QKeySequence(action.chord).toString(QKeySequence::NativeText)
                                    : action.description;
    PortalShortcut shortcut{action.id, {{QStringLiteral("description"), description}}};
    const QString trigger = portalTrigger(action.chord);
    if (!trigger.isEmpty())
        shortcut.properties.insert(QStringLiteral("preferred_trigger"), trigger);
    return shortcut;
}

/// Returns the result of a hotkey that the desktop has accepted.
GlobalShortcutBackend::Result resultOf(const PortalShortcut &shortcut)
{
    const auto trigger = shortcut.properties.constFind(QStringLiteral("trigger_description"));
    const bool isKnown = trigger != shortcut.properties.cend();
    const QString text = isKnown ? trigger->toString() : QString();
    // The desktop knows the action, but no keys activate it.
    if (isKnown && text.isEmpty())
        return {Failure::Refused, {}};
    return {Failure::NoFailure, text};
}

} // namespace

QDBusConnection PortalShortcutBackend::connectToSessionBus()
{
    static quint64 sCount = 0;
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                         QStringLiteral("QxtGlobalShortcut%1").arg(++sCount));
}

PortalShortcutBackend::PortalShortcutBackend(Listener &listener, const QDBusConnection &bus)
    : mListener(listener), mBusName(bus.name()), mWatcher(std::make_unique<PortalWatcher>(bus))
{
    mBinding.setSingleShot(true);
    QObject::connect(&mBinding, &QTimer::timeout, &mBinding, [this] { bind(); });
    QObject::connect(mWatcher.get(), &PortalWatcher::found, &mBinding,
                     [this](const QString &portal) { handleFound(portal); });
    QObject::connect(mWatcher.get(), &PortalWatcher::lost, &mBinding, [this] { handleLost(); });
    QObject::connect(mWatcher.get(), &PortalWatcher::missing, &mBinding,
                     [this] { handleMissing(); });
}

PortalShortcutBackend::~PortalShortcutBackend()
{
    // Qt does not allow that objects are connected to the bus longer.
    closeSessions();
    mWatcher.reset();
    QDBusConnection::disconnectFromBus(mBusName);
}

void PortalShortcutBackend::add(const Action &action)
{
    mEntries.insert(action.id, {action, {}});
    if (mState == State::Missing)
        setResult(action.id, {Failure::NoBackend, {}});
    bindLater();
}

void PortalShortcutBackend::change(const Action &action)
{
    Entry &entry = mEntries[action.id];
    const bool isSame = entry.action.description == action.description
                        && entry.action.chord == action.chord;
    // What is pending is being bound already; the desktop may be asking the user.
    const Failure failure = entry.result.failure;
    if (isSame && (failure == Failure::NoFailure || failure == Failure::Pending))
        return;
    entry.action = action;
    if (mState == State::Missing) // the listener expects an answer
        mListener.resultChanged(action.id, entry.result);
    bindLater();
}

void PortalShortcutBackend::remove(const QString &id)
{
    mEntries.remove(id);
    bindLater();
}

void PortalShortcutBackend::bindLater()
{
    if (mState == State::Found)
        mBinding.start();
}

void PortalShortcutBackend::bind()
{
    closeSessions();
    if (mEntries.isEmpty())
        return;
    QList<PortalShortcut> shortcuts;
    for (const Entry &entry : std::as_const(mEntries))
        shortcuts.append(shortcutFor(entry.action));
    mSession = new PortalSession(QDBusConnection(mBusName), mPortal, shortcuts, &mBinding);
    QObject::connect(mSession, &PortalSession::bound, &mBinding,
                     [this](const QList<PortalShortcut> &bound) { handleBound(bound); });
    QObject::connect(mSession, &PortalSession::changed, &mBinding,
                     [this](const QList<PortalShortcut> &changed) { handleChanged(changed); });
    QObject::connect(
        mSession, &PortalSession::activated, &mBinding,
        [this](const QString &id, const QString &token) { handleActivated(id, token); });
    QObject::connect(mSession, &PortalSession::refused, &mBinding, [this] { refuse(); });
    QObject::connect(mSession, &PortalSession::closed, &mBinding, [this] { refuse(); });
    QObject::connect(mSession, &PortalSession::failed, &mBinding, [this](const QString &reason) {
        qWarning() << "QxtGlobalShortcut the desktop portal rejects the hotkeys: " << reason;
        refuse();
    });
    setAll(Failure::Pending);
}

void PortalShortcutBackend::closeSessions()
{
    mSession = nullptr;
    qDeleteAll(mBinding.findChildren<PortalSession *>());
}

void PortalShortcutBackend::handleFound(const QString &portal)
{
    mState = State::Found;
    mPortal = portal;
    mWasBound = false;
    setAll(Failure::Pending);
    bindLater();
}

void PortalShortcutBackend::handleLost()
{
    closeSessions();
    mBinding.stop();
    // Starts the portal again, but not one that ends before it has answered.
    if (!std::exchange(mWasBound, false)) {
        handleMissing();
        return;
    }
    mState = State::Searching;
    setAll(Failure::Pending);
    mWatcher->look();
}

void PortalShortcutBackend::handleMissing()
{
    closeSessions();
    mBinding.stop();
    mState = State::Missing;
    setAll(Failure::NoBackend);
}

void PortalShortcutBackend::handleBound(const QList<PortalShortcut> &shortcuts)
{
    mWasBound = true;
    if (mBinding.isActive())
        return; // the actions have changed since
    QMap<QString, Result> results;
    for (const PortalShortcut &shortcut : shortcuts)
        results.insert(shortcut.id, resultOf(shortcut));
    const QStringList ids = mEntries.keys();
    for (const QString &id : ids)
        setResult(id, results.value(id, {Failure::Refused, {}}));
}

void PortalShortcutBackend::handleChanged(const QList<PortalShortcut> &shortcuts)
{
    for (const PortalShortcut &shortcut : shortcuts)
        setResult(shortcut.id, resultOf(shortcut));
}

void PortalShortcutBackend::handleActivated(const QString &id, const QString &activationToken)
{
    const auto entry = mEntries.constFind(id);
    if (mSuspended || entry == mEntries.cend())
        return;
    // Some desktops do not tell the keys, or not that the user has chosen some.
    if (entry->result.failure != Failure::NoFailure)
        setResult(id, {Failure::NoFailure, {}});
    mListener.activated(id, activationToken);
}

// Called by the session, so it is deleted later.
void PortalShortcutBackend::refuse()
{
    mSession->disconnect(&mBinding); // not from everything: Qt's bus would not see its end
    std::exchange(mSession, nullptr)->deleteLater();
    if (!mBinding.isActive())
        setAll(Failure::Refused);
}

void PortalShortcutBackend::setResult(const QString &id, const Result &result)
{
    const auto entry = mEntries.find(id);
    if (entry == mEntries.end()
        || (entry->result.failure == result.failure && entry->result.trigger == result.trigger))
        return;
    entry->result = result;
    mListener.resultChanged(id, result);
}

void PortalShortcutBackend::setAll(Failure failure)
{
    const QStringList ids = mEntries.keys();
    for (const QString &id : ids)
        setResult(id, {failure, {}});
}
