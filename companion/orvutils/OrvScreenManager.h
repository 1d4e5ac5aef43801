#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVector>

class QGuiApplication;
class QScreen;
class QWidget;

/// What a window needs to know of a screen.
struct OrvScreen
{
    QRect rect; ///< its rectangle in the virtual desktop, pixels
    double dpi; ///< its logical dots per inch, always positive
};

/// The screens. GUI thread only. Where there is no screen at all, or no application yet, the record
/// has an empty rectangle and 96 dots per inch (72 on macOS).
class ORVUTILS_EXPORT OrvScreenManager : public QObject
{
    Q_OBJECT

public:
    /// The one manager. May be asked for before the application exists and after it is gone.
    static OrvScreenManager *instance();

    /// The screen that the window of `widget` is on; for a window not created yet, the one that its
    /// centre lies on; otherwise, and for null, the primary screen.
    OrvScreen widgetScreen(const QWidget *widget) const;
    /// The primary screen.
    OrvScreen primaryScreen() const;
    /// All screens, the primary one first.
    QVector<OrvScreen> screens() const;

Q_SIGNALS:
    /// A screen came or went, another one is primary, or a rectangle or a dots-per-inch value
    /// changed.
    void sigScreensChanged();

private:
    OrvScreenManager() = default;
    void followApplication();
    void followScreen(QScreen *screen);

    QPointer<QGuiApplication> mApplication;
};
