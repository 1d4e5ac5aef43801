// Compiled into the example "hotkey-tray". Prints what its status bar says, and when its window is
// shown and hidden. Each line of the input hides the window.

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QSocketNotifier>
#include <QStatusBar>
#include <QTextStream>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace {

void print(const QString &line)
{
    QTextStream(stdout) << line << '\n';
    std::fflush(stdout);
}

/// Sees the events of the window.
class Reporter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Hide)
            print("hidden");
        if (event->type() == QEvent::Show)
            print("shown, token " + qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
        return false;
    }
};

void drive()
{
    QMainWindow *window = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *candidate : windows) {
        if (auto *found = qobject_cast<QMainWindow *>(candidate))
            window = found;
    }
    if (!window)
        qFatal("no window");
    window->hide();
    window->installEventFilter(new Reporter(window));
    QObject::connect(window->statusBar(), &QStatusBar::messageChanged, window, print);
    print(window->statusBar()->currentMessage());
    auto *input = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, window);
    QObject::connect(input, &QSocketNotifier::activated, window, [window] {
        char line[16];
        if (::read(STDIN_FILENO, line, sizeof line) <= 0)
            QCoreApplication::exit();
        else
            window->hide();
    });
}

void driveWhenItRuns()
{
    QTimer::singleShot(0, qApp, drive);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(driveWhenItRuns)
