#pragma once

#include <xcb/xcb.h>

#include <QVector>

/// Another client of the X server: it presses keys and grabs them. Every function returns after
/// the server has processed its requests.
class XClient
{
public:
    XClient();
    ~XClient();
    Q_DISABLE_COPY(XClient)

    /// Keysyms of the lock keys that `setLock` presses.
    static constexpr xcb_keysym_t sCapsLock = 0xffe5;
    static constexpr xcb_keysym_t sNumLock = 0xff7f;

    /// Returns the first key with keysym `symbol`, or 0 if there is none.
    xcb_keycode_t keyOf(xcb_keysym_t symbol) const;
    /// Presses the keys in this order, then releases them in reverse order.
    void type(const QVector<xcb_keysym_t> &symbols);
    /// Presses or releases one key.
    void send(xcb_keycode_t key, bool press);
    /// Turns a lock key on or off: presses it if the modifier bits `mask` are not yet in that
    /// state.
    void setLock(xcb_keysym_t symbol, quint16 mask, bool on);
    /// Returns the modifiers that are currently active.
    quint16 modifiers() const;

    /// Grabs a key on the root window; returns false if another client has grabbed it.
    bool grab(xcb_keycode_t key, quint16 modifiers);
    /// Releases the grab.
    void ungrab(xcb_keycode_t key, quint16 modifiers);

    /// Returns whether this client could grab the key. Does not keep the grab.
    bool canGrab(xcb_keycode_t key, quint16 modifiers);

    /// Shows a window and gives it the keyboard focus.
    void takeFocus();

    /// Returns the keysyms of a key, in the server's order.
    QVector<xcb_keysym_t> symbolsOf(xcb_keycode_t key) const;
    /// Replaces the keysyms of a key.
    void setSymbols(xcb_keycode_t key, const QVector<xcb_keysym_t> &symbols);
    /// Returns a key without keysyms.
    xcb_keycode_t emptyKey() const;
    /// Returns the keys of the eight modifiers, the same number for each; unused places are 0.
    QVector<xcb_keycode_t> modifierMap() const;
    /// Replaces the modifier map; returns false if the server rejects it.
    bool setModifierMap(const QVector<xcb_keycode_t> &map);

private:
    void sync() const;

    xcb_connection_t *const mConnection;
    xcb_window_t mRoot = XCB_NONE;
};
