#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QString>

/// Returns a copy of `text` in which each "SCA(n)" is replaced by n times `scale`, rounded half up.
///
/// After a replacement the search continues at the end position that the macro had before it was
/// replaced. Since the number is shorter than the macro, a macro that follows closely is skipped
/// and stays unchanged: at scale 2, "SCA(4) SCA(8)" becomes "8 SCA(8)".
///
/// For hosts with texts of their own; the window's style sheets use QThemeCtrl.
///
/// @see setQssForWidget, QThemeCtrl::expandMacros
/// @since 0.1
MALTO_EXPORT QString replaceSCAWithScaledValue(const QString &text, float scale);
