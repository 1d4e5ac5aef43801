#include "support/Entries.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Reason = ConfLoadReport::Reason;
using Counts = QVector<int>; // taken, newer here, unknown, refused

const char sPath[] = "local.json";

/// A store with settings, a class of dynamic entries and a preset. The setting "n" and the entry
/// "Entry.a" changed in second 100, "Entry.gone" was removed then, and "fresh" never changed.
class Host
{
public:
    Host()
    {
        store.mLocalSaveFile = sPath;
        store.reserveConf("n", &number);
        store.reserveConf("fresh", &fresh);
        store.reserveConf("local", &local);
        store.mConfMetas["local"].flags |= ConfStorage::FlagLocalOnly;
        mClass.prefix = "Entry.";
        mClass.creator = [this](const QString &key, const QJsonValue *value) {
            if (key == QLatin1String("Entry.refusing"))
                store.loadSingleConf(key, entry(1000, 1), ConfStorage::LoadLocal);
            entries[key] = value->toObject();
            store.reserveConf(key, &entries[key]);
        };
        store.mDynamicConfClasses = {&mClass};
        store.mPresetDynamicConfs.insert("Entry.preset", QJsonObject{{"n", 1}});
        store.createDynamicConf("Entry.a", QJsonObject{{"n", 1}}, nullptr);
        store.mConfMetas["Entry.a"].lastChangeTime = second(100);
        store.set("n", 5);
        store.mConfMetas["n"].lastChangeTime = second(100);
        store.mRemovedDynamicConfs["Entry.gone"] = second(100);
    }
    Q_DISABLE_COPY(Host)

    Counts load(const QJsonObject &dump, ConfStorage::LoadConfType type = ConfStorage::LoadShared)
    {
        store.loadConf(dump, type);
        return counts();
    }
    Counts counts() const
    {
        const ConfLoadReport report = store.lastLoad();
        return {report.taken, report.newerHere, report.unknown, report.refusedCount};
    }

    int number = 1, fresh = 1, local = 1;
    std::map<QString, QJsonObject> entries;
    ConfStorage store;

private:
    ConfStorage::DynamicConfClass mClass;
};

} // namespace

/// What `lastLoad` tells about a load.
class tst_ConfLoadReport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void storeThatLoadedNothingHasAnEmptyReport();
    void entryIsCounted_data();
    void entryIsCounted();
    void textAndObjectAreCountedAlike();
    void entriesThatAreTooLateAreRefused();
    void valueThatNoFileCanHoldIsRefused();
    void keyThatIsTooLongIsRefused();
    void twentyRefusedEntriesAreNamedAndAllAreCounted();
    void fileOfALoadIsNamed();
    void dumpHasNoFile();
    void textThatIsNoObjectIsDamaged_data();
    void textThatIsNoObjectIsDamaged();
    void missingFileIsNotDamaged();
    void eachLoadHasItsOwnReport();
    void loadInACallbackHasAReportOfItsOwn();
    void singleMemberHasNoReport();
    void clearForgetsTheReport();
};

void tst_ConfLoadReport::storeThatLoadedNothingHasAnEmptyReport()
{
    const Host host;
    QCOMPARE(host.counts(), (Counts{0, 0, 0, 0}));
    QVERIFY(host.store.lastLoad().file.isEmpty());
    QVERIFY(!host.store.lastLoad().isDamaged);
}

void tst_ConfLoadReport::entryIsCounted_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("entry");
    QTest::addColumn<Counts>("shared");
    QTest::addColumn<Counts>("local");
    const Counts taken{1, 0, 0, 0}, newerHere{0, 1, 0, 0}, unknown{0, 0, 1, 0}, skipped{0, 0, 0, 0};
    const QJsonObject value{{"n", 2}};
    const auto row = [](const char *name, const char *key, const QJsonValue &json,
                        const Counts &shared) {
        QTest::newRow(name) << key << json << shared << shared;
    };
    row("newer value", "n", entry(101, 7), taken);
    row("newer entry with the same value", "n", entry(101, 5), taken);
    row("newer default value", "n", QJsonObject{{"t", 101}}, taken);
    row("value without a timestamp", "n", QJsonObject{{"v", 7}}, taken);
    row("no entry but a number", "n", 7, taken);
    row("setting that never changed", "fresh", entry(1, 7), taken);
    row("setting that never changed, default value", "fresh", QJsonObject{{"t", 1}}, taken);
    row("equal timestamp", "n", entry(100, 7), newerHere);
    row("older value", "n", entry(99, 7), newerHere);
    row("unknown setting", "other", entry(101, 7), unknown);
    row("unknown setting, default value", "other", QJsonObject{{"t", 101}}, unknown);
    row("setting of this system", "n#s.mac", entry(101, 7), taken);
    row("setting of another system", "n#s.win", entry(101, 7), skipped);
    QTest::newRow("local-only setting") << "local" << QJsonValue(entry(1, 7)) << skipped << taken;
    row("newer dynamic entry", "Entry.a", entry(101, value), taken);
    row("new dynamic entry", "Entry.b", entry(1, value), taken);
    row("newer removal", "Entry.a", QJsonObject{{"d", 101}}, taken);
    row("removal of an entry that is not here", "Entry.b", QJsonObject{{"d", 1}}, taken);
    row("newer removal of a removed entry", "Entry.gone", QJsonObject{{"d", 101}}, taken);
    row("older removal", "Entry.a", QJsonObject{{"d", 99}}, newerHere);
    row("older removal of a removed entry", "Entry.gone", QJsonObject{{"d", 99}}, newerHere);
    row("value older than the removal", "Entry.gone", entry(99, value), newerHere);
    row("value newer than the removal", "Entry.gone", entry(101, value), taken);
    row("default value of a dynamic entry", "Entry.a", QJsonObject{{"t", 101}}, taken);
    row("default value of a preset", "Entry.preset", QJsonObject{{"t", 101}}, taken);
    row("default value without a preset", "Entry.b", QJsonObject{{"t", 101}}, unknown);
}

void tst_ConfLoadReport::entryIsCounted()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, entry);
    const LogCapture log;
    Host sharedHost, localHost;
    QTEST(sharedHost.load({{key, entry}}, ConfStorage::LoadShared), "shared");
    QTEST(localHost.load({{key, entry}}, ConfStorage::LoadLocal), "local");
    QVERIFY(localHost.store.lastLoad().refused.isEmpty());
}

void tst_ConfLoadReport::textAndObjectAreCountedAlike()
{
    const QByteArray text = R"({"Entry.b":{"t":9,"v":{}},"fresh":{"t":101,"v":7},)"
                            R"("n":{"t":99,"v":7},"x":{"t":5}})";
    for (const QByteArray &json : {text, QByteArray(text).replace(":", ": ")}) {
        Host host;
        QVERIFY(host.store.loadConf(QString::fromUtf8(json), ConfStorage::LoadShared));
        QCOMPARE(host.counts(), (Counts{2, 1, 1, 0}));
    }
}

void tst_ConfLoadReport::entriesThatAreTooLateAreRefused()
{
    const LogCapture log;
    Host host;
    host.store.mFileOptions = ConfStorage::RefuseFutureTimes | ConfStorage::LongTimes;
    const QJsonObject dump{{"fresh", entry(101, 7)}, {"n", entry(253370764800, 7)}};
    QCOMPARE(host.load(dump), (Counts{1, 0, 0, 1}));
    const QVector<ConfLoadReport::Refusal> refused = host.store.lastLoad().refused;
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.first().key, QString("n"));
    QCOMPARE(refused.first().reason, Reason::FutureTime);
    QCOMPARE(host.load(dump, ConfStorage::LoadLocal), (Counts{1, 1, 0, 0}));
}

void tst_ConfLoadReport::valueThatNoFileCanHoldIsRefused()
{
    const LogCapture log;
    Host host;
    host.store.mMaxFileSize = 100;
    const QString text(200, 'x');
    QCOMPARE(host.load({{"n", entry(101, text)}, {"Entry.b", entry(101, text)}}),
             (Counts{0, 0, 0, 2}));
    QCOMPARE(host.store.lastLoad().refused.first().key, QString("Entry.b"));
    QCOMPARE(host.store.lastLoad().refused.first().reason, Reason::NotSavable);
}

void tst_ConfLoadReport::keyThatIsTooLongIsRefused()
{
    const LogCapture log;
    Host host;
    const QString key = "Entry." + QString(65536, 'x');
    QCOMPARE(host.load({{key, entry(101, 1)}}), (Counts{0, 0, 0, 1}));
    QCOMPARE(host.load({{key, QJsonObject{{"d", 101}}}}), (Counts{0, 0, 0, 1}));
    QCOMPARE(host.store.lastLoad().refused.first().key, key);
    QCOMPARE(host.store.lastLoad().refused.first().reason, Reason::LimitExceeded);
}

void tst_ConfLoadReport::twentyRefusedEntriesAreNamedAndAllAreCounted()
{
    const LogCapture log;
    Host host;
    host.store.mMaxFileSize = 100;
    QJsonObject dump;
    for (int i = 10; i < 35; ++i)
        dump.insert(QString("Entry.%1").arg(i), entry(101, QString(200, 'x')));
    QCOMPARE(host.load(dump), (Counts{0, 0, 0, 25}));
    QCOMPARE(host.store.lastLoad().refused.size(), 20);
    QCOMPARE(host.store.lastLoad().refused.last().key, QString("Entry.29"));
}

void tst_ConfLoadReport::fileOfALoadIsNamed()
{
    const LogCapture log;
    Host host;
    host.store.saveToLocalConfFile();
    Host next;
    next.store.loadLocalConfFile();
    QCOMPARE(next.store.lastLoad().file, QString(sPath));
    QCOMPARE(next.counts(), (Counts{0, 3, 0, 0}));
    QVERIFY(!next.store.lastLoad().isDamaged);
}

void tst_ConfLoadReport::dumpHasNoFile()
{
    Host host;
    host.load({{"n", entry(101, 7)}});
    QVERIFY(host.store.lastLoad().file.isEmpty());
}

void tst_ConfLoadReport::textThatIsNoObjectIsDamaged_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isDamaged");
    QTest::newRow("truncated object") << QByteArray(R"({"n":{"t":101,"v":)") << true;
    QTest::newRow("web page") << QByteArray("<html></html>") << true;
    QTest::newRow("array") << QByteArray("[]") << true;
    QTest::newRow("empty object") << QByteArray("{}") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void tst_ConfLoadReport::textThatIsNoObjectIsDamaged()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isDamaged);
    const LogCapture log;
    Host host;
    host.store.loadConf(QString::fromUtf8(text), ConfStorage::LoadShared);
    QCOMPARE(host.store.lastLoad().isDamaged, isDamaged);

    QFile file(sPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    host.store.loadLocalConfFile();
    QCOMPARE(host.store.lastLoad().isDamaged, isDamaged);
    QCOMPARE(host.store.lastLoad().file, QString(sPath));
    QCOMPARE(host.counts(), (Counts{0, 0, 0, 0}));
}

void tst_ConfLoadReport::missingFileIsNotDamaged()
{
    Host host;
    host.store.loadLocalConfFile();
    QVERIFY(!host.store.lastLoad().isDamaged);
    QCOMPARE(host.store.lastLoad().file, QString(sPath));
}

void tst_ConfLoadReport::eachLoadHasItsOwnReport()
{
    Host host;
    QCOMPARE(host.load({{"n", entry(101, 7)}}), (Counts{1, 0, 0, 0}));
    QCOMPARE(host.load({{"n", entry(101, 7)}, {"x", 1}}), (Counts{0, 1, 1, 0}));
    QCOMPARE(host.load({}), (Counts{0, 0, 0, 0}));
}

void tst_ConfLoadReport::loadInACallbackHasAReportOfItsOwn()
{
    Host host;
    Counts inside;
    host.store.setConfChangedCallback("fresh", [&](const QString &, const ConfValue *) {
        inside = host.load({{"n", entry(102, 8)}, {"x", 1}, {"y", 1}});
    });
    const Counts outside = host.load({{"fresh", entry(101, 7)}, {"n", entry(101, 7)}});
    QCOMPARE(inside, (Counts{1, 0, 2, 0}));
    QCOMPARE(outside, (Counts{1, 1, 0, 0}));
}

void tst_ConfLoadReport::singleMemberHasNoReport()
{
    const LogCapture log;
    Host host;
    host.load({{"n", entry(101, 7)}});
    host.store.loadSingleConf("x", 1, ConfStorage::LoadShared);
    QCOMPARE(host.counts(), (Counts{1, 0, 0, 0}));
    // A creator that loads its own key leaves the key without a record.
    QCOMPARE(host.load({{"Entry.refusing", entry(101, QJsonObject())}}), (Counts{1, 0, 0, 0}));
}

void tst_ConfLoadReport::clearForgetsTheReport()
{
    Host host;
    host.load({{"n", entry(101, 7)}});
    host.store.clear();
    QCOMPARE(host.counts(), (Counts{0, 0, 0, 0}));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfLoadReport>(argc, argv);
}

#include "tst_ConfLoadReport.moc"
