#include "GlobalShortcutRegistry_p.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace {

// A raw pointer: hotkeys that are static objects of the host may be destroyed after all static
// objects of this library.
GlobalShortcutRegistry *sInstance = nullptr;

} // namespace

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
    QObject::disconnect(mApplicationGone);
}

bool GlobalShortcutRegistry::isSupported()
{
    return backend().isSupported();
}

void GlobalShortcutRegistry::add(int chord, User *user)
{
    Entry &entry = mEntries[chord];
    entry.users.append(user);
    if (!entry.held.isEmpty())
        return;
    take(chord, entry);
    if (!entry.held.isEmpty())
        announce(entry, user);
}

void GlobalShortcutRegistry::remove(int chord, User *user)
{
    const auto found = mEntries.find(chord);
    if (found == mEntries.end())
        return;
    Entry &entry = found->second;
    entry.users.removeOne(user);
    if (!entry.users.isEmpty())
        return;
    giveBack(entry);
    mEntries.erase(found);
}

bool GlobalShortcutRegistry::isRegistered(int chord) const
{
    const auto found = mEntries.find(chord);
    return found != mEntries.end() && !found->second.held.isEmpty();
}

void GlobalShortcutRegistry::keyPressed(quint32 key, quint32 modifiers)
{
    const auto isPressed = [=](const KeyCombination &held) { return held.matches(key, modifiers); };
    for (const auto &[chord, entry] : mEntries) {
        if (!std::any_of(entry.held.cbegin(), entry.held.cend(), isPressed))
            continue;
        // Queued, so that a receiver may delete anything, and so that a deleted user is not called.
        for (User *user : entry.users) {
            const auto tell = [user, pressed = chord] { user->pressed(pressed); };
            QMetaObject::invokeMethod(user, tell, Qt::QueuedConnection);
        }
    }
}

void GlobalShortcutRegistry::keyboardChanged()
{
    std::map<int, bool> before;
    // First release all outdated combinations: the new ones may overlap them.
    for (auto &[chord, entry] : mEntries) {
        before[chord] = !entry.held.isEmpty();
        if (entry.held != backend().combinations(chord))
            giveBack(entry);
    }
    for (auto &[chord, entry] : mEntries) {
        if (entry.held.isEmpty())
            take(chord, entry);
        if (before[chord] == entry.held.isEmpty())
            announce(entry);
    }
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
    mBackend = GlobalShortcutBackend::create(*this);
    return *mBackend;
}

void GlobalShortcutRegistry::applicationGone()
{
    QObject::disconnect(mApplicationGone);
    for (auto &[chord, entry] : mEntries)
        giveBack(entry);
    mBackend.reset();
}

// Different chords may need the same combination, for example "Ctrl+!" and "Ctrl+Shift+1".
bool GlobalShortcutRegistry::isHeld(const KeyCombination &combination) const
{
    return std::any_of(mEntries.cbegin(), mEntries.cend(), [&combination](const auto &item) {
        return item.second.held.contains(combination);
    });
}

void GlobalShortcutRegistry::take(int chord, Entry &entry)
{
    const QVector<KeyCombination> wanted = backend().combinations(chord);
    for (const KeyCombination &combination : wanted) {
        if (!isHeld(combination) && !backend().grab(combination)) {
            giveBack(entry);
            return;
        }
        entry.held.append(combination);
    }
}

void GlobalShortcutRegistry::giveBack(Entry &entry)
{
    const QVector<KeyCombination> given = std::exchange(entry.held, {});
    for (const KeyCombination &combination : given) {
        if (!isHeld(combination))
            backend().ungrab(combination);
    }
}

void GlobalShortcutRegistry::announce(const Entry &entry, const User *except)
{
    for (User *user : entry.users) {
        if (user != except)
            QMetaObject::invokeMethod(
                user, [user] { user->registrationChanged(); }, Qt::QueuedConnection);
    }
}
