#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QColor>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>

class QGuiApplication;
class QPalette;
class QWidget;
class SheetWatcher;

/// The theme controller: a light and a dark set of named colours and fonts, and the style sheets
/// that are written in terms of them. GUI thread only.
///
/// A sheet may hold two macros, spelled exactly so and as whole words:
/// - `sca(N)`: N, decimal or negative, times the scale, rounded half up to an integer;
/// - `var(Name)`: the current theme's value of that name, which may itself hold macros.
///
/// They nest (`sca(var(Radius))`) and allow blanks inside the parentheses. Comments are left alone.
///
/// Names in both themes from the start: ColorBg0 (window), ColorBg1 and ColorBg1Border (card and
/// its border), ColorBg2 (hovered), ColorBg3 and ColorBg3Border (input and its border), ColorFg0
/// (text), ColorMain (accent, carries white text), ColorSuccess, ColorWarning, ColorFailed,
/// ColorDisable and FontMain (a list of font families).
class ORVUTILS_EXPORT QThemeCtrl : public QObject
{
    Q_OBJECT

public:
    /// System follows the application's palette.
    enum class Theme { System, Light, Dark };
    Q_ENUM(Theme)

    /// The one controller. May be asked for before the application exists and after it is gone.
    static QThemeCtrl *instance();

    /// Gives `widget` the style sheet made of `files` (disk files or resources, UTF-8), one after
    /// the other, with the macros expanded. `scale` is pixels per design unit; one that is not a
    /// positive number counts as 1. A file that cannot be read is left out, with the warning
    /// "QThemeCtrl::handleQssFile cannot read: " and its name. Nothing happens when `widget` is
    /// null.
    ///
    /// The sheet is not applied again on its own: call this from a slot of sigThemeChanged(). The
    /// disk files are watched while the widget lives, and a change to one emits that signal.
    void handleQssFile(QWidget *widget, const QStringList &files, double scale);

    /// `sheet` with its macros expanded as handleQssFile() does it; takes time proportional to the
    /// texts read and written. What cannot be expanded is reported by one warning each for the life
    /// of the process, beginning "QThemeCtrl::handleQssFile " and ending with the name or text:
    /// - "unknown name: ": the macro is left out;
    /// - "name refers to itself: ", "value too long or too deep: " (an expanded value of more than
    ///   4096 characters, or a chain of more than 64 names), "not a number: ": the macro stays.
    ///
    /// A macro whose parenthesis is not closed before a quote, a brace or a semicolon stays
    /// silently.
    QString expandMacros(const QString &sheet, double scale) const;

    /// Chooses the theme; System at first. Emits sigThemeChanged() when the look changes by it.
    void setTheme(Theme theme);
    /// The theme as chosen.
    Theme theme() const;
    /// Whether the theme that is shown, chosen or followed, is the dark one.
    bool isDark() const;

    /// The value of `name` in the theme shown, as it was set (macros not expanded); empty for an
    /// unknown name.
    QString value(const QString &name) const;
    /// The value of `name` as a colour; invalid unless it is, macros expanded, a colour name or
    /// "#rgb", "#rrggbb" or "#aarrggbb".
    QColor color(const QString &name) const;
    /// Adds or overrides a name in a theme, or in both for System. Emits nothing: sheets show it
    /// when they are next handed to handleQssFile().
    void setValue(Theme theme, const QString &name, const QString &value);

    /// The shown theme's colours as a palette, so that a host's plain widgets and dialogs fit:
    /// `qApp->setPalette(...)` with it at start-up and on sigThemeChanged(). Such a palette is
    /// never mistaken for a change of the system's own. While the theme is System, set `QPalette()`
    /// instead: an application with a palette of its own no longer hears of the system's changes.
    QPalette palette() const;

Q_SIGNALS:
    /// The theme shown changed, or a watched sheet did: apply sheets, and icons drawn in theme
    /// colours, again.
    void sigThemeChanged();

private:
    QThemeCtrl();
    void followApplication();
    void onApplicationPalette(const QPalette &palette);
    bool isOwnPalette(const QPalette &palette) const;
    void updateLook();
    void warnOnce(const QString &text) const;
    const QMap<QString, QString> &values() const;
    QString expanded(const QMap<QString, QString> &values, const QString &text, double scale) const;
    QColor colorOf(const QMap<QString, QString> &values, const QString &name) const;

    QMap<QString, QString> mLightValues;
    QMap<QString, QString> mDarkValues;
    Theme mTheme = Theme::System;
    bool mSystemDark = false;
    bool mDark = false;
    QPointer<QGuiApplication> mApplication;
    SheetWatcher *mWatcher;
    mutable QSet<QString> mWarned;
};
