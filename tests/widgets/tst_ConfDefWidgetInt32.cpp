#include "support/EditorFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>
#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>

#include <QLineEdit>

#include <limits>

using MtConf::ConfDefWidgetInt32;
using MtConf::ConfItem;

class tst_ConfDefWidgetInt32 : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<EditorFixture>();
        mValue = 5;
        mItem = mFixture->manager.addConfInt32("Delay", &mValue, "Capture", "Delay");
    }
    void cleanup() { mFixture.reset(); }

    void rangeFollowsTheProperties_data();
    void rangeFollowsTheProperties();
    void layoutHasNoMargins();
    void typingWritesEveryChange();
    void arrowKeysWrite();
    void observersHearThatTheUserEdits();
    void loadConfDoesNotChangeTheCaption();
    void valueOutsideTheRangeIsClamped();
    void callbackMayDeleteTheEditorOfAShownPage();

private:
    QSpinBox *edit()
    {
        mEditor = mFixture->edit<ConfDefWidgetInt32>(mItem);
        return mEditor->findChild<QSpinBoxDisableWheel *>();
    }

    std::unique_ptr<EditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    ConfDefWidgetInt32 *mEditor = nullptr;
    int mValue = 0;
};

void tst_ConfDefWidgetInt32::rangeFollowsTheProperties_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("points"); // width in points (1/72 inch)
    const QVariant none;
    QTest::newRow("none") << none << none << 0 << 99 << 84;
    QTest::newRow("both") << QVariant(10) << QVariant(100) << 10 << 100 << 96;
    QTest::newRow("only a maximum") << none << QVariant(1000) << 0 << 1000 << 108;
    QTest::newRow("minimum above the maximum of a spin box raises it")
        << QVariant(500) << none << 500 << 500 << 96;
    QTest::newRow("minus sign takes room") << QVariant(-50) << QVariant(-10) << -50 << -10 << 96;
    QTest::newRow("texts are converted") << QVariant("2") << QVariant("8") << 2 << 8 << 72;
    QTest::newRow("whole range") << QVariant(std::numeric_limits<int>::min())
                                 << QVariant(std::numeric_limits<int>::max())
                                 << std::numeric_limits<int>::min()
                                 << std::numeric_limits<int>::max() << 180;
    QTest::newRow("not numbers") << QVariant("x") << QVariant("y") << 0 << 0 << 72;
}

void tst_ConfDefWidgetInt32::rangeFollowsTheProperties()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    QFETCH(int, points);
    if (minimum.isValid())
        mItem->properties.insert("MinValue", minimum);
    if (maximum.isValid())
        mItem->properties.insert("MaxValue", maximum);
    const QSpinBox *box = edit();
    QTEST(box->minimum(), "from");
    QTEST(box->maximum(), "to");
    // The offscreen platform and the X server of the tests have 96 dots per inch.
    QCOMPARE(box->minimumWidth(), points * 4 / 3);
    QCOMPARE(box->maximumWidth(), points * 4 / 3);
}

void tst_ConfDefWidgetInt32::layoutHasNoMargins()
{
    const QSpinBox *box = edit();
    QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(mEditor->layout()->contentsMargins(), QMargins());
    QCOMPARE(mEditor->layout()->spacing(), 0);
    QCOMPARE(mEditor->layout()->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(box->value(), 5);
}

void tst_ConfDefWidgetInt32::typingWritesEveryChange()
{
    QSpinBox *box = edit();
    QVERIFY(mFixture->show());
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "42");
    QCOMPARE(mValue, 42);
    QCOMPARE(changedMark(mEditor), QString("1"));
    box->selectAll();
    QTest::keyClicks(box, "5");
    QCOMPARE(mValue, 5);
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetInt32::arrowKeysWrite()
{
    QSpinBox *box = edit();
    QVERIFY(mFixture->show());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(mValue, 6);
    QTest::keyClick(box, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(mValue, 4);
}

void tst_ConfDefWidgetInt32::observersHearThatTheUserEdits()
{
    QSpinBox *box = edit();
    QVector<ConfChange> events;
    ConfStorage *store = ConfStorage::instance();
    const int id = store->addObserver([&](const ConfChange &change) { events.append(change); });
    mItem->setConfChangedCallback([&](const QString &key, const ConfValue *value) {
        if (value->get<int>() < 50)
            store->set(key, 50);
    });
    QTest::keyClick(box, Qt::Key_Up);
    mEditor->restoreDefault();
    store->removeObserver(id);
    QCOMPARE(events.size(), 4);
    QCOMPARE(events.at(0).cause, ConfChange::Cause::Edited);
    QCOMPARE(events.at(0).after.value, QJsonValue(6));
    QCOMPARE(events.at(1).cause, ConfChange::Cause::Set);
    QCOMPARE(events.at(2).cause, ConfChange::Cause::Restored);
}

void tst_ConfDefWidgetInt32::loadConfDoesNotChangeTheCaption()
{
    const QSpinBox *box = edit();
    mFixture->store()->set<int>("Capture.Delay", 8);
    mEditor->loadConf();
    QCOMPARE(box->value(), 8);
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetInt32::valueOutsideTheRangeIsClamped()
{
    mValue = 5000;
    QCOMPARE(edit()->value(), 99);
    QCOMPARE(mValue, 99);
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetInt32::callbackMayDeleteTheEditorOfAShownPage()
{
    QSpinBox *box = edit();
    QVERIFY(mFixture->show());
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) {
        if (mEditor->isWriting())
            mEditor->deleteLater();
    });
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    QTRY_VERIFY(!mItem->editor);
    QCOMPARE(mValue, 6);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetInt32>(argc, argv);
}

#include "tst_ConfDefWidgetInt32.moc"
