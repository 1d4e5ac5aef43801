#pragma once

#include "KeyCombination_p.h"

#include <QVector>

struct MacLayout;

/// Which keys of a Mac keyboard Qt calls Control and Meta.
enum class MacModifierNames {
    Swapped, ///< Qt's default: Qt::ControlModifier is the Command key, Qt::MetaModifier Control
    AsOnKeys ///< Qt::ControlModifier is the Control key (Qt::AA_MacDontSwapCtrlAndMeta)
};

/// Returns the virtual key codes with Carbon's modifiers for `chord`, a Qt::Key with
/// Qt::KeyboardModifiers, on a keyboard with this layout; empty if the keyboard cannot type it.
///
/// On a layout without Latin letters, characters that it lacks are those of the American keyboard.
QVector<KeyCombination> macKeyCombinations(int chord, MacModifierNames names,
                                           const MacLayout &layout);
