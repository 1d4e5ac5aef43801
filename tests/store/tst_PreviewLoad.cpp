#include "support/Entries.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <random>

namespace {

using Cause = ConfChange::Cause;

const QStringList sKeys{"number",  "real",       "flag",     "text",   "color",
                        "font",    "keys",       "object",   "array",  "local",
                        "system",  "unbound",    "infinite", "other",  "Entry.preset",
                        "Entry.a", "Entry.gone", "Entry.b",  "Local.a"};

/// A store with settings of each type and dynamic entries. Those that exist changed in second 100.
class Host
{
public:
    explicit Host(quint32 options = 0)
    {
        store.mFileOptions = options;
        reserve("number", &number);
        reserve("real", &real);
        reserve("flag", &flag);
        reserve("text", &text);
        reserve("color", &color);
        reserve("font", &font);
        reserve("keys", &keys);
        reserve("object", &object);
        reserve("array", &array);
        reserve("local", &local);
        reserve("system", &system);
        reserve("unbound", &unbound);
        reserve("infinite", &infinite);
        store.mConfMetas["flag"].lastChangeTime = QDateTime();
        store.mConfMetas["flag"].flags |= ConfStorage::FlagIsDefault;
        store.mConfMetas["local"].flags |= ConfStorage::FlagLocalOnly;
        store.mConfMetas["system"].flags |= ConfStorage::FlagSystemIndependent;
        store.mConfValues["unbound"] = ConfValue();
        addClass(&mEntries, "Entry.", 0);
        addClass(&mLocals, "Local.", ConfStorage::FlagLocalOnly);
        store.mPresetDynamicConfs.insert("Entry.preset", QJsonObject{{"n", 1}});
        store.loadPresetDynamicConf();
        for (const char *key : {"Entry.a", "Local.a"}) {
            store.createDynamicConf(key, QJsonObject{{"n", 1}}, nullptr);
            store.mConfMetas[key].lastChangeTime = second(100);
        }
        store.mRemovedDynamicConfs["Entry.gone"] = second(100);
        store.mChanged = false;
    }
    Q_DISABLE_COPY(Host)

    QVector<ConfChange> load(const QJsonObject &dump, ConfStorage::LoadConfType type)
    {
        QVector<ConfChange> changes;
        const int id = store.addObserver([&](const ConfChange &change) { changes << change; });
        store.loadConf(dump, type);
        store.removeObserver(id);
        std::stable_sort(changes.begin(), changes.end(),
                         [](const ConfChange &a, const ConfChange &b) { return a.key < b.key; });
        return changes;
    }

    /// The whole store and the variables.
    QString content() const
    {
        const QByteArray dump = QJsonDocument(store.dumpConf(ConfStorage::DumpLocal)).toJson();
        return store.debugTable() + QString::fromUtf8(dump) + QString::number(creations);
    }

    int number = 7, local = 7, system = 7, unbound = 7;
    double real = 2.5, infinite = qInf();
    bool flag = true;
    QString text;
    QColor color{Qt::red};
    QFont font{"Sans", 12};
    QKeySequence keys{"Ctrl+S"};
    QJsonObject object{{"n", 1}};
    QJsonArray array{1, 2};
    std::map<QString, QJsonObject> entries;
    int creations = 0;
    ConfStorage store;

private:
    template<class T> void reserve(const QString &key, T *variable)
    {
        store.reserveConf(key, variable);
        store.mConfMetas[key].lastChangeTime = second(100);
        store.mConfMetas[key].flags &= ~ConfStorage::FlagIsDefault;
    }
    void addClass(ConfStorage::DynamicConfClass *cls, const QString &prefix, quint32 flags)
    {
        cls->prefix = prefix;
        cls->flags = flags;
        cls->creator = [this](const QString &key, const QJsonValue *value) {
            ++creations;
            entries[key] = value->toObject();
            store.reserveConf(key, &entries[key]);
        };
        cls->remover = [this](const QString &key) {
            ++creations;
            entries.erase(key);
        };
        store.mDynamicConfClasses << cls;
    }

    ConfStorage::DynamicConfClass mEntries, mLocals;
};

QString textOf(const ConfChange::State &state)
{
    if (!state.isPresent)
        return "absent";
    const QJsonDocument document(QJsonArray{state.value});
    return document.toJson(QJsonDocument::Compact) + (state.isDefault ? " default" : "")
           + (state.value.isUndefined() ? " unbound" : "");
}

/// Changes are equal if their texts are. The current time, which an entry without a timestamp gets,
/// is "now".
QStringList textsOf(const QVector<ConfChange> &changes, const QDateTime &start)
{
    QStringList texts;
    for (const ConfChange &change : changes) {
        const bool isNow = change.time >= start && change.time < start.addDays(1);
        const QString time = isNow ? "now" : QString::number(change.time.toMSecsSinceEpoch());
        texts.append(QStringList{change.key, QString::number(int(change.cause)),
                                 textOf(change.before), textOf(change.after), time}
                         .join(" | "));
    }
    return texts;
}

class RandomDump
{
public:
    explicit RandomDump(unsigned seed) : mRandom(seed) {}

    int below(int limit) { return int(mRandom() % unsigned(limit)); }

    QJsonObject object()
    {
        QJsonObject dump;
        for (int count = below(12); count > 0; --count) {
            const QString key = sKeys.at(below(int(sKeys.size())));
            static const char *const sMarks[] = {"", "", "", "#s.mac", "#s.win"};
            const QJsonValue entry = entryOf(key);
            // Of two dynamic entries without a timestamp, the second one loses in the same
            // millisecond and wins in the next one.
            const bool isMadeNow = key.contains('.') && !entry.toObject().contains("t");
            dump.insert(isMadeNow ? key : key + sMarks[below(5)], entry);
        }
        return dump;
    }

private:
    QJsonValue entryOf(const QString &key)
    {
        const bool isDynamic = key.contains('.');
        if (below(20) == 0)
            return value();
        QJsonObject entry;
        if (isDynamic && below(3) == 0)
            entry.insert("d", time());
        if (below(6) > 0)
            entry.insert("t", time());
        if (below(4) > 0)
            entry.insert("v", isDynamic ? QJsonObject{{"n", below(3)}} : value());
        return entry;
    }
    QJsonValue time()
    {
        static const QJsonValue sTimes[]{99, 100, 101, 200, 5e9, 253370764800e0, "x"};
        return sTimes[below(7)];
    }
    QJsonValue value()
    {
        static const QJsonValue sValues[]{7,
                                          8,
                                          2.5,
                                          true,
                                          false,
                                          "",
                                          "12",
                                          "ff0000ff",
                                          "None",
                                          "Sans,9,-1,5,50,0,0,0,0,0",
                                          "a,b,c",
                                          "Ctrl+F",
                                          QJsonValue(),
                                          QJsonObject{{"n", 2}},
                                          QJsonArray{3},
                                          "inf",
                                          QString(300, 'x')};
        return sValues[below(17)];
    }

    std::mt19937 mRandom;
};

} // namespace

/// What `previewLoad` says about a load.
class tst_PreviewLoad : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void previewIsWhatAnObserverHears_data();
    void previewIsWhatAnObserverHears();
    void previewChangesNothing();
    void stateBeforeAndAfterIsListed();
    void hostCodeIsNotCalled();
    void changesAreInTheOrderOfTheirKeys();
    void entryThatChangesOnlyTheTimestampIsListed();
    void refusedEntriesAreNotListed();
    void keptEntryIsListedWhenItsClassIsKnown();
    void formerNameIsListedAsTheCurrentOne();
    void hostileInputIsSurvived();
};

void tst_PreviewLoad::previewIsWhatAnObserverHears_data()
{
    QTest::addColumn<quint32>("options");
    QTest::newRow("no option") << 0U;
    QTest::newRow("strict types") << quint32(ConfStorage::StrictTypes);
    QTest::newRow("ties are resolved") << quint32(ConfStorage::ResolveTies);
    QTest::newRow("null is the default, long times")
        << quint32(ConfStorage::NullIsDefault | ConfStorage::LongTimes);
    QTest::newRow("every option of the load")
        << quint32(ConfStorage::StrictTypes | ConfStorage::ResolveTies | ConfStorage::NullIsDefault
                   | ConfStorage::LongTimes | ConfStorage::RefuseFutureTimes
                   | ConfStorage::KeepUnknownEntries);
}

void tst_PreviewLoad::previewIsWhatAnObserverHears()
{
    QFETCH(quint32, options);
    const LogCapture log;
    const QDateTime start = QDateTime::currentDateTimeUtc();
    int listed = 0;
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        Host host(options);
        host.store.mMaxFileSize = 1000; // refuses the longest text
        RandomDump random(seed);
        host.store.loadConf(random.object(), ConfStorage::LoadLocal);
        for (ConfStorage::ConfMeta &meta : host.store.mConfMetas) {
            if (meta.lastChangeTime >= start && meta.lastChangeTime < start.addDays(1))
                meta.lastChangeTime = start.addSecs(-1); // or the clock decides what is newer
        }
        const QJsonObject dump = random.object();
        const auto type = random.below(2) ? ConfStorage::LoadLocal : ConfStorage::LoadShared;
        const QStringList preview = textsOf(host.store.previewLoad(dump, type), start);
        const QStringList heard = textsOf(host.load(dump, type), start);
        QVERIFY2(
            preview == heard,
            qPrintable(
                QString("seed %1\n%2\n%3").arg(seed).arg(preview.join('\n'), heard.join('\n'))));
        listed += int(preview.size());
    }
    QVERIFY(listed > 1000);
}

void tst_PreviewLoad::previewChangesNothing()
{
    const LogCapture log;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        Host host(ConfStorage::KeepUnknownEntries);
        RandomDump random(seed);
        host.store.loadConf({{"number", entry(50, 1)}}, ConfStorage::LoadShared);
        host.store.mChanged = false;
        const QString before = host.content();
        host.store.previewLoad(random.object(), ConfStorage::LoadLocal);
        QCOMPARE(host.content(), before);
        QVERIFY(!host.store.mChanged);
        QCOMPARE(host.store.lastLoad().newerHere, 1);
    }
}

void tst_PreviewLoad::stateBeforeAndAfterIsListed()
{
    Host host;
    host.number = 9; // the variable counts
    const QJsonObject dump{{"number", entry(101, 8)},
                           {"text", QJsonObject{{"t", 102}}},
                           {"real", entry(100, 1)},
                           {"unknown", entry(101, 8)},
                           {"Entry.a", QJsonObject{{"d", 103}}},
                           {"Entry.b", entry(104, QJsonObject{{"n", 5}})}};
    const QVector<ConfChange> changes = host.store.previewLoad(dump, ConfStorage::LoadShared);
    const QStringList expected{
        QString("Entry.a | %1 | [{\"n\":1}] | absent | 103000").arg(int(Cause::Loaded)),
        QString("Entry.b | %1 | absent | [{\"n\":5}] | 104000").arg(int(Cause::Loaded)),
        QString("number | %1 | [9] | [8] | 101000").arg(int(Cause::Loaded)),
        QString("text | %1 | [\"\"] | [\"\"] default | 102000").arg(int(Cause::Loaded))};
    QCOMPARE(textsOf(changes, QDateTime::currentDateTimeUtc()), expected);
}

void tst_PreviewLoad::hostCodeIsNotCalled()
{
    Host host;
    int calls = 0;
    host.store.setConfChangedCallback("number",
                                      [&](const QString &, const ConfValue *) { ++calls; });
    host.store.addObserver([&](const ConfChange &) { ++calls; });
    const int creations = host.creations;
    const QJsonObject dump{{"number", entry(101, 8)},
                           {"Entry.a", QJsonObject{{"d", 103}}},
                           {"Entry.b", entry(104, QJsonObject())}};
    QCOMPARE(host.store.previewLoad(dump, ConfStorage::LoadShared).size(), 3);
    QCOMPARE(calls, 0);
    QCOMPARE(host.creations, creations);
}

void tst_PreviewLoad::changesAreInTheOrderOfTheirKeys()
{
    Host host;
    int first = 1, second = 2;
    host.store.reserveConf("a", &first);
    host.store.reserveConf("a!b", &second);
    const QJsonObject dump{{"a#s.mac", entry(101, 5)}, {"a!b", entry(101, 5)}};
    QCOMPARE(dump.keys().first(), QString("a!b"));
    const QVector<ConfChange> changes = host.store.previewLoad(dump, ConfStorage::LoadShared);
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes.first().key, QString("a"));
}

void tst_PreviewLoad::entryThatChangesOnlyTheTimestampIsListed()
{
    Host host;
    const auto changes = host.store.previewLoad({{"number", entry(101, 7)}},
                                                ConfStorage::LoadShared);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().before.value, changes.first().after.value);
    QCOMPARE(changes.first().time, second(101));
}

void tst_PreviewLoad::refusedEntriesAreNotListed()
{
    const LogCapture log;
    Host host(ConfStorage::StrictTypes);
    QVERIFY(
        host.store.previewLoad({{"number", entry(101, "8")}}, ConfStorage::LoadShared).isEmpty());
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
}

void tst_PreviewLoad::keptEntryIsListedWhenItsClassIsKnown()
{
    Host host(ConfStorage::KeepUnknownEntries);
    host.store.loadConf({{"Late.a", entry(101, QJsonObject{{"n", 1}})}}, ConfStorage::LoadShared);
    ConfStorage::DynamicConfClass late;
    late.prefix = "Late.";
    late.creator = [&](const QString &key, const QJsonValue *value) {
        host.entries[key] = value->toObject();
        host.store.reserveConf(key, &host.entries[key]);
    };
    host.store.mDynamicConfClasses << &late;
    for (int preview = 0; preview < 2; ++preview) {
        const auto changes = host.store.previewLoad({}, ConfStorage::LoadShared);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.first().key, QString("Late.a"));
    }
}

void tst_PreviewLoad::formerNameIsListedAsTheCurrentOne()
{
    Host host;
    host.store.addFormerName("number", "count");
    host.store.setConfConverter("number", [](const QJsonValue &value) {
        return value.isString() ? value.toString().toInt() : value;
    });
    const auto changes = host.store.previewLoad({{"count", entry(101, "12")}},
                                                ConfStorage::LoadShared);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().key, QString("number"));
    QCOMPARE(changes.first().after.value, QJsonValue(12));
    QCOMPARE(host.number, 7);
}

void tst_PreviewLoad::hostileInputIsSurvived()
{
    const LogCapture log;
    Host host;
    QJsonValue deep = 1;
    for (int level = 0; level < 1500; ++level)
        deep = QJsonArray{deep};
    const QJsonObject dump{{"", 1},
                           {"#", 1},
                           {"##s.mac", QJsonObject{{"t", 1e300}, {"v", deep}}},
                           {"array", entry(101, deep)},
                           {"number", QJsonArray{1}},
                           {"Entry.", entry(101, deep)},
                           {"Entry." + QString(70000, 'x'), entry(101, 1)}};
    host.store.mMaxFileSize = 2000;
    const auto changes = host.store.previewLoad(dump, ConfStorage::LoadLocal);
    QCOMPARE(changes.size(), 1); // an entry that is no object restores the default
    QCOMPARE(changes.first().key, QString("number"));
}

int main(int argc, char **argv)
{
    return runTest<tst_PreviewLoad>(argc, argv);
}

#include "tst_PreviewLoad.moc"
