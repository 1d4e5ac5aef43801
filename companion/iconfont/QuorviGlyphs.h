#pragma once

/// @file

#include <QChar>

/// The glyphs of the icon font "QuorviIconfont" by meaning.
///
/// @see QIconfont
/// @since 0.1
namespace QuorviGlyphs {

constexpr QChar Disabled{0xe63a}; ///< crossed circle: disabled, nothing set
constexpr QChar Error{0xe70d};    ///< circle with a cross: an error; clears a field
constexpr QChar Warning{0xe71b};  ///< triangle with exclamation mark: not set, failed, conflict
constexpr QChar Correct{0xe725};  ///< circle with a tick: registered, correct

constexpr QChar General{0xe800};    ///< gear
constexpr QChar Appearance{0xe801}; ///< palette
constexpr QChar Capture{0xe802};    ///< camera
constexpr QChar Hotkeys{0xe803};    ///< keyboard
constexpr QChar Mouse{0xe804};      ///< mouse
constexpr QChar Output{0xe805};     ///< folder
constexpr QChar Profiles{0xe806};   ///< badge
constexpr QChar Advanced{0xe807};   ///< wrench

} // namespace QuorviGlyphs
