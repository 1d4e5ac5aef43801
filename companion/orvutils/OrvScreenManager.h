#pragma once

#include <OrvUtils/orvutils_export.h>

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QVector>

class QGuiApplication;
class QScreen;
class QWidget;

/// The properties of a screen that windows need.
///
/// @since 0.1
struct OrvScreen
{
    QRect rect; ///< the rectangle in the virtual desktop, in pixels (Qt 6: device-independent ones)
    double dpi; ///< the logical dots per inch, always positive
};

/// Provides the properties of the screens. GUI thread only. If there is no screen or no
/// application, the rectangle of a screen is empty and its dots per inch are 96 (72 on macOS).
///
/// @since 0.1
class ORVUTILS_EXPORT OrvScreenManager : public QObject
{
    Q_OBJECT

public:
    /// Returns the manager of the process. May be called before the application is created and
    /// after it is destroyed.
    static OrvScreenManager *instance();

    /// Returns the screen of the window of `widget`. If the window has no native window yet,
    /// returns the screen that contains its centre. Returns the primary screen if there is none and
    /// if `widget` is null.
    OrvScreen widgetScreen(const QWidget *widget) const;
    /// Returns the primary screen.
    OrvScreen primaryScreen() const;
    /// Returns all screens, the primary screen first.
    QVector<OrvScreen> screens() const;

Q_SIGNALS:
    /// Emitted after a screen was added or removed, another screen became the primary one, or the
    /// rectangle or the dots per inch of a screen changed.
    void sigScreensChanged();

private:
    OrvScreenManager() = default;
    void followApplication();
    void followScreen(QScreen *screen);

    QPointer<QGuiApplication> mApplication;
};
