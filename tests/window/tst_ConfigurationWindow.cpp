#include "support/LogCapture.h"
#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QStandardItemModel>

using MtConf::ConfigurationWindow;
using MtConf::ConfItem;

/// The window itself: its form, its navigation, and restoring defaults.
class tst_ConfigurationWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<WindowFixture>();
        mFirst = mSecond = true;
        mNumber = 5;
        mFirstItem = mFixture->manager->addConfBool("First", &mFirst, "General", "First");
        mNumberItem = mFixture->manager->addConfInt32("Number", &mNumber, "General", "Number");
        mSecondItem = mFixture->manager->addConfBool("Second", &mSecond, "Other", "Second");
    }
    void cleanup() { mFixture.reset(); }

    void formHasTheStructureThatTheStyleSheetExpects();
    void windowIsOnTopAndDeletesItself();
    void classListShowsTheClassesInOrder();
    void firstPageIsShownAtStart();
    void clickOnAClassShowsItsPage();
    void arrowKeysMoveThroughTheClasses();
    void switchToView_opensTheFirstPageOfThatName();
    void switchToView_withUnknownNameShowsAnEmptyPage();
    void currentClassFollowsTheSelection();
    void fitToPage_leavesNothingToScroll();
    void fitToPage_keepsAWindowThatIsLargeEnough();
    void clickChangesTheVariable();
    void restorePage_answeredNoChangesNothing();
    void restorePage_answeredYesRestoresThisPageOnly();
    void restorePage_escapeChangesNothing();
    void restorePage_rebuildsAPageAtItsDefaults();
    void restoreAll_answeredNoChangesNothing();
    void restoreAll_answeredYesRestoresEverything();
    void restoringAsksForConfirmation_data();
    void restoringAsksForConfirmation();
    void windowDeletedWhileTheQuestionIsOpenChangesNothing();
    void questionThatTheHostDeletesChangesNothing();
    void pageShownWhenTheQuestionIsAnsweredIsRestored();
    void callbackMayOpenAnotherPageDuringRestore();
    void closingSavesTheLocalFile();
    void closingAHiddenWindowSavesTheLocalFile();
    void managerWithoutClassesShowsAnEmptyWindow();

private:
    void change()
    {
        mFixture->store()->set<bool>("General.First", false);
        mFixture->store()->set<bool>("Other.Second", false);
    }

    std::unique_ptr<WindowFixture> mFixture;
    ConfItem *mFirstItem = nullptr;
    ConfItem *mNumberItem = nullptr;
    ConfItem *mSecondItem = nullptr;
    bool mFirst = true;
    bool mSecond = true;
    int mNumber = 0;
};

void tst_ConfigurationWindow::formHasTheStructureThatTheStyleSheetExpects()
{
    const ConfigurationWindow *window = mFixture->open();
    QVERIFY(window);
    QCOMPARE(window->objectName(), QString("ConfigurationWindow"));
    QCOMPARE(window->windowTitle(), QString("Quorvi Configuration"));
    QVERIFY(mFixture->child<QWidget>("centralwidget"));
    QVERIFY(mFixture->child<QLayout>("horizontalLayout_2"));
    QVERIFY(mFixture->child<QLayout>("horizontalLayout"));
    QVERIFY(mFixture->child<QLayout>("verticalLayout_3"));
    QVERIFY(mFixture->child<QLayout>("verticalLayout"));
    QVERIFY(mFixture->child<QLayout>("horizontalLayout_4"));
    QCOMPARE(mFixture->classList()->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(mFixture->restoreAllButton()->text(), QString("Restore All Default"));
    QCOMPARE(mFixture->restorePageButton()->text(), QString("Restore Default"));
    const auto *area = mFixture->child<QScrollArea>("scrollArea");
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->lineWidth(), 0);
    QCOMPARE(area->widget()->objectName(), QString("gboxConfigBoard"));
    QCOMPARE(area->styleSheet(), QString("#scrollArea{\nborder: 0px solid #ededed; \n}"));
    QCOMPARE(area->widget()->styleSheet(),
             QString("#gboxConfigBoard{\nbackground-color:transparent;\n}"));
    QCOMPARE(
        mFixture->restoreAllButton()->styleSheet(),
        QString("\nQPushButton{\n  border: 0px solid #f56c6c;\n  background-color: #f56c6c;\n"
                "  color:white;\n}\nQPushButton:hover{\n  border: 0px solid #f78989;\n"
                "  background-color:#f78989;\n  color:white;\n}\nQPushButton:pressed{\n"
                "  border: 0px solid #dd6161;\n  background-color:#dd6161;\n  color:white;\n}"));
    QCOMPARE(mFixture->restorePageButton()->styleSheet(),
             QString("\nQPushButton{\n  border: 0px solid #f56c6c;\n  background-color: #e6a23c;\n"
                     "  color: white;\n}\nQPushButton:hover{\n  border: 0px solid #f56c6c;\n"
                     "  background-color:#ebb563;\n  color: white;\n}\nQPushButton:pressed{\n"
                     "  border: 0px solid #f56c6c;\n  background-color:#cf9236;\n"
                     "  color: white;\n}\n"));
}

void tst_ConfigurationWindow::windowIsOnTopAndDeletesItself()
{
    const ConfigurationWindow *window = mFixture->open();
    QVERIFY(window->windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(window->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(mFixture->close());
    QVERIFY(!mFirstItem->editor);
}

void tst_ConfigurationWindow::classListShowsTheClassesInOrder()
{
    mFixture->manager->setConfigClassFlag("Flag only", 4);
    mFixture->open();
    const auto *model = qobject_cast<QStandardItemModel *>(mFixture->classList()->model());
    QCOMPARE(model->horizontalHeaderItem(0)->text(), QString("Config"));
    QCOMPARE(model->rowCount(), 3);
    const QStringList names{"General", "Other", "Flag only"};
    for (int row = 0; row < names.size(); ++row) {
        QCOMPARE(model->item(row)->text(), names.at(row));
        QCOMPARE(model->item(row)->data(Qt::UserRole + 1).toString(), names.at(row));
    }
    // 200 and 28 units at 96 dots per inch, where a unit is 4/3 of a pixel.
    QCOMPARE(mFixture->classList()->minimumWidth(), 267);
    QCOMPARE(mFixture->classList()->iconSize(), QSize(37, 37));
}

void tst_ConfigurationWindow::firstPageIsShownAtStart()
{
    mFixture->open();
    QCOMPARE(mFixture->classList()->currentIndex().row(), 0);
    QCOMPARE(mFixture->captions(), QStringList("General"));
    QVERIFY(mFirstItem->editor);
    QVERIFY(!mSecondItem->editor);
}

void tst_ConfigurationWindow::clickOnAClassShowsItsPage()
{
    mFixture->open();
    mFixture->clickClass(1);
    QCOMPARE(mFixture->captions(), QStringList("Other"));
    QVERIFY(!mFirstItem->editor);
    QVERIFY(mSecondItem->editor);
}

void tst_ConfigurationWindow::arrowKeysMoveThroughTheClasses()
{
    mFixture->open();
    QTest::keyClick(mFixture->classList(), Qt::Key_Down);
    QVERIFY(mSecondItem->editor);
    QTest::keyClick(mFixture->classList(), Qt::Key_Up);
    QVERIFY(mFirstItem->editor);
}

void tst_ConfigurationWindow::switchToView_opensTheFirstPageOfThatName()
{
    mFixture->open()->switchToView("Other");
    QCOMPARE(mFixture->classList()->currentIndex().row(), 1);
    QVERIFY(mSecondItem->editor);
}

void tst_ConfigurationWindow::switchToView_withUnknownNameShowsAnEmptyPage()
{
    ConfigurationWindow *window = mFixture->open();
    const LogCapture log;
    window->switchToView("other");
    QVERIFY(!mFixture->classList()->currentIndex().isValid());
    QVERIFY(mFixture->groups().isEmpty());
    QVERIFY(!mFirstItem->editor);
    QVERIFY(log.texts(QtWarningMsg).contains("major class not exist:  \"\""));
    window->switchToView("General");
    QVERIFY(mFirstItem->editor);
}

void tst_ConfigurationWindow::currentClassFollowsTheSelection()
{
    const LogCapture log;
    ConfigurationWindow *window = mFixture->open();
    QCOMPARE(window->currentClass(), QString("General"));
    mFixture->clickClass(1);
    QCOMPARE(window->currentClass(), QString("Other"));
    window->switchToView("unknown");
    QCOMPARE(window->currentClass(), QString());
}

void tst_ConfigurationWindow::fitToPage_leavesNothingToScroll()
{
    for (int i = 0; i < 100; ++i)
        mFixture->manager->addConfBool("Flag", &mFirst, "General", QString::number(i));
    ConfigurationWindow *window = mFixture->open();
    const auto *area = mFixture->child<QScrollArea>("scrollArea");
    QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
    const int width = window->width();
    window->fitToPage();
    QTRY_COMPARE(area->verticalScrollBar()->maximum(), 0);
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(window->width(), width);
}

void tst_ConfigurationWindow::fitToPage_keepsAWindowThatIsLargeEnough()
{
    ConfigurationWindow *window = mFixture->open();
    window->resize(900, 700);
    QTRY_COMPARE(window->size(), QSize(900, 700));
    window->fitToPage();
    QCoreApplication::processEvents();
    QCOMPARE(window->size(), QSize(900, 700));
}

void tst_ConfigurationWindow::clickChangesTheVariable()
{
    mFixture->open();
    mFixture->clickBox(mFixture->checkBox(mFirstItem));
    QVERIFY(!mFirst);
    QCOMPARE(mFixture->checkBox(mFirstItem)->property("changed"), QVariant("1"));
}

void tst_ConfigurationWindow::restorePage_answeredNoChangesNothing()
{
    change();
    mFixture->open();
    const QPointer<QWidget> editor = mFirstItem->editor;
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), QMessageBox::No));
    QVERIFY(!mFirst);
    QVERIFY(editor);
}

void tst_ConfigurationWindow::restorePage_answeredYesRestoresThisPageOnly()
{
    change();
    mFixture->open();
    QCOMPARE(mFixture->checkBox(mFirstItem)->property("changed"), QVariant("1"));
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), QMessageBox::Yes));
    QVERIFY(mFirst);
    QVERIFY(!mSecond);
    QVERIFY(mFixture->checkBox(mFirstItem)->isChecked());
    QCOMPARE(mFixture->checkBox(mFirstItem)->property("changed"), QVariant("0"));
}

void tst_ConfigurationWindow::restorePage_escapeChangesNothing()
{
    change();
    mFixture->open();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), [](QMessageBox *box) {
        QTest::keyClick(box, Qt::Key_Escape);
    }));
    QVERIFY(!mFirst);
}

void tst_ConfigurationWindow::restorePage_rebuildsAPageAtItsDefaults()
{
    mFixture->open();
    const QPointer<QWidget> editor = mFirstItem->editor;
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), QMessageBox::Yes));
    QVERIFY(!editor);
    QVERIFY(mFirstItem->editor);
}

void tst_ConfigurationWindow::restoreAll_answeredNoChangesNothing()
{
    change();
    mFixture->open();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restoreAllButton(), QMessageBox::No));
    QVERIFY(!mFirst);
    QVERIFY(!mSecond);
}

void tst_ConfigurationWindow::restoreAll_answeredYesRestoresEverything()
{
    change();
    bool hooked = false;
    mFixture->manager->restoreAllHook = [&] { hooked = true; };
    mFixture->open();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restoreAllButton(), QMessageBox::Yes));
    QVERIFY(hooked);
    QVERIFY(mFirst);
    QVERIFY(mSecond);
    QVERIFY(mFixture->checkBox(mFirstItem)->isChecked());
}

void tst_ConfigurationWindow::restoringAsksForConfirmation_data()
{
    QTest::addColumn<bool>("all");
    QTest::addColumn<QString>("question");
    QTest::newRow("page") << false << "Are you sure to restore current page default?";
    QTest::newRow("all") << true << "Are you sure to restore all default?";
}

void tst_ConfigurationWindow::restoringAsksForConfirmation()
{
    QFETCH(bool, all);
    mFixture->open();
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    bool yesIsDefault = false;
    QVERIFY(mFixture->clickAndAnswer(
        all ? mFixture->restoreAllButton() : mFixture->restorePageButton(), [&](QMessageBox *box) {
            text = box->text();
            icon = box->icon();
            buttons = box->standardButtons();
            yesIsDefault = box->defaultButton() == box->button(QMessageBox::Yes);
            box->reject();
        }));
    QTEST(text, "question");
    QCOMPARE(icon, QMessageBox::Question);
    QCOMPARE(buttons, QMessageBox::Yes | QMessageBox::No);
    QVERIFY(yesIsDefault);
}

void tst_ConfigurationWindow::windowDeletedWhileTheQuestionIsOpenChangesNothing()
{
    change();
    mFixture->open();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(),
                                     [](QMessageBox *) { delete WindowFixture::window(); }));
    QVERIFY(!mFixture->window());
    QVERIFY(!mFirst);
}

void tst_ConfigurationWindow::questionThatTheHostDeletesChangesNothing()
{
    change();
    mFixture->open();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(),
                                     [](QMessageBox *box) { delete box; }));
    QVERIFY(!mFirst);
}

void tst_ConfigurationWindow::pageShownWhenTheQuestionIsAnsweredIsRestored()
{
    change();
    mFixture->open();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), [&](QMessageBox *box) {
        mFixture->window()->switchToView("Other");
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
    }));
    QVERIFY(!mFirst);
    QVERIFY(mSecond);
}

void tst_ConfigurationWindow::callbackMayOpenAnotherPageDuringRestore()
{
    change();
    mFirstItem->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { mFixture->manager->ShowWindow("Other"); });
    mFixture->open();
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), QMessageBox::Yes));
    QVERIFY(mFirst);
    QCOMPARE(mFixture->captions(), QStringList("Other"));
}

void tst_ConfigurationWindow::closingSavesTheLocalFile()
{
    mFixture->open();
    mFixture->clickBox(mFixture->checkBox(mFirstItem));
    QVERIFY(!QFile::exists(mFixture->localFile()));
    QVERIFY(mFixture->close());
    QVERIFY(QFile::exists(mFixture->localFile()));
}

void tst_ConfigurationWindow::closingAHiddenWindowSavesTheLocalFile()
{
    mFixture->open();
    mFixture->clickBox(mFixture->checkBox(mFirstItem));
    mFixture->window()->hide();
    QVERIFY(!QFile::exists(mFixture->localFile()));
    QVERIFY(mFixture->close());
    QVERIFY(QFile::exists(mFixture->localFile()));
}

void tst_ConfigurationWindow::managerWithoutClassesShowsAnEmptyWindow()
{
    mFixture->manager->items.clear();
    mFixture->manager->majorItems.clear();
    mFixture->open();
    QCOMPARE(mFixture->classList()->model()->rowCount(), 0);
    QVERIFY(mFixture->groups().isEmpty());
    QVERIFY(mFixture->clickAndAnswer(mFixture->restorePageButton(), QMessageBox::Yes));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfigurationWindow>(argc, argv);
}

#include "tst_ConfigurationWindow.moc"
