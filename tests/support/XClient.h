#pragma once

#include <xcb/xcb.h>

#include <QVector>

/// Another program on the X server: it types on the keyboard, and takes keys for itself. Everything
/// has reached the server when a function returns.
class XClient
{
public:
    XClient();
    ~XClient();
    Q_DISABLE_COPY(XClient)

    /// The keysym of the locking key that `setLock` presses.
    static constexpr xcb_keysym_t capsLock = 0xffe5;
    static constexpr xcb_keysym_t numLock = 0xff7f;

    /// The first key with this keysym on it, 0 when there is none.
    xcb_keycode_t keyOf(xcb_keysym_t symbol) const;
    /// Presses the keys in their order, then releases them in the opposite order.
    void type(const QVector<xcb_keysym_t> &symbols);
    /// Presses or releases one key.
    void send(xcb_keycode_t key, bool press);
    /// Turns a locking key on or off: presses it when the modifier bits `mask` are not so yet.
    void setLock(xcb_keysym_t symbol, quint16 mask, bool on);
    /// The modifiers in force.
    quint16 modifiers() const;

    /// Takes a key on the root window; false when another client has it.
    bool grab(xcb_keycode_t key, quint16 modifiers);
    /// Gives it back.
    void ungrab(xcb_keycode_t key, quint16 modifiers);

    /// Whether this client could take a key; it does not keep it.
    bool canGrab(xcb_keycode_t key, quint16 modifiers);

    /// Shows a window and gives it the keyboard.
    void takeFocus();

    /// The keysyms on a key, in the server's order.
    QVector<xcb_keysym_t> symbolsOf(xcb_keycode_t key) const;
    /// Replaces the keysyms on a key.
    void setSymbols(xcb_keycode_t key, const QVector<xcb_keysym_t> &symbols);
    /// A key without keysyms.
    xcb_keycode_t emptyKey() const;
    /// The keys of each of the eight modifiers, the same number for each, 0 for none.
    QVector<xcb_keycode_t> modifierMap() const;
    /// Replaces it; false when the server refuses.
    bool setModifierMap(const QVector<xcb_keycode_t> &map);

private:
    void sync() const;

    xcb_connection_t *const mConnection;
    xcb_window_t mRoot = XCB_NONE;
};
