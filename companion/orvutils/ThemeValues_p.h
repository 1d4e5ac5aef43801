#pragma once

#include <QMap>
#include <QPalette>
#include <QString>

/// Returns the values of the light theme by name.
QMap<QString, QString> lightThemeValues();

/// Returns the values of the dark theme by name.
QMap<QString, QString> darkThemeValues();

/// Returns whether the texts of `palette` have nearly the contrast of black and white.
bool isOfHighContrast(const QPalette &palette);

/// Returns a black and white palette.
QPalette contrastPalette(bool isDark);

/// Returns the values that replace those of a theme while the contrast is high, in the colours of
/// `palette`.
QMap<QString, QString> contrastThemeValues(const QPalette &palette);
