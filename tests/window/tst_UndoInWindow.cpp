#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAction>
#include <QFrame>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QxtGlobalShortcut>

#include <algorithm>
#include <functional>
#include <map>

using MtConf::ConfItem;

namespace {

constexpr auto sUndo = QKeySequence::Undo;
constexpr auto sRedo = QKeySequence::Redo;

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

/// Undo and redo in the settings window, with real keys and clicks.
class tst_UndoInWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup() { mFixture.reset(); }

    void keysUndoAndRedoAClick();
    void typedTextIsUndoneByTheField_data();
    void typedTextIsUndoneByTheField();
    void fieldThatWasLeftIsUndoneInOrder();
    void numberIsOneStepUntilTheFocusLeaves();
    void typedTextThatIsNotStoredYetIsUndone();
    void recorderOfHotkeysTakesTheKeys();
    void hotkeyIsRegisteredAgain();
    void restoredPageIsOneStep();
    void restoredSettingsAreOneStep();
    void tabReachesTheBarBehindTheLastButton();
    void barStaysUntilTheNextEdit();
    void barKeepsWhatIsTyped();
    void barUndoesNoNewerStep();
    void removedEntryIsOffered();
    void pageOfTheSettingIsOpened();
    void callbackMayCloseTheWindow_data();
    void callbackMayCloseTheWindow();
    void historyEndsWithTheWindow();
    void classicWindowHasNoUndo();

private:
    void open()
    {
        QVERIFY(mFixture->open());
        activate();
    }
    static void activate()
    {
        // A message box that was closed leaves no active window without a window manager.
        WindowFixture::window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(WindowFixture::window()));
    }
    static void press(QKeySequence::StandardKey key)
    {
        activate();
        const QKeySequence keys(key);
        QWidget *const focus = QApplication::focusWidget();
        QTest::keySequence(focus ? focus : WindowFixture::window(), keys);
    }
    template<class Control> static Control *control(const ConfItem *item)
    {
        return item->editor->findChild<Control *>();
    }
    static QFrame *bar() { return WindowFixture::child<QFrame>("UndoBar"); }
    void click(const ConfItem *item) { WindowFixture::clickBox(WindowFixture::checkBox(item)); }
    bool value(int index) const { return *mFixture->flags.at(static_cast<size_t>(index)); }

    std::unique_ptr<WindowFixture> mFixture;
    ConfItem *mFlag = nullptr;
    ConfItem *mOther = nullptr;
    ConfItem *mNumber = nullptr;
    ConfItem *mText = nullptr;
    ConfItem *mLong = nullptr;
    ConfItem *mKey = nullptr;
    int mNumberValue = 5;
    QString mTextValue;
    QString mLongValue;
    QKeySequence mKeyValue;
    QxtGlobalShortcut mShortcut;
};

void tst_UndoInWindow::initTestCase_data()
{
    QTest::addColumn<quint32>("features");
    QTest::addColumn<bool>("isModern");
    QTest::newRow("classic look") << quint32(MtConf::UndoFeature) << false;
    QTest::newRow("modern look, all features") << quint32(MtConf::AllWindowFeatures) << true;
}

void tst_UndoInWindow::init()
{
    mNumberValue = 5;
    mTextValue = "one";
    mLongValue = "one";
    mKeyValue = QKeySequence(Qt::CTRL | Qt::Key_F9);
    mShortcut.setShortcut(mKeyValue);
    mFixture = std::make_unique<WindowFixture>();
    auto &manager = *mFixture->manager;
    QFETCH_GLOBAL(const quint32, features);
    QFETCH_GLOBAL(const bool, isModern);
    manager.windowFeatures = features;
    manager.windowLook = isModern ? MtConf::ModernLook : MtConf::ClassicLook;
    mFlag = mFixture->addBool("Flag");
    mOther = mFixture->addBool("Other");
    mNumber = manager.addConfInt32("Number", &mNumberValue, "General", "Number");
    mNumber->setRange(0, 999);
    mText = manager.addConfText("Text", &mTextValue, "General", "Text");
    mLong = manager.addConfMultilineText("Long", &mLongValue, "General", "Long");
    mKey = manager.addConfQKeySequence("Key", &mKeyValue, "Keys", "Key");
    mKey->properties["Shortcut"] = QVariant::fromValue(&mShortcut);
    open();
}

void tst_UndoInWindow::keysUndoAndRedoAClick()
{
    click(mFlag);
    click(mOther);
    QCOMPARE(value(0), false);
    press(sUndo);
    QCOMPARE(value(1), true);
    QVERIFY(WindowFixture::checkBox(mOther)->isChecked());
    press(sUndo);
    QCOMPARE(value(0), true);
    QVERIFY(WindowFixture::checkBox(mFlag)->isChecked());
    press(sRedo);
    QCOMPARE(value(0), false);
    QVERIFY(!WindowFixture::checkBox(mFlag)->isChecked());
    QCOMPARE(WindowFixture::checkBox(mFlag)->property("changed").toString(), QString("1"));
}

void tst_UndoInWindow::typedTextIsUndoneByTheField_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("number") << "Number";
    QTest::newRow("line") << "Text";
    QTest::newRow("text") << "Long";
}

void tst_UndoInWindow::typedTextIsUndoneByTheField()
{
    QFETCH(const QString, name);
    const ConfItem *const item = mFixture->manager->getItemByName("General", name, "");
    const QVector<QWidget *> controls{control<QSpinBox>(item), control<QPlainTextEdit>(item),
                                      control<QLineEdit>(item)};
    QWidget *const field = *std::find_if(controls.cbegin(), controls.cend(),
                                         [](QWidget *widget) { return widget; });
    const QString key = item->getFullName();
    const auto stored = [&] {
        return mFixture->store()->mConfValues[key].toJsonValue().toVariant().toString();
    };
    const QString before = stored();
    click(mFlag);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClicks(field, "12");
    item->editor->commit();
    QCOMPARE(stored(), before + "12");
    press(sUndo);
    item->editor->commit();
    QCOMPARE(stored(), before);
    QCOMPARE(value(0), false);
    press(sUndo); // the text is that from before, so this is for the window
    QCOMPARE(value(0), true);
    press(sRedo);
    QCOMPARE(value(0), false);
    QCOMPARE(stored(), before);
}

void tst_UndoInWindow::fieldThatWasLeftIsUndoneInOrder()
{
    auto *field = control<QLineEdit>(mText);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClicks(field, "12");
    click(mFlag);
    field->setFocus();
    QVERIFY(field->isUndoAvailable());
    press(sUndo);
    QCOMPARE(value(0), true);
    QCOMPARE(mTextValue, QString("one12"));
    press(sUndo);
    QCOMPARE(mTextValue, QString("one"));
    QCOMPARE(field->text(), QString("one"));
    press(sRedo);
    QCOMPARE(field->text(), QString("one12"));
}

void tst_UndoInWindow::numberIsOneStepUntilTheFocusLeaves()
{
    auto *box = control<QSpinBox>(mNumber);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "120");
    QCOMPARE(mNumberValue, 120);
    WindowFixture::checkBox(mFlag)->setFocus();
    press(sUndo);
    QCOMPARE(mNumberValue, 5);
    QCOMPARE(box->value(), 5);
    press(sRedo);
    QCOMPARE(mNumberValue, 120);
    QCOMPARE(box->value(), 120);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_Up);
    WindowFixture::checkBox(mFlag)->setFocus();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    WindowFixture::checkBox(mFlag)->setFocus();
    press(sUndo);
    QCOMPARE(mNumberValue, 122);
    press(sUndo);
    QCOMPARE(mNumberValue, 120);
}

void tst_UndoInWindow::typedTextThatIsNotStoredYetIsUndone()
{
    click(mFlag);
    auto *field = control<QLineEdit>(mText);
    field->setFocus();
    QTest::keyClicks(field, "2");
    QCOMPARE(mTextValue, QString("one"));
    WindowFixture::window()->findChild<QAction *>("Undo")->trigger();
    QCOMPARE(field->text(), QString("one"));
    QCOMPARE(value(0), false);
    press(sUndo);
    QCOMPARE(value(0), true);
}

void tst_UndoInWindow::recorderOfHotkeysTakesTheKeys()
{
    click(mFlag);
    WindowFixture::window()->switchToView("Keys");
    auto *recorder = control<KeySequenceEdit>(mKey);
    recorder->setFocus();
    press(sUndo);
    QCOMPARE(recorder->keySequence(), QKeySequence(sUndo));
    QCOMPARE(mKeyValue, QKeySequence(sUndo));
    QCOMPARE(value(0), false);
}

void tst_UndoInWindow::hotkeyIsRegisteredAgain()
{
    WindowFixture::window()->switchToView("Keys");
    auto *recorder = control<KeySequenceEdit>(mKey);
    recorder->setFocus();
    QTest::keyClick(recorder, Qt::Key_F7, Qt::ControlModifier);
    QCOMPARE(mShortcut.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_F7));
    WindowFixture::window()->switchToView("General");
    press(sUndo);
    QCOMPARE(mShortcut.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_F9));
    QCOMPARE(mKeyValue, QKeySequence(Qt::CTRL | Qt::Key_F9));
}

void tst_UndoInWindow::restoredPageIsOneStep()
{
    click(mFlag);
    click(mOther);
    control<QSpinBox>(mNumber)->setValue(9);
    QVERIFY(WindowFixture::clickAndAnswer(WindowFixture::restorePageButton(), QMessageBox::Yes));
    QCOMPARE(mNumberValue, 5);
    QTRY_VERIFY(bar()->isVisible());
    QCOMPARE(bar()->findChild<QLabel *>()->text(), QString("Restored 3 settings."));
    QTest::mouseClick(bar()->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(!bar()->isVisible());
    QCOMPARE(mNumberValue, 9);
    QCOMPARE(value(0), false);
    QCOMPARE(value(1), false);
    QCOMPARE(control<QSpinBox>(mNumber)->value(), 9);
    QVERIFY(!WindowFixture::checkBox(mFlag)->isChecked());
}

void tst_UndoInWindow::restoredSettingsAreOneStep()
{
    click(mFlag);
    mFixture->store()->set("Keys.Key", QKeySequence("F5"));
    mFixture->manager->restoreAllHook = [this] {
        mFixture->store()->set<QString>("General.Text", "by the hook");
    };
    QVERIFY(WindowFixture::clickAndAnswer(WindowFixture::restoreAllButton(), QMessageBox::Yes));
    QCOMPARE(value(0), true);
    QTRY_VERIFY(bar()->isVisible());
    press(sUndo);
    QVERIFY(!bar()->isVisible());
    QCOMPARE(value(0), false);
    QCOMPARE(mTextValue, QString("one"));
    QCOMPARE(mKeyValue, QKeySequence("F5"));
}

void tst_UndoInWindow::tabReachesTheBarBehindTheLastButton()
{
    // Features that add widgets to the column, which begin the tab order.
    QVERIFY(mFixture->close());
    mFixture->manager->windowFeatures = MtConf::AllWindowFeatures;
    open();
    click(mFlag);
    click(mOther);
    QPushButton *const all = WindowFixture::restoreAllButton();
    QVERIFY(WindowFixture::clickAndAnswer(all, QMessageBox::Yes));
    QTRY_VERIFY(bar()->isVisible());
    activate();
    all->setFocus();
    QTest::keyClick(all, Qt::Key_Tab);
    QVERIFY(bar()->isAncestorOf(QApplication::focusWidget()));
}

void tst_UndoInWindow::barStaysUntilTheNextEdit()
{
    click(mFlag);
    click(mOther);
    QVERIFY(WindowFixture::clickAndAnswer(WindowFixture::restorePageButton(), QMessageBox::Yes));
    QTRY_VERIFY(bar()->isVisible());
    mFixture->store()->set("General.Number", 8); // not by the user
    QCoreApplication::processEvents();
    QVERIFY(bar()->isVisible());
    click(mFlag);
    QTRY_VERIFY(!bar()->isVisible());
}

void tst_UndoInWindow::barKeepsWhatIsTyped()
{
    click(mFlag);
    click(mOther);
    QVERIFY(WindowFixture::clickAndAnswer(WindowFixture::restorePageButton(), QMessageBox::Yes));
    QTRY_VERIFY(bar()->isVisible());
    activate();
    auto *const field = control<QLineEdit>(mText);
    field->setFocus();
    QTest::keyClicks(field, "abc");
    const QString typed = field->text();
    QVERIFY(typed.contains("abc"));
    auto *const button = bar()->findChild<QPushButton *>();
    QTest::mousePress(button, Qt::LeftButton);
    QCoreApplication::processEvents(); // a stored text would hide the bar
    QTest::mouseRelease(button, Qt::LeftButton);
    QCOMPARE(value(0), false);
    QCOMPARE(value(1), false);
    QCOMPARE(field->text(), typed);
    QTRY_COMPARE(mTextValue, typed);
}

void tst_UndoInWindow::barUndoesNoNewerStep()
{
    click(mFlag);
    click(mOther);
    QVERIFY(WindowFixture::clickAndAnswer(WindowFixture::restorePageButton(), QMessageBox::Yes));
    QTRY_VERIFY(bar()->isVisible());
    click(mFlag);
    bar()->findChild<QPushButton *>()->click(); // before the event loop runs
    QCOMPARE(value(0), false);
    QCOMPARE(value(1), true);
    QVERIFY(!bar()->isVisible());
}

void tst_UndoInWindow::removedEntryIsOffered()
{
    std::map<QString, int> entries;
    ConfStorage *const store = mFixture->store();
    ConfStorage::DynamicConfClass cls;
    cls.prefix = "Entry.";
    cls.creator = [&](const QString &key, const QJsonValue *json) {
        entries[key] = json->toInt();
        store->reserveConf(key, &entries[key]);
    };
    cls.remover = [&](const QString &key) { entries.erase(key); };
    store->mDynamicConfClasses.append(&cls);
    store->createDynamicConf("Entry.a", 3, nullptr);
    QCoreApplication::processEvents();
    QVERIFY(!bar()->isVisible());
    store->removeDynamicConf("Entry.a");
    QTRY_VERIFY(bar()->isVisible());
    QCOMPARE(bar()->findChild<QLabel *>()->text(), QString("Removed 1 entry."));
    QTest::mouseClick(bar()->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(entries["Entry.a"], 3);
    mFixture->manager.reset();
    store->clear();
}

void tst_UndoInWindow::pageOfTheSettingIsOpened()
{
    click(mFlag);
    WindowFixture::window()->switchToView("Keys");
    press(sUndo);
    QCOMPARE(value(0), true);
    QCOMPARE(WindowFixture::window()->currentClass(), QString("General"));
}

void tst_UndoInWindow::callbackMayCloseTheWindow_data()
{
    QTest::addColumn<std::function<void()>>("act");
    QTest::newRow("close") << std::function<void()>([] { WindowFixture::window()->close(); });
    QTest::newRow("delete") << std::function<void()>([] { delete WindowFixture::window(); });
    QTest::newRow("destroy the manager") << std::function<void()>();
}

void tst_UndoInWindow::callbackMayCloseTheWindow()
{
    QFETCH(std::function<void()>, act);
    if (!act)
        act = [this] { mFixture->manager.reset(); };
    click(mFlag);
    mFixture->store()->setConfChangedCallback("General.Flag",
                                              [&](const QString &, const ConfValue *) { act(); });
    press(sUndo);
    QCOMPARE(value(0), true);
    QTRY_VERIFY(!WindowFixture::window());
}

void tst_UndoInWindow::historyEndsWithTheWindow()
{
    click(mFlag);
    QVERIFY(mFixture->close());
    open();
    press(sUndo);
    QCOMPARE(value(0), false);
}

void tst_UndoInWindow::classicWindowHasNoUndo()
{
    QVERIFY(mFixture->close());
    mFixture->manager->windowFeatures = 0;
    open();
    click(mFlag);
    press(sUndo);
    QCOMPARE(value(0), false);
    QVERIFY(!bar());
}

int main(int argc, char **argv)
{
    return runTest<tst_UndoInWindow>(argc, argv);
}

#include "tst_UndoInWindow.moc"
