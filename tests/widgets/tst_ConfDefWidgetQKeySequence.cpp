#include "support/EditorFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAction>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QxtGlobalShortcut>

using MtConf::ConfDefWidgetQKeySequence;
using MtConf::ConfigItemWidget;
using MtConf::ConfItem;

namespace {

const char sRed[] = "QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                    "color: rgb(245, 108, 108);  \n}";
const char sGreen[] = "QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                      "color: rgb(103, 194, 58);  \n}";
const char sGrey[] = "QPushButton{  \nmargin:2px;\nborder:0px; font: 23pt QuorviIconfont;\n"
                     "color: rgb(120, 129, 130);  \n}";
const char sFailed[] = "Setup failed, the hotkey may be occupied. Click to try setup again.";

/// Two chords, which no system registers.
const QKeySequence &neverValid()
{
    static const QKeySequence sequence("Ctrl+K, Ctrl+L");
    return sequence;
}

/// Puts "de " before every text of the editor.
class Prefixer : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "MtConf::ConfDefWidgetQKeySequence") == 0 ? QString("de ") + text
                                                                          : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_ConfDefWidgetQKeySequence : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void partsAndOrder();
    void captionIsALabel();
    void glyphIsNotCut();
    void missingEntryIsMade();
    void withoutShortcutNothingIsStored_data();
    void withoutShortcutNothingIsStored();
    void withoutShortcutAStoredHotkeyHasNoState();
    void entryThatWasTakenAwayLeavesTheState();

    void stateIsShown_data();
    void stateIsShown();
    void registeredHotkeyIsShown();
    void enabledChangedShowsTheStateAgain();

    void recordedHotkeyIsStored();
    void shortcutHasTheHotkeyBeforeTheStore();
    void clearedHotkeyIsStored();
    void hotkeyThatTheShortcutHoldsIsNotStored();
    void refusedHotkeyIsNotStored();

    void loadingShowsTheStoredHotkey();
    void failedButtonLoadsTheStoredHotkey();
    void failedButtonWithTheShownHotkeyDoesNothing();
    void validShortcutIsNotSetAgain();

    void shortcutIsNotOwned();
    void shortcutMayBeDeletedMeanwhile();
    void shortcutMayBeDeletedAndReplacedMeanwhile();
    void shortcutMayBeReplacedMeanwhile();

    void callbackMayDeleteTheEditor_data();
    void callbackMayDeleteTheEditor();
    void enabledChangedMayDeleteTheEditor();
    void callbackMayDeleteTheShortcut();
    void toolTipFollowsTheLanguage();

private:
    void makeItem(bool withShortcut);
    void makeEditor();
    void store(const QKeySequence &sequence)
    {
        ConfStorage::instance()->set<QKeySequence>(mItem->getFullName(), sequence);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier | Qt::AltModifier)
    {
        QTest::keyPress(mField.data(), Qt::Key(key), modifiers);
    }

    std::unique_ptr<EditorFixture> mFixture;
    std::unique_ptr<ConfItem> mItem;
    std::unique_ptr<QxtGlobalShortcut> mShortcut;
    QKeySequence mValue;
    QPointer<ConfDefWidgetQKeySequence> mEditor;
    QPointer<KeySequenceEdit> mField;
    QPointer<QPushButton> mButton;
};

void tst_ConfDefWidgetQKeySequence::init()
{
    mFixture = std::make_unique<EditorFixture>();
    mValue = QKeySequence();
}

void tst_ConfDefWidgetQKeySequence::cleanup()
{
    mFixture.reset();
    mItem.reset();
    mShortcut.reset();
}

void tst_ConfDefWidgetQKeySequence::makeItem(bool withShortcut)
{
    mItem = std::make_unique<ConfItem>(&mValue, "Hotkeys", "Capture", "");
    mItem->displayText = "Capture area";
    mItem->widgetCreator = ConfDefWidgetQKeySequence::CreatConfWidget;
    if (!withShortcut)
        return;
    mShortcut = std::make_unique<QxtGlobalShortcut>();
    mItem->properties.insert("Shortcut", QVariant::fromValue(mShortcut.get()));
}

void tst_ConfDefWidgetQKeySequence::makeEditor()
{
    mEditor = mFixture->edit<ConfDefWidgetQKeySequence>(mItem.get());
    mField = mEditor->findChild<KeySequenceEdit *>();
    mButton = mEditor->findChild<QPushButton *>();
    QVERIFY(mField);
    QVERIFY(mButton);
    QVERIFY(mFixture->show());
    mField->setFocus();
}

void tst_ConfDefWidgetQKeySequence::partsAndOrder()
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

void tst_ConfDefWidgetQKeySequence::missingEntryIsMade()
{
    makeItem(false);
    {
        const LogCapture log;
        const ConfDefWidgetQKeySequence editor(mItem.get(), nullptr);
        QCOMPARE(log.messages().size(), 0);
    }
    makeEditor();
    QVERIFY(mItem->properties.contains("Shortcut"));
    QVERIFY(!mItem->properties.value("Shortcut").isValid());
    QCOMPARE(mButton->text(), QString(QChar(0xe71b)));
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    QCOMPARE(mButton->styleSheet(), QString(sRed));
    QVERIFY(!mButton->isEnabled());
}

void tst_ConfDefWidgetQKeySequence::withoutShortcutNothingIsStored_data()
{
    QTest::addColumn<QVariant>("entry");
    QTest::newRow("made by the editor") << QVariant();
    QTest::newRow("null") << QVariant::fromValue<QxtGlobalShortcut *>(nullptr);
    QTest::newRow("text") << QVariant("Ctrl+K");
    QTest::newRow("another object") << QVariant::fromValue<QObject *>(this);
}

void tst_ConfDefWidgetQKeySequence::withoutShortcutNothingIsStored()
{
    QFETCH(QVariant, entry);
    makeItem(false);
    if (entry.isValid())
        mItem->properties.insert("Shortcut", entry);
    int calls = 0;
    mItem->setConfChangedCallback([&calls](const QString &, const ConfValue *) { ++calls; });
    makeEditor();
    press(Qt::Key_K);
    QCOMPARE(mField->text(), QString("Ctrl+Alt+K"));
    QCOMPARE(mValue, QKeySequence());
    QCOMPARE(calls, 0);
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    mEditor->setHotKeyAgain();
    QCOMPARE(mField->text(), QString("Ctrl+Alt+K"));
    QCOMPARE(changedMark(mEditor), QString("0"));
}

void tst_ConfDefWidgetQKeySequence::withoutShortcutAStoredHotkeyHasNoState()
{
    makeItem(false);
    mValue = QKeySequence("Ctrl+Alt+A");
    makeEditor();
    QCOMPARE(mButton->text(), QString());
    QCOMPARE(mButton->styleSheet(), QString());
    QCOMPARE(mButton->toolTip(), QString());
    QTest::mouseClick(mButton, Qt::LeftButton);
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+A"));
    mEditor->refreshState();
    QCOMPARE(mButton->text(), QString());
}

void tst_ConfDefWidgetQKeySequence::entryThatWasTakenAwayLeavesTheState()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    QCOMPARE(mButton->toolTip(), QString(sFailed));
    mItem->properties.remove("Shortcut");
    store(QKeySequence());
    mEditor->refreshState();
    QCOMPARE(mButton->toolTip(), QString(sFailed));
    mEditor->onKeySequenceChanged(QKeySequence("F9"));
    mEditor->setHotKeyAgain();
    QCOMPARE(mValue, QKeySequence());
    QVERIFY(!mItem->properties.contains("Shortcut"));
}

void tst_ConfDefWidgetQKeySequence::stateIsShown_data()
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
    QTest::newRow("failed") << neverValid() << true << 0xe71b << sRed << sFailed << true;
    QTest::newRow("disabled") << neverValid() << false << 0xe63a << sGrey << "Disabled." << false;
}

void tst_ConfDefWidgetQKeySequence::stateIsShown()
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
    // Stored but empty comes first, whatever the shortcut says.
    store(QKeySequence());
    mEditor->refreshState();
    QCOMPARE(mButton->toolTip(), QString("Not set"));
    QCOMPARE(mButton->styleSheet(), QString(sRed));
}

void tst_ConfDefWidgetQKeySequence::enabledChangedShowsTheStateAgain()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    QCOMPARE(mButton->toolTip(), QString(sFailed));
    QVERIFY(mButton->isEnabled());
    mShortcut->setEnabled(false);
    QCOMPARE(mButton->toolTip(), QString("Disabled."));
    QVERIFY(!mButton->isEnabled());
    mShortcut->setEnabled(true);
    QCOMPARE(mButton->toolTip(), QString(sFailed));
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

void tst_ConfDefWidgetQKeySequence::shortcutHasTheHotkeyBeforeTheStore()
{
    makeItem(true);
    QKeySequence held;
    mItem->setConfChangedCallback([this, &held](const QString &, const ConfValue *) {
        held = mShortcut->shortcut();
    });
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

void tst_ConfDefWidgetQKeySequence::hotkeyThatTheShortcutHoldsIsNotStored()
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

void tst_ConfDefWidgetQKeySequence::refusedHotkeyIsNotStored()
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
    QCOMPARE(mButton->toolTip(), QString(sFailed));
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

void tst_ConfDefWidgetQKeySequence::shortcutIsNotOwned()
{
    makeItem(true);
    const QPointer<QxtGlobalShortcut> shortcut = mShortcut.get();
    makeEditor();
    delete mEditor;
    QVERIFY(shortcut);
    shortcut->setEnabled(false);
    QCOMPARE(mItem->properties.value("Shortcut").value<QxtGlobalShortcut *>(), shortcut.data());
}

void tst_ConfDefWidgetQKeySequence::shortcutMayBeDeletedMeanwhile()
{
    makeItem(true);
    mValue = neverValid();
    makeEditor();
    mShortcut.reset();
    QVERIFY(mItem->properties.contains("Shortcut"));
    QVERIFY(!mItem->properties.value("Shortcut").isValid());
    QTest::mouseClick(mButton, Qt::LeftButton);
    press(Qt::Key_K);
    mEditor->refreshState();
    mEditor->loadConf();
    QCOMPARE(mValue, neverValid());
    // The next visit of the page.
    delete mEditor;
    makeEditor();
    QCOMPARE(mField->text(), QString("Ctrl+K, Ctrl+L"));
}

void tst_ConfDefWidgetQKeySequence::shortcutMayBeDeletedAndReplacedMeanwhile()
{
    makeItem(true);
    makeEditor();
    mShortcut = std::make_unique<QxtGlobalShortcut>();
    mItem->properties.insert("Shortcut", QVariant::fromValue(mShortcut.get()));
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    mShortcut->setEnabled(false);
    QCOMPARE(mButton->toolTip(), QString("Disabled."));
    mShortcut.reset();
    press(Qt::Key_L);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
}

void tst_ConfDefWidgetQKeySequence::shortcutMayBeReplacedMeanwhile()
{
    makeItem(true);
    makeEditor();
    auto other = std::make_unique<QxtGlobalShortcut>();
    mItem->properties.insert("Shortcut", QVariant::fromValue(other.get()));
    other->setEnabled(false);
    press(Qt::Key_K);
    QCOMPARE(other->shortcut(), QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mShortcut->shortcut(), QKeySequence());
    mShortcut.reset();
    QCOMPARE(mItem->properties.value("Shortcut").value<QxtGlobalShortcut *>(), other.get());
    other.reset();
    QVERIFY(!mItem->properties.value("Shortcut").isValid());
}

void tst_ConfDefWidgetQKeySequence::callbackMayDeleteTheEditor_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("a key is pressed") << "press";
    QTest::newRow("the clear button is clicked") << "clear";
    QTest::newRow("the state button is clicked") << "state";
    QTest::newRow("the value is loaded") << "load";
}

void tst_ConfDefWidgetQKeySequence::callbackMayDeleteTheEditor()
{
    QFETCH(QString, way);
    makeItem(true);
    mValue = neverValid();
    mShortcut->setShortcut(neverValid());
    makeEditor();
    store(QKeySequence("Ctrl+M, Ctrl+N"));
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { delete mEditor; });
    if (way == "press") {
        press(Qt::Key_K);
    } else if (way == "clear") {
        auto *clear = mField->findChild<QToolButton *>();
        QTRY_VERIFY(clear->isVisible());
        QTest::mouseClick(clear, Qt::LeftButton);
    } else if (way == "state") {
        QTest::mouseClick(mButton, Qt::LeftButton);
    } else {
        mEditor->loadConf();
    }
    QVERIFY(!mEditor);
    QVERIFY(!mItem->editor);
    QCoreApplication::processEvents();
}

void tst_ConfDefWidgetQKeySequence::enabledChangedMayDeleteTheEditor()
{
    if (!QxtGlobalShortcut::isSupported())
        QSKIP("hotkeys are not registered on this platform");
    makeItem(true);
    connect(mShortcut.get(), &QxtGlobalShortcut::enabledChanged, this, [this] { delete mEditor; });
    makeEditor();
    press(Qt::Key_F9);
    QVERIFY(!mEditor);
    QCOMPARE(mValue, QKeySequence());
}

void tst_ConfDefWidgetQKeySequence::callbackMayDeleteTheShortcut()
{
    makeItem(true);
    makeEditor();
    mItem->setConfChangedCallback([this](const QString &, const ConfValue *) { mShortcut.reset(); });
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(changedMark(mEditor), QString("1"));
}

void tst_ConfDefWidgetQKeySequence::toolTipFollowsTheLanguage()
{
    makeItem(true);
    makeEditor();
    Prefixer translator;
    QCoreApplication::installTranslator(&translator);
    const auto remove =
        qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });
    QTRY_COMPARE(mButton->toolTip(), QString("de Not set"));
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
