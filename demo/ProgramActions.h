#pragma once

#include <QAction>

/// The actions of the program whose shortcuts are settings.
struct ProgramActions
{
    explicit ProgramActions(QObject *owner)
        : showSettings(new QAction(owner)), save(new QAction(owner)), quit(new QAction(owner))
    {
    }

    QAction *showSettings;
    QAction *save;
    QAction *quit;
};
