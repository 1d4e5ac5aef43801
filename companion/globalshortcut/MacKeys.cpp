#include "MacKeys_p.h"

#include "Chord_p.h"
#include "MacLayout_p.h"

#include <Carbon/Carbon.h>

#include <QChar>

#include <algorithm>
#include <iterator>

namespace {

struct KeyRow
{
    int key;
    quint32 code;
    quint32 shift; // needed to type the symbol
};

/// The same keys in every layout.
constexpr KeyRow sFixedKeys[] = {
    {Qt::Key_Space, kVK_Space, 0},
    {Qt::Key_Return, kVK_Return, 0},
    {Qt::Key_Enter, kVK_ANSI_KeypadEnter, 0},
    {Qt::Key_Tab, kVK_Tab, 0},
    {Qt::Key_Backtab, kVK_Tab, shiftKey},
    {Qt::Key_Escape, kVK_Escape, 0},
    {Qt::Key_Backspace, kVK_Delete, 0},
    {Qt::Key_Delete, kVK_ForwardDelete, 0},
    {Qt::Key_Insert, kVK_Help, 0},
    {Qt::Key_Help, kVK_Help, 0},
    {Qt::Key_Clear, kVK_ANSI_KeypadClear, 0},
    {Qt::Key_Home, kVK_Home, 0},
    {Qt::Key_End, kVK_End, 0},
    {Qt::Key_PageUp, kVK_PageUp, 0},
    {Qt::Key_PageDown, kVK_PageDown, 0},
    {Qt::Key_Left, kVK_LeftArrow, 0},
    {Qt::Key_Right, kVK_RightArrow, 0},
    {Qt::Key_Up, kVK_UpArrow, 0},
    {Qt::Key_Down, kVK_DownArrow, 0},
    {Qt::Key_F1, kVK_F1, 0},
    {Qt::Key_F2, kVK_F2, 0},
    {Qt::Key_F3, kVK_F3, 0},
    {Qt::Key_F4, kVK_F4, 0},
    {Qt::Key_F5, kVK_F5, 0},
    {Qt::Key_F6, kVK_F6, 0},
    {Qt::Key_F7, kVK_F7, 0},
    {Qt::Key_F8, kVK_F8, 0},
    {Qt::Key_F9, kVK_F9, 0},
    {Qt::Key_F10, kVK_F10, 0},
    {Qt::Key_F11, kVK_F11, 0},
    {Qt::Key_F12, kVK_F12, 0},
    {Qt::Key_F13, kVK_F13, 0},
    {Qt::Key_F14, kVK_F14, 0},
    {Qt::Key_F15, kVK_F15, 0},
    {Qt::Key_F16, kVK_F16, 0},
    {Qt::Key_F17, kVK_F17, 0},
    {Qt::Key_F18, kVK_F18, 0},
    {Qt::Key_F19, kVK_F19, 0},
    {Qt::Key_F20, kVK_F20, 0},
};

constexpr KeyRow sKeypadKeys[] = {
    {Qt::Key_0, kVK_ANSI_Keypad0, 0},
    {Qt::Key_1, kVK_ANSI_Keypad1, 0},
    {Qt::Key_2, kVK_ANSI_Keypad2, 0},
    {Qt::Key_3, kVK_ANSI_Keypad3, 0},
    {Qt::Key_4, kVK_ANSI_Keypad4, 0},
    {Qt::Key_5, kVK_ANSI_Keypad5, 0},
    {Qt::Key_6, kVK_ANSI_Keypad6, 0},
    {Qt::Key_7, kVK_ANSI_Keypad7, 0},
    {Qt::Key_8, kVK_ANSI_Keypad8, 0},
    {Qt::Key_9, kVK_ANSI_Keypad9, 0},
    {Qt::Key_Period, kVK_ANSI_KeypadDecimal, 0},
    {Qt::Key_Comma, kVK_ANSI_KeypadDecimal, 0},
    {Qt::Key_Asterisk, kVK_ANSI_KeypadMultiply, 0},
    {Qt::Key_Plus, kVK_ANSI_KeypadPlus, 0},
    {Qt::Key_Minus, kVK_ANSI_KeypadMinus, 0},
    {Qt::Key_Slash, kVK_ANSI_KeypadDivide, 0},
    {Qt::Key_Equal, kVK_ANSI_KeypadEquals, 0},
    {Qt::Key_Clear, kVK_ANSI_KeypadClear, 0},
    {Qt::Key_Enter, kVK_ANSI_KeypadEnter, 0},
    {Qt::Key_Return, kVK_ANSI_KeypadEnter, 0},
    // Qt reports the arrow keys of the main block with the modifier of the keypad.
    {Qt::Key_Left, kVK_LeftArrow, 0},
    {Qt::Key_Right, kVK_RightArrow, 0},
    {Qt::Key_Up, kVK_UpArrow, 0},
    {Qt::Key_Down, kVK_DownArrow, 0},
};

template<size_t size> const KeyRow *lookUp(const KeyRow (&table)[size], int key)
{
    const auto row = std::find_if(std::begin(table), std::end(table),
                                  [key](const KeyRow &candidate) { return candidate.key == key; });
    return row == std::end(table) ? nullptr : row;
}

quint32 carbonModifiers(Qt::KeyboardModifiers held, MacModifierNames names)
{
    const bool swapped = names == MacModifierNames::Swapped;
    quint32 modifiers = 0;
    if (held & Qt::ShiftModifier)
        modifiers |= shiftKey;
    if (held & Qt::AltModifier)
        modifiers |= optionKey;
    if (held & Qt::ControlModifier)
        modifiers |= swapped ? cmdKey : controlKey;
    if (held & Qt::MetaModifier)
        modifiers |= swapped ? controlKey : cmdKey;
    return modifiers;
}

bool isCharacter(int key)
{
    return key > Qt::Key_Space && key <= 0x10ffff;
}

quint32 modifiersOfLevel(size_t level)
{
    return (level & MacLayout::sShift ? shiftKey : 0)
           | (level & MacLayout::sOption ? optionKey : 0);
}

/// Returns the keys that type `character` with the fewest modifiers of these levels. Command is not
/// among their modifiers.
QVector<KeyCombination> findInLevels(uint character, const MacLayout &layout, size_t firstLevel)
{
    QVector<KeyCombination> found;
    for (size_t level = firstLevel; level < firstLevel + 4 && found.isEmpty(); ++level) {
        for (size_t code = 0; code < layout.keys.size(); ++code) {
            if (layout.keys[code][level] == character)
                found.append({static_cast<quint32>(code), modifiersOfLevel(level), 0});
        }
    }
    return found;
}

QVector<KeyCombination> findCharacter(int key, const MacLayout &layout, bool withCommand)
{
    // Some keyboards have only the capital of a letter.
    for (const uint character :
         {QChar::toLower(static_cast<uint>(key)), QChar::toUpper(static_cast<uint>(key))}) {
        // Some layouts type other letters while Command is held, for example Latin ones.
        QVector<KeyCombination> found;
        if (withCommand)
            found = findInLevels(character, layout, MacLayout::sCommand);
        if (found.isEmpty())
            found = findInLevels(character, layout, 0);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

bool hasLatinLetters(const MacLayout &layout)
{
    return !findInLevels('a', layout, 0).isEmpty();
}

QVector<KeyCombination> findKey(int key, Qt::KeyboardModifiers held, const MacLayout &layout,
                                bool withCommand)
{
    const KeyRow *row = held & Qt::KeypadModifier ? lookUp(sKeypadKeys, key)
                                                  : lookUp(sFixedKeys, key);
    if (row)
        return {{row->code, row->shift, 0}};
    if (held & Qt::KeypadModifier || !isCharacter(key))
        return {};
    const QVector<KeyCombination> found = findCharacter(key, layout, withCommand);
    if (found.isEmpty() && !hasLatinLetters(layout))
        return findCharacter(key, macAnsiLayout(), withCommand);
    return found;
}

} // namespace

QVector<KeyCombination> macKeyCombinations(int chord, MacModifierNames names,
                                           const MacLayout &layout)
{
    const Qt::KeyboardModifiers held = modifiersOf(chord);
    if (held & Qt::GroupSwitchModifier)
        return {};
    const quint32 modifiers = carbonModifiers(held, names);
    QVector<KeyCombination> found = findKey(keyOf(chord), held, layout, modifiers & cmdKey);
    for (KeyCombination &combination : found)
        combination.modifiers |= modifiers;
    return found;
}
