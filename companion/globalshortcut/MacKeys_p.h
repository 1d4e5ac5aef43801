#pragma once

#include "KeyCombination_p.h"

#include <QVector>

/// Which keys of a Mac keyboard Qt calls Control and Meta.
enum class MacModifierNames {
    Swapped, ///< Qt's default: Qt::ControlModifier is the Command key, Qt::MetaModifier Control
    AsOnKeys ///< Qt::ControlModifier is the Control key (Qt::AA_MacDontSwapCtrlAndMeta)
};

/// Returns the virtual key code with Carbon's modifiers for `chord`, a Qt::Key with
/// Qt::KeyboardModifiers, on the ANSI keyboard; empty if that keyboard cannot type it.
QVector<KeyCombination> macKeyCombinations(int chord, MacModifierNames names);
