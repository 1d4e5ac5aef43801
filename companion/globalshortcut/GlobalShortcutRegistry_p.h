#pragma once

#include "GlobalShortcutBackend_p.h"
#include "NullShortcutBackend_p.h"

#include <QObject>
#include <QVector>

#include <map>
#include <memory>

/// All chords that somebody wants, each registered with the system once. Lives as long as someone
/// holds it. GUI thread only.
class GlobalShortcutRegistry final : private GlobalShortcutBackend::Listener,
                                     public std::enable_shared_from_this<GlobalShortcutRegistry>
{
public:
    /// Who wants a chord. Both calls come from the event loop, never from within `add` or `remove`.
    class User : public QObject
    {
    public:
        using QObject::QObject;
        /// `chord` was pressed, and was wanted at that time.
        virtual void pressed(int chord) = 0;
        /// `isRegistered` changed, and not by this user's own call.
        virtual void registrationChanged() = 0;
    };

    /// The one registry; made when there is none.
    static std::shared_ptr<GlobalShortcutRegistry> instance();

    GlobalShortcutRegistry() = default;
    ~GlobalShortcutRegistry();
    Q_DISABLE_COPY(GlobalShortcutRegistry)

    /// Whether chords can be registered here at all.
    bool isSupported();
    /// Adds a user of `chord`, and tries to register it when it is not.
    void add(int chord, User *user);
    /// Takes the user away. With the last one the chord is given back.
    void remove(int chord, User *user);
    /// Whether `chord` is registered.
    bool isRegistered(int chord) const;

private:
    struct Entry
    {
        QVector<KeyCombination> held; // all that make the chord, or none
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
