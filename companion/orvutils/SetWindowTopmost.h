#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

class QWidget;

/// What a topmost window is for. The values stand for levels of the macOS window server, where a
/// higher one stays above the lower; elsewhere there is one level, and all act alike.
enum OrvWindowType {
    OrvWindowTypeNormal = 0,
    OrvWindowTypeTool = 1,
    OrvWindowTypePanel = 2,
    OrvWindowTypeOverlay = 3,
    OrvWindowTypeSettings = 4,
};

/// Keeps `window` above other windows, or no longer does. For a child widget its window is meant;
/// null does nothing. Geometry, minimised or maximised state and visibility stay as they are.
ORVUTILS_EXPORT void SetWindowTopmost(QWidget *window, bool on, OrvWindowType type);
