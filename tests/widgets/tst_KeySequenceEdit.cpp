#include "KeySequenceEditFixture.h"
#include "support/TestMain.h"

#include <QPointer>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QTranslator>

namespace {

/// Translates every text of the field by prefixing it with "de ".
class Prefixer : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "KeySequenceEdit") == 0 ? QString("de ") + text : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_KeySequenceEdit : public KeySequenceEditFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { mParent.reset(); }

    void newFieldShowsItsSequence_data();
    void newFieldShowsItsSequence();
    void newFieldAcceptsSimpleKeys();
    void sequenceIsRendered_data();
    void sequenceIsRendered();

    void settingTheSameSequenceEmitsNothing();
    void clearButtonClears();
    void clearingAnEmptyFieldEmitsNothing();

    void receiverMayDeleteTheField_data();
    void receiverMayDeleteTheField();
    void textsFollowTheLanguage();
};

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

void tst_KeySequenceEdit::newFieldAcceptsSimpleKeys()
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
    QTest::newRow("the NumLock key") << QKeySequence(Qt::Key_NumLock) << "NumLock";
    QTest::newRow("four chords") << QKeySequence(Qt::Key_A, Qt::Key_Space,
                                                 int(Qt::CTRL) + Qt::Key_B, Qt::Key_Home)
                                 << "A, Space, Ctrl+B, Home";
}

void tst_KeySequenceEdit::sequenceIsRendered()
{
    QFETCH(QKeySequence, sequence);
    QTEST(KeySequenceEdit::QKeySeqToStr(sequence), "text");
}

void tst_KeySequenceEdit::settingTheSameSequenceEmitsNothing()
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
    const auto remove = qScopeGuard(
        [&translator] { QCoreApplication::removeTranslator(&translator); });
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
