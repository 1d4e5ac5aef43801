#pragma once

#include <QMap>
#include <QString>

/// The names of the light theme and their values.
QMap<QString, QString> lightThemeValues();

/// The names of the dark theme and their values.
QMap<QString, QString> darkThemeValues();
