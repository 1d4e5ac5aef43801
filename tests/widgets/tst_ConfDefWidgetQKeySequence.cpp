#include "HotkeyEditorFixture.h"
#include "support/TestMain.h"

#include <QHBoxLayout>
#include <QScopeGuard>
#include <QToolButton>
#include <QTranslator>

namespace {

const char sRed[] = "QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                    "color: rgb(245, 108, 108);  \n}";
const char sGreen[] = "QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                      "color: rgb(103, 194, 58);  \n}";
const char sGrey[] = "QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                     "color: rgb(120, 129, 130);  \n}";

/// Translates every text of the editor and the host by prefixing it with "de ".
class Prefixer : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool known = qstrcmp(context, "MtConf::ConfDefWidgetQKeySequence") == 0
                           || qstrcmp(context, "QObject") == 0;
        return known ? QString("de ") + text : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_ConfDefWidgetQKeySequence : public HotkeyEditorFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { clear(); }

    void controlsAreInOrder();
    void captionIsALabel();
    void glyphIsNotCut();

    void stateButtonShowsTheState_data();
    void stateButtonShowsTheState();
    void registeredHotkeyIsShown();
    void enabledChangedUpdatesTheState();

    void recordedHotkeyIsStored();
    void shortcutIsSetBeforeTheStore();
    void clearedHotkeyIsStored();
    void hotkeyThatTheShortcutAlreadyHasIsNotStored();
    void hotkeyRejectedByTheFilterIsNotStored();

    void loadingShowsTheStoredHotkey();
    void failedButtonLoadsTheStoredHotkey();
    void failedButtonWithTheShownHotkeyDoesNothing();
    void validShortcutIsNotSetAgain();
    void toolTipAndNameFollowTheLanguage();
};

void tst_ConfDefWidgetQKeySequence::controlsAreInOrder()
{
    makeItem(true);
    mValue = QKeySequence("Ctrl+Alt+A");
    makeEditor();
    const auto *layout = qobject_cast<QHBoxLayout *>(mEditor->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), mField.data());
    QCOMPARE(layout->itemAt(1)->widget(), mButton.data());
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
    }
    QCOMPARE(mField->text(), QString("Ctrl+Alt+A"));
    QVERIFY(mField->allowSimpleHotkey);
    QVERIFY(!mField->allowSingleModifier);
    QVERIFY(mField->nextInFocusChain() == mButton
            || mField->nextInFocusChain()->nextInFocusChain() == mButton);
}

void tst_ConfDefWidgetQKeySequence::captionIsALabel()
{
    makeItem(true);
    makeEditor();
    QCOMPARE(mEditor->label()->property("text"), QVariant("Capture area"));
    QCOMPARE(changedMark(mEditor), QString("0"));
    QCOMPARE(mField->accessibleName(), QString("Capture area"));
}

void tst_ConfDefWidgetQKeySequence::glyphIsNotCut()
{
    mFixture->parent.setStyleSheet("QPushButton { min-height: 1px; padding: 4px; }");
    makeItem(true);
    makeEditor();
    mFixture->parent.resize(mFixture->parent.width(), 1);
    QTRY_VERIFY(mFixture->parent.height() <= mFixture->layout->minimumSize().height());
    QCoreApplication::processEvents();
    QVERIFY(mButton->height() >= mButton->sizeHint().height());
}

void tst_ConfDefWidgetQKeySequence::stateButtonShowsTheState_data()
{
    QTest::addColumn<QKeySequence>("stored");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("glyph");
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<bool>("clickable");
    QTest::newRow("not set") << QKeySequence() << true << 0xe71b << sRed << "Not set" << false;
    QTest::newRow("not set and disabled")
        << QKeySequence() << false << 0xe71b << sRed << "Not set" << false;
    QTest::newRow("failed") << neverValid() << true << 0xe71b << sRed << failedToolTip() << true;
    QTest::newRow("disabled") << neverValid() << false << 0xe63a << sGrey << "Disabled." << false;
}

void tst_ConfDefWidgetQKeySequence::stateButtonShowsTheState()
{
    QFETCH(QKeySequence, stored);
    QFETCH(bool, enabled);
    QFETCH(int, glyph);
    makeItem(true);
    mValue = stored;
    mShortcut->setShortcut(stored);
    mShortcut->setEnabled(enabled);
    makeEditor();
    QCOMPARE(mButton->text(), QString(QChar(glyph)));
    QTEST(mButton->styleSheet(), "styleSheet");
    QTEST(mButton->toolTip(), "toolTip");
    QTEST(mButton->accessibleName(), "toolTip");
    QTEST(mButton->isEnabled(), "clickable");
}

void tst_ConfDefWidgetQKeySequence::registeredHotkeyIsShown()
{
    if (!QxtGlobalShortcut::isSupported())
        QSKIP("hotkeys are not registered on this platform");
    makeItem(true);
    mShortcut->setEnabled(false);
    makeEditor();
    press(Qt::Key_F9);
    QCOMPARE(mButton->toolTip(), QString("Disabled."));
    mShortcut->setEnabled(true);
    QVERIFY(mShortcut->isValid());
    QCOMPARE(mButton->text(), QString(QChar(0xe725)));
    QCOMPARE(mButton->styleSheet(), QString(sGreen));
    QCOMPARE(mButton->toolTip(), QString("Setup success."));
    QVERIFY(!mButton->isEnabled());
    // An empty stored hotkey takes precedence over the state of the shortcut.
    store(QKeySequence());
    mEditor->refreshState();
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    QCOMPARE(mButton->styleSheet(), QString(sRed));
}

void tst_ConfDefWidgetQKeySequence::enabledChangedUpdatesTheState()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    QCOMPARE(mButton->toolTip(), failedToolTip());
    QVERIFY(mButton->isEnabled());
    mShortcut->setEnabled(false);
    QCOMPARE(mButton->toolTip(), QString("Disabled."));
    QVERIFY(!mButton->isEnabled());
    mShortcut->setEnabled(true);
    QCOMPARE(mButton->toolTip(), failedToolTip());
    QVERIFY(mButton->isEnabled());
}

void tst_ConfDefWidgetQKeySequence::recordedHotkeyIsStored()
{
    makeItem(true);
    mShortcut->setEnabled(false);
    makeEditor();
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mShortcut->shortcut(), QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mField->text(), QString("Ctrl+Alt+K"));
    QCOMPARE(changedMark(mEditor), QString("1"));
    QCOMPARE(mButton->toolTip(), QString("Disabled."));
}

void tst_ConfDefWidgetQKeySequence::shortcutIsSetBeforeTheStore()
{
    makeItem(true);
    QKeySequence held;
    mItem->setConfChangedCallback(
        [this, &held](const QString &, const ConfValue *) { held = mShortcut->shortcut(); });
    makeEditor();
    press(Qt::Key_K);
    QCOMPARE(held, QKeySequence("Ctrl+Alt+K"));
}

void tst_ConfDefWidgetQKeySequence::clearedHotkeyIsStored()
{
    makeItem(true);
    mValue = neverValid();
    mShortcut->setShortcut(neverValid());
    makeEditor();
    mEditor->label();
    auto *clear = mField->findChild<QToolButton *>();
    QTRY_VERIFY(clear->isVisible());
    QTest::mouseClick(clear, Qt::LeftButton);
    QCOMPARE(mValue, QKeySequence());
    QCOMPARE(mShortcut->shortcut(), QKeySequence());
    QCOMPARE(mButton->toolTip(), QString("Not set"));
}

void tst_ConfDefWidgetQKeySequence::hotkeyThatTheShortcutAlreadyHasIsNotStored()
{
    makeItem(true);
    mShortcut->setEnabled(false);
    mShortcut->setShortcut(QKeySequence("Ctrl+Alt+K"));
    makeEditor();
    press(Qt::Key_K);
    QCOMPARE(mField->text(), QString("Ctrl+Alt+K"));
    QCOMPARE(mValue, QKeySequence());
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetQKeySequence::hotkeyRejectedByTheFilterIsNotStored()
{
    makeItem(true);
    makeEditor();
    mField->keySequenceFilter = [](KeySequenceEdit *, QKeySequence) { return false; };
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence());
    QCOMPARE(mShortcut->shortcut(), QKeySequence());
}

void tst_ConfDefWidgetQKeySequence::loadingShowsTheStoredHotkey()
{
    makeItem(true);
    mShortcut->setEnabled(false);
    makeEditor();
    store(QKeySequence("Ctrl+Alt+K"));
    mEditor->loadConf();
    QCOMPARE(mField->text(), QString("Ctrl+Alt+K"));
    QCOMPARE(mShortcut->shortcut(), QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mButton->toolTip(), QString("Disabled."));
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetQKeySequence::failedButtonLoadsTheStoredHotkey()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    store(QKeySequence("Ctrl+M, Ctrl+N"));
    QTest::mouseClick(mButton, Qt::LeftButton);
    QCOMPARE(mField->text(), QString("Ctrl+M, Ctrl+N"));
    QCOMPARE(mShortcut->shortcut(), QKeySequence("Ctrl+M, Ctrl+N"));
}

void tst_ConfDefWidgetQKeySequence::failedButtonWithTheShownHotkeyDoesNothing()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    int calls = 0;
    mItem->setConfChangedCallback([&calls](const QString &, const ConfValue *) { ++calls; });
    QTest::mouseClick(mButton, Qt::LeftButton);
    QCOMPARE(calls, 0);
    QCOMPARE(mShortcut->shortcut(), QKeySequence());
    QCOMPARE(mButton->toolTip(), failedToolTip());
}

void tst_ConfDefWidgetQKeySequence::validShortcutIsNotSetAgain()
{
    if (!QxtGlobalShortcut::isSupported())
        QSKIP("hotkeys are not registered on this platform");
    makeItem(true);
    mValue = QKeySequence("Ctrl+Alt+F9");
    QVERIFY(mShortcut->setShortcut(mValue));
    makeEditor();
    store(QKeySequence("Ctrl+Alt+F10"));
    mEditor->setHotKeyAgain();
    QCOMPARE(mField->text(), QString("Ctrl+Alt+F9"));
    QCOMPARE(mShortcut->shortcut(), QKeySequence("Ctrl+Alt+F9"));
}

void tst_ConfDefWidgetQKeySequence::toolTipAndNameFollowTheLanguage()
{
    makeItem(true);
    makeEditor();
    Prefixer translator;
    QCoreApplication::installTranslator(&translator);
    const auto remove = qScopeGuard(
        [&translator] { QCoreApplication::removeTranslator(&translator); });
    QTRY_COMPARE(mButton->toolTip(), QString("de Not set"));
    QCOMPARE(mField->accessibleName(), QString("de Capture area"));
    mShortcut->setEnabled(false);
    store(neverValid());
    mEditor->refreshState();
    QCOMPARE(mButton->toolTip(), QString("de Disabled."));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetQKeySequence>(argc, argv);
}

#include "tst_ConfDefWidgetQKeySequence.moc"
