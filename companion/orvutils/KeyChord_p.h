#pragma once

#include <Qt>

/// Whether the keypad has arrow keys.
enum class KeyboardKind {
    Pc, ///< the keypad has its own arrow keys
    Mac ///< it has none, but the system reports the main arrow keys as keys of the keypad
};

/// Returns the chord of a pressed key as QKeySequence encodes it: `key`, a Qt::Key, combined with
/// those of `modifiers` that a key sequence can hold. Returns 0 if `key` is not a known key.
///
/// A modifier key is not combined with its own modifier. Shift+Backtab becomes Shift+Tab. On a Mac
/// the arrow keys lose Qt::KeypadModifier.
int keyChord(int key, Qt::KeyboardModifiers modifiers, KeyboardKind keyboard);
