#include "MouseActionFixture.h"
#include "support/TestMain.h"

#include <climits>

using MtConf::ConfWidgetMouseAction;

class tst_ConfWidgetMouseActionConflict : public MouseActionFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { clear(); }

    void stateButtonShowsTheState_data();
    void stateButtonShowsTheState();
    void styleFollowsTheState();

    void gesturesConflict_data();
    void gesturesConflict();
    void everyPairOfGesturesIsChecked();
    void firstConflictIsNamed();
    void conflictsAreCheckedWithStoredValues();
    void nameOfTheConflictIsKept();
    void changeUpdatesTheOtherEditors();
};

void tst_ConfWidgetMouseActionConflict::stateButtonShowsTheState_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("styleClass");
    QTest::addColumn<int>("expectedGlyph");
    QTest::addColumn<QString>("toolTip");
    const QString left = "Cannot set left-click separately";
    QTest::newRow("left click alone") << 1 << 1 << "ErrorIcon" << 0xe70d << left;
    QTest::newRow("left click alone, not offered") << 1 << 2 << "ErrorIcon" << 0xe70d << left;
    QTest::newRow("none") << 0 << 1 << "NoneIcon" << 0xe63a << "No set";
    QTest::newRow("modifiers alone") << 0x1e000000 << 1 << "NoneIcon" << 0xe63a << "No set";
    QTest::newRow("conflict") << 0x02000200 << 2 << "WarningIcon" << 0xe71b
                              << "Conflict with Other";
    QTest::newRow("correct") << 0x02000004 << 1 << "CorrectIcon" << 0xe725 << "";
    QTest::newRow("left click with Shift") << 0x02000001 << 1 << "CorrectIcon" << 0xe725 << "";
    QTest::newRow("an unknown action") << 0x8000 << 1 << "CorrectIcon" << 0xe725 << "";
}

void tst_ConfWidgetMouseActionConflict::stateButtonShowsTheState()
{
    QFETCH(int, value);
    QFETCH(int, kind);
    QFETCH(int, expectedGlyph);
    add("Other", 0x02000200, 2);
    const Gesture *gesture = add("Zoom", value, kind);
    QTEST(stateClass(gesture), "styleClass");
    QCOMPARE(glyph(gesture), expectedGlyph);
    QTEST(gesture->state->toolTip(), "toolTip");
}

void tst_ConfWidgetMouseActionConflict::styleFollowsTheState()
{
    mFixture->parent.setStyleSheet(".ErrorIcon { color: #ff0000; } .NoneIcon { color: #0000ff; }");
    Gesture *gesture = add("Zoom", 0, 1);
    QVERIFY(mFixture->show());
    QCOMPARE(gesture->state->palette().color(QPalette::WindowText), QColor(0, 0, 255));
    gesture->actions->setCurrentText("Left Click");
    QCOMPARE(gesture->state->palette().color(QPalette::WindowText), QColor(255, 0, 0));
}

void tst_ConfWidgetMouseActionConflict::gesturesConflict_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("conflict");
    QTest::newRow("the same") << 4 << 4 << true;
    QTest::newRow("the same with modifiers")
        << (sShift | sAlt | 64) << (sShift | sAlt | 64) << true;
    QTest::newRow("left pair") << (sControl | 1) << (sControl | 2) << true;
    QTest::newRow("right pair") << 4 << 8 << true;
    QTest::newRow("middle pair") << (sMeta | 16) << (sMeta | 32) << true;
    QTest::newRow("pair with other modifiers") << (sShift | 1) << (sControl | 2) << false;
    QTest::newRow("one modifier more") << (sShift | 1) << (sShift | sControl | 1) << false;
    QTest::newRow("with and without a modifier") << (sShift | 4) << 4 << false;
    QTest::newRow("left and right") << 2 << 4 << false;
    QTest::newRow("right and middle") << 8 << 16 << false;
    QTest::newRow("middle and wheel") << 32 << 64 << false;
    QTest::newRow("wheel and left drag") << 64 << 128 << false;
    QTest::newRow("left drag and right drag") << 128 << 256 << false;
    QTest::newRow("right drag and middle drag") << 256 << 512 << false;
    QTest::newRow("the same drag") << (sAlt | 512) << (sAlt | 512) << true;
    QTest::newRow("left click and left drag") << (sAlt | 1) << (sAlt | 128) << false;
    QTest::newRow("an unknown modifier in one") << (0x20000000 | 4) << 4 << false;
    QTest::newRow("an unknown modifier in both") << (0x20000000 | 4) << (0x20000000 | 8) << true;
    QTest::newRow("both of a pair and one") << 12 << 8 << true;
    QTest::newRow("the sign bit") << (INT_MIN | 4) << (INT_MIN | 4) << true;
}

void tst_ConfWidgetMouseActionConflict::gesturesConflict()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, conflict);
    const Gesture *one = add("One", first, 1);
    const Gesture *two = add("Two", second, 1);
    ConfWidgetMouseAction::refreshAllConflictState();
    const QString expected = conflict ? "WarningIcon" : "CorrectIcon";
    QCOMPARE(stateClass(one), expected);
    QCOMPARE(stateClass(two), expected);
    QCOMPARE(one->state->toolTip(), conflict ? QString("Conflict with Two") : QString());
    QCOMPARE(two->state->toolTip(), conflict ? QString("Conflict with One") : QString());
}

/// Compares every gesture that can be selected with every gesture that can be stored.
void tst_ConfWidgetMouseActionConflict::everyPairOfGesturesIsChecked()
{
    // The button and movement that a gesture uses; a click and a double click use the same.
    const QMap<int, QString> takes = {{0, ""},
                                      {1, "left"},
                                      {2, "left"},
                                      {4, "right"},
                                      {8, "right"},
                                      {16, "middle"},
                                      {32, "middle"},
                                      {64, "wheel"},
                                      {128, "drag left"},
                                      {256, "drag right"},
                                      {512, "drag middle"}};
    Gesture *other = add("Other", 0, 1);
    int pairs = 0;
    for (int held = 0; held < 0x20000000; held += sShift) {
        for (auto mine = takes.cbegin(); mine != takes.cend(); ++mine) {
            store(other, 0);
            Gesture *gesture = add("Mine", held | mine.key(), 1);
            for (int otherHeld = 0; otherHeld < 0x20000000; otherHeld += sShift) {
                for (auto theirs = takes.cbegin(); theirs != takes.cend(); ++theirs) {
                    QString expected = "CorrectIcon";
                    if (held == 0 && mine.key() == 1)
                        expected = "ErrorIcon";
                    else if (mine.value().isEmpty())
                        expected = "NoneIcon";
                    else if (held == otherHeld && mine.value() == theirs.value())
                        expected = "WarningIcon";
                    store(other, otherHeld | theirs.key());
                    gesture->editor->refreshConflictState();
                    if (stateClass(gesture) != expected)
                        QCOMPARE(qMakePair(gesture->value, other->value), qMakePair(-1, -1));
                    ++pairs;
                }
            }
            delete gesture->editor;
            mGestures.pop_back();
        }
    }
    QCOMPARE(pairs, 16 * 11 * 16 * 11);
}

void tst_ConfWidgetMouseActionConflict::firstConflictIsNamed()
{
    const Gesture *one = add("One", sShift | 1, 1);
    add("Two", sShift | 2, 1);
    const Gesture *three = add("Three", sShift | 1, 1);
    ConfWidgetMouseAction::refreshAllConflictState();
    QCOMPARE(three->state->toolTip(), QString("Conflict with One"));
    QCOMPARE(one->state->toolTip(), QString("Conflict with Two"));
}

void tst_ConfWidgetMouseActionConflict::conflictsAreCheckedWithStoredValues()
{
    Gesture *one = add("One", 4, 1);
    one->actions->setCurrentText("Left Click");
    QCOMPARE(one->value, 4);
    // The stored action is still the right click.
    const Gesture *two = add("Two", 8, 1);
    QCOMPARE(two->state->toolTip(), QString("Conflict with One"));
    // A left click alone that the host has stored conflicts like any other action.
    store(one, 1);
    Gesture *three = add("Three", 2, 1);
    QCOMPARE(three->state->toolTip(), QString("Conflict with One"));
    store(one, 0);
    ConfWidgetMouseAction::refreshAllConflictState();
    QCOMPARE(stateClass(three), QString("CorrectIcon"));
    QCOMPARE(stateClass(two), QString("CorrectIcon"));
}

void tst_ConfWidgetMouseActionConflict::nameOfTheConflictIsKept()
{
    Gesture *one = add("One", 4, 1);
    add("Two", 8, 1);
    Gesture *three = add("Three", 4, 1);
    QCOMPARE(three->state->toolTip(), QString("Conflict with One"));
    show(one, 64);
    QCOMPARE(stateClass(three), QString("WarningIcon"));
    QCOMPARE(three->state->toolTip(), QString("Conflict with One"));
    // The name is updated after another state was shown.
    show(three, 16);
    QCOMPARE(stateClass(three), QString("CorrectIcon"));
    QCOMPARE(three->state->toolTip(), QString());
    show(three, 4);
    QCOMPARE(three->state->toolTip(), QString("Conflict with Two"));
}

void tst_ConfWidgetMouseActionConflict::changeUpdatesTheOtherEditors()
{
    const Gesture *one = add("One", sShift | 4, 1);
    Gesture *two = add("Two", 4, 1);
    QCOMPARE(stateClass(one), QString("CorrectIcon"));
    two->modifiers->itemClicked(0);
    QCOMPARE(stateClass(one), QString("WarningIcon"));
    QCOMPARE(stateClass(two), QString("WarningIcon"));
    two->actions->setCurrentText("None");
    QCOMPARE(stateClass(one), QString("CorrectIcon"));
    QCOMPARE(stateClass(two), QString("NoneIcon"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetMouseActionConflict>(argc, argv);
}

#include "tst_ConfWidgetMouseActionConflict.moc"
