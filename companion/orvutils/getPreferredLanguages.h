#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

#include <QStringList>

/// Returns the user's preferred languages for texts from the system settings, the most preferred
/// first, without duplicates, in the system's own form ("zh-Hans-CN", "en_US", "de").
///
/// @since 0.1
ORVUTILS_EXPORT QStringList getPreferredLanguages();
