#include "LifetimeFixture.h"
#include "support/Contrast.h"
#include "support/TestMain.h"

#include <OrvUtils/OrvScreenManager.h>

#include <QColorDialog>
#include <QComboBox>
#include <QFocusFrame>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>

/// The ring around the widget with the keyboard focus.
class tst_FocusRing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mFixture.reset(); }

    void everyStopOfTabHasOneRing_data();
    void everyStopOfTabHasOneRing();
    void ringFollowsAWidgetThatIsScrolledIntoView();
    void ringStaysAtABoxWhoseListIsOpen();
    void ringEndsWithTheFocus();
    void ringSurvivesThePage();
    void dialogsOfTheWindowHaveARing();
    void nestedSheetsHaveOneRing();
    void ringOfTheModernLookHasItsAccent();
    void ringOfThePageIsInsideIt();
    void clickOnAClassMovesNothing();

private:
    QWidget *window() const { return mFixture->window(); }
    QList<QFocusFrame *> visibleRings() const;
    QFocusFrame *ring() const { return visibleRings().value(0); }
    QWidget *ringedWidget() const { return ring() ? ring()->widget() : nullptr; }
    static void pressTab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    int width() const;

    std::unique_ptr<LifetimeFixture> mFixture;
};

namespace {

/// Returns `count` colours from `outside` pixels left of `frame` to the right, in the middle of its
/// height, in the pixels of the screen.
QList<QColor> fromTheLeft(QFocusFrame *frame, int outside, int count)
{
    QWidget *window = frame->window();
    const QImage picture = window->grab().toImage();
    const QPoint left = frame->mapTo(window, QPoint(0, frame->height() / 2))
                        * picture.devicePixelRatio();
    QList<QColor> colors;
    for (int x = -outside; x < count - outside; ++x)
        colors << picture.pixelColor(left + QPoint(x, 0));
    return colors;
}

} // namespace

void tst_FocusRing::init()
{
    mFixture = std::make_unique<LifetimeFixture>();
    mFixture->manager->ShowWindow("Edit");
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window()));
    WindowFixture::classList()->setFocus();
    const auto *board = WindowFixture::child<QGroupBox>("gboxConfigBoard");
    QTRY_VERIFY(board->height() >= board->minimumSizeHint().height()); // the page is laid out
}

QList<QFocusFrame *> tst_FocusRing::visibleRings() const
{
    QList<QFocusFrame *> visible;
    const QList<QFocusFrame *> all = window()->findChildren<QFocusFrame *>();
    for (QFocusFrame *frame : all) {
        if (frame->isVisible())
            visible << frame;
    }
    return visible;
}

/// Returns the width of the ring in the pixels of the screen: two at 96 dots per inch.
int tst_FocusRing::width() const
{
    const double scale = OrvScreenManager::instance()->widgetScreen(window()).dpi / 96;
    return qRound(2 * scale * window()->devicePixelRatioF());
}

void tst_FocusRing::everyStopOfTabHasOneRing_data()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(QThemeCtrl::Theme::Light);
    QTest::newRow("dark") << int(QThemeCtrl::Theme::Dark);
}

void tst_FocusRing::everyStopOfTabHasOneRing()
{
    QFETCH(const int, theme);
    QThemeCtrl::instance()->setTheme(static_cast<QThemeCtrl::Theme>(theme));
    const QColor accent = QThemeCtrl::instance()->color("ColorMain");
    QSet<QWidget *> visited;
    while (!visited.contains(QApplication::focusWidget())) {
        QWidget *focus = QApplication::focusWidget();
        visited << focus;
        const QByteArray name = focus->metaObject()->className()
                                + focus->accessibleName().toUtf8().prepend(' ');
        QVERIFY2(ringedWidget() == focus, name.constData());
        QCOMPARE(visibleRings().size(), 1);
        const QRect inside(focus->mapTo(window(), QPoint()), focus->size());
        const QRect around(ring()->mapTo(window(), QPoint()), ring()->size());
        QVERIFY2(around.contains(inside, true), name.constData());
        const QList<QColor> colors = fromTheLeft(ring(), 1, width() + 2);
        for (int x = 1; x <= width(); ++x)
            QVERIFY2(colors.at(x) == accent, name.constData());
        QVERIFY2(contrast(accent, colors.first()) >= 3, name.constData());
        QVERIFY2(contrast(accent, colors.last()) >= 3, name.constData());
        pressTab();
    }
    QVERIFY(visited.contains(WindowFixture::child<QScrollArea>("scrollArea")));
    QVERIFY(visited.contains(WindowFixture::restorePageButton()));
    QVERIFY(visited.size() > 10);
}

void tst_FocusRing::ringFollowsAWidgetThatIsScrolledIntoView()
{
    window()->resize(window()->width(), 300);
    auto *area = WindowFixture::child<QScrollArea>("scrollArea");
    QScrollBar *bar = area->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    while (QApplication::focusWidget() != WindowFixture::restorePageButton())
        pressTab();
    QVERIFY(bar->value() > 0);
    QCOMPARE(ringedWidget(), static_cast<QWidget *>(WindowFixture::restorePageButton()));
    bar->setValue(0); // out of view
    bar->setValue(bar->maximum());
    QVERIFY(ring());
    const QPoint center = ring()->mapTo(window(), ring()->rect().center());
    QCOMPARE(center, ringedWidget()->mapTo(window(), ringedWidget()->rect().center()));
    QVERIFY(area->viewport()->rect().contains(ring()->geometry().center()));
}

void tst_FocusRing::ringStaysAtABoxWhoseListIsOpen()
{
    auto *box = mFixture->control<QComboBox>("Text");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(box->view()->isVisible());
    QCOMPARE(ringedWidget(), static_cast<QWidget *>(box));
    QTest::keyClick(box->view(), Qt::Key_Escape);
    QTRY_VERIFY(!box->view()->isVisible());
    QCOMPARE(ringedWidget(), static_cast<QWidget *>(box));
}

void tst_FocusRing::ringEndsWithTheFocus()
{
    QVERIFY(ring());
    QApplication::focusWidget()->clearFocus();
    QVERIFY(!ring());
    WindowFixture::classList()->setFocus();
    QVERIFY(ring());
}

void tst_FocusRing::ringSurvivesThePage()
{
    mFixture->control<QComboBox>("Text")->setFocus();
    QVERIFY(ring());
    mFixture->window()->switchToView("Other");
    QVERIFY(ringedWidget() == QApplication::focusWidget());
    mFixture->other->editor->label()->setFocus();
    QCOMPARE(ringedWidget(), mFixture->other->editor->label());
    delete ring();
    WindowFixture::classList()->setFocus();
    QCOMPARE(ringedWidget(), static_cast<QWidget *>(WindowFixture::classList()));
}

void tst_FocusRing::dialogsOfTheWindowHaveARing()
{
    auto *button = mFixture->control<QPushButton>("Colour");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    auto *dialog = mFixture->control<QColorDialog>("Colour");
    QVERIFY(dialog);
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QTRY_VERIFY(dialog->isAncestorOf(QApplication::focusWidget()));
    pressTab();
    QCOMPARE(ringedWidget(), QApplication::focusWidget());
    QCOMPARE(ring()->window(), static_cast<QWidget *>(dialog));
    delete dialog;
    WindowFixture::classList()->setFocus();
    window()->activateWindow();
    QTRY_COMPARE(ringedWidget(), static_cast<QWidget *>(WindowFixture::classList()));
}

void tst_FocusRing::nestedSheetsHaveOneRing()
{
    QWidget *board = WindowFixture::child<QGroupBox>("gboxConfigBoard");
    MtConf::setQssForWidget(board, 1);
    MtConf::setQssForWidget(board, 1);
    mFixture->control<QComboBox>("Text")->setFocus();
    QCOMPARE(visibleRings().size(), 1);
    WindowFixture::classList()->setFocus();
    QCOMPARE(visibleRings().size(), 1);
}

void tst_FocusRing::ringOfTheModernLookHasItsAccent()
{
    mFixture->declare();
    mFixture->manager->windowLook = MtConf::ModernLook;
    mFixture->manager->ShowWindow("Edit");
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Dark);
    const QColor accent = QThemeCtrl::instance()->color("ModernAccent");
    mFixture->control<QComboBox>("Text")->setFocus();
    const QList<QColor> colors = fromTheLeft(ring(), 0, width());
    for (const QColor &color : colors)
        QCOMPARE(color, accent);
}

void tst_FocusRing::ringOfThePageIsInsideIt()
{
    mFixture->declare();
    mFixture->manager->windowLook = MtConf::ModernLook;
    mFixture->manager->ShowWindow("Edit");
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window()));
    auto *area = WindowFixture::child<QScrollArea>("scrollArea");
    area->setFocus();
    QTRY_COMPARE(ringedWidget(), static_cast<QWidget *>(area));
    const QImage picture = window()->grab().toImage();
    const QPoint middle = area->mapTo(window(), area->rect().center());
    const QPoint first = area->mapTo(window(), QPoint());
    const QPoint last = area->mapTo(window(), area->rect().bottomRight());
    const QColor accent = QThemeCtrl::instance()->color("ModernAccent");
    const int inset = qRound(width() / 2. / window()->devicePixelRatioF());
    for (const QPoint edge :
         {QPoint(first.x() + inset, middle.y()), QPoint(last.x() - inset, middle.y()),
          QPoint(middle.x(), first.y() + inset), QPoint(middle.x(), last.y() - inset)})
        QCOMPARE(picture.pixelColor(edge * picture.devicePixelRatio()), accent);
}

void tst_FocusRing::clickOnAClassMovesNothing()
{
    QListView *list = WindowFixture::classList();
    mFixture->control<QComboBox>("Text")->setFocus();
    const QImage without = list->viewport()->grab().toImage();
    mFixture->pressClass("Edit");
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {},
                        list->visualRect(list->currentIndex()).center());
    QVERIFY(list->hasFocus());
    QCOMPARE(list->viewport()->grab().toImage(), without);
}

int main(int argc, char **argv)
{
    return runTest<tst_FocusRing>(argc, argv);
}

#include "tst_FocusRing.moc"
