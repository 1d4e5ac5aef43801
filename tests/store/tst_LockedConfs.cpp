#include "support/Entries.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

const char sPath[] = "local.json";

/// A store with the setting "n", 1 by default, that the user set to 5 in second 100, and with the
/// dynamic entry "Entry.a".
class Host
{
public:
    explicit Host(quint32 options = 0)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = sPath;
        store.reserveConf("n", &number);
        store.reserveConf("text", &text);
        mClass.prefix = "Entry.";
        mClass.creator = [this](const QString &key, const QJsonValue *value) {
            item = value->toObject();
            store.reserveConf(key, &item);
        };
        mClass.remover = [this](const QString &) { ++removals; };
        store.mDynamicConfClasses = {&mClass};
        store.createDynamicConf("Entry.a", QJsonObject{{"n", 1}}, nullptr);
        store.mConfMetas["Entry.a"].lastChangeTime = second(100);
        store.set("n", 5);
        store.mConfMetas["n"].lastChangeTime = second(100);
        store.setConfChangedCallback("n", [this](const QString &, const ConfValue *) { ++calls; });
        store.mChanged = false;
    }
    Q_DISABLE_COPY(Host)

    QJsonValue dumped(const QString &key) const
    {
        return store.dumpConf(ConfStorage::DumpLocal).value(key);
    }
    void load(const QString &key, const QJsonValue &value,
              ConfStorage::LoadConfType type = ConfStorage::LoadShared)
    {
        store.loadConf({{key, value}}, type);
    }

    int number = 1;
    QString text = "t";
    QJsonObject item;
    int calls = 0, removals = 0;
    ConfStorage store;

private:
    ConfStorage::DynamicConfClass mClass;
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(Host &)>)

/// Values that an administrator has fixed.
class tst_LockedConfs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void lockSetsTheVariableAndCallsTheCallback();
    void lockWithTheSameValueCallsNothing();
    void lockIsOneLoadedChange();
    void unknownKeyIsNotLocked();
    void lockedVariableIsNotChanged_data();
    void lockedVariableIsNotChanged();
    void loadOfANewerEntryIsAnEvent();
    void importIsSavedToASharedFile_data();
    void importIsSavedToASharedFile();
    void valueOfTheUserIsDumped_data();
    void valueOfTheUserIsDumped();
    void loadsMergeIntoTheValueOfTheUser_data();
    void loadsMergeIntoTheValueOfTheUser();
    void valueOfTheUserComesBackWithoutTheLock();
    void secondLockReplacesTheFixedValueOnly();
    void nullLocksTheDefaultValue();
    void valueOfAnotherTypeIsNotLocked();
    void lockedValueMayHaveAnOlderForm();
    void lockedKeyIsDefaultIfItsFixedValueIs();
    void lockedPresetThatIsCreatedAgainIsNoDefault();
    void clearForgetsTheLock();
    void keyThatIsReservedAgainIsStillLocked();
    void releasedKeyKeepsTheValueOfTheUser();
    void releasedEntryIsCreatedByALoad();
    void lockedPresetIsMergedAndRestored();
    void formerNameOfALockedKeyIsMerged();
    void keptEntryOfALockedKeyIsMerged();
    void lockedDynamicEntryIsNotRemoved();
    void removalOfALockedEntryIsDumped();
    void createdEntryReplacesTheRemovalOfALockedOne();
    void refusedEntryOfALockedKeyIsKept();
    void previewListsALockedKeyWithTheLockedValue();
    void callbackOfTheLockMayClearTheStore();
};

void tst_LockedConfs::lockSetsTheVariableAndCallsTheCallback()
{
    const LogCapture log;
    Host host;
    QVERIFY(!host.store.isLocked("n"));
    host.store.lockConf("n", 9);
    QVERIFY(host.store.isLocked("n"));
    QCOMPARE(host.number, 9);
    QCOMPARE(host.store.get<int>("n"), 9);
    QCOMPARE(host.calls, 1);
    QVERIFY(!host.store.mChanged);
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtDebugMsg, "ConfStorage::lockConf() value "
                                                                "locked:  \"n\""}}));
}

void tst_LockedConfs::lockWithTheSameValueCallsNothing()
{
    Host host;
    int events = 0;
    host.store.addObserver([&](const ConfChange &) { ++events; });
    host.store.lockConf("n", 5);
    QCOMPARE(host.calls, 0);
    QCOMPARE(events, 0);
    QVERIFY(host.store.isLocked("n"));
}

void tst_LockedConfs::lockIsOneLoadedChange()
{
    Host host;
    QVector<ConfChange> changes;
    host.store.addObserver([&](const ConfChange &change) { changes << change; });
    host.store.lockConf("n", 9);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().cause, ConfChange::Cause::Loaded);
    QCOMPARE(changes.first().before.value, QJsonValue(5));
    QCOMPARE(changes.first().after.value, QJsonValue(9));
    QCOMPARE(host.calls, 1);
}

void tst_LockedConfs::unknownKeyIsNotLocked()
{
    Host host;
    host.store.lockConf("unknown", 9);
    QVERIFY(!host.store.isLocked("unknown"));
}

void tst_LockedConfs::lockedVariableIsNotChanged_data()
{
    using Change = std::function<void(Host &)>;
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("set", [](Host &host) { host.store.set("n", 7); });
    row("loadValueFromJson", [](Host &host) { host.store.loadValueFromJson("n", 7); });
    row("setToDefault", [](Host &host) { host.store.setToDefault("n", true); });
    row("shared load", [](Host &host) { host.load("n", entry(200, 7)); });
    row("local load", [](Host &host) { host.load("n", entry(200, 7), ConfStorage::LoadLocal); });
    row("load of the default", [](Host &host) { host.load("n", QJsonObject{{"t", 200}}); });
    row("load without a timestamp", [](Host &host) { host.load("n", QJsonObject{{"v", 7}}); });
    row("load of null", [](Host &host) { host.load("n", entry(200, QJsonValue())); });
    row("single load",
        [](Host &host) { host.store.loadSingleConf("n", entry(200, 7), ConfStorage::LoadLocal); });
}

void tst_LockedConfs::lockedVariableIsNotChanged()
{
    QFETCH(std::function<void(Host &)>, change);
    Host host;
    host.store.lockConf("n", 9);
    bool isChanged = false;
    host.store.addObserver(
        [&](const ConfChange &heard) { isChanged |= heard.before.value != heard.after.value; });
    change(host);
    QCOMPARE(host.number, 9);
    QCOMPARE(host.store.get<int>("n"), 9);
    QCOMPARE(host.calls, 1); // for the lock
    QVERIFY(!isChanged);
}

void tst_LockedConfs::loadOfANewerEntryIsAnEvent()
{
    Host host;
    host.store.lockConf("n", 9);
    QVector<ConfChange> changes;
    host.store.addObserver([&](const ConfChange &change) { changes << change; });
    host.load("n", entry(100, 7));
    QVERIFY(changes.isEmpty());
    host.load("n", entry(200, 7));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().cause, ConfChange::Cause::Loaded);
    QCOMPARE(changes.first().before.value, QJsonValue(9));
    QCOMPARE(changes.first().after.value, QJsonValue(9));
    QCOMPARE(changes.first().time, second(200));
}

void tst_LockedConfs::importIsSavedToASharedFile_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("imported");
    QTest::newRow("value") << "n" << QJsonValue(entry(200, 7));
    QTest::newRow("default") << "n" << QJsonValue(QJsonObject{{"t", 200}});
    QTest::newRow("removal") << "Entry.a" << QJsonValue(QJsonObject{{"d", 200}});
}

void tst_LockedConfs::importIsSavedToASharedFile()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, imported);
    Host host(ConfStorage::SharedFile);
    host.store.loadLocalConfFile();
    host.store.lockConf("n", 9);
    host.store.lockConf("Entry.a", QJsonObject{{"n", 9}});
    host.store.saveToLocalConfFile();
    host.load(key, imported);
    host.store.saveToLocalConfFile();
    QVERIFY(!host.store.mChanged);
    QFile file(sPath);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QJsonDocument::fromJson(file.readAll()).object().value(key), imported);
}

void tst_LockedConfs::valueOfTheUserIsDumped_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QJsonValue>("dumped");
    QTest::newRow("local dump") << int(ConfStorage::DumpLocal) << QJsonValue(entry(100, 5));
    QTest::newRow("shared dump") << int(ConfStorage::DumpShared) << QJsonValue(entry(100, 5));
    QTest::newRow("changes only") << int(ConfStorage::DumpChangedOnly)
                                  << QJsonValue(QJsonObject{{"v", 5}});
}

void tst_LockedConfs::valueOfTheUserIsDumped()
{
    QFETCH(int, type);
    Host host;
    host.store.lockConf("n", 1); // the default
    QTEST(host.store.dumpConf(ConfStorage::DumpConfType(type)).value("n"), "dumped");
    host.store.lockConf("text", "fixed"); // the user never changed it
    QVERIFY(!host.store.dumpConf(ConfStorage::DumpConfType(type)).contains("text"));
}

void tst_LockedConfs::loadsMergeIntoTheValueOfTheUser_data()
{
    QTest::addColumn<QJsonValue>("loaded");
    QTest::addColumn<QJsonValue>("dumped");
    QTest::addColumn<int>("taken");
    QTest::newRow("newer value") << QJsonValue(entry(200, 7)) << QJsonValue(entry(200, 7)) << 1;
    QTest::newRow("older value") << QJsonValue(entry(99, 7)) << QJsonValue(entry(100, 5)) << 0;
    QTest::newRow("default") << QJsonValue(QJsonObject{{"t", 200}})
                             << QJsonValue(QJsonObject{{"t", 200}}) << 1;
}

void tst_LockedConfs::loadsMergeIntoTheValueOfTheUser()
{
    QFETCH(QJsonValue, loaded);
    Host host;
    host.store.lockConf("n", 9);
    host.load("n", loaded);
    QTEST(host.store.lastLoad().taken, "taken");
    QCOMPARE(host.store.lastLoad().newerHere, 1 - host.store.lastLoad().taken);
    QTEST(host.dumped("n"), "dumped");
    QCOMPARE(host.store.mConfMetas["n"].lastChangeTime.toSecsSinceEpoch(),
             qint64(host.dumped("n").toObject().value("t").toInt()));
    QCOMPARE(host.number, 9);
}

void tst_LockedConfs::valueOfTheUserComesBackWithoutTheLock()
{
    {
        Host host;
        host.store.lockConf("n", 9);
        host.store.mChanged = true;
        host.store.saveToLocalConfFile();
    }
    int number = 1;
    ConfStorage store;
    store.mLocalSaveFile = sPath;
    store.reserveConf("n", &number);
    store.loadLocalConfFile();
    QCOMPARE(number, 5);
    QCOMPARE(store.mConfMetas["n"].lastChangeTime, second(100));
}

void tst_LockedConfs::secondLockReplacesTheFixedValueOnly()
{
    Host host;
    host.store.lockConf("n", 9);
    host.store.lockConf("n", 8);
    QCOMPARE(host.number, 8);
    QCOMPARE(host.calls, 2);
    QCOMPARE(host.dumped("n"), QJsonValue(entry(100, 5)));
}

void tst_LockedConfs::nullLocksTheDefaultValue()
{
    Host host;
    host.store.lockConf("n", QJsonValue());
    QCOMPARE(host.number, 1);
    QVERIFY(host.store.isLocked("n"));
    host.store.set("n", 4);
    QCOMPARE(host.number, 1);
}

void tst_LockedConfs::valueOfAnotherTypeIsNotLocked()
{
    const LogCapture log;
    Host host(ConfStorage::StrictTypes);
    host.store.lockConf("n", "9");
    QVERIFY(!host.store.isLocked("n"));
    QCOMPARE(host.number, 5);
    QCOMPARE(log.texts(QtWarningMsg),
             QStringList("ConfStorage::loadConf() value of another type refused:  \"n\""));
}

void tst_LockedConfs::lockedValueMayHaveAnOlderForm()
{
    const LogCapture log;
    Host host(ConfStorage::StrictTypes);
    host.store.setConfConverter("n", [](const QJsonValue &value) {
        return value.isString() ? QJsonValue(value.toString().toInt()) : value;
    });
    host.store.lockConf("n", "9");
    QVERIFY(host.store.isLocked("n"));
    QCOMPARE(host.number, 9);
}

void tst_LockedConfs::lockedPresetThatIsCreatedAgainIsNoDefault()
{
    Host host;
    host.store.mPresetDynamicConfs["Entry.p"] = QJsonObject{{"n", 2}};
    host.store.loadPresetDynamicConf();
    host.store.lockConf("Entry.p", QJsonObject{{"n", 9}});
    host.store.releaseConf("Entry.p");
    host.store.loadPresetDynamicConf();
    QCOMPARE(host.item, (QJsonObject{{"n", 9}}));
    QVERIFY(!host.store.isEqualToDefault("Entry.p"));
    QVERIFY(host.dumped("Entry.p").isUndefined());
}

void tst_LockedConfs::lockedKeyIsDefaultIfItsFixedValueIs()
{
    Host host;
    host.store.lockConf("n", 9);
    QVERIFY(!host.store.isEqualToDefault("n"));
    host.store.lockConf("n", 1);
    QVERIFY(host.store.isEqualToDefault("n"));
    host.store.lockConf("text", "fixed"); // was flagged default
    QVERIFY(!host.store.isEqualToDefault("text"));
}

void tst_LockedConfs::clearForgetsTheLock()
{
    Host host;
    host.store.lockConf("n", 9);
    host.store.clear();
    QVERIFY(!host.store.isLocked("n"));
}

void tst_LockedConfs::keyThatIsReservedAgainIsStillLocked()
{
    Host host;
    host.store.lockConf("n", 9);
    int other = 3;
    host.store.reserveConf("n", &other);
    QCOMPARE(other, 9);
    host.load("n", entry(200, 7));
    QCOMPARE(other, 9);
    QCOMPARE(host.dumped("n"), QJsonValue(entry(200, 7)));
}

void tst_LockedConfs::releasedKeyKeepsTheValueOfTheUser()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.store.lockConf("n", 9);
    host.store.releaseConf("n");
    QCOMPARE(host.dumped("n"), QJsonValue(entry(100, 5)));
    int other = 3;
    host.store.reserveConf("n", &other);
    QCOMPARE(other, 9);
    QCOMPARE(host.dumped("n"), QJsonValue(entry(100, 5)));
}

void tst_LockedConfs::releasedEntryIsCreatedByALoad()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.store.lockConf("Entry.a", QJsonObject{{"n", 9}});
    host.store.releaseConf("Entry.a");
    host.item = {};
    host.load("Entry.a", entry(200, QJsonObject{{"n", 3}}));
    QVERIFY(host.store.mConfValues.contains("Entry.a"));
    QCOMPARE(host.item, (QJsonObject{{"n", 9}}));
    QCOMPARE(host.dumped("Entry.a"), QJsonValue(entry(200, QJsonObject{{"n", 3}})));
}

void tst_LockedConfs::lockedPresetIsMergedAndRestored()
{
    Host host;
    host.store.mPresetDynamicConfs["Entry.p"] = QJsonObject{{"n", 2}};
    host.store.loadPresetDynamicConf();
    host.store.lockConf("Entry.p", QJsonObject{{"n", 9}});
    QVERIFY(!host.store.isEqualToDefault("Entry.p"));
    QVERIFY(host.dumped("Entry.p").isUndefined());
    host.load("Entry.p", entry(200, QJsonObject{{"n", 3}}));
    QCOMPARE(host.dumped("Entry.p"), QJsonValue(entry(200, QJsonObject{{"n", 3}})));
    host.load("Entry.p", QJsonObject{{"d", 300}});
    QCOMPARE(host.dumped("Entry.p"), QJsonValue(QJsonObject{{"d", 300}}));
    host.load("Entry.p", entry(299, QJsonObject{{"n", 4}}));
    QCOMPARE(host.dumped("Entry.p"), QJsonValue(QJsonObject{{"d", 300}}));
    host.load("Entry.p", QJsonObject{{"t", 400}});
    QCOMPARE(host.dumped("Entry.p"), QJsonValue(QJsonObject{{"t", 400}}));
    host.store.restoreDynamicConf("Entry.");
    host.store.loadPresetDynamicConf();
    QCOMPARE(host.dumped("Entry.p"), QJsonValue(QJsonObject{{"t", 400}}));
    QCOMPARE(host.item, (QJsonObject{{"n", 9}}));
    QVERIFY(!host.store.isEqualToDefault("Entry.p"));
}

void tst_LockedConfs::formerNameOfALockedKeyIsMerged()
{
    Host host;
    host.store.addFormerName("n", "old");
    host.store.lockConf("n", 9);
    host.load("old", entry(99, 6));
    QCOMPARE(host.dumped("n"), QJsonValue(entry(100, 5)));
    host.load("old", entry(200, 7));
    QCOMPARE(host.dumped("n"), QJsonValue(entry(200, 7)));
    QCOMPARE(host.dumped("old"), QJsonValue(entry(200, 7)));
    QCOMPARE(host.number, 9);
}

void tst_LockedConfs::keptEntryOfALockedKeyIsMerged()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.store.lockConf("n", 9);
    host.store.releaseConf("n");
    host.load("n", entry(200, 7));
    QCOMPARE(host.dumped("n"), QJsonValue(entry(200, 7)));
    int other = 3;
    host.store.reserveConf("n", &other);
    QCOMPARE(other, 9);
    QCOMPARE(host.dumped("n"), QJsonValue(entry(200, 7)));
}

void tst_LockedConfs::lockedDynamicEntryIsNotRemoved()
{
    const LogCapture log;
    Host host;
    host.store.lockConf("Entry.a", QJsonObject{{"n", 9}});
    host.store.removeDynamicConf("Entry.a");
    host.store.restoreDynamicConf("Entry.");
    QVERIFY(host.store.loadLoadDynamicConf("Entry.a", QJsonObject{{"d", 200}},
                                           host.store.findDynamicConfClass("Entry.a")));
    QCOMPARE(host.removals, 0);
    QCOMPARE(host.item, (QJsonObject{{"n", 9}}));
    QVERIFY(host.store.mConfValues.contains("Entry.a"));
}

void tst_LockedConfs::removalOfALockedEntryIsDumped()
{
    Host host;
    host.store.lockConf("Entry.a", QJsonObject{{"n", 9}});
    QCOMPARE(host.dumped("Entry.a"), QJsonValue(entry(100, QJsonObject{{"n", 1}})));
    host.load("Entry.a", QJsonObject{{"d", 200}});
    QCOMPARE(host.dumped("Entry.a"), QJsonValue(QJsonObject{{"d", 200}}));
    QVERIFY(host.store.mConfValues.contains("Entry.a"));
    host.load("Entry.a", entry(300, QJsonObject{{"n", 3}}));
    QCOMPARE(host.dumped("Entry.a"), QJsonValue(entry(300, QJsonObject{{"n", 3}})));
    QCOMPARE(host.item, (QJsonObject{{"n", 9}}));
}

void tst_LockedConfs::createdEntryReplacesTheRemovalOfALockedOne()
{
    Host host;
    host.store.lockConf("Entry.a", QJsonObject{{"n", 9}});
    host.load("Entry.a", QJsonObject{{"d", 200}});
    host.store.releaseConf("Entry.a");
    host.store.createDynamicConf("Entry.a", QJsonObject{{"n", 4}}, nullptr);
    host.store.mConfMetas["Entry.a"].lastChangeTime = second(300);
    QCOMPARE(host.dumped("Entry.a"), QJsonValue(entry(300, QJsonObject{{"n", 4}})));
    QCOMPARE(host.item, (QJsonObject{{"n", 9}}));
}

void tst_LockedConfs::refusedEntryOfALockedKeyIsKept()
{
    const LogCapture log;
    Host host(ConfStorage::StrictTypes | ConfStorage::KeepUnknownEntries);
    host.store.lockConf("n", 9);
    host.load("n", entry(200, "many"), ConfStorage::LoadLocal);
    QCOMPARE(host.store.lastLoad().refusedCount, 1);
    QCOMPARE(host.dumped("n"), QJsonValue(entry(200, "many")));
}

void tst_LockedConfs::previewListsALockedKeyWithTheLockedValue()
{
    Host host;
    host.store.lockConf("n", 9);
    const auto changes = host.store.previewLoad({{"n", entry(200, 7)}}, ConfStorage::LoadShared);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().after.value, QJsonValue(9));
    QCOMPARE(changes.first().time, second(200));
    QCOMPARE(host.dumped("n"), QJsonValue(entry(100, 5)));
}

void tst_LockedConfs::callbackOfTheLockMayClearTheStore()
{
    Host host;
    host.store.setConfChangedCallback(
        "n", [&](const QString &, const ConfValue *) { host.store.clear(); });
    host.store.lockConf("n", 9);
    QVERIFY(!host.store.isLocked("n"));
}

int main(int argc, char **argv)
{
    return runTest<tst_LockedConfs>(argc, argv);
}

#include "tst_LockedConfs.moc"
