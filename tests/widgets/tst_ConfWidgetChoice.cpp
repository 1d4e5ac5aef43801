#include "TypedEditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/ConfWidgetChoice.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QListView>

namespace Choices {

Q_NAMESPACE

enum class Wrap { Never, AtWords, Anywhere };

enum Side { NoSide = 0, Left = 1, Right = 2, Top = 4, Both = Left | Right };
Q_DECLARE_FLAGS(Sides, Side)
Q_FLAG_NS(Sides)
Q_DECLARE_OPERATORS_FOR_FLAGS(Sides)

enum class Bits : quint64 { Low = 1, High = 0x8000000000000000 };

} // namespace Choices

template<> struct MtConf::JsonForm<Choices::Sides> : MtConf::JsonByName<Choices::Sides>
{
};

using Choices::Sides;
using Choices::Wrap;
using MtConf::ConfItem;
using MtConf::ConfWidgetChoice;

class tst_ConfWidgetChoice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TypedEditorFixture>();
        mWrap = Wrap::AtWords;
        mSides = {};
    }
    void cleanup() { mFixture.reset(); }

    void choicesAreRecorded();
    void choicesOfTheClassicListsAreRecorded();
    void keysSelectAndStore();
    void unknownValueSelectsNothingAndIsKept();
    void refusedChoiceIsNotStored();
    void labelsAreTranslatedAgain();
    void literalsAreNotTranslated();
    void wheelIsLeftToThePage();
    void callbackMayDeleteTheEditor();
    void valueThatTheTypeRefusesIsNotStored();

    void namedFlagsAreShown_data();
    void namedFlagsAreShown();
    void clicksStoreNames();
    void nameOfSeveralFlagsIsTheirNames();
    void numbersAreCombined_data();
    void numbersAreCombined();
    void unknownFlagsAreKept();
    void largestFlagIsExact();
    void flagsAreRefusedByTheValidator();
    void listOpensByKeyboard();

private:
    ConfItem *wrapItem()
    {
        return mFixture->manager.addConfEnum<Wrap>(
            "Wrap", {{Wrap::Never, "Never"}, {Wrap::AtWords, "At words"}}, &mWrap, "View", "Wrap");
    }
    ConfItem *sidesItem()
    {
        return mFixture->manager
            .addConfEnum<Sides>(
                "Sides",
                {{Choices::NoSide, "None"}, {Choices::Left, "Left"}, {Choices::Right, "Right"}},
                &mSides, "View", "Sides")
            ->setMultiSelect();
    }
    ConfItem *numberItem(const QList<int> &flags)
    {
        ConfItem *item = mFixture->manager.addConfInt32("Flags", &mNumber, "View", "Flags");
        item->setMultiSelect();
        item->widgetCreator = ConfWidgetChoice::CreatConfWidget;
        for (const int flag : flags)
            item->choices.append({QString::number(flag), flag});
        return item;
    }
    QComboBox *edit(ConfItem *item)
    {
        mFixture->store()->mChanged = false;
        mEditor = mFixture->open<ConfWidgetChoice>(item);
        mBox = mEditor->findChild<QComboBox *>();
        if (!mFixture->show())
            return nullptr;
        mBox->setFocus();
        return mBox;
    }
    QCheckBox *checkBox(int index) const
    {
        return qobject_cast<QCheckBox *>(mBox->view()->indexWidget(mBox->model()->index(index, 0)));
    }
    /// Clicks the check box of an entry.
    void click(int index)
    {
        mBox->showPopup();
        QCheckBox *box = checkBox(index);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
    }
    QString checks() const
    {
        QString texts;
        for (int i = 0; i < static_cast<MultiSelectComboBox *>(mBox)->count(); ++i)
            texts += checkBox(i)->isChecked() ? 'x' : '-';
        return texts;
    }

    std::unique_ptr<TypedEditorFixture> mFixture;
    ConfWidgetChoice *mEditor = nullptr;
    QComboBox *mBox = nullptr;
    Wrap mWrap = Wrap::Never;
    Sides mSides;
    int mNumber = 0;
};

void tst_ConfWidgetChoice::choicesAreRecorded()
{
    const ConfItem *item = wrapItem();
    QCOMPARE(item->choices.size(), 2);
    QCOMPARE(item->choices.at(1).label, QString("At words"));
    QCOMPARE(item->choices.at(1).value, QJsonValue(1));
    QVERIFY(item->choices.at(1).isTranslated);
    QCOMPARE(sidesItem()->choices.at(1).value, QJsonValue("Left"));
}

void tst_ConfWidgetChoice::choicesOfTheClassicListsAreRecorded()
{
    QString name = "a";
    auto &manager = mFixture->manager;
    const ConfItem *text = manager.addConfStrWithCombobox("Name", {"a", "b"}, &name, "View",
                                                          "Name");
    QCOMPARE(text->choices.size(), 2);
    QCOMPARE(text->choices.at(1).value, QJsonValue("b"));
    QVERIFY(!text->choices.at(1).isTranslated);
    const ConfItem *index = manager.addConfInt32WithCombobox("Index", {"one", "two"}, &mNumber,
                                                             "View", "Index");
    QCOMPARE(index->choices.at(1).value, QJsonValue(1));
    QVERIFY(index->choices.at(1).isTranslated);
    const ConfItem *number = manager.addConfInt32WithCombobox("Number", {"one", "two"}, {10, 20},
                                                              &mNumber, "View", "Number");
    QCOMPARE(number->choices.at(1).value, QJsonValue(20));
    QCOMPARE(number->choices.at(1).label, QString("two"));
    mFixture.reset();
}

void tst_ConfWidgetChoice::keysSelectAndStore()
{
    QComboBox *box = edit(wrapItem());
    QCOMPARE(box->currentText(), QString("At words"));
    QVERIFY(mFixture->isUntouched());
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mWrap, Wrap::Never);
    QCOMPARE(changedMark(mEditor), QString("1"));
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfWidgetChoice::unknownValueSelectsNothingAndIsKept()
{
    mWrap = Wrap::Anywhere;
    const QComboBox *box = edit(wrapItem());
    mEditor->loadConf();
    mEditor->retranslateUi();
    mEditor->commit();
    QCOMPARE(box->currentIndex(), -1);
    QCOMPARE(mWrap, Wrap::Anywhere);
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetChoice::refusedChoiceIsNotStored()
{
    QComboBox *box = edit(wrapItem()->setValidator(
        [](const QJsonValue &value) { return value == 0 ? QString("Not never") : QString(); }));
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mFixture->shownMessage(), QString("Not never"));
    QCOMPARE(mWrap, Wrap::AtWords);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(mFixture->shownMessage(), QString());
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetChoice::labelsAreTranslatedAgain()
{
    for (ConfItem *item : {wrapItem(), sidesItem()}) {
        const QComboBox *box = edit(item);
        const Prefixer german;
        mEditor->retranslateUi();
        const auto *multi = qobject_cast<const MultiSelectComboBox *>(box);
        QCOMPARE(multi ? checkBox(1)->text() : box->itemText(1),
                 multi ? QString("de Left") : QString("de At words"));
        QVERIFY(mFixture->isUntouched());
    }
}

void tst_ConfWidgetChoice::literalsAreNotTranslated()
{
    const Prefixer german;
    ConfItem *item = wrapItem();
    item->choices[0].isTranslated = false;
    const QComboBox *box = edit(item);
    QCOMPARE(box->itemText(0), QString("Never"));
    QCOMPARE(box->itemText(1), QString("de At words"));
}

void tst_ConfWidgetChoice::wheelIsLeftToThePage()
{
    QVERIFY(leavesWheelToPage(edit(wrapItem())));
    QCOMPARE(mBox->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(mWrap, Wrap::AtWords);
}

void tst_ConfWidgetChoice::callbackMayDeleteTheEditor()
{
    for (ConfItem *item : {wrapItem(), sidesItem()}) {
        edit(item);
        item->setConfChangedCallback(
            [this](const QString &, const ConfValue *) { delete mEditor; });
        if (qobject_cast<MultiSelectComboBox *>(mBox))
            click(1);
        else
            QTest::keyClick(mBox, Qt::Key_Up);
        QVERIFY(!item->editor);
    }
    QCOMPARE(mWrap, Wrap::Never);
    QCOMPARE(mSides, Sides(Choices::Left));
}

void tst_ConfWidgetChoice::valueThatTheTypeRefusesIsNotStored()
{
    ConfItem *item = wrapItem();
    item->choices[0].value = QJsonObject();
    QTest::keyClick(edit(item), Qt::Key_Up);
    QCOMPARE(mBox->currentIndex(), 0);
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetChoice::namedFlagsAreShown_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("checks"); // of none, Left and Right
    QTest::newRow("none") << 0 << "x--";
    QTest::newRow("one") << 2 << "--x";
    QTest::newRow("all, which have one name") << 3 << "-xx";
    QTest::newRow("one and one that is not offered") << 5 << "-x-";
    QTest::newRow("one without a name") << 8 << "---";
}

void tst_ConfWidgetChoice::namedFlagsAreShown()
{
    QFETCH(int, flags);
    mSides = Sides(QFlag(flags));
    edit(sidesItem());
    mEditor->loadConf();
    QTEST(checks(), "checks");
    QCOMPARE(mSides, Sides(QFlag(flags)));
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetChoice::clicksStoreNames()
{
    mSides = Choices::Top;
    edit(sidesItem());
    click(1);
    QCOMPARE(mSides, Choices::Left | Choices::Top);
    QCOMPARE(mFixture->changes, 1);
    click(2);
    QCOMPARE(mSides, Choices::Left | Choices::Right | Choices::Top);
    click(1);
    QCOMPARE(mSides, Choices::Right | Choices::Top);
    QCOMPARE(checks(), QString("--x"));
    click(0);
    QCOMPARE(mSides, Sides());
    QCOMPARE(checks(), QString("x--"));
    click(0);
    QCOMPARE(checks(), QString("x--"));
}

void tst_ConfWidgetChoice::nameOfSeveralFlagsIsTheirNames()
{
    mSides = Choices::Left | Choices::Right;
    edit(sidesItem());
    QCOMPARE(mFixture->store()->mConfValues.value("View.Sides").toJsonValue(), QJsonValue("Both"));
    click(1);
    QCOMPARE(mSides, Sides(Choices::Right));
    click(2);
    QCOMPARE(mSides, Sides());
}

void tst_ConfWidgetChoice::numbersAreCombined_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("shown"); // of 1, 2, 3 and 4
    QTest::addColumn<int>("clicked");
    QTest::addColumn<int>("after");
    QTest::newRow("add") << 0 << "----" << 1 << 2;
    QTest::newRow("remove") << 6 << "-x-x" << 1 << 4;
    QTest::newRow("add several bits") << 1 << "x---" << 2 << 3;
    QTest::newRow("remove several bits") << 7 << "xxxx" << 2 << 4;
    QTest::newRow("remove one of several bits") << 3 << "xxx-" << 0 << 2;
    QTest::newRow("keep the sign") << -8 << "----" << 0 << -7;
}

void tst_ConfWidgetChoice::numbersAreCombined()
{
    QFETCH(int, before);
    QFETCH(int, clicked);
    mNumber = before;
    edit(numberItem({1, 2, 3, 4}));
    QTEST(checks(), "shown");
    click(clicked);
    QTEST(mNumber, "after");
}

void tst_ConfWidgetChoice::unknownFlagsAreKept()
{
    mNumber = 1025;
    edit(numberItem({1, 2}));
    click(0);
    QCOMPARE(mNumber, 1024);
    click(1);
    QCOMPARE(mNumber, 1026);
}

void tst_ConfWidgetChoice::largestFlagIsExact()
{
    auto bits = Choices::Bits::High;
    edit(mFixture->manager
             .addConfEnum<Choices::Bits>(
                 "Bits", {{Choices::Bits::Low, "Low"}, {Choices::Bits::High, "High"}}, &bits,
                 "View", "Bits")
             ->setMultiSelect());
    QCOMPARE(checks(), QString("-x"));
    click(0);
    QCOMPARE(quint64(bits), Q_UINT64_C(0x8000000000000001));
    mFixture.reset();
}

void tst_ConfWidgetChoice::flagsAreRefusedByTheValidator()
{
    edit(sidesItem()->setValidator([](const QJsonValue &value) {
        return value == QJsonValue("Both") ? QString("Only one") : QString();
    }));
    click(1);
    click(2);
    QCOMPARE(mSides, Sides(Choices::Left));
    QCOMPARE(mFixture->shownMessage(), QString("Only one"));
}

void tst_ConfWidgetChoice::listOpensByKeyboard()
{
    QComboBox *box = edit(sidesItem());
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(box->view()->isVisible());
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetChoice>(argc, argv);
}

#include "tst_ConfWidgetChoice.moc"
