#include "support/TableTranslator.h"
#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <MaltoConfiguration/inputs/InputRegistry.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAction>
#include <QComboBox>
#include <QFrame>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QxtGlobalShortcut>

#include <functional>

using MtConf::ConfItem;

namespace {

constexpr auto sReplace = "Replace";
constexpr auto sSwap = "Swap";
constexpr auto sKeepBoth = "Keep both";
constexpr auto sCancel = "Cancel";

int combined(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    return static_cast<int>(modifiers) | static_cast<int>(key);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

/// Keys and gestures that are used twice, in the settings window, with real keys and clicks.
class tst_InputConflicts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void usedKeysAreNotStoredBeforeTheAnswer();
    void answerOfKeys_data();
    void answerOfKeys();
    void answerIsOneStepOfTheHistory_data();
    void answerIsOneStepOfTheHistory();
    void answerWithTheKeyboard_data();
    void answerWithTheKeyboard();
    void answerOfAShortcut();
    void hotkeyOfAnotherPageIsRegisteredAgain();
    void answerOfAGesture_data();
    void answerOfAGesture();
    void gestureOfAnotherPageIsAsked();
    void freeKeysAreStoredAtOnce();
    void nextKeysReplaceTheQuestion();
    void nothingToSwapWithAnEmptyValue();
    void actionOfTheHostCannotBeReplaced();
    void settingThatIsLockedCannotBeReplaced();
    void validatorOfTheOtherIsAsked();
    void validatorOfTheRowIsAsked();
    void severalUsersAreReplacedTogether();
    void filterOfTheHostIsAskedFirst();
    void bothRowsTellTheConflict();
    void rowsFollowTheStore_data();
    void rowsFollowTheStore();
    void rowsFollowTheActions();
    void typedKeysAreAdvisedAgainst_data();
    void typedKeysAreAdvisedAgainst();
    void questionIsWithdrawn_data();
    void questionIsWithdrawn();
    void questionFollowsTheLanguage();
    void questionIsToldToScreenReaders();
    void narrowWindowHasTheButtonsBelowEachOther();
    void callbackMayDestroyEverything_data();
    void callbackMayDestroyEverything();
    void clearedStoreIsSurvived();
    void registryOfTheHostIsUsed();
    void windowWithoutTheBitAsksNothing();

private:
    void open(const QString &page = "Keys")
    {
        QVERIFY(mFixture->open(page));
        WindowFixture::window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(WindowFixture::window()));
    }
    ConfItem *addHotkey(const char *name, QKeySequence *keys, QxtGlobalShortcut *shortcut,
                        const char *page = "Keys")
    {
        shortcut->setShortcut(*keys);
        ConfItem *const item = mFixture->manager->addConfQKeySequence(name, keys, page, name);
        item->properties["Shortcut"] = QVariant::fromValue(shortcut);
        return item;
    }
    static KeySequenceEdit *recorder(const ConfItem *item)
    {
        return item->editor->findChild<KeySequenceEdit *>();
    }
    static void record(const ConfItem *item, Qt::Key key)
    {
        recorder(item)->setFocus();
        QTest::keyClick(recorder(item), key, Qt::ControlModifier);
    }
    static QWidget *offer()
    {
        const QList<QFrame *> frames = WindowFixture::window()->findChildren<QFrame *>();
        for (QFrame *frame : frames) {
            if (frame->property("class") == "InputOffer" && !frame->isHidden())
                return frame;
        }
        return nullptr;
    }
    static QString question()
    {
        return offer() ? offer()->findChild<QLabel *>()->text() : QString();
    }
    static QPushButton *button(const QString &text)
    {
        const QList<QPushButton *> buttons = offer() ? offer()->findChildren<QPushButton *>()
                                                     : QList<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == text && !button->isHidden())
                return button;
        }
        return nullptr;
    }
    static QStringList offered()
    {
        QStringList texts;
        for (const char *text : {sReplace, sSwap, sKeepBoth, sCancel}) {
            if (button(text))
                texts.append(text);
        }
        return texts;
    }
    static void answer(const QString &text)
    {
        QCoreApplication::processEvents(); // the layout
        QTest::mouseClick(button(text), Qt::LeftButton);
    }
    /// Returns the notes about keys on the page, by row.
    static QStringList notes()
    {
        QStringList texts;
        const QList<QLabel *> labels = WindowFixture::window()->findChildren<QLabel *>("InputNote");
        for (const QLabel *label : labels) {
            if (!label->isHidden())
                texts.append(label->text());
        }
        texts.sort();
        return texts;
    }
    static QComboBox *actions(const ConfItem *item)
    {
        return item->editor->findChildren<QComboBox *>().last();
    }
    static void choose(const ConfItem *item, int gesture)
    {
        actions(item)->setCurrentIndex(actions(item)->findData(gesture));
    }
    static void undo(QKeySequence::StandardKey key = QKeySequence::Undo)
    {
        const QList<QAction *> all = WindowFixture::window()->findChildren<QAction *>();
        for (QAction *action : all) {
            if (action->objectName() == (key == QKeySequence::Undo ? "Undo" : "Redo"))
                action->trigger();
        }
    }

    std::unique_ptr<WindowFixture> mFixture;
    std::unique_ptr<QMainWindow> mHost;
    ConfItem *mArea = nullptr;
    ConfItem *mWindow = nullptr;
    ConfItem *mSave = nullptr;
    ConfItem *mPan = nullptr;
    ConfItem *mZoom = nullptr;
    QKeySequence mAreaKeys;
    QKeySequence mWindowKeys;
    QKeySequence mSaveKeys;
    QKeySequence mFarKeys;
    int mPanValue = 0;
    int mZoomValue = 0;
    int mFarValue = 0;
    QxtGlobalShortcut mAreaShortcut;
    QxtGlobalShortcut mWindowShortcut;
    QxtGlobalShortcut mFarShortcut;
};

void tst_InputConflicts::initTestCase_data()
{
    QTest::addColumn<quint32>("features");
    QTest::addColumn<bool>("isModern");
    QTest::newRow("classic look") << quint32(MtConf::InputConflictsFeature | MtConf::UndoFeature)
                                  << false;
    QTest::newRow("modern look, all features") << quint32(MtConf::AllWindowFeatures) << true;
}

void tst_InputConflicts::init()
{
    mAreaKeys = QKeySequence("Ctrl+K");
    mWindowKeys = QKeySequence("Ctrl+L");
    mSaveKeys = QKeySequence("Ctrl+S");
    mFarKeys = QKeySequence("Ctrl+F");
    mPanValue = 4;  // right click
    mZoomValue = 2; // left double click
    mFarValue = 16; // middle click
    mFixture = std::make_unique<WindowFixture>();
    auto &manager = *mFixture->manager;
    QFETCH_GLOBAL(const quint32, features);
    QFETCH_GLOBAL(const bool, isModern);
    manager.windowFeatures = features;
    manager.windowLook = isModern ? MtConf::ModernLook : MtConf::ClassicLook;
    mHost = std::make_unique<QMainWindow>();
    auto *const save = new QAction("Save", mHost.get());
    mHost->addAction(save);
    mArea = addHotkey("Area", &mAreaKeys, &mAreaShortcut);
    mWindow = addHotkey("Window", &mWindowKeys, &mWindowShortcut);
    mSave = manager.addConfShortcut("Save", &mSaveKeys, save, "Keys", "Save");
    manager.addConfMouseAction("Pan", &mPanValue, 1, "Mouse", "Pan");
    manager.addConfMouseAction("Zoom", &mZoomValue, 1, "Mouse", "Zoom");
    mPan = manager.getItemByName("Mouse", "Pan", "");
    mZoom = manager.getItemByName("Mouse", "Zoom", "");
    addHotkey("Far", &mFarKeys, &mFarShortcut, "Far");
    manager.addConfMouseAction("Distant", &mFarValue, 1, "Far", "Distant");
}

void tst_InputConflicts::cleanup()
{
    mFixture.reset();
    mHost.reset();
}

void tst_InputConflicts::usedKeysAreNotStoredBeforeTheAnswer()
{
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(question(), QString("Ctrl+K is used by: Area"));
    QCOMPARE(offered(), (QStringList{sReplace, sSwap, sKeepBoth, sCancel}));
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+L"));
    QCOMPARE(recorder(mWindow)->keySequence(), QKeySequence("Ctrl+L"));
    QVERIFY(recorder(mWindow)->hasFocus());
}

void tst_InputConflicts::answerOfKeys_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("area");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("replace") << sReplace << ""
                             << "Ctrl+K" << QStringList();
    QTest::newRow("swap") << sSwap << "Ctrl+L"
                          << "Ctrl+K" << QStringList();
    QTest::newRow("keep both") << sKeepBoth << "Ctrl+K"
                               << "Ctrl+K"
                               << QStringList{"Also used by: Area", "Also used by: Window"};
    QTest::newRow("cancel") << sCancel << "Ctrl+K"
                            << "Ctrl+L" << QStringList();
}

void tst_InputConflicts::answerOfKeys()
{
    QFETCH(const QString, text);
    QFETCH(const QString, area);
    QFETCH(const QString, window);
    QFETCH(const QStringList, told);
    open();
    record(mWindow, Qt::Key_K);
    answer(text);
    QVERIFY(!offer());
    QCOMPARE(mAreaKeys, QKeySequence(area));
    QCOMPARE(mWindowKeys, QKeySequence(window));
    QCOMPARE(mAreaShortcut.shortcut(), QKeySequence(area));
    QCOMPARE(mWindowShortcut.shortcut(), QKeySequence(window));
    QCOMPARE(recorder(mArea)->keySequence(), QKeySequence(area));
    QCOMPARE(recorder(mWindow)->keySequence(), QKeySequence(window));
    QTRY_COMPARE(notes(), told);
    QVERIFY(recorder(mWindow)->hasFocus());
    if (text == sReplace) {
        const auto *const state = mArea->editor->findChild<QPushButton *>();
        QCOMPARE(state->toolTip(), QString("Not set"));
    }
}

void tst_InputConflicts::answerIsOneStepOfTheHistory_data()
{
    answerOfKeys_data();
}

void tst_InputConflicts::answerIsOneStepOfTheHistory()
{
    QFETCH(const QString, text);
    QFETCH(const QString, area);
    QFETCH(const QString, window);
    open();
    record(mWindow, Qt::Key_P);
    record(mWindow, Qt::Key_L);
    record(mWindow, Qt::Key_K);
    answer(text);
    if (text != sCancel) {
        undo();
        QCOMPARE(mAreaKeys, QKeySequence("Ctrl+K"));
        QCOMPARE(mWindowKeys, QKeySequence("Ctrl+L"));
        QCOMPARE(mAreaShortcut.shortcut(), QKeySequence("Ctrl+K"));
        QCOMPARE(recorder(mArea)->keySequence(), QKeySequence("Ctrl+K"));
        undo(QKeySequence::Redo);
        QCOMPARE(mAreaKeys, QKeySequence(area));
        QCOMPARE(mWindowKeys, QKeySequence(window));
        QCOMPARE(mAreaShortcut.shortcut(), QKeySequence(area));
        undo();
    }
    undo(); // what was before the question
    QCOMPARE(mAreaKeys, QKeySequence("Ctrl+K"));
    QVERIFY(mWindowKeys != QKeySequence("Ctrl+K"));
}

void tst_InputConflicts::answerWithTheKeyboard_data()
{
    QTest::addColumn<int>("tabs");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("area");
    QTest::addColumn<QString>("window");
    QTest::newRow("replace") << 1 << Qt::Key_Space << ""
                             << "Ctrl+K";
    QTest::newRow("swap") << 2 << Qt::Key_Return << "Ctrl+L"
                          << "Ctrl+K";
    QTest::newRow("keep both") << 3 << Qt::Key_Space << "Ctrl+K"
                               << "Ctrl+K";
    QTest::newRow("cancel") << 4 << Qt::Key_Space << "Ctrl+K"
                            << "Ctrl+L";
    QTest::newRow("escape") << 2 << Qt::Key_Escape << "Ctrl+K"
                            << "Ctrl+L";
}

void tst_InputConflicts::answerWithTheKeyboard()
{
    QFETCH(const int, tabs);
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, area);
    QFETCH(const QString, window);
    open();
    record(mWindow, Qt::Key_K);
    for (int i = 0; i < tabs; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(offer()->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), key);
    QVERIFY(!offer());
    QVERIFY(WindowFixture::window()->isVisible());
    QCOMPARE(mAreaKeys, QKeySequence(area));
    QCOMPARE(mWindowKeys, QKeySequence(window));
    QVERIFY(recorder(mWindow)->hasFocus());
}

void tst_InputConflicts::answerOfAShortcut()
{
    open();
    record(mSave, Qt::Key_K);
    QCOMPARE(question(), QString("Ctrl+K is used by: Area"));
    answer(sSwap);
    QCOMPARE(mSaveKeys, QKeySequence("Ctrl+K"));
    QCOMPARE(mHost->actions().first()->shortcut(), QKeySequence("Ctrl+K"));
    QCOMPARE(mAreaKeys, QKeySequence("Ctrl+S"));
    QCOMPARE(mAreaShortcut.shortcut(), QKeySequence("Ctrl+S"));
}

void tst_InputConflicts::hotkeyOfAnotherPageIsRegisteredAgain()
{
    open();
    record(mWindow, Qt::Key_F);
    QCOMPARE(question(), QString("Ctrl+F is used by: Far"));
    answer(sSwap);
    QCOMPARE(mFarKeys, QKeySequence("Ctrl+L"));
    QCOMPARE(mFarShortcut.shortcut(), QKeySequence("Ctrl+L"));
    undo();
    QCOMPARE(mFarShortcut.shortcut(), QKeySequence("Ctrl+F"));
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+L"));
}

void tst_InputConflicts::answerOfAGesture_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("pan");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("shown");
    QTest::newRow("replace") << sReplace << 0 << 8 << 8;
    QTest::newRow("swap") << sSwap << 2 << 8 << 8;
    QTest::newRow("keep both") << sKeepBoth << 4 << 8 << 8;
    QTest::newRow("cancel") << sCancel << 4 << 2 << 2;
}

void tst_InputConflicts::answerOfAGesture()
{
    QFETCH(const QString, text);
    QFETCH(const int, pan);
    QFETCH(const int, zoom);
    QFETCH(const int, shown);
    open("Mouse");
    choose(mZoom, 8); // right double click
    QCOMPARE(question(), QString("Right Double Click is used by: Pan"));
    QCOMPARE(mZoomValue, 2);
    answer(text);
    QVERIFY(!offer());
    QCOMPARE(mPanValue, pan);
    QCOMPARE(mZoomValue, zoom);
    QCOMPARE(actions(mZoom)->currentData().toInt(), shown);
    QCOMPARE(actions(mPan)->currentData().toInt(), pan);
    QCoreApplication::processEvents();
    const QString conflict = text == sKeepBoth ? "Conflict with Zoom" : "";
    QCOMPARE(mPan->editor->status().text, conflict);
    if (text == sCancel)
        return;
    undo();
    QCOMPARE(mPanValue, 4);
    QCOMPARE(mZoomValue, 2);
    undo(QKeySequence::Redo);
    QCOMPARE(mPanValue, pan);
    QCOMPARE(mZoomValue, zoom);
}

void tst_InputConflicts::gestureOfAnotherPageIsAsked()
{
    open("Mouse");
    choose(mZoom, 32);
    QCOMPARE(question(), QString("Middle Double Click is used by: Distant"));
    answer(sKeepBoth);
    QCOMPARE(mZoom->editor->status().text, QString("Conflict with Distant"));
    WindowFixture::window()->switchToView("Far");
    const ConfItem *const distant = mFixture->manager->getItemByName("Far", "Distant", "");
    QCOMPARE(distant->editor->status().text, QString("Conflict with Zoom"));
}

void tst_InputConflicts::freeKeysAreStoredAtOnce()
{
    open();
    record(mWindow, Qt::Key_M);
    QVERIFY(!offer());
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+M"));
}

void tst_InputConflicts::nextKeysReplaceTheQuestion()
{
    open();
    record(mWindow, Qt::Key_K);
    record(mWindow, Qt::Key_S);
    QCOMPARE(question(), QString("Ctrl+S is used by: Save"));
    record(mSave, Qt::Key_F);
    QCOMPARE(question(), QString("Ctrl+F is used by: Far"));
    record(mSave, Qt::Key_M);
    QVERIFY(!offer());
    QCOMPARE(mSaveKeys, QKeySequence("Ctrl+M"));
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+L"));
}

void tst_InputConflicts::nothingToSwapWithAnEmptyValue()
{
    mWindowKeys = QKeySequence();
    mWindowShortcut.setShortcut(QKeySequence());
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(offered(), (QStringList{sReplace, sKeepBoth, sCancel}));
}

void tst_InputConflicts::actionOfTheHostCannotBeReplaced()
{
    auto *const action = new QAction("&Open…", mHost.get());
    action->setShortcut(QKeySequence("Ctrl+O"));
    mHost->addAction(action);
    (new MtConf::InputRegistry(mFixture->manager.get()))->addActions(mHost.get());
    open();
    record(mWindow, Qt::Key_O);
    QCOMPARE(question(), QString("Ctrl+O is used by: Open"));
    QCOMPARE(offered(), (QStringList{sKeepBoth, sCancel}));
    answer(sKeepBoth);
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+O"));
    QTRY_COMPARE(notes(), QStringList{"Also used by: Open"});
}

void tst_InputConflicts::settingThatIsLockedCannotBeReplaced()
{
    mFixture->store()->mFileOptions |= ConfStorage::LockedValues;
    QFile file("locked.json");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"Keys.Area": {"value": "Ctrl+K", "locked": true}})");
    file.close();
    mFixture->manager->loadFromFile(file.fileName());
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(offered(), (QStringList{sKeepBoth, sCancel}));
}

void tst_InputConflicts::validatorOfTheOtherIsAsked()
{
    mArea->setValidator([](const QJsonValue &value) {
        return value.toString().isEmpty() ? QString("needed") : QString();
    });
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(offered(), (QStringList{sSwap, sKeepBoth, sCancel}));
}

void tst_InputConflicts::validatorOfTheRowIsAsked()
{
    mSave->setValidator([](const QJsonValue &value) {
        return value.toString() == "Ctrl+K" ? QString("not this one") : QString();
    });
    open();
    record(mSave, Qt::Key_K);
    answer(sReplace);
    QCOMPARE(mSaveKeys, QKeySequence("Ctrl+S"));
    QCOMPARE(mAreaKeys, QKeySequence("Ctrl+K"));
    QCOMPARE(mSave->editor->messageLabel()->text(), QString("not this one"));
}

void tst_InputConflicts::severalUsersAreReplacedTogether()
{
    mFixture->store()->set("Keys.Save", QKeySequence("Ctrl+K"));
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(question(), QString("Ctrl+K is used by: Area, Save"));
    QCOMPARE(offered(), (QStringList{sReplace, sKeepBoth, sCancel}));
    answer(sReplace);
    QVERIFY(mAreaKeys.isEmpty());
    QVERIFY(mSaveKeys.isEmpty());
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+K"));
    undo();
    QCOMPARE(mAreaKeys, QKeySequence("Ctrl+K"));
    QCOMPARE(mSaveKeys, QKeySequence("Ctrl+K"));
}

void tst_InputConflicts::filterOfTheHostIsAskedFirst()
{
    QStringList asked;
    const auto creator = mWindow->widgetCreator;
    mWindow->widgetCreator = [&asked, creator](ConfItem *item, QWidget *parent) {
        auto *const editor = creator(item, parent);
        editor->findChild<KeySequenceEdit *>()->keySequenceFilter =
            [&asked](KeySequenceEdit *, const QKeySequence &keys) {
                asked.append(keys.toString());
                return keys != QKeySequence("Ctrl+S");
            };
        return editor;
    };
    open();
    record(mWindow, Qt::Key_S);
    QVERIFY(!offer());
    record(mWindow, Qt::Key_K);
    QCOMPARE(question(), QString("Ctrl+K is used by: Area"));
    record(mWindow, Qt::Key_S); // an answer, too
    QVERIFY(!offer());
    QCOMPARE(asked, (QStringList{"Ctrl+S", "Ctrl+K", "Ctrl+S"}));
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+L"));
}

void tst_InputConflicts::bothRowsTellTheConflict()
{
    mSaveKeys = QKeySequence("Ctrl+K");
    mFarKeys = QKeySequence("Ctrl+L");
    mZoomValue = 8;
    open();
    QCOMPARE(notes(),
             (QStringList{"Also used by: Area", "Also used by: Far", "Also used by: Save"}));
    WindowFixture::window()->switchToView("Mouse");
    QVERIFY(notes().isEmpty());
    QCOMPARE(mPan->editor->status().text, QString("Conflict with Zoom"));
    QCOMPARE(mZoom->editor->status().text, QString("Conflict with Pan"));
    QCOMPARE(mPan->editor->status().icon->toolTip(), QString("Conflict with Zoom"));
}

void tst_InputConflicts::rowsFollowTheStore_data()
{
    QTest::addColumn<std::function<void()>>("change");
    QTest::addColumn<bool>("isConflict");
    ConfStorage *const store = ConfStorage::instance();
    QTest::newRow("set") << std::function<void()>([store] {
        store->set("Keys.Save", QKeySequence("Ctrl+K"));
    }) << true;
    QTest::newRow("load") << std::function<void()>([store] {
        const QJsonObject entry{{"v", "Ctrl+K"}, {"t", QDateTime::currentSecsSinceEpoch() + 5}};
        store->loadConf(QJsonObject{{"Keys.Save", entry}}, ConfStorage::LoadShared);
    }) << true;
    QTest::newRow("restored") << std::function<void()>([store] {
        store->set("Keys.Save", QKeySequence("Ctrl+K"));
        store->setToDefault("Keys.Save", true);
    }) << false;
}

void tst_InputConflicts::rowsFollowTheStore()
{
    QFETCH(const std::function<void()>, change);
    QFETCH(const bool, isConflict);
    open();
    QVERIFY(notes().isEmpty());
    change();
    const QStringList both{"Also used by: Area", "Also used by: Save"};
    QTRY_COMPARE(notes(), isConflict ? both : QStringList());
    mFixture->store()->set("Keys.Area", QKeySequence("Ctrl+M"));
    QTRY_COMPARE(notes(), QStringList());
}

void tst_InputConflicts::rowsFollowTheActions()
{
    auto *const action = new QAction("Open", mHost.get());
    mHost->addAction(action);
    (new MtConf::InputRegistry(mFixture->manager.get()))->addActions(mHost.get());
    open();
    action->setShortcut(QKeySequence("Ctrl+K"));
    QTRY_COMPARE(notes(), QStringList{"Also used by: Open"});
    delete action;
    QTRY_COMPARE(notes(), QStringList());
}

void tst_InputConflicts::typedKeysAreAdvisedAgainst_data()
{
    QTest::addColumn<bool>("isGlobal");
    QTest::addColumn<int>("keys");
    QTest::addColumn<bool>("isAdvisedAgainst");
    QTest::newRow("Shift and a letter") << true << combined(Qt::ShiftModifier, Qt::Key_E) << true;
    QTest::newRow("a letter") << true << int(Qt::Key_E) << true;
    QTest::newRow("a letter of another script") << true << 0x0436 << true;
    QTest::newRow("copy") << true << combined(Qt::ControlModifier, Qt::Key_C) << true;
    QTest::newRow("paste") << true << combined(Qt::ControlModifier, Qt::Key_V) << true;
    QTest::newRow("Shift and copy")
        << true << combined(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_C) << false;
    QTest::newRow("other letter") << true << combined(Qt::ControlModifier, Qt::Key_E) << false;
    QTest::newRow("function key") << true << int(Qt::Key_F5) << false;
    QTest::newRow("Shift and a function key")
        << true << combined(Qt::ShiftModifier, Qt::Key_F5) << false;
    QTest::newRow("quit in the program")
        << false << combined(Qt::ControlModifier, Qt::Key_Q) << false;
    QTest::newRow("Shift and a letter in the program")
        << false << combined(Qt::ShiftModifier, Qt::Key_E) << true;
}

void tst_InputConflicts::typedKeysAreAdvisedAgainst()
{
    QFETCH(const bool, isGlobal);
    QFETCH(const int, keys);
    QFETCH(const bool, isAdvisedAgainst);
    open();
    KeySequenceEdit *const field = recorder(isGlobal ? mArea : mSave);
    field->setFocus();
    field->setKeySequence(QKeySequence(keys));
    const QString text = QKeySequence(keys).toString() + " is needed for typing and editing.";
    QCoreApplication::processEvents();
    QCOMPARE(notes(), isAdvisedAgainst ? QStringList{text} : QStringList());
    QCOMPARE(isGlobal ? mAreaKeys : mSaveKeys, QKeySequence(keys)); // not refused
}

void tst_InputConflicts::questionIsWithdrawn_data()
{
    QTest::addColumn<std::function<void()>>("act");
    ConfStorage *const store = ConfStorage::instance();
    QTest::newRow("the other one is changed")
        << std::function<void()>([store] { store->set("Keys.Area", QKeySequence("Ctrl+M")); });
    QTest::newRow("the row is changed")
        << std::function<void()>([store] { store->set("Keys.Window", QKeySequence("Ctrl+M")); });
    QTest::newRow("the row is cleared")
        << std::function<void()>([this] { recorder(mWindow)->cleanSetting(); });
    QTest::newRow("another page") << std::function<void()>(
        [] { WindowFixture::window()->switchToView("Far"); });
    QTest::newRow("the other one is removed") << std::function<void()>([store] {
        ConfStorage::DynamicConfClass entries;
        entries.prefix = "Keys.Area";
        entries.remover = [](const QString &) {};
        store->mDynamicConfClasses.append(&entries);
        store->removeDynamicConf("Keys.Area");
        store->mDynamicConfClasses.clear();
    });
}

void tst_InputConflicts::questionIsWithdrawn()
{
    QFETCH(const std::function<void()>, act);
    open();
    record(mWindow, Qt::Key_K);
    QVERIFY(offer());
    act();
    QTRY_VERIFY(!offer());
    QVERIFY(mWindowKeys != QKeySequence("Ctrl+K"));
    WindowFixture::window()->switchToView("Keys");
    QVERIFY(!offer());
    record(mWindow, Qt::Key_N);
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+N"));
}

void tst_InputConflicts::questionFollowsTheLanguage()
{
    mSaveKeys = QKeySequence("Ctrl+L");
    open();
    record(mWindow, Qt::Key_K);
    const TableTranslator german({{"%1 is used by: %2", "%1 wird verwendet von: %2"},
                                  {"Also used by: %1", "Auch verwendet von: %1"},
                                  {"Replace", "Ersetzen"},
                                  {"Area", "Bereich"},
                                  {"Save", "Sichern"},
                                  {"Window", "Fenster"}});
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(question(), QString("Ctrl+K wird verwendet von: Bereich"));
    QVERIFY(button("Ersetzen"));
    QCOMPARE(notes(), (QStringList{"Auch verwendet von: Fenster", "Auch verwendet von: Sichern"}));
}

void tst_InputConflicts::questionIsToldToScreenReaders()
{
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(offer()->accessibleName(), QString("Ctrl+K is used by: Area"));
    QCOMPARE(button(sReplace)->accessibleDescription(), QString("Ctrl+K is used by: Area"));
}

void tst_InputConflicts::narrowWindowHasTheButtonsBelowEachOther()
{
    open();
    record(mWindow, Qt::Key_K);
    QCoreApplication::processEvents();
    QTRY_COMPARE(button(sReplace)->y(), button(sCancel)->y());
    for (QPushButton *button : offer()->findChildren<QPushButton *>())
        button->setText(button->text().repeated(12));
    offer()->resize(offer()->width() - 1, offer()->height());
    const QString cancel = QString(sCancel).repeated(12);
    QTRY_VERIFY(button(cancel)->y() > button(QString(sReplace).repeated(12))->y());
    QCOMPARE(button(cancel)->x(), button(QString(sReplace).repeated(12))->x());
}

void tst_InputConflicts::callbackMayDestroyEverything_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<std::function<void()>>("act");
    for (const char *key : {"Keys.Window", "Keys.Area"}) {
        const auto name = [key](const char *what) { return QByteArray(key) + what; };
        QTest::newRow(name(" closes the window"))
            << key << std::function<void()>([] { WindowFixture::window()->close(); });
        QTest::newRow(name(" deletes the window"))
            << key << std::function<void()>([] { delete WindowFixture::window(); });
        QTest::newRow(name(" shows another page"))
            << key << std::function<void()>([] { WindowFixture::window()->switchToView("Far"); });
        QTest::newRow(name(" destroys the manager"))
            << key << std::function<void()>([this] { mFixture->manager.reset(); });
    }
}

void tst_InputConflicts::callbackMayDestroyEverything()
{
    QFETCH(const QString, key);
    QFETCH(const std::function<void()>, act);
    open();
    record(mWindow, Qt::Key_K);
    mFixture->store()->setConfChangedCallback(
        key, [&act](const QString &, const ConfValue *) { act(); });
    answer(sReplace);
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+K"));
    QVERIFY(mAreaKeys.isEmpty());
    QCoreApplication::processEvents();
    mFixture->store()->setConfChangedCallback(key, ConfChangedCallback());
}

void tst_InputConflicts::clearedStoreIsSurvived()
{
    open();
    record(mWindow, Qt::Key_K);
    mFixture->store()->clear();
    answer(sReplace);
    QCOMPARE(mAreaKeys, QKeySequence("Ctrl+K"));
    QCoreApplication::processEvents();
    QVERIFY(notes().isEmpty());
}

void tst_InputConflicts::registryOfTheHostIsUsed()
{
    open();
    QVERIFY(!mFixture->manager->findChild<MtConf::InputRegistry *>());
    QVERIFY(WindowFixture::window()->findChild<MtConf::InputRegistry *>());
    QVERIFY(mFixture->close());
    new MtConf::InputRegistry(mFixture->manager.get());
    open();
    QVERIFY(!WindowFixture::window()->findChild<MtConf::InputRegistry *>());
}

void tst_InputConflicts::windowWithoutTheBitAsksNothing()
{
    mFixture->manager->windowFeatures &= ~quint32(MtConf::InputConflictsFeature);
    mSaveKeys = QKeySequence("Ctrl+K");
    open();
    QVERIFY(notes().isEmpty());
    record(mWindow, Qt::Key_K);
    QVERIFY(!offer());
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+K"));
    QVERIFY(!WindowFixture::window()->findChild<MtConf::InputRegistry *>());
}

int main(int argc, char **argv)
{
    return runTest<tst_InputConflicts>(argc, argv);
}

#include "tst_InputConflicts.moc"
