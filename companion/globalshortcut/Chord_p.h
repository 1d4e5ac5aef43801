#pragma once

#include <Qt>

/// The Qt::Key of a chord as QKeySequence has it.
inline int keyOf(int chord)
{
    return chord & ~static_cast<int>(Qt::KeyboardModifierMask);
}

/// The modifiers of a chord as QKeySequence has it.
inline Qt::KeyboardModifiers modifiersOf(int chord)
{
    return Qt::KeyboardModifiers(QFlag(chord & static_cast<int>(Qt::KeyboardModifierMask)));
}
