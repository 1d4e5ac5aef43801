#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// The characters that the keys of a Mac keyboard type with one keyboard layout.
struct MacLayout
{
    // Bits of a level: the modifiers that select one of the characters of a key.
    static constexpr size_t sShift = 0x1;
    static constexpr size_t sOption = 0x2;
    static constexpr size_t sCommand = 0x4;
    static constexpr size_t sLevels = 8;
    static constexpr size_t sKeys = 128;

    /// The characters of one key by level; 0 where it types none.
    using Key = std::array<uint, sLevels>;

    /// The keys by Carbon's virtual key code. Keys of the keypad and keys that every layout has,
    /// such as Return, are not used.
    std::array<Key, sKeys> keys{};
};

/// Returns the layout of an American keyboard, without Option.
MacLayout macAnsiLayout();
