#include "KeySequenceEditFixture.h"
#include "support/TestMain.h"

#include <QPointer>
#include <QSignalSpy>

class tst_KeySequenceEditRecording : public KeySequenceEditFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { mParent.reset(); }

    void pressedKeyIsRecorded_data();
    void pressedKeyIsRecorded();
    void typingReplacesTheSequence();
    void keyWithoutMeaningIsNotRecorded_data();
    void keyWithoutMeaningIsNotRecorded();
    void sameKeyAgainEmitsNothing();
    void disabledFieldRecordsNothing();

    void filterIsCalledAndMayAccept();
    void filterMayRejectTheSequence();
    void filterIsNotCalledForTheSameSequence();
    void filterIsNotCalledForSetKeySequence();
    void filterMayReplaceItself();
    void filterMayDeleteTheField();

    void loneModifierIsRecorded_data();
    void loneModifierIsRecorded();
    void loneModifierIsRecordedOnlyIfAllowed();
    void modifierIsNotAloneAfterAnotherKey();
    void modifierIsNotAloneWhileAnotherIsHeld();
    void modifierIsNotAloneAfterAnotherModifier();
    void releasedKeyThatIsNotAModifierIsNotRecorded_data();
    void releasedKeyThatIsNotAModifierIsNotRecorded();
    void sameLoneModifierEmitsNothing();
    void filterIsCalledForALoneModifier();
    void loneModifierIsSimple();
};

void tst_KeySequenceEditRecording::pressedKeyIsRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::newRow("letter") << int(Qt::Key_K) << 0 << "K";
    QTest::newRow("Control") << int(Qt::Key_K) << int(Qt::ControlModifier) << "Ctrl+K";
    QTest::newRow("three modifiers")
        << int(Qt::Key_K) << int(Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier)
        << "Ctrl+Alt+Shift+K";
    QTest::newRow("Meta") << int(Qt::Key_F9) << int(Qt::MetaModifier) << "Meta+F9";
    QTest::newRow("keypad") << int(Qt::Key_5) << int(Qt::KeypadModifier) << "Num 5";
    QTest::newRow("copy") << int(Qt::Key_C) << int(Qt::ControlModifier) << "Ctrl+C";
    QTest::newRow("select all") << int(Qt::Key_A) << int(Qt::ControlModifier) << "Ctrl+A";
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << 0 << "Backspace";
    QTest::newRow("Delete") << int(Qt::Key_Delete) << 0 << "Del";
    QTest::newRow("Return") << int(Qt::Key_Return) << 0 << "Return";
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << "Esc";
    QTest::newRow("arrow") << int(Qt::Key_Left) << int(Qt::ShiftModifier) << "Shift+Left";
    QTest::newRow("caps lock") << int(Qt::Key_CapsLock) << 0 << "CapsLock";
}

void tst_KeySequenceEditRecording::pressedKeyIsRecorded()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    field();
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTest::keyClick(mField, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(mField->text(), text);
    QCOMPARE(mField->keySequence(), QKeySequence(key | modifiers));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).value<QKeySequence>(), QKeySequence(key | modifiers));
    QVERIFY(clearAction()->isVisible());
    QVERIFY(mField->hasFocus());
}

void tst_KeySequenceEditRecording::typingReplacesTheSequence()
{
    field(QKeySequence(Qt::CTRL | Qt::Key_K));
    QTest::keyClicks(mField, "xyz");
    QCOMPARE(mField->text(), QString("Z"));
}

void tst_KeySequenceEditRecording::keyWithoutMeaningIsNotRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Shift") << int(Qt::Key_Shift);
    QTest::newRow("Control") << int(Qt::Key_Control);
    QTest::newRow("Meta") << int(Qt::Key_Meta);
    QTest::newRow("Alt") << int(Qt::Key_Alt);
    QTest::newRow("none") << 0;
    QTest::newRow("unknown") << int(Qt::Key_unknown);
    QTest::newRow("left Super, which is Meta") << int(Qt::Key_Super_L);
    QTest::newRow("right Super") << int(Qt::Key_Super_R);
    QTest::newRow("AltGr") << int(Qt::Key_AltGr);
    QTest::newRow("a dead accent") << int(Qt::Key_Dead_Acute);
    QTest::newRow("Compose") << int(Qt::Key_Multi_key);
}

void tst_KeySequenceEditRecording::keyWithoutMeaningIsNotRecorded()
{
    QFETCH(int, key);
    field(QKeySequence(Qt::CTRL | Qt::Key_K));
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    bool asked = false;
    mField->keySequenceFilter = [&asked](KeySequenceEdit *, QKeySequence) { return asked = true; };
    QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier);
    QCoreApplication::sendEvent(mField, &press);
    releaseKey(mField, key);
    QCOMPARE(mField->text(), QString("Ctrl+K"));
    QCOMPARE(changes.count(), 0);
    QVERIFY(!asked);
    QVERIFY(press.isAccepted());
}

void tst_KeySequenceEditRecording::sameKeyAgainEmitsNothing()
{
    field();
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(mField->text(), QString("Ctrl+K"));
}

void tst_KeySequenceEditRecording::disabledFieldRecordsNothing()
{
    field();
    mField->setEnabled(false);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_K, Qt::ControlModifier);
    QCoreApplication::sendEvent(mField, &press);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEditRecording::filterIsCalledAndMayAccept()
{
    field();
    QList<QPair<KeySequenceEdit *, QKeySequence>> asked;
    mField->keySequenceFilter = [&asked](KeySequenceEdit *edit, QKeySequence sequence) {
        asked.append({edit, sequence});
        return true;
    };
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.at(0).first, mField);
    QCOMPARE(asked.at(0).second, QKeySequence(Qt::CTRL | Qt::Key_K));
    QCOMPARE(mField->text(), QString("Ctrl+K"));
}

void tst_KeySequenceEditRecording::filterMayRejectTheSequence()
{
    field(QKeySequence(Qt::Key_F1));
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    mField->keySequenceFilter = [](KeySequenceEdit *, QKeySequence) { return false; };
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(mField->text(), QString("F1"));
    QCOMPARE(changes.count(), 0);
}

void tst_KeySequenceEditRecording::filterIsNotCalledForTheSameSequence()
{
    field(QKeySequence(Qt::CTRL | Qt::Key_K));
    bool asked = false;
    mField->keySequenceFilter = [&asked](KeySequenceEdit *, QKeySequence) { return asked = true; };
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QVERIFY(!asked);
}

void tst_KeySequenceEditRecording::filterIsNotCalledForSetKeySequence()
{
    field(QKeySequence(Qt::CTRL | Qt::Key_K));
    mField->keySequenceFilter = [](KeySequenceEdit *, QKeySequence) { return false; };
    mField->setKeySequence(QKeySequence(Qt::Key_F1));
    QCOMPARE(mField->text(), QString("F1"));
    mField->cleanSetting();
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEditRecording::filterMayReplaceItself()
{
    field();
    const QString captured = QString("a text on the heap").repeated(10);
    mField->keySequenceFilter = [captured](KeySequenceEdit *edit, QKeySequence) {
        edit->keySequenceFilter = nullptr;
        return captured.startsWith("a text");
    };
    QTest::keyClick(mField, Qt::Key_F1);
    QCOMPARE(mField->text(), QString("F1"));
}

void tst_KeySequenceEditRecording::filterMayDeleteTheField()
{
    QPointer<KeySequenceEdit> edit = field();
    mField->keySequenceFilter = [](KeySequenceEdit *doomed, QKeySequence) {
        delete doomed;
        return true;
    };
    QTest::keyPress(edit, Qt::Key_F1);
    QVERIFY(!edit);
}

void tst_KeySequenceEditRecording::loneModifierIsRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifier");
    QTest::addColumn<QString>("text");
    QTest::newRow("Shift") << int(Qt::Key_Shift) << int(Qt::ShiftModifier)
                           << QString::fromUtf8("\u21e7");
    QTest::newRow("Control") << int(Qt::Key_Control) << int(Qt::ControlModifier)
                             << QString::fromUtf8("\u2318");
    QTest::newRow("Alt") << int(Qt::Key_Alt) << int(Qt::AltModifier) << QString::fromUtf8("\u2325");
    QTest::newRow("Meta") << int(Qt::Key_Meta) << int(Qt::MetaModifier)
                          << QString::fromUtf8("\u2303");
    QTest::newRow("Super") << int(Qt::Key_Super_L) << int(Qt::MetaModifier)
                           << QString::fromUtf8("\u2303");
}

void tst_KeySequenceEditRecording::loneModifierIsRecorded()
{
    QFETCH(int, key);
    QFETCH(int, modifier);
    field();
    mField->allowSingleModifier = true;
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTest::keyPress(mField, Qt::Key(key));
    QCOMPARE(mField->text(), QString());
    releaseKey(mField, key, Qt::KeyboardModifiers(modifier));
    QTEST(mField->text(), "text");
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).value<QKeySequence>(), mField->keySequence());
    QCOMPARE(mField->keySequence()[0], key == Qt::Key_Super_L ? int(Qt::Key_Meta) : key);
}

void tst_KeySequenceEditRecording::loneModifierIsRecordedOnlyIfAllowed()
{
    field();
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(mField->text(), QString());
    QCOMPARE(changes.count(), 0);
}

void tst_KeySequenceEditRecording::modifierIsNotAloneAfterAnotherKey()
{
    field();
    mField->allowSingleModifier = true;
    QTest::keyPress(mField, Qt::Key_K, Qt::ShiftModifier); // presses Shift first
    releaseKey(mField, Qt::Key_K, Qt::ShiftModifier);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(mField->text(), QString("Shift+K"));
}

void tst_KeySequenceEditRecording::modifierIsNotAloneWhileAnotherIsHeld()
{
    field();
    mField->allowSingleModifier = true;
    QTest::keyPress(mField, Qt::Key_Control);
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEditRecording::modifierIsNotAloneAfterAnotherModifier()
{
    field();
    mField->allowSingleModifier = true;
    QTest::keyPress(mField, Qt::Key_Control);
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier | Qt::ControlModifier);
    releaseKey(mField, Qt::Key_Control, Qt::ControlModifier);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEditRecording::releasedKeyThatIsNotAModifierIsNotRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("letter") << int(Qt::Key_A);
    QTest::newRow("the number before Shift") << 0x0100001f;
    QTest::newRow("Caps Lock, the number after Alt") << 0x01000024;
    QTest::newRow("AltGr") << int(Qt::Key_AltGr);
    QTest::newRow("none") << 0;
}

void tst_KeySequenceEditRecording::releasedKeyThatIsNotAModifierIsNotRecorded()
{
    QFETCH(int, key);
    field();
    mField->allowSingleModifier = true;
    // The filter accepts releases only.
    bool pressed = true;
    mField->keySequenceFilter = [&pressed](KeySequenceEdit *, QKeySequence) { return !pressed; };
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(mField, &press);
    pressed = false;
    releaseKey(mField, key);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEditRecording::sameLoneModifierEmitsNothing()
{
    field(QKeySequence(Qt::Key_Shift));
    mField->allowSingleModifier = true;
    bool asked = false;
    mField->keySequenceFilter = [&asked](KeySequenceEdit *, QKeySequence) { return asked = true; };
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(changes.count(), 0);
    QVERIFY(!asked);
}

void tst_KeySequenceEditRecording::filterIsCalledForALoneModifier()
{
    field();
    mField->allowSingleModifier = true;
    QKeySequence asked;
    mField->keySequenceFilter = [&asked](KeySequenceEdit *, QKeySequence sequence) {
        asked = sequence;
        return false;
    };
    QTest::keyPress(mField, Qt::Key_Alt);
    releaseKey(mField, Qt::Key_Alt, Qt::AltModifier);
    QCOMPARE(asked, QKeySequence(Qt::Key_Alt));
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEditRecording::loneModifierIsSimple()
{
    BoxWatcher boxes(clickOk);
    field();
    mField->allowSingleModifier = true;
    mField->allowSimpleHotkey = false;
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(boxes.count, 1);
    QCOMPARE(mField->text(), QString());
}

int main(int argc, char **argv)
{
    return runTest<tst_KeySequenceEditRecording>(argc, argv);
}

#include "tst_KeySequenceEditRecording.moc"
