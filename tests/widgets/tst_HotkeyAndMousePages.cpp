#include "KeySequenceEditFixture.h"
#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QComboBox>
#include <QPointer>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QxtGlobalShortcut>

#include <utility>

using MtConf::ConfItem;

/// Editors of hotkeys and mouse actions on pages of the settings window, with its style sheet.
class tst_HotkeyAndMousePages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mFixture.reset(); }

    void controlsAreAlignedInColumns_data();
    void controlsAreAlignedInColumns();
    void plusHasTheFontSizeOfTheCaption();
    void allModifiersAreReadable();
    void narrowWindowShowsTheWholeRow();
    void longestActionIsReadable();

    void hotkeyStateIsAnIconWithoutFrame_data();
    void hotkeyStateIsAnIconWithoutFrame();
    void failedHotkeyShowsTheFocus();

    void pageMayBeRebuiltWhileTheBoxIsOpen();
    void windowMayBeClosedWhileTheBoxIsOpen();

private:
    using Editor = MtConf::ConfWidgetMouseAction;

    /// Returns the controls of an editor in layout order.
    static QList<QWidget *> parts(const QWidget *editor)
    {
        QList<QWidget *> widgets;
        for (int i = 0; i < editor->layout()->count(); ++i)
            widgets << editor->layout()->itemAt(i)->widget();
        return widgets;
    }
    static KeySequenceEdit *field()
    {
        return WindowFixture::window()->findChild<KeySequenceEdit *>();
    }
    static QPushButton *stateButton()
    {
        return field()->parentWidget()->findChild<QPushButton *>();
    }
    static QRgb pixel(const QWidget *widget, const QPoint &point)
    {
        QWidget *window = widget->window();
        return window->grab().toImage().pixel(widget->mapTo(window, point));
    }

    std::unique_ptr<WindowFixture> mFixture;
    std::unique_ptr<QxtGlobalShortcut> mShortcut;
    int mZoom = 0;
    int mClose = 0;
    int mMove = 0;
    QKeySequence mHotkey;
};

void tst_HotkeyAndMousePages::init()
{
    mFixture = std::make_unique<WindowFixture>();
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    mZoom = 0x1e000040; // all modifiers, and the wheel
    mClose = 2;
    mMove = 128;
    mHotkey = QKeySequence(QStringLiteral("Ctrl+K, Ctrl+L")); // never registered
    MtConf::MtConfManage &manager = *mFixture->manager;
    manager.addConfMouseAction("Zoom", &mZoom, 0, "Mouse", "Pinned", "Zoom");
    manager.addConfMouseAction("Close", &mClose, 1, "Mouse", "Pinned", "Close");
    manager.addConfMouseAction("Move", &mMove, 2, "Mouse", "Pinned", "Move");
    mShortcut = std::make_unique<QxtGlobalShortcut>(mHotkey);
    ConfItem *item = manager.addConfQKeySequence("Capture", &mHotkey, "Hotkeys", "Capture");
    item->properties.insert("Shortcut", QVariant::fromValue(mShortcut.get()));
}

void tst_HotkeyAndMousePages::controlsAreAlignedInColumns_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("mirrored");
    for (const int width : {900, 1024, 1600}) {
        QTest::addRow("%d pixels", width) << width << false;
        QTest::addRow("%d pixels, from right to left", width) << width << true;
    }
}

void tst_HotkeyAndMousePages::controlsAreAlignedInColumns()
{
    QFETCH(int, width);
    QFETCH(bool, mirrored);
    const auto restore = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
    QApplication::setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    QVERIFY(mFixture->open("Mouse"));
    WindowFixture::window()->resize(width, 700);
    QTRY_COMPARE(WindowFixture::window()->width(), width);
    QCOMPARE(Editor::sConflictList.size(), 3);
    const QList<QWidget *> first = parts(Editor::sConflictList.at(0));
    for (const Editor *editor : std::as_const(Editor::sConflictList)) {
        const QList<QWidget *> row = parts(editor);
        for (int i = 0; i < 4; ++i) {
            QTRY_COMPARE(row.at(i)->x(), first.at(i)->x());
            QTRY_COMPARE(row.at(i)->width(), first.at(i)->width());
        }
    }
    QCOMPARE(first.at(0)->x() > first.at(2)->x(), mirrored);
    // The box of actions takes the remaining width.
    QVERIFY(first.at(2)->width() > first.at(0)->width());
    QVERIFY(first.at(1)->width() < 40);
}

void tst_HotkeyAndMousePages::plusHasTheFontSizeOfTheCaption()
{
    QVERIFY(mFixture->open("Mouse"));
    Editor *editor = Editor::sConflictList.at(0);
    const auto *plus = qobject_cast<QLabel *>(parts(editor).at(1));
    QCOMPARE(plus->fontInfo().pixelSize(), editor->label()->fontInfo().pixelSize());
    QCOMPARE(plus->alignment(), Qt::AlignCenter);
}

void tst_HotkeyAndMousePages::allModifiersAreReadable()
{
    QVERIFY(mFixture->open("Mouse"));
    const auto *shown = parts(Editor::sConflictList.at(0)).at(0)->findChild<QLineEdit *>();
    QCOMPARE(shown->text().size(), 7);
    QTRY_VERIFY(shown->fontMetrics().horizontalAdvance(shown->text()) + 4 <= shown->width());
}

void tst_HotkeyAndMousePages::narrowWindowShowsTheWholeRow()
{
    QVERIFY(mFixture->open("Mouse"));
    WindowFixture::window()->resize(840, 700);
    QTRY_COMPARE(WindowFixture::window()->width(), 840);
    QTRY_COMPARE(WindowFixture::child<QScrollArea>("scrollArea")->horizontalScrollBar()->maximum(),
                 0);
}

void tst_HotkeyAndMousePages::longestActionIsReadable()
{
    QVERIFY(mFixture->open("Mouse"));
    WindowFixture::window()->resize(900, 700);
    QTRY_COMPARE(WindowFixture::window()->width(), 900);
    const auto *actions = qobject_cast<QComboBox *>(parts(Editor::sConflictList.at(1)).at(2));
    const QString longest = "Middle Double Click";
    QVERIFY(actions->findText(longest) >= 0);
    const auto widthOfText = [actions] {
        QStyleOptionComboBox option;
        option.initFrom(actions);
        return actions->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, actions)
            .width();
    };
    QTRY_VERIFY2(actions->fontMetrics().horizontalAdvance(longest) <= widthOfText(),
                 qPrintable(QString::number(widthOfText())));
}

void tst_HotkeyAndMousePages::hotkeyStateIsAnIconWithoutFrame_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void tst_HotkeyAndMousePages::hotkeyStateIsAnIconWithoutFrame()
{
    QFETCH(bool, dark);
    QThemeCtrl::instance()->setTheme(dark ? QThemeCtrl::Theme::Dark : QThemeCtrl::Theme::Light);
    QVERIFY(mFixture->open("Hotkeys"));
    WindowFixture::classList()->setFocus();
    const QPushButton *button = stateButton();
    const QRgb panel = pixel(button, QPoint(-2, button->height() / 2));
    QTRY_COMPARE(pixel(button, QPoint(5, button->height() / 2)), panel);
    QCOMPARE(pixel(button, QPoint(button->width() / 2, 5)), panel);
    QCOMPARE(pixel(button, QPoint(button->width() - 5, button->height() - 5)), panel);
}

void tst_HotkeyAndMousePages::failedHotkeyShowsTheFocus()
{
    QVERIFY(mFixture->open("Hotkeys"));
    WindowFixture::window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(WindowFixture::window()));
    QPushButton *button = stateButton();
    QVERIFY(button->isEnabled());
    const QRgb panel = pixel(button, QPoint(-2, button->height() / 2));
    button->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(pixel(button, QPoint(-2, button->height() / 2)) != panel); // the ring
}

void tst_HotkeyAndMousePages::pageMayBeRebuiltWhileTheBoxIsOpen()
{
    QVERIFY(mFixture->open("Hotkeys"));
    const QPointer<KeySequenceEdit> edit = field();
    edit->allowSimpleHotkey = false;
    const BoxWatcher boxes([](QMessageBox *) {
        WindowFixture::window()->switchToView("Mouse");
        WindowFixture::window()->switchToView("Hotkeys");
    });
    QTest::keyPress(edit.data(), Qt::Key_A);
    QCOMPARE(boxes.count, 1);
    QTRY_VERIFY(!edit);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(field());
    QCOMPARE(field()->text(), QString("Ctrl+K, Ctrl+L"));
    QCOMPARE(mHotkey, mShortcut->shortcut());
}

void tst_HotkeyAndMousePages::windowMayBeClosedWhileTheBoxIsOpen()
{
    QVERIFY(mFixture->open("Hotkeys"));
    const QPointer<KeySequenceEdit> edit = field();
    edit->allowSimpleHotkey = false;
    const BoxWatcher boxes([this](QMessageBox *) { mFixture->manager->closeConfigWindow(); });
    QTest::keyPress(edit.data(), Qt::Key_A);
    QCOMPARE(boxes.count, 1);
    QTRY_VERIFY(!WindowFixture::window());
    QVERIFY(!edit);
    QVERIFY(!QApplication::activeModalWidget());
}

int main(int argc, char **argv)
{
    return runTest<tst_HotkeyAndMousePages>(argc, argv);
}

#include "tst_HotkeyAndMousePages.moc"
