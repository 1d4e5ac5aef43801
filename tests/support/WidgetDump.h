#pragma once

#include <QString>

class QWidget;

/// Returns the tree of widgets and layouts of `window` as text, for comparing: one line for each
/// object with its class, name, geometry in pixels, focus policy and font, and below it its
/// texts, values, dynamic properties, style sheet and rows. The style sheet of `window` itself is
/// left out. The last lines are the tab order.
///
/// The text contains nothing that differs between two runs, such as addresses.
QString widgetDump(QWidget *window);
