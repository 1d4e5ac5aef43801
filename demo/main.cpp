#include "DemoArguments.h"
#include "DemoSession.h"
#include "KeyHolder.h"
#include "MainWindow.h"
#include "MessageLog.h"
#include "takePictures.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <memory>

namespace {

constexpr int sBadArguments = 2;

int fail(const QString &message)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << message << '\n';
    return sBadArguments;
}

/// Makes the folder of the local file the working directory, where the settings window saves its
/// geometry. So both files are together, wherever the program is started.
bool enterFolderOf(const QString &localFile)
{
    return QDir::setCurrent(QFileInfo(localFile).path());
}

DemoSession::Look lookOf(const DemoArguments &arguments)
{
    return arguments.isClassic ? DemoSession::Look::Classic : DemoSession::Look::Modern;
}

int run(const DemoArguments &arguments)
{
    if (!enterFolderOf(arguments.localFile))
        return fail(QStringLiteral("Cannot enter the folder of %1").arg(arguments.localFile));
    const MessageLog log;
    DemoSession session(arguments.localFile, lookOf(arguments));
    session.load(arguments.configFile);
    if (arguments.theme)
        session.chooseTheme(*arguments.theme);
    if (!arguments.language.isEmpty())
        session.chooseLanguage(arguments.language);
    MainWindow window(session, log);
    window.show();
    window.showSettings(arguments.page);
    return QApplication::exec();
}

int drawPictures(const DemoArguments &arguments)
{
    // Nothing is written into the user's folders, not even the geometry of the window.
    const QTemporaryDir folder;
    const QString unused = folder.filePath(QStringLiteral("settings.json"));
    if (!folder.isValid() || !QDir::setCurrent(folder.path()))
        return fail(folder.errorString());
    QString error;
    {
        const MessageLog log;
        DemoSession session(arguments.localFile.isEmpty() ? unused : arguments.localFile,
                            lookOf(arguments));
        session.load(arguments.configFile);
        ConfStorage::instance()->mLocalSaveFile = unused; // the pictures change settings
        if (!arguments.language.isEmpty())
            session.chooseLanguage(arguments.language);
        MainWindow window(session, log);
        error = takePictures(session, window, arguments.picturesFolder);
    }
    QDir::setCurrent(QDir::rootPath()); // a working directory cannot be removed
    return error.isEmpty() ? 0 : fail(error);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("malto-demo"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quorvi Capture"));
    DemoArguments arguments;
    DemoArguments::Outcome outcome;
    {
        // Help and errors need no display, and the dots per inch must be set before the
        // QApplication is created.
        const QCoreApplication early(argc, argv);
        outcome = arguments.parse(QCoreApplication::arguments());
        if (outcome == DemoArguments::Outcome::Failed)
            return fail(arguments.message);
        if (outcome == DemoArguments::Outcome::ShowHelp) {
            QTextStream(stdout) << arguments.message;
            return 0;
        }
    }
    if (arguments.scale)
        qputenv("QT_FONT_DPI", QByteArray::number(qRound(96 * *arguments.scale)));
    const QApplication application(argc, argv);
    if (outcome == DemoArguments::Outcome::HoldKey)
        return KeyHolder::run(arguments.keyToHold);
    if (arguments.hasHighContrast)
        QThemeCtrl::instance()->setContrast(QThemeCtrl::Contrast::High);
    std::unique_ptr<KeyHolder> holder;
    if (arguments.occupied) {
        holder = std::make_unique<KeyHolder>(QCoreApplication::applicationFilePath(),
                                             DemoArguments::occupiedKey());
        if (!holder->holds())
            return fail(QStringLiteral("No program can hold %1 here")
                            .arg(DemoArguments::occupiedKey().toString()));
    }
    return arguments.picturesFolder.isEmpty() ? run(arguments) : drawPictures(arguments);
}
