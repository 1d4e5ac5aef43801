#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

#include <QFont>

class QString;
class QWidget;

/// Lets a person choose a font in a modal dialog with the given window title; `parent` may be null.
/// Returns the chosen font, sized in points; `initial` untouched when the dialog is cancelled, when
/// nothing in it was changed, and when the parent goes while the dialog is open.
///
/// The dialog shows whole points. Who keeps fonts in pixels passes the pixels as points and takes
/// the points of the result as pixels.
ORVUTILS_EXPORT QFont getFontrByDialog(const QFont &initial, QWidget *parent, const QString &title);
