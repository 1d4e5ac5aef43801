#include "GestureFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <memory>

using namespace MtConf;

namespace {

/// A place that takes the mouse events, or leaves them to its parent.
class Place : public QWidget
{
public:
    using QWidget::QWidget;
    bool accepts = true;
    int wheels = 0;

protected:
    bool event(QEvent *event) override
    {
        const bool isHandled = QWidget::event(event);
        if (event->type() == QEvent::Wheel)
            ++wheels;
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Wheel)
            event->setAccepted(accepts);
        return isHandled;
    }
};

} // namespace

/// The settings and the watched objects of a recognizer, and what its slots may do with them.
class tst_GestureRecognizerObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mFixture = std::make_unique<GestureFixture>(); }
    void cleanup() { mFixture.reset(); }
    void settingsAreAddedOnceAndRemoved();
    void valueThatChangesCountsAtOnce();
    void unknownKeysAndOtherTypesTriggerNothing();
    void badCallsDoNothing();
    void watchedWidgetIsRecognized();
    void applicationReportsEachGestureOnce();
    void eventsOfAnotherWindowDoNotMatter();
    void destroyedReceiverEndsTheGesture();
    void slotMayDeleteTheRecognizer_data();
    void slotMayDeleteTheRecognizer();
    void slotMayDeleteTheReceiver();
    void slotMayRemoveASetting();
    void unwatchEndsTheGesture();
    void cancelDropsAWaitingClick();

private:
    std::unique_ptr<GestureFixture> mFixture;
};

void tst_GestureRecognizerObjects::settingsAreAddedOnceAndRemoved()
{
    MtConfManage settings;
    int zoom = WheelGesture;
    settings.addConfMouseAction("Zoom", &zoom, 0, QStringLiteral("Canvas"), QStringLiteral("Zoom"));
    GestureRecognizer recognizer;
    recognizer.addKey(QStringLiteral("second"));
    recognizer.addItem(
        settings.getItemByName(QStringLiteral("Canvas"), QStringLiteral("Zoom"), {}));
    recognizer.addKey(QStringLiteral("Canvas.Zoom"));
    QCOMPARE(recognizer.keys(),
             QStringList({QStringLiteral("second"), QStringLiteral("Canvas.Zoom")}));
    Log log(&recognizer);
    Mouse(&recognizer).play(QStringLiteral("w120"));
    QCOMPARE(log.take(), QStringLiteral("40 Canvas.Zoom"));
    recognizer.removeKey(QStringLiteral("Canvas.Zoom"));
    QCOMPARE(recognizer.keys(), QStringList(QStringLiteral("second")));
    Mouse(&recognizer).play(QStringLiteral("w120"));
    QCOMPARE(log.take(), QStringLiteral("40"));
}

void tst_GestureRecognizerObjects::valueThatChangesCountsAtOnce()
{
    GestureRecognizer recognizer;
    recognizer.addKey(QStringLiteral("first"));
    Log log(&recognizer);
    Mouse mouse(&recognizer);
    mouse.play(QStringLiteral("w120"));
    ConfStorage::instance()->set<int>(QStringLiteral("first"), WheelGesture);
    mouse.play(QStringLiteral("w120"));
    ConfStorage::instance()->set<int>(QStringLiteral("first"), RightDragGesture);
    mouse.play(QStringLiteral("w120 R+ x10 R-"));
    QCOMPARE(log.take(), QStringLiteral("40 40 first 40 100 first finished"));
}

void tst_GestureRecognizerObjects::unknownKeysAndOtherTypesTriggerNothing()
{
    const LogCapture capture;
    GestureRecognizer recognizer;
    recognizer.addKey(QStringLiteral("unknown"));
    recognizer.addKey(QStringLiteral("text"));
    recognizer.addKey(QStringLiteral("first"));
    mFixture->first = WheelGesture;
    Log log(&recognizer);
    Mouse mouse(&recognizer);
    mouse.play(QStringLiteral("w120"));
    ConfStorage::instance()->releaseConf(QStringLiteral("first"));
    mouse.play(QStringLiteral("w120 L+ L-"));
    QCOMPARE(log.take(), QStringLiteral("40 first 40 1"));
    QVERIFY(LogCapture::messages().isEmpty());
}

void tst_GestureRecognizerObjects::badCallsDoNothing()
{
    GestureRecognizer recognizer;
    recognizer.addItem(nullptr);
    recognizer.removeKey(QStringLiteral("first"));
    recognizer.watch(nullptr);
    recognizer.unwatch(nullptr);
    QVERIFY(!recognizer.feed(nullptr));
    recognizer.cancel();
    QCOMPARE(recognizer.keys(), QStringList());
}

void tst_GestureRecognizerObjects::watchedWidgetIsRecognized()
{
    QWidget widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    GestureRecognizer recognizer;
    recognizer.watch(&widget);
    Log log(&recognizer);
    QTest::mouseClick(&widget, Qt::RightButton, Qt::ControlModifier);
    QCOMPARE(log.take(), QStringLiteral("4000004"));
    QTest::mousePress(&widget, Qt::LeftButton, {}, {5, 5});
    QTest::mouseDClick(&widget, Qt::MiddleButton);
    recognizer.unwatch(&widget);
    QTest::mouseClick(&widget, Qt::RightButton);
    QCOMPARE(log.take(), QString());
}

void tst_GestureRecognizerObjects::applicationReportsEachGestureOnce()
{
    QWidget window;
    Place parent(&window);
    Place child(&parent);
    window.resize(100, 100);
    parent.resize(100, 100);
    child.resize(50, 50);
    child.accepts = false;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    GestureRecognizer recognizer;
    recognizer.watch(qApp);
    QVector<QObject *> receivers;
    connect(&recognizer, &GestureRecognizer::recognized, &recognizer,
            [&receivers](const MouseGesture &gesture) { receivers.append(gesture.receiver); });
    // Through the window, as from the system.
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, {10, 10});
    QCOMPARE(receivers, QVector<QObject *>{&child});
    QTest::mouseClick(window.windowHandle(), Qt::MiddleButton, {}, {80, 80});
    QCOMPARE(receivers, (QVector<QObject *>{&child, &parent}));
    receivers.clear();
    QWheelEvent event({10, 10}, {10, 10}, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    // Only spontaneous events are propagated to the parents of a widget.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window.windowHandle(), &event);
    QCOMPARE(receivers, QVector<QObject *>{&child});
    QCOMPARE(parent.wheels, 1);
}

void tst_GestureRecognizerObjects::eventsOfAnotherWindowDoNotMatter()
{
    QWidget first;
    QWidget second;
    GestureRecognizer recognizer;
    recognizer.watch(&first);
    recognizer.watch(&second);
    Log log(&recognizer);
    const auto send = [](QWidget *widget, QEvent::Type type, int x, Qt::MouseButtons buttons) {
        QMouseEvent event(type, QPointF(x, 0), QPointF(x, 0), QPointF(x, 0),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, {});
        QCoreApplication::sendEvent(widget, &event);
    };
    send(&first, QEvent::MouseButtonPress, 0, Qt::LeftButton);
    send(&second, QEvent::MouseMove, 50, Qt::LeftButton);
    send(&second, QEvent::MouseButtonRelease, 0, Qt::NoButton);
    QEvent focusOut(QEvent::Leave);
    QCoreApplication::sendEvent(&second, &focusOut);
    QCOMPARE(log.take(), QString());
    send(&first, QEvent::MouseButtonRelease, 0, Qt::NoButton);
    QCOMPARE(log.take(), QStringLiteral("1"));
    // A click in each is no double click.
    send(&second, QEvent::MouseButtonPress, 0, Qt::LeftButton);
    send(&second, QEvent::MouseButtonRelease, 0, Qt::NoButton);
    QCOMPARE(log.take(), QStringLiteral("1"));
    // The release of the first press was lost.
    send(&first, QEvent::MouseButtonPress, 0, Qt::LeftButton);
    send(&second, QEvent::MouseButtonPress, 0, Qt::LeftButton);
    send(&second, QEvent::MouseButtonRelease, 0, Qt::NoButton);
    send(&first, QEvent::MouseMove, 90, Qt::NoButton);
    QCOMPARE(log.take(), QStringLiteral("1"));
}

void tst_GestureRecognizerObjects::destroyedReceiverEndsTheGesture()
{
    auto widget = std::make_unique<QWidget>();
    GestureRecognizer recognizer;
    recognizer.watch(widget.get());
    Log log(&recognizer);
    QTest::mousePress(widget.get(), Qt::LeftButton, {}, {5, 5});
    QMouseEvent move(QEvent::MouseMove, {50, 5}, {50, 5}, {50, 5}, Qt::NoButton, Qt::LeftButton,
                     {});
    QCoreApplication::sendEvent(widget.get(), &move);
    QCOMPARE(log.take(), QStringLiteral("80"));
    MouseGesture last;
    last.receiver = this;
    connect(&recognizer, &GestureRecognizer::dragCancelled, &recognizer,
            [&last](const MouseGesture &gesture) { last = gesture; });
    widget.reset();
    QCOMPARE(log.take(), QStringLiteral("cancelled"));
    QCOMPARE(last.value, int(LeftDragGesture));
    QVERIFY(!last.receiver);
    Mouse(&recognizer).play(QStringLiteral("R+ R-"));
    QCOMPARE(log.take(), QStringLiteral("4"));
}

void tst_GestureRecognizerObjects::slotMayDeleteTheRecognizer_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("click") << QStringLiteral("M+ M- M+");
    QTest::newRow("doubleClick") << QStringLiteral("R+ R- R+ R-");
    QTest::newRow("waitingClickBeforeAPress") << QStringLiteral("R+ R- M+ M-");
    QTest::newRow("waitingClickBeforeTheWheel") << QStringLiteral("R+ R- w120 w120");
    QTest::newRow("waitingClickAfterItsTime") << QStringLiteral("R+ R- timeout");
    QTest::newRow("wheel") << QStringLiteral("w120 w120");
    QTest::newRow("drag") << QStringLiteral("M+ x30 x40 M-");
}

void tst_GestureRecognizerObjects::slotMayDeleteTheRecognizer()
{
    QFETCH(QString, script);
    mFixture->first = RightDoubleClickGesture;
    QPointer<GestureRecognizer> recognizer = new GestureRecognizer(this);
    recognizer->addKey(QStringLiteral("first"));
    recognizer->addKey(QStringLiteral("second"));
    const auto destroy = [recognizer] { delete recognizer; };
    connect(recognizer, &GestureRecognizer::recognized, this, destroy);
    Mouse(recognizer).play(script);
    QVERIFY(!recognizer);
}

void tst_GestureRecognizerObjects::slotMayDeleteTheReceiver()
{
    auto *widget = new QWidget;
    QPointer<QWidget> guard = widget;
    GestureRecognizer recognizer;
    recognizer.watch(widget);
    connect(&recognizer, &GestureRecognizer::recognized, this, [guard] { delete guard; });
    QWheelEvent event({}, {}, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QVERIFY(!recognizer.eventFilter(widget, &event));
    QVERIFY(!guard);
}

void tst_GestureRecognizerObjects::slotMayRemoveASetting()
{
    mFixture->first = WheelGesture;
    mFixture->second = WheelGesture;
    GestureRecognizer recognizer;
    recognizer.addKey(QStringLiteral("first"));
    recognizer.addKey(QStringLiteral("second"));
    Log log(&recognizer);
    connect(&recognizer, &GestureRecognizer::triggered, &recognizer,
            [&recognizer] { recognizer.removeKey(QStringLiteral("second")); });
    Mouse(&recognizer).play(QStringLiteral("w120"));
    QCOMPARE(log.take(), QStringLiteral("40 first"));
}

void tst_GestureRecognizerObjects::unwatchEndsTheGesture()
{
    QWidget widget;
    QWidget other;
    GestureRecognizer recognizer;
    recognizer.watch(&widget);
    recognizer.watch(&other);
    Log log(&recognizer);
    QTest::mousePress(&widget, Qt::RightButton);
    recognizer.unwatch(&other);
    QTest::mouseRelease(&widget, Qt::RightButton);
    QCOMPARE(log.take(), QStringLiteral("4"));
    QTest::mousePress(&widget, Qt::MiddleButton);
    recognizer.unwatch(&widget);
    recognizer.watch(&widget);
    QTest::mouseRelease(&widget, Qt::MiddleButton);
    QCOMPARE(log.take(), QString());
}

void tst_GestureRecognizerObjects::cancelDropsAWaitingClick()
{
    mFixture->first = RightDoubleClickGesture;
    GestureRecognizer recognizer;
    recognizer.addKey(QStringLiteral("first"));
    Log log(&recognizer);
    Mouse mouse(&recognizer);
    mouse.play(QStringLiteral("R+ R-"));
    recognizer.cancel();
    QVERIFY(!recognizer.findChild<QTimer *>()->isActive());
    mouse.play(QStringLiteral("R+ R- timeout"));
    QCOMPARE(log.take(), QStringLiteral("4"));
}

int main(int argc, char **argv)
{
    return runTest<tst_GestureRecognizerObjects>(argc, argv);
}

#include "tst_GestureRecognizerObjects.moc"
