#pragma once

#include <xcb/xcb.h>

#include <QVector>

/// The keysyms that an X keyboard may have on the key of `chord`, a Qt::Key with
/// Qt::KeyboardModifiers of which only Qt::KeypadModifier counts here. A letter's is the one of the
/// lower case. Several where X has several names for one symbol; empty for a modifier key and for
/// a key that X has no name for.
QVector<xcb_keysym_t> x11KeySymbols(int chord);
