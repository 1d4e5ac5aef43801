#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QString>

/// Replaces every "SCA(n)" in a copy of `text` by n times `scale`, rounded half up. A macro that
/// begins inside the span that the macro before it filled before it was replaced is left as it
/// stands. For hosts with texts of their own; the window's style sheets go through the theme
/// controller.
MALTO_EXPORT QString replaceSCAWithScaledValue(const QString &text, float scale);
