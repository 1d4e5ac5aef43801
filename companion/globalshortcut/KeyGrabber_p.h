#pragma once

#include "KeyCombination_p.h"

#include <QVector>

/// Registers key combinations with a system that knows keys and not actions, such as an X server.
/// Destroying it releases all combinations.
class KeyGrabber
{
public:
    /// Receives what the system reports. Must not delete the grabber in these calls.
    class Listener
    {
    public:
        /// Called when a registered key was pressed with these modifiers. Not called for key
        /// repeat.
        virtual void keyPressed(quint32 key, quint32 modifiers) = 0;
        /// Called when the result of `combinations()` or `isSupported()` may have changed.
        virtual void keyboardChanged() = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~KeyGrabber() = default;

    /// Returns whether hotkeys can be registered at all.
    virtual bool isSupported() const = 0;
    /// Returns all combinations that must be registered for `chord`, a Qt::Key with
    /// Qt::KeyboardModifiers; empty if this keyboard cannot type it.
    virtual QVector<KeyCombination> combinations(int chord) const = 0;
    /// Registers a combination that is not registered yet. Returns false, with nothing registered,
    /// if another program has it.
    virtual bool grab(const KeyCombination &combination) = 0;
    /// Releases a combination that `grab` has registered. Other programs can register it as soon as
    /// this function returns.
    virtual void ungrab(const KeyCombination &combination) = 0;
};
