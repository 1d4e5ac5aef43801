// Compiled into each example that has a settings window. Opens the window if the example does not,
// and ends the program: exit code 1 if something is wrong with its declarations.

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QAction>
#include <QApplication>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>

namespace {

void check()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        const QList<QAction *> actions = window->findChildren<QAction *>();
        for (QAction *action : actions) {
            if (action->text() == QStringLiteral("Settings…"))
                action->trigger();
        }
    }
    const MtConf::ConfigurationWindow *window = MtConf::ConfigurationWindow::instance();
    if (!window)
        qFatal("no settings window");
    const QStringList problems = window->manager()->checkDeclarations();
    for (const QString &problem : problems)
        QTextStream(stderr) << problem << '\n';
    QTextStream(stdout) << window->manager()->items.size() << " settings\n";
    QCoreApplication::exit(problems.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE);
}

void checkWhenItRuns()
{
    QTimer::singleShot(0, qApp, check);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(checkWhenItRuns)
