#include "ComboboxFixture.h"
#include "support/TestMain.h"

#include <QLineEdit>
#include <QSignalSpy>

#include <climits>

using MtConf::ConfItem;
using MtConf::ConfWidgetCombobox;

/// Editors that select any number of flags of a list.
class tst_ConfWidgetComboboxMulti : public QObject, private ComboboxFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void flagsAreChecked_data();
    void flagsAreChecked();
    void clickedFlagsAreStored();
    void clickOnARowStoresOnce();
    void multiSelectionStoresEvenAnUnchangedValue();
    void loadingFlagsDoesNotChangeCaptionAndStore();
    void plainTextsInAMultiSelection();
    void multiSlotNeedsAMultiBox();
    void bitsWithoutALabelAreClearedByTheFirstClick();
    void labelsOfTheSameBitAreCheckedTogetherWhenLoaded();
    void labelsOfASecondListAreCheckedToo();
    void textItemKeepsItsText();
};

void tst_ConfWidgetComboboxMulti::flagsAreChecked_data()
{
    QTest::addColumn<QList<int>>("flags");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QList<int>>("checked");
    const QList<int> bits{1, 2, 4};
    QTest::newRow("no bit") << bits << 0 << QList<int>();
    QTest::newRow("two bits") << bits << 5 << QList<int>{0, 2};
    QTest::newRow("bits without a label") << bits << 0x72 << QList<int>{1};
    QTest::newRow("all bits") << bits << -1 << QList<int>{0, 1, 2};
    QTest::newRow("the sign bit") << QList<int>{INT_MIN, INT_MAX, -1} << INT_MIN << QList<int>{0};
    QTest::newRow("a label with two bits needs both")
        << QList<int>{3, 6, 1} << 3 << QList<int>{0, 2};
    QTest::newRow("a label without bits is always checked")
        << QList<int>{0, 1, 2} << 2 << QList<int>{0, 2};
    QTest::newRow("without values the index is the flag") << QList<int>() << 2 << QList<int>{0, 2};
}

void tst_ConfWidgetComboboxMulti::flagsAreChecked()
{
    QFETCH(QList<int>, flags);
    QFETCH(int, stored);
    mInt = stored;
    edit(intItem(), true)->setSelectItem({"A", "B", "C"}, flags);
    QTEST(checkedRows(), "checked");
    QCOMPARE(mInt, stored);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfWidgetComboboxMulti::clickedFlagsAreStored()
{
    mInt = 5;
    ConfWidgetCombobox *editor = edit(intItem(), true);
    editor->setSelectItem({"A", "B", "C"}, {1, 2, 4});
    QCOMPARE(mMulti->lineEdit()->text(), QString("A;C"));
    QVERIFY(mFixture->show());
    mBox->showPopup();
    clickBox(1);
    QCOMPARE(mInt, 7);
    QCOMPARE(changedMark(editor), QString("1"));
    clickBox(1);
    QCOMPARE(mInt, 5);
    QCOMPARE(changedMark(editor), QString("0"));
    clickBox(0);
    clickBox(2);
    QCOMPARE(mInt, 0);
    QCOMPARE(mMulti->lineEdit()->text(), QString());
}

void tst_ConfWidgetComboboxMulti::clickOnARowStoresOnce()
{
    edit(intItem(), true)->setSelectItem({"A", "B", "C"}, {1, 2, 4});
    int calls = 0;
    mFixture->store()->setConfChangedCallback(
        "Capture.Mode", [&calls](const QString &, const ConfValue *) { ++calls; });
    clickRow(2);
    QCOMPARE(mInt, 4);
    QCOMPARE(calls, 1);
    QCOMPARE(mMulti->lineEdit()->text(), QString("C"));
    QVERIFY(mBox->view()->isVisible());
}

void tst_ConfWidgetComboboxMulti::multiSelectionStoresEvenAnUnchangedValue()
{
    mInt = 1;
    ConfWidgetCombobox *editor = edit(intItem(), true);
    editor->setSelectItem({"A", "B"}, {1, 1});
    int calls = 0;
    mFixture->store()->setConfChangedCallback(
        "Capture.Mode", [&calls](const QString &, const ConfValue *) { ++calls; });
    mFixture->store()->mChanged = false;
    mMulti->setItemChecked(1, false); // the other label has the same bit
    QCOMPARE(mInt, 1);
    QCOMPARE(calls, 1);
    QVERIFY(mFixture->store()->mChanged);
}

void tst_ConfWidgetComboboxMulti::loadingFlagsDoesNotChangeCaptionAndStore()
{
    ConfWidgetCombobox *editor = edit(intItem(), true);
    editor->setSelectItem({"A", "B"}, {1, 2});
    mFixture->store()->set<int>("Capture.Mode", 2);
    mFixture->store()->mChanged = false;
    const QSignalSpy spy(mMulti, &MultiSelectComboBox::selectionChanged);
    editor->loadConf();
    QCOMPARE(mMulti->lineEdit()->text(), QString("B"));
    QCOMPARE(spy.count(), 0);
    QVERIFY(!mFixture->store()->mChanged);
    QCOMPARE(changedMark(editor), QString("0"));
}

void tst_ConfWidgetComboboxMulti::plainTextsInAMultiSelection()
{
    mInt = 6;
    ConfWidgetCombobox *editor = edit(intItem(), true);
    editor->setSelectItem({"A", "B"});
    QCOMPARE(mMulti->count(), 2);
    QVERIFY(!checkBox(0) && !checkBox(1));
    QCOMPARE(mBox->itemText(1), QString("B"));
    clickRow(1);
    editor->loadConf();
    editor->retranslateUi();
    QCOMPARE(mInt, 6);
}

void tst_ConfWidgetComboboxMulti::multiSlotNeedsAMultiBox()
{
    mInt = 1;
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"A", "B"}, {});
    editor->onMultiSelectionChanged();
    QCOMPARE(mInt, 1);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfWidgetComboboxMulti::bitsWithoutALabelAreClearedByTheFirstClick()
{
    mInt = 0x71;
    edit(intItem(), true)->setSelectItem({"A", "B", "C"}, {1, 2, 4});
    QVERIFY(mFixture->show());
    mBox->showPopup();
    clickBox(2);
    QCOMPARE(mInt, 5);
}

void tst_ConfWidgetComboboxMulti::labelsOfTheSameBitAreCheckedTogetherWhenLoaded()
{
    ConfWidgetCombobox *editor = edit(intItem(), true);
    editor->setSelectItem({"A", "A too", "B"}, {1, 1, 2});
    QVERIFY(mFixture->show());
    mBox->showPopup();
    clickBox(0);
    QCOMPARE(mInt, 1);
    QCOMPARE(checkedRows(), QList<int>{0});
    editor->loadConf();
    QCOMPARE(checkedRows(), (QList<int>{0, 1}));
    clickBox(0);
    QCOMPARE(mInt, 1);
    clickBox(1);
    QCOMPARE(mInt, 0);
}

void tst_ConfWidgetComboboxMulti::labelsOfASecondListAreCheckedToo()
{
    mInt = 6;
    ConfWidgetCombobox *editor = edit(intItem(), true);
    editor->setSelectItem({"A", "B"}, {1, 2});
    editor->setSelectItem({"C"}, {4});
    QCOMPARE(checkedRows(), (QList<int>{1, 2}));
    editor->retranslateUi();
    QCOMPARE(mMulti->currentText(), (QStringList{"B", "C"}));
    QCOMPARE(mInt, 6);
}

void tst_ConfWidgetComboboxMulti::textItemKeepsItsText()
{
    mString = "B";
    edit(stringItem(), true)->setSelectItem({"A", "B"}, {1, 2});
    QTest::ignoreMessage(QtWarningMsg, "ConfValue::get() type mismatch");
    mMulti->setItemChecked(0, true);
    QCOMPARE(mString, QString("B"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetComboboxMulti>(argc, argv);
}

#include "tst_ConfWidgetComboboxMulti.moc"
