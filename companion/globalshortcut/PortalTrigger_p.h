#pragma once

#include <QString>

/// Returns `chord`, a Qt::Key with Qt::KeyboardModifiers, as the desktop portal expects it: the
/// modifiers CTRL, ALT, SHIFT and LOGO and the name of the key, for example "CTRL+ALT+k". Empty if
/// the key has no name there.
QString portalTrigger(int chord);
