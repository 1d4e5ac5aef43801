#include <OrvUtils/OrvScreenManager.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

#ifdef Q_OS_MACOS
constexpr double sUsualDpi = 72;
#else
constexpr double sUsualDpi = 96;
#endif

OrvScreen record(const QScreen *screen)
{
    if (!screen)
        return {QRect(), sUsualDpi};
    const double dpi = screen->logicalDotsPerInch();
    return {screen->geometry(), dpi > 0 ? dpi : sUsualDpi};
}

} // namespace

OrvScreenManager *OrvScreenManager::instance()
{
    // Never destroyed: static windows of the host may use it while the process exits.
    static OrvScreenManager *const sInstance = new OrvScreenManager;
    sInstance->followApplication();
    return sInstance;
}

OrvScreen OrvScreenManager::widgetScreen(const QWidget *widget) const
{
    if (!widget)
        return primaryScreen();
    const QWidget *const window = widget->window();
    if (const QWindow *const handle = window->windowHandle())
        return handle->screen() ? record(handle->screen()) : primaryScreen();
    const QScreen *const under = QGuiApplication::screenAt(window->geometry().center());
    return under ? record(under) : primaryScreen();
}

OrvScreen OrvScreenManager::primaryScreen() const
{
    return record(QGuiApplication::primaryScreen());
}

QVector<OrvScreen> OrvScreenManager::screens() const
{
    QVector<OrvScreen> result;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        result.append(record(screen));
    return result;
}

void OrvScreenManager::followApplication()
{
    auto *const application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application || application == mApplication)
        return;
    mApplication = application;
    connect(application, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        followScreen(screen);
        Q_EMIT sigScreensChanged();
    });
    connect(application, &QGuiApplication::screenRemoved, this,
            &OrvScreenManager::sigScreensChanged);
    connect(application, &QGuiApplication::primaryScreenChanged, this,
            &OrvScreenManager::sigScreensChanged);
    const QList<QScreen *> all = QGuiApplication::screens();
    for (QScreen *screen : all)
        followScreen(screen);
}

void OrvScreenManager::followScreen(QScreen *screen)
{
    // Unique: while the application starts, screenAdded() is also emitted for the first screens.
    connect(screen, &QScreen::geometryChanged, this, &OrvScreenManager::sigScreensChanged,
            Qt::UniqueConnection);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &OrvScreenManager::sigScreensChanged,
            Qt::UniqueConnection);
}
