#include "InputConflictsFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/inputs/InputRegistry.h>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

/// Which answers are offered, and when a question ends without an answer.
class tst_InputConflictOffers : public QObject, public InputConflictsFixture
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data() { addLooks(); }
    void init() { create(); }
    void cleanup()
    {
        destroy();
        mOther = std::make_unique<QMainWindow>();
    }

    void nothingToSwapWithAnEmptyValue();
    void swapThatDoesNotHelpIsNotOffered_data();
    void swapThatDoesNotHelpIsNotOffered();
    void actionOfTheHostCannotBeReplaced();
    void settingThatIsLockedCannotBeReplaced();
    void validatorOfTheOtherIsAsked();
    void validatorOfTheRowIsAsked();
    void refusedHotkeyIsNotRegistered();
    void validatorMayDestroyEverything_data();
    void validatorMayDestroyEverything();
    void filterOfTheHostIsAskedFirst();
    void questionIsWithdrawn_data();
    void questionIsWithdrawn();
    void callbackMayDestroyEverything_data();
    void callbackMayDestroyEverything();
    void clearedStoreIsSurvived();
    void registryOfTheHostIsUsed();
    void windowWithoutTheBitAsksNothing();

private:
    std::unique_ptr<QMainWindow> mOther = std::make_unique<QMainWindow>(); // of the host
};

void tst_InputConflictOffers::nothingToSwapWithAnEmptyValue()
{
    mWindowKeys = QKeySequence();
    mWindowShortcut.setShortcut(QKeySequence());
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(offered(), (QStringList{sReplace, sKeepBoth, sCancel}));
}

void tst_InputConflictOffers::swapThatDoesNotHelpIsNotOffered_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<std::function<void()>>("prepare");
    QTest::addColumn<std::function<void()>>("act");
    QTest::newRow("several chords for a hotkey")
        << "Keys" << std::function<void()>([this] { mSaveKeys = QKeySequence("Ctrl+G, Ctrl+H"); })
        << std::function<void()>([this] { record(mSave, Qt::Key_K); });
    QTest::newRow("modifiers without an action") << "Mouse" << std::function<void()>([this] {
        mPanValue = int(Qt::ControlModifier) | 4;
        mZoomValue = int(Qt::ControlModifier);
    }) << std::function<void()>([this] { choose(mZoom, 4); });
    QTest::newRow("keys that meet others everywhere") << "Keys" << std::function<void()>([this] {
        // The shortcut works in its window only, the hotkey would take it from this one.
        auto *const other = new QAction("Find", mOther.get());
        other->setShortcut(QKeySequence("Ctrl+S"));
        mOther->addAction(other);
        auto *const registry = new MtConf::InputRegistry(mFixture->manager.get());
        registry->addActions(mHost.get());
        registry->addActions(mOther.get());
    }) << std::function<void()>([this] { record(mSave, Qt::Key_K); });
    QTest::newRow("double click and click")
        << "Mouse" << std::function<void()>([this] { mZoomValue = 8; })
        << std::function<void()>([this] { choose(mZoom, 4); });
}

void tst_InputConflictOffers::swapThatDoesNotHelpIsNotOffered()
{
    QFETCH(const QString, page);
    QFETCH(const std::function<void()>, prepare);
    QFETCH(const std::function<void()>, act);
    prepare();
    open(page);
    act();
    QCOMPARE(offered(), (QStringList{sReplace, sKeepBoth, sCancel}));
}

void tst_InputConflictOffers::actionOfTheHostCannotBeReplaced()
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

void tst_InputConflictOffers::settingThatIsLockedCannotBeReplaced()
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

void tst_InputConflictOffers::validatorOfTheOtherIsAsked()
{
    mArea->setValidator([](const QJsonValue &value) {
        return value.toString().isEmpty() ? QString("needed") : QString();
    });
    open();
    record(mWindow, Qt::Key_K);
    QCOMPARE(offered(), (QStringList{sSwap, sKeepBoth, sCancel}));
}

void tst_InputConflictOffers::validatorOfTheRowIsAsked()
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

void tst_InputConflictOffers::refusedHotkeyIsNotRegistered()
{
    mWindow->setValidator([](const QJsonValue &value) {
        return value.toString() == "Ctrl+K" ? QString("not this one") : QString();
    });
    open();
    record(mWindow, Qt::Key_K);
    answer(sReplace);
    QCOMPARE(mWindow->editor->messageLabel()->text(), QString("not this one"));
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+L"));
    QCOMPARE(mWindowShortcut.shortcut(), QKeySequence("Ctrl+L"));
    QCOMPARE(mAreaShortcut.shortcut(), QKeySequence("Ctrl+K"));
}

void tst_InputConflictOffers::validatorMayDestroyEverything_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<std::function<void()>>("act");
    for (const char *page : {"Keys", "Mouse"}) {
        const auto name = [page](const char *what) { return QByteArray(page) + what; };
        QTest::newRow(name(": closes the window"))
            << page << std::function<void()>([] { WindowFixture::window()->close(); });
        QTest::newRow(name(": deletes the window"))
            << page << std::function<void()>([] { delete WindowFixture::window(); });
        QTest::newRow(name(": shows another page"))
            << page << std::function<void()>([] { WindowFixture::window()->switchToView("Far"); });
        QTest::newRow(name(": destroys the manager"))
            << page << std::function<void()>([this] { mFixture->manager.reset(); });
    }
}

void tst_InputConflictOffers::validatorMayDestroyEverything()
{
    QFETCH(const QString, page);
    QFETCH(const std::function<void()>, act);
    open(page);
    bool isCalled = false;
    for (ConfItem *const other : {mArea, mPan}) {
        other->setValidator([&](const QJsonValue &) {
            if (!std::exchange(isCalled, true))
                act();
            return QString();
        });
    }
    if (page == "Keys")
        record(mWindow, Qt::Key_K);
    else
        choose(mZoom, 4);
    QVERIFY(isCalled);
    QCoreApplication::processEvents();
    QCOMPARE(mWindowKeys, QKeySequence("Ctrl+L"));
    QCOMPARE(mAreaKeys, QKeySequence("Ctrl+K"));
    QCOMPARE(mZoomValue, 2);
    QCOMPARE(mPanValue, 4);
}

void tst_InputConflictOffers::filterOfTheHostIsAskedFirst()
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

void tst_InputConflictOffers::questionIsWithdrawn_data()
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

void tst_InputConflictOffers::questionIsWithdrawn()
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

void tst_InputConflictOffers::callbackMayDestroyEverything_data()
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

void tst_InputConflictOffers::callbackMayDestroyEverything()
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

void tst_InputConflictOffers::clearedStoreIsSurvived()
{
    open();
    record(mWindow, Qt::Key_K);
    mFixture->store()->clear();
    answer(sReplace);
    QCOMPARE(mAreaKeys, QKeySequence("Ctrl+K"));
    QCoreApplication::processEvents();
    QVERIFY(notes().isEmpty());
}

void tst_InputConflictOffers::registryOfTheHostIsUsed()
{
    open();
    QVERIFY(!mFixture->manager->findChild<MtConf::InputRegistry *>());
    QVERIFY(WindowFixture::window()->findChild<MtConf::InputRegistry *>());
    QVERIFY(mFixture->close());
    new MtConf::InputRegistry(mFixture->manager.get());
    open();
    QVERIFY(!WindowFixture::window()->findChild<MtConf::InputRegistry *>());
}

void tst_InputConflictOffers::windowWithoutTheBitAsksNothing()
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
    return runTest<tst_InputConflictOffers>(argc, argv);
}

#include "tst_InputConflictOffers.moc"
