#pragma once

#include "GlobalShortcutBackend_p.h"
#include "KeyGrabber_p.h"

#include <QHash>
#include <QVector>

#include <functional>
#include <map>

/// Registers actions as key combinations. Actions with the same chord share the combinations, and
/// all of them are activated. Answers at once.
class KeyGrabBackend final : public GlobalShortcutBackend, private KeyGrabber::Listener
{
public:
    /// Creates the grabber of the system. The listener outlives it.
    using MakeGrabber = std::function<std::unique_ptr<KeyGrabber>(KeyGrabber::Listener &)>;

    /// Calls `makeGrabber`, which must not return null.
    KeyGrabBackend(GlobalShortcutBackend::Listener &listener, const MakeGrabber &makeGrabber);
    Q_DISABLE_COPY(KeyGrabBackend)

    bool isSupported() const override;
    void add(const Action &action) override;
    void change(const Action &action) override;
    void remove(const QString &id) override;
    /// Releases all combinations with true, so that the focus widget of the program receives the
    /// keys. A chord that is added meanwhile is registered and released, for its result.
    void suspend(bool suspended) override;

private:
    using Failure = QxtGlobalShortcut::Failure;

    struct Entry
    {
        QVector<KeyCombination> combinations; // of a registered chord
        bool isHeld = false;                  // false for a registered chord while suspended
        Failure failure = Failure::Pending;   // Pending only while it is being registered
        Failure told = Failure::Pending;      // what the listener knows
        std::map<quint64, QString> actions;   // their ids, in the order of registration
    };
    struct Place
    {
        int chord = 0;
        quint64 number = 0; // key in Entry::actions
    };

    void keyPressed(quint32 key, quint32 modifiers) override;
    void keyboardChanged() override;
    void enter(const Action &action);
    void leave(const Place &place);
    void settle(int chord, Entry &entry);
    Failure take(int chord, Entry &entry);
    bool hold(Entry &entry);
    void release(Entry &entry);
    void releaseFirst(const QVector<KeyCombination> &combinations, int count);

    GlobalShortcutBackend::Listener &mListener;
    std::map<int, Entry> mEntries;       // by chord
    QHash<QString, Place> mPlaces;       // by id of the action
    std::map<KeyCombination, int> mUses; // number of held entries that need the combination
    quint64 mNextNumber = 0;
    bool mIsSuspended = false;
    const std::unique_ptr<KeyGrabber> mGrabber; // destroyed first: it may call the listener
};
