#pragma once

#include <OrvUtils/OrvScreenManager.h>

class QWidget;

/// Returns the pixels per point on the screen of `widget`. Sizes are designed in points, as in the
/// style sheets.
inline double designScale(const QWidget *widget)
{
    return OrvScreenManager::instance()->widgetScreen(widget).dpi / 72;
}
