#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const char sPath[] = "local.json";

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray savedText()
{
    QFile file(sPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QByteArray &text)
{
    QFile file(sPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

/// A store with one setting, "number", that keeps unknown entries.
class Host
{
public:
    explicit Host(quint32 options = ConfStorage::KeepUnknownEntries)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = sPath;
        store.reserveConf("number", &number);
    }
    Q_DISABLE_COPY(Host)

    QByteArray save()
    {
        store.mChanged = true;
        store.saveToLocalConfFile();
        return savedText();
    }
    bool load(const QByteArray &json, ConfStorage::LoadConfType type = ConfStorage::LoadShared)
    {
        return store.loadConf(QString::fromUtf8(json), type);
    }
    qint64 time(const QString &key) const
    {
        return store.mConfMetas.value(key).lastChangeTime.toSecsSinceEpoch();
    }

    int number = 1;
    ConfStorage store;
};

} // namespace

/// The entries of a file whose keys are not declared, with `ConfStorage::KeepUnknownEntries`.
class tst_KeptEntries : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void unknownEntryIsDroppedByDefault();
    void unknownEntryIsWrittenBackAsItWas_data();
    void unknownEntryIsWrittenBackAsItWas();
    void newerUnknownEntryWins_data();
    void newerUnknownEntryWins();
    void unknownEntryOfADumpIsSaved();
    void unknownEntryIsInLocalDumpsOnly();
};

void tst_KeptEntries::unknownEntryIsDroppedByDefault()
{
    write(R"({"a":{"t":100,"v":1},"number":{"t":100,"v":2},"number#s.win":{"t":100,"v":2}})");
    Host host(0);
    host.store.loadLocalConfFile();
    QCOMPARE(host.save(), QByteArray(R"({"number":{"t":100,"v":2}})"));
}

void tst_KeptEntries::unknownEntryIsWrittenBackAsItWas_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::newRow("value") << QByteArray(R"("a":{"t":100,"v":[1,{"x":null}]})");
    QTest::newRow("default value") << QByteArray(R"("a":{"t":100})");
    QTest::newRow("null") << QByteArray(R"("a":{"t":100,"v":null})");
    QTest::newRow("removal") << QByteArray(R"("a":{"d":100})");
    QTest::newRow("sorted behind the setting") << QByteArray(R"("z":{"t":100,"v":1})");
    QTest::newRow("system mark") << QByteArray(R"("a#s.mac":{"t":100,"v":1})");
    QTest::newRow("mark of another system") << QByteArray(R"("number#s.win":{"t":100,"v":1})");
    QTest::newRow("timestamp after 2038") << QByteArray(R"("a":{"t":5000000000,"v":1})");
    QTest::newRow("timestamp of another form") << QByteArray(R"("a":{"t":"now","v":1})");
    QTest::newRow("timestamp zero") << QByteArray(R"("a":{"t":0,"v":1})");
    QTest::newRow("further members") << QByteArray(R"("a":{"by":"me","t":100,"v":1})");
    QTest::newRow("nothing") << QByteArray(R"("a":{})");
    QTest::newRow("not an entry") << QByteArray(R"("a":[5,"text"])");
    QTest::newRow("name beyond ASCII") << QByteArray("\"\xc3\xa4\":{\"t\":100,\"v\":\"\xc3\xa4\"}");
    QTest::newRow("largest exact number") << QByteArray(R"("a":{"t":100,"v":9007199254740991})");
    QTest::newRow("fraction") << QByteArray(R"("a":{"t":100,"v":0.1})");
}

void tst_KeptEntries::unknownEntryIsWrittenBackAsItWas()
{
    QFETCH(QByteArray, member);
    const QByteArray setting = R"("number":{"t":100,"v":2})";
    const bool isBefore = member < setting;
    const QByteArray text = '{' + (isBefore ? member + ',' + setting : setting + ',' + member)
                            + '}';
    write(text);
    {
        Host host;
        host.store.loadLocalConfFile();
        QVERIFY(!host.store.mChanged);
        QCOMPARE(host.save(), text);
        host.store.loadLocalConfFile();
        QCOMPARE(host.save(), text);
    }
    QFile::remove(sPath);
    Host other;
    other.load(text, ConfStorage::LoadShared);
    QVERIFY(other.store.mChanged);
    QCOMPARE(other.save(), text);
}

void tst_KeptEntries::newerUnknownEntryWins_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("incoming");
    QTest::addColumn<QByteArray>("result");
    const QByteArray old = R"({"a":{"t":100,"v":1}})";
    QTest::newRow("newer") << old << QByteArray(R"({"a":{"t":101,"v":2}})")
                           << QByteArray(R"({"a":{"t":101,"v":2}})");
    QTest::newRow("older") << old << QByteArray(R"({"a":{"t":99,"v":2}})") << old;
    QTest::newRow("tie") << old << QByteArray(R"({"a":{"t":100,"v":2}})") << old;
    QTest::newRow("newer removal")
        << old << QByteArray(R"({"a":{"d":101}})") << QByteArray(R"({"a":{"d":101}})");
    QTest::newRow("older than a removal")
        << QByteArray(R"({"a":{"d":101}})") << old << QByteArray(R"({"a":{"d":101}})");
    QTest::newRow("beyond 32 bits") << QByteArray(R"({"a":{"t":5000000000,"v":1}})")
                                    << QByteArray(R"({"a":{"t":5000000001,"v":2}})")
                                    << QByteArray(R"({"a":{"t":5000000001,"v":2}})");
    QTest::newRow("no entry") << old << QByteArray(R"({"a":5})") << old;
    QTest::newRow("empty entry") << old << QByteArray(R"({"a":{}})") << old;
    QTest::newRow("instead of no entry") << QByteArray(R"({"a":5})") << old << old;
}

void tst_KeptEntries::newerUnknownEntryWins()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, incoming);
    QFETCH(QByteArray, result);
    write(stored);
    Host host;
    host.store.loadLocalConfFile();
    host.load(incoming);
    QCOMPARE(host.store.mChanged, result != stored);
    QCOMPARE(host.save(), result);
}

void tst_KeptEntries::unknownEntryOfADumpIsSaved()
{
    Host host;
    host.store.loadSingleConf("a", QJsonObject{{"t", 100}, {"v", 5}}, ConfStorage::LoadShared);
    QVERIFY(host.store.mChanged);
    host.store.loadConf(QJsonObject{{"b", QJsonObject{{"t", 100}, {"v", 6}}}},
                        ConfStorage::LoadLocal);
    host.store.saveToLocalConfFile();
    QCOMPARE(savedText(), QByteArray(R"({"a":{"t":100,"v":5},"b":{"t":100,"v":6}})"));
}

void tst_KeptEntries::unknownEntryIsInLocalDumpsOnly()
{
    Host host;
    host.load(R"({"a":{"t":100,"v":5}})");
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpLocal)),
             QByteArray(R"({"a":{"t":100,"v":5}})"));
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpShared)), QByteArray("{}"));
    QCOMPARE(compact(host.store.dumpConf(ConfStorage::DumpChangedOnly)), QByteArray("{}"));
}

int main(int argc, char **argv)
{
    return runTest<tst_KeptEntries>(argc, argv);
}

#include "tst_KeptEntries.moc"
