#include "X11SymbolTable_p.h"

#include "Xkb_p.h"

#include <xcb/xcb_keysyms.h>

#include <QScopedPointer>

namespace {

/// The modifiers that select the levels of a key: what XKB calls a key type.
struct LevelModifiers
{
    int level;
    quint16 modifiers;
};

QVector<QVector<LevelModifiers>> keyTypes(const xcb_xkb_get_map_reply_t *reply,
                                          const xcb_xkb_get_map_map_t *map)
{
    QVector<QVector<LevelModifiers>> types;
    for (auto type = xcb_xkb_get_map_map_types_rtrn_iterator(reply, map); type.rem > 0;
         xcb_xkb_key_type_next(&type)) {
        // All modifiers that are not in the list select the first level.
        QVector<LevelModifiers> levels{{0, 0}};
        for (auto entry = xcb_xkb_key_type_map_iterator(type.data); entry.rem > 0;
             xcb_xkb_kt_map_entry_next(&entry)) {
            if (entry.data->active)
                levels.append({entry.data->level, entry.data->mods_mask});
        }
        types.append(levels);
    }
    return types;
}

struct KeySymbolsDeleter
{
    static void cleanup(xcb_key_symbols_t *symbols)
    {
        if (symbols)
            xcb_key_symbols_free(symbols);
    }
};

} // namespace

void X11SymbolTable::load(xcb_connection_t *connection)
{
    mPlaces.clear();
    if (!loadXkb(connection))
        loadCore(connection);
}

QVector<X11SymbolPlace> X11SymbolTable::places(xcb_keysym_t symbol) const
{
    return mPlaces.value(symbol);
}

void X11SymbolTable::add(xcb_keysym_t symbol, const X11SymbolPlace &place)
{
    if (symbol != XCB_NO_SYMBOL)
        mPlaces[symbol].append(place);
}

// Returns false if the server or this client does not use XKB.
bool X11SymbolTable::loadXkb(xcb_connection_t *connection)
{
    constexpr uint16_t parts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS;
    const QScopedPointer<xcb_xkb_get_map_reply_t, QScopedPointerPodDeleter> reply(
        xcb_xkb_get_map_reply(connection,
                              xcb_xkb_get_map(connection, XCB_XKB_ID_USE_CORE_KBD, parts, 0, 0, 0,
                                              0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0),
                              nullptr));
    if (!reply)
        return false;
    xcb_xkb_get_map_map_t map;
    xcb_xkb_get_map_map_unpack(xcb_xkb_get_map_map(reply.data()), reply->nTypes, reply->nKeySyms,
                               reply->nKeyActions, reply->totalActions, reply->totalKeyBehaviors,
                               reply->virtualMods, reply->totalKeyExplicit, reply->totalModMapKeys,
                               reply->totalVModMapKeys, reply->present, &map);
    const QVector<QVector<LevelModifiers>> types = keyTypes(reply.data(), &map);
    int code = reply->firstKeySym;
    for (auto key = xcb_xkb_get_map_map_syms_rtrn_iterator(reply.data(), &map); key.rem > 0;
         xcb_xkb_key_sym_map_next(&key), ++code) {
        const xcb_keysym_t *symbols = xcb_xkb_key_sym_map_syms(key.data);
        const int groups = key.data->groupInfo & 0xf;
        for (int group = 0; group < groups; ++group) {
            for (const LevelModifiers &entry : types.value(key.data->kt_index[group])) {
                if (entry.level < key.data->width)
                    add(symbols[group * key.data->width + entry.level],
                        {static_cast<xcb_keycode_t>(code), static_cast<quint8>(group),
                         entry.modifiers});
            }
        }
    }
    return true;
}

void X11SymbolTable::loadCore(xcb_connection_t *connection)
{
    const QScopedPointer<xcb_key_symbols_t, KeySymbolsDeleter> symbols(
        xcb_key_symbols_alloc(connection));
    const xcb_setup_t *setup = xcb_get_setup(connection);
    if (!symbols || !setup)
        return;
    for (int code = setup->min_keycode; code <= setup->max_keycode; ++code) {
        const auto key = static_cast<xcb_keycode_t>(code);
        for (int column = 0; column < 4; ++column)
            add(xcb_key_symbols_get_keysym(symbols.data(), key, column),
                {key, static_cast<quint8>(column / 2),
                 static_cast<quint16>(column % 2 == 1 ? XCB_MOD_MASK_SHIFT : 0)});
    }
}
