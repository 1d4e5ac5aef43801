#include "TypedEditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfWidgetDateTime.h>

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeZone>

using MtConf::ConfItem;
using MtConf::ConfWidgetDateTime;

class tst_ConfWidgetDateTime : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "UTC-2"); } // two hours east of Greenwich
    void init()
    {
        mFixture = std::make_unique<TypedEditorFixture>();
        mValue = QDateTime(QDate(2024, 5, 6), QTime(7, 8));
    }
    void cleanup() { mFixture.reset(); }

    void localTimeIsShown_data();
    void localTimeIsShown();
    void openingAndRefreshingStoresNothing_data();
    void openingAndRefreshingStoresNothing();
    void zoneIsKept_data();
    void zoneIsKept();
    void typedTimeIsStored_data();
    void typedTimeIsStored();
    void typedDigitsSetATime();
    void arrowKeySetsATime();
    void buttonClears();
    void timeOutsideTheRangeIsNotStored();
    void arrowsStopAtTheLimits();
    void calendarOpensAtTheCurrentMonth();
    void refusedTimeIsNotStored();
    void textsAreTranslated();
    void wheelNeedsTheFocus();
    void callbackMayDeleteTheEditor();
    void callbackMayDeleteTheEditorAfterThePause();
    void tabReachesTheButton();

private:
    QDateTimeEdit *edit()
    {
        if (!item())
            add();
        mFixture->store()->mChanged = false;
        mEditor = mFixture->open<ConfWidgetDateTime>(item());
        mButton = mEditor->findChild<QPushButton *>();
        auto *field = mEditor->findChild<QDateTimeEdit *>();
        if (!mFixture->show())
            return nullptr;
        field->setFocus();
        return field;
    }
    ConfItem *item() { return mFixture->manager.getItemByName("Run", "Next", QString()); }
    ConfItem *add()
    {
        return mFixture->manager.addConfDateTime("Next run", &mValue, "Run", "Next");
    }
    static QDateTime local(int day, int hour, int minute = 0, int second = 0)
    {
        return QDateTime(QDate(2024, 5, day), QTime(hour, minute, second));
    }

    std::unique_ptr<TypedEditorFixture> mFixture;
    ConfWidgetDateTime *mEditor = nullptr;
    QPushButton *mButton = nullptr;
    QDateTime mValue;
};

void tst_ConfWidgetDateTime::localTimeIsShown_data()
{
    QTest::addColumn<QDateTime>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("local time") << local(6, 7, 8) << "6 May 2024 07:08";
    QTest::newRow("seconds") << local(6, 7, 8, 9) << "6 May 2024 07:08:09";
    QTest::newRow("UTC") << local(6, 7, 8).toUTC() << "6 May 2024 07:08";
    QTest::newRow("an offset") << local(6, 7, 8).toOffsetFromUtc(-3600) << "6 May 2024 07:08";
    QTest::newRow("early") << QDateTime(QDate(1492, 10, 12), QTime(2, 0)) << "12 Oct 1492 02:00";
    QTest::newRow("none") << QDateTime() << "Not set";
}

void tst_ConfWidgetDateTime::localTimeIsShown()
{
    QFETCH(QDateTime, value);
    mValue = value;
    const QDateTimeEdit *field = edit();
    QTEST(field->text(), "text");
    QVERIFY(field->width() > field->fontMetrics().horizontalAdvance(field->text()));
    QCOMPARE(mButton->isVisible(), value.isValid());
}

void tst_ConfWidgetDateTime::openingAndRefreshingStoresNothing_data()
{
    QTest::addColumn<QDateTime>("value");
    QTest::newRow("in the range") << local(6, 7).toUTC();
    QTest::newRow("below the range") << local(1, 7);
    QTest::newRow("above the range") << local(30, 7);
    QTest::newRow("with milliseconds") << local(6, 7).addMSecs(5);
    QTest::newRow("none") << QDateTime();
}

void tst_ConfWidgetDateTime::openingAndRefreshingStoresNothing()
{
    QFETCH(QDateTime, value);
    mValue = value;
    add()->setRange(local(2, 0), local(20, 0));
    QDateTimeEdit *field = edit();
    mEditor->commit();
    QCOMPARE(mFixture->shownMessage(), QString());
    mEditor->loadConf();
    mEditor->retranslateUi();
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mFixture->shownMessage(), QString());
    mFixture->leaveEditor();
    QCOMPARE(mValue, value);
    QCOMPARE(mValue.timeSpec(), value.timeSpec());
    QVERIFY(mFixture->isUntouched());
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfWidgetDateTime::zoneIsKept_data()
{
    QTest::addColumn<QDateTime>("before");
    QTest::addColumn<int>("offset");
    QTest::newRow("local time") << local(6, 7) << 7200;
    QTest::newRow("UTC") << local(6, 7).toUTC() << 0;
    QTest::newRow("offset") << local(6, 7).toOffsetFromUtc(-3600) << -3600;
    QTest::newRow("time zone") << local(6, 7).toTimeZone(QTimeZone(19800)) << 19800;
    QTest::newRow("none") << QDateTime() << 7200;
}

void tst_ConfWidgetDateTime::zoneIsKept()
{
    QFETCH(QDateTime, before);
    mValue = before;
    QDateTimeEdit *field = edit();
    field->setDateTime(local(6, 9));
    mEditor->commit();
    QCOMPARE(mValue, local(6, 9));
    QCOMPARE(mValue.timeSpec(), before.timeSpec());
    QTEST(mValue.offsetFromUtc(), "offset");
}

void tst_ConfWidgetDateTime::typedTimeIsStored_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("on Return") << "return";
    QTest::newRow("when the field is left") << "leave";
    QTest::newRow("when the window asks for it") << "commit";
    QTest::newRow("after a pause") << "pause";
}

void tst_ConfWidgetDateTime::typedTimeIsStored()
{
    QFETCH(QString, how);
    QDateTimeEdit *field = edit();
    field->setSelectedSection(QDateTimeEdit::MinuteSection);
    QTest::keyClicks(field, "45");
    QCOMPARE(mValue, local(6, 7, 8));
    if (how == "return")
        QTest::keyClick(field, Qt::Key_Return);
    else if (how == "leave")
        mFixture->leaveEditor();
    else if (how == "commit")
        mEditor->commit();
    QTRY_COMPARE(mValue, local(6, 7, 45));
    QCOMPARE(mFixture->changes, 1);
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfWidgetDateTime::typedDigitsSetATime()
{
    mValue = QDateTime();
    QDateTimeEdit *field = edit();
    QTest::keyClicks(field, "3");
    mEditor->commit();
    QCOMPARE(mValue.date().day(), 3);
    QCOMPARE(mValue.date().year(), QDate::currentDate().year());
    QVERIFY(mButton->isVisible());
}

void tst_ConfWidgetDateTime::arrowKeySetsATime()
{
    mValue = QDateTime();
    QTest::keyClick(edit(), Qt::Key_Up);
    mEditor->commit();
    QVERIFY(qAbs(mValue.secsTo(QDateTime::currentDateTime())) < 3600);
    QCOMPARE(mValue.time().second(), 0);
}

void tst_ConfWidgetDateTime::buttonClears()
{
    QDateTimeEdit *field = edit();
    QCOMPARE(mButton->accessibleName(), QString("Clear"));
    QCOMPARE(mButton->toolTip(), QString("Clear"));
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(!mValue.isValid());
    QCOMPARE(field->text(), QString("Not set"));
    QVERIFY(!mButton->isVisible());
    QVERIFY(field->hasFocus());
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfWidgetDateTime::timeOutsideTheRangeIsNotStored()
{
    add()->setRange(local(2, 0).toUTC(), local(20, 12));
    QDateTimeEdit *field = edit();
    QVERIFY(mEditor->toolTip().contains("From 2 May 2024"));
    field->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(field, "25");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mFixture->shownMessage(), QString("Enter a date and time from 2 May 2024 00:00:00 to "
                                               "20 May 2024 12:00:00"));
    QVERIFY(mFixture->isUntouched());
    QCOMPARE(field->date().day(), 25);
    mFixture->leaveEditor();
    QCOMPARE(mFixture->shownMessage(), QString());
    QCOMPARE(field->date().day(), 6);
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetDateTime::arrowsStopAtTheLimits()
{
    add()->setRange(local(5, 12), local(20, 12));
    QDateTimeEdit *field = edit();
    field->setCurrentSection(QDateTimeEdit::DaySection);
    QTest::keyClick(field, Qt::Key_Down);
    mEditor->commit();
    QCOMPARE(mValue, local(5, 12));
    QTest::keyClick(field, Qt::Key_PageUp);
    QTest::keyClick(field, Qt::Key_PageUp);
    mEditor->commit();
    QCOMPARE(mValue, local(20, 12));
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfWidgetDateTime::calendarOpensAtTheCurrentMonth()
{
    mValue = QDateTime();
    QDateTimeEdit *field = edit();
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(field->width() - 5, field->height() / 2));
    const QCalendarWidget *calendar = field->calendarWidget();
    QVERIFY(calendar->isVisible());
    QCOMPARE(calendar->yearShown(), QDate::currentDate().year());
    QVERIFY(mFixture->isUntouched());
    // As a click on the day does.
    Q_EMIT field->calendarWidget()->activated(calendar->selectedDate());
    mEditor->commit();
    QCOMPARE(mValue.date(), calendar->selectedDate());
}

void tst_ConfWidgetDateTime::refusedTimeIsNotStored()
{
    add()->setValidator([](const QJsonValue &value) {
        return value.toString().startsWith("2024") ? QString() : QString("Only this year");
    });
    QDateTimeEdit *field = edit();
    field->setDateTime(local(6, 7).addYears(1));
    mEditor->commit();
    QCOMPARE(mFixture->shownMessage(), QString("Only this year"));
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetDateTime::textsAreTranslated()
{
    mValue = QDateTime();
    const QDateTimeEdit *field = edit();
    const Prefixer german;
    mEditor->retranslateUi();
    QCOMPARE(field->text(), QString("de Not set"));
    QCOMPARE(mButton->accessibleName(), QString("de Clear"));
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfWidgetDateTime::wheelNeedsTheFocus()
{
    QDateTimeEdit *field = edit();
    QCOMPARE(field->focusPolicy(), Qt::StrongFocus);
    mFixture->leaveEditor();
    QVERIFY(leavesWheelToPage(field));
    mEditor->commit();
    QVERIFY(mFixture->isUntouched());
    field->setFocus();
    QVERIFY(!leavesWheelToPage(field));
}

void tst_ConfWidgetDateTime::callbackMayDeleteTheEditor()
{
    QDateTimeEdit *field = edit();
    item()->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    QTest::keyClick(field, Qt::Key_Up);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(mValue, local(7, 7, 8));
    QVERIFY(!item()->editor);
}

void tst_ConfWidgetDateTime::callbackMayDeleteTheEditorAfterThePause()
{
    QDateTimeEdit *field = edit();
    item()->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    QTest::keyClick(field, Qt::Key_Up);
    QTRY_VERIFY(!item()->editor);
    QCOMPARE(mValue, local(7, 7, 8));
}

void tst_ConfWidgetDateTime::tabReachesTheButton()
{
    QDateTimeEdit *field = edit();
    field->setCurrentSection(QDateTimeEdit::MinuteSection);
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(mButton->hasFocus());
    QTest::keyClick(mButton, Qt::Key_Space);
    QVERIFY(!mValue.isValid());
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetDateTime>(argc, argv);
}

#include "tst_ConfWidgetDateTime.moc"
