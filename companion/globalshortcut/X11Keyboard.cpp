#include "X11Keyboard_p.h"

#include "Chord_p.h"
#include "X11KeySymbols_p.h"

#include <X11/keysym.h>
#include <xcb/xcb_keysyms.h>

#include <QScopedPointer>
#include <QtAlgorithms>

#include <algorithm>
#include <utility>

namespace {

constexpr quint32 sShift = XCB_MOD_MASK_SHIFT;

/// Layouts that XKB supports at the same time.
constexpr int sGroups = 4;

/// Returns the modifiers other than Shift: those that select a level behind AltGr.
quint32 beyondShift(const KeyCombination &combination)
{
    return combination.modifiers & ~sShift;
}

bool isEasier(const KeyCombination &one, const KeyCombination &other)
{
    const uint oneBeyond = qPopulationCount(beyondShift(one));
    const uint otherBeyond = qPopulationCount(beyondShift(other));
    return oneBeyond != otherBeyond ? oneBeyond < otherBeyond
                                    : (one.modifiers & sShift) < (other.modifiers & sShift);
}

} // namespace

void X11Keyboard::load(xcb_connection_t *connection)
{
    mSymbols.load(connection);
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
    mModifiersOfKeys.fill(0, 256);
    const QScopedPointer<xcb_get_modifier_mapping_reply_t, QScopedPointerPodDeleter> reply(
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr));
    if (!reply)
        return;
    const xcb_keycode_t *keys = xcb_get_modifier_mapping_keycodes(reply.data());
    const int keysPerModifier = reply->keycodes_per_modifier;
    for (int i = 0; i < 8 * keysPerModifier; ++i)
        mModifiersOfKeys[keys[i]] |= static_cast<quint8>(1U << (i / keysPerModifier));
}

quint32 X11Keyboard::modifierOf(xcb_keysym_t symbol) const
{
    quint32 mask = 0;
    const QVector<X11SymbolPlace> places = mSymbols.places(symbol);
    for (const X11SymbolPlace &place : places)
        mask |= mModifiersOfKeys.value(place.key);
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
    } rows[] = {{Qt::ShiftModifier, sShift},
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
    if (symbols.isEmpty() || !findModifiers(chord, &modifiers))
        return {};
    const QVector<KeyCombination> found = find(symbols, modifiers);
    // Some capitals are on the keyboard without the small letter, such as the Greek ones behind
    // AltGr.
    return found.isEmpty() ? find(x11CapitalSymbols(chord), modifiers) : found;
}

QVector<KeyCombination> X11Keyboard::find(const QVector<xcb_keysym_t> &symbols,
                                          quint32 modifiers) const
{
    QVector<KeyCombination> found;
    // Each layout is used only for symbols that the layouts before it lack; otherwise a symbol in
    // two layouts would grab two keys.
    for (int group = 0; group < sGroups && found.isEmpty(); ++group)
        found = findInGroup(group, symbols);
    for (KeyCombination &combination : found) {
        combination.modifiers |= modifiers;
        combination.ignored = mIgnored & ~combination.modifiers;
    }
    return found;
}

// Returns the keys with the modifiers that select the symbol, without those of the chord.
QVector<KeyCombination> X11Keyboard::findInGroup(int group,
                                                 const QVector<xcb_keysym_t> &symbols) const
{
    QVector<KeyCombination> all;
    for (const xcb_keysym_t symbol : symbols) {
        const QVector<X11SymbolPlace> places = mSymbols.places(symbol);
        for (const X11SymbolPlace &place : places) {
            if (place.group != group)
                continue;
            // On the keypad Num Lock selects the symbol, so the level does not imply Shift.
            if (xcb_is_keypad_key(symbol))
                all.append({place.key, place.modifiers & ~(mIgnored | sShift), 0});
            else if (!(place.modifiers & mIgnored))
                all.append({place.key, place.modifiers, 0});
        }
    }
    std::stable_sort(all.begin(), all.end(), isEasier);
    QVector<KeyCombination> found;
    for (const KeyCombination &combination : std::as_const(all)) {
        // A symbol behind AltGr is used only if no key types it without.
        if (beyondShift(combination) && !found.isEmpty() && !beyondShift(found.first()))
            break;
        // The same symbol with other modifiers is another chord.
        const bool isKnown = std::any_of(
            found.cbegin(), found.cend(),
            [&combination](const KeyCombination &known) { return known.key == combination.key; });
        if (!isKnown)
            found.append(combination);
    }
    return found;
}
