#include <QxtGlobalShortcut>

#include "FakeKeyboard.h"
#include "support/TestMain.h"

#include <memory>
#include <vector>

using Failure = QxtGlobalShortcut::Failure;

/// Hotkeys on a keyboard whose keys other programs take and release.
class tst_KeyGrabBackend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void eachFailureHasItsReason();
    void disabledHotkeyHasNoFailure();
    void reasonChangesWithoutTheValidity();
    void keyboardDecidesBetweenTakenAndMissing();
    void lostConnectionIsNoBackend();
    void connectionThatEndsDuringARegistrationIsNoBackend();
    void recordingReleasesTheKeysAndKeepsTheResults();
    void keysAreTakenBackAfterRecording();
    void keyThatAnotherProgramTakesWhileRecordingIsReported();
    void freeHotkeyThatIsSetWhileRecordingIsValidAtOnce();
    void takenHotkeyThatIsSetWhileRecordingFailsAtOnce();
    void hotkeyThatIsRemovedWhileRecordingIsNotTakenBack();
    void failedHotkeyIsNotRetriedAfterRecording();
    void keyboardMayChangeWhileRecording();
    void hotkeyThatIsCreatedDuringRecordingIsSuspended();
    void focusOfAnotherObjectDoesNotSuspend();
    void focusObjectMayBeginAndEndToRecord();
    void sharedHotkeyOfTwoObjectsIsReportedToBoth();
    void changedIdKeepsTheKey();
    void manyRegistrationsCostLinearTime_data();
    void manyRegistrationsCostLinearTime();

private:
    static void focus(QObject *object) { Q_EMIT qApp->focusObjectChanged(object); }
    void record(bool records) { focus(records ? &mRecorder : nullptr); }

    FakeKeyboard &mKeyboard = FakeKeyboard::instance();
    QObject mRecorder;
    const QKeySequence mF8{Qt::Key_F8};
    const QKeySequence mF9{Qt::Key_F9};
    const KeyCombination mKey8{8, 0, 0};
    const KeyCombination mKey9{9, 0, 0};
    const FakeKeyboard::Layout mLayout{{Qt::Key_F8, {mKey8}}, {Qt::Key_F9, {mKey9}}};
};

void tst_KeyGrabBackend::init()
{
    mKeyboard.reset();
    mKeyboard.layout = mLayout;
    mRecorder.setProperty("recordsHotkeys", true);
    focus(nullptr);
}

void tst_KeyGrabBackend::cleanup()
{
    QVERIFY(mKeyboard.grabbed.empty());
    QVERIFY(!mKeyboard.listener);
}

void tst_KeyGrabBackend::eachFailureHasItsReason()
{
    mKeyboard.others.insert(mKey9);
    QxtGlobalShortcut hotkey;
    QCOMPARE(hotkey.failure(), Failure::Empty);
    QVERIFY(hotkey.setShortcut(mF8));
    QCOMPARE(hotkey.failure(), Failure::NoFailure);
    QVERIFY(!hotkey.setShortcut(mF9));
    QCOMPARE(hotkey.failure(), Failure::Taken);
    QVERIFY(!hotkey.setShortcut(QKeySequence(Qt::Key_F7)));
    QCOMPARE(hotkey.failure(), Failure::NotOnKeyboard);
    QVERIFY(!hotkey.setShortcut(QKeySequence(QStringLiteral("F8, F9"))));
    QCOMPARE(hotkey.failure(), Failure::NotAChord);
    QVERIFY(!hotkey.setShortcut(QKeySequence(Qt::Key_Shift)));
    QCOMPARE(hotkey.failure(), Failure::NotAChord);
    QVERIFY(!hotkey.setShortcut(QKeySequence(Qt::Key_unknown)));
    QCOMPARE(hotkey.failure(), Failure::NotAChord);
    QVERIFY(!hotkey.setShortcut(QKeySequence(QStringLiteral("Ctrl+Nonsense"))));
    QCOMPARE(hotkey.failure(), Failure::NotAChord);
    QVERIFY(!hotkey.setShortcut(QKeySequence()));
    QCOMPARE(hotkey.failure(), Failure::Empty);
}

void tst_KeyGrabBackend::disabledHotkeyHasNoFailure()
{
    mKeyboard.others.insert(mKey9);
    QxtGlobalShortcut hotkey(mF9);
    QSignalSpy failures(&hotkey, &QxtGlobalShortcut::failureChanged);
    hotkey.setDisabled();
    QCOMPARE(hotkey.failure(), Failure::NoFailure);
    QVERIFY(!hotkey.isValid());
    QCOMPARE(failures.count(), 1);
    hotkey.setEnabled();
    QCOMPARE(hotkey.failure(), Failure::Taken);
    QCOMPARE(failures.count(), 2);
}

void tst_KeyGrabBackend::reasonChangesWithoutTheValidity()
{
    mKeyboard.others.insert(mKey9);
    QxtGlobalShortcut hotkey(mF9);
    QSignalSpy changes(&hotkey, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy failures(&hotkey, &QxtGlobalShortcut::failureChanged);
    hotkey.setShortcut(mF9);
    QCOMPARE(failures.count(), 0);
    hotkey.setShortcut(QKeySequence(Qt::Key_F7));
    QCOMPARE(failures.count(), 1);
    QCOMPARE(changes.count(), 0);
    hotkey.setShortcut(mF8);
    QCOMPARE(failures.count(), 2);
    QCOMPARE(changes.count(), 1);
}

void tst_KeyGrabBackend::keyboardDecidesBetweenTakenAndMissing()
{
    mKeyboard.others.insert(mKey9);
    QxtGlobalShortcut hotkey(mF9);
    QSignalSpy failures(&hotkey, &QxtGlobalShortcut::failureChanged);
    mKeyboard.setLayout({});
    QCOMPARE(hotkey.failure(), Failure::NotOnKeyboard);
    QCOMPARE(failures.count(), 0);
    QTRY_COMPARE(failures.count(), 1);
    mKeyboard.setLayout(mLayout);
    QCOMPARE(hotkey.failure(), Failure::Taken);
    mKeyboard.others.clear();
    mKeyboard.setLayout(mLayout);
    QVERIFY(hotkey.isValid());
}

void tst_KeyGrabBackend::lostConnectionIsNoBackend()
{
    QxtGlobalShortcut hotkey(mF9);
    QSignalSpy failures(&hotkey, &QxtGlobalShortcut::failureChanged);
    mKeyboard.disconnect();
    QCOMPARE(hotkey.failure(), Failure::NoBackend);
    QTRY_COMPARE(failures.count(), 1);
    QVERIFY(!hotkey.setShortcut(mF8));
    QCOMPARE(hotkey.failure(), Failure::NoBackend);
}

void tst_KeyGrabBackend::connectionThatEndsDuringARegistrationIsNoBackend()
{
    QxtGlobalShortcut hotkey;
    mKeyboard.endsInGrab = true;
    QVERIFY(!hotkey.setShortcut(mF9));
    QCOMPARE(hotkey.failure(), Failure::NoBackend);
}

void tst_KeyGrabBackend::recordingReleasesTheKeysAndKeepsTheResults()
{
    QxtGlobalShortcut hotkey(mF9);
    QSignalSpy changes(&hotkey, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy failures(&hotkey, &QxtGlobalShortcut::failureChanged);
    record(true);
    QVERIFY(mKeyboard.grabbed.empty());
    QVERIFY(hotkey.isValid());
    QVERIFY(hotkey.isEnabled());
    QVERIFY(hotkey.setShortcut(mF9));
    QVERIFY(mKeyboard.grabbed.empty());
    record(false);
    QCoreApplication::processEvents();
    QCOMPARE(changes.count() + failures.count(), 0);
}

void tst_KeyGrabBackend::keysAreTakenBackAfterRecording()
{
    QxtGlobalShortcut hotkey(mF9);
    QSignalSpy activations(&hotkey, &QxtGlobalShortcut::activated);
    record(true);
    mKeyboard.press(mKey9);
    record(true);
    record(false);
    QCOMPARE(mKeyboard.grabbed, (std::set<KeyCombination>{mKey9}));
    mKeyboard.press(mKey9);
    QTRY_COMPARE(activations.count(), 1);
}

void tst_KeyGrabBackend::keyThatAnotherProgramTakesWhileRecordingIsReported()
{
    QxtGlobalShortcut lost(mF9);
    QxtGlobalShortcut kept(mF8);
    QSignalSpy changes(&lost, &QxtGlobalShortcut::enabledChanged);
    QSignalSpy failures(&lost, &QxtGlobalShortcut::failureChanged);
    QSignalSpy keptChanges(&kept, &QxtGlobalShortcut::enabledChanged);
    record(true);
    mKeyboard.others.insert(mKey9);
    QVERIFY(lost.isValid());
    record(false);
    QVERIFY(!lost.isValid());
    QCOMPARE(lost.failure(), Failure::Taken);
    QTRY_COMPARE(failures.count(), 1);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(keptChanges.count(), 0);
    QCOMPARE(mKeyboard.grabbed, (std::set<KeyCombination>{mKey8}));
}

void tst_KeyGrabBackend::freeHotkeyThatIsSetWhileRecordingIsValidAtOnce()
{
    QxtGlobalShortcut hotkey(mF8);
    record(true);
    QVERIFY(hotkey.setShortcut(mF9));
    QVERIFY(mKeyboard.grabbed.empty());
    record(false);
    QCOMPARE(mKeyboard.grabbed, (std::set<KeyCombination>{mKey9}));
}

void tst_KeyGrabBackend::takenHotkeyThatIsSetWhileRecordingFailsAtOnce()
{
    mKeyboard.others.insert(mKey9);
    QxtGlobalShortcut hotkey(mF8);
    record(true);
    QVERIFY(!hotkey.setShortcut(mF9));
    QCOMPARE(hotkey.failure(), Failure::Taken);
    record(false);
    QVERIFY(mKeyboard.grabbed.empty());
}

void tst_KeyGrabBackend::hotkeyThatIsRemovedWhileRecordingIsNotTakenBack()
{
    QxtGlobalShortcut stays(mF8);
    {
        QxtGlobalShortcut removed(mF9);
        QxtGlobalShortcut disabled(mF9);
        record(true);
        disabled.setDisabled();
    }
    record(false);
    QCOMPARE(mKeyboard.grabbed, (std::set<KeyCombination>{mKey8}));
}

void tst_KeyGrabBackend::failedHotkeyIsNotRetriedAfterRecording()
{
    mKeyboard.others.insert(mKey9);
    QxtGlobalShortcut hotkey(mF9);
    record(true);
    mKeyboard.others.clear();
    record(false);
    QCOMPARE(hotkey.failure(), Failure::Taken);
    QVERIFY(hotkey.setShortcut(mF9));
}

void tst_KeyGrabBackend::keyboardMayChangeWhileRecording()
{
    const KeyCombination moved{10, 0, 0};
    QxtGlobalShortcut hotkey(mF9);
    QxtGlobalShortcut missing(mF8);
    record(true);
    mKeyboard.setLayout({{Qt::Key_F9, {moved}}});
    QVERIFY(mKeyboard.grabbed.empty());
    QVERIFY(hotkey.isValid());
    QCOMPARE(missing.failure(), Failure::NotOnKeyboard);
    record(false);
    QCOMPARE(mKeyboard.grabbed, (std::set<KeyCombination>{moved}));
}

void tst_KeyGrabBackend::hotkeyThatIsCreatedDuringRecordingIsSuspended()
{
    QWidget window;
    QWidget field(&window);
    QWidget other(&window);
    for (QWidget *widget : {&field, &other})
        widget->setFocusPolicy(Qt::StrongFocus);
    field.setProperty("recordsHotkeys", true);
    field.setFocus();
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusObject(), &field);
    QxtGlobalShortcut hotkey(mF9);
    QVERIFY(hotkey.isValid());
    QVERIFY(mKeyboard.grabbed.empty());
    other.setFocus();
    QCOMPARE(mKeyboard.grabbed, (std::set<KeyCombination>{mKey9}));
}

void tst_KeyGrabBackend::focusOfAnotherObjectDoesNotSuspend()
{
    QxtGlobalShortcut hotkey(mF9);
    QObject other;
    focus(&other);
    QCOMPARE(mKeyboard.grabbed.size(), size_t(1));
    other.setProperty("recordsHotkeys", false);
    focus(&other);
    QCOMPARE(mKeyboard.grabbed.size(), size_t(1));
}

void tst_KeyGrabBackend::focusObjectMayBeginAndEndToRecord()
{
    QxtGlobalShortcut hotkey(mF9);
    auto button = std::make_unique<QObject>();
    QObject other;
    focus(button.get());
    button->setProperty("recordsHotkeys", true);
    QVERIFY(mKeyboard.grabbed.empty());
    button->setProperty("recordsHotkeys", false);
    QCOMPARE(mKeyboard.grabbed.size(), size_t(1));
    focus(&other);
    button->setProperty("recordsHotkeys", true); // does not have the focus any more
    QCOMPARE(mKeyboard.grabbed.size(), size_t(1));
    focus(button.get());
    QVERIFY(mKeyboard.grabbed.empty());
    button.reset();
    focus(nullptr);
    QCOMPARE(mKeyboard.grabbed.size(), size_t(1));
}

void tst_KeyGrabBackend::sharedHotkeyOfTwoObjectsIsReportedToBoth()
{
    QxtGlobalShortcut first(mF9);
    QxtGlobalShortcut second(mF9);
    QSignalSpy firstFailures(&first, &QxtGlobalShortcut::failureChanged);
    QSignalSpy secondFailures(&second, &QxtGlobalShortcut::failureChanged);
    record(true);
    mKeyboard.others.insert(mKey9);
    record(false);
    QTRY_COMPARE(firstFailures.count(), 1);
    QCOMPARE(secondFailures.count(), 1);
    mKeyboard.others.clear();
    QVERIFY(first.setShortcut(mF9));
    QVERIFY(second.isValid());
    QTRY_COMPARE(secondFailures.count(), 2);
    QCOMPARE(firstFailures.count(), 2);
}

void tst_KeyGrabBackend::changedIdKeepsTheKey()
{
    QxtGlobalShortcut hotkey(mF9);
    QSignalSpy changes(&hotkey, &QxtGlobalShortcut::enabledChanged);
    const int grabs = mKeyboard.grabs;
    hotkey.setId(QStringLiteral("capture"));
    hotkey.setDescription(QStringLiteral("Capture"));
    QCOMPARE(mKeyboard.grabs, grabs);
    QVERIFY(hotkey.isValid());
    QCOMPARE(changes.count(), 0);
    QSignalSpy activations(&hotkey, &QxtGlobalShortcut::activated);
    mKeyboard.press(mKey9);
    QTRY_COMPARE(activations.count(), 1);
}

void tst_KeyGrabBackend::manyRegistrationsCostLinearTime_data()
{
    QTest::addColumn<bool>("sameKeys");
    QTest::newRow("different keys") << false;
    QTest::newRow("the same keys") << true;
}

// Counts calls of the system. Other work that grows with the square of the number would make the
// test take minutes.
void tst_KeyGrabBackend::manyRegistrationsCostLinearTime()
{
    QFETCH(bool, sameKeys);
    constexpr int count = 10'000;
    const auto chord = [sameKeys](int i) { return 0x4e00 + (sameKeys ? 0 : i); };
    for (int i = 0; i < count; ++i)
        mKeyboard.layout[chord(i)] = {{quint32(sameKeys ? 0 : i), 0, 0}};
    std::vector<std::unique_ptr<QxtGlobalShortcut>> hotkeys;
    for (int i = 0; i < count; ++i) {
        hotkeys.push_back(std::make_unique<QxtGlobalShortcut>(QKeySequence(chord(i))));
        hotkeys.back()->setId(QStringLiteral("the same"));
    }
    const int keys = sameKeys ? 1 : count;
    QCOMPARE(mKeyboard.grabs, keys);
    QCOMPARE(mKeyboard.lookups, keys);
    record(true);
    record(false);
    QCOMPARE(mKeyboard.grabs, 2 * keys);
    mKeyboard.setLayout(mKeyboard.layout);
    QCOMPARE(mKeyboard.grabs, 2 * keys);
    QSignalSpy activations(hotkeys.back().get(), &QxtGlobalShortcut::activated);
    mKeyboard.press({quint32(sameKeys ? 0 : count - 1), 0, 0});
    QTRY_COMPARE(activations.count(), 1);
    for (const auto &hotkey : hotkeys)
        QVERIFY(hotkey->isValid());
}

int main(int argc, char **argv)
{
    return runTest<tst_KeyGrabBackend>(argc, argv);
}

#include "tst_KeyGrabBackend.moc"
