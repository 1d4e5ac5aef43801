#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr qint64 sYear9999 = 253370764800; // 1 January 9999, midnight UTC
constexpr qint64 sDay = 86400;
const char sPath[] = "local.json";

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// A store with settings of several types and a class of dynamic entries.
class Host
{
public:
    explicit Host(quint32 options = 0)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = sPath;
        store.reserveConf("number", &number);
        store.reserveConf("real", &real);
        store.reserveConf("text", &text);
        store.reserveConf("font", &font);
        store.reserveConf("object", &object);
        cls.prefix = "Entry.";
        cls.creator = [this](const QString &key, const QJsonValue *value) {
            QJsonObject &entry = entries[key] = value->toObject();
            store.reserveConf(key, &entry);
        };
        cls.remover = [this](const QString &key) { entries.erase(key); };
        store.mDynamicConfClasses = {&cls};
        store.mPresetDynamicConfs.insert("Entry.preset", QJsonObject{{"n", 0}});
    }
    Q_DISABLE_COPY(Host)

    qint64 time(const QString &key) const
    {
        return store.mConfMetas.value(key).lastChangeTime.toSecsSinceEpoch();
    }
    void save()
    {
        store.mChanged = true;
        store.saveToLocalConfFile();
    }
    bool load(const QByteArray &json, ConfStorage::LoadConfType type = ConfStorage::LoadShared)
    {
        return store.loadConf(QString::fromUtf8(json), type);
    }

    int number = 1;
    double real = 0.5;
    QString text = "default";
    QFont font;
    QJsonObject object{{"default", 1}};
    std::map<QString, QJsonObject> entries;
    ConfStorage::DynamicConfClass cls;
    ConfStorage store;
};

QByteArray savedText()
{
    QFile file(sPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Values and timestamps that a file cannot hold or that do harm, and the options for them.
class tst_ConfStorageLoadOptions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void robustFilesSetEveryOption();
    void numberThatJsonDoesNotHaveIsDumpedAsDefault_data();
    void numberThatJsonDoesNotHaveIsDumpedAsDefault();
    void numberThatJsonDoesNotHaveIsTextInsideOfObjects();
    void byteOrderMarkAtTheStartOfTextIsKept_data();
    void byteOrderMarkAtTheStartOfTextIsKept();
    void nullUnbindsByDefault();
    void nullIsTheDefaultWithTheOption_data();
    void nullIsTheDefaultWithTheOption();
    void nullOfADynamicEntryIsTheDefaultWithTheOption();
    void nullOfAConfigurationFileRestoresTheDefaultWithTheOption();
    void timestampAfter2038CountsAsZeroByDefault();
    void timestampAfter2038IsReadWithTheOption_data();
    void timestampAfter2038IsReadWithTheOption();
    void timestampOutOfRangeCountsAsZeroWithTheOption_data();
    void timestampOutOfRangeCountsAsZeroWithTheOption();
    void futureTimestampIsSilentByDefault();
    void futureTimestampIsRefusedByASharedLoad_data();
    void futureTimestampIsRefusedByASharedLoad();
    void futureTimestampOfTheLocalFileIsReportedAndLoaded();
    void futureTimestampOfAnUnknownKeyIsSilent();
    void firstKeyOfTheReportIsTruncated();
};

void tst_ConfStorageLoadOptions::robustFilesSetEveryOption()
{
    ConfStorage store;
    QCOMPARE(store.mFileOptions, 0U);
    store.useRobustFiles();
    QCOMPARE(store.mFileOptions, 0xfffU);
}

void tst_ConfStorageLoadOptions::numberThatJsonDoesNotHaveIsDumpedAsDefault_data()
{
    QTest::addColumn<double>("number");
    QTest::newRow("infinity") << qInf();
    QTest::newRow("minus infinity") << -qInf();
    QTest::newRow("not a number") << qQNaN();
}

void tst_ConfStorageLoadOptions::numberThatJsonDoesNotHaveIsDumpedAsDefault()
{
    QFETCH(double, number);
    Host host;
    host.store.set<double>("real", number);
    host.store.set<int>("number", 5);
    host.store.mConfMetas["real"].lastChangeTime = QDateTime::fromSecsSinceEpoch(100, Qt::UTC);
    host.store.mConfMetas["number"].lastChangeTime = QDateTime::fromSecsSinceEpoch(100, Qt::UTC);
    const QByteArray expected = R"({"number":{"t":100,"v":5},"real":{"t":100}})";
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpShared)), expected);
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpChangedOnly)),
             QByteArray(R"({"number":{"v":5}})"));
    host.save();
    QCOMPARE(savedText(), expected);

    Host next;
    next.real = 7;
    next.store.loadLocalConfFile();
    QCOMPARE(next.number, 5);
    QCOMPARE(next.time("real"), qint64(100));
    next.store.set<double>("real", 2.5);
    QCOMPARE(next.real, 2.5);

    Host other;
    other.store.set<double>("real", 3);
    other.store.mConfMetas["real"].lastChangeTime = QDateTime::fromSecsSinceEpoch(99, Qt::UTC);
    other.load(expected);
    QCOMPARE(other.real, 0.5);
}

void tst_ConfStorageLoadOptions::numberThatJsonDoesNotHaveIsTextInsideOfObjects()
{
    Host host;
    host.store.set<QJsonObject>("object", {{"list", QJsonArray{qInf(), -qInf(), qQNaN(), 1}}});
    host.save();
    QVERIFY2(savedText().endsWith(R"("v":{"list":["inf","-inf","nan",1]}}})"), savedText());
    Host next;
    next.store.loadLocalConfFile();
    QCOMPARE(next.object, (QJsonObject{{"list", QJsonArray{"inf", "-inf", "nan", 1}}}));
}

void tst_ConfStorageLoadOptions::byteOrderMarkAtTheStartOfTextIsKept_data()
{
    QTest::addColumn<QString>("text");
    const QString mark(QChar(QChar::ByteOrderMark));
    QTest::newRow("alone") << mark;
    QTest::newRow("twice") << mark + mark;
    QTest::newRow("before text") << mark + "a";
    QTest::newRow("before a quote") << mark + "\"";
    QTest::newRow("before another script") << mark + QString::fromUtf8("日本");
    QTest::newRow("inside") << "a" + mark;
}

void tst_ConfStorageLoadOptions::byteOrderMarkAtTheStartOfTextIsKept()
{
    QFETCH(QString, text);
    Host host, next;
    QString named, nextNamed;
    host.store.reserveConf(text, &named);
    next.store.reserveConf(text, &nextNamed);
    host.store.set<QString>(text, "key");
    host.store.set<QString>("text", text);
    const QJsonObject object{{text, QJsonArray{text}}};
    host.store.set<QJsonObject>("object", object);
    host.save();
    next.store.loadLocalConfFile();
    QCOMPARE(next.text, text);
    QCOMPARE(next.object, object);
    QCOMPARE(nextNamed, QString("key"));
    const QByteArray saved = savedText();
    next.save();
    QCOMPARE(savedText(), saved);
}

void tst_ConfStorageLoadOptions::nullUnbindsByDefault()
{
    Host host;
    QVERIFY(host.load(R"({"number":{"t":5,"v":null}})"));
    QCOMPARE(host.store.mConfValues["number"].mType, ConfValue::TyNone);
}

void tst_ConfStorageLoadOptions::nullIsTheDefaultWithTheOption_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"number", "real", "text", "font", "object"})
        QTest::newRow(key) << key;
}

void tst_ConfStorageLoadOptions::nullIsTheDefaultWithTheOption()
{
    QFETCH(QString, key);
    const QByteArray json = QString(R"({"%1":{"t":2000,"v":null}})").arg(key).toUtf8();
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    for (const bool isText : {false, true}) {
        Host host(ConfStorage::NullIsDefault);
        const ConfValue before = ConfValue(host.store.mConfMetas[key].defaultValue);
        host.store.set<int>("number", 9);
        host.store.set<double>("real", 9);
        host.store.set<QString>("text", "9");
        host.store.set<QFont>("font", QFont("Serif", 99));
        host.store.set<QJsonObject>("object", {});
        host.store.mConfMetas[key].lastChangeTime = QDateTime::fromSecsSinceEpoch(1000, Qt::UTC);
        int calls = 0;
        host.store.setConfChangedCallback(key,
                                          [&](const QString &, const ConfValue *) { ++calls; });
        const LogCapture log;
        if (isText)
            host.load(json);
        else
            host.store.loadConf(object, ConfStorage::LoadLocal);
        QVERIFY(host.store.mConfValues[key] == before);
        QVERIFY(host.store.mConfValues[key].mIsPtr);
        QVERIFY(host.store.isEqualToDefault(key));
        QCOMPARE(host.time(key), qint64(2000));
        QCOMPARE(calls, 1);
        QVERIFY(log.messages().isEmpty());
    }
}

void tst_ConfStorageLoadOptions::nullOfADynamicEntryIsTheDefaultWithTheOption()
{
    Host host(ConfStorage::NullIsDefault);
    host.load(R"({"Entry.preset":{"t":2000,"v":null}})");
    QCOMPARE(host.entries["Entry.preset"], (QJsonObject{{"n", 0}}));
    host.load(R"({"Entry.preset":{"t":2001,"v":{"n":1}}})");
    QCOMPARE(host.entries["Entry.preset"], (QJsonObject{{"n", 1}}));
    host.load(R"({"Entry.preset":{"t":2002,"v":null}})");
    QCOMPARE(host.entries["Entry.preset"], (QJsonObject{{"n", 0}}));
    QCOMPARE(host.time("Entry.preset"), qint64(2002));
}

void tst_ConfStorageLoadOptions::nullOfAConfigurationFileRestoresTheDefaultWithTheOption()
{
    Host host(ConfStorage::NullIsDefault);
    host.store.set<int>("number", 9);
    host.store.loadValueFromJson("number", QJsonValue());
    QCOMPARE(host.number, 1);
    QVERIFY(host.store.mConfValues["number"].mIsPtr);
    host.store.loadValueFromJson("Entry.preset", QJsonValue());
    QVERIFY(host.entries.empty());
}

void tst_ConfStorageLoadOptions::timestampAfter2038CountsAsZeroByDefault()
{
    Host host;
    host.load(R"({"number":{"t":2147483648,"v":5}})");
    QCOMPARE(host.number, 5);
    QCOMPARE(host.time("number"), qint64(0));
}

void tst_ConfStorageLoadOptions::timestampAfter2038IsReadWithTheOption_data()
{
    QTest::addColumn<qint64>("time");
    QTest::newRow("first beyond 32 bits") << qint64(2147483648LL);
    QTest::newRow("first below 32 bits") << qint64(-2147483649LL);
    QTest::newRow("year 9999") << sYear9999;
    QTest::newRow("last") << qint64(9007199254740991LL);
    QTest::newRow("almost the first") << qint64(-9007199254740990LL);
    QTest::newRow("now") << qint64(1700000000);
}

void tst_ConfStorageLoadOptions::timestampAfter2038IsReadWithTheOption()
{
    QFETCH(qint64, time);
    Host host(ConfStorage::LongTimes);
    const QByteArray seconds = QByteArray::number(time);
    const QByteArray dump = R"({"Entry.1":{"t":)" + seconds + R"(,"v":{"n":5}},"Entry.2":{"d":)"
                            + seconds + R"(},"number":{"t":)" + seconds + R"(,"v":5}})";
    QVERIFY(host.load(dump));
    QCOMPARE(host.time("number"), time);
    QCOMPARE(host.time("Entry.1"), time);
    QCOMPARE(host.store.mRemovedDynamicConfs["Entry.2"].toSecsSinceEpoch(), time);
    host.save();
    QCOMPARE(savedText(), dump);
    // From a parsed document, which another parser reads.
    Host other(ConfStorage::LongTimes);
    other.load('\n' + dump);
    other.save();
    QCOMPARE(savedText(), dump);
    // The newer change wins.
    host.load(R"({"number":{"t":)" + QByteArray::number(time - 1) + R"(,"v":6}})");
    QCOMPARE(host.number, 5);
}

void tst_ConfStorageLoadOptions::timestampOutOfRangeCountsAsZeroWithTheOption_data()
{
    QTest::addColumn<QByteArray>("time");
    for (const char *time :
         {"9007199254740992", "-9007199254740992", "9007199254740993", "999999999999999999",
          "1e300", "-1e300", "5000000000.5", "0.5", "\"5000000000\"", "true", "null"})
        QTest::newRow(time) << QByteArray(time);
}

void tst_ConfStorageLoadOptions::timestampOutOfRangeCountsAsZeroWithTheOption()
{
    QFETCH(QByteArray, time);
    for (const QByteArray &start : {QByteArray(), QByteArray("\n")}) {
        Host host(ConfStorage::LongTimes);
        QVERIFY(host.load(start + R"({"number":{"t":)" + time + R"(,"v":5}})"));
        QCOMPARE(host.number, 5);
        QCOMPARE(host.time("number"), qint64(0));
    }
}

namespace {

/// Returns a dump with three entries that far ahead of now, and one of now.
QByteArray dumpAhead(qint64 seconds)
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    return compact({{"number", QJsonObject{{"t", now + seconds}, {"v", 5}}},
                    {"Entry.1", QJsonObject{{"t", now + seconds}, {"v", QJsonObject()}}},
                    {"Entry.2", QJsonObject{{"d", now + seconds}}},
                    {"real", QJsonObject{{"t", now}, {"v", 2.5}}}});
}

} // namespace

void tst_ConfStorageLoadOptions::futureTimestampIsSilentByDefault()
{
    Host host;
    const LogCapture log;
    host.load(dumpAhead(30 * sDay));
    QCOMPARE(host.number, 5);
    QVERIFY(host.time("number") > QDateTime::currentSecsSinceEpoch() + 20 * sDay);
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfStorageLoadOptions::futureTimestampIsRefusedByASharedLoad_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("a minute") << qint64(60) << false;
    QTest::newRow("almost a day") << sDay - 60 << false;
    QTest::newRow("more than a day") << sDay + 60 << true;
    QTest::newRow("a thousand years") << 365250 * sDay << true;
}

void tst_ConfStorageLoadOptions::futureTimestampIsRefusedByASharedLoad()
{
    QFETCH(qint64, seconds);
    QFETCH(bool, isRefused);
    const QByteArray dump = dumpAhead(seconds);
    for (const bool isText : {false, true}) {
        Host host(ConfStorage::RefuseFutureTimes | ConfStorage::LongTimes);
        const LogCapture log;
        if (isText)
            host.load(dump);
        else
            host.store.loadConf(QJsonDocument::fromJson(dump).object(), ConfStorage::LoadShared);
        QCOMPARE(host.number, isRefused ? 1 : 5);
        QCOMPARE(host.entries.size(), isRefused ? 0u : 1u);
        QCOMPARE(host.store.mRemovedDynamicConfs.size(), isRefused ? 0 : 1);
        QCOMPARE(host.real, 2.5);
        const QStringList expected{
            "ConfStorage::loadConf() timestamps too far ahead refused:  3 \"Entry.1\""};
        QCOMPARE(log.texts(QtWarningMsg), isRefused ? expected : QStringList());
    }
}

void tst_ConfStorageLoadOptions::futureTimestampOfTheLocalFileIsReportedAndLoaded()
{
    Host host(ConfStorage::RefuseFutureTimes);
    QFile file(sPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(dumpAhead(30 * sDay));
    file.close();
    const LogCapture log;
    host.store.loadLocalConfFile();
    QCOMPARE(host.number, 5);
    QVERIFY(host.entries.count("Entry.1"));
    QCOMPARE(log.texts(QtWarningMsg),
             QStringList("ConfStorage::loadConf() timestamps too far ahead:  3 \"Entry.1\""));
}

void tst_ConfStorageLoadOptions::futureTimestampOfAnUnknownKeyIsSilent()
{
    Host host(ConfStorage::RefuseFutureTimes | ConfStorage::LongTimes);
    const LogCapture log;
    host.load(R"({"number#s.win":{"t":253370764800,"v":5},"unknown":{"t":253370764800,"v":5}})");
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfStorageLoadOptions::firstKeyOfTheReportIsTruncated()
{
    Host host(ConfStorage::RefuseFutureTimes | ConfStorage::LongTimes);
    const LogCapture log;
    host.load(R"({"Entry.)" + QByteArray(100000, 'x') + R"(":{"t":253370764800,"v":{}}})");
    QCOMPARE(log.messages().size(), 1);
    QVERIFY(log.messages().first().text.size() < 300);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageLoadOptions>(argc, argv);
}

#include "tst_ConfStorageLoadOptions.moc"
