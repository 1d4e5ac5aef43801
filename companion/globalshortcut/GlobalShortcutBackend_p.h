#pragma once

#include "KeyCombination_p.h"

#include <QVector>

#include <memory>

/// What a system does for hotkeys. One implementation for each system; which of them `create()`
/// makes is chosen in CMake, by the file that defines it.
class GlobalShortcutBackend
{
public:
    /// Who is told what the system reports. It does not delete the backend in these calls.
    class Listener
    {
    public:
        /// A registered key was pressed, with these modifiers; a held key's repeats are left out.
        virtual void keyPressed(quint32 key, quint32 modifiers) = 0;
        /// `combinations()` may answer differently now.
        virtual void keyboardChanged() = 0;

    protected:
        ~Listener() = default;
    };

    /// The backend for the system and the Qt platform that the program runs on; never null.
    /// `listener` outlives it. Needs the application object.
    static std::unique_ptr<GlobalShortcutBackend> create(Listener &listener);

    virtual ~GlobalShortcutBackend() = default;

    /// Whether anything can be registered at all.
    virtual bool isSupported() const = 0;
    /// Everything to register so that `chord` (a Qt::Key with Qt::KeyboardModifiers) is noticed;
    /// empty when this keyboard cannot make it.
    virtual QVector<KeyCombination> combinations(int chord) const = 0;
    /// Registers a combination that is not registered; false, and nothing is left of it, when
    /// another program holds it.
    virtual bool grab(const KeyCombination &combination) = 0;
    /// Gives back a combination that `grab` has registered. Others can have it on return.
    virtual void ungrab(const KeyCombination &combination) = 0;
};
