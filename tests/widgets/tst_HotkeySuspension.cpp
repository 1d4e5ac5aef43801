#include "support/TestMain.h"
#include "support/XClient.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QVBoxLayout>
#include <QxtGlobalShortcut>

#include <functional>
#include <memory>

namespace {

// X11 keysyms of the keys that the tests type.
constexpr xcb_keysym_t sControlL = 0xffe3;
constexpr xcb_keysym_t sEscape = 0xff1b;
constexpr xcb_keysym_t sF7 = 0xffc4;
constexpr xcb_keysym_t sF9 = 0xffc6;

} // namespace

using Way = std::function<void()>;
Q_DECLARE_METATYPE(Way)

/// Hotkeys of the program itself while a field of the program records, with the keyboard of a real
/// X server.
class tst_HotkeySuspension : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void ownHotkeyIsRecordedAndNotActivated();
    void hotkeyWorksAfterRecordingHasEnded_data();
    void hotkeyWorksAfterRecordingHasEnded();
    void hotkeyWorksInAModalDialogAndIsRecordedAfterwards();
    void hotkeyWorksWhileTheFieldRefusesASimpleKey();
    void hotkeyIsRecordedAfterAPopupOfTheField();
    void keyThatIsStillHeldAfterRecordingActivatesNothing();
    void nextFieldRecordsToo();
    void fieldOfTheHostRecordsToo();
    void keyThatAnotherProgramTakesIsReported();
    void hotkeyThatIsSetWhileRecordingWorksAfterwards();

private:
    bool isHeld() { return !mClient->canGrab(mClient->keyOf(sF9), XCB_MOD_MASK_CONTROL); }
    void typeHotkey() { mClient->type({sControlL, sF9}); }
    void verifyRecording();
    void verifyActivation();

    std::unique_ptr<XClient> mClient;
    std::unique_ptr<QxtGlobalShortcut> mHotkey;
    std::unique_ptr<QSignalSpy> mActivations;
    std::unique_ptr<QSignalSpy> mChanges;
    QPointer<QWidget> mWindow;
    QPointer<KeySequenceEdit> mField;
    QPointer<QLineEdit> mOther;
    std::unique_ptr<QWidget> mSecondWindow;
    const QKeySequence mKeys{QStringLiteral("Ctrl+F9")};
};

void tst_HotkeySuspension::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
}

void tst_HotkeySuspension::init()
{
    mClient = std::make_unique<XClient>();
    mHotkey = std::make_unique<QxtGlobalShortcut>(mKeys);
    mActivations = std::make_unique<QSignalSpy>(mHotkey.get(), &QxtGlobalShortcut::activated);
    mChanges = std::make_unique<QSignalSpy>(mHotkey.get(), &QxtGlobalShortcut::enabledChanged);
    QVERIFY(mHotkey->isValid());
    QVERIFY(isHeld());

    mWindow = new QWidget;
    mField = new KeySequenceEdit(QKeySequence(), mWindow);
    mOther = new QLineEdit(mWindow);
    auto *layout = new QVBoxLayout(mWindow);
    layout->addWidget(mField);
    layout->addWidget(mOther);
    mWindow->show();
    mWindow->activateWindow();
    mField->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(mWindow));
    QTRY_VERIFY(mField->hasFocus());
    QVERIFY(!isHeld());
}

void tst_HotkeySuspension::cleanup()
{
    delete mWindow;
    mSecondWindow.reset();
    mChanges.reset();
    mActivations.reset();
    mHotkey.reset();
    mClient.reset();
}

// Types the hotkey, and another key, after which the first has been processed.
void tst_HotkeySuspension::verifyRecording()
{
    QVERIFY(!isHeld());
    mField->cleanSetting();
    const auto activations = mActivations->count();
    typeHotkey();
    QTRY_COMPARE(mField->keySequence(), mKeys);
    mClient->type({sF7});
    QTRY_COMPARE(mField->keySequence(), QKeySequence(Qt::Key_F7));
    QCOMPARE(mActivations->count(), activations);
    QVERIFY(mHotkey->isValid());
}

void tst_HotkeySuspension::verifyActivation()
{
    QTRY_VERIFY(isHeld());
    const auto activations = mActivations->count();
    typeHotkey();
    QTRY_COMPARE(mActivations->count(), activations + 1);
    QVERIFY(mHotkey->isValid());
    QCOMPARE(mChanges->count(), 0);
}

void tst_HotkeySuspension::ownHotkeyIsRecordedAndNotActivated()
{
    verifyRecording();
    QCOMPARE(mChanges->count(), 0);
}

void tst_HotkeySuspension::hotkeyWorksAfterRecordingHasEnded_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("another widget has the focus") << Way([this] { mOther->setFocus(); });
    QTest::newRow("the focus is cleared") << Way([this] { mField->clearFocus(); });
    QTest::newRow("the field is disabled") << Way([this] { mField->setEnabled(false); });
    QTest::newRow("the field is hidden") << Way([this] { mField->hide(); });
    QTest::newRow("the field is alone and is hidden") << Way([this] {
        delete mOther;
        mField->hide();
    });
    QTest::newRow("the field is alone and its place is hidden") << Way([this] {
        delete mOther;
        auto *place = new QWidget(mWindow);
        mField->setParent(place);
        mField->show();
        place->show();
        mField->setFocus();
        place->hide();
    });
    QTest::newRow("the field is deleted") << Way([this] { delete mField; });
    QTest::newRow("the field is alone and is deleted") << Way([this] {
        delete mOther;
        delete mField;
    });
    QTest::newRow("the window is closed") << Way([this] { mWindow->close(); });
    QTest::newRow("the window is hidden") << Way([this] { mWindow->hide(); });
    QTest::newRow("the window is closed and shown without the focus") << Way([this] {
        mWindow->close();
        QTRY_VERIFY(!mWindow->isActiveWindow());
        mClient->takeFocus();
        mWindow->setAttribute(Qt::WA_ShowWithoutActivating);
        mWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(mWindow));
        QVERIFY(!mWindow->isActiveWindow());
    });
    QTest::newRow("the window is disabled") << Way([this] { mWindow->setEnabled(false); });
    QTest::newRow("the window is deleted") << Way([this] { delete mWindow; });
    QTest::newRow("the field leaves its window") << Way([this] { mField->setParent(nullptr); });
    QTest::newRow("another window of the program is active") << Way([this] {
        mSecondWindow = std::make_unique<QLineEdit>();
        mSecondWindow->show();
        mSecondWindow->activateWindow();
    });
    QTest::newRow("another program is active") << Way([this] { mClient->takeFocus(); });
}

void tst_HotkeySuspension::hotkeyWorksAfterRecordingHasEnded()
{
    QFETCH(Way, way);
    const QPointer<KeySequenceEdit> field = mField;
    way();
    verifyActivation();
    if (field && !field->parent())
        delete field;
}

void tst_HotkeySuspension::hotkeyWorksInAModalDialogAndIsRecordedAfterwards()
{
    for (const bool isDeleted : {false, true}) {
        QPointer<QDialog> dialog = new QDialog(mWindow);
        new QLineEdit(dialog);
        dialog->open();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        verifyActivation();
        if (isDeleted)
            delete dialog;
        else
            dialog->close();
        // As window managers do.
        mWindow->activateWindow();
        QTRY_VERIFY(mField->hasFocus());
        verifyRecording();
        delete dialog;
    }
    mOther->setFocus();
    verifyActivation();
}

void tst_HotkeySuspension::hotkeyWorksWhileTheFieldRefusesASimpleKey()
{
    mField->allowSimpleHotkey = false;
    bool isBoxShown = false;
    // The box runs its own event loop.
    const auto check = [this, &isBoxShown] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isActiveWindow())
            return;
        if (!isBoxShown) {
            isBoxShown = true;
            verifyActivation();
            mClient->type({sEscape});
        }
    };
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, check);
    timer.start(0);
    mClient->type({'k'});
    QTRY_VERIFY(isBoxShown && !QApplication::activeModalWidget());
    timer.stop();
    mWindow->activateWindow();
    QTRY_VERIFY(mField->hasFocus());
    verifyRecording();
}

void tst_HotkeySuspension::hotkeyIsRecordedAfterAPopupOfTheField()
{
    QMenu menu(mField);
    menu.addAction(QStringLiteral("Copy"));
    menu.popup(mField->mapToGlobal(QPoint(5, 5)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    mClient->type({sEscape});
    QTRY_VERIFY(!menu.isVisible());
    QTRY_VERIFY(!isHeld());
    verifyRecording();
    mOther->setFocus();
    verifyActivation();
}

void tst_HotkeySuspension::keyThatIsStillHeldAfterRecordingActivatesNothing()
{
    const xcb_keycode_t control = mClient->keyOf(sControlL);
    const xcb_keycode_t key = mClient->keyOf(sF9);
    mClient->send(control, true);
    mClient->send(key, true);
    QTRY_COMPARE(mField->keySequence(), mKeys);
    mOther->setFocus();
    QElapsedTimer held;
    held.start();
    // The server repeats only a key that is really held, here after at most 0.7 seconds.
    QTRY_VERIFY(held.hasExpired(1000));
    mClient->send(key, false);
    mClient->send(control, false);
    QCOMPARE(mActivations->count(), 0);
    verifyActivation();
}

void tst_HotkeySuspension::nextFieldRecordsToo()
{
    auto *next = new KeySequenceEdit(QKeySequence(), mWindow);
    mWindow->layout()->addWidget(next);
    next->show();
    next->setFocus();
    QVERIFY(!isHeld());
    typeHotkey();
    QTRY_COMPARE(next->keySequence(), mKeys);
    QCOMPARE(mActivations->count(), 0);
    delete mField;
    QVERIFY(!isHeld());
    delete next;
    verifyActivation();
}

void tst_HotkeySuspension::fieldOfTheHostRecordsToo()
{
    auto *field = new QLineEdit(mWindow);
    field->setProperty("recordsHotkeys", true);
    mWindow->layout()->addWidget(field);
    field->show();
    mOther->setFocus();
    QVERIFY(isHeld());
    field->setFocus();
    QVERIFY(!isHeld());
    mOther->setFocus();
    verifyActivation();
}

void tst_HotkeySuspension::keyThatAnotherProgramTakesIsReported()
{
    const xcb_keycode_t key = mClient->keyOf(sF9);
    QVERIFY(mClient->grab(key, XCB_MOD_MASK_CONTROL));
    QSignalSpy failures(mHotkey.get(), &QxtGlobalShortcut::failureChanged);
    QVERIFY(mHotkey->isValid());
    mOther->setFocus();
    QTRY_COMPARE(mChanges->count(), 1);
    QCOMPARE(failures.count(), 1);
    QCOMPARE(mHotkey->failure(), QxtGlobalShortcut::Taken);
    QVERIFY(!mHotkey->isValid());
    mClient->ungrab(key, XCB_MOD_MASK_CONTROL);
    QVERIFY(mHotkey->setShortcut(mKeys));
    QCOMPARE(mHotkey->failure(), QxtGlobalShortcut::NoFailure);
}

void tst_HotkeySuspension::hotkeyThatIsSetWhileRecordingWorksAfterwards()
{
    const xcb_keycode_t taken = mClient->keyOf(sF7);
    QVERIFY(mClient->grab(taken, 0));
    QVERIFY(!mHotkey->setShortcut(QKeySequence(Qt::Key_F7)));
    QCOMPARE(mHotkey->failure(), QxtGlobalShortcut::Taken);
    mClient->ungrab(taken, 0);
    QVERIFY(mHotkey->setShortcut(mKeys));
    QVERIFY(!isHeld());
    mChanges->clear();
    mOther->setFocus();
    verifyActivation();
}

int main(int argc, char **argv)
{
    return runTest<tst_HotkeySuspension>(argc, argv);
}

#include "tst_HotkeySuspension.moc"
