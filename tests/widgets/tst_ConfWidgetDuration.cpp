#include "TypedEditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfWidgetDuration.h>

#include <QDoubleSpinBox>

#include <chrono>

using MtConf::ConfItem;
using MtConf::ConfWidgetDuration;

class tst_ConfWidgetDuration : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mFixture = std::make_unique<TypedEditorFixture>(); }
    void cleanup() { mFixture.reset(); }

    void unitIsTheSuffix();
    void ownSuffixReplacesTheUnit();
    void wholeNumbersAreStored();
    void fractionsAreStored();
    void largeNumbersAreShownExactly();
    void rangeIsInTheUnit();
    void unitIsTranslated();

private:
    template<class Duration> ConfItem *add(const char *name, Duration *value)
    {
        ConfItem *item = mFixture->manager.addConfDuration(name, value, "Save", name);
        mFixture->store()->mChanged = false;
        return item;
    }
    QDoubleSpinBox *edit(ConfItem *item)
    {
        mEditor = mFixture->open<ConfWidgetDuration>(item);
        return mEditor->findChild<QDoubleSpinBox *>();
    }

    std::unique_ptr<TypedEditorFixture> mFixture;
    ConfWidgetDuration *mEditor = nullptr;
};

void tst_ConfWidgetDuration::unitIsTheSuffix()
{
    std::chrono::milliseconds milliseconds(250);
    std::chrono::seconds seconds(30);
    std::chrono::minutes minutes(5);
    std::chrono::hours hours(2);
    std::chrono::duration<double, std::ratio<86400>> days(1.5);
    std::chrono::microseconds microseconds(7);
    QCOMPARE(edit(add("Milliseconds", &milliseconds))->text(), QString("250 ms"));
    QCOMPARE(edit(add("Seconds", &seconds))->text(), QString("30 s"));
    QCOMPARE(edit(add("Minutes", &minutes))->text(), QString("5 min"));
    QCOMPARE(edit(add("Hours", &hours))->text(), QString("2 h"));
    QCOMPARE(edit(add("Days", &days))->text(), QString("1.50 d"));
    QCOMPARE(edit(add("Microseconds", &microseconds))->text(), QString("7"));
    QVERIFY(mFixture->isUntouched());
    mFixture.reset();
}

void tst_ConfWidgetDuration::ownSuffixReplacesTheUnit()
{
    std::chrono::seconds value(30);
    QCOMPARE(edit(add("Interval", &value)->setSuffix(" seconds"))->text(), QString("30 seconds"));
    mFixture.reset();
}

void tst_ConfWidgetDuration::wholeNumbersAreStored()
{
    std::chrono::seconds value(30);
    QDoubleSpinBox *box = edit(add("Interval", &value));
    QVERIFY(mFixture->show());
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "4.5"); // decimals are not accepted
    QCOMPARE(value.count(), 4);
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(value.count(), 5);
    mFixture.reset();
}

void tst_ConfWidgetDuration::fractionsAreStored()
{
    std::chrono::duration<double> value(0.25);
    QDoubleSpinBox *box = edit(add("Interval", &value)->setStep(0.5));
    QVERIFY(mFixture->show());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(value.count(), 0.75);
    mFixture.reset();
}

void tst_ConfWidgetDuration::largeNumbersAreShownExactly()
{
    std::chrono::nanoseconds value(9223372036854775807);
    QDoubleSpinBox *box = edit(add("Interval", &value));
    QCOMPARE(box->text(), QString("9223372036854775807"));
    QVERIFY(mFixture->show());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Return);
    mEditor->loadConf();
    QCOMPARE(value.count(), 9223372036854775807);
    QVERIFY(mFixture->isUntouched());
    box->selectAll();
    QTest::keyClicks(box, "9007199254740991");
    QCOMPARE(value.count(), 9007199254740991);
    QTest::keyClicks(box, "0");
    QCOMPARE(value.count(), 9007199254740991);
    QVERIFY(!mFixture->shownMessage().isEmpty());
    mFixture.reset();
}

void tst_ConfWidgetDuration::rangeIsInTheUnit()
{
    std::chrono::minutes value(5);
    using std::chrono::hours;
    using std::chrono::minutes;
    QDoubleSpinBox *box = edit(add("Interval", &value)->setRange(minutes(2), hours(1)));
    QVERIFY(mEditor->toolTip().contains("From 2 to 60 min"));
    QVERIFY(mFixture->show());
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "61");
    QCOMPARE(value.count(), 6);
    QCOMPARE(mFixture->shownMessage(), QString("Enter a number from 2 to 60 min"));
    mFixture.reset();
}

void tst_ConfWidgetDuration::unitIsTranslated()
{
    std::chrono::minutes value(5);
    const QDoubleSpinBox *box = edit(add("Interval", &value));
    const Prefixer german;
    mEditor->retranslateUi();
    QCOMPARE(box->suffix(), QString("de  min"));
    mFixture.reset();
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetDuration>(argc, argv);
}

#include "tst_ConfWidgetDuration.moc"
