#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

#include <QStringList>

/// The languages that the person prefers for texts according to the system, the most preferred
/// first and each once, in the system's own forms ("zh-Hans-CN", "en_US", "de").
ORVUTILS_EXPORT QStringList getPreferredLanguages();
