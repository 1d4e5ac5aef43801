#pragma once

#include "KeyCombination_p.h"
#include "X11SymbolTable_p.h"

#include <xcb/xcb.h>

#include <QVector>

/// The current keyboard mapping of an X server: the symbols of the keys and the meaning of the
/// eight modifiers. It is empty before the first `load`.
class X11Keyboard
{
public:
    /// Reads the keyboard mapping from the server. If the client did not start XKB, symbols behind
    /// AltGr are missing.
    void load(xcb_connection_t *connection);
    /// Returns all combinations that type `chord`, a Qt::Key with Qt::KeyboardModifiers, with Caps
    /// Lock and Num Lock ignored; empty if this keyboard cannot type it.
    QVector<KeyCombination> combinations(int chord) const;

private:
    void loadModifiers(xcb_connection_t *connection);
    quint32 modifierOf(xcb_keysym_t symbol) const;
    bool findModifiers(int chord, quint32 *modifiers) const;
    QVector<KeyCombination> find(const QVector<xcb_keysym_t> &symbols, quint32 modifiers) const;
    QVector<KeyCombination> findInGroup(int group, const QVector<xcb_keysym_t> &symbols) const;

    X11SymbolTable mSymbols;
    QVector<quint8> mModifiersOfKeys; // a bit mask for each key code
    quint32 mAlt = 0;
    quint32 mMeta = 0;
    quint32 mIgnored = 0;
};
