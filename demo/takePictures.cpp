#include "takePictures.h"

#include "DemoSession.h"
#include "declareSettings.h"
#include "designScale.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QCoreApplication>
#include <QEvent>
#include <QImage>
#include <QPixmap>
#include <QTextStream>

namespace {

constexpr int sMostRounds = 100;

/// Runs the event loop until two pictures of `window` are equal, and returns the last one. Layouts,
/// delayed polishing and deletions are complete then.
QImage settledPicture(QWidget *window)
{
    QImage picture;
    for (int round = 0; round < sMostRounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        const QImage next = window->grab().toImage();
        if (next == picture)
            break;
        picture = next;
    }
    return picture;
}

QString save(const QImage &picture, const QString &path)
{
    if (!picture.save(path))
        return QCoreApplication::translate("takePictures", "Cannot write %1").arg(path);
    QTextStream(stdout) << path << '\n';
    return QString();
}

} // namespace

QString takePictures(DemoSession &session, QWidget &mainWindow, const QString &folder)
{
    MtConf::ConfigurationWindow *window = session.manager().ShowWindow();
    // The size of the modern window does not depend on the screen here.
    const bool isModern = session.manager().windowLook == MtConf::ModernLook;
    const QSize size = isModern ? (QSizeF(735, 517.5) * designScale(window)).toSize()
                                : window->size();
    mainWindow.show();
    for (const QThemeCtrl::Theme theme : {QThemeCtrl::Theme::Light, QThemeCtrl::Theme::Dark}) {
        DemoSession::showTheme(static_cast<int>(theme));
        const QString path = folder + QStringLiteral("/%1-")
                             + (theme == QThemeCtrl::Theme::Dark ? QStringLiteral("dark.png")
                                                                 : QStringLiteral("light.png"));
        QString error = save(settledPicture(&mainWindow), path.arg(QStringLiteral("main")));
        const QStringList pages = pageNames();
        for (const QString &page : pages) {
            if (!error.isEmpty())
                return error;
            window->resize(size);
            window->switchToView(page);
            settledPicture(window);
            window->fitToPage();
            const QString name = page.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
            error = save(settledPicture(window), path.arg(name));
        }
        if (!error.isEmpty())
            return error;
    }
    return QString();
}
