#pragma once

#include <QKeySequence>
#include <QString>
#include <QStringList>

#include <optional>

/// What the command line asks for. Paths are absolute after `parse`.
class DemoArguments
{
public:
    enum class Outcome {
        Run,      ///< everything is in order
        HoldKey,  ///< be the other program, see `KeyHolder`
        ShowHelp, ///< `message` is the help text
        Failed    ///< `message` says why
    };

    /// Reads `commandLine`, whose first element is the program, and looks at the files it names:
    /// the folder of the local file and that of the pictures are made. Needs an application object,
    /// but no display.
    Outcome parse(const QStringList &commandLine);
    /// The hotkey that another program takes with `--occupied`.
    static QKeySequence occupiedKey();

    QString localFile;        ///< where settings are kept; empty with pictures unless it was given
    QString configFile;       ///< a file of settings to take over; may be empty
    QString page;             ///< the page to open; may be empty
    std::optional<int> theme; ///< a `QThemeCtrl::Theme`
    QString language;         ///< code of a language; may be empty
    std::optional<double> scale; ///< multiplies the screen's dots per inch
    QString picturesFolder;      ///< where to draw every page; empty: run
    bool occupied = false;       ///< whether another program takes one of the hotkeys first
    QString keyToHold;           ///< the key to hold for another instance; empty: none
    QString message;             ///< for the console
};
