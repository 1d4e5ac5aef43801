#include "GlobalShortcutRegistry_p.h"

#include <QDynamicPropertyChangeEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QScopedValueRollback>
#include <QVariant>
#include <QWindow>

#include <functional>
#include <utility>

namespace {

// A raw pointer: hotkeys that are static objects of the host may be destroyed after all static
// objects of this library.
GlobalShortcutRegistry *sInstance = nullptr;

constexpr const char *sRecords = "recordsHotkeys"; // property of a focus object

} // namespace

/// Tells that the focus object begins or ends to record without a change of the focus.
class GlobalShortcutRegistry::RecordingWatch : public QObject
{
public:
    using Changed = std::function<void(QObject *focus)>;

    explicit RecordingWatch(Changed changed) : mChanged(std::move(changed)) {}

    /// Watches `focus` instead of the former object; null is allowed.
    void watch(QObject *focus)
    {
        if (mFocus == focus)
            return;
        if (mFocus)
            mFocus->removeEventFilter(this);
        mFocus = focus;
        if (focus)
            focus->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange
            && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == sRecords)
            mChanged(watched);
        return false;
    }

private:
    const Changed mChanged;
    QPointer<QObject> mFocus;
};

GlobalShortcutRegistry::GlobalShortcutRegistry() = default;

std::shared_ptr<GlobalShortcutRegistry> GlobalShortcutRegistry::instance()
{
    if (sInstance)
        return sInstance->shared_from_this();
    const auto registry = std::make_shared<GlobalShortcutRegistry>();
    sInstance = registry.get();
    return registry;
}

GlobalShortcutRegistry::~GlobalShortcutRegistry()
{
    sInstance = nullptr;
    disconnect();
}

bool GlobalShortcutRegistry::isSupported()
{
    return backend().isSupported();
}

QString GlobalShortcutRegistry::add(const GlobalShortcutBackend::Action &action, User *user)
{
    GlobalShortcutBackend &system = backend();
    GlobalShortcutBackend::Action unique = action;
    while (mEntries.count(unique.id) > 0)
        unique.id = action.id + QLatin1Char('-') + QString::number(++mDuplicates);
    mEntries[unique.id] = {unique, {}, user};
    const QScopedValueRollback<const User *> caller(mCaller, user);
    system.add(unique);
    return unique.id;
}

void GlobalShortcutRegistry::change(const GlobalShortcutBackend::Action &action)
{
    GlobalShortcutBackend &system = backend();
    Entry &entry = mEntries[action.id];
    if (entry.action.chord != action.chord)
        entry.result = {};
    entry.action = action;
    const QScopedValueRollback<const User *> caller(mCaller, entry.user);
    system.change(action);
}

void GlobalShortcutRegistry::remove(const QString &id)
{
    mEntries.erase(id);
    if (mBackend)
        mBackend->remove(id);
}

GlobalShortcutBackend::Result GlobalShortcutRegistry::result(const QString &id) const
{
    const auto found = mEntries.find(id);
    return found == mEntries.end() ? GlobalShortcutBackend::Result() : found->second.result;
}

void GlobalShortcutRegistry::resultChanged(const QString &id,
                                           const GlobalShortcutBackend::Result &result)
{
    const auto found = mEntries.find(id);
    if (found == mEntries.end())
        return;
    found->second.result = result;
    User *const user = found->second.user;
    if (user != mCaller)
        QMetaObject::invokeMethod(
            user, [user] { user->resultChanged(); }, Qt::QueuedConnection);
}

void GlobalShortcutRegistry::activated(const QString &id, const QString &activationToken)
{
    const auto found = mEntries.find(id);
    if (found == mEntries.end())
        return;
    // Queued, so that a receiver may delete anything, and so that a deleted user is not called.
    User *const user = found->second.user;
    const int chord = found->second.action.chord;
    QMetaObject::invokeMethod(
        user, [=] { user->pressed(chord, activationToken); }, Qt::QueuedConnection);
}

GlobalShortcutBackend &GlobalShortcutRegistry::backend()
{
    if (mBackend)
        return *mBackend;
    // Not stored in mBackend: the application may be created later.
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return mNoBackend;
    mApplicationGone = QObject::connect(qApp, &QObject::destroyed, qApp,
                                        [this] { applicationGone(); });
    mFocusChanged = QObject::connect(qApp, &QGuiApplication::focusObjectChanged, qApp,
                                     [this](QObject *focus) { focusChanged(focus); });
    mWatch = std::make_unique<RecordingWatch>([this](QObject *focus) { focusChanged(focus); });
    mBackend = GlobalShortcutBackend::create(*this);
    focusChanged(QGuiApplication::focusObject());
    // What was requested with an earlier application object, or without one for windows.
    for (const auto &[id, entry] : mEntries)
        mBackend->add(entry.action);
    return *mBackend;
}

void GlobalShortcutRegistry::focusChanged(QObject *focus)
{
    QObject::disconnect(mWindowChanged);
    mWatch->watch(focus);
    const bool isRecording = focus && focus->property(sRecords).toBool();
    // Qt 6 does not tell that a window loses the focus because it is closed.
    if (const QWindow *window = QGuiApplication::focusWindow(); window && isRecording)
        mWindowChanged = QObject::connect(window, &QWindow::visibleChanged, qApp,
                                          [this](bool isVisible) { windowChanged(isVisible); });
    mBackend->suspend(isRecording);
}

// A window that is shown again need not get the focus.
void GlobalShortcutRegistry::windowChanged(bool isVisible)
{
    mWatch->watch(nullptr);
    if (isVisible)
        focusChanged(QGuiApplication::focusObject());
    else
        mBackend->suspend(false);
}

void GlobalShortcutRegistry::applicationGone()
{
    disconnect();
    mBackend.reset();
    for (auto &[id, entry] : mEntries)
        entry.result = {QxtGlobalShortcut::NoBackend, QString()};
}

void GlobalShortcutRegistry::disconnect()
{
    for (const auto &connection : {mFocusChanged, mWindowChanged, mApplicationGone})
        QObject::disconnect(connection);
    mWatch.reset();
}
