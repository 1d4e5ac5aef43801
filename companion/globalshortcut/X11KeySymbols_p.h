#pragma once

#include <xcb/xcb.h>

#include <QVector>

/// Returns the keysyms that an X keyboard may have for the key of `chord`, a Qt::Key with
/// Qt::KeyboardModifiers of which only Qt::KeypadModifier is used. For a letter it is the keysym of
/// the lower case. There are several if X has several keysyms for one symbol, and none for a
/// modifier key and for a key without a keysym.
QVector<xcb_keysym_t> x11KeySymbols(int chord);
/// Returns the keysyms of the capital of the letter of `chord`; none if it is not a letter.
QVector<xcb_keysym_t> x11CapitalSymbols(int chord);
