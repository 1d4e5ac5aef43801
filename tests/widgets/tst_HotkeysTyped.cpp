#include "HotkeyEditorFixture.h"
#include "support/TestMain.h"
#include "support/XClient.h"

#include <QAction>
#include <QShortcut>
#include <QSignalSpy>

using Symbols = QVector<xcb_keysym_t>;

namespace {

// X11 keysyms of the keys that the tests type.
constexpr xcb_keysym_t sShiftL = 0xffe1;
constexpr xcb_keysym_t sControlL = 0xffe3;
constexpr xcb_keysym_t sAltL = 0xffe9;
constexpr xcb_keysym_t sSuperL = 0xffeb;
constexpr xcb_keysym_t sTab = 0xff09;
constexpr xcb_keysym_t sReturn = 0xff0d;
constexpr xcb_keysym_t sEscape = 0xff1b;
constexpr xcb_keysym_t sBackspace = 0xff08;
constexpr xcb_keysym_t sKeypad5 = 0xffb5;
constexpr xcb_keysym_t sF9 = 0xffc6;

} // namespace

/// Hotkeys typed on the keyboard of a real X server, in a window that has its own shortcuts.
class tst_HotkeysTyped : public HotkeyEditorFixture
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void typedKeysAreRecorded_data();
    void typedKeysAreRecorded();
    void loneModifierIsRecordedOnRelease_data();
    void loneModifierIsRecordedOnRelease();
    void twoModifiersAreNotRecorded();
    void tabMovesTheFocusToTheOtherField();
    void recordedHotkeyWorksAfterTheFieldLosesTheFocus();
    void clearedHotkeyIsFree();
    void hotkeyOfAnotherProgramFails();
    void failedHotkeyIsRegisteredByAClick();

private:
    std::unique_ptr<XClient> mClient;
    QLineEdit *mOther = nullptr;
    QAction *mSave = nullptr;
    QShortcut *mClose = nullptr;
    QPushButton *mOpen = nullptr;
};

void tst_HotkeysTyped::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs the xcb platform");
}

void tst_HotkeysTyped::init()
{
    mClient = std::make_unique<XClient>();
    reset();
    makeItem(true);
    makeEditor();
    QWidget *window = &mFixture->parent;
    mSave = new QAction(window);
    mSave->setShortcut(QKeySequence("Ctrl+S"));
    window->addAction(mSave);
    mClose = new QShortcut(QKeySequence("Esc"), window);
    mOpen = new QPushButton("&Open", window);
    mOther = new QLineEdit(window);
    mFixture->layout->addWidget(mOpen);
    mFixture->layout->addWidget(mOther);
    mOpen->show();
    mOther->show();
    QTRY_VERIFY(mField->hasFocus());
}

void tst_HotkeysTyped::cleanup()
{
    if (mClient) {
        mClient->setLock(XClient::sCapsLock, XCB_MOD_MASK_LOCK, false);
        mClient->setLock(XClient::sNumLock, XCB_MOD_MASK_2, false);
    }
    clear();
    mClient.reset();
}

void tst_HotkeysTyped::typedKeysAreRecorded_data()
{
    QTest::addColumn<Symbols>("typed");
    QTest::addColumn<QString>("text");
    const struct
    {
        const char *text;
        Symbols typed;
    } keys[] = {
        {"K", {'k'}},
        {"Ctrl+K", {sControlL, 'k'}},
        {"Ctrl+Alt+Shift+K", {sControlL, sAltL, sShiftL, 'k'}},
        {"Meta+F9", {sSuperL, sF9}},
        {"Ctrl+S", {sControlL, 's'}},
        {"Alt+O", {sAltL, 'o'}},
        {"Esc", {sEscape}},
        {"Return", {sReturn}},
        {"Backspace", {sBackspace}},
        {"Ctrl+Tab", {sControlL, sTab}},
        {"Ctrl+Shift+Tab", {sControlL, sShiftL, sTab}},
    };
    for (const auto &key : keys) {
        for (const char *locks : {"", "caps", "num", "caps num"})
            QTest::addRow("%s with locks: %s", key.text, locks) << key.typed << key.text;
    }
    QTest::newRow("keypad with locks: num") << Symbols{sKeypad5} << "Num 5";
    QTest::newRow("keypad with locks: ") << Symbols{sKeypad5} << "Num Clear";
}

void tst_HotkeysTyped::typedKeysAreRecorded()
{
    QFETCH(Symbols, typed);
    const QString row = QTest::currentDataTag();
    mShortcut->setEnabled(false);
    QSignalSpy saved(mSave, &QAction::triggered);
    QSignalSpy closed(mClose, &QShortcut::activated);
    QSignalSpy opened(mOpen, &QPushButton::clicked);
    mField->setFocus();
    mClient->setLock(XClient::sCapsLock, XCB_MOD_MASK_LOCK, row.contains("caps"));
    mClient->setLock(XClient::sNumLock, XCB_MOD_MASK_2, row.contains("num"));
    // Wait until the lock keys, which the field records too, have been processed.
    QTRY_COMPARE(mClient->modifiers() & 0x12,
                 (row.contains("caps") ? 0x02 : 0) | (row.contains("num") ? 0x10 : 0));
    mClient->type(typed);
    QFETCH(QString, text);
    QTRY_COMPARE(mField->text(), text);
    QVERIFY(mField->hasFocus());
    QCOMPARE(mValue, mField->keySequence());
    QCOMPARE(saved.count() + closed.count() + opened.count(), 0);
}

void tst_HotkeysTyped::loneModifierIsRecordedOnRelease_data()
{
    QTest::addColumn<quint32>("symbol");
    QTest::addColumn<QString>("text");
    QTest::newRow("Shift") << sShiftL << QString::fromUtf8("\u21e7");
    QTest::newRow("Control") << sControlL << QString::fromUtf8("\u2318");
    QTest::newRow("Alt") << sAltL << QString::fromUtf8("\u2325");
    QTest::newRow("Meta") << sSuperL << QString::fromUtf8("\u2303");
}

void tst_HotkeysTyped::loneModifierIsRecordedOnRelease()
{
    QFETCH(quint32, symbol);
    mClient->type({symbol});
    mClient->type({sF9}); // when F9 is recorded, the key before it has been processed
    QTRY_COMPARE(mField->text(), QString("F9"));
    mField->cleanSetting();
    mField->allowSingleModifier = true;
    mClient->type({symbol});
    QFETCH(QString, text);
    QTRY_COMPARE(mField->text(), text);
}

void tst_HotkeysTyped::twoModifiersAreNotRecorded()
{
    mField->allowSingleModifier = true;
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    mClient->type({sControlL, sShiftL});
    mClient->type({sF9});
    QTRY_COMPARE(changes.count(), 1);
    QCOMPARE(mField->text(), QString("F9"));
}

void tst_HotkeysTyped::tabMovesTheFocusToTheOtherField()
{
    QWidget::setTabOrder(mField, mOther);
    mClient->type({sTab});
    QTRY_VERIFY(mOther->hasFocus());
    mClient->type({sShiftL, sTab});
    QTRY_VERIFY(mField->hasFocus());
    QCOMPARE(mField->text(), QString());
}

void tst_HotkeysTyped::recordedHotkeyWorksAfterTheFieldLosesTheFocus()
{
    QSignalSpy activations(mShortcut.get(), &QxtGlobalShortcut::activated);
    mClient->type({sControlL, sF9});
    QTRY_COMPARE(mValue, QKeySequence("Ctrl+F9"));
    QVERIFY(mShortcut->isValid());
    QCOMPARE(mButton->toolTip(), QString("Setup success."));
    mOther->setFocus();
    mClient->type({sControlL, sF9});
    QTRY_COMPARE(activations.count(), 1);
    QCOMPARE(mField->text(), QString("Ctrl+F9"));
    // Record another hotkey in its place.
    mField->setFocus();
    mClient->type({sAltL, sF9});
    QTRY_COMPARE(mValue, QKeySequence("Alt+F9"));
    mOther->setFocus();
    QVERIFY(mClient->canGrab(mClient->keyOf(sF9), XCB_MOD_MASK_CONTROL));
    QVERIFY(!mClient->canGrab(mClient->keyOf(sF9), XCB_MOD_MASK_1));
    QCOMPARE(activations.count(), 1);
}

void tst_HotkeysTyped::clearedHotkeyIsFree()
{
    mClient->type({sControlL, sF9});
    QTRY_VERIFY(mShortcut->isValid());
    mOther->setFocus();
    QVERIFY(!mClient->canGrab(mClient->keyOf(sF9), XCB_MOD_MASK_CONTROL));
    mField->cleanSetting();
    QVERIFY(mClient->canGrab(mClient->keyOf(sF9), XCB_MOD_MASK_CONTROL));
    QCOMPARE(mButton->toolTip(), QString("Not set"));
}

void tst_HotkeysTyped::hotkeyOfAnotherProgramFails()
{
    const xcb_keycode_t key = mClient->keyOf(sF9);
    // Grab the key only with Caps Lock, so that the field still receives it without.
    QVERIFY(mClient->grab(key, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK));
    mClient->type({sControlL, sF9});
    QTRY_COMPARE(mValue, QKeySequence("Ctrl+F9"));
    QVERIFY(mShortcut->isEnabled());
    QVERIFY(!mShortcut->isValid());
    QCOMPARE(mButton->toolTip(), failedToolTip());
    QVERIFY(mButton->isEnabled());
    // When the key is free and the hotkey is set again, the state is updated.
    mClient->ungrab(key, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK);
    QVERIFY(mShortcut->setShortcut(mValue));
    QCOMPARE(mButton->toolTip(), QString("Setup success."));
    QVERIFY(!mButton->isEnabled());
}

void tst_HotkeysTyped::failedHotkeyIsRegisteredByAClick()
{
    delete mEditor;
    MtConf::ConfDefWidgetQKeySequence::sTellsReasons = true;
    makeEditor();
    MtConf::ConfDefWidgetQKeySequence::sTellsReasons = false;
    const xcb_keycode_t key = mClient->keyOf(sF9);
    QVERIFY(mClient->grab(key, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK));
    mClient->type({sControlL, sF9});
    QTRY_COMPARE(mValue, QKeySequence("Ctrl+F9"));
    QCOMPARE(mButton->toolTip(), QString("Another program uses this hotkey.\nClick to try again."));
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(!mShortcut->isValid());
    mClient->ungrab(key, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK);
    QTest::mouseClick(mButton, Qt::LeftButton);
    QVERIFY(mShortcut->isValid());
    QCOMPARE(mButton->toolTip(), QString("Setup success."));
}

int main(int argc, char **argv)
{
    return runTest<tst_HotkeysTyped>(argc, argv);
}

#include "tst_HotkeysTyped.moc"
