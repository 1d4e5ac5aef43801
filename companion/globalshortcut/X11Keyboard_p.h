#pragma once

#include "KeyCombination_p.h"

#include <xcb/xcb_keysyms.h>

#include <QVector>

/// The keyboard of an X server as it is now: which key has which symbol, and which of the eight
/// modifiers means what.
class X11Keyboard
{
public:
    /// Nothing is known before the first `load`.
    X11Keyboard() = default;
    ~X11Keyboard();
    Q_DISABLE_COPY(X11Keyboard)

    /// Reads the keyboard's map from the server.
    void load(xcb_connection_t *connection);
    /// Every key with modifiers that makes `chord`, a Qt::Key with Qt::KeyboardModifiers; Caps Lock
    /// and Num Lock are ignored. Empty when this keyboard cannot make it.
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
