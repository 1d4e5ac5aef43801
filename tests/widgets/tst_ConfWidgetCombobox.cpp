#include "support/EditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/ConfWidgetCombobox.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTranslator>

#include <climits>

using MtConf::ConfItem;
using MtConf::ConfWidgetCombobox;
using Labels = QList<const char *>;

Q_DECLARE_METATYPE(Labels)

namespace {

/// Puts "de " before every text of the context "QObject", and only of that.
class Prefixer : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QString("de ") + text : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_ConfWidgetCombobox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<EditorFixture>();
        mInt = 0;
        mString.clear();
    }
    void cleanup() { mFixture.reset(); }

    void boxFollowsTheProperty_data();
    void boxFollowsTheProperty();
    void emptyListsShowNothing();
    void constructionLoadsNothing();

    void textIsSelected_data();
    void textIsSelected();
    void chosenTextIsStored();
    void textsAreNotTranslated();

    void intIsSelected_data();
    void intIsSelected();
    void chosenLabelStoresItsInt();
    void withoutValuesTheIndexIsStored();
    void missingValuesAreIndices();
    void storedEntryChosenAgainWritesNothing();
    void wrongIndexDoesNothing_data();
    void wrongIndexDoesNothing();
    void otherTypesLeaveTheBox();
    void wheelIsRefused();

    void flagsAreChecked_data();
    void flagsAreChecked();
    void clickedFlagsAreStored();
    void rowOfTheOpenListIsStoredOnce();
    void multiSelectionStoresTheSameValueToo();
    void loadingFlagsLeavesCaptionAndStore();
    void plainTextsInAMultiSelection();
    void multiSlotNeedsAMultiBox();

    void labelsAreRetranslated_data();
    void labelsAreRetranslated();
    void plainTextsAreNotRetranslated();
    void nullLabelIsAnEmptyText_data();
    void nullLabelIsAnEmptyText();
    void secondListIsAppended();

    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void callbackMayDeleteTheSlotsEditor();
    void callbackMayRefuseTheChange();
    void fiveThousandLabels_data();
    void fiveThousandLabels();

private:
    ConfItem *intItem() { return mFixture->manager.addConfInt32("Mode", &mInt, "Capture", "Mode"); }
    ConfItem *stringItem()
    {
        ConfItem *item = mFixture->manager.addConfQString("Name", &mString, "Capture", "Name");
        item->widgetCreator = ConfWidgetCombobox::CreatConfWidget;
        return item;
    }
    ConfWidgetCombobox *edit(ConfItem *item, bool multi = false)
    {
        item->widgetCreator = ConfWidgetCombobox::CreatConfWidget;
        if (multi)
            item->properties.insert("MultiSelect", false);
        auto *editor = mFixture->edit<ConfWidgetCombobox>(item);
        mBox = editor->findChild<QComboBox *>();
        mMulti = qobject_cast<MultiSelectComboBox *>(mBox);
        return editor;
    }
    QCheckBox *checkBox(int index) const
    {
        return qobject_cast<QCheckBox *>(
            mBox->view()->indexWidget(mBox->model()->index(index, 0)));
    }
    QList<int> checkedRows() const
    {
        QList<int> rows;
        for (int i = 0; i < mMulti->count(); ++i) {
            if (checkBox(i) && checkBox(i)->isChecked())
                rows.append(i);
        }
        return rows;
    }
    void clickBox(int index) const
    {
        QTest::mouseClick(checkBox(index), Qt::LeftButton, {},
                          QPoint(8, checkBox(index)->height() / 2));
    }
    /// Opens the list and clicks on a row, away from its check box.
    void clickRow(int index) const;

    std::unique_ptr<EditorFixture> mFixture;
    QComboBox *mBox = nullptr;
    MultiSelectComboBox *mMulti = nullptr;
    int mInt = 0;
    QString mString;
};

void tst_ConfWidgetCombobox::clickRow(int index) const
{
    QVERIFY(mFixture->show());
    mBox->showPopup();
    QWidget *list = mBox->view()->window();
    QVERIFY(QTest::qWaitForWindowExposed(list));
    const QRect row = mBox->view()->visualRect(mBox->model()->index(index, 0));
    const QPoint point = mBox->view()->viewport()->mapToGlobal(
        QPoint(row.right() - 6, row.center().y()));
    QCursor::setPos(point);
    QTRY_COMPARE(QCursor::pos(), point);
    QWindow *window = list->windowHandle();
    QTest::mouseMove(window, window->mapFromGlobal(point));
    QTest::mouseClick(window, Qt::LeftButton, {}, window->mapFromGlobal(point));
}

void tst_ConfWidgetCombobox::boxFollowsTheProperty_data()
{
    QTest::addColumn<bool>("multi");
    QTest::newRow("without it one label is chosen") << false;
    QTest::newRow("with it, even if false, labels are checked") << true;
}

void tst_ConfWidgetCombobox::boxFollowsTheProperty()
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
    QTest::newRow("case counts") << "b" << 2;
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

void tst_ConfWidgetCombobox::textsAreNotTranslated()
{
    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    edit(stringItem())->setSelectItem({"A"});
    QCOMPARE(mBox->itemText(0), QString("A"));
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

void tst_ConfWidgetCombobox::missingValuesAreIndices()
{
    edit(intItem())->setSelectItem({"A", "B", "C"}, {40});
    QCOMPARE(mBox->itemData(0), QVariant(40));
    QCOMPARE(mBox->itemData(1), QVariant(1));
    QCOMPARE(mBox->itemData(2), QVariant(2));
}

void tst_ConfWidgetCombobox::storedEntryChosenAgainWritesNothing()
{
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"A", "B"}, {});
    mFixture->store()->set<int>("Capture.Mode", 1);
    mFixture->store()->mChanged = false;
    editor->setValueInt32(1); // shows what the store has already
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
    QTest::newRow("behind the last") << 2;
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

void tst_ConfWidgetCombobox::otherTypesLeaveTheBox()
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

void tst_ConfWidgetCombobox::wheelIsRefused()
{
    edit(intItem())->setSelectItem({"A", "B"}, {});
    QWheelEvent event(QPointF(5, 5), mBox->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(mBox, &event);
    QCOMPARE(mBox->currentIndex(), 0);
}

void tst_ConfWidgetCombobox::flagsAreChecked_data()
{
    QTest::addColumn<QList<int>>("flags");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QList<int>>("checked");
    const QList<int> bits{1, 2, 4};
    QTest::newRow("no bit") << bits << 0 << QList<int>();
    QTest::newRow("two bits") << bits << 5 << QList<int>{0, 2};
    QTest::newRow("bits of no label") << bits << 0x72 << QList<int>{1};
    QTest::newRow("all bits") << bits << -1 << QList<int>{0, 1, 2};
    QTest::newRow("the sign bit") << QList<int>{INT_MIN, INT_MAX, -1} << INT_MIN << QList<int>{0};
    QTest::newRow("a label of two bits needs both") << QList<int>{3, 6, 1} << 3 << QList<int>{0, 2};
    QTest::newRow("a label of no bit is always checked") << QList<int>{0, 1, 2} << 2
                                                         << QList<int>{0, 2};
    QTest::newRow("without values the index is the flag") << QList<int>() << 2 << QList<int>{0, 2};
}

void tst_ConfWidgetCombobox::flagsAreChecked()
{
    QFETCH(QList<int>, flags);
    QFETCH(int, stored);
    mInt = stored;
    edit(intItem(), true)->setSelectItem({"A", "B", "C"}, flags);
    QTEST(checkedRows(), "checked");
    QCOMPARE(mInt, stored);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfWidgetCombobox::clickedFlagsAreStored()
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

void tst_ConfWidgetCombobox::rowOfTheOpenListIsStoredOnce()
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

void tst_ConfWidgetCombobox::multiSelectionStoresTheSameValueToo()
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

void tst_ConfWidgetCombobox::loadingFlagsLeavesCaptionAndStore()
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

void tst_ConfWidgetCombobox::plainTextsInAMultiSelection()
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

void tst_ConfWidgetCombobox::multiSlotNeedsAMultiBox()
{
    mInt = 1;
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"A", "B"}, {});
    editor->onMultiSelectionChanged();
    QCOMPARE(mInt, 1);
    QVERIFY(!mFixture->store()->mChanged);
}

void tst_ConfWidgetCombobox::labelsAreRetranslated_data()
{
    QTest::addColumn<bool>("multi");
    QTest::newRow("in a single selection") << false;
    QTest::newRow("in a multi-selection") << true;
}

void tst_ConfWidgetCombobox::labelsAreRetranslated()
{
    QFETCH(bool, multi);
    mInt = 1;
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem({"A", "B"}, {2, 1});
    const auto text = [this](int i) { return mMulti ? checkBox(i)->text() : mBox->itemText(i); };
    const auto shown = [this] { return mMulti ? mMulti->lineEdit()->text() : mBox->currentText(); };
    QCOMPARE(shown(), QString("B"));

    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    editor->retranslateUi();
    QCOMPARE(text(0), QString("de A"));
    QCOMPARE(text(1), QString("de B"));
    QCOMPARE(shown(), QString("de B"));
    QCOMPARE(qobject_cast<QLabel *>(editor->label())->text(), QString("de Mode"));
    QCOMPARE(mBox->accessibleName(), QString("de Mode"));
    QVERIFY(!mFixture->store()->mChanged);

    qApp->removeTranslator(&german);
    editor->retranslateUi();
    QCOMPARE(shown(), QString("B"));
}

void tst_ConfWidgetCombobox::plainTextsAreNotRetranslated()
{
    ConfWidgetCombobox *editor = edit(stringItem());
    editor->setSelectItem({"A", "B"});
    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    editor->retranslateUi();
    QCOMPARE(mBox->itemText(0), QString("A"));
    QCOMPARE(mBox->itemText(1), QString("B"));
}

void tst_ConfWidgetCombobox::nullLabelIsAnEmptyText_data()
{
    labelsAreRetranslated_data();
}

void tst_ConfWidgetCombobox::nullLabelIsAnEmptyText()
{
    QFETCH(bool, multi);
    mInt = 2;
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem({"A", nullptr}, {1, 2});
    editor->retranslateUi();
    QCOMPARE(multi ? mMulti->count() : mBox->count(), 2);
    QCOMPARE(multi ? checkBox(1)->text() : mBox->itemText(1), QString());
    QCOMPARE(multi ? checkedRows() : QList<int>{mBox->currentIndex()}, QList<int>{1});
}

void tst_ConfWidgetCombobox::secondListIsAppended()
{
    mInt = 7;
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"plain"});
    editor->setSelectItem({"A", "B"}, {6, 7});
    editor->setSelectItem({"C"}, {8});
    QCOMPARE(mBox->count(), 4);
    QCOMPARE(mBox->currentIndex(), 2);
    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    editor->retranslateUi();
    QCOMPARE(mBox->itemText(0), QString("plain"));
    QCOMPARE(mBox->itemText(1), QString("de A"));
    QCOMPARE(mBox->itemText(2), QString("de B"));
    QCOMPARE(mBox->itemText(3), QString("de C"));
    QCOMPARE(mInt, 7);
}

void tst_ConfWidgetCombobox::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<bool>("multi");
    QTest::addColumn<bool>("onCheckBox");
    QTest::newRow("a row of a single selection") << false << false;
    QTest::newRow("a row of a multi-selection") << true << false;
    QTest::newRow("a check box of a multi-selection") << true << true;
}

void tst_ConfWidgetCombobox::callbackMayDeleteTheEditor()
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

void tst_ConfWidgetCombobox::callbackMayDeleteTheSlotsEditor()
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

void tst_ConfWidgetCombobox::callbackMayRefuseTheChange()
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

void tst_ConfWidgetCombobox::fiveThousandLabels_data()
{
    labelsAreRetranslated_data();
}

void tst_ConfWidgetCombobox::fiveThousandLabels()
{
    QFETCH(bool, multi);
    mInt = 4095;
    Labels labels;
    for (int i = 0; i < 5000; ++i)
        labels.append("label");
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem(labels, {});
    editor->retranslateUi();
    if (multi)
        QCOMPARE(checkedRows().size(), 4096);
    else
        QCOMPARE(mBox->currentIndex(), 4095);
    QCOMPARE(mInt, 4095);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetCombobox>(argc, argv);
}

#include "tst_ConfWidgetCombobox.moc"
