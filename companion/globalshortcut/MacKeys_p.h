#pragma once

#include "KeyCombination_p.h"

#include <QVector>

/// The virtual key code with Carbon's modifiers for `chord`, a Qt::Key with Qt::KeyboardModifiers,
/// on the ANSI keyboard; empty when that keyboard cannot make it.
QVector<KeyCombination> macKeyCombinations(int chord);
