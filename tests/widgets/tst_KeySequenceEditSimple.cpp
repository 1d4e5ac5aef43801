#include "KeySequenceEditFixture.h"
#include "support/TestMain.h"

#include <QPointer>
#include <QSet>
#include <QSignalSpy>

#include <utility>

class tst_KeySequenceEditSimple : public KeySequenceEditFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { mParent.reset(); }

    void simpleKeysAreRejected_data();
    void simpleKeysAreRejected();
    void examplesOfSimpleKeys_data();
    void examplesOfSimpleKeys();
    void simpleKeysAreAcceptedIfAllowed();
    void severalChordsAreNeverSimple();
    void emptySequenceIsNeverSimple();
    void fieldTellsWhatItAccepts();

    void rejectionIsShownInAMessageBox();
    void fieldMayBeDeletedWhileTheMessageBoxIsOpen();
};

void tst_KeySequenceEditSimple::simpleKeysAreRejected_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("canBeSimple");
    const int modifiers[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                             Qt::MetaModifier, Qt::GroupSwitchModifier};
    for (int row = 0; row < 32; ++row) {
        int held = 0;
        for (int i = 0; i < 5; ++i)
            held |= row & (1 << i) ? modifiers[i] : 0;
        QTest::addRow("modifiers %08x", held) << held << (row == 0);
        QTest::addRow("keypad with modifiers %08x", held)
            << (held | int(Qt::KeypadModifier)) << (row == 0);
    }
}

void tst_KeySequenceEditSimple::simpleKeysAreRejected()
{
    QFETCH(int, modifiers);
    QFETCH(bool, canBeSimple);
    QSet<int> simple;
    if (canBeSimple) {
        simple = {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Return,
                  Qt::Key_Enter, Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Left, Qt::Key_Up,
                  Qt::Key_Right, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Shift,
                  Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt, Qt::Key_CapsLock, Qt::Key_NumLock,
                  Qt::Key_ScrollLock,
                  // Unnamed key codes between Page Down and Shift.
                  0x01000018, 0x01000019, 0x0100001a, 0x0100001b, 0x0100001c, 0x0100001d,
                  0x0100001e, 0x0100001f};
        const QByteArray printable = " !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                     "[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~";
        for (const char character : printable)
            simple.insert(character);
    }
    // Every key of Unicode's Basic Multilingual Plane, and the range of Qt's named keys. With
    // modifiers that no simple key has, a smaller range is enough.
    const int range = canBeSimple ? 0x10000 : 0x100;
    QList<int> keys;
    for (int key = 0; key < range; ++key)
        keys << key << (0x01000000 + key);
    keys << Qt::Key_nobreakspace << Qt::Key_Adiaeresis << Qt::Key_AltGr << Qt::Key_MediaPlay
         << 0x00ffffff << Qt::Key_unknown;

    BoxWatcher boxes(clickOk);
    KeySequenceEdit edit(QKeySequence(), nullptr);
    edit.allowSimpleHotkey = false;
    for (const int key : std::as_const(keys)) {
        const QKeySequence sequence(key | modifiers);
        if (sequence.isEmpty())
            continue;
        edit.setKeySequence(QKeySequence());
        boxes.count = 0;
        edit.setKeySequence(sequence);
        const bool refused = edit.keySequence().isEmpty();
        QVERIFY2(refused == simple.contains(key), qPrintable(QString::number(key, 16)));
        QCOMPARE(boxes.count, refused ? 1 : 0);
    }
}

void tst_KeySequenceEditSimple::examplesOfSimpleKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::newRow("A") << int(Qt::Key_A) << 0 << "";
    QTest::newRow("Space") << int(Qt::Key_Space) << 0 << "";
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << "";
    QTest::newRow("Left") << int(Qt::Key_Left) << 0 << "";
    QTest::newRow("keypad 5") << int(Qt::Key_5) << int(Qt::KeypadModifier) << "";
    QTest::newRow("Control with A") << int(Qt::Key_A) << int(Qt::ControlModifier) << "Ctrl+A";
    QTest::newRow("Control with keypad 5")
        << int(Qt::Key_5) << int(Qt::ControlModifier | Qt::KeypadModifier) << "Ctrl+Num 5";
    QTest::newRow("F5") << int(Qt::Key_F5) << 0 << "F5";
    QTest::newRow("Home") << int(Qt::Key_Home) << 0 << "Home";
    QTest::newRow("End") << int(Qt::Key_End) << 0 << "End";
    QTest::newRow("Pause") << int(Qt::Key_Pause) << 0 << "Pause";
    QTest::newRow("Print") << int(Qt::Key_Print) << 0 << "Print";
}

void tst_KeySequenceEditSimple::examplesOfSimpleKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    BoxWatcher boxes(clickOk);
    field();
    mField->allowSimpleHotkey = false;
    QTest::keyClick(mField, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(mField->text(), text);
    QCOMPARE(boxes.count, text.isEmpty() ? 1 : 0);
}

void tst_KeySequenceEditSimple::simpleKeysAreAcceptedIfAllowed()
{
    BoxWatcher boxes(clickOk);
    field();
    QTest::keyClick(mField, Qt::Key_A);
    QCOMPARE(mField->text(), QString("A"));
    QCOMPARE(boxes.count, 0);
}

void tst_KeySequenceEditSimple::severalChordsAreNeverSimple()
{
    BoxWatcher boxes(clickOk);
    field();
    mField->allowSimpleHotkey = false;
    mField->setKeySequence(QKeySequence(Qt::Key_A, Qt::Key_B));
    QCOMPARE(mField->text(), QString("A, B"));
    QCOMPARE(boxes.count, 0);
}

void tst_KeySequenceEditSimple::emptySequenceIsNeverSimple()
{
    BoxWatcher boxes(clickOk);
    field(QKeySequence(Qt::Key_F1));
    mField->allowSimpleHotkey = false;
    mField->setKeySequence(QKeySequence());
    QCOMPARE(mField->text(), QString());
    QCOMPARE(boxes.count, 0);
}

void tst_KeySequenceEditSimple::fieldTellsWhatItAccepts()
{
    KeySequenceEdit edit{QKeySequence()};
    QVERIFY(edit.accepts(QKeySequence("A")));
    edit.allowSimpleHotkey = false;
    QVERIFY(!edit.accepts(QKeySequence("A")));
    QVERIFY(edit.accepts(QKeySequence("Ctrl+A")));
    QVERIFY(edit.accepts(QKeySequence()));
}

void tst_KeySequenceEditSimple::rejectionIsShownInAMessageBox()
{
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool isModal = false;
    bool isChild = false;
    QPointer<QMessageBox> opened;
    BoxWatcher boxes([&](QMessageBox *box) {
        opened = box;
        text = box->text();
        icon = box->icon();
        isModal = box->isModal();
        isChild = box->parent() == mField;
        clickOk(box);
    });
    field(QKeySequence(Qt::Key_F1));
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    mField->allowSimpleHotkey = false;
    QTest::keyPress(mField, Qt::Key_5, Qt::KeypadModifier);
    QCOMPARE(boxes.count, 1);
    QCOMPARE(text, QString("Shortkey [Num 5] is too simple.\n"
                           "To avoid conflicts with other functions and prevent accidental "
                           "activations, please set a "
                           "more complex hotkey combination.\n"
                           "\n"
                           "If you need to set simple shortcuts, go to the [System] Settings page "
                           "and check [Allow "
                           "simple global hotkeys]."));
    QCOMPARE(icon, QMessageBox::Warning);
    QVERIFY(isModal);
    QVERIFY(isChild);
    QCOMPARE(mField->text(), QString("F1"));
    QVERIFY(clearAction()->isVisible());
    QCOMPARE(changes.count(), 0);
    QTRY_VERIFY(!opened);
}

void tst_KeySequenceEditSimple::fieldMayBeDeletedWhileTheMessageBoxIsOpen()
{
    QPointer<KeySequenceEdit> edit = field();
    BoxWatcher boxes([&edit](QMessageBox *) { delete edit; });
    mField->allowSimpleHotkey = false;
    QTest::keyPress(edit, Qt::Key_A);
    QCOMPARE(boxes.count, 1);
    QVERIFY(!edit);
}

int main(int argc, char **argv)
{
    return runTest<tst_KeySequenceEditSimple>(argc, argv);
}

#include "tst_KeySequenceEditSimple.moc"
