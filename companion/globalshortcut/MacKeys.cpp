#include "MacKeys_p.h"

#include "Chord_p.h"

#include <Carbon/Carbon.h>

#include <algorithm>
#include <iterator>

namespace {

struct KeyRow
{
    int key;
    quint32 code;
    quint32 shift; // needed to type the symbol
};

constexpr KeyRow sMainKeys[] = {
    {Qt::Key_A, kVK_ANSI_A, 0},
    {Qt::Key_B, kVK_ANSI_B, 0},
    {Qt::Key_C, kVK_ANSI_C, 0},
    {Qt::Key_D, kVK_ANSI_D, 0},
    {Qt::Key_E, kVK_ANSI_E, 0},
    {Qt::Key_F, kVK_ANSI_F, 0},
    {Qt::Key_G, kVK_ANSI_G, 0},
    {Qt::Key_H, kVK_ANSI_H, 0},
    {Qt::Key_I, kVK_ANSI_I, 0},
    {Qt::Key_J, kVK_ANSI_J, 0},
    {Qt::Key_K, kVK_ANSI_K, 0},
    {Qt::Key_L, kVK_ANSI_L, 0},
    {Qt::Key_M, kVK_ANSI_M, 0},
    {Qt::Key_N, kVK_ANSI_N, 0},
    {Qt::Key_O, kVK_ANSI_O, 0},
    {Qt::Key_P, kVK_ANSI_P, 0},
    {Qt::Key_Q, kVK_ANSI_Q, 0},
    {Qt::Key_R, kVK_ANSI_R, 0},
    {Qt::Key_S, kVK_ANSI_S, 0},
    {Qt::Key_T, kVK_ANSI_T, 0},
    {Qt::Key_U, kVK_ANSI_U, 0},
    {Qt::Key_V, kVK_ANSI_V, 0},
    {Qt::Key_W, kVK_ANSI_W, 0},
    {Qt::Key_X, kVK_ANSI_X, 0},
    {Qt::Key_Y, kVK_ANSI_Y, 0},
    {Qt::Key_Z, kVK_ANSI_Z, 0},
    {Qt::Key_0, kVK_ANSI_0, 0},
    {Qt::Key_1, kVK_ANSI_1, 0},
    {Qt::Key_2, kVK_ANSI_2, 0},
    {Qt::Key_3, kVK_ANSI_3, 0},
    {Qt::Key_4, kVK_ANSI_4, 0},
    {Qt::Key_5, kVK_ANSI_5, 0},
    {Qt::Key_6, kVK_ANSI_6, 0},
    {Qt::Key_7, kVK_ANSI_7, 0},
    {Qt::Key_8, kVK_ANSI_8, 0},
    {Qt::Key_9, kVK_ANSI_9, 0},
    {Qt::Key_Minus, kVK_ANSI_Minus, 0},
    {Qt::Key_Equal, kVK_ANSI_Equal, 0},
    {Qt::Key_BracketLeft, kVK_ANSI_LeftBracket, 0},
    {Qt::Key_BracketRight, kVK_ANSI_RightBracket, 0},
    {Qt::Key_Backslash, kVK_ANSI_Backslash, 0},
    {Qt::Key_Semicolon, kVK_ANSI_Semicolon, 0},
    {Qt::Key_Apostrophe, kVK_ANSI_Quote, 0},
    {Qt::Key_QuoteLeft, kVK_ANSI_Grave, 0},
    {Qt::Key_Comma, kVK_ANSI_Comma, 0},
    {Qt::Key_Period, kVK_ANSI_Period, 0},
    {Qt::Key_Slash, kVK_ANSI_Slash, 0},
    {Qt::Key_Exclam, kVK_ANSI_1, shiftKey},
    {Qt::Key_At, kVK_ANSI_2, shiftKey},
    {Qt::Key_NumberSign, kVK_ANSI_3, shiftKey},
    {Qt::Key_Dollar, kVK_ANSI_4, shiftKey},
    {Qt::Key_Percent, kVK_ANSI_5, shiftKey},
    {Qt::Key_AsciiCircum, kVK_ANSI_6, shiftKey},
    {Qt::Key_Ampersand, kVK_ANSI_7, shiftKey},
    {Qt::Key_Asterisk, kVK_ANSI_8, shiftKey},
    {Qt::Key_ParenLeft, kVK_ANSI_9, shiftKey},
    {Qt::Key_ParenRight, kVK_ANSI_0, shiftKey},
    {Qt::Key_Underscore, kVK_ANSI_Minus, shiftKey},
    {Qt::Key_Plus, kVK_ANSI_Equal, shiftKey},
    {Qt::Key_BraceLeft, kVK_ANSI_LeftBracket, shiftKey},
    {Qt::Key_BraceRight, kVK_ANSI_RightBracket, shiftKey},
    {Qt::Key_Bar, kVK_ANSI_Backslash, shiftKey},
    {Qt::Key_Colon, kVK_ANSI_Semicolon, shiftKey},
    {Qt::Key_QuoteDbl, kVK_ANSI_Quote, shiftKey},
    {Qt::Key_AsciiTilde, kVK_ANSI_Grave, shiftKey},
    {Qt::Key_Less, kVK_ANSI_Comma, shiftKey},
    {Qt::Key_Greater, kVK_ANSI_Period, shiftKey},
    {Qt::Key_Question, kVK_ANSI_Slash, shiftKey},
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

} // namespace

QVector<KeyCombination> macKeyCombinations(int chord, MacModifierNames names)
{
    const Qt::KeyboardModifiers held = modifiersOf(chord);
    if (held & Qt::GroupSwitchModifier)
        return {};
    const int key = keyOf(chord);
    // Chords recorded by other means than GetKeySequence() may have the keypad's modifier on an
    // arrow key, as Qt reports it on macOS.
    const KeyRow *row = held & Qt::KeypadModifier ? lookUp(sKeypadKeys, key) : nullptr;
    if (!row)
        row = lookUp(sMainKeys, key);
    if (!row)
        return {};
    return {{row->code, carbonModifiers(held, names) | row->shift, 0}};
}
