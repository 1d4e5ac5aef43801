#pragma once

#include <xcb/xcb.h>

#include <QHash>
#include <QVector>

/// A way to type a symbol on an X keyboard.
struct X11SymbolPlace
{
    xcb_keycode_t key;
    quint8 group;      ///< the keyboard layout, from 0 to 3
    quint16 modifiers; ///< modifiers that must be active, with Shift, AltGr and locks
};
Q_DECLARE_TYPEINFO(X11SymbolPlace, Q_PRIMITIVE_TYPE);

/// The keys and modifiers that type each symbol on the keyboard of an X server.
class X11SymbolTable
{
public:
    /// Reads the table from the server. If the client did not start XKB, the table has the first
    /// two layouts, each without AltGr.
    void load(xcb_connection_t *connection);
    /// Returns the ways to type `symbol`: by key, and for each key from its first layout and level.
    QVector<X11SymbolPlace> places(xcb_keysym_t symbol) const;

private:
    bool loadXkb(xcb_connection_t *connection);
    void loadCore(xcb_connection_t *connection);
    void add(xcb_keysym_t symbol, const X11SymbolPlace &place);

    QHash<xcb_keysym_t, QVector<X11SymbolPlace>> mPlaces;
};
