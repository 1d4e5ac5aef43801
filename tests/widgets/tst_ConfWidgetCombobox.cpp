#include "ComboboxFixture.h"
#include "support/TestMain.h"

#include <QCoreApplication>
#include <QWheelEvent>

#include <climits>

using MtConf::ConfItem;
using MtConf::ConfWidgetCombobox;

/// Editors that select one value of a list.
class tst_ConfWidgetCombobox : public QObject, private ComboboxFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void kindOfBoxDependsOnTheProperty_data();
    void kindOfBoxDependsOnTheProperty();
    void emptyListsShowNothing();
    void constructionLoadsNothing();
    void textIsSelected_data();
    void textIsSelected();
    void chosenTextIsStored();
    void intIsSelected_data();
    void intIsSelected();
    void chosenLabelStoresItsInt();
    void withoutValuesTheIndexIsStored();
    void missingValuesDefaultToIndexes();
    void choosingTheStoredEntryWritesNothing();
    void wrongIndexDoesNothing_data();
    void wrongIndexDoesNothing();
    void valuesOfOtherTypesDoNotChangeTheBox();
    void wheelIsIgnored();
};

void tst_ConfWidgetCombobox::kindOfBoxDependsOnTheProperty_data()
{
    QTest::addColumn<bool>("multi");
    QTest::newRow("without the property one label is selected") << false;
    QTest::newRow("with the property, even if false, labels are checked") << true;
}

void tst_ConfWidgetCombobox::kindOfBoxDependsOnTheProperty()
{
    QFETCH(bool, multi);
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    QVERIFY(mBox);
    QCOMPARE(mMulti != nullptr, multi);
    QCOMPARE(qobject_cast<ComboboxDisableWheel *>(mBox) != nullptr, !multi);
    if (!multi)
        QCOMPARE(mBox->view()->metaObject()->className(), "QListView");
    QCOMPARE(mBox->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(mBox->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(editor->layout()->contentsMargins(), QMargins());
    QVERIFY(editor->layout()->indexOf(mBox) == 0);
    QCOMPARE(mBox->accessibleName(), QString("Mode"));
}

void tst_ConfWidgetCombobox::emptyListsShowNothing()
{
    mInt = 3;
    edit(intItem())->setSelectItem(Labels(), QList<int>());
    QCOMPARE(mBox->count(), 0);
    mString = "A";
    edit(stringItem())->setSelectItem(QStringList());
    QCOMPARE(mBox->currentIndex(), -1);
    auto *editor = edit(intItem(), true);
    editor->setSelectItem(Labels(), QList<int>{1, 2});
    editor->retranslateUi();
    editor->loadConf();
    QCOMPARE(mMulti->count(), 0);
    QCOMPARE(mInt, 3);
    QCOMPARE(mString, QString("A"));
}

void tst_ConfWidgetCombobox::constructionLoadsNothing()
{
    edit(intItem());
    QCOMPARE(mBox->count(), 0);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfWidgetCombobox::textIsSelected_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("selected");
    QTest::newRow("a text of the list") << "B" << 1;
    QTest::newRow("case matters") << "b" << 2;
    QTest::newRow("the first of two equal ones") << "A" << 0;
    QTest::newRow("an unknown text selects the first") << "Z" << 0;
    QTest::newRow("an empty text selects the first") << "" << 0;
}

void tst_ConfWidgetCombobox::textIsSelected()
{
    QFETCH(QString, stored);
    QFETCH(int, selected);
    ConfWidgetCombobox *editor = edit(stringItem());
    mFixture->store()->set<QString>("Capture.Name", stored);
    mFixture->store()->mChanged = false;
    editor->setSelectItem({"A", "B", "b", "A"});
    QCOMPARE(mBox->currentIndex(), selected);
    QCOMPARE(mString, stored);
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(changedMark(editor), QString(stored.isEmpty() ? "0" : "1"));
}

void tst_ConfWidgetCombobox::chosenTextIsStored()
{
    mString = "A";
    ConfWidgetCombobox *editor = edit(stringItem());
    editor->setSelectItem({"A", "B;C", "D"});
    clickRow(1);
    QCOMPARE(mString, QString("B;C"));
    QCOMPARE(changedMark(editor), QString("1"));
    editor->setValueInt32(0);
    QCOMPARE(mBox->currentIndex(), 0);
    QCOMPARE(mString, QString("A"));
    QCOMPARE(changedMark(editor), QString("0"));
}

void tst_ConfWidgetCombobox::intIsSelected_data()
{
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("selected");
    QTest::newRow("by value") << QList<int>{10, 20, 30} << 20 << 1;
    QTest::newRow("negative") << QList<int>{-1, INT_MIN, INT_MAX} << INT_MIN << 1;
    QTest::newRow("first of equal values") << QList<int>{5, 5, 5} << 5 << 0;
    QTest::newRow("unknown selects nothing") << QList<int>{10, 20, 30} << 2 << -1;
    QTest::newRow("without values by index") << QList<int>() << 2 << 2;
    QTest::newRow("more values than labels") << QList<int>{1, 2, 3, 4} << 4 << -1;
}

void tst_ConfWidgetCombobox::intIsSelected()
{
    QFETCH(QList<int>, values);
    QFETCH(int, stored);
    QFETCH(int, selected);
    mInt = stored;
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"A", "B", "C"}, values);
    QCOMPARE(mBox->count(), 3);
    QCOMPARE(mBox->currentIndex(), selected);
    QCOMPARE(mInt, stored);
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(changedMark(editor), QString("0"));
}

void tst_ConfWidgetCombobox::chosenLabelStoresItsInt()
{
    mInt = 10;
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"A", "B", "C"}, {10, 20, 30});
    QCOMPARE(mBox->itemData(2), QVariant(30));
    clickRow(2);
    QCOMPARE(mInt, 30);
    QCOMPARE(changedMark(editor), QString("1"));
    mFixture->store()->set<int>("Capture.Mode", 20);
    editor->loadConf();
    QCOMPARE(mBox->currentText(), QString("B"));
}

void tst_ConfWidgetCombobox::withoutValuesTheIndexIsStored()
{
    edit(intItem())->setSelectItem({"A", "B", "C"}, {});
    clickRow(2);
    QCOMPARE(mInt, 2);
}

void tst_ConfWidgetCombobox::missingValuesDefaultToIndexes()
{
    edit(intItem())->setSelectItem({"A", "B", "C"}, {40});
    QCOMPARE(mBox->itemData(0), QVariant(40));
    QCOMPARE(mBox->itemData(1), QVariant(1));
    QCOMPARE(mBox->itemData(2), QVariant(2));
}

void tst_ConfWidgetCombobox::choosingTheStoredEntryWritesNothing()
{
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"A", "B"}, {});
    mFixture->store()->set<int>("Capture.Mode", 1);
    mFixture->store()->mChanged = false;
    editor->setValueInt32(1); // now shows the stored value
    QCOMPARE(mBox->currentIndex(), 1);
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(changedMark(editor), QString("0"));

    mString = "A";
    editor = edit(stringItem());
    editor->setSelectItem({"A", "B"});
    mFixture->store()->mChanged = false;
    editor->setValueInt32(0);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfWidgetCombobox::wrongIndexDoesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("none") << -1;
    QTest::newRow("after the last") << 2;
    QTest::newRow("largest") << INT_MAX;
}

void tst_ConfWidgetCombobox::wrongIndexDoesNothing()
{
    QFETCH(int, index);
    mInt = 20;
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"A", "B"}, {10, 20});
    editor->setValueInt32(index);
    QCOMPARE(mInt, 20);
    QCOMPARE(mBox->currentIndex(), 1);
}

void tst_ConfWidgetCombobox::valuesOfOtherTypesDoNotChangeTheBox()
{
    bool flag = true;
    ConfItem *item = mFixture->manager.addConfBool("Flag", &flag, "Capture", "Flag");
    ConfWidgetCombobox *editor = edit(item);
    editor->setSelectItem({"A", "B"}, {1, 0});
    const int current = mBox->currentIndex();
    editor->loadConf();
    QCOMPARE(mBox->currentIndex(), current);
    QCOMPARE(changedMark(editor), QString("0"));
}

void tst_ConfWidgetCombobox::wheelIsIgnored()
{
    edit(intItem())->setSelectItem({"A", "B"}, {});
    QWheelEvent event(QPointF(5, 5), mBox->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(mBox, &event);
    QCOMPARE(mBox->currentIndex(), 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetCombobox>(argc, argv);
}

#include "tst_ConfWidgetCombobox.moc"
