#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAction>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

/// Puts "de " before every text of the field.
class Prefixer : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "KeySequenceEdit") == 0 ? QString("de ") + text : QString();
    }
    bool isEmpty() const override { return false; }
};

/// Runs an action on every message box once it is open.
class BoxWatcher : public QObject
{
public:
    explicit BoxWatcher(std::function<void(QMessageBox *)> action) : mAction(std::move(action))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *box = qobject_cast<QMessageBox *>(watched);
        if (box && event->type() == QEvent::Show) {
            ++count;
            QTimer::singleShot(0, box, [this, box] { mAction(box); });
        }
        return false;
    }

    int count = 0;

private:
    std::function<void(QMessageBox *)> mAction;
};

/// Releases one key while `held` are still held. The system counts a modifier key that is released
/// among these; QTest releases it twice.
void releaseKey(QWidget *widget, int key, Qt::KeyboardModifiers held = Qt::NoModifier)
{
    QKeyEvent release(QEvent::KeyRelease, key, held);
    QCoreApplication::sendEvent(widget, &release);
}

void clickOk(QMessageBox *box)
{
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
}

} // namespace

class tst_KeySequenceEdit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mParent.reset(); }

    void newFieldShowsItsSequence_data();
    void newFieldShowsItsSequence();
    void newFieldRefusesNothing();
    void sequenceIsRendered_data();
    void sequenceIsRendered();

    void pressedKeyIsRecorded_data();
    void pressedKeyIsRecorded();
    void typingNeverEdits();
    void keyThatSaysNothingIsNotRecorded_data();
    void keyThatSaysNothingIsNotRecorded();
    void sameKeyAgainEmitsNothing();
    void disabledFieldRecordsNothing();

    void filterIsAskedAndTaken();
    void filterDropsTheSequence();
    void filterIsNotAskedForTheSameSequence();
    void filterIsNotAskedByCode();
    void filterMayReplaceItself();
    void filterMayDeleteTheField();

    void loneModifierIsRecorded_data();
    void loneModifierIsRecorded();
    void loneModifierNeedsPermission();
    void loneModifierIsForgottenWithAnotherKey();
    void loneModifierIsForgottenWithAnotherModifierHeld();
    void firstOfTwoModifiersIsNotAlone();
    void releasedKeyThatIsNoModifierIsNotRecorded_data();
    void releasedKeyThatIsNoModifierIsNotRecorded();
    void loneModifierAgainEmitsNothing();
    void filterIsAskedForALoneModifier();
    void loneModifierIsSimple();

    void sameSequenceFromCodeEmitsNothing();
    void clearButtonClears();
    void clearingAnEmptyFieldEmitsNothing();

    void simpleKeysAreRefused_data();
    void simpleKeysAreRefused();
    void examplesOfSimpleKeys_data();
    void examplesOfSimpleKeys();
    void simpleKeysAreTakenWhenAllowed();
    void severalChordsAreNeverSimple();
    void emptySequenceIsNeverSimple();
    void refusalIsToldInABox();
    void fieldMayGoWhileTheBoxIsOpen();

    void shortcutOfTheWindowIsRecorded();
    void dialogStaysOpenOnEscapeAndReturn();
    void tabLeadsOutOfTheField();
    void tabWithAModifierIsRecorded_data();
    void tabWithAModifierIsRecorded();
    void tabIsRecordedWithoutAnotherPlaceForTheFocus();

    void receiverMayDeleteTheField_data();
    void receiverMayDeleteTheField();
    void textsFollowTheLanguage();

private:
    KeySequenceEdit *field(const QKeySequence &sequence = QKeySequence());
    QAction *clearAction() const { return mField->actions().value(0); }
    QToolButton *clearButton() const { return mField->findChild<QToolButton *>(); }

    std::unique_ptr<QWidget> mParent;
    QLineEdit *mBefore = nullptr;
    KeySequenceEdit *mField = nullptr;
    QLineEdit *mAfter = nullptr;
};

void tst_KeySequenceEdit::init()
{
    mParent = std::make_unique<QWidget>();
    mField = nullptr;
}

/// The only field of the test, with the focus, between two other line edits.
KeySequenceEdit *tst_KeySequenceEdit::field(const QKeySequence &sequence)
{
    auto *layout = new QVBoxLayout(mParent.get());
    mBefore = new QLineEdit(mParent.get());
    mField = new KeySequenceEdit(sequence, mParent.get());
    mAfter = new QLineEdit(mParent.get());
    layout->addWidget(mBefore);
    layout->addWidget(mField);
    layout->addWidget(mAfter);
    mParent->show();
    mParent->activateWindow();
    if (!QTest::qWaitForWindowActive(mParent.get()))
        qWarning("the window is not active");
    mField->setFocus();
    return mField;
}

void tst_KeySequenceEdit::newFieldShowsItsSequence_data()
{
    QTest::addColumn<QKeySequence>("sequence");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("canBeCleared");
    QTest::newRow("none") << QKeySequence() << "" << false;
    QTest::newRow("one") << QKeySequence(Qt::CTRL | Qt::Key_K) << "Ctrl+K" << true;
}

void tst_KeySequenceEdit::newFieldShowsItsSequence()
{
    QFETCH(QKeySequence, sequence);
    QFETCH(QString, text);
    QFETCH(bool, canBeCleared);
    const KeySequenceEdit edit(sequence, nullptr);
    QVERIFY(edit.isReadOnly());
    QCOMPARE(edit.alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(edit.property("class"), QVariant("KeySequenceEdit"));
    QCOMPARE(edit.placeholderText(), QString("Press shortcut key"));
    QCOMPARE(edit.text(), text);
    QCOMPARE(edit.keySequence(), sequence);
    QVERIFY(edit.allowSimpleHotkey);
    QVERIFY(!edit.allowSingleModifier);
    QVERIFY(!edit.keySequenceFilter);

    QCOMPARE(edit.actions().size(), 1);
    const QAction *clear = edit.actions().constFirst();
    QCOMPARE(clear->isVisible(), canBeCleared);
    QCOMPARE(clear->text(), QString());
    QCOMPARE(clear->toolTip(), QString("Clear shortcut key"));
    const QImage image = clear->icon().pixmap(24).toImage();
    QCOMPARE(image.size(), QSize(24, 24));
    QSet<QRgb> opaque;
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                opaque.insert(image.pixel(x, y));
        }
    }
    QCOMPARE(opaque, QSet<QRgb>{qRgb(255, 85, 85)});
}

void tst_KeySequenceEdit::newFieldRefusesNothing()
{
    BoxWatcher boxes(clickOk);
    KeySequenceEdit edit(QKeySequence(Qt::Key_A), nullptr);
    QSignalSpy changes(&edit, &KeySequenceEdit::sigKeySequenceChanged);
    edit.allowSimpleHotkey = false;
    QCoreApplication::processEvents();
    QCOMPARE(edit.text(), QString("A"));
    QCOMPARE(boxes.count, 0);
    QCOMPARE(changes.count(), 0);
}

void tst_KeySequenceEdit::sequenceIsRendered_data()
{
    QTest::addColumn<QKeySequence>("sequence");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QKeySequence() << "";
    QTest::newRow("alone: Alt") << QKeySequence(Qt::Key_Alt) << QString::fromUtf8("\u2325");
    QTest::newRow("alone: Control") << QKeySequence(Qt::Key_Control) << QString::fromUtf8("\u2318");
    QTest::newRow("alone: Shift") << QKeySequence(Qt::Key_Shift) << QString::fromUtf8("\u21e7");
    QTest::newRow("alone: Meta") << QKeySequence(Qt::Key_Meta) << QString::fromUtf8("\u2303");
    QTest::newRow("a letter") << QKeySequence(Qt::Key_A) << "A";
    QTest::newRow("all modifiers")
        << QKeySequence(Qt::META | Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_F5)
        << "Meta+Ctrl+Alt+Shift+F5";
    QTest::newRow("keypad") << QKeySequence(Qt::KeypadModifier | Qt::Key_5) << "Num 5";
    QTest::newRow("keypad with Control")
        << QKeySequence(Qt::CTRL | static_cast<int>(Qt::KeypadModifier) | Qt::Key_5)
        << "Ctrl+Num 5";
    QTest::newRow("every keypad chord")
        << QKeySequence(Qt::KeypadModifier | Qt::Key_1, Qt::KeypadModifier | Qt::Key_Plus)
        << "Num 1, Num +";
    QTest::newRow("the key NumLock") << QKeySequence(Qt::Key_NumLock) << "NumLock";
    QTest::newRow("four chords")
        << QKeySequence(Qt::Key_A, Qt::Key_Space, Qt::CTRL | Qt::Key_B, Qt::Key_Home)
        << "A, Space, Ctrl+B, Home";
}

void tst_KeySequenceEdit::sequenceIsRendered()
{
    QFETCH(QKeySequence, sequence);
    QTEST(KeySequenceEdit::QKeySeqToStr(sequence), "text");
}

void tst_KeySequenceEdit::pressedKeyIsRecorded_data()
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

void tst_KeySequenceEdit::pressedKeyIsRecorded()
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

void tst_KeySequenceEdit::typingNeverEdits()
{
    field(QKeySequence(Qt::CTRL | Qt::Key_K));
    QTest::keyClicks(mField, "xyz");
    QCOMPARE(mField->text(), QString("Z"));
}

void tst_KeySequenceEdit::keyThatSaysNothingIsNotRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Shift") << int(Qt::Key_Shift);
    QTest::newRow("Control") << int(Qt::Key_Control);
    QTest::newRow("Meta") << int(Qt::Key_Meta);
    QTest::newRow("Alt") << int(Qt::Key_Alt);
    QTest::newRow("none") << 0;
    QTest::newRow("unknown") << int(Qt::Key_unknown);
}

void tst_KeySequenceEdit::keyThatSaysNothingIsNotRecorded()
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

void tst_KeySequenceEdit::sameKeyAgainEmitsNothing()
{
    field();
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(mField->text(), QString("Ctrl+K"));
}

void tst_KeySequenceEdit::disabledFieldRecordsNothing()
{
    field();
    mField->setEnabled(false);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_K, Qt::ControlModifier);
    QCoreApplication::sendEvent(mField, &press);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEdit::filterIsAskedAndTaken()
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

void tst_KeySequenceEdit::filterDropsTheSequence()
{
    field(QKeySequence(Qt::Key_F1));
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    mField->keySequenceFilter = [](KeySequenceEdit *, QKeySequence) { return false; };
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QCOMPARE(mField->text(), QString("F1"));
    QCOMPARE(changes.count(), 0);
}

void tst_KeySequenceEdit::filterIsNotAskedForTheSameSequence()
{
    field(QKeySequence(Qt::CTRL | Qt::Key_K));
    bool asked = false;
    mField->keySequenceFilter = [&asked](KeySequenceEdit *, QKeySequence) { return asked = true; };
    QTest::keyClick(mField, Qt::Key_K, Qt::ControlModifier);
    QVERIFY(!asked);
}

void tst_KeySequenceEdit::filterIsNotAskedByCode()
{
    field(QKeySequence(Qt::CTRL | Qt::Key_K));
    mField->keySequenceFilter = [](KeySequenceEdit *, QKeySequence) { return false; };
    mField->setKeySequence(QKeySequence(Qt::Key_F1));
    QCOMPARE(mField->text(), QString("F1"));
    mField->cleanSetting();
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEdit::filterMayReplaceItself()
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

void tst_KeySequenceEdit::filterMayDeleteTheField()
{
    QPointer<KeySequenceEdit> edit = field();
    mField->keySequenceFilter = [](KeySequenceEdit *doomed, QKeySequence) {
        delete doomed;
        return true;
    };
    QTest::keyPress(edit, Qt::Key_F1);
    QVERIFY(!edit);
}

void tst_KeySequenceEdit::loneModifierIsRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifier");
    QTest::addColumn<QString>("text");
    QTest::newRow("Shift") << int(Qt::Key_Shift) << int(Qt::ShiftModifier)
                           << QString::fromUtf8("\u21e7");
    QTest::newRow("Control") << int(Qt::Key_Control) << int(Qt::ControlModifier)
                             << QString::fromUtf8("\u2318");
    QTest::newRow("Alt") << int(Qt::Key_Alt) << int(Qt::AltModifier)
                         << QString::fromUtf8("\u2325");
    QTest::newRow("Meta") << int(Qt::Key_Meta) << int(Qt::MetaModifier)
                          << QString::fromUtf8("\u2303");
}

void tst_KeySequenceEdit::loneModifierIsRecorded()
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
    QCOMPARE(changes.at(0).at(0).value<QKeySequence>(), QKeySequence(key));
}

void tst_KeySequenceEdit::loneModifierNeedsPermission()
{
    field();
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(mField->text(), QString());
    QCOMPARE(changes.count(), 0);
}

void tst_KeySequenceEdit::loneModifierIsForgottenWithAnotherKey()
{
    field();
    mField->allowSingleModifier = true;
    QTest::keyPress(mField, Qt::Key_K, Qt::ShiftModifier); // presses Shift first
    releaseKey(mField, Qt::Key_K, Qt::ShiftModifier);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier);
    QCOMPARE(mField->text(), QString("Shift+K"));
}

void tst_KeySequenceEdit::loneModifierIsForgottenWithAnotherModifierHeld()
{
    field();
    mField->allowSingleModifier = true;
    QTest::keyPress(mField, Qt::Key_Control);
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEdit::firstOfTwoModifiersIsNotAlone()
{
    field();
    mField->allowSingleModifier = true;
    QTest::keyPress(mField, Qt::Key_Control);
    QTest::keyPress(mField, Qt::Key_Shift);
    releaseKey(mField, Qt::Key_Shift, Qt::ShiftModifier | Qt::ControlModifier);
    releaseKey(mField, Qt::Key_Control, Qt::ControlModifier);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEdit::releasedKeyThatIsNoModifierIsNotRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("letter") << int(Qt::Key_A);
    QTest::newRow("the number before Shift") << 0x0100001f;
    QTest::newRow("Caps Lock, the number after Alt") << 0x01000024;
    QTest::newRow("AltGr") << int(Qt::Key_AltGr);
    QTest::newRow("none") << 0;
}

void tst_KeySequenceEdit::releasedKeyThatIsNoModifierIsNotRecorded()
{
    QFETCH(int, key);
    field();
    mField->allowSingleModifier = true;
    // Lets releases through, but no presses.
    bool pressed = true;
    mField->keySequenceFilter = [&pressed](KeySequenceEdit *, QKeySequence) { return !pressed; };
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(mField, &press);
    pressed = false;
    releaseKey(mField, key);
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEdit::loneModifierAgainEmitsNothing()
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

void tst_KeySequenceEdit::filterIsAskedForALoneModifier()
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

void tst_KeySequenceEdit::loneModifierIsSimple()
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

void tst_KeySequenceEdit::sameSequenceFromCodeEmitsNothing()
{
    field(QKeySequence(Qt::Key_F1));
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    mField->setKeySequence(QKeySequence(Qt::Key_F1));
    QCOMPARE(changes.count(), 0);
    mField->setKeySequence(QKeySequence(Qt::Key_F2));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(mField->text(), QString("F2"));
}

void tst_KeySequenceEdit::clearButtonClears()
{
    field(QKeySequence(Qt::Key_F1));
    mField->allowSimpleHotkey = false;
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    QTRY_VERIFY(clearButton()->isVisible());
    QTest::mouseClick(clearButton(), Qt::LeftButton);
    QCOMPARE(mField->text(), QString());
    QCOMPARE(mField->keySequence(), QKeySequence());
    QVERIFY(!clearAction()->isVisible());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).value<QKeySequence>(), QKeySequence());
}

void tst_KeySequenceEdit::clearingAnEmptyFieldEmitsNothing()
{
    field();
    QSignalSpy changes(mField, &KeySequenceEdit::sigKeySequenceChanged);
    mField->cleanSetting();
    QCOMPARE(changes.count(), 0);
}

void tst_KeySequenceEdit::simpleKeysAreRefused_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("canBeSimple");
    const int keypad = Qt::KeypadModifier;
    QTest::newRow("no modifier") << 0 << true;
    QTest::newRow("keypad") << keypad << true;
    const QList<QPair<const char *, int>> modifiers = {
        {"Shift", Qt::ShiftModifier}, {"Control", Qt::ControlModifier}, {"Alt", Qt::AltModifier},
        {"Meta", Qt::MetaModifier}, {"group switch", Qt::GroupSwitchModifier}};
    for (const auto &modifier : modifiers) {
        QTest::newRow(modifier.first) << modifier.second << false;
        QTest::addRow("keypad with %s", modifier.first) << (modifier.second | keypad) << false;
    }
    QTest::newRow("Control and Shift")
        << int(Qt::ControlModifier | Qt::ShiftModifier) << false;
}

void tst_KeySequenceEdit::simpleKeysAreRefused()
{
    QFETCH(int, modifiers);
    QFETCH(bool, canBeSimple);
    QSet<int> simple;
    if (canBeSimple) {
        simple = {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backspace, Qt::Key_Return,
                  Qt::Key_Enter, Qt::Key_Insert, Qt::Key_Delete,
                  Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_PageUp,
                  Qt::Key_PageDown, Qt::Key_Shift, Qt::Key_Control, Qt::Key_Meta, Qt::Key_Alt,
                  Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock,
                  // Numbers without a name between Page Down and Shift.
                  0x01000018, 0x01000019, 0x0100001a, 0x0100001b, 0x0100001c, 0x0100001d,
                  0x0100001e, 0x0100001f};
        const QByteArray printable = " !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                     "[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~";
        for (const char character : printable)
            simple.insert(character);
    }
    QList<int> keys;
    for (int key = 0; key <= 0x7f; ++key)
        keys.append(key);
    for (int key = 0x01000000; key <= 0x01000100; ++key)
        keys.append(key);
    keys << Qt::Key_nobreakspace << Qt::Key_Adiaeresis << Qt::Key_AltGr << Qt::Key_MediaPlay
         << 0x00ffffff << Qt::Key_unknown;

    BoxWatcher boxes(clickOk);
    KeySequenceEdit edit(QKeySequence(), nullptr);
    edit.allowSimpleHotkey = false;
    for (const int key : qAsConst(keys)) {
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

void tst_KeySequenceEdit::examplesOfSimpleKeys_data()
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

void tst_KeySequenceEdit::examplesOfSimpleKeys()
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

void tst_KeySequenceEdit::simpleKeysAreTakenWhenAllowed()
{
    BoxWatcher boxes(clickOk);
    field();
    QTest::keyClick(mField, Qt::Key_A);
    QCOMPARE(mField->text(), QString("A"));
    QCOMPARE(boxes.count, 0);
}

void tst_KeySequenceEdit::severalChordsAreNeverSimple()
{
    BoxWatcher boxes(clickOk);
    field();
    mField->allowSimpleHotkey = false;
    mField->setKeySequence(QKeySequence(Qt::Key_A, Qt::Key_B));
    QCOMPARE(mField->text(), QString("A, B"));
    QCOMPARE(boxes.count, 0);
}

void tst_KeySequenceEdit::emptySequenceIsNeverSimple()
{
    BoxWatcher boxes(clickOk);
    field(QKeySequence(Qt::Key_F1));
    mField->allowSimpleHotkey = false;
    mField->setKeySequence(QKeySequence());
    QCOMPARE(mField->text(), QString());
    QCOMPARE(boxes.count, 0);
}

void tst_KeySequenceEdit::refusalIsToldInABox()
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
    QCOMPARE(text, QString(
        "Shortkey [Num 5] is too simple.\n"
        "To avoid conflicts with other functions and prevent accidental activations, please set a "
        "more complex hotkey combination.\n"
        "\n"
        "If you need to set simple shortcuts, go to the [System] Settings page and check [Allow "
        "simple global hotkeys]."));
    QCOMPARE(icon, QMessageBox::Warning);
    QVERIFY(isModal);
    QVERIFY(isChild);
    QCOMPARE(mField->text(), QString("F1"));
    QVERIFY(clearAction()->isVisible());
    QCOMPARE(changes.count(), 0);
    QTRY_VERIFY(!opened);
}

void tst_KeySequenceEdit::fieldMayGoWhileTheBoxIsOpen()
{
    QPointer<KeySequenceEdit> edit = field();
    BoxWatcher boxes([&edit](QMessageBox *) { delete edit; });
    mField->allowSimpleHotkey = false;
    QTest::keyPress(edit, Qt::Key_A);
    QCOMPARE(boxes.count, 1);
    QVERIFY(!edit);
}

void tst_KeySequenceEdit::shortcutOfTheWindowIsRecorded()
{
    field();
    auto *save = new QAction(mParent.get());
    save->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    mParent->addAction(save);
    QSignalSpy saved(save, &QAction::triggered);
    QTest::keyClick(mBefore, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(saved.count(), 1);
    QTest::keyClick(mField, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(saved.count(), 1);
    QCOMPARE(mField->text(), QString("Ctrl+S"));
}

void tst_KeySequenceEdit::dialogStaysOpenOnEscapeAndReturn()
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *edit = new KeySequenceEdit(QKeySequence(), &dialog);
    auto *button = new QPushButton("OK", &dialog);
    button->setDefault(true);
    QSignalSpy clicks(button, &QPushButton::clicked);
    layout->addWidget(edit);
    layout->addWidget(button);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QString("Esc"));
    QVERIFY(dialog.isVisible());
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(edit->text(), QString("Return"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(clicks.count(), 0);
}

void tst_KeySequenceEdit::tabLeadsOutOfTheField()
{
    field();
    QTest::keyClick(mField, Qt::Key_Tab);
    QVERIFY(mAfter->hasFocus());
    mField->setFocus();
    QTest::keyClick(mField, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(mBefore->hasFocus());
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEdit::tabWithAModifierIsRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::newRow("Control") << int(Qt::Key_Tab) << int(Qt::ControlModifier) << "Ctrl+Tab";
    QTest::newRow("Alt") << int(Qt::Key_Tab) << int(Qt::AltModifier) << "Alt+Tab";
    QTest::newRow("Meta") << int(Qt::Key_Tab) << int(Qt::MetaModifier) << "Meta+Tab";
    QTest::newRow("Control and Shift")
        << int(Qt::Key_Backtab) << int(Qt::ControlModifier | Qt::ShiftModifier) << "Ctrl+Shift+Tab";
    QTest::newRow("Meta and Shift")
        << int(Qt::Key_Backtab) << int(Qt::MetaModifier | Qt::ShiftModifier) << "Meta+Shift+Tab";
}

void tst_KeySequenceEdit::tabWithAModifierIsRecorded()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    field();
    QTest::keyClick(mField, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(mField->text(), "text");
    QVERIFY(mField->hasFocus());
}

void tst_KeySequenceEdit::tabIsRecordedWithoutAnotherPlaceForTheFocus()
{
    field();
    mBefore->setEnabled(false);
    mAfter->setEnabled(false);
    QTest::keyClick(mField, Qt::Key_Tab);
    QCOMPARE(mField->text(), QString("Tab"));
}

void tst_KeySequenceEdit::receiverMayDeleteTheField_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("a key is pressed") << "press";
    QTest::newRow("a modifier is released") << "release";
    QTest::newRow("the clear button is clicked") << "clear";
    QTest::newRow("code sets a sequence") << "code";
}

void tst_KeySequenceEdit::receiverMayDeleteTheField()
{
    QFETCH(QString, way);
    QPointer<KeySequenceEdit> edit = field(QKeySequence(Qt::Key_F1));
    edit->allowSingleModifier = true;
    connect(edit, &KeySequenceEdit::sigKeySequenceChanged, this, [&edit] { delete edit; });
    if (way == "press") {
        QTest::keyPress(edit, Qt::Key_F2);
    } else if (way == "release") {
        QTest::keyPress(edit, Qt::Key_Shift);
        releaseKey(edit, Qt::Key_Shift, Qt::ShiftModifier);
    } else if (way == "clear") {
        QTRY_VERIFY(clearButton()->isVisible());
        QTest::mouseClick(clearButton(), Qt::LeftButton);
    } else {
        edit->setKeySequence(QKeySequence(Qt::Key_F2));
    }
    QVERIFY(!edit);
    QCoreApplication::processEvents();
}

void tst_KeySequenceEdit::textsFollowTheLanguage()
{
    field();
    Prefixer translator;
    QCoreApplication::installTranslator(&translator);
    const auto remove =
        qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });
    QTRY_COMPARE(mField->placeholderText(), QString("de Press shortcut key"));
    QCOMPARE(clearAction()->toolTip(), QString("de Clear shortcut key"));

    QString text;
    BoxWatcher boxes([&text](QMessageBox *box) {
        text = box->text();
        clickOk(box);
    });
    mField->allowSimpleHotkey = false;
    QTest::keyPress(mField, Qt::Key_A);
    QVERIFY(text.startsWith("de Shortkey [A] is too simple.\n"));
}

int main(int argc, char **argv)
{
    return runTest<tst_KeySequenceEdit>(argc, argv);
}

#include "tst_KeySequenceEdit.moc"
