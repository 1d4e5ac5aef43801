#include "TypedEditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>

#include <QLineEdit>
#include <QSpinBox>

using MtConf::ConfDefWidgetInt32;
using MtConf::ConfItem;

/// Integers with ConfItem::setRange and the other options of numbers.
class tst_ConfDefWidgetInt32Range : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TypedEditorFixture>();
        mValue = 5;
        mItem = mFixture->manager.addConfInt32("Delay", &mValue, "Capture", "Delay");
    }
    void cleanup() { mFixture.reset(); }

    void storedValueOutsideTheRangeIsKept_data();
    void storedValueOutsideTheRangeIsKept();
    void numberOutsideTheRangeIsNotStored();
    void arrowsStopAtTheLimits();
    void stepSuffixAndToolTipFollowTheItem();
    void refusedNumberIsReplacedWhenTheFieldIsLeft();
    void loadConfRefreshesTheCaption();

private:
    QSpinBox *edit()
    {
        mFixture->store()->mChanged = false;
        mEditor = mFixture->open<ConfDefWidgetInt32>(mItem);
        auto *box = mEditor->findChild<QSpinBox *>();
        if (!mFixture->show())
            return nullptr;
        box->setFocus();
        box->selectAll();
        return box;
    }

    std::unique_ptr<TypedEditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    ConfDefWidgetInt32 *mEditor = nullptr;
    int mValue = 0;
};

void tst_ConfDefWidgetInt32Range::storedValueOutsideTheRangeIsKept_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("below") << -5000;
    QTest::newRow("above") << 5000;
}

void tst_ConfDefWidgetInt32Range::storedValueOutsideTheRangeIsKept()
{
    QFETCH(int, value);
    mValue = value;
    mItem->setRange(1, 99);
    const QSpinBox *box = edit();
    mEditor->loadConf();
    mEditor->retranslateUi();
    mFixture->leaveEditor();
    QCOMPARE(box->value(), value);
    QCOMPARE(mValue, value);
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfDefWidgetInt32Range::numberOutsideTheRangeIsNotStored()
{
    mItem->setRange(1, 99);
    QSpinBox *box = edit();
    QTest::keyClicks(box, "10");
    QCOMPARE(mValue, 10);
    QTest::keyClicks(box, "0");
    QCOMPARE(mFixture->shownMessage(), QString("Enter a number from 1 to 99"));
    QCOMPARE(box->value(), 100);
    QCOMPARE(mValue, 10);
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(mFixture->shownMessage(), QString());
    QTest::keyClicks(box, "0");
    mFixture->leaveEditor();
    QCOMPARE(box->value(), 10);
    QCOMPARE(mFixture->shownMessage(), QString());
    QCOMPARE(mValue, 10);
}

void tst_ConfDefWidgetInt32Range::arrowsStopAtTheLimits()
{
    mValue = 500;
    mItem->setRange(1, 99)->setStep(40);
    QSpinBox *box = edit();
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mValue, 500);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(mValue, 99);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(mValue, 59);
    QTest::keyClick(box, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(mValue, 1);
}

void tst_ConfDefWidgetInt32Range::stepSuffixAndToolTipFollowTheItem()
{
    mItem->setStep(5)->setSuffix(" px");
    QSpinBox *box = edit(); // without a range of its own
    QCOMPARE(box->maximum(), 99);
    QCOMPARE(box->suffix(), QString(" px"));
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mValue, 10);
    const Prefixer german;
    mEditor->retranslateUi();
    QCOMPARE(box->suffix(), QString("de  px"));
}

void tst_ConfDefWidgetInt32Range::refusedNumberIsReplacedWhenTheFieldIsLeft()
{
    mItem->setValidator(
        [](const QJsonValue &value) { return value == 13 ? QString("Not that one") : QString(); });
    QSpinBox *box = edit();
    QTest::keyClicks(box, "13");
    QCOMPARE(mFixture->shownMessage(), QString("Not that one"));
    QCOMPARE(mValue, 1);
    mFixture->leaveEditor();
    QCOMPARE(box->value(), 1);
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfDefWidgetInt32Range::loadConfRefreshesTheCaption()
{
    mItem->setRange(1, 99);
    const QSpinBox *box = edit();
    mFixture->store()->set<int>("Capture.Delay", 8);
    mEditor->loadConf();
    QCOMPARE(box->value(), 8);
    QCOMPARE(changedMark(mEditor), QString("1"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetInt32Range>(argc, argv);
}

#include "tst_ConfDefWidgetInt32Range.moc"
