#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {

constexpr int sKeysOfAlmostFullStore = 999998;

/// A dump with one entry: a value, or the tombstone of a removed entry.
QJsonObject dumpOf(const QString &key, bool isRemoval)
{
    const QJsonObject value{{"t", 100}, {"v", QJsonObject{{"x", 1}}}};
    return {{key, isRemoval ? QJsonObject{{"d", 100}} : value}};
}

/// A store with one class of dynamic keys, "P.".
class Host
{
public:
    Host()
    {
        mClass.prefix = "P.";
        mClass.creator = [this](const QString &key, const QJsonValue *value) {
            variable = value->toObject();
            store.reserveConf(key, &variable);
        };
        store.mDynamicConfClasses = {&mClass};
    }
    Q_DISABLE_COPY(Host)

    void create(const QString &key)
    {
        store.createDynamicConf(key, QJsonObject{{"x", 0}}, nullptr);
        store.mConfMetas[key].lastChangeTime = QDateTime::fromSecsSinceEpoch(1, Qt::UTC);
    }
    void load(const QJsonObject &dump)
    {
        const QByteArray text = QJsonDocument(dump).toJson(QJsonDocument::Compact);
        store.loadConf(QString::fromUtf8(text), ConfStorage::LoadLocal);
    }
    bool hasValue(const QString &key) const { return store.mConfValues.contains(key); }
    bool hasRecord(const QString &key) const { return store.mConfMetas.contains(key); }
    bool hasTombstone(const QString &key) const { return store.mRemovedDynamicConfs.contains(key); }

    QJsonObject variable;
    ConfStorage store;

private:
    ConfStorage::DynamicConfClass mClass;
};

/// Has a record for every hundredth key, and a tombstone for the others.
void fillAlmost(ConfStorage &store)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1, Qt::UTC);
    auto &tombstones = store.mRemovedDynamicConfs;
    for (int i = 0; i < sKeysOfAlmostFullStore; ++i) {
        const QString key = "P." + QString::number(1000000 + i);
        if (i % 100 == 0)
            store.mConfMetas[key] = ConfStorage::ConfMeta();
        else
            tombstones.insert(tombstones.cend(), key, time);
    }
}

} // namespace

/// How many keys a file can add to a store, and how long they are.
class tst_ConfStorageLimits : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { fillAlmost(mAlmostFull.store); }

    void fileAddsKeysUpToALength_data();
    void fileAddsKeysUpToALength();
    void longKeyOfTheHostIsMerged();
    void fileAddsKeysUpToANumber_data();
    void fileAddsKeysUpToANumber();
    void fileChangesTheKeysOfAFullStore();
    void keptEntriesCountAsKeys();

private:
    Host mAlmostFull; // the same for all rows, because filling it takes a while
};

void tst_ConfStorageLimits::fileAddsKeysUpToALength_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("isRemoval");
    QTest::addColumn<bool>("isAdded");
    for (const bool isRemoval : {false, true}) {
        const char *kind = isRemoval ? "tombstone" : "value";
        QTest::addRow("%s, one below", kind) << 65535 << isRemoval << true;
        QTest::addRow("%s, longest", kind) << 65536 << isRemoval << true;
        QTest::addRow("%s, one above", kind) << 65537 << isRemoval << false;
    }
}

void tst_ConfStorageLimits::fileAddsKeysUpToALength()
{
    QFETCH(int, length);
    QFETCH(bool, isRemoval);
    QFETCH(bool, isAdded);
    const QString key = "P." + QString(length - 2, 'x');
    const QJsonObject dump = dumpOf(key, isRemoval);
    const QStringList message("ConfStorage::loadConf() key too long:  \"P." + QString(197, 'x')
                              + QChar(0x2026) + '"');
    for (const bool isText : {false, true}) {
        Host host;
        const LogCapture log;
        if (isText)
            host.load(dump);
        else
            host.store.loadConf(dump, ConfStorage::LoadShared);
        QCOMPARE(host.hasValue(key), isAdded && !isRemoval);
        QCOMPARE(host.hasRecord(key), isAdded && !isRemoval);
        QCOMPARE(host.hasTombstone(key), isAdded && isRemoval);
        QCOMPARE(log.texts(QtCriticalMsg), isAdded ? QStringList() : message);
    }
}

void tst_ConfStorageLimits::longKeyOfTheHostIsMerged()
{
    const QString key = "P." + QString(65535, 'x');
    Host host;
    host.create(key);
    const LogCapture log;
    host.load(dumpOf(key, false));
    QCOMPARE(host.variable, (QJsonObject{{"x", 1}}));
    host.load({{key, QJsonObject{{"d", 101}}}});
    QVERIFY(!host.hasValue(key));
    QVERIFY(host.hasTombstone(key));
    host.load({{key, QJsonObject{{"t", 102}, {"v", QJsonObject()}}}});
    QVERIFY(host.hasValue(key));
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfStorageLimits::fileAddsKeysUpToANumber_data()
{
    QTest::addColumn<int>("keys");
    QTest::addColumn<bool>("isRemoval");
    QTest::addColumn<bool>("isAdded");
    for (const bool isRemoval : {false, true}) {
        const char *kind = isRemoval ? "tombstone" : "value";
        QTest::addRow("%s, one below", kind) << 999998 << isRemoval << true;
        QTest::addRow("%s, last", kind) << 999999 << isRemoval << true;
        QTest::addRow("%s, one above", kind) << 1000000 << isRemoval << false;
        QTest::addRow("%s, two above", kind) << 1000001 << isRemoval << false;
    }
}

void tst_ConfStorageLimits::fileAddsKeysUpToANumber()
{
    QFETCH(int, keys);
    QFETCH(bool, isRemoval);
    QFETCH(bool, isAdded);
    Host &host = mAlmostFull;
    QStringList ownKeys;
    for (int i = sKeysOfAlmostFullStore; i < keys; ++i)
        ownKeys << "P.own" + QString::number(i);
    for (const QString &key : std::as_const(ownKeys))
        host.create(key);
    const LogCapture log;
    host.load(dumpOf("P.new", isRemoval));
    const bool hasValue = host.hasValue("P.new");
    const bool hasRecord = host.hasRecord("P.new");
    const bool hasTombstone = host.hasTombstone("P.new");
    for (const QString &key : ownKeys << "P.new") {
        host.store.mConfValues.remove(key);
        host.store.mConfMetas.remove(key);
        host.store.mRemovedDynamicConfs.remove(key);
    }
    QCOMPARE(hasValue, isAdded && !isRemoval);
    QCOMPARE(hasRecord, isAdded && !isRemoval);
    QCOMPARE(hasTombstone, isAdded && isRemoval);
    const QStringList message("ConfStorage::loadConf() too many keys:  \"P.new\"");
    QCOMPARE(log.texts(QtCriticalMsg), isAdded ? QStringList() : message);
}

void tst_ConfStorageLimits::fileChangesTheKeysOfAFullStore()
{
    Host host;
    fillAlmost(host.store);
    for (const char *key : {"P.a", "P.b", "P.c"})
        host.create(key);
    const LogCapture log;
    host.load(dumpOf("P.a", false));
    QCOMPARE(host.variable, (QJsonObject{{"x", 1}}));
    host.load({{"P.a", QJsonObject{{"d", 101}}}});
    QVERIFY(!host.hasValue("P.a"));
    QVERIFY(host.hasTombstone("P.a"));
    host.load({{"P.a", QJsonObject{{"d", 102}}}});
    QCOMPARE(host.store.mRemovedDynamicConfs["P.a"].toSecsSinceEpoch(), qint64(102));
    host.load({{"P.a", QJsonObject{{"t", 103}, {"v", QJsonObject()}}}});
    QVERIFY(host.hasValue("P.a"));
    QVERIFY(host.hasRecord("P.1000000") && !host.hasValue("P.1000000"));
    host.load(dumpOf("P.1000000", false));
    QVERIFY(host.hasValue("P.1000000"));
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfStorageLimits::keptEntriesCountAsKeys()
{
    Host host;
    host.store.mFileOptions |= ConfStorage::KeepUnknownEntries;
    fillAlmost(host.store);
    const LogCapture log;
    for (const char *key : {"unknown 1", "unknown 2"})
        host.store.loadConf(dumpOf(key, false), ConfStorage::LoadShared);
    QVERIFY(log.messages().isEmpty());
    host.load(dumpOf("P.new", false));
    QVERIFY(!host.hasValue("P.new"));
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ConfStorage::loadConf() too many keys:  \"P.new\""));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfStorageLimits>(argc, argv);
}

#include "tst_ConfStorageLimits.moc"
