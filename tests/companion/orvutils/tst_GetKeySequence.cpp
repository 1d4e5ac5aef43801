#include <OrvUtils/GetKeySequence.h>

#include "support/TestMain.h"

#include <QKeyEvent>
#include <QWidget>

namespace {

/// Records the sequence of the last key press.
class Recorder : public QWidget
{
public:
    QKeySequence sequence;

protected:
    void keyPressEvent(QKeyEvent *event) override { sequence = GetKeySequence(event); }
};

} // namespace

class tst_GetKeySequence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyEventIsConvertedToOneChord_data();
    void keyEventIsConvertedToOneChord();
    void noKeyIsEmpty_data();
    void noKeyIsEmpty();
    void nullIsEmpty();
    void typedKeyIsRecorded();
};

void tst_GetKeySequence::keyEventIsConvertedToOneChord_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("chord");
    QTest::newRow("letterAlone") << int(Qt::Key_A) << 0 << 0x41;
    QTest::newRow("control") << int(Qt::Key_A) << int(Qt::ControlModifier) << 0x04000041;
    QTest::newRow("shift") << int(Qt::Key_A) << int(Qt::ShiftModifier) << 0x02000041;
    QTest::newRow("alt") << int(Qt::Key_A) << int(Qt::AltModifier) << 0x08000041;
    QTest::newRow("meta") << int(Qt::Key_A) << int(Qt::MetaModifier) << 0x10000041;
    QTest::newRow("allTogether") << int(Qt::Key_F5)
                                 << int(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier
                                        | Qt::MetaModifier)
                                 << 0x1f000034;
    QTest::newRow("keypadModifierIsKept")
        << int(Qt::Key_5) << int(Qt::KeypadModifier) << 0x20000035;
    QTest::newRow("groupSwitchIsDropped") << int(Qt::Key_A) << int(Qt::GroupSwitchModifier) << 0x41;
    QTest::newRow("symbolIsKeptAsReported")
        << int(Qt::Key_Exclam) << int(Qt::ShiftModifier) << 0x02000021;
    QTest::newRow("shiftWithBacktabIsShiftWithTab")
        << int(Qt::Key_Backtab) << int(Qt::ShiftModifier | Qt::ControlModifier) << 0x07000001;
    QTest::newRow("backtabWithoutShiftIsKept") << int(Qt::Key_Backtab) << 0 << 0x01000002;
    QTest::newRow("shiftKeyAlone") << int(Qt::Key_Shift) << 0 << 0x01000020;
    QTest::newRow("controlKeyAlone") << int(Qt::Key_Control) << 0 << 0x01000021;
    QTest::newRow("metaKeyAlone") << int(Qt::Key_Meta) << 0 << 0x01000022;
    QTest::newRow("altKeyAlone") << int(Qt::Key_Alt) << 0 << 0x01000023;
    QTest::newRow("altKeyWithControl")
        << int(Qt::Key_Alt) << int(Qt::ControlModifier) << 0x05000023;
    QTest::newRow("letterBeyondLatin") << 0x416 << int(Qt::ControlModifier) << 0x04000416;
}

void tst_GetKeySequence::keyEventIsConvertedToOneChord()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, chord);
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    const QKeySequence sequence = GetKeySequence(&event);
    QCOMPARE(sequence.count(), 1);
    QCOMPARE(sequence[0], chord);
}

void tst_GetKeySequence::noKeyIsEmpty_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("zero") << 0;
    QTest::newRow("unknown") << int(Qt::Key_unknown);
    QTest::newRow("negative") << -1;
    QTest::newRow("beyondAllKeys") << 0x7fffffff;
}

void tst_GetKeySequence::noKeyIsEmpty()
{
    QFETCH(int, key);
    const QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier);
    QVERIFY(GetKeySequence(&event).isEmpty());
}

void tst_GetKeySequence::nullIsEmpty()
{
    QVERIFY(GetKeySequence(nullptr).isEmpty());
}

void tst_GetKeySequence::typedKeyIsRecorded()
{
    Recorder recorder;
    recorder.show();
    QVERIFY(QTest::qWaitForWindowExposed(&recorder));
    QTest::keyClick(&recorder, Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(recorder.sequence, QKeySequence(QStringLiteral("Ctrl+Shift+K")));
    QTest::keyClick(&recorder, Qt::Key_Delete);
    QCOMPARE(recorder.sequence, QKeySequence(QStringLiteral("Del")));
}

int main(int argc, char **argv)
{
    return runTest<tst_GetKeySequence>(argc, argv);
}

#include "tst_GetKeySequence.moc"
