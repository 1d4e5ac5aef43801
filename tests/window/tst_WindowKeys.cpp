#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QxtGlobalShortcut>

using namespace MtConf;

/// The keys of the window: closing, the next page, help.
class tst_WindowKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->windowFeatures = NavigationFeature;
        mFlag = mFixture->addBool("Sound");
        mFixture->addBool("Light", "", "Second");
        mFixture->addBool("Wind", "", "Third");
    }
    void cleanup() { mFixture.reset(); }

    void aKeyClosesTheWindow_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifier");
        QTest::newRow("Escape") << int(Qt::Key_Escape) << 0;
        QTest::newRow("Ctrl+W") << int(Qt::Key_W) << int(Qt::ControlModifier);
    }

    void aKeyClosesTheWindow()
    {
        QFETCH(int, key);
        QFETCH(int, modifier);
        QVERIFY(mFixture->openActive());
        press(key, modifier);
        QTRY_VERIFY(!WindowFixture::window());
    }

    void withoutTheFeatureEscapeDoesNotClose()
    {
        mFixture->manager->windowFeatures = 0;
        QVERIFY(mFixture->openActive());
        press(Qt::Key_Escape, 0);
        QVERIFY(WindowFixture::window()->isVisible());
    }

    void escapeLeavesASearchFirst()
    {
        mFixture->manager->windowFeatures |= ResetFeature;
        WindowFixture::store()->set(mFlag->getFullName(), false);
        QVERIFY(mFixture->openActive());
        QTest::mouseClick(WindowFixture::child<QPushButton>("ShowChangesButton"), Qt::LeftButton);
        QCOMPARE(WindowFixture::captions(), QStringList{"General"});
        WindowFixture::checkBox(mFlag)->setFocus();
        press(Qt::Key_Escape, 0);
        QVERIFY(WindowFixture::window()->isVisible());
        QVERIFY(!WindowFixture::child<QPushButton>("ShowChangesButton")->isChecked());
        press(Qt::Key_Escape, 0);
        QTRY_VERIFY(!WindowFixture::window());
    }

    void escapeClosesAPopupFirst()
    {
        ConfItem *item = mFixture->manager->addConfInt32WithCombobox("Choice", {"One", "Two"},
                                                                     &mChoice, "General", "Choice");
        QVERIFY(mFixture->openActive());
        auto *box = item->editor->findChild<QComboBox *>();
        box->setFocus();
        box->showPopup();
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(box->view(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QVERIFY(WindowFixture::window()->isVisible());
        press(Qt::Key_Escape, 0);
        QTRY_VERIFY(!WindowFixture::window());
    }

    void aFieldThatRecordsHasEveryKeyFirst()
    {
        QxtGlobalShortcut hotkey;
        ConfItem *item = mFixture->manager->addConfQKeySequence("Keys", &mKeys, "General", "Keys");
        item->properties["Shortcut"] = QVariant::fromValue(&hotkey);
        QVERIFY(mFixture->openActive());
        auto *field = item->editor->findChild<KeySequenceEdit *>();
        field->setFocus();
        for (const auto &[key, modifier] :
             {std::pair(Qt::Key_Escape, Qt::NoModifier), std::pair(Qt::Key_W, Qt::ControlModifier),
              std::pair(Qt::Key_F1, Qt::NoModifier), std::pair(Qt::Key_R, Qt::ControlModifier)}) {
            QTest::keyClick(field, key, modifier);
            QCOMPARE(field->keySequence(), QKeySequence(int(key) | int(modifier)));
        }
        QVERIFY(WindowFixture::window()->isVisible());
        mFixture.reset(); // before the hotkey
    }

    void tabFollowsTheColumnOfClassesAndThenThePage()
    {
        mFixture->manager->windowLook = ModernLook;
        mFixture->manager->windowFeatures = AllWindowFeatures;
        mFlag->setHelp("Loud");
        WindowFixture::store()->set(mFlag->getFullName(), false);
        QVERIFY(mFixture->openActive());
        QTRY_VERIFY(WindowFixture::child<QPushButton>("ShowChangesButton")->isEnabled());
        WindowFixture::child<QLineEdit>("FindField")->setFocus();
        for (const char *name :
             {"configList", "btnImport", "btnExport", "ShowChangesButton", "scrollArea", "",
              "ResetButton", "btnRestoreDefault", "btnRestoreAllDefault", "FindField"}) {
            press(Qt::Key_Tab, 0);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
        }
    }

    void ctrlTabWalksThroughThePages()
    {
        QVERIFY(mFixture->openActive());
        press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(WindowFixture::window()->currentClass(), QString("Second"));
        WindowFixture::classList()->setRowHidden(2, true);
        press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(WindowFixture::window()->currentClass(), QString("General"));
        WindowFixture::classList()->setRowHidden(2, false);
        press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(WindowFixture::window()->currentClass(), QString("Third"));
    }

    void ctrlTabLeavesResultsThatAreAllOnThePage()
    {
        mFixture->manager->windowFeatures |= FindFeature;
        QVERIFY(mFixture->openActive());
        auto *field = WindowFixture::child<QLineEdit>("FindField");
        field->setFocus();
        QTest::keyClicks(field, "sound");
        QTRY_VERIFY(WindowFixture::classList()->isRowHidden(1));
        QTRY_COMPARE(WindowFixture::child<QScrollArea>("scrollArea")->accessibleName(),
                     QString("Results"));
        press(Qt::Key_Tab, Qt::ControlModifier);
        QTRY_COMPARE(field->text(), QString());
        QCOMPARE(WindowFixture::window()->currentClass(), QString("General"));
        QVERIFY(!WindowFixture::classList()->isRowHidden(1));
    }

    void withoutClassesNothingHappens()
    {
        mFixture.reset();
        mFixture = std::make_unique<WindowFixture>();
        mFixture->manager->windowFeatures = NavigationFeature;
        QTest::ignoreMessage(QtWarningMsg, "major class not exist:  \"\"");
        QVERIFY(mFixture->openActive());
        press(Qt::Key_Tab, Qt::ControlModifier);
        press(Qt::Key_F1, 0);
        QVERIFY(WindowFixture::window()->isVisible());
    }

    void theLastPageIsShownAgain()
    {
        QVERIFY(mFixture->open("Third"));
        QVERIFY(mFixture->close());
        QVERIFY(mFixture->open());
        QCOMPARE(WindowFixture::window()->currentClass(), QString("Third"));
        QVERIFY(mFixture->close());
        // Not one that does not exist any more.
        WindowFixture::store()->set<QString>("Malto.Window.Page", "Gone");
        QVERIFY(mFixture->open());
        QCOMPARE(WindowFixture::window()->currentClass(), QString("General"));
    }

    void aClosedWindowDoesNotChangeTheLastPage()
    {
        QVERIFY(mFixture->open("Second"));
        QPointer<ConfigurationWindow> former(WindowFixture::window());
        former->setAttribute(Qt::WA_DeleteOnClose, false);
        former->close();
        QVERIFY(mFixture->open("Third"));
        QMetaObject::invokeMethod(qApp, "aboutToQuit");
        QCOMPARE(WindowFixture::store()->get<QString>("Malto.Window.Page"), QString("Third"));
        delete former;
    }

    void theLastPageIsSavedLocally()
    {
        WindowFixture::store()->loadLocalConfFile();
        QVERIFY(mFixture->open("Second"));
        QVERIFY(mFixture->close());
        const auto *store = WindowFixture::store();
        QVERIFY(!store->dumpConf(ConfStorage::DumpShared).contains("Malto.Window.Page"));
        QVERIFY(store->dumpConf(ConfStorage::DumpLocal).contains("Malto.Window.Page"));
        QVERIFY(QFile::exists(WindowFixture::localFile()));
    }

    void f1CallsTheHelpOfTheHost()
    {
        QStringList asked;
        mFixture->manager->helpHook = [&](const QString &key) { asked << key; };
        QVERIFY(mFixture->openActive());
        WindowFixture::classList()->setFocus();
        press(Qt::Key_F1, 0);
        WindowFixture::checkBox(mFlag)->setFocus();
        press(Qt::Key_F1, 0);
        QCOMPARE(asked, (QStringList{"General", "General.Sound"}));
    }

    void f1OnAResetButtonIsForItsRow()
    {
        QString asked;
        mFixture->manager->helpHook = [&](const QString &key) { asked = key; };
        mFixture->manager->windowFeatures |= ResetFeature;
        WindowFixture::store()->set(mFlag->getFullName(), false);
        QVERIFY(mFixture->openActive());
        auto *button = WindowFixture::child<QAbstractButton>("ResetButton");
        QVERIFY(button);
        button->setFocus();
        press(Qt::Key_F1, 0);
        QCOMPARE(asked, QString("General.Sound"));
    }

    void theHelpMayCloseTheWindow()
    {
        mFixture->manager->helpHook = [&](const QString &) { mFixture->manager.reset(); };
        QVERIFY(mFixture->openActive());
        press(Qt::Key_F1, 0);
        QTRY_VERIFY(!WindowFixture::window());
    }

private:
    static void press(int key, int modifiers)
    {
        QWidget *focused = QApplication::focusWidget();
        QTest::keyClick(focused ? focused : WindowFixture::window(), Qt::Key(key),
                        Qt::KeyboardModifiers(modifiers));
    }

    std::unique_ptr<WindowFixture> mFixture;
    ConfItem *mFlag = nullptr;
    int mChoice = 0;
    QKeySequence mKeys;
};

int main(int argc, char **argv)
{
    return runTest<tst_WindowKeys>(argc, argv);
}

#include "tst_WindowKeys.moc"
