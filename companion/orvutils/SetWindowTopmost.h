#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

class QWidget;

/// What a topmost window is for. This implementation has one level for all types, on every system;
/// another library of this name may have a level for each type.
///
/// @since 0.1
enum OrvWindowType {
    OrvWindowTypeNormal = 0,
    OrvWindowTypeTool = 1,
    OrvWindowTypePanel = 2,
    OrvWindowTypeOverlay = 3,
    OrvWindowTypeSettings = 4,
};

/// Keeps the window of `window` above ordinary windows if `on` is true, and no longer does so if it
/// is false. Does nothing if `window` is null. `type` is not used. Geometry, minimised or maximised
/// state and visibility do not change.
///
/// @since 0.1
ORVUTILS_EXPORT void SetWindowTopmost(QWidget *window, bool on, OrvWindowType type);
