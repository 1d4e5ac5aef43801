#pragma once

#include <QChar>

namespace MtConf {

/// The glyphs of the icon font "QuorviIconfont" that the editors show. `QuorviGlyphs` has the same
/// ones, but another library of the name QIconfont may lack that header.
/// @{
constexpr QChar sDisabledGlyph{0xe63a}; ///< disabled, nothing set
constexpr QChar sErrorGlyph{0xe70d};    ///< an error; clears a field
constexpr QChar sWarningGlyph{0xe71b};  ///< not set, failed, in conflict
constexpr QChar sCorrectGlyph{0xe725};  ///< registered, correct
/// @}

} // namespace MtConf
