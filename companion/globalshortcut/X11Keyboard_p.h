#pragma once

#include "KeyCombination_p.h"

#include <xcb/xcb_keysyms.h>

#include <QVector>

/// The current keyboard mapping of an X server: the symbols of the keys and the meaning of the
/// eight modifiers.
class X11Keyboard
{
public:
    /// The mapping is empty before the first `load`.
    X11Keyboard() = default;
    ~X11Keyboard();
    Q_DISABLE_COPY(X11Keyboard)

    /// Reads the keyboard mapping from the server.
    void load(xcb_connection_t *connection);
    /// Returns all combinations that type `chord`, a Qt::Key with Qt::KeyboardModifiers, with Caps
    /// Lock and Num Lock ignored; empty if this keyboard cannot type it.
    QVector<KeyCombination> combinations(int chord) const;

private:
    void loadModifiers(xcb_connection_t *connection);
    quint32 modifierOf(xcb_keysym_t symbol) const;
    bool findModifiers(int chord, quint32 *modifiers) const;
    QVector<KeyCombination> findInGroup(int group, const QVector<xcb_keysym_t> &symbols,
                                        quint32 modifiers) const;

    xcb_key_symbols_t *mSymbols = nullptr;
    xcb_keycode_t mFirstKey = 1;
    xcb_keycode_t mLastKey = 0;
    QVector<xcb_keysym_t> mModifierSymbols[8];
    quint32 mAlt = 0;
    quint32 mMeta = 0;
    quint32 mIgnored = 0;
};
