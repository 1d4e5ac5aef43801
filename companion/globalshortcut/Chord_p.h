#pragma once

#include <Qt>

/// Returns the Qt::Key of a chord as QKeySequence encodes it.
inline int keyOf(int chord)
{
    return chord & ~static_cast<int>(Qt::KeyboardModifierMask);
}

/// Returns the modifiers of a chord as QKeySequence encodes it.
inline Qt::KeyboardModifiers modifiersOf(int chord)
{
    return Qt::KeyboardModifiers(QFlag(chord & static_cast<int>(Qt::KeyboardModifierMask)));
}
