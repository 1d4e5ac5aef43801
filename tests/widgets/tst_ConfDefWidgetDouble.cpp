#include "TypedEditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetDouble.h>

#include <QDoubleSpinBox>
#include <QLineEdit>

#include <limits>

using MtConf::ConfDefWidgetDouble;
using MtConf::ConfItem;

class tst_ConfDefWidgetDouble : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<TypedEditorFixture>();
        mValue = 0.5;
        mItem = mFixture->manager.addConfDouble("Zoom", &mValue, "View", "Zoom");
    }
    void cleanup() { mFixture.reset(); }

    void storedValueIsShownUnrounded_data();
    void storedValueIsShownUnrounded();
    void openingAndRefreshingStoresNothing_data();
    void openingAndRefreshingStoresNothing();
    void typedNumberIsStored();
    void typedNumberReplacesATextWhenKeyed();
    void arrowsBeginAtZeroWithoutANumber();
    void arrowsStopAtTheLimits();
    void numberOutsideTheRangeIsNotStored_data();
    void numberOutsideTheRangeIsNotStored();
    void returnKeepsWhatIsNotAccepted();
    void refusedNumberIsNotStored();
    void itemsOfOtherTypesAreEdited();
    void suffixIsTranslated();
    void localeHasItsSeparator();
    void wheelNeedsTheFocus();
    void textIsAlignedWithTheLayout();
    void callbackMayDeleteTheEditor();
    void hugeLimitsCanBeShown();

private:
    QDoubleSpinBox *edit()
    {
        mFixture->store()->mChanged = false;
        mEditor = mFixture->open<ConfDefWidgetDouble>(mItem);
        return mEditor->findChild<QDoubleSpinBox *>();
    }
    QDoubleSpinBox *editShown()
    {
        QDoubleSpinBox *box = edit();
        if (!mFixture->show())
            return nullptr;
        box->setFocus();
        box->selectAll();
        return box;
    }

    std::unique_ptr<TypedEditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    ConfDefWidgetDouble *mEditor = nullptr;
    double mValue = 0;
};

void tst_ConfDefWidgetDouble::storedValueIsShownUnrounded_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals"); // -1: not set
    QTest::addColumn<QString>("text");
    QTest::newRow("two decimals") << 0.5 << -1 << "0.50";
    QTest::newRow("as many as needed") << 0.125 << -1 << "0.125";
    QTest::newRow("at most ten") << 1.0 / 3 << -1 << "0.3333333333";
    QTest::newRow("as the item says") << 0.126 << 2 << "0.13";
    QTest::newRow("none") << 7.0 << 0 << "7";
    QTest::newRow("negative") << -12.75 << -1 << "-12.75";
    QTest::newRow("large") << 9007199254740991.0 << 0 << "9007199254740991";
    QTest::newRow("too large to type") << 1e300 << -1 << "1e+300";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << -1 << "inf";
    QTest::newRow("negative infinite") << -std::numeric_limits<double>::infinity() << -1 << "-inf";
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << -1 << "nan";
}

void tst_ConfDefWidgetDouble::storedValueIsShownUnrounded()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    mValue = value;
    if (decimals >= 0)
        mItem->setDecimals(decimals);
    QDoubleSpinBox *box = edit();
    QTEST(box->text(), "text");
    // Leaving the field, with Return or another control, is no edit.
    QVERIFY(mFixture->show());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Return);
    mFixture->leaveEditor();
    QVERIFY(mFixture->isUntouched());
    QCOMPARE(memcmp(&mValue, &value, sizeof value), 0);
    QTEST(box->text(), "text");
}

void tst_ConfDefWidgetDouble::openingAndRefreshingStoresNothing_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("in the range") << 4.0;
    QTest::newRow("below the range") << -400.0;
    QTest::newRow("above the range") << 400.0;
    QTest::newRow("with more decimals") << 4.12345;
}

void tst_ConfDefWidgetDouble::openingAndRefreshingStoresNothing()
{
    QFETCH(double, value);
    mValue = value;
    mItem->setRange(1, 9)->setDecimals(1);
    const QDateTime time = mFixture->store()->mConfMetas.value("View.Zoom").lastChangeTime;
    const QDoubleSpinBox *box = edit();
    mEditor->loadConf();
    mEditor->retranslateUi();
    mEditor->commit();
    QCOMPARE(box->text(), QString::number(value, 'f', 1));
    QVERIFY(mFixture->isUntouched());
    QCOMPARE(mFixture->store()->mConfMetas.value("View.Zoom").lastChangeTime, time);
    QCOMPARE(mValue, value);
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfDefWidgetDouble::typedNumberIsStored()
{
    QDoubleSpinBox *box = editShown();
    QTest::keyClicks(box, "2.25");
    QCOMPARE(mValue, 2.25);
    QCOMPARE(changedMark(mEditor), QString("1"));
    box->selectAll();
    QTest::keyClicks(box, "0.5");
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetDouble::typedNumberReplacesATextWhenKeyed()
{
    mValue = std::numeric_limits<double>::quiet_NaN();
    QDoubleSpinBox *box = editShown();
    box->findChild<QLineEdit *>()->deselect();
    QTest::keyClicks(box, "3");
    QCOMPARE(mValue, 3.0);
    mValue = std::numeric_limits<double>::infinity();
    mEditor->loadConf();
    QTest::keyClick(box, Qt::Key_End);
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(box->text(), QString());
    QTest::keyClicks(box, "4");
    QCOMPARE(mValue, 4.0);
}

void tst_ConfDefWidgetDouble::arrowsBeginAtZeroWithoutANumber()
{
    mValue = std::numeric_limits<double>::quiet_NaN();
    QDoubleSpinBox *box = editShown();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(mValue, 0.0);
}

void tst_ConfDefWidgetDouble::arrowsStopAtTheLimits()
{
    mItem->setRange(0.25, 1)->setStep(0.3);
    QDoubleSpinBox *box = editShown();
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mValue, 0.8);
    QTest::keyClick(box, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mValue, 1.0);
    QTest::keyClick(box, Qt::Key_PageDown);
    QCOMPARE(mValue, 0.25);
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfDefWidgetDouble::numberOutsideTheRangeIsNotStored_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("too small") << "0";
    QTest::newRow("too large") << "100";
}

void tst_ConfDefWidgetDouble::numberOutsideTheRangeIsNotStored()
{
    QFETCH(QString, typed);
    mValue = 4;
    mItem->setRange(1.5, 99)->setSuffix(" mm");
    QDoubleSpinBox *box = editShown();
    QCOMPARE(box->suffix(), QString(" mm"));
    QTest::keyClicks(box, typed);
    QCOMPARE(mFixture->shownMessage(), QString("Enter a number from 1.5 to 99 mm"));
    QVERIFY(mValue != typed.toDouble());
    mFixture->leaveEditor();
    QCOMPARE(mFixture->shownMessage(), QString());
    QCOMPARE(box->value(), mValue);
}

void tst_ConfDefWidgetDouble::returnKeepsWhatIsNotAccepted()
{
    mItem->setRange(1, 9);
    QDoubleSpinBox *box = editShown();
    QTest::keyClicks(box, "12");
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(box->value(), 12.0);
    QCOMPARE(mFixture->shownMessage(), QString("Enter a number from 1 to 9"));
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Down); // the arrows stop at the limit here, too
    QCOMPARE(mFixture->shownMessage(), QString());
}

void tst_ConfDefWidgetDouble::refusedNumberIsNotStored()
{
    mItem->setValidator([](const QJsonValue &value) {
        return value.toDouble() < 3 ? QString() : QString("Too much");
    });
    QDoubleSpinBox *box = editShown();
    QTest::keyClicks(box, "4");
    QCOMPARE(mFixture->shownMessage(), QString("Too much"));
    QVERIFY(mFixture->isUntouched());
    mFixture->leaveEditor();
    QCOMPARE(mFixture->shownMessage(), QString());
    QCOMPARE(box->value(), 0.5);
}

void tst_ConfDefWidgetDouble::itemsOfOtherTypesAreEdited()
{
    float number = 0.1F;
    mItem = mFixture->manager.addConfValue(&number, "View", "Gamma");
    mItem->widgetCreator = ConfDefWidgetDouble::CreatConfWidget;
    mItem->displayText = "Gamma";
    QDoubleSpinBox *box = editShown();
    QCOMPARE(box->text(), QString("0.10"));
    QTest::keyClicks(box, "0.7");
    QCOMPARE(number, 0.7F);
    mFixture.reset();
}

void tst_ConfDefWidgetDouble::suffixIsTranslated()
{
    mItem->setSuffix(" px")->setRange(0, 1);
    const QDoubleSpinBox *box = edit();
    const Prefixer german;
    mEditor->retranslateUi();
    QCOMPARE(box->suffix(), QString("de  px"));
    QVERIFY(mFixture->isUntouched());
}

void tst_ConfDefWidgetDouble::localeHasItsSeparator()
{
    mFixture->parent.setLocale(QLocale(QLocale::German));
    mItem->setRange(0.5, 2);
    QDoubleSpinBox *box = editShown();
    QCOMPARE(box->text(), QString("0,50"));
    QTest::keyClicks(box, "1,25");
    QCOMPARE(mValue, 1.25);
    QTest::keyClicks(box, "0");
    box->selectAll();
    QTest::keyClicks(box, "7");
    QCOMPARE(mFixture->shownMessage(), QString("Enter a number from 0,5 to 2"));
}

void tst_ConfDefWidgetDouble::wheelNeedsTheFocus()
{
    QDoubleSpinBox *box = editShown();
    QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
    mFixture->leaveEditor();
    QVERIFY(leavesWheelToPage(box));
    QCOMPARE(mValue, 0.5);
    box->setFocus();
    QVERIFY(!leavesWheelToPage(box));
    QCOMPARE(mValue, -0.5);
}

void tst_ConfDefWidgetDouble::textIsAlignedWithTheLayout()
{
    mFixture->parent.setLayoutDirection(Qt::RightToLeft);
    const QDoubleSpinBox *box = edit();
    QVERIFY(box->alignment() & Qt::AlignRight);
    mFixture->parent.setLayoutDirection(Qt::LeftToRight);
    QVERIFY(box->alignment() & Qt::AlignLeft);
}

void tst_ConfDefWidgetDouble::callbackMayDeleteTheEditor()
{
    QDoubleSpinBox *box = editShown();
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mValue, 1.5);
    QVERIFY(!mItem->editor);
}

void tst_ConfDefWidgetDouble::hugeLimitsCanBeShown()
{
    mItem->setRange(-1e300, std::numeric_limits<double>::infinity());
    QDoubleSpinBox *box = editShown();
    QVERIFY(box->width() < 500);
    QTest::keyClicks(box, "123456789");
    QCOMPARE(mValue, 123456789.0);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetDouble>(argc, argv);
}

#include "tst_ConfDefWidgetDouble.moc"
