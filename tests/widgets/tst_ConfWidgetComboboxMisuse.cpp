#include "ComboboxFixture.h"
#include "support/TestMain.h"

#include <QPointer>

using MtConf::ConfItem;
using MtConf::ConfWidgetCombobox;

/// Hosts that delete, refuse and overfill.
class tst_ConfWidgetComboboxMisuse : public QObject, private ComboboxFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void callbackMayDeleteTheSlotsEditor();
    void callbackMayRefuseTheChange();
    void tenThousandLabels_data();
    void tenThousandLabels();
};

void tst_ConfWidgetComboboxMisuse::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<bool>("multi");
    QTest::addColumn<bool>("onCheckBox");
    QTest::newRow("a row of a single selection") << false << false;
    QTest::newRow("a row of a multi-selection") << true << false;
    QTest::newRow("a check box of a multi-selection") << true << true;
}

void tst_ConfWidgetComboboxMisuse::callbackMayDeleteTheEditor()
{
    QFETCH(bool, multi);
    QFETCH(bool, onCheckBox);
    ConfItem *item = intItem();
    ConfWidgetCombobox *editor = edit(item, multi);
    editor->setSelectItem({"A", "B", "C"}, {1, 2, 4});
    QCOMPARE(mBox->count(), 3);
    item->setConfChangedCallback([editor](const QString &, const ConfValue *) { delete editor; });
    const QPointer<QComboBox> box = mBox;
    if (onCheckBox) {
        QVERIFY(mFixture->show());
        mBox->showPopup();
        clickBox(1);
    } else {
        clickRow(1);
    }
    QCOMPARE(mInt, 2);
    QVERIFY(!item->editor);
    QTRY_VERIFY(!box);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ConfWidgetComboboxMisuse::callbackMayDeleteTheSlotsEditor()
{
    ConfItem *item = intItem();
    ConfWidgetCombobox *editor = edit(item);
    editor->setSelectItem({"A", "B"}, {});
    item->setConfChangedCallback([editor](const QString &, const ConfValue *) { delete editor; });
    const QPointer<QComboBox> box = mBox;
    editor->setValueInt32(1);
    QCOMPARE(mInt, 1);
    QVERIFY(!item->editor);
    QTRY_VERIFY(!box);
}

void tst_ConfWidgetComboboxMisuse::callbackMayRefuseTheChange()
{
    ConfItem *item = intItem();
    ConfWidgetCombobox *editor = edit(item);
    editor->setSelectItem({"A", "B"}, {});
    item->setConfChangedCallback([this](const QString &key, const ConfValue *value) {
        if (value->get<int>() != 0)
            mFixture->store()->set<int>(key, 0);
    });
    clickRow(1);
    QCOMPARE(mInt, 0);
    QCOMPARE(changedMark(editor), QString("0"));
}

void tst_ConfWidgetComboboxMisuse::tenThousandLabels_data()
{
    QTest::addColumn<bool>("multi");
    QTest::newRow("in a single selection") << false;
    QTest::newRow("in a multi-selection") << true;
}

void tst_ConfWidgetComboboxMisuse::tenThousandLabels()
{
    QFETCH(bool, multi);
    mInt = 8191;
    Labels labels;
    for (int i = 0; i < 10000; ++i)
        labels.append("label");
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem(labels, {});
    editor->retranslateUi();
    if (multi)
        QCOMPARE(checkedRows().size(), 8192);
    else
        QCOMPARE(mBox->currentIndex(), 8191);
    QCOMPARE(mInt, 8191);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetComboboxMisuse>(argc, argv);
}

#include "tst_ConfWidgetComboboxMisuse.moc"
