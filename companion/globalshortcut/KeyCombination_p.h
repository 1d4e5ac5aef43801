#pragma once

#include <QtGlobal>

#include <tuple>

/// A key of the keyboard with modifiers, in the system's own codes, as a backend registers it.
struct KeyCombination
{
    quint32 key;       ///< the system's code of the key
    quint32 modifiers; ///< the modifiers that must be pressed, as bits of the system
    quint32 ignored;   ///< bits that do not matter, such as Num Lock; never bits of `modifiers`

    /// Returns whether this key with these modifiers is the combination.
    bool matches(quint32 pressedKey, quint32 pressedModifiers) const
    {
        return pressedKey == key && (pressedModifiers & ~ignored) == modifiers;
    }

    bool operator==(const KeyCombination &other) const
    {
        return key == other.key && modifiers == other.modifiers && ignored == other.ignored;
    }
    bool operator!=(const KeyCombination &other) const { return !(*this == other); }
    bool operator<(const KeyCombination &other) const
    {
        return std::tie(key, modifiers, ignored)
               < std::tie(other.key, other.modifiers, other.ignored);
    }
};
Q_DECLARE_TYPEINFO(KeyCombination, Q_PRIMITIVE_TYPE);
