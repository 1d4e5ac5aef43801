#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

#include <QFont>

class QString;
class QWidget;

/// Opens a modal font dialog with the window title `title` and returns the chosen font with its
/// size in points. Returns `initial` if the user cancels the dialog or changes nothing, and if the
/// parent is deleted while the dialog is open. `parent` may be null.
///
/// The dialog shows integer point sizes. A caller with sizes in pixels passes the pixels as points
/// and reads the points of the result as pixels.
///
/// @since 0.1
ORVUTILS_EXPORT QFont getFontrByDialog(const QFont &initial, QWidget *parent, const QString &title);
