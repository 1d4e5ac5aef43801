#pragma once

#include <QLatin1String>

/// What users and logs see instead of a secret value, whatever its length.
inline constexpr QLatin1String sSecretText{"***"};
