#pragma once

#include <QString>

class DemoSession;
class QWidget;

/// Saves pictures of `mainWindow` and of every page of the settings window, in the light and in the
/// dark theme, as "<page>-<theme>.png" in `folder`. Prints the path of each picture. The window is
/// enlarged for pages that need scrolling. Returns an error message, or an empty text.
QString takePictures(DemoSession &session, QWidget &mainWindow, const QString &folder);
