#include <MaltoConfiguration/inputs/GestureRecognizer.h>

#include "support/TestMain.h"
#include "support/XClient.h"
#include "support/XPointer.h"

#include <QMenu>
#include <QStyleHints>

#include <memory>
#include <utility>

using namespace MtConf;

/// Gestures with the mouse of an X server.
class tst_GestureRecognizerX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void clicksAndDoubleClicksAreRecognized();
    void dragLeavesTheWindow();
    void menuThatOpensEndsTheGesture();
    void wheelTurnsTheSameWithEveryModifier_data();
    void wheelTurnsTheSameWithEveryModifier();

private:
    QPoint at(int x, int y) const { return mWindow->mapToGlobal(QPoint(x, y)); }
    QList<int> values() const;

    std::unique_ptr<XPointer> mPointer;
    std::unique_ptr<QWidget> mWindow;
    std::unique_ptr<GestureRecognizer> mRecognizer;
    std::unique_ptr<QSignalSpy> mRecognized;
};

void tst_GestureRecognizerX11::init()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
    // However slow the machine is.
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(3600 * 1000);
    mPointer = std::make_unique<XPointer>();
    mPointer->moveTo(QPoint(5, 5));
    mWindow = std::make_unique<QWidget>();
    mWindow->setGeometry(200, 200, 200, 200);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(mWindow.get()));
    mRecognizer = std::make_unique<GestureRecognizer>();
    mRecognizer->watch(mWindow.get());
    mRecognized = std::make_unique<QSignalSpy>(mRecognizer.get(), &GestureRecognizer::recognized);
}

void tst_GestureRecognizerX11::cleanup()
{
    if (mPointer)
        mPointer->release();
    mPointer.reset();
    mRecognized.reset();
    mRecognizer.reset();
    mWindow.reset();
}

QList<int> tst_GestureRecognizerX11::values() const
{
    QList<int> values;
    for (const QVariantList &arguments : std::as_const(*mRecognized))
        values.append(arguments.first().value<MouseGesture>().value);
    return values;
}

void tst_GestureRecognizerX11::clicksAndDoubleClicksAreRecognized()
{
    mPointer->click(at(50, 50));
    mPointer->click(at(50, 50));
    QTRY_COMPARE(values(), QList<int>({LeftClickGesture, LeftDoubleClickGesture}));
}

void tst_GestureRecognizerX11::dragLeavesTheWindow()
{
    QSignalSpy moved(mRecognizer.get(), &GestureRecognizer::dragMoved);
    QSignalSpy finished(mRecognizer.get(), &GestureRecognizer::dragFinished);
    QSignalSpy cancelled(mRecognizer.get(), &GestureRecognizer::dragCancelled);
    mPointer->moveTo(at(195, 100));
    mPointer->press();
    mPointer->moveTo(at(250, 100));
    QTRY_COMPARE(values(), QList<int>{LeftDragGesture});
    // Some platforms send this event although the button is still pressed.
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(mWindow.get(), &leave);
    mPointer->moveTo(at(300, 100));
    QTRY_VERIFY(!moved.isEmpty());
    mPointer->moveTo(at(100, 100));
    mPointer->release();
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().value<MouseGesture>().position, QPointF(100, 100));
    QCOMPARE(cancelled.count(), 0);
}

void tst_GestureRecognizerX11::menuThatOpensEndsTheGesture()
{
    QSignalSpy finished(mRecognizer.get(), &GestureRecognizer::dragFinished);
    mPointer->moveTo(at(50, 50));
    mPointer->press();
    // A press that comes after the menu would close it.
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::MouseButtons(Qt::LeftButton));
    QMenu menu(mWindow.get());
    menu.addAction(QStringLiteral("Paste"));
    menu.popup(at(100, 100));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    mPointer->moveTo(at(52, 52));
    mPointer->release();
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::MouseButtons());
    menu.close();
    mPointer->click(at(150, 50));
    QTRY_COMPARE(values(), QList<int>{LeftClickGesture});
    const auto click = mRecognized->first().first().value<MouseGesture>();
    QCOMPARE(click.begin, QPointF(150, 50));
    QCOMPARE(finished.count(), 0);
}

void tst_GestureRecognizerX11::wheelTurnsTheSameWithEveryModifier_data()
{
    QTest::addColumn<uint>("keysym");
    QTest::addColumn<int>("modifier");
    QTest::newRow("none") << 0U << int(Qt::NoModifier);
    QTest::newRow("Shift") << 0xffe1U << int(Qt::ShiftModifier);
    QTest::newRow("Ctrl") << 0xffe3U << int(Qt::ControlModifier);
    QTest::newRow("Alt") << 0xffe9U << int(Qt::AltModifier);
    QTest::newRow("Super") << 0xffebU << int(Qt::MetaModifier);
}

void tst_GestureRecognizerX11::wheelTurnsTheSameWithEveryModifier()
{
    QFETCH(const uint, keysym);
    QFETCH(const int, modifier);
    XClient keyboard;
    const xcb_keycode_t key = keysym ? keyboard.keyOf(keysym) : xcb_keycode_t(0);
    mPointer->moveTo(at(50, 50));
    if (key)
        keyboard.send(key, true);
    mPointer->turnWheelUp();
    if (key)
        keyboard.send(key, false);
    QTRY_COMPARE(values(), QList<int>{int(WheelGesture) | modifier});
    const auto turn = mRecognized->first().first().value<MouseGesture>();
    QCOMPARE(turn.angleDelta, QPoint(0, QWheelEvent::DefaultDeltasPerStep));
}

int main(int argc, char **argv)
{
    return runTest<tst_GestureRecognizerX11>(argc, argv);
}

#include "tst_GestureRecognizerX11.moc"
