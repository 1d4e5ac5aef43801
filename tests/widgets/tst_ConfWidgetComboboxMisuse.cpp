#include "ComboboxFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QPointer>

using MtConf::ConfItem;
using MtConf::ConfWidgetCombobox;

/// Hosts that delete the editor in callbacks, revert changes, and add very many labels.
class tst_ConfWidgetComboboxMisuse : public QObject, private ComboboxFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void callbackMayDeleteTheEditorWhoseSlotIsCalled();
    void callbackMayRevertTheChange();
    void callbackMayLoadTheEditorAgain_data();
    void callbackMayLoadTheEditorAgain();
    void keyMayBeRemovedWhileItIsShown_data();
    void keyMayBeRemovedWhileItIsShown();
    void callbackMayFillTheListAgain_data();
    void callbackMayFillTheListAgain();
    void editorMayBeDeletedWhileItsListIsOpen_data();
    void editorMayBeDeletedWhileItsListIsOpen();
    void tenThousandLabels_data();
    void tenThousandLabels();

private:
    static void bothKinds()
    {
        QTest::addColumn<bool>("multi");
        QTest::newRow("in a single selection") << false;
        QTest::newRow("in a multi-selection") << true;
    }
    QList<int> shownRows() const
    {
        return mMulti ? checkedRows() : QList<int>{mBox->currentIndex()};
    }
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

void tst_ConfWidgetComboboxMisuse::callbackMayDeleteTheEditorWhoseSlotIsCalled()
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

void tst_ConfWidgetComboboxMisuse::callbackMayRevertTheChange()
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

void tst_ConfWidgetComboboxMisuse::callbackMayLoadTheEditorAgain_data()
{
    bothKinds();
}

void tst_ConfWidgetComboboxMisuse::callbackMayLoadTheEditorAgain()
{
    QFETCH(bool, multi);
    ConfItem *item = intItem();
    ConfWidgetCombobox *editor = edit(item, multi);
    editor->setSelectItem({"A", "B"}, {1, 2});
    int calls = 0;
    item->setConfChangedCallback([&](const QString &key, const ConfValue *) {
        if (++calls == 1)
            mFixture->store()->set<int>(key, 1);
        editor->loadConf();
    });
    clickRow(1);
    QCOMPARE(mInt, 1);
    QCOMPARE(calls, 2);
    QCOMPARE(shownRows(), QList<int>{0});
    QCOMPARE(changedMark(editor), QString("1"));
}

void tst_ConfWidgetComboboxMisuse::keyMayBeRemovedWhileItIsShown_data()
{
    bothKinds();
}

void tst_ConfWidgetComboboxMisuse::keyMayBeRemovedWhileItIsShown()
{
    QFETCH(bool, multi);
    mInt = 1;
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem({"A", "B"}, {1, 2});
    mFixture->store()->mConfValues.remove("Capture.Mode");
    const LogCapture log;
    clickRow(1);
    QVERIFY(log.texts(QtWarningMsg).contains("ConfStorage::set key not found:  \"Capture.Mode\""));
    QCOMPARE(mInt, 1);
    editor->loadConf();
    editor->retranslateUi();
    QCOMPARE(mBox->count(), 2);
}

void tst_ConfWidgetComboboxMisuse::callbackMayFillTheListAgain_data()
{
    bothKinds();
}

void tst_ConfWidgetComboboxMisuse::callbackMayFillTheListAgain()
{
    QFETCH(bool, multi);
    ConfItem *item = intItem();
    ConfWidgetCombobox *editor = edit(item, multi);
    editor->setSelectItem({"A", "B"}, {1, 2});
    item->setConfChangedCallback([this, editor](const QString &, const ConfValue *) {
        if (mMulti)
            mMulti->clear();
        else
            mBox->clear();
        editor->setSelectItem({"C", "D", "E"}, {1, 2, 4});
    });
    clickRow(1);
    QCOMPARE(mInt, 2);
    QCOMPARE(shownRows(), QList<int>{1});
    QCOMPARE(multi ? checkBox(1)->text() : mBox->currentText(), QString("D"));
}

void tst_ConfWidgetComboboxMisuse::editorMayBeDeletedWhileItsListIsOpen_data()
{
    bothKinds();
}

void tst_ConfWidgetComboboxMisuse::editorMayBeDeletedWhileItsListIsOpen()
{
    QFETCH(bool, multi);
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem({"A", "B"}, {1, 2});
    QVERIFY(mFixture->show());
    mBox->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(mBox->view()->window()));
    QCursor::setPos(mBox->view()->mapToGlobal(QPoint(5, 5)));
    delete editor;
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(mInt, 0);
}

void tst_ConfWidgetComboboxMisuse::tenThousandLabels_data()
{
    bothKinds();
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
