#include "GestureFixture.h"
#include "support/TestMain.h"

#include <memory>

using namespace MtConf;

namespace {

constexpr int sShift = static_cast<int>(Qt::ShiftModifier);
constexpr int sControl = static_cast<int>(Qt::ControlModifier);

} // namespace

/// Which events make which gestures.
class tst_GestureRecognizer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mFixture = std::make_unique<GestureFixture>(); }
    void cleanup() { mFixture.reset(); }
    void eventsBecomeGestures_data();
    void eventsBecomeGestures();
    void eventsTriggerSettings_data();
    void eventsTriggerSettings();
    void waitingClickIsReportedInTime();
    void qtComparesTheTimesOfItsDoubleClicks();
    void feedTellsWhetherTheEventWasReported();
    void gestureHasItsPlaces();
    void wheelHasItsDelta();
    void scrollKeepsTheModifiersOfItsBegin();
    void touchesHaveTheirOwnDistance();

private:
    std::unique_ptr<GestureFixture> mFixture;
};

void tst_GestureRecognizer::eventsBecomeGestures_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("log");

    const auto row = [](const char *name, const char *script, const char *log) {
        QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(log);
    };
    row("leftClick", "L+ L-", "1");
    row("rightClick", "R+ R-", "4");
    row("middleClick", "M+ M-", "10");
    row("clickIsReportedAtTheRelease", "L+", "");
    row("otherButtonsHaveNoGestures", "B+ B-", "");
    row("leftDoubleClick", "L+ L- L+ L-", "1 2");
    row("rightDoubleClick", "R+ R- R+ R-", "4 8");
    row("middleDoubleClick", "M+ M- M+ M-", "10 20");
    row("doubleClickIsReportedAtTheSecondPress", "L+ L- L+", "1 2");
    row("thirdClickIsAClick", "L+ L- L+ L- L+ L-", "1 2 1");
    row("fourClicksAreTwoDoubleClicks", "L+ L- L+ L- L+ L- L+ L-", "1 2 1 2");
    row("slowSecondClick", "L+ L- timeout L+ L-", "1 1");
    row("slowSecondClickByTheTimeOfItsEvent", "L+ L- t3600000 L+ L-", "1 1");
    row("longFirstPress", "L+ timeout L- L+ L-", "1 1");
    row("secondClickElsewhere", "L+ L- x6 L+ L-", "1 1");
    row("secondClickNearby", "L+ L- x5 L+ L-", "1 2");
    row("secondClickWithAnotherButton", "L+ L- R+ R-", "1 4");
    row("secondClickWithAnotherModifier", "L+ L- shift L+ L-", "1 2000001");
    row("modifiers", "shift ctrl L+ L-", "6000001");
    row("modifiersCountAtThePress", "shift L+ shift ctrl L-", "2000001");
    row("keypadModifierDoesNotMatter", "pad ctrl L+ L-", "4000001");
    row("smallMoveIsAClick", "L+ x9 L-", "1");
    row("drag", "L+ x10 x40 L-", "80 moved finished");
    row("rightDrag", "R+ x10 R-", "100 finished");
    row("middleDragWithModifiers", "ctrl M+ x-10 ctrl M-", "4000200 finished");
    row("dragThatReturns", "L+ x10 x0 L-", "80 moved finished");
    row("pressAfterADragIsNoDoubleClick", "L+ x10 x0 L- L+ L-", "80 moved finished 1");
    row("secondPressOfADoubleClickIsNoDrag", "L+ L- L+ x30 L-", "1 2");
    row("moveWithoutAButton", "x30 x60", "");
    row("wheel", "w120 w-120", "40 40");
    row("wheelWithModifiers", "ctrl w30", "4000040");
    row("wheelWithoutDelta", "w0", "");
    row("wheelDuringAPressIsNoGesture", "M+ w120 M-", "10");
    row("wheelDuringADragIsNoGesture", "L+ x10 w120 L-", "80 finished");
    row("wheelWhileSeveralButtonsArePressed", "L+ R+ w120 R- L- w120", "40");
    row("anotherButtonEndsAClick", "L+ R+ R- L-", "");
    row("anotherButtonEndsADrag", "L+ x10 R+ x40 L- R-", "80 cancelled");
    row("afterSeveralButtonsAllMustBeReleased", "L+ R+ R- R+ R- L- R+ R-", "4");
    row("backButtonEndsAClick", "L+ B+ B- L-", "");
    row("anotherButtonEndsTheDoubleClick", "L+ L- B+ B- L+ L-", "1 1");
    row("releaseWithoutPress", "L- R-", "");
    row("pressWithoutRelease", "L+ L+ L-", "1");
    row("moveAfterALostRelease", "L+ x10", "80");
    row("focusOutEndsAClick", "L+ focusOut L-", "");
    row("focusOutEndsADrag", "L+ x10 focusOut x40 L-", "80 cancelled");
    row("deactivationEndsAClick", "L+ deactivate L-", "");
    row("ungrabEndsADrag", "L+ x10 ungrab L-", "80 cancelled");
    row("leavingEndsAClick", "L+ leave L-", "");
    row("hidingEndsAClick", "L+ hide L-", "");
    row("disablingEndsAClick", "L+ disable L-", "");
    row("otherEventsDoNotMatter", "L+ paint L-", "1");
    row("clickAfterACancelledOne", "L+ focusOut L- L+ L-", "1");
}

void tst_GestureRecognizer::eventsBecomeGestures()
{
    QFETCH(QString, script);
    GestureRecognizer recognizer;
    Log log(&recognizer);
    Mouse(&recognizer).play(script);
    QTEST(log.take(), "log");
}

void tst_GestureRecognizer::eventsTriggerSettings_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("log");

    const auto row = [](const char *name, int first, int second, const char *script,
                        const char *log) {
        QTest::newRow(name) << first << second << QString::fromLatin1(script)
                            << QString::fromLatin1(log);
    };
    row("setting", RightClickGesture, WheelGesture, "R+ R-", "4 first");
    row("eachOfTwoEqualSettings", WheelGesture, WheelGesture, "w120", "40 first second");
    row("gestureOfNoSetting", RightClickGesture, WheelGesture, "M+ M-", "10");
    row("modifiersMustBeEqual", sShift | RightClickGesture, RightClickGesture, "shift R+ R-",
        "2000004 first");
    row("oneModifierMore", sShift | WheelGesture, 0, "shift ctrl w120", "6000040");
    row("noneTriggersNothing", NoGesture, sShift, "shift L+ L- w120", "2000001 2000040");
    row("leftClickAloneTriggersNothing", LeftClickGesture, 0, "L+ L-", "1");
    row("leftClickWithAModifier", sControl | LeftClickGesture, 0, "ctrl L+ L-", "4000001 first");
    row("clickWithoutDoubleClickDoesNotWait", RightClickGesture, 0, "R+ R- R+ R-",
        "4 first 4 first");
    row("clickWithDoubleClickWaits", RightClickGesture, RightDoubleClickGesture, "R+ R-", "");
    row("waitingClickAfterItsTime", RightClickGesture, RightDoubleClickGesture, "R+ R- timeout",
        "4 first");
    row("doubleClickDropsTheClick", RightClickGesture, RightDoubleClickGesture, "R+ R- R+ R-",
        "8 second");
    row("clickAfterADoubleClick", RightClickGesture, RightDoubleClickGesture,
        "R+ R- R+ R- R+ R- timeout", "8 second 4 first");
    row("doubleClickWithoutASettingForTheClick", 0, RightDoubleClickGesture, "R+ R- R+ R-",
        "8 second");
    row("leftDoubleClickAlone", 0, LeftDoubleClickGesture, "L+ L- L+ L-", "2 second");
    row("waitingClickThatBecomesNoDoubleClick", RightClickGesture, RightDoubleClickGesture,
        "R+ R- x30 R+ R- timeout", "4 first 4 first");
    row("doubleClickWithOtherModifiersDoesNotWait", RightClickGesture,
        sShift | RightDoubleClickGesture, "R+ R-", "4 first");
    row("doubleClickOfAnotherButtonDoesNotWait", RightClickGesture, MiddleDoubleClickGesture,
        "R+ R-", "4 first");
    row("longClickDoesNotWait", RightClickGesture, RightDoubleClickGesture, "R+ timeout R-",
        "4 first");
    row("wheelAfterAWaitingClick", RightClickGesture, RightDoubleClickGesture, "R+ R- w120",
        "4 first 40");
    row("anotherButtonAfterAWaitingClick", RightClickGesture, RightDoubleClickGesture,
        "R+ R- M+ M-", "4 first 10");
    row("focusOutKeepsAWaitingClick", RightClickGesture, RightDoubleClickGesture,
        "R+ R- focusOut timeout", "4 first");
    row("dragOfASetting", LeftDragGesture, 0, "L+ x10 x20 L-", "80 first moved finished");
    row("dragOfADoubleClickSetting", LeftDragGesture, LeftDoubleClickGesture, "L+ x10 x20 L-",
        "80 first moved finished");
}

void tst_GestureRecognizer::eventsTriggerSettings()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, script);
    mFixture->first = first;
    mFixture->second = second;
    GestureRecognizer recognizer;
    recognizer.addKey(QStringLiteral("first"));
    recognizer.addKey(QStringLiteral("second"));
    Log log(&recognizer);
    Mouse(&recognizer).play(script);
    QTEST(log.take(), "log");
}

void tst_GestureRecognizer::waitingClickIsReportedInTime()
{
    GestureFixture::setDoubleClickInterval(1);
    mFixture->first = MiddleClickGesture;
    mFixture->second = MiddleDoubleClickGesture;
    GestureRecognizer recognizer;
    recognizer.addKey(QStringLiteral("first"));
    recognizer.addKey(QStringLiteral("second"));
    QSignalSpy triggered(&recognizer, &GestureRecognizer::triggered);
    Mouse(&recognizer).play(QStringLiteral("M+ M-"));
    QTRY_COMPARE(triggered.count(), 1);
    QCOMPARE(triggered.first().first().toString(), QStringLiteral("first"));
}

void tst_GestureRecognizer::qtComparesTheTimesOfItsDoubleClicks()
{
    GestureRecognizer recognizer;
    Log log(&recognizer);
    const auto send = [&recognizer](QEvent::Type type, ulong time) {
        QMouseEvent event(type, {}, {}, {}, Qt::RightButton, Qt::RightButton, {});
        event.setTimestamp(time);
        recognizer.feed(&event);
    };
    send(QEvent::MouseButtonPress, 1);
    send(QEvent::MouseButtonRelease, 1);
    send(QEvent::MouseButtonDblClick, 7200 * 1000);
    QCOMPARE(log.take(), QStringLiteral("4 8"));
}

void tst_GestureRecognizer::feedTellsWhetherTheEventWasReported()
{
    GestureRecognizer recognizer;
    Mouse mouse(&recognizer);
    mouse.play(QStringLiteral("L+ L- L+ L- R+ x5 x10 x20 R- M+ x40 focusOut M- w120 w0 paint"));
    QCOMPARE(mouse.accepted.join(QLatin1Char(' ')), QStringLiteral("L- L+ x10 x20 R- x40 w120"));
}

void tst_GestureRecognizer::gestureHasItsPlaces()
{
    GestureRecognizer recognizer;
    QVector<MouseGesture> gestures;
    const auto add = [&gestures](const MouseGesture &gesture) { gestures.append(gesture); };
    connect(&recognizer, &GestureRecognizer::recognized, &recognizer, add);
    connect(&recognizer, &GestureRecognizer::dragMoved, &recognizer, add);
    connect(&recognizer, &GestureRecognizer::dragCancelled, &recognizer, add);
    Mouse(&recognizer).play(QStringLiteral("x20 L+ x30 x50 focusOut"));
    QCOMPARE(gestures.size(), 3);
    for (const MouseGesture &gesture : std::as_const(gestures)) {
        QCOMPARE(gesture.value, int(LeftDragGesture));
        QCOMPARE(gesture.begin, QPointF(20, 0));
        QCOMPARE(gesture.globalBegin, QPointF(120, 0));
    }
    QCOMPARE(gestures.at(0).position, QPointF(30, 0));
    QCOMPARE(gestures.at(0).globalPosition, QPointF(130, 0));
    QCOMPARE(gestures.at(1).position, QPointF(50, 0));
    QCOMPARE(gestures.at(2).globalPosition, QPointF(150, 0));
}

void tst_GestureRecognizer::wheelHasItsDelta()
{
    GestureRecognizer recognizer;
    MouseGesture gesture;
    connect(&recognizer, &GestureRecognizer::recognized, &recognizer,
            [&gesture](const MouseGesture &seen) { gesture = seen; });
    QWheelEvent event({3, 4}, {103, 104}, {0, 7}, {0, -15}, Qt::NoButton, Qt::AltModifier,
                      Qt::NoScrollPhase, false);
    QVERIFY(recognizer.feed(&event));
    QCOMPARE(gesture.value, int(WheelGesture) | int(Qt::AltModifier));
    QCOMPARE(gesture.angleDelta, QPoint(0, -15));
    QCOMPARE(gesture.pixelDelta, QPoint(0, 7));
    QWheelEvent transposed({3, 4}, {103, 104}, {-9, 1}, {-30, 2}, Qt::NoButton, Qt::AltModifier,
                           Qt::NoScrollPhase, false);
    QVERIFY(recognizer.feed(&transposed));
    QCOMPARE(gesture.angleDelta, QPoint(2, -30));
    QCOMPARE(gesture.pixelDelta, QPoint(1, -9));
    QWheelEvent sideways({3, 4}, {103, 104}, {}, {-30, 2}, Qt::NoButton, Qt::ControlModifier,
                         Qt::NoScrollPhase, false);
    QVERIFY(recognizer.feed(&sideways));
    QCOMPARE(gesture.angleDelta, QPoint(-30, 2));
    QCOMPARE(gesture.position, QPointF(3, 4));
    QCOMPARE(gesture.globalBegin, QPointF(103, 104));
}

void tst_GestureRecognizer::scrollKeepsTheModifiersOfItsBegin()
{
    GestureRecognizer recognizer;
    Log log(&recognizer);
    const auto scroll = [&recognizer](Qt::ScrollPhase phase, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event({}, {}, {0, 9}, {}, Qt::NoButton, modifiers, phase, false);
        recognizer.feed(&event);
    };
    scroll(Qt::ScrollBegin, Qt::NoModifier);
    scroll(Qt::ScrollUpdate, Qt::ControlModifier);
    scroll(Qt::ScrollMomentum, Qt::ControlModifier);
    scroll(Qt::ScrollEnd, Qt::ControlModifier);
    QCOMPARE(log.take(), QStringLiteral("40 40 40 40"));
    scroll(Qt::ScrollBegin, Qt::ControlModifier);
    scroll(Qt::ScrollEnd, Qt::NoModifier);
    scroll(Qt::NoScrollPhase, Qt::NoModifier);
    scroll(Qt::ScrollUpdate, Qt::ShiftModifier);
    QCOMPARE(log.take(), QStringLiteral("4000040 4000040 40 2000040"));
}

void tst_GestureRecognizer::touchesHaveTheirOwnDistance()
{
    const int distance = QGuiApplication::styleHints()->touchDoubleTapDistance();
    QVERIFY(distance > QGuiApplication::styleHints()->mouseDoubleClickDistance());
    for (const int moved : {distance, distance + 1}) {
        GestureRecognizer recognizer;
        Log log(&recognizer);
        const auto send = [&recognizer](QEvent::Type type, int x, Qt::MouseButtons buttons) {
            QMouseEvent event(type, QPointF(x, 0), QPointF(x, 0), QPointF(x, 0), Qt::LeftButton,
                              buttons, Qt::NoModifier, Qt::MouseEventSynthesizedBySystem);
            recognizer.feed(&event);
        };
        send(QEvent::MouseButtonPress, 0, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, 0, Qt::NoButton);
        send(QEvent::MouseButtonDblClick, moved, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, moved, Qt::NoButton);
        QCOMPARE(log.take(), moved == distance ? QStringLiteral("1 2") : QStringLiteral("1 1"));
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_GestureRecognizer>(argc, argv);
}

#include "tst_GestureRecognizer.moc"
