#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QColor>
#include <QMap>
#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QSet>
#include <QStringList>

class QGuiApplication;
class QWidget;
class SheetWatcher;

/// The theme controller: a light and a dark theme, each a set of named colours and fonts, and the
/// style sheets that use these names. GUI thread only.
///
/// A sheet may contain two macros, in exactly this spelling and as whole words:
/// - `sca(N)`: the number N, which may be decimal or negative, times the scale, rounded half up to
///   an integer;
/// - `var(Name)`: the value of Name in the current theme, which may contain macros.
///
/// Macros can be nested (`sca(var(Radius))`), with spaces inside the parentheses. Macros in
/// comments are not expanded.
///
/// Names that both themes define: ColorBg0 (window), ColorBg1 and ColorBg1Border (card and its
/// border), ColorBg2 (hover), ColorBg3 and ColorBg3Border (input and its border), ColorFg0 (text),
/// ColorMain (accent, a background for white text), ColorSuccess, ColorWarning, ColorFailed,
/// ColorDisable and FontMain (a list of font families).
///
/// @since 0.1
class ORVUTILS_EXPORT QThemeCtrl : public QObject
{
    Q_OBJECT

public:
    /// The themes. System follows the application's palette.
    enum class Theme { System, Light, Dark };
    Q_ENUM(Theme)

    /// Returns the controller of the process. May be called before the application is created and
    /// after it is destroyed.
    static QThemeCtrl *instance();

    /// Sets the concatenated `files` (disk files or resources, UTF-8) with expanded macros as the
    /// style sheet of `widget`. `scale` is in pixels per design unit; 1 is used if it is not a
    /// positive number. A file that cannot be read is skipped with the warning
    /// "QThemeCtrl::handleQssFile cannot read: " and its name. Does nothing if `widget` is null.
    ///
    /// The style sheet is not updated automatically: call this function from a slot of
    /// sigThemeChanged(). Disk files are watched as long as the widget exists, and a change of one
    /// emits that signal.
    void handleQssFile(QWidget *widget, const QStringList &files, double scale);

    /// Returns `sheet` with its macros expanded as handleQssFile() does it. The time is linear in
    /// the size of input and output. A macro that cannot be expanded is logged as a warning, each
    /// warning once per process. It starts with "QThemeCtrl::handleQssFile " and one of the
    /// following texts and ends with the name or the argument:
    /// - "unknown name: ": the macro is removed;
    /// - "name refers to itself: ", "value too long or too deep: " (an expanded value of more than
    ///   4096 characters, or a chain of more than 64 names), "not a number: ": the macro is kept.
    ///
    /// A macro whose parenthesis is not closed before a quote, brace or semicolon is kept without a
    /// warning.
    QString expandMacros(const QString &sheet, double scale) const;

    /// Which colours the names that begin with "Modern" have.
    enum class Contrast {
        System, ///< those of the palette while it is one of high contrast, or else the theme's
        Normal, ///< the theme's
        High    ///< black and white, or the palette's while it is one of high contrast
    };
    Q_ENUM(Contrast)

    /// Sets the contrast; System by default. The palette of the application is one of high contrast
    /// if its texts have a contrast ratio of at least 20 to 1 with windows and fields, which nearly
    /// is that of black and white. Emits sigThemeChanged() if a colour changes.
    void setContrast(Contrast contrast);
    /// Returns the contrast that was set.
    Contrast contrast() const;
    /// Returns whether the contrast, set or followed, is high.
    bool isHighContrast() const;

    /// Sets the theme; System by default. Emits sigThemeChanged() if isDark() changes.
    void setTheme(Theme theme);
    /// Returns the theme that was set.
    Theme theme() const;
    /// Returns whether the current theme, set or followed, is the dark one.
    bool isDark() const;

    /// Returns the value of `name` in the current theme with its macros not expanded; empty for an
    /// unknown name.
    QString value(const QString &name) const;
    /// Returns the value of `name` with its macros expanded as a colour; invalid unless it is a
    /// colour name or has the form "#rgb", "#rrggbb" or "#aarrggbb".
    QColor color(const QString &name) const;
    /// Sets the value of `name` in a theme, or in both themes for System. Emits nothing: sheets use
    /// the value at their next handleQssFile().
    void setValue(Theme theme, const QString &name, const QString &value);

    /// Returns a palette of the colours of the current theme. Call `qApp->setPalette()` with it at
    /// startup and on sigThemeChanged(), so that widgets and dialogs without a style sheet match
    /// the theme. It is not mistaken for a change of the system's palette. While the theme is
    /// System, set `QPalette()` instead: an application with its own palette does not receive
    /// changes of the system's palette.
    QPalette palette() const;

Q_SIGNALS:
    /// Emitted after the current theme or a watched sheet has changed. Apply style sheets and icons
    /// in theme colours again.
    void sigThemeChanged();

private:
    QThemeCtrl();
    void followApplication();
    void onApplicationPalette(const QPalette &palette);
    bool isOwnPalette(const QPalette &palette) const;
    void updateLook();
    void warnOnce(const QString &text) const;
    QMap<QString, QString> values() const;
    QMap<QString, QString> contrastValues() const;
    QString expanded(const QMap<QString, QString> &values, const QString &text, double scale) const;
    QColor colorOf(const QMap<QString, QString> &values, const QString &name) const;

    QMap<QString, QString> mLightValues;
    QMap<QString, QString> mDarkValues;
    Theme mTheme = Theme::System;
    bool mSystemDark = false;
    bool mDark = false;
    Contrast mContrast = Contrast::System;
    QPalette mSystemPalette;
    QMap<QString, QString> mContrastValues; // empty unless the contrast is high
    QPointer<QGuiApplication> mApplication;
    SheetWatcher *mWatcher;
    mutable QSet<QString> mWarned;
};
