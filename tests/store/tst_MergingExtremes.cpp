#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <map>
#include <memory>

namespace {

constexpr qint64 sYear9999 = 253370764800; // 1 January 9999, midnight UTC

QDateTime at(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

/// A copy with `count` settings "Number.<i>", 0 by default, and any dynamic entries "Entry.<i>".
class Copy
{
public:
    explicit Copy(int count = 1) : numbers(size_t(count))
    {
        for (int i = 0; i < count; ++i)
            store.reserveConf(number(i), &numbers[size_t(i)]);
        cls.prefix = "Entry.";
        cls.creator = [this](QString key, const QJsonValue *value) {
            entries[key] = value->toObject();
            store.reserveConf(key, &entries[key]);
        };
        cls.remover = [this](QString key) { entries.erase(key); };
        store.mDynamicConfClasses << &cls;
    }
    Q_DISABLE_COPY(Copy)

    static QString number(int i) { return QString("Number.%1").arg(i); }
    static QString entry(int i) { return QString("Entry.%1").arg(i); }
    void set(int i, int value, qint64 seconds)
    {
        store.set<int>(number(i), value);
        store.mConfMetas[number(i)].lastChangeTime = at(seconds);
    }
    void create(int i, int value, qint64 seconds)
    {
        store.createDynamicConf(entry(i), QJsonObject{{"n", value}}, nullptr);
        store.mConfMetas[entry(i)].lastChangeTime = at(seconds);
    }
    void remove(int i, qint64 seconds)
    {
        store.removeDynamicConf(entry(i));
        store.mRemovedDynamicConfs[entry(i)] = at(seconds);
    }
    qint64 time(const QString &key) const
    {
        return store.mConfMetas[key].lastChangeTime.toSecsSinceEpoch();
    }
    QJsonObject dump() const { return store.dumpConf(ConfStorage::DumpShared); }
    void load(const QJsonObject &conf) { store.loadConf(conf, ConfStorage::LoadShared); }
    /// Merges the other copy through JSON text, as a file or a network would.
    void loadText(const Copy &other)
    {
        const QByteArray text = QJsonDocument(other.dump()).toJson(QJsonDocument::Compact);
        QVERIFY(store.loadConf(QString::fromUtf8(text), ConfStorage::LoadShared));
    }

    std::vector<int> numbers;
    std::map<QString, QJsonObject> entries;
    ConfStorage::DynamicConfClass cls;
    ConfStorage store;
};

} // namespace

/// Merging with wrong clocks, invalid timestamps and very many keys.
class tst_MergingExtremes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void clockSetTo9999KeepsItsOwnValue();
    void clockSetTo9999LosesInOtherCopies();
    void changeWithACorrectClockReplacesOneFrom9999();
    void lastSecondOf32BitsIsMerged();
    void changeAtTheEpochIsNotSharedButARemovalIs();
    void changesBeforeTheEpochAreOrderedLikeOthers();
    void invalidTimestampCountsAsZero_data();
    void invalidTimestampCountsAsZero();
    void hostileEntriesOfDynamicKeysDoNotBreakTheCopies_data();
    void hostileEntriesOfDynamicKeysDoNotBreakTheCopies();
    void copiesWithAHundredThousandKeysAgree();
};

void tst_MergingExtremes::clockSetTo9999KeepsItsOwnValue()
{
    Copy future, present;
    future.set(0, 10, sYear9999);
    present.set(0, 20, 1700000000);
    future.loadText(present);
    QCOMPARE(future.numbers[0], 10);
    QCOMPARE(future.time("Number.0"), sYear9999);
}

void tst_MergingExtremes::clockSetTo9999LosesInOtherCopies()
{
    // Timestamps are read as 32-bit integers; later ones count as second 0.
    Copy future, changed, untouched;
    future.set(0, 10, sYear9999);
    future.create(0, 10, sYear9999);
    changed.set(0, 20, 1700000000);
    changed.create(0, 20, 1700000000);
    changed.loadText(future);
    QCOMPARE(changed.numbers[0], 20);
    QCOMPARE(changed.entries["Entry.0"], (QJsonObject{{"n", 20}}));
    untouched.loadText(future);
    QCOMPARE(untouched.numbers[0], 10);
    QCOMPARE(untouched.entries["Entry.0"], (QJsonObject{{"n", 10}}));
    QCOMPARE(untouched.time("Number.0"), 0);
    // There any change replaces it, and it is not passed on.
    QVERIFY(untouched.dump().isEmpty());
    untouched.loadText(changed);
    QCOMPARE(untouched.numbers[0], 20);
}

void tst_MergingExtremes::changeWithACorrectClockReplacesOneFrom9999()
{
    Copy future, present;
    future.set(0, 10, sYear9999);
    future.set(0, 30, 1700000001);
    present.set(0, 20, 1700000000);
    present.loadText(future);
    QCOMPARE(present.numbers[0], 30);
    QCOMPARE(present.dump(), future.dump());
}

void tst_MergingExtremes::lastSecondOf32BitsIsMerged()
{
    Copy last, beyond, other;
    last.set(0, 10, 2147483647);
    beyond.set(0, 20, 2147483648);
    other.set(0, 30, 2147483646);
    other.loadText(last);
    QCOMPARE(other.numbers[0], 10);
    other.loadText(beyond);
    QCOMPARE(other.numbers[0], 10);
    QCOMPARE(other.time("Number.0"), 2147483647);
}

void tst_MergingExtremes::changeAtTheEpochIsNotSharedButARemovalIs()
{
    Copy epoch, other;
    epoch.set(0, 10, 0);
    epoch.create(0, 10, -5);
    epoch.create(1, 10, -5);
    other.loadText(epoch);
    QCOMPARE(other.numbers[0], 0);
    QCOMPARE(other.entries.size(), 2u);
    epoch.remove(1, 0);
    other.loadText(epoch);
    QCOMPARE(other.entries.size(), 1u);
    QCOMPARE(other.store.mRemovedDynamicConfs.value("Entry.1"), at(0));
    epoch.loadText(other);
    QCOMPARE(epoch.entries.size(), 1u);
}

void tst_MergingExtremes::changesBeforeTheEpochAreOrderedLikeOthers()
{
    Copy earlier, later;
    earlier.set(0, 10, -2000);
    earlier.create(0, 10, -2000);
    later.set(0, 20, -1000);
    later.create(0, 20, -1000);
    later.loadText(earlier);
    QCOMPARE(later.numbers[0], 20);
    earlier.loadText(later);
    QCOMPARE(earlier.numbers[0], 20);
    QCOMPARE(earlier.dump(), later.dump());
    later.remove(0, -500);
    earlier.loadText(later);
    QCOMPARE(earlier.entries.size(), 0u);
    QCOMPARE(earlier.dump(), later.dump());
}

void tst_MergingExtremes::invalidTimestampCountsAsZero_data()
{
    QTest::addColumn<QJsonValue>("time");
    QTest::addColumn<qint64>("taken"); // resulting timestamp of a key that was never changed
    QTest::newRow("whole double") << QJsonValue(100.0) << qint64(100);
    QTest::newRow("fraction") << QJsonValue(100.5) << qint64(0);
    QTest::newRow("huge") << QJsonValue(1e300) << qint64(0);
    QTest::newRow("minus huge") << QJsonValue(-1e300) << qint64(0);
    QTest::newRow("tiny") << QJsonValue(5e-324) << qint64(0);
    QTest::newRow("year 9999") << QJsonValue(253370764800.0) << qint64(0);
    QTest::newRow("first beyond 32 bits") << QJsonValue(2147483648.0) << qint64(0);
    QTest::newRow("least of 32 bits") << QJsonValue(-2147483648.0) << qint64(-2147483648LL);
    QTest::newRow("first below 32 bits") << QJsonValue(-2147483649.0) << qint64(0);
    QTest::newRow("not a number") << QJsonValue(qQNaN()) << qint64(0);
    QTest::newRow("text") << QJsonValue("2000000000") << qint64(0);
    QTest::newRow("true") << QJsonValue(true) << qint64(0);
    QTest::newRow("null") << QJsonValue() << qint64(0);
    QTest::newRow("list") << QJsonValue(QJsonArray{2000000000}) << qint64(0);
    QTest::newRow("object") << QJsonValue(QJsonObject{{"t", 2000000000}}) << qint64(0);
}

void tst_MergingExtremes::invalidTimestampCountsAsZero()
{
    QFETCH(QJsonValue, time);
    QFETCH(qint64, taken);
    const QJsonObject number{{"t", time}, {"v", 10}};
    const QJsonObject entry{{"t", time}, {"v", QJsonObject{{"n", 10}}}};
    const QJsonObject hostile{{"Number.0", number}, {"Entry.0", entry}};
    Copy untouched, changed;
    changed.set(0, 20, 1700000000);
    changed.create(0, 20, 1700000000);
    const QJsonObject before = changed.dump();
    changed.load(hostile);
    changed.load(QJsonObject{{"Entry.0", QJsonObject{{"d", time}}}});
    QCOMPARE(changed.dump(), before);

    untouched.load(hostile);
    for (const char *key : {"Number.0", "Entry.0"})
        QCOMPARE(untouched.time(key), taken);
    const QJsonObject once = untouched.dump();
    untouched.load(hostile);
    QCOMPARE(untouched.dump(), once);
    untouched.loadText(changed);
    QCOMPARE(untouched.dump(), before);
}

void tst_MergingExtremes::hostileEntriesOfDynamicKeysDoNotBreakTheCopies_data()
{
    QTest::addColumn<QJsonValue>("hostile");
    QTest::addColumn<bool>("present"); // after loading; the copy created the entry in second 50
    const auto row = [](const char *name, const QJsonObject &entry, bool present) {
        QTest::newRow(name) << QJsonValue(entry) << present;
    };
    row("removal and change: the removal counts", {{"d", 100}, {"t", 200}, {"v", QJsonObject()}},
        false);
    row("removal and later change: the time of the removal counts",
        {{"d", 10}, {"t", 200}, {"v", QJsonObject()}}, true);
    row("value of another type", {{"t", 100}, {"v", 5}}, true);
    row("null value", {{"t", 100}, {"v", QJsonValue()}}, true);
    row("no members", {}, true);
    row("unknown members", {{"x", 1}, {"t", 100}, {"v", QJsonObject{{"n", 1}}}}, true);
    QTest::newRow("not an object") << QJsonValue(5) << true;
    QTest::newRow("null") << QJsonValue() << true;
}

void tst_MergingExtremes::hostileEntriesOfDynamicKeysDoNotBreakTheCopies()
{
    QFETCH(QJsonValue, hostile);
    Copy a, b;
    a.create(0, 10, 50);
    b.loadText(a);
    a.load(QJsonObject{{"Entry.0", hostile}});
    QTEST(a.store.mConfValues.contains("Entry.0"), "present");
    QCOMPARE(a.store.mRemovedDynamicConfs.contains("Entry.0"),
             !a.store.mConfValues.contains("Entry.0"));
    // Whatever the entry did, a later removal makes both copies agree again.
    b.loadText(a);
    if (a.store.mConfValues.contains("Entry.0"))
        a.remove(0, 2000000000);
    b.loadText(a);
    QVERIFY(!b.store.mConfValues.contains("Entry.0"));
    QCOMPARE(b.dump(), a.dump());
}

void tst_MergingExtremes::copiesWithAHundredThousandKeysAgree()
{
    constexpr int count = 50000; // settings, and as many dynamic entries
    Copy a(count), b(count), c(count);
    for (int i = 0; i < count; ++i) {
        a.set(i, 1, 1000 + i % 3);
        b.set(i, 2, 1000 + (i + 1) % 3);
        c.set(i, 3, 1000 + (i + 2) % 3);
        a.create(i, 1, 1000 + i % 3);
        b.create(i, 2, 1000 + (i + 1) % 3);
        b.remove(i, 1000 + (i + 1) % 3);
        c.create(i, 3, 1000 + (i + 2) % 3);
    }
    a.loadText(b);
    a.loadText(c);
    b.loadText(a);
    c.loadText(a);
    QCOMPARE(a.dump().size(), 2 * count);
    QVERIFY(a.dump() == b.dump());
    QVERIFY(b.dump() == c.dump());
    // Second 1002 is the newest: c's for keys 0, 3, 6..., b's for 1, 4, 7..., a's for 2, 5, 8...
    for (int i = 0; i < count; ++i) {
        const int winner = 3 - i % 3;
        QCOMPARE(a.numbers[size_t(i)], winner);
        QCOMPARE(c.entries.count(Copy::entry(i)), size_t(winner == 2 ? 0 : 1));
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_MergingExtremes>(argc, argv);
}

#include "tst_MergingExtremes.moc"
