#include "HotkeyEditorFixture.h"
#include "support/TestMain.h"

using MtConf::ConfDefWidgetQKeySequence;

/// A hotkey that fails for the reason that the test sets.
class HotkeyWithReason : public QxtGlobalShortcut
{
    Q_OBJECT
    Q_PROPERTY(QxtGlobalShortcut::Failure failure MEMBER mFailure)
    Q_PROPERTY(QString trigger MEMBER mTrigger)
public:
    QxtGlobalShortcut::Failure mFailure = QxtGlobalShortcut::NoBackend;
    QString mTrigger;
};

class tst_ConfDefWidgetQKeySequenceReasons : public HotkeyEditorFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void reasonIsTheToolTipIfTheHostAsks_data() { addFailures(); }
    void reasonIsTheToolTipIfTheHostAsks();
    void emptyHotkeyIsNoErrorIfTheHostAsks();
    void toolTipIsTheSameForAllFailuresOtherwise_data() { addFailures(); }
    void toolTipIsTheSameForAllFailuresOtherwise();
    void statusTellsTheReason_data() { addFailures(); }
    void statusTellsTheReason();
    void changedReasonIsShown();
    void clickRegistersTheSameKeysAgainIfTheHostAsks_data();
    void clickRegistersTheSameKeysAgainIfTheHostAsks();
    void captionBecomesTheDescription();
    void descriptionOfTheHostIsKept();
    void otherTriggerIsShown_data();
    void otherTriggerIsShown();

private:
    static constexpr ushort sWarning = 0xe71b;
    static constexpr ushort sNeutral = 0xe63a;

    static void addFailures();
    void makeFailedHotkey();

    HotkeyWithReason *mHotkey = nullptr;
};

void tst_ConfDefWidgetQKeySequenceReasons::init()
{
    reset();
    makeItem(false);
    mHotkey = new HotkeyWithReason;
    mShortcut.reset(mHotkey);
    mItem->properties.insert("Shortcut", QVariant::fromValue(mShortcut.get()));
}

void tst_ConfDefWidgetQKeySequenceReasons::cleanup()
{
    ConfDefWidgetQKeySequence::sTellsReasons = false;
    clear();
}

void tst_ConfDefWidgetQKeySequenceReasons::addFailures()
{
    QTest::addColumn<QxtGlobalShortcut::Failure>("failure");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("canTryAgain");
    QTest::newRow("pending") << QxtGlobalShortcut::Pending << "The desktop has not answered yet."
                             << false;
    QTest::newRow("empty") << QxtGlobalShortcut::Empty << "The hotkey has not been set up yet."
                           << true;
    QTest::newRow("not a chord") << QxtGlobalShortcut::NotAChord
                                 << "A global hotkey is one key, alone or with modifiers." << false;
    QTest::newRow("not on the keyboard")
        << QxtGlobalShortcut::NotOnKeyboard << "This keyboard does not have the key." << false;
    QTest::newRow("taken") << QxtGlobalShortcut::Taken << "Another program uses this hotkey."
                           << true;
    QTest::newRow("refused") << QxtGlobalShortcut::Refused
                             << "The hotkey was refused by you or by the desktop." << true;
    QTest::newRow("no backend") << QxtGlobalShortcut::NoBackend
                                << "Global hotkeys are not available on this system." << false;
    QTest::newRow("none") << QxtGlobalShortcut::NoFailure << "Another program may use this hotkey."
                          << true;
}

void tst_ConfDefWidgetQKeySequenceReasons::makeFailedHotkey()
{
    mValue = neverValid();
    mHotkey->setShortcut(neverValid());
    makeEditor();
}

void tst_ConfDefWidgetQKeySequenceReasons::reasonIsTheToolTipIfTheHostAsks()
{
    QFETCH(QxtGlobalShortcut::Failure, failure);
    QFETCH(QString, text);
    QFETCH(bool, canTryAgain);
    ConfDefWidgetQKeySequence::sTellsReasons = true;
    mHotkey->mFailure = failure;
    makeFailedHotkey();
    QCOMPARE(mButton->toolTip(), canTryAgain ? text + "\nClick to try again." : text);
    QCOMPARE(mButton->accessibleName(), mButton->toolTip());
    QCOMPARE(mButton->isEnabled(), canTryAgain);
    const bool isError = failure != QxtGlobalShortcut::Pending;
    QCOMPARE(mButton->text(), QString(QChar(isError ? sWarning : sNeutral)));
    QCOMPARE(mButton->styleSheet().contains("color: rgb(245, 108, 108)"), isError);
}

void tst_ConfDefWidgetQKeySequenceReasons::emptyHotkeyIsNoErrorIfTheHostAsks()
{
    for (const bool asks : {false, true}) {
        ConfDefWidgetQKeySequence::sTellsReasons = asks;
        makeEditor();
        QCOMPARE(mButton->toolTip(), QString("Not set"));
        QCOMPARE(mButton->text(), QString(QChar(asks ? sNeutral : sWarning)));
        QCOMPARE(mButton->styleSheet().contains("color: rgb(245, 108, 108)"), !asks);
    }
}

void tst_ConfDefWidgetQKeySequenceReasons::toolTipIsTheSameForAllFailuresOtherwise()
{
    QFETCH(QxtGlobalShortcut::Failure, failure);
    mHotkey->mFailure = failure;
    makeFailedHotkey();
    QCOMPARE(mButton->toolTip(), failedToolTip());
    QVERIFY(mButton->isEnabled());
}

void tst_ConfDefWidgetQKeySequenceReasons::statusTellsTheReason()
{
    QFETCH(QxtGlobalShortcut::Failure, failure);
    QFETCH(QString, text);
    QFETCH(bool, canTryAgain);
    mHotkey->mFailure = failure;
    makeFailedHotkey();
    const MtConf::ConfigItemWidget::Status status = mEditor->status();
    QCOMPARE(status.text, text);
    QCOMPARE(status.actionText, QString(canTryAgain ? "Try again" : ""));
    QCOMPARE(bool(status.action), canTryAgain);
}

void tst_ConfDefWidgetQKeySequenceReasons::changedReasonIsShown()
{
    ConfDefWidgetQKeySequence::sTellsReasons = true;
    mHotkey->mFailure = QxtGlobalShortcut::Pending;
    makeFailedHotkey();
    int calls = 0;
    mEditor->onStatusChanged = [&calls] { ++calls; };
    mHotkey->mFailure = QxtGlobalShortcut::Refused;
    Q_EMIT mHotkey->failureChanged();
    QCOMPARE(calls, 1);
    QVERIFY(mButton->toolTip().startsWith("The hotkey was refused"));
    Q_EMIT mHotkey->triggerChanged();
    QCOMPARE(calls, 2);
}

void tst_ConfDefWidgetQKeySequenceReasons::clickRegistersTheSameKeysAgainIfTheHostAsks_data()
{
    QTest::addColumn<bool>("asks");
    QTest::newRow("the host asks") << true;
    QTest::newRow("the host does not") << false;
}

void tst_ConfDefWidgetQKeySequenceReasons::clickRegistersTheSameKeysAgainIfTheHostAsks()
{
    QFETCH(bool, asks);
    ConfDefWidgetQKeySequence::sTellsReasons = asks;
    mHotkey->mFailure = QxtGlobalShortcut::Taken;
    makeFailedHotkey();
    QTest::mouseClick(mButton, Qt::LeftButton);
    // Whenever the editor sets keys, it sets the description.
    QCOMPARE(mHotkey->description(), QString(asks ? "Capture area" : ""));
    QCOMPARE(mHotkey->shortcut(), neverValid());
}

void tst_ConfDefWidgetQKeySequenceReasons::captionBecomesTheDescription()
{
    makeEditor();
    QCOMPARE(mHotkey->description(), QString());
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mHotkey->description(), QString("Capture area"));
}

void tst_ConfDefWidgetQKeySequenceReasons::descriptionOfTheHostIsKept()
{
    mHotkey->setDescription("Take a picture");
    makeEditor();
    press(Qt::Key_K);
    QCOMPARE(mHotkey->description(), QString("Take a picture"));
}

void tst_ConfDefWidgetQKeySequenceReasons::otherTriggerIsShown_data()
{
    QTest::addColumn<bool>("asks");
    QTest::addColumn<QString>("trigger");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("status");
    const QString text = "Assigned by the desktop: Ctrl+Alt+P";
    QTest::newRow("other keys, the host asks") << true << "Ctrl+Alt+P" << text << text;
    QTest::newRow("other keys") << false << "Ctrl+Alt+P"
                                << "Setup success." << text;
    QTest::newRow("the same keys") << true << "Ctrl+F9"
                                   << "Setup success."
                                   << "";
    QTest::newRow("the same keys in a sentence") << true << "Press Ctrl+f9"
                                                 << "Setup success."
                                                 << "";
    QTest::newRow("more modifiers") << true << "Shift+Ctrl+F9"
                                    << "Assigned by the desktop: Shift+Ctrl+F9"
                                    << "Assigned by the desktop: Shift+Ctrl+F9";
    QTest::newRow("no text") << true << ""
                             << "Setup success."
                             << "";
}

void tst_ConfDefWidgetQKeySequenceReasons::otherTriggerIsShown()
{
    if (!QxtGlobalShortcut::isSupported())
        QSKIP("hotkeys are not registered on this platform");
    QFETCH(bool, asks);
    QFETCH(QString, trigger);
    ConfDefWidgetQKeySequence::sTellsReasons = asks;
    mValue = QKeySequence("Ctrl+F9");
    QVERIFY(mHotkey->setShortcut(mValue));
    mHotkey->mTrigger = trigger;
    makeEditor();
    QTEST(mButton->toolTip(), "toolTip");
    QCOMPARE(mButton->text(), QString(QChar(0xe725)));
    QVERIFY(!mButton->isEnabled());
    QTEST(mEditor->status().text, "status");
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetQKeySequenceReasons>(argc, argv);
}

#include "tst_ConfDefWidgetQKeySequenceReasons.moc"
