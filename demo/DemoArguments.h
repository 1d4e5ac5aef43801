#pragma once

#include <QKeySequence>
#include <QString>
#include <QStringList>

#include <optional>

/// The arguments of the command line. Paths are absolute after `parse`.
class DemoArguments
{
public:
    enum class Outcome {
        Run,      ///< the arguments are valid
        HoldKey,  ///< act as the other program, see `KeyHolder`
        ShowHelp, ///< `message` is the help text
        Failed    ///< `message` is the error
    };

    /// Parses `commandLine`, whose first element is the program, and checks the files that it
    /// names. Creates the folders of the local file and of the pictures. Needs an application
    /// object, but no display.
    Outcome parse(const QStringList &commandLine);
    /// Returns the hotkey that another program registers with `--occupied`.
    static QKeySequence occupiedKey();

    QString localFile;            ///< the file of settings; may be empty if pictures are drawn
    QString configFile;           ///< a configuration file to load; may be empty
    QString page;                 ///< the page to open; may be empty
    std::optional<int> theme;     ///< a `QThemeCtrl::Theme`
    QString language;             ///< the code of a language; may be empty
    std::optional<double> scale;  ///< multiplies the screen's dots per inch
    QString picturesFolder;       ///< the folder for pictures of every page; empty to run normally
    bool isClassic = false;       ///< whether the settings window is the classic one
    bool hasHighContrast = false; ///< whether the colours are those of high contrast
    bool occupied = false;        ///< whether another program registers one of the hotkeys first
    QString keyToHold;            ///< the key to hold for another instance; empty for none
    QString message;              ///< the text for the console
};
