#pragma once

#include <MaltoConfiguration/MaltoConfiguration.h>

#include <OrvUtils/OrvScreenManager.h>
#include <OrvUtils/QThemeCtrl.h>

#include <QIconfont/QIconfont.h>
#include <QIconfont/QuorviGlyphs.h>

#include <QxtGlobalShortcut>

#include <QtWidgets>

// What the blocks of the pages take for granted: a program that has these.

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

// What the program does.
void capture();
void applyDelay(int seconds);
