#include "InputConflictsFixture.h"
#include "support/TestMain.h"

/// What happens to keys and gestures that are used twice, by the answers of the user.
class tst_InputConflicts : public QObject, public InputConflictsFixture
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data() { addLooks(); }
    void init() { create(); }
    void cleanup() { destroy(); }

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
    void severalUsersAreReplacedTogether();
    void freeKeysAreStoredAtOnce();
    void nextKeysReplaceTheQuestion();
};

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

int main(int argc, char **argv)
{
    return runTest<tst_InputConflicts>(argc, argv);
}

#include "tst_InputConflicts.moc"
