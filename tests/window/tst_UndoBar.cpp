#include "MaltoConfiguration/window/history/UndoBar_p.h"

#include "support/Contrast.h"
#include "support/TestMain.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

using MtConf::UndoBar;

/// The bar that offers to undo: its place, its time, the keyboard, screen readers and colours.
class tst_UndoBar : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void barIsHiddenUntilItHasAText();
    void barIsAtTheBottomInTheMiddle_data();
    void barIsAtTheBottomInTheMiddle();
    void barIsMirroredWithTheDirection();
    void barFollowsTheSizeOfTheWindow();
    void longTextIsCutAndReadWhole();
    void buttonHidesTheBarAndAsks();
    void barHidesAfterTenSeconds();
    void barStaysWhileTheMouseOrTheFocusIsOnIt();
    void keyboardReachesTheButtonLast();
    void focusReturnsAfterTheButton();
    void partsAreNamedForScreenReaders();
    void coloursAreInvertedAndHaveContrast_data();
    void coloursAreInvertedAndHaveContrast();

private:
    QPushButton *button() const { return mBar->findChild<QPushButton *>(); }
    QTimer *timer() const { return mBar->findChild<QTimer *>(); }

    std::unique_ptr<QWidget> mWindow;
    QLineEdit *mField = nullptr;
    UndoBar *mBar = nullptr;
};

void tst_UndoBar::init()
{
    mWindow = std::make_unique<QWidget>();
    mWindow->resize(800, 400);
    auto *layout = new QVBoxLayout(mWindow.get());
    mField = new QLineEdit(mWindow.get());
    layout->addWidget(mField);
    mBar = new UndoBar(mWindow.get());
    mBar->applySheet(96.0 / 72);
    mWindow->show();
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    mField->setFocus();
}

void tst_UndoBar::cleanup()
{
    mWindow.reset();
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::System);
}

void tst_UndoBar::barIsHiddenUntilItHasAText()
{
    QVERIFY(!mBar->isVisible());
    mBar->showText("Restored 12 settings.");
    QVERIFY(mBar->isVisible());
    QCOMPARE(mBar->findChild<QLabel *>()->text(), QString("Restored 12 settings."));
    QCOMPARE(button()->text(), QString("Undo"));
}

void tst_UndoBar::barIsAtTheBottomInTheMiddle_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("margin");
    QTest::newRow("100 per cent") << 96.0 / 72 << 40 << 16;
    QTest::newRow("150 per cent") << 144.0 / 72 << 60 << 24;
    QTest::newRow("200 per cent") << 192.0 / 72 << 80 << 32;
}

void tst_UndoBar::barIsAtTheBottomInTheMiddle()
{
    QFETCH(const double, scale);
    QFETCH(const int, height);
    QFETCH(const int, margin);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        mWindow->setLayoutDirection(direction);
        mBar->applySheet(scale);
        mBar->showText("Restored 12 settings.");
        const QRect bar = mBar->geometry();
        QCOMPARE(bar.height(), height);
        QCOMPARE(mWindow->height() - bar.y() - bar.height(), margin);
        QVERIFY(qAbs(bar.x() - (mWindow->width() - bar.x() - bar.width())) <= 1);
        const int text = mBar->findChild<QLabel *>()->x();
        QCOMPARE(text < button()->x(), direction == Qt::LeftToRight);
        QVERIFY(mBar->rect().contains(button()->geometry()));
    }
}

void tst_UndoBar::barIsMirroredWithTheDirection()
{
    mBar->showText("Restored 12 settings.");
    const auto *label = mBar->findChild<QLabel *>();
    const QRect text = label->geometry();
    const QRect undo = button()->geometry();
    mWindow->setLayoutDirection(Qt::RightToLeft);
    mBar->layout()->activate();
    QCOMPARE(mBar->width() - 1 - label->geometry().right(), text.left());
    QCOMPARE(button()->geometry().left(), mBar->width() - 1 - undo.right());
}

void tst_UndoBar::barFollowsTheSizeOfTheWindow()
{
    mBar->showText("Restored 12 settings.");
    mWindow->resize(600, 300);
    QCOMPARE(mBar->geometry().bottom(), 300 - 16 - 1);
    QVERIFY(qAbs(mBar->geometry().center().x() - 300) <= 1);
}

void tst_UndoBar::longTextIsCutAndReadWhole()
{
    const QString text = QString("Restored 12 settings. ").repeated(20);
    mBar->showText(text);
    auto *label = mBar->findChild<QLabel *>();
    QVERIFY(label->text().endsWith(QChar(0x2026)));
    QCOMPARE(mBar->width(), 800 - 2 * 16);
    QCOMPARE(label->accessibleName(), text);
}

void tst_UndoBar::buttonHidesTheBarAndAsks()
{
    QSignalSpy asked(mBar, &UndoBar::undoRequested);
    mBar->showText("Restored 12 settings.");
    QTest::mouseClick(button(), Qt::LeftButton);
    QCOMPARE(asked.size(), 1);
    QVERIFY(!mBar->isVisible());
}

void tst_UndoBar::barHidesAfterTenSeconds()
{
    mBar->showText("Restored 12 settings.");
    QCOMPARE(timer()->interval(), 10000);
    QVERIFY(timer()->isActive());
    timer()->start(0);
    QTRY_VERIFY(!mBar->isVisible());
}

void tst_UndoBar::barStaysWhileTheMouseOrTheFocusIsOnIt()
{
    mBar->showText("Restored 12 settings.");
    button()->setFocus();
    timer()->start(0);
    QTRY_COMPARE(timer()->interval(), 10000);
    QVERIFY(mBar->isVisible());
    mField->setFocus();
    mBar->setAttribute(Qt::WA_UnderMouse);
    timer()->start(0);
    QTRY_COMPARE(timer()->interval(), 10000);
    QVERIFY(mBar->isVisible());
    mBar->setAttribute(Qt::WA_UnderMouse, false);
    timer()->start(0);
    QTRY_VERIFY(!mBar->isVisible());
}

void tst_UndoBar::keyboardReachesTheButtonLast()
{
    auto *later = new QLineEdit(mWindow.get()); // a page that was built after the bar
    mWindow->layout()->addWidget(later);
    later->show();
    mBar->showText("Restored 12 settings.");
    QTest::keyClick(mField, Qt::Key_Tab);
    QVERIFY(later->hasFocus());
    QTest::keyClick(later, Qt::Key_Tab);
    QVERIFY(button()->hasFocus());
    QSignalSpy asked(mBar, &UndoBar::undoRequested);
    QTest::keyClick(button(), Qt::Key_Space);
    QCOMPARE(asked.size(), 1);
}

void tst_UndoBar::focusReturnsAfterTheButton()
{
    auto *later = new QLineEdit(mWindow.get());
    later->show();
    mBar->showText("Restored 12 settings.");
    later->setFocus(); // Qt alone would move the focus to the first field
    QTest::keyClick(later, Qt::Key_Tab);
    QVERIFY(button()->hasFocus());
    QTest::keyClick(button(), Qt::Key_Space);
    QVERIFY(later->hasFocus());
}

void tst_UndoBar::partsAreNamedForScreenReaders()
{
    mBar->showText("Restored 12 settings.");
    QCOMPARE(QAccessible::queryAccessibleInterface(mBar)->text(QAccessible::Name),
             QString("Restored 12 settings."));
    QCOMPARE(QAccessible::queryAccessibleInterface(button())->text(QAccessible::Name),
             QString("Undo"));
    QCOMPARE(QAccessible::queryAccessibleInterface(button())->text(QAccessible::Description),
             QString("Restored 12 settings."));
}

void tst_UndoBar::coloursAreInvertedAndHaveContrast_data()
{
    QTest::addColumn<QThemeCtrl::Theme>("theme");
    QTest::newRow("light") << QThemeCtrl::Theme::Light;
    QTest::newRow("dark") << QThemeCtrl::Theme::Dark;
}

void tst_UndoBar::coloursAreInvertedAndHaveContrast()
{
    QFETCH(const QThemeCtrl::Theme, theme);
    QThemeCtrl::instance()->setTheme(theme);
    mBar->applySheet(96.0 / 72);
    mBar->showText("Restored 12 settings.");
    const QColor ground = QThemeCtrl::instance()->color("ColorFg0");
    const QColor text = QThemeCtrl::instance()->color("ColorBg0");
    const QImage image = mBar->grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, 2), ground);
    QVERIFY(contrast(ground, text) >= 4.5);
    QCOMPARE(mBar->findChild<QLabel *>()->palette().color(QPalette::WindowText), text);
    QCOMPARE(button()->palette().color(QPalette::ButtonText), text);
}

int main(int argc, char **argv)
{
    return runTest<tst_UndoBar>(argc, argv);
}

#include "tst_UndoBar.moc"
