#pragma once

#include <MaltoConfiguration/MaltoConfiguration.h>

#include <QtWidgets>

// Declarations that every block may use, as described in docs/README.md. A block that uses a
// companion library shows its include.

extern MtConf::MtConfManage &settings; ///< the program's manager
extern QMainWindow *mainWindow;        ///< the program's window
extern ConfStorage *store;             ///< `ConfStorage::instance()`

// The variables of the settings.
extern bool playSound;
extern bool showHidden;
extern int delay;
extern int volume;
extern QString language;
extern QColor frameColor;
extern QKeySequence captureHotkey;

// The functions of the program.
void capture();
void applyDelay(int seconds);
