#include "X11Keyboard_p.h"

#include "Chord_p.h"
#include "X11KeySymbols_p.h"

#include <X11/keysym.h>

#include <QScopedPointer>

X11Keyboard::~X11Keyboard()
{
    if (mSymbols)
        xcb_key_symbols_free(mSymbols);
}

void X11Keyboard::load(xcb_connection_t *connection)
{
    if (mSymbols)
        xcb_key_symbols_free(mSymbols);
    mSymbols = xcb_key_symbols_alloc(connection);
    const xcb_setup_t *setup = xcb_get_setup(connection);
    mFirstKey = setup->min_keycode;
    mLastKey = setup->max_keycode;

    loadModifiers(connection);
    mAlt = modifierOf(XK_Alt_L) | modifierOf(XK_Alt_R);
    // As in Qt's key events: Meta is the Windows key if Alt and Meta are the same modifier.
    mMeta = modifierOf(XK_Meta_L) | modifierOf(XK_Meta_R);
    if (mMeta == 0 || mMeta == mAlt)
        mMeta = modifierOf(XK_Super_L) | modifierOf(XK_Super_R);
    mIgnored = XCB_MOD_MASK_LOCK | modifierOf(XK_Num_Lock);
}

void X11Keyboard::loadModifiers(xcb_connection_t *connection)
{
    for (auto &symbols : mModifierSymbols)
        symbols.clear();
    const QScopedPointer<xcb_get_modifier_mapping_reply_t, QScopedPointerPodDeleter> reply(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    if (!reply || !mSymbols)
        return;
    const xcb_keycode_t *keys = xcb_get_modifier_mapping_keycodes(reply.data());
    const int keysPerModifier = reply->keycodes_per_modifier;
    for (int i = 0; i < 8 * keysPerModifier; ++i) {
        if (keys[i] < mFirstKey)
            continue; // unused
        for (int column = 0; column < 4; ++column)
            mModifierSymbols[i / keysPerModifier].append(
                xcb_key_symbols_get_keysym(mSymbols, keys[i], column));
    }
}

quint32 X11Keyboard::modifierOf(xcb_keysym_t symbol) const
{
    quint32 mask = 0;
    for (int i = 0; i < 8; ++i) {
        if (mModifierSymbols[i].contains(symbol))
            mask |= 1U << i;
    }
    return mask;
}

// Returns false if the keyboard lacks one of the modifiers.
bool X11Keyboard::findModifiers(int chord, quint32 *modifiers) const
{
    const Qt::KeyboardModifiers held = modifiersOf(chord);
    if (held & Qt::GroupSwitchModifier)
        return false;
    const struct
    {
        Qt::KeyboardModifier modifier;
        quint32 mask;
    } rows[] = {{Qt::ShiftModifier, XCB_MOD_MASK_SHIFT},
                {Qt::ControlModifier, XCB_MOD_MASK_CONTROL},
                {Qt::AltModifier, mAlt},
                {Qt::MetaModifier, mMeta}};
    *modifiers = 0;
    for (const auto &row : rows) {
        if (!(held & row.modifier))
            continue;
        if (row.mask == 0)
            return false;
        *modifiers |= row.mask;
    }
    return true;
}

QVector<KeyCombination> X11Keyboard::combinations(int chord) const
{
    quint32 modifiers = 0;
    const QVector<xcb_keysym_t> symbols = x11KeySymbols(chord);
    if (!mSymbols || symbols.isEmpty() || !findModifiers(chord, &modifiers))
        return {};
    // The second layout is used only for symbols that the first one lacks; otherwise a symbol in
    // both layouts would grab two keys.
    const QVector<KeyCombination> found = findInGroup(0, symbols, modifiers);
    return found.isEmpty() ? findInGroup(1, symbols, modifiers) : found;
}

QVector<KeyCombination> X11Keyboard::findInGroup(int group, const QVector<xcb_keysym_t> &symbols,
                                                 quint32 modifiers) const
{
    QVector<KeyCombination> found;
    for (int key = mFirstKey; key <= mLastKey; ++key) {
        for (int level = 0; level < 2; ++level) {
            const xcb_keysym_t symbol = xcb_key_symbols_get_keysym(
                mSymbols, static_cast<xcb_keycode_t>(key), 2 * group + level);
            if (!symbols.contains(symbol))
                continue;
            // On the keypad Num Lock selects the symbol, so the level does not imply Shift.
            const bool shifted = level == 1 && !xcb_is_keypad_key(symbol);
            const quint32 shift = shifted ? quint32(XCB_MOD_MASK_SHIFT) : 0;
            const quint32 held = modifiers | shift;
            found.append({static_cast<quint32>(key), held, mIgnored & ~held});
            break; // the same symbol with Shift is another chord
        }
    }
    return found;
}
