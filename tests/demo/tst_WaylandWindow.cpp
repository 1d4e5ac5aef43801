#include "DemoFixture.h"
#include "demo/declareSettings.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"
#include "support/WaylandFrames.h"
#include "support/XClient.h"
#include "support/XPointer.h"
#include "support/XScreen.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QComboBox>
#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>

#include <limits>

Q_DECLARE_METATYPE(DemoSession::Look)

/// The settings window on a Wayland compositor, where a program can neither place a window nor keep
/// it above others. A breach of the protocol ends the program, and Qt warns of what it cannot do.
class tst_WaylandWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void everyPageOpensItsListsAndDialogs_data();
    void everyPageOpensItsListsAndDialogs();
    void menusOfRowsOpen();
    void theCompositorDecidesTheGeometry();
    void stayingOnTopIsAskedForInVain();
    void listsAndDialogsWereOpened();
    void aListOpensWithTheMouse_data();
    void aListOpensWithTheMouse();
    void hotkeyIsRecorded();

private:
    static void settle()
    {
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
    }
    void verifyPicture();
    static int differingPixels(const QImage &a, const QImage &b);
    void openLists();
    void openDialogs();
    void openWithMouse(const QComboBox *box) const;
    static bool isShown(const QWidget *widget)
    {
        return widget->isVisible() && widget->windowHandle() && widget->windowHandle()->isExposed();
    }

    std::unique_ptr<DemoFixture> mDemo;
    std::unique_ptr<LogCapture> mLog;
    std::unique_ptr<XPointer> mMouse; // of the compositor, which is a window on an X server
    int mLists = 0;
    int mDialogs = 0;
};

void tst_WaylandWindow::initTestCase()
{
    if (!QGuiApplication::platformName().startsWith("wayland"))
        QSKIP("needs a Wayland compositor");
    mMouse = std::make_unique<XPointer>();
}

void tst_WaylandWindow::init()
{
    mLog = std::make_unique<LogCapture>();
    mDemo = std::make_unique<DemoFixture>();
}

void tst_WaylandWindow::cleanup()
{
    if (DemoFixture::window())
        awaitFrames(DemoFixture::window());
    mDemo.reset();
    QStringList warnings = LogCapture::texts(QtWarningMsg) + LogCapture::texts(QtCriticalMsg);
    // Qt 5 asks for it itself when a widget of a window that is not active gets the focus.
    warnings.removeAll(QStringLiteral("Wayland does not support QWindow::requestActivate()"));
    mLog.reset();
    QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
}

void tst_WaylandWindow::everyPageOpensItsListsAndDialogs_data()
{
    QTest::addColumn<DemoSession::Look>("look");
    QTest::addColumn<QString>("page");
    const QStringList pages = pageNames();
    for (const QString &page : pages) {
        QTest::newRow(qPrintable("classic: " + page)) << DemoSession::Look::Classic << page;
        QTest::newRow(qPrintable("modern: " + page)) << DemoSession::Look::Modern << page;
    }
}

void tst_WaylandWindow::everyPageOpensItsListsAndDialogs()
{
    QFETCH(const DemoSession::Look, look);
    QFETCH(const QString, page);
    mDemo->start(QString(), look);
    QVERIFY(mDemo->open(page));
    QVERIFY(isShown(mDemo->window()));
    verifyPicture();
    openLists();
    openDialogs();
}

/// Waits until the compositor shows the window as it is drawn, and saves the picture.
void tst_WaylandWindow::verifyPicture()
{
    QWidget *const window = mDemo->window();
    QTRY_COMPARE(window->size(), window->screen()->size());
    QImage shown;
    const auto isShownAsDrawn = [&] {
        shown = pictureOfScreen(window->rect());
        return differingPixels(shown, window->grab().toImage()) < 1000; // such as the mouse pointer
    };
    const bool isAlike = QTest::qWaitFor(isShownAsDrawn);
    const QString name = QString(QTest::currentDataTag()).replace(": ", "-");
    const QString file = QString(PICTURES_FOLDER "/%1.png").arg(name);
    QVERIFY(QDir().mkpath(PICTURES_FOLDER));
    QVERIFY(shown.save(file));
    QVERIFY2(isAlike, qPrintable(file));
}

int tst_WaylandWindow::differingPixels(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return std::numeric_limits<int>::max();
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    }
    return count;
}

void tst_WaylandWindow::openLists()
{
    auto *area = DemoFixture::child<QScrollArea>("scrollArea");
    const QList<QComboBox *> boxes = area->findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        if (!box->isVisible() || !box->isEnabled())
            continue;
        area->ensureWidgetVisible(box);
        box->showPopup();
        settle(); // the compositor may close the list again: there was no input
        mLists += box->view()->isVisible();
        awaitFrames(box->view()->window());
        box->hidePopup();
        settle();
    }
}

void tst_WaylandWindow::openDialogs()
{
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [this] {
        QPointer<QWidget> top = QApplication::activePopupWidget();
        if (!top)
            top = QApplication::activeModalWidget();
        if (!top || !isShown(top))
            return;
        ++mDialogs;
        awaitFrames(top);
        if (top)
            top->close();
    });
    closer.start(5);
    const QList<QAbstractButton *> found = mDemo->window()->findChildren<QAbstractButton *>();
    const QList<QPointer<QAbstractButton>> buttons(found.cbegin(), found.cend());
    for (const QPointer<QAbstractButton> &button : buttons) {
        if (!button || !button->isVisible() || !button->isEnabled() || button->isCheckable())
            continue;
        button->click();
        QTRY_VERIFY(!QApplication::activeModalWidget() && !QApplication::activePopupWidget());
    }
}

void tst_WaylandWindow::menusOfRowsOpen()
{
    mDemo->start(QString(), DemoSession::Look::Modern);
    QVERIFY(mDemo->open("General"));
    auto *field = mDemo->window()->findChild<QSpinBox *>();
    QVERIFY(field);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, field->rect().center(),
                            field->mapToGlobal(field->rect().center()));
    QTimer::singleShot(0, this, [&] {
        QTRY_VERIFY(QApplication::activePopupWidget()
                    && isShown(QApplication::activePopupWidget()));
        awaitFrames(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
    });
    QCoreApplication::sendEvent(field, &event);
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

void tst_WaylandWindow::theCompositorDecidesTheGeometry()
{
    mDemo->start(QString(), DemoSession::Look::Modern);
    QVERIFY(mDemo->open("General"));
    const QSize size = mDemo->window()->screen()->size();
    QTRY_COMPARE(mDemo->window()->size(), size);
    mDemo->window()->setGeometry(4000, 4000, 1111, 777); // outside of the screen
    awaitFrames(mDemo->window());
    QVERIFY(DemoFixture::close());
    QVERIFY(mDemo->open("General"));
    QTRY_COMPARE(mDemo->window()->size(), size);
}

void tst_WaylandWindow::stayingOnTopIsAskedForInVain()
{
    mDemo->start(QString(), DemoSession::Look::Modern);
    QVERIFY(mDemo->open("General"));
    for (const bool on : {true, false}) {
        awaitFrames(mDemo->window()); // changing the hint hides the window
        MtConf::setStaysOnTopHint(on);
        QTRY_VERIFY(isShown(mDemo->window()));
    }
}

void tst_WaylandWindow::listsAndDialogsWereOpened()
{
    QVERIFY2(mLists > 30 && mDialogs > 30,
             qPrintable(QString("%1 lists, %2 dialogs").arg(mLists).arg(mDialogs)));
}

/// Clicks where the compositor shows the box. It drops input while it changes the size of a window.
void tst_WaylandWindow::openWithMouse(const QComboBox *box) const
{
    constexpr int sTries = 3;
    const auto isUnderMouse = [this, box] {
        mMouse->moveTo(box->mapTo(box->window(), box->rect().center()));
        return box->underMouse();
    };
    const QWidget *const list = box->view()->window();
    const auto isListShown = [list] { return isShown(list); };
    for (int i = 0; i < sTries; ++i) {
        QVERIFY(QTest::qWaitFor(isUnderMouse));
        mMouse->press();
        mMouse->release();
        if (QTest::qWaitFor(isListShown))
            return;
    }
}

void tst_WaylandWindow::aListOpensWithTheMouse_data()
{
    QTest::addColumn<DemoSession::Look>("look");
    QTest::newRow("classic") << DemoSession::Look::Classic;
    QTest::newRow("modern") << DemoSession::Look::Modern;
}

// Only after input the compositor shows a list as a popup of the window.
void tst_WaylandWindow::aListOpensWithTheMouse()
{
    QFETCH(const DemoSession::Look, look);
    mDemo->start(QString(), look);
    QVERIFY(mDemo->open("Mouse"));
    QTRY_COMPARE(mDemo->window()->size(), mDemo->window()->screen()->size());
    auto *area = DemoFixture::child<QScrollArea>("scrollArea");
    auto *box = area->findChild<QComboBox *>();
    openWithMouse(box);
    QVERIFY(isShown(box->view()->window()));
    // A press beside the list closes it.
    awaitFrames(box->view()->window());
    mMouse->click(box->window()->rect().bottomRight() - QPoint(20, 20));
    QTRY_VERIFY(!box->view()->isVisible());
}

void tst_WaylandWindow::hotkeyIsRecorded()
{
    constexpr xcb_keysym_t control = 0xffe3;
    constexpr xcb_keysym_t alt = 0xffe9;
    mDemo->start();
    QVERIFY(mDemo->open("Hotkeys"));
    QTRY_COMPARE(mDemo->window()->size(), mDemo->window()->screen()->size());
    QWidget *const editor = mDemo->editor("Hotkeys", "Tools", "PickColor");
    auto *const field = mDemo->control<KeySequenceEdit>(editor);
    const QPoint place = field->mapTo(field->window(), field->rect().center());
    const auto hasFocus = [&] {
        mMouse->click(place);
        return field->hasFocus();
    };
    QVERIFY(QTest::qWaitFor(hasFocus));
    XClient keyboard;
    keyboard.type({control, alt, 'k'});
    QTRY_COMPARE(mDemo->settings().pickColor, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_K));
    QCOMPARE(mDemo->control<QPushButton>(editor)->toolTip(),
             "Setup failed, the hotkey may be occupied. Click to try setup again.");
}

int main(int argc, char **argv)
{
    return runTest<tst_WaylandWindow>(argc, argv);
}

#include "tst_WaylandWindow.moc"
