#include "WindowIdentity_p.h"

#include "MaltoConfiguration/manage/WindowMemory_p.h"

#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QApplication>
#include <QIcon>
#include <QListView>
#include <QMargins>
#include <QScreen>
#include <QStyle>
#include <QWindow>

namespace MtConf {

namespace {

constexpr QSize sMinimumSize(480, 320); // pixels at 96 dots per inch

/// Returns whether sizes can be computed with `geometry`, which may come from any file.
bool isUsable(const QRect &geometry)
{
    constexpr int sFarthest = 1000000;
    for (const int edge : {geometry.left(), geometry.top(), geometry.right(), geometry.bottom()}) {
        if (edge < -sFarthest || edge > sFarthest)
            return false;
    }
    return geometry.isValid();
}

/// Returns the margins of the frame that the window will probably have: the largest that a window
/// of this program has, and a title bar if none is shown yet.
QMargins expectedFrame()
{
    QMargins frame(0, QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0);
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow *window : windows) {
        if (!window->isVisible() || window->type() != Qt::Window)
            continue;
        const QMargins margins = window->frameMargins();
        frame = QMargins(qMax(frame.left(), margins.left()), qMax(frame.top(), margins.top()),
                         qMax(frame.right(), margins.right()),
                         qMax(frame.bottom(), margins.bottom()));
    }
    return frame;
}

} // namespace

WindowIdentity::WindowIdentity(ConfigurationWindow *window) : WindowFeature(window)
{
    const QIcon icon = QGuiApplication::windowIcon();
    if (!icon.isNull())
        window->setWindowIcon(icon);
    restoreGeometry();
}

void WindowIdentity::retranslate()
{
    // Some platforms append the name of the application to titles that do not end with it.
    const QString name = QGuiApplication::applicationDisplayName();
    window()->setWindowTitle(name.isEmpty() ? tr("Settings") : tr("Settings \u2014 %1").arg(name));
    classList()->setAccessibleName(window()->windowTitle());
}

void WindowIdentity::restoreGeometry()
{
    const QRect saved = WindowMemory::instance()->geometry();
    const QRect geometry = isUsable(saved) ? QRect(saved.topLeft(), QSize(scaled(saved.width()),
                                                                          scaled(saved.height())))
                                           : window()->geometry();
    const QScreen *screen = QGuiApplication::screenAt(geometry.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect available = screen->availableGeometry().marginsRemoved(expectedFrame());
    const QSize smallest(scaled(sMinimumSize.width()), scaled(sMinimumSize.height()));
    window()->setMinimumSize(smallest.boundedTo(available.size()));
    const QSize size = geometry.size().boundedTo(available.size());
    // Inside of the screen, as near as possible to where it was.
    const int x = qBound(available.left(), geometry.x(), available.right() + 1 - size.width());
    const int y = qBound(available.top(), geometry.y(), available.bottom() + 1 - size.height());
    window()->setGeometry(QRect(QPoint(x, y), size));
}

void WindowIdentity::windowClosed()
{
    const QRect geometry = window()->normalGeometry();
    const double factor = scaled(1000) / 1000.0;
    const QSize size(qRound(geometry.width() / factor), qRound(geometry.height() / factor));
    WindowMemory::instance()->setGeometry(QRect(geometry.topLeft(), size));
}

} // namespace MtConf
