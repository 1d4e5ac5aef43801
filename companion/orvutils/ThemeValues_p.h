#pragma once

#include <QMap>
#include <QString>

/// Returns the values of the light theme by name.
QMap<QString, QString> lightThemeValues();

/// Returns the values of the dark theme by name.
QMap<QString, QString> darkThemeValues();
