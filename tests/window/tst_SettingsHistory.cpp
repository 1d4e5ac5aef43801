#include "HistoryHost.h"

#include "MaltoConfiguration/window/history/SettingsHistory_p.h"

#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QSignalSpy>

using Cause = ConfChange::Cause;
using MtConf::SettingsHistory;

namespace {

using Act = std::function<void(HistoryHost &)>;

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(ConfChange::Cause)

/// The history of the settings window: what is a step, and how it is undone and redone.
class tst_SettingsHistory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<ConfChange::Cause>("ConfChange::Cause"); }
    void init()
    {
        mHistory.reset();
        mHost = std::make_unique<HistoryHost>();
        mHistory = std::make_unique<SettingsHistory>(&mHost->store);
    }
    void cleanup()
    {
        mHistory.reset();
        mHost.reset();
    }

    void changesOfTheUserAreUndoneAndRedone_data();
    void changesOfTheUserAreUndoneAndRedone();
    void otherChangesAreNotRecorded_data();
    void otherChangesAreNotRecorded();
    void wholeOperationIsOneStep();
    void changesInAnswerBelongToTheStep();
    void answersDuringUndoAreRedone();
    void callbacksThatDisagreeEndAfterSomePasses();
    void restoredDefaultIsFlaggedDefault();
    void typingIsOneStepWhileTheFocusStays();
    void typingBackLeavesNoStep();
    void flagsAreSwitchedOneByOne();
    void editOfAnotherKeyIsAnotherStep();
    void editAfterUndoForgetsWhatWasUndone();
    void keyThatOthersChangedStays();
    void stepThatOthersChangedIsSkipped();
    void undoIsNewerThanWhatItUndoes_data();
    void undoIsNewerThanWhatItUndoes();
    void copiesConvergeAfterUndo();
    void undoWithinACallbackIsIgnored();
    void historyMayBeDestroyedInACallback();
    void releasedKeyIsLeftOut();
    void storeMayBeCleared_data();
    void storeMayBeCleared();
    void failedCreationCanBeTriedAgain();
    void lockedKeysStay();
    void recordingTakesLoads();
    void stepsAreAnnouncedOnce();
    void onlyTheNewestStepsAreKept();
    void destroyedHistoryHearsNothing();
    void messagesContainNoValue();

private:
    std::unique_ptr<HistoryHost> mHost;
    std::unique_ptr<SettingsHistory> mHistory;
};

void tst_SettingsHistory::changesOfTheUserAreUndoneAndRedone_data()
{
    QTest::addColumn<Act>("prepare");
    QTest::addColumn<Act>("act");
    const Act nothing = [](HistoryHost &) {};
    const auto edit = [](const QString &key, const QJsonValue &value) -> Act {
        return [=](HistoryHost &host) { host.edit(key, value); };
    };
    const auto restore = [](const QString &key) -> Act {
        return [=](HistoryHost &host) { host.store.setToDefault(key, true); };
    };
    const Act create = [](HistoryHost &host) { host.create("Entry.a", 5); };
    const Act remove = [](HistoryHost &host) { host.store.removeDynamicConf("Entry.a"); };
    const Act removePreset = [](HistoryHost &host) {
        host.store.removeDynamicConf("Entry.preset");
    };
    QFont font("Serif", 20);
    font.setBold(true);

    QTest::newRow("number") << nothing << edit("Size", 9);
    QTest::newRow("number, changed before") << edit("Size", 8) << edit("Size", 9);
    QTest::newRow("decimals") << nothing << edit("Ratio", 0.125);
    QTest::newRow("flag") << nothing << edit("Flag", false);
    QTest::newRow("text") << nothing << edit("Text", "two");
    QTest::newRow("empty text") << edit("Text", "two") << edit("Text", "");
    QTest::newRow("colour") << nothing << edit("Colour", "#80102030");
    QTest::newRow("font") << nothing << edit("Font", ConfValue::owned(font).toJsonValue());
    QTest::newRow("hotkey") << nothing << edit("Key", "Ctrl+Shift+K");
    QTest::newRow("no hotkey") << nothing << edit("Key", "");
    QTest::newRow("list") << nothing << edit("List", QJsonArray{"c"});
    QTest::newRow("object") << nothing << edit("Object", QJsonObject{{"y", QJsonArray{1, 2}}});
    QTest::newRow("value that equals the default") << edit("Size", 8) << edit("Size", 7);
    QTest::newRow("default value that was set") << nothing << edit("Size", 7);
    QTest::newRow("restored default") << edit("Size", 9) << restore("Size");
    QTest::newRow("restored default of an equal value") << edit("Size", 7) << restore("Size");
    QTest::newRow("created entry") << nothing << create;
    QTest::newRow("removed entry") << create << remove;
    QTest::newRow("removed preset") << nothing << removePreset;
    QTest::newRow("removed preset that was changed")
        << edit("Entry.preset", QJsonObject{{"n", 2}}) << removePreset;
    QTest::newRow("created preset") << removePreset << restore("Entry.preset");
    QTest::newRow("edited entry") << create << edit("Entry.a", QJsonObject{{"n", 6}});
    QTest::newRow("restored presets") << Act([=](HistoryHost &host) {
        create(host);
        removePreset(host);
    }) << Act([](HistoryHost &host) { host.store.restoreDynamicConf("Entry."); });
    QTest::newRow("renamed entry") << create << Act([](HistoryHost &host) {
        const ConfOperation operation(&host.store, Cause::Edited);
        host.store.removeDynamicConf("Entry.a");
        host.create("Entry.b", 5);
    });
    QTest::newRow("all settings") << Act([](HistoryHost &host) {
        host.edit("Size", 9);
        host.edit("Text", "two");
        host.create("Entry.a", 5);
    }) << Act([](HistoryHost &host) {
        const ConfOperation operation(&host.store, Cause::Restored);
        host.store.restoreDynamicConf("Entry.");
        host.store.setToDefault("Size", true);
        host.store.setToDefault("Text", true);
    });
}

void tst_SettingsHistory::changesOfTheUserAreUndoneAndRedone()
{
    QFETCH(const Act, prepare);
    QFETCH(const Act, act);
    prepare(*mHost);
    mHistory = std::make_unique<SettingsHistory>(&mHost->store); // prepare is not undone
    const HistoryHost::Snapshot before = mHost->snapshot();
    act(*mHost);
    const HistoryHost::Snapshot after = mHost->snapshot();
    QVERIFY(after != before);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(mHistory->canUndo());
        mHistory->undo();
        QCOMPARE(mHost->snapshot(), before);
        QVERIFY(!mHistory->canUndo());
        QVERIFY(mHistory->canRedo());
        mHistory->redo();
        QCOMPARE(mHost->snapshot(), after);
        QVERIFY(!mHistory->canRedo());
    }
}

void tst_SettingsHistory::otherChangesAreNotRecorded_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("set by the program")
        << Act([](HistoryHost &host) { host.store.set("Size", 9); });
    QTest::newRow("set by the program, with an answer that restores") << Act([](HistoryHost &host) {
        host.store.set<QString>("Text", "two");
        host.store.setConfChangedCallback("Size", [&](const QString &, const ConfValue *) {
            host.store.setToDefault("Text", true);
        });
        host.store.set("Size", 9);
    });
    QTest::newRow("loaded") << Act([](HistoryHost &host) {
        host.store.loadConf(QJsonObject{{"Size", QJsonObject{{"t", 5}, {"v", 9}}}},
                            ConfStorage::LoadLocal);
    });
    QTest::newRow("the same value") << Act([](HistoryHost &host) {
        host.store.set("Size", 9);
        host.edit("Size", 9);
    });
    QTest::newRow("key of the library")
        << Act([](HistoryHost &host) { host.edit("Malto.Place", 9); });
    QTest::newRow("locked key") << Act([](HistoryHost &host) {
        host.store.lockConf("Size", 9);
        host.edit("Size", 8);
    });
    QTest::newRow("creation that fails") << Act([](HistoryHost &host) {
        host.canCreate = false;
        host.create("Entry.a", 5);
    });
}

void tst_SettingsHistory::otherChangesAreNotRecorded()
{
    QFETCH(const Act, act);
    act(*mHost);
    QVERIFY(!mHistory->canUndo());
}

void tst_SettingsHistory::wholeOperationIsOneStep()
{
    const auto before = mHost->snapshot();
    {
        const ConfOperation operation(&mHost->store, Cause::Edited);
        mHost->store.set("Size", 9);
        mHost->store.set("Flag", false);
        mHost->store.set("Size", 10);
        mHost->create("Entry.a", 1);
    }
    const auto after = mHost->snapshot();
    mHistory->undo();
    QCOMPARE(mHost->snapshot(), before);
    QVERIFY(!mHistory->canUndo());
    mHistory->redo();
    QCOMPARE(mHost->snapshot(), after);
    QCOMPARE(mHost->size, 10);
}

void tst_SettingsHistory::changesInAnswerBelongToTheStep()
{
    mHost->store.setConfChangedCallback("Size", [this](const QString &, const ConfValue *) {
        mHost->store.set<QString>("Text", QString::number(mHost->size));
    });
    mHost->store.set<QString>("Text", "other"); // not what the callback makes of 7
    const auto before = mHost->snapshot();
    mHost->edit("Size", 9);
    QCOMPARE(mHost->text, QString("9"));
    mHistory->undo();
    // The callback runs again and answers with "7".
    QCOMPARE(mHost->snapshot(), before);
    QCOMPARE(mHost->text, QString("other"));
    mHistory->redo();
    QCOMPARE(mHost->text, QString("9"));
    QCOMPARE(mHost->size, 9);
}

void tst_SettingsHistory::answersDuringUndoAreRedone()
{
    mHost->edit("Size", 9);
    mHost->store.setConfChangedCallback("Size", [this](const QString &, const ConfValue *) {
        if (mHost->size == 7)
            mHost->store.set("Flag", false);
    });
    mHistory->undo();
    QCOMPARE(mHost->size, 7);
    QCOMPARE(mHost->flag, false);
    mHistory->redo();
    QCOMPARE(mHost->size, 9);
    QCOMPARE(mHost->flag, true);
    mHistory->undo();
    QCOMPARE(mHost->flag, false);
}

void tst_SettingsHistory::callbacksThatDisagreeEndAfterSomePasses()
{
    {
        const ConfOperation operation(&mHost->store, Cause::Edited);
        mHost->store.set("Size", 9);
        mHost->store.set("Ratio", 0.75);
    }
    int calls = 0;
    mHost->store.setConfChangedCallback("Ratio", [&](const QString &, const ConfValue *) {
        ++calls;
        mHost->store.set("Size", 20 + calls);
    });
    mHost->store.setConfChangedCallback("Size", [&](const QString &, const ConfValue *) {
        if (mHost->size == 7)
            mHost->store.set("Ratio", 0.25);
    });
    mHistory->undo();
    QVERIFY(calls > 0 && calls < 10);
    QVERIFY(mHistory->canRedo());
    mHistory->redo();
}

void tst_SettingsHistory::restoredDefaultIsFlaggedDefault()
{
    mHost->edit("Size", 9);
    mHistory->undo();
    QCOMPARE(mHost->size, 7);
    QVERIFY(mHost->store.mConfMetas["Size"].flags & ConfStorage::FlagIsDefault);
    // A newer version of the program with another default value shows it.
    const QJsonObject dump = mHost->store.dumpConf(ConfStorage::DumpLocal);
    QVERIFY(dump["Size"].toObject().contains("t"));
    QVERIFY(!dump["Size"].toObject().contains("v"));
}

void tst_SettingsHistory::typingIsOneStepWhileTheFocusStays()
{
    for (const int typed : {1, 12, 120})
        mHost->edit("Size", typed);
    mHistory->endTyping();
    for (const int typed : {3, 30})
        mHost->edit("Size", typed);
    mHistory->undo();
    QCOMPARE(mHost->size, 120);
    mHistory->undo();
    QCOMPARE(mHost->size, 7);
    QVERIFY(!mHistory->canUndo());
    mHistory->redo();
    QCOMPARE(mHost->size, 120);
    mHost->edit("Size", 121); // not continued by what is typed after redo
    mHistory->undo();
    QCOMPARE(mHost->size, 120);
}

void tst_SettingsHistory::typingBackLeavesNoStep()
{
    mHost->edit("Flag", false);
    mHost->edit("Size", 12);
    mHost->edit("Size", 1);
    mHistory->undo();
    mHistory->undo();
    mHost->edit("Text", "two");
    mHistory->endTyping();
    mHost->store.set("Size", 7);
    mHost->edit("Size", 12);
    mHost->edit("Size", 7);
    mHistory->undo();
    QCOMPARE(mHost->text, QString("one"));
}

void tst_SettingsHistory::flagsAreSwitchedOneByOne()
{
    mHost->edit("Flag", false);
    mHost->edit("Flag", true);
    mHistory->undo();
    QCOMPARE(mHost->flag, false);
    mHistory->undo();
    QCOMPARE(mHost->flag, true);
}

void tst_SettingsHistory::editOfAnotherKeyIsAnotherStep()
{
    mHost->edit("Size", 8);
    mHost->edit("Ratio", 0.25);
    mHost->edit("Size", 9);
    mHistory->undo();
    QCOMPARE(mHost->size, 8);
    QCOMPARE(mHost->ratio, 0.25);
    mHistory->undo();
    QCOMPARE(mHost->ratio, 0.5);
}

void tst_SettingsHistory::editAfterUndoForgetsWhatWasUndone()
{
    mHost->edit("Size", 8);
    mHistory->undo();
    mHost->edit("Text", "two");
    QVERIFY(!mHistory->canRedo());
    mHistory->redo();
    QCOMPARE(mHost->size, 7);
}

void tst_SettingsHistory::keyThatOthersChangedStays()
{
    {
        const ConfOperation operation(&mHost->store, Cause::Edited);
        mHost->store.set("Size", 9);
        mHost->store.set<QString>("Text", "two");
    }
    mHost->store.set("Size", 30);
    mHistory->undo();
    QCOMPARE(mHost->size, 30);
    QCOMPARE(mHost->text, QString("one"));
    mHistory->redo();
    QCOMPARE(mHost->size, 30);
    QCOMPARE(mHost->text, QString("two"));
}

void tst_SettingsHistory::stepThatOthersChangedIsSkipped()
{
    mHost->edit("Text", "two");
    mHost->edit("Size", 9);
    mHost->store.set("Size", 30);
    mHistory->undo();
    QCOMPARE(mHost->size, 30);
    QCOMPARE(mHost->text, QString("one"));
    QVERIFY(!mHistory->canUndo());
    mHistory->redo();
    QCOMPARE(mHost->text, QString("two"));
    QVERIFY(!mHistory->canRedo()); // the other step was dropped
}

void tst_SettingsHistory::undoIsNewerThanWhatItUndoes_data()
{
    QTest::addColumn<Act>("prepare");
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("key");
    const Act nothing = [](HistoryHost &) {};
    const Act create = [](HistoryHost &host) { host.create("Entry.a", 5); };
    QTest::newRow("edit") << nothing << Act([](HistoryHost &host) { host.edit("Size", 9); })
                          << "Size";
    QTest::newRow("edit of a changed value")
        << Act([](HistoryHost &host) { host.edit("Size", 8); })
        << Act([](HistoryHost &host) { host.edit("Size", 9); }) << "Size";
    QTest::newRow("creation") << nothing << create << "Entry.a";
    QTest::newRow("removal") << create << Act([](HistoryHost &host) {
        host.store.removeDynamicConf("Entry.a");
    }) << "Entry.a";
}

void tst_SettingsHistory::undoIsNewerThanWhatItUndoes()
{
    QFETCH(const Act, prepare);
    QFETCH(const Act, act);
    QFETCH(const QString, key);
    prepare(*mHost);
    mHistory = std::make_unique<SettingsHistory>(&mHost->store);
    act(*mHost);
    // The clock is set back by an hour.
    const QDateTime time = QDateTime::currentDateTimeUtc().addSecs(3600);
    if (mHost->store.mConfMetas.contains(key))
        mHost->store.mConfMetas[key].lastChangeTime = time;
    else
        mHost->store.mRemovedDynamicConfs[key] = time;
    mHistory->undo();
    QCOMPARE(mHost->seconds(key), time.toSecsSinceEpoch() + 1);
    mHistory->redo();
    QCOMPARE(mHost->seconds(key), time.toSecsSinceEpoch() + 2);
}

void tst_SettingsHistory::copiesConvergeAfterUndo()
{
    HistoryHost other;
    const auto exchange = [&] {
        for (int i = 0; i < 2; ++i) {
            other.store.loadConf(mHost->store.dumpConf(ConfStorage::DumpShared),
                                 ConfStorage::LoadShared);
            mHost->store.loadConf(other.store.dumpConf(ConfStorage::DumpShared),
                                  ConfStorage::LoadShared);
        }
    };
    mHost->edit("Size", 8);
    mHost->create("Entry.a", 5);
    mHost->store.removeDynamicConf("Entry.preset");
    exchange();
    QCOMPARE(other.snapshot(), mHost->snapshot());
    for (int i = 0; i < 3; ++i)
        mHistory->undo();
    const auto undone = mHost->snapshot();
    exchange(); // in the same second
    QCOMPARE(mHost->snapshot(), undone);
    QCOMPARE(other.snapshot(), undone);
    for (int i = 0; i < 3; ++i)
        mHistory->redo();
    exchange();
    QCOMPARE(other.snapshot(), mHost->snapshot());
    QCOMPARE(other.size, 8);
}

void tst_SettingsHistory::undoWithinACallbackIsIgnored()
{
    mHost->edit("Text", "two");
    mHost->edit("Size", 9);
    mHost->store.setConfChangedCallback("Size", [this](const QString &, const ConfValue *) {
        mHistory->undo();
        mHistory->redo();
    });
    mHistory->undo();
    QCOMPARE(mHost->size, 7);
    QCOMPARE(mHost->text, QString("two"));
    mHistory->undo();
    QCOMPARE(mHost->text, QString("one"));
}

void tst_SettingsHistory::historyMayBeDestroyedInACallback()
{
    {
        const ConfOperation operation(&mHost->store, Cause::Edited);
        mHost->store.set<QString>("Text", "two");
        mHost->store.set("Size", 9);
    }
    mHost->store.setConfChangedCallback(
        "Size", [this](const QString &, const ConfValue *) { mHistory.reset(); });
    mHistory->undo();
    QVERIFY(!mHistory);
    QCOMPARE(mHost->size, 7);
    QCOMPARE(mHost->text, QString("one")); // the step is complete
}

void tst_SettingsHistory::releasedKeyIsLeftOut()
{
    {
        const ConfOperation operation(&mHost->store, Cause::Edited);
        mHost->store.set<QString>("Text", "two");
        mHost->store.set("Size", 9);
    }
    mHost->store.releaseConf("Size");
    const LogCapture log;
    mHistory->undo();
    QCOMPARE(mHost->text, QString("one"));
    QVERIFY(!mHost->store.mConfValues.contains("Size"));
    mHistory->redo();
    QCOMPARE(mHost->text, QString("two"));
    QCOMPARE(log.messages().size(), 0);
}

void tst_SettingsHistory::storeMayBeCleared_data()
{
    QTest::addColumn<bool>("isDuringUndo");
    QTest::newRow("between two steps") << false;
    QTest::newRow("in a callback of undo") << true;
}

void tst_SettingsHistory::storeMayBeCleared()
{
    QFETCH(const bool, isDuringUndo);
    mHost->edit("Text", "two");
    mHost->edit("Size", 9);
    if (isDuringUndo)
        mHost->store.setConfChangedCallback(
            "Size", [this](const QString &, const ConfValue *) { mHost->store.clear(); });
    else
        mHost->store.clear();
    const LogCapture log;
    mHistory->undo();
    QVERIFY(!mHistory->canUndo());
    QVERIFY(!mHistory->canRedo());
    // The observer of somebody else, with the id that the history had.
    int heard = 0;
    mHost->store.addObserver([&](const ConfChange &) { ++heard; });
    mHost->store.reserveConf("Size", &mHost->size);
    mHost->edit("Size", 11);
    QVERIFY(mHistory->canUndo());
    mHistory.reset();
    mHost->edit("Size", 12);
    QCOMPARE(heard, 2);
    QCOMPARE(log.messages().size(), 0);
}

void tst_SettingsHistory::failedCreationCanBeTriedAgain()
{
    mHost->create("Entry.a", 5);
    mHistory = std::make_unique<SettingsHistory>(&mHost->store);
    mHost->store.removeDynamicConf("Entry.a");
    const auto removed = mHost->snapshot();
    mHost->canCreate = false;
    mHistory->undo();
    QCOMPARE(mHost->snapshot(), removed);
    mHost->canCreate = true;
    mHistory->redo();
    mHistory->undo();
    QCOMPARE(mHost->dynamic["Entry.a"], (QJsonObject{{"n", 5}}));
}

void tst_SettingsHistory::lockedKeysStay()
{
    {
        const ConfOperation operation(&mHost->store, Cause::Edited);
        mHost->store.set("Size", 9);
        mHost->store.set<QString>("Text", "two");
    }
    mHost->edit("Size", 10);
    mHost->store.lockConf("Size", 9);
    mHistory->undo(); // of both, because the second step is only of the locked key
    QCOMPARE(mHost->size, 9);
    QCOMPARE(mHost->text, QString("one"));
}

void tst_SettingsHistory::recordingTakesLoads()
{
    const auto before = mHost->snapshot();
    {
        const SettingsHistory::Recording recording(mHistory.get());
        mHost->store.loadConf(QJsonObject{{"Size", QJsonObject{{"t", 5}, {"v", 9}}},
                                          {"Entry.preset", QJsonObject{{"d", 5}}},
                                          {"Entry.b", QJsonObject{{"t", 5}, {"v", QJsonObject()}}}},
                              ConfStorage::LoadLocal);
    }
    const auto after = mHost->snapshot();
    QVERIFY(after != before);
    mHost->store.set("Flag", false); // not recorded any more
    mHistory->undo();
    mHost->store.set("Flag", true);
    mHost->store.setToDefault("Flag", false);
    QCOMPARE(mHost->snapshot(), before);
    mHistory->redo();
    QVERIFY(!mHistory->canRedo());
}

void tst_SettingsHistory::stepsAreAnnouncedOnce()
{
    QSignalSpy recorded(mHistory.get(), &SettingsHistory::recorded);
    QSignalSpy applied(mHistory.get(), &SettingsHistory::applied);
    mHost->edit("Text", "two");
    mHost->edit("Size", 9);
    QCoreApplication::processEvents();
    {
        const ConfOperation operation(&mHost->store, Cause::Restored);
        mHost->store.setToDefault("Size", true);
        mHost->store.setToDefault("Text", true);
        mHost->store.setToDefault("Flag", true); // is default
    }
    QCoreApplication::processEvents();
    QCOMPARE(recorded.size(), 3);
    QCOMPARE(recorded.at(1).at(0).value<Cause>(), Cause::Edited);
    QCOMPARE(recorded.at(1).at(1).toStringList(), QStringList{"Size"});
    QCOMPARE(recorded.at(2).at(0).value<Cause>(), Cause::Restored);
    QCOMPARE(recorded.at(2).at(1).toStringList(), (QStringList{"Size", "Text"}));
    QCOMPARE(applied.size(), 0);
    mHistory->undo();
    QCoreApplication::processEvents();
    QCOMPARE(recorded.size(), 3);
    QCOMPARE(applied.size(), 1);
    QCOMPARE(applied.at(0).at(0).toStringList(), (QStringList{"Size", "Text"}));
}

void tst_SettingsHistory::onlyTheNewestStepsAreKept()
{
    for (int i = 0; i < 300; ++i) {
        mHost->edit("Size", 100 + i);
        mHistory->endTyping();
    }
    int steps = 0;
    for (; mHistory->canUndo(); ++steps)
        mHistory->undo();
    QCOMPARE(steps, 200);
    QCOMPARE(mHost->size, 199);
}

void tst_SettingsHistory::destroyedHistoryHearsNothing()
{
    mHistory.reset();
    mHost->edit("Size", 9);
    QCoreApplication::processEvents();
    QCOMPARE(mHost->size, 9);
}

void tst_SettingsHistory::messagesContainNoValue()
{
    const LogCapture log;
    mHost->edit("Text", "secret");
    mHost->create("Entry.a", 5);
    for (int i = 0; i < 3; ++i)
        mHistory->undo();
    for (int i = 0; i < 3; ++i)
        mHistory->redo();
    QCOMPARE(log.messages().size(), 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_SettingsHistory>(argc, argv);
}

#include "tst_SettingsHistory.moc"
