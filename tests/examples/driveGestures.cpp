// Compiled into the example "gestures". Makes gestures on its board, prints the status bar after
// each, and ends the program.

#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>
#include <QTextStream>
#include <QTimer>
#include <QtTest>

namespace {

void turnWheel(QWidget *board, Qt::KeyboardModifiers modifiers, const QPoint &angleDelta)
{
    QWheelEvent event({20, 20}, board->mapToGlobal(QPoint(20, 20)), {}, angleDelta, Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(board, &event);
}

void drag(QWidget *board, int x)
{
    QMouseEvent event(QEvent::MouseMove, QPointF(x, 50), QPointF(x, 50),
                      board->mapToGlobal(QPoint(x, 50)), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(board, &event);
}

void drive()
{
    const QMainWindow *window = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *candidate : windows) {
        if (const auto *found = qobject_cast<const QMainWindow *>(candidate))
            window = found;
    }
    if (!window)
        qFatal("no window");
    QTextStream out(stdout);
    const auto print = [window, &out] { out << window->statusBar()->currentMessage() << '\n'; };
    QWidget *board = window->centralWidget();
    QTest::mouseClick(board, Qt::LeftButton, Qt::NoModifier, {50, 50});
    print();
    QTest::mouseClick(board, Qt::LeftButton, Qt::ShiftModifier, {50, 50});
    QTest::mouseClick(board, Qt::LeftButton, Qt::ShiftModifier, {90, 50});
    print();
    turnWheel(board, Qt::NoModifier, {0, 120});
    turnWheel(board, Qt::ControlModifier, {120, 0});
    for (int i = 0; i < 4; ++i)
        turnWheel(board, Qt::ControlModifier, {0, 30}); // a fine wheel: together one notch
    print();
    QTest::mousePress(board, Qt::LeftButton, Qt::NoModifier, {50, 50});
    drag(board, 80);
    drag(board, 120);
    QTest::mouseRelease(board, Qt::LeftButton, Qt::NoModifier, {120, 50});
    print();
    QTest::mouseClick(board, Qt::RightButton, Qt::NoModifier, {50, 50});
    QTest::mouseDClick(board, Qt::RightButton, Qt::NoModifier, {50, 50});
    print();
    QCoreApplication::exit();
}

void driveWhenItRuns()
{
    QTimer::singleShot(0, qApp, drive);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(driveWhenItRuns)
