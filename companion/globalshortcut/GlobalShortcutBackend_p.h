#pragma once

#include "QxtGlobalShortcut.h"

#include <QString>

#include <memory>

/// Registers hotkeys as actions with the system: a stable id, a text for the user and the preferred
/// keys. Each system has its own implementation; CMake chooses the file that defines `create()`.
class GlobalShortcutBackend
{
public:
    /// What is to be registered.
    struct Action
    {
        QString id;          ///< unique in the process, and the same in the next one; not empty
        QString description; ///< what it does, for the user; may be empty
        int chord = 0;       ///< the preferred Qt::Key with Qt::KeyboardModifiers
    };

    /// The state of an action.
    struct Result
    {
        /// `NoFailure` if the action is registered, `Pending` while the system has not answered.
        QxtGlobalShortcut::Failure failure = QxtGlobalShortcut::Pending;
        /// The keys that the system has assigned, for the user; empty if they are the preferred
        /// ones.
        QString trigger;
    };

    /// Receives what the system reports. Must neither delete the backend in these calls nor call
    /// its functions.
    class Listener
    {
    public:
        /// Called when the result of an action has changed, inside `add` and `change` if the system
        /// answers at once, and for several actions if one call changes several of them.
        virtual void resultChanged(const QString &id, const Result &result) = 0;
        /// Called when the keys of a registered action were pressed, without key repeat. With
        /// `activationToken` the program may activate its window; empty if the system has no such
        /// tokens.
        virtual void activated(const QString &id, const QString &activationToken) = 0;

    protected:
        ~Listener() = default;
    };

    /// Creates the backend for the system and the Qt platform of the process; never null.
    /// `listener` must outlive it. Needs the application object.
    static std::unique_ptr<GlobalShortcutBackend> create(Listener &listener);

    /// Releases all actions.
    virtual ~GlobalShortcutBackend() = default;

    /// Returns whether hotkeys can be registered at all.
    virtual bool isSupported() const = 0;
    /// Registers an action whose id is not registered. Its result is `Pending` until the listener
    /// is called.
    virtual void add(const Action &action) = 0;
    /// Replaces the description and the keys of the action with this id. An action that has failed
    /// is tried again, even with the same keys. With other keys its result is `Pending` until the
    /// listener is called.
    virtual void change(const Action &action) = 0;
    /// Releases an action. The listener is not called for it any more.
    virtual void remove(const QString &id) = 0;
    /// With true, no action is activated until the call with false: the program is recording a
    /// hotkey, and its field must receive every key that is not used by other programs. The results
    /// remain unless an action cannot be activated afterwards. Not suspended at first.
    virtual void suspend(bool suspended) = 0;
};
