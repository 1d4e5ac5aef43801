#include "MacLayout_p.h"

#include <Carbon/Carbon.h>

namespace {

struct AnsiKey
{
    size_t code;
    char plain;
    char shifted;
};

constexpr AnsiKey sAnsiKeys[] = {
    {kVK_ANSI_Grave, '`', '~'},
    {kVK_ANSI_1, '1', '!'},
    {kVK_ANSI_2, '2', '@'},
    {kVK_ANSI_3, '3', '#'},
    {kVK_ANSI_4, '4', '$'},
    {kVK_ANSI_5, '5', '%'},
    {kVK_ANSI_6, '6', '^'},
    {kVK_ANSI_7, '7', '&'},
    {kVK_ANSI_8, '8', '*'},
    {kVK_ANSI_9, '9', '('},
    {kVK_ANSI_0, '0', ')'},
    {kVK_ANSI_Minus, '-', '_'},
    {kVK_ANSI_Equal, '=', '+'},
    {kVK_ANSI_Q, 'q', 'Q'},
    {kVK_ANSI_W, 'w', 'W'},
    {kVK_ANSI_E, 'e', 'E'},
    {kVK_ANSI_R, 'r', 'R'},
    {kVK_ANSI_T, 't', 'T'},
    {kVK_ANSI_Y, 'y', 'Y'},
    {kVK_ANSI_U, 'u', 'U'},
    {kVK_ANSI_I, 'i', 'I'},
    {kVK_ANSI_O, 'o', 'O'},
    {kVK_ANSI_P, 'p', 'P'},
    {kVK_ANSI_LeftBracket, '[', '{'},
    {kVK_ANSI_RightBracket, ']', '}'},
    {kVK_ANSI_Backslash, '\\', '|'},
    {kVK_ANSI_A, 'a', 'A'},
    {kVK_ANSI_S, 's', 'S'},
    {kVK_ANSI_D, 'd', 'D'},
    {kVK_ANSI_F, 'f', 'F'},
    {kVK_ANSI_G, 'g', 'G'},
    {kVK_ANSI_H, 'h', 'H'},
    {kVK_ANSI_J, 'j', 'J'},
    {kVK_ANSI_K, 'k', 'K'},
    {kVK_ANSI_L, 'l', 'L'},
    {kVK_ANSI_Semicolon, ';', ':'},
    {kVK_ANSI_Quote, '\'', '"'},
    {kVK_ANSI_Z, 'z', 'Z'},
    {kVK_ANSI_X, 'x', 'X'},
    {kVK_ANSI_C, 'c', 'C'},
    {kVK_ANSI_V, 'v', 'V'},
    {kVK_ANSI_B, 'b', 'B'},
    {kVK_ANSI_N, 'n', 'N'},
    {kVK_ANSI_M, 'm', 'M'},
    {kVK_ANSI_Comma, ',', '<'},
    {kVK_ANSI_Period, '.', '>'},
    {kVK_ANSI_Slash, '/', '?'},
};

} // namespace

MacLayout macAnsiLayout()
{
    MacLayout layout;
    for (const AnsiKey &key : sAnsiKeys) {
        MacLayout::Key &levels = layout.keys[key.code];
        levels[0] = static_cast<uint>(key.plain);
        levels[MacLayout::sShift] = static_cast<uint>(key.shifted);
    }
    return layout;
}
