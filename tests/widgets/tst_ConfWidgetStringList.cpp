#include "TextEditorFixture.h"
#include "support/TestMain.h"
#include "support/WheelTurn.h"
#include "support/WindowFixture.h"

#include <MaltoConfiguration/widgets/ConfWidgetStringList.h>

#include <QJsonArray>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>

using MtConf::ConfItem;
using MtConf::ConfWidgetStringList;

class tst_ConfWidgetStringList : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TextEditorFixture<ConfWidgetStringList>>();
        mValue = QStringList{"a", "b", "c"};
        mItem = mFixture->manager.addConfStringList("Files", &mValue, "User", "Files");
    }
    void cleanup() { mFixture.reset(); }

    void storedListIsShown();
    void addEditsANewEntryAndStoresIt();
    void newEntryThatIsLeftEmptyIsRemoved_data();
    void newEntryThatIsLeftEmptyIsRemoved();
    void removeAfterAddRemovesOnlyTheNewEntry();
    void addEndsEditingInPlace();
    void entryIsEditedInPlace_data();
    void entryIsEditedInPlace();
    void escapeKeepsTheEntry();
    void emptiedEntryIsRemoved();
    void storedEmptyEntryIsKept();
    void tabEndsEditingAndThenLeavesTheList();
    void deleteKeyRemoves();
    void buttonsRemoveAndMove();
    void keysMove();
    void keysOfTheListDoNothingWhileAnEntryIsEdited();
    void buttonsAreEnabledWhereTheyHaveAnEffect();
    void focusStaysWhenAButtonIsDisabled();
    void commitStoresWhatIsBeingTyped();
    void observersHearOneChange();
    void refreshKeepsTheCurrentEntry_data();
    void refreshKeepsTheCurrentEntry();
    void refreshKeepsWhatTheUserIsTyping();
    void refreshedListIsShownAfterEditingIsCancelled();
    void refreshNeverStores();
    void refusedListStaysAndIsExplained();
    void callbackMayStoreAnotherList();
    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void deletedEditorStoresNothing();
    void closingTheWindowStoresWhatIsBeingTyped();
    void wheelScrollsTheListOnlyWithFocus();
    void textsFollowTheLanguage();
    void controlsAreNamed();
    void rightToLeftMirrorsTheRow();
    void factoryNeedsAnItem();

private:
    QListWidget *open(int current = -1)
    {
        if (!mFixture->openPage(mItem))
            return nullptr;
        mList = mFixture->child<QListWidget>();
        mList->setFocus();
        mList->setCurrentRow(current);
        return mList;
    }
    void click(const char *button) const
    {
        QTest::mouseClick(mFixture->button(button), Qt::LeftButton);
    }
    /// Returns the field that edits an entry in place.
    QLineEdit *field() const { return mList->viewport()->findChild<QLineEdit *>(); }
    QStringList shown() const
    {
        QStringList texts;
        for (int row = 0; row < mList->count(); ++row)
            texts.append(mList->item(row)->text());
        return texts;
    }
    bool isEnabled(const char *button) const { return mFixture->button(button)->isEnabled(); }

    std::unique_ptr<TextEditorFixture<ConfWidgetStringList>> mFixture;
    ConfItem *mItem = nullptr;
    QListWidget *mList = nullptr;
    QStringList mValue;
};

void tst_ConfWidgetStringList::storedListIsShown()
{
    QVERIFY(open());
    QCOMPARE(shown(), QStringList({"a", "b", "c"}));
    QCOMPARE(changedMark(mFixture->editor), QString("0"));
    QVERIFY(!mFixture->message);
}

void tst_ConfWidgetStringList::addEditsANewEntryAndStoresIt()
{
    open(0);
    click("Add");
    QVERIFY(field());
    QTest::keyClicks(field(), "new");
    QCOMPARE(mValue, QStringList({"a", "b", "c"}));
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_COMPARE(mValue, QStringList({"a", "b", "c", "new"}));
    QCOMPARE(mList->currentRow(), 3);
    QVERIFY(mList->hasFocus());
    QCOMPARE(changedMark(mFixture->editor), QString("1"));
}

void tst_ConfWidgetStringList::newEntryThatIsLeftEmptyIsRemoved_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
}

void tst_ConfWidgetStringList::newEntryThatIsLeftEmptyIsRemoved()
{
    QFETCH(int, key);
    open();
    click("Add");
    QCOMPARE(mList->count(), 4);
    QTest::keyClick(field(), static_cast<Qt::Key>(key));
    QTRY_COMPARE(mList->count(), 3);
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetStringList::removeAfterAddRemovesOnlyTheNewEntry()
{
    open(1);
    click("Add");
    click("Remove");
    QTRY_COMPARE(shown(), QStringList({"a", "b", "c"}));
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetStringList::addEndsEditingInPlace()
{
    open();
    mFixture->button("Add")->setFocusPolicy(Qt::NoFocus); // as on macOS
    click("Add");
    QTest::keyClicks(field(), "d");
    click("Add");
    QCOMPARE(mValue, QStringList({"a", "b", "c", "d"}));
    QCOMPARE(mList->count(), 5);
    QCOMPARE(mList->currentRow(), 4);
}

void tst_ConfWidgetStringList::entryIsEditedInPlace_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("F2") << int(Qt::Key_F2);
    QTest::newRow("double click") << 0;
}

void tst_ConfWidgetStringList::entryIsEditedInPlace()
{
    QFETCH(int, key);
    open(1);
    if (key) {
        QTest::keyClick(mList, static_cast<Qt::Key>(key));
    } else {
        const QPoint middle = mList->visualItemRect(mList->item(1)).center();
        QTest::mouseClick(mList->viewport(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(mList->viewport(), Qt::LeftButton, {}, middle);
    }
    QVERIFY(field());
    QTest::keyClicks(field(), "x");
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_COMPARE(mValue, QStringList({"a", "x", "c"}));
    QCOMPARE(mList->currentRow(), 1);
}

void tst_ConfWidgetStringList::escapeKeepsTheEntry()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClicks(field(), "x");
    QTest::keyClick(field(), Qt::Key_Escape);
    QTRY_VERIFY(!field());
    QCOMPARE(shown(), QStringList({"a", "b", "c"}));
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetStringList::emptiedEntryIsRemoved()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClick(field(), Qt::Key_Delete);
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_COMPARE(mValue, QStringList({"a", "c"}));
    QCOMPARE(shown(), QStringList({"a", "c"}));
}

void tst_ConfWidgetStringList::storedEmptyEntryIsKept()
{
    mFixture->store()->set("User.Files", QStringList{"a", "", "c"});
    mFixture->changes = 0;
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_VERIFY(!field());
    QCOMPARE(shown(), QStringList({"a", "", "c"}));
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetStringList::tabEndsEditingAndThenLeavesTheList()
{
    open(0);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClicks(field(), "x");
    QTest::keyClick(field(), Qt::Key_Tab);
    QTRY_COMPARE(mValue, QStringList({"x", "b", "c"}));
    QTRY_VERIFY(!field());
    QVERIFY(mList->hasFocus());
    QTest::keyClick(mList, Qt::Key_Tab);
    QVERIFY(mFixture->button("Add")->hasFocus());
}

void tst_ConfWidgetStringList::deleteKeyRemoves()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_Delete);
    QCOMPARE(mValue, QStringList({"a", "c"}));
    QVERIFY(mList->currentRow() >= 0);
    QTest::keyClick(mList, Qt::Key_Delete);
    QTest::keyClick(mList, Qt::Key_Delete);
    QCOMPARE(mValue, QStringList());
    QTest::keyClick(mList, Qt::Key_Delete);
    QCOMPARE(mFixture->changes, 3);
}

void tst_ConfWidgetStringList::buttonsRemoveAndMove()
{
    open(2);
    click("Move up");
    QCOMPARE(mValue, QStringList({"a", "c", "b"}));
    QCOMPARE(mList->currentRow(), 1);
    click("Move down");
    QCOMPARE(mValue, QStringList({"a", "b", "c"}));
    QCOMPARE(mList->currentRow(), 2);
    click("Remove");
    QCOMPARE(mValue, QStringList({"a", "b"}));
}

void tst_ConfWidgetStringList::keysMove()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(mValue, QStringList({"b", "a", "c"}));
    QTest::keyClick(mList, Qt::Key_Up, Qt::AltModifier); // the first one stays
    QTest::keyClick(mList, Qt::Key_Down, Qt::AltModifier | Qt::KeypadModifier);
    QTest::keyClick(mList, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(mValue, QStringList({"a", "c", "b"}));
    QTest::keyClick(mList, Qt::Key_Down, Qt::AltModifier); // the last one stays
    QCOMPARE(mFixture->changes, 3);
    QCOMPARE(mList->currentRow(), 2);
    QTest::keyClick(mList, Qt::Key_Up);
    QCOMPARE(mList->currentRow(), 1);
    QCOMPARE(mFixture->changes, 3);
}

void tst_ConfWidgetStringList::keysOfTheListDoNothingWhileAnEntryIsEdited()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClick(field(), Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(field(), Qt::Key_End);
    QTest::keyClick(field(), Qt::Key_Delete);
    QVERIFY(field());
    QCOMPARE(shown(), QStringList({"a", "b", "c"}));
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetStringList::buttonsAreEnabledWhereTheyHaveAnEffect()
{
    open();
    QVERIFY(isEnabled("Add"));
    QVERIFY(!isEnabled("Remove") && !isEnabled("Move up") && !isEnabled("Move down"));
    mList->setCurrentRow(0);
    QVERIFY(isEnabled("Remove") && !isEnabled("Move up") && isEnabled("Move down"));
    mList->setCurrentRow(1);
    QVERIFY(isEnabled("Remove") && isEnabled("Move up") && isEnabled("Move down"));
    mList->setCurrentRow(2);
    QVERIFY(isEnabled("Remove") && isEnabled("Move up") && !isEnabled("Move down"));
    QTest::keyClick(mList, Qt::Key_Delete);
    QVERIFY(isEnabled("Remove") && isEnabled("Move up") && !isEnabled("Move down"));
}

void tst_ConfWidgetStringList::focusStaysWhenAButtonIsDisabled()
{
    open(1);
    mFixture->button("Move up")->setFocus();
    QTest::keyClick(mFixture->button("Move up"), Qt::Key_Space);
    QCOMPARE(mValue, QStringList({"b", "a", "c"}));
    QVERIFY(!isEnabled("Move up"));
    QVERIFY(mList->hasFocus());
}

void tst_ConfWidgetStringList::commitStoresWhatIsBeingTyped()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClicks(field(), "x");
    mFixture->editor->commit();
    QCOMPARE(mValue, QStringList({"a", "x", "c"}));
    QTRY_VERIFY(!field());
    mFixture->editor->commit();
    QCOMPARE(mFixture->changes, 1);
}

void tst_ConfWidgetStringList::observersHearOneChange()
{
    open(0);
    click("Move down");
    QCOMPARE(mFixture->changes, 1);
    QCOMPARE(mFixture->lastChange.cause, ConfChange::Cause::Edited);
    QCOMPARE(mFixture->lastChange.after.value, QJsonValue(QJsonArray({"b", "a", "c"})));
}

void tst_ConfWidgetStringList::refreshKeepsTheCurrentEntry_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<int>("row");
    QTest::newRow("equal") << QStringList{"a", "b", "c"} << 1;
    QTest::newRow("moved") << QStringList{"x", "a", "y", "b"} << 3;
    QTest::newRow("renamed") << QStringList{"a", "B", "c"} << 1;
    QTest::newRow("also elsewhere") << QStringList{"b", "b", "c"} << 1;
    QTest::newRow("shorter") << QStringList{"x"} << 0;
    QTest::newRow("empty") << QStringList() << -1;
}

void tst_ConfWidgetStringList::refreshKeepsTheCurrentEntry()
{
    QFETCH(QStringList, stored);
    open(1);
    mFixture->store()->set("User.Files", stored);
    mFixture->changes = 0;
    mFixture->editor->loadConf();
    QCOMPARE(shown(), stored);
    QTEST(mList->currentRow(), "row");
    QCOMPARE(mFixture->changes, 0);
}

void tst_ConfWidgetStringList::refreshKeepsWhatTheUserIsTyping()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClicks(field(), "x");
    mFixture->store()->set("User.Files", QStringList{"other"});
    mFixture->editor->loadConf();
    QVERIFY(field());
    QCOMPARE(field()->text(), QString("x"));
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_COMPARE(mValue, QStringList({"a", "x", "c"}));
}

void tst_ConfWidgetStringList::refreshedListIsShownAfterEditingIsCancelled()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    mFixture->store()->set("User.Files", QStringList{"other"});
    mFixture->editor->loadConf();
    QTest::keyClick(field(), Qt::Key_Escape);
    QTRY_COMPARE(shown(), QStringList("other"));
    QCOMPARE(mValue, QStringList("other"));
}

void tst_ConfWidgetStringList::refreshNeverStores()
{
    open(0);
    mFixture->store()->set("User.Files", QStringList{"", "a\nb", ""});
    mFixture->store()->mChanged = false;
    mFixture->changes = 0;
    const QDateTime time = mFixture->lastChangeTime();
    mFixture->editor->loadConf();
    mFixture->editor->retranslateUi();
    mFixture->editor->commit();
    mFixture->other->setFocus();
    QCOMPARE(mValue, QStringList({"", "a\nb", ""}));
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(mFixture->changes, 0);
    QCOMPARE(mFixture->lastChangeTime(), time);
}

void tst_ConfWidgetStringList::refusedListStaysAndIsExplained()
{
    mItem->setValidator([](const QJsonValue &value) {
        return value.toArray().size() > 2 ? QString() : QString("Keep three entries.");
    });
    open(1);
    QTest::keyClick(mList, Qt::Key_Delete);
    QCOMPARE(mFixture->shownMessage(), QString("Keep three entries."));
    QCOMPARE(mList->count(), 2);
    QCOMPARE(mValue, QStringList({"a", "b", "c"}));
    click("Add");
    QTest::keyClicks(field(), "d");
    mFixture->editor->commit();
    QCOMPARE(mValue, QStringList({"a", "c", "d"}));
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfWidgetStringList::callbackMayStoreAnotherList()
{
    mItem->setConfChangedCallback([](const QString &key, const ConfValue *value) {
        QStringList sorted = value->get<QStringList>();
        sorted.sort();
        if (sorted != value->get<QStringList>())
            ConfStorage::instance()->set(key, sorted);
    });
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClicks(field(), "z");
    QTest::keyClick(field(), Qt::Key_Return);
    QTRY_COMPARE(shown(), QStringList({"a", "c", "z"}));
    QCOMPARE(mList->currentRow(), 2);
}

void tst_ConfWidgetStringList::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("Delete") << 0;
    QTest::newRow("a button") << 1;
    QTest::newRow("editing in place") << 2;
    QTest::newRow("commit") << 3;
    QTest::newRow("focus") << 4;
    QTest::newRow("Add") << 5;
}

void tst_ConfWidgetStringList::callbackMayDeleteTheEditor()
{
    QFETCH(int, way);
    open(1);
    mFixture->deleteEditorInCallback();
    if (way == 0) {
        QTest::keyClick(mList, Qt::Key_Delete);
    } else if (way == 1) {
        click("Move up");
    } else {
        if (way == 5)
            mFixture->button("Add")->setFocusPolicy(Qt::NoFocus);
        QTest::keyClick(mList, Qt::Key_F2);
        QTest::keyClicks(field(), "x");
        if (way == 2)
            QTest::keyClick(field(), Qt::Key_Return);
        else if (way == 3)
            mFixture->editor->commit();
        else if (way == 4)
            mFixture->other->setFocus();
        else
            click("Add");
    }
    QTRY_VERIFY(!mItem->editor);
    QCOMPARE(mFixture->changes, 1);
}

void tst_ConfWidgetStringList::deletedEditorStoresNothing()
{
    open(1);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClicks(field(), "x");
    delete mFixture->editor.data(); // the field loses the focus
    QCOMPARE(mValue, QStringList({"a", "b", "c"}));
}

void tst_ConfWidgetStringList::closingTheWindowStoresWhatIsBeingTyped()
{
    mFixture.reset();
    WindowFixture fixture;
    mValue = QStringList{"a"};
    mItem = fixture.manager->addConfStringList("Files", &mValue, "User", "Files");
    QVERIFY(fixture.open());
    mList = mItem->editor->findChild<QListWidget *>();
    mList->setCurrentRow(0);
    QTest::keyClick(mList, Qt::Key_F2);
    QTest::keyClicks(field(), "x");
    QVERIFY(fixture.close());
    QCOMPARE(mValue, QStringList("x"));
}

void tst_ConfWidgetStringList::wheelScrollsTheListOnlyWithFocus()
{
    for (int i = 0; i < 50; ++i)
        mValue.append(QString::number(i));
    open();
    QScrollArea area;
    QWidget *page = mFixture->editor.data();
    page->setMinimumHeight(2000);
    mList->setMaximumHeight(100);
    area.setWidget(page);
    area.resize(300, 200);
    area.show();
    area.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&area));
    area.setFocus();
    turnWheelOver(mList->viewport());
    QCOMPARE(mList->verticalScrollBar()->value(), 0);
    QVERIFY(!mList->hasFocus());
    QVERIFY(area.verticalScrollBar()->value() > 0);
    area.verticalScrollBar()->setValue(0);
    mList->setFocus();
    turnWheelOver(mList->viewport());
    QVERIFY(mList->verticalScrollBar()->value() > 0);
    QCOMPARE(area.verticalScrollBar()->value(), 0);
}

void tst_ConfWidgetStringList::textsFollowTheLanguage()
{
    open();
    const Prefixer german;
    mFixture->editor->retranslateUi();
    for (const char *text : {"de Add", "de Remove", "de Move up", "de Move down"}) {
        QVERIFY2(mFixture->button(text), text);
        QCOMPARE(mFixture->button(text)->accessibleName(), QString(text));
    }
    QCOMPARE(qobject_cast<QLabel *>(mFixture->editor->label())->text(), QString("de Files"));
}

void tst_ConfWidgetStringList::controlsAreNamed()
{
    open();
    QCOMPARE(mList->accessibleName(), QString("Files"));
    QCOMPARE(mFixture->button("Add")->accessibleName(), QString("Add"));
    QCOMPARE(qobject_cast<QLabel *>(mFixture->editor->label())->buddy(), mList);
}

void tst_ConfWidgetStringList::rightToLeftMirrorsTheRow()
{
    open();
    QVERIFY(mFixture->button("Add")->x() > mList->x());
    mFixture->parent.setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(mFixture->button("Add")->x() < mList->x());
}

void tst_ConfWidgetStringList::factoryNeedsAnItem()
{
    QTest::ignoreMessage(QtCriticalMsg, "ConfigItemWidget without an item");
    QVERIFY(!ConfWidgetStringList::CreatConfWidget(nullptr, &mFixture->parent));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetStringList>(argc, argv);
}

#include "tst_ConfWidgetStringList.moc"
