#pragma once

#include "GlobalShortcutBackend_p.h"
#include "NullShortcutBackend_p.h"

#include <QObject>
#include <QVector>

#include <map>
#include <memory>

/// All requested chords, each registered with the system once. Shared: the last owner deletes it.
/// GUI thread only.
class GlobalShortcutRegistry final : private GlobalShortcutBackend::Listener,
                                     public std::enable_shared_from_this<GlobalShortcutRegistry>
{
public:
    /// Requests chords. The virtual functions are called from the event loop, never from `add` or
    /// `remove`.
    class User : public QObject
    {
    public:
        using QObject::QObject;
        /// Called after `chord` was pressed, if this user had requested it at that time.
        virtual void pressed(int chord) = 0;
        /// Called after `isRegistered` has changed, unless by a call of this user.
        virtual void registrationChanged() = 0;
    };

    /// Returns the registry of the process; creates it if there is none.
    static std::shared_ptr<GlobalShortcutRegistry> instance();

    GlobalShortcutRegistry() = default;
    ~GlobalShortcutRegistry();
    Q_DISABLE_COPY(GlobalShortcutRegistry)

    /// Returns whether chords can be registered at all.
    bool isSupported();
    /// Adds a user of `chord` and tries to register the chord if it is not registered.
    void add(int chord, User *user);
    /// Removes a user of `chord` and releases the chord with the last one.
    void remove(int chord, User *user);
    /// Returns whether `chord` is registered.
    bool isRegistered(int chord) const;

private:
    struct Entry
    {
        QVector<KeyCombination> held; // all combinations of the chord, or none
        QVector<User *> users;
    };

    void keyPressed(quint32 key, quint32 modifiers) override;
    void keyboardChanged() override;
    GlobalShortcutBackend &backend();
    void applicationGone();
    bool isHeld(const KeyCombination &combination) const;
    void take(int chord, Entry &entry);
    void giveBack(Entry &entry);
    static void announce(const Entry &entry, const User *except = nullptr);

    std::map<int, Entry> mEntries;
    NullShortcutBackend mNoBackend;
    std::unique_ptr<GlobalShortcutBackend> mBackend;
    QMetaObject::Connection mApplicationGone;
};
