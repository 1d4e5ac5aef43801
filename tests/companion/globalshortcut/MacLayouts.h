#pragma once

#include "MacLayout_p.h"

/// Keyboard layouts of macOS for the tests. All but `dvorakQwertyLayout` and `russianLayout` type
/// the same with Command as without.
MacLayout azertyLayout(); ///< French
MacLayout qwertzLayout(); ///< German
MacLayout dvorakLayout();
/// Dvorak that types as QWERTY with Command.
MacLayout dvorakQwertyLayout();
/// Russian letters, and Latin ones with Command.
MacLayout russianLayout();
/// Russian letters, with and without Command.
MacLayout russianOnlyLayout();
