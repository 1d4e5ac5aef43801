#pragma once

#include <QtGlobal>

/// What a backend registers with the system: one key of the keyboard with modifiers, all in the
/// system's own numbers.
struct KeyCombination
{
    quint32 key;       ///< the system's code of the key
    quint32 modifiers; ///< the modifiers that must be held, the system's bits
    quint32 ignored;   ///< modifiers that may be on or off, such as Num Lock; none of `modifiers`

    /// Whether this key pressed with these modifiers is the combination.
    bool matches(quint32 pressedKey, quint32 pressedModifiers) const
    {
        return pressedKey == key && (pressedModifiers & ~ignored) == modifiers;
    }

    bool operator==(const KeyCombination &other) const
    {
        return key == other.key && modifiers == other.modifiers && ignored == other.ignored;
    }
    bool operator!=(const KeyCombination &other) const { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(KeyCombination, Q_PRIMITIVE_TYPE);
