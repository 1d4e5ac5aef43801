#include "otherLibrary/QxtGlobalShortcut.h"

#include "support/EditorFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QPushButton>

#include <memory>

// The dynamic linker prefers the functions of the program, so that the library calls these.

QKeySequence QxtGlobalShortcut::shortcut() const
{
    return mShortcut;
}

bool QxtGlobalShortcut::setShortcut(const QKeySequence &shortcut)
{
    ++mCalls;
    mShortcut = shortcut;
    return mIsValid;
}

bool QxtGlobalShortcut::isEnabled() const
{
    return true;
}

bool QxtGlobalShortcut::isValid() const
{
    return mIsValid;
}

using MtConf::ConfDefWidgetQKeySequence;

/// The hotkey editor with a library of global shortcuts that gives no reasons.
class tst_HotkeyEditorOtherLibrary : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void editorCallsTheOtherLibrary();
    void stateIsThatOfTheDocumentedMembers();
    void statusNamesTheUsualReason();
    void hostMayAskForReasons();

private:
    void makeEditor();

    std::unique_ptr<EditorFixture> mFixture;
    std::unique_ptr<MtConf::ConfItem> mItem;
    std::unique_ptr<QxtGlobalShortcut> mShortcut;
    std::unique_ptr<LogCapture> mLog;
    QKeySequence mValue;
    ConfDefWidgetQKeySequence *mEditor = nullptr;
    QPushButton *mButton = nullptr;
};

void tst_HotkeyEditorOtherLibrary::init()
{
    mFixture = std::make_unique<EditorFixture>();
    mValue = QKeySequence();
    mItem = std::make_unique<MtConf::ConfItem>(&mValue, "Hotkeys", "Capture", "");
    mItem->displayText = "Capture area";
    mItem->widgetCreator = ConfDefWidgetQKeySequence::CreatConfWidget;
    mShortcut = std::make_unique<QxtGlobalShortcut>();
    mItem->properties.insert("Shortcut", QVariant::fromValue(mShortcut.get()));
    mValue = QKeySequence("Ctrl+Alt+A");
    mShortcut->setShortcut(mValue);
    mLog = std::make_unique<LogCapture>();
}

void tst_HotkeyEditorOtherLibrary::cleanup()
{
    ConfDefWidgetQKeySequence::sTellsReasons = false;
    mFixture.reset();
    QCOMPARE(mLog->messages().size(), 0);
    mLog.reset();
    mItem.reset();
    mShortcut.reset();
}

void tst_HotkeyEditorOtherLibrary::makeEditor()
{
    mEditor = mFixture->edit<ConfDefWidgetQKeySequence>(mItem.get());
    mButton = mEditor->findChild<QPushButton *>();
}

void tst_HotkeyEditorOtherLibrary::editorCallsTheOtherLibrary()
{
    makeEditor();
    mEditor->findChild<KeySequenceEdit *>()->setKeySequence(QKeySequence("Ctrl+Alt+B"));
    QCOMPARE(mShortcut->mCalls, 2);
    QCOMPARE(mShortcut->shortcut(), QKeySequence("Ctrl+Alt+B"));
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+B"));
    QVERIFY(!mShortcut->property("description").isValid());
}

void tst_HotkeyEditorOtherLibrary::stateIsThatOfTheDocumentedMembers()
{
    makeEditor();
    QCOMPARE(mButton->toolTip(),
             QString("Setup failed, the hotkey may be occupied. Click to try setup again."));
    mShortcut->mIsValid = true;
    Q_EMIT mShortcut->enabledChanged();
    QCOMPARE(mButton->toolTip(), QString("Setup success."));
}

void tst_HotkeyEditorOtherLibrary::statusNamesTheUsualReason()
{
    makeEditor();
    const MtConf::ConfigItemWidget::Status status = mEditor->status();
    QCOMPARE(status.text, QString("Another program may use this hotkey."));
    QCOMPARE(status.actionText, QString("Try again"));
    status.action();
    QCOMPARE(mShortcut->mCalls, 2);
    mShortcut->mIsValid = true;
    QCOMPARE(mEditor->status().text, QString());
}

void tst_HotkeyEditorOtherLibrary::hostMayAskForReasons()
{
    ConfDefWidgetQKeySequence::sTellsReasons = true;
    makeEditor();
    QCOMPARE(mButton->toolTip(),
             QString("Another program may use this hotkey.\nClick to try again."));
    QTest::mouseClick(mButton, Qt::LeftButton);
    QCOMPARE(mShortcut->mCalls, 2);
    mShortcut->mIsValid = true;
    Q_EMIT mShortcut->enabledChanged();
    QCOMPARE(mButton->toolTip(), QString("Setup success."));
}

int main(int argc, char **argv)
{
    return runTest<tst_HotkeyEditorOtherLibrary>(argc, argv);
}

#include "tst_HotkeyEditorOtherLibrary.moc"
