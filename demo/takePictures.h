#pragma once

#include <QString>

class DemoSession;
class QWidget;

/// Draws `mainWindow` and every page of the settings window, in the light and in the dark theme,
/// into `folder`: "<page>-<theme>.png". Prints the path of each picture. Pages that need scrolling
/// get a window that is large enough. Returns what went wrong; empty when nothing did.
QString takePictures(DemoSession &session, QWidget &mainWindow, const QString &folder);
