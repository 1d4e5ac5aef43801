#include "BenchmarkSupport.h"
#include "benchmarks.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDateTime>

#include <functional>

namespace {

/// The variables of a host without a library. (Not a std::vector, which has no addresses of bools.)
template<class T> class Variables
{
public:
    explicit Variables(int count) : mValues(count)
    {
        for (int i = 0; i < count; ++i)
            mValues[i] = valueOf<T>(i);
    }
    const T &read(int i) const { return mValues[i]; }
    T *address(int i) { return &mValues[i]; }

private:
    QVector<T> mValues;
};

/// A store that is bound to variables.
template<class T> class BoundStore
{
public:
    explicit BoundStore(const QVector<SettingName> &names)
        : mKeys(keysOf(names)), mVariables(static_cast<int>(names.size()))
    {
        for (int i = 0; i < names.size(); ++i)
            mStore.reserveConf(key(i), mVariables.address(i));
    }

    T read(int i) const { return mStore.get<T>(key(i)); }
    /// The bare cost of reading by key.
    const ConfValue &lookUp(int i) const { return *mStore.mConfValues.constFind(key(i)); }
    void write(int i, const T &value) { mStore.set(key(i), value); }
    const Variables<T> &variables() const { return mVariables; }

protected:
    const QString &key(int i) const { return mKeys[static_cast<size_t>(i)]; }

    std::vector<QString> mKeys;
    Variables<T> mVariables;
    ConfStorage mStore;
};

class WatchedStore : public BoundStore<int>
{
public:
    explicit WatchedStore(const QVector<SettingName> &names) : BoundStore(names)
    {
        for (int i = 0; i < names.size(); ++i) {
            mStore.setConfChangedCallback(key(i), [this](const QString &, const ConfValue *value) {
                benchmark::DoNotOptimize(value);
                ++mCalls;
            });
        }
    }

private:
    int mCalls = 0;
};

/// The bare cost of setting a value: both lookups, the clock and the callback.
class BareWatchedMap
{
public:
    explicit BareWatchedMap(const QVector<SettingName> &names) : mKeys(keysOf(names))
    {
        for (int i = 0; i < names.size(); ++i)
            mValues[key(i)] = i;
        for (int i = 0; i < names.size(); ++i) {
            mRecords[key(i)].callback = [this](const QString &, const int *value) {
                benchmark::DoNotOptimize(value);
                ++mCalls;
            };
        }
    }

    int read(int i) const { return mValues[key(i)]; }
    void write(int i, int value)
    {
        const auto stored = mValues.find(key(i));
        *stored = value;
        const auto record = mRecords.find(key(i));
        record->time = QDateTime::currentDateTimeUtc();
        record->callback(key(i), &*stored);
    }

private:
    struct Record
    {
        QDateTime time;
        std::function<void(const QString &, const int *)> callback;
    };

    const QString &key(int i) const { return mKeys[static_cast<size_t>(i)]; }

    std::vector<QString> mKeys;
    QMap<QString, int> mValues;
    QMap<QString, Record> mRecords;
    int mCalls = 0;
};

void readVariables(benchmark::State &state, const Variables<int> &variables)
{
    const std::vector<int> order = shuffled(sizeOf(state));
    for (auto _ : state) {
        for (const int i : order)
            benchmark::DoNotOptimize(variables.read(i));
    }
    countEntries(state);
}

template<class T> void lookUpValues(benchmark::State &state)
{
    const BoundStore<T> store(settingNames(sizeOf(state)));
    const std::vector<int> order = shuffled(sizeOf(state));
    for (auto _ : state) {
        for (const int i : order)
            benchmark::DoNotOptimize(store.lookUp(i).mType);
    }
    countEntries(state);
}

void readBoundVariables(benchmark::State &state)
{
    const BoundStore<int> store(settingNames(sizeOf(state)));
    readVariables(state, store.variables());
}

void readPlainVariables(benchmark::State &state)
{
    readVariables(state, Variables<int>(sizeOf(state)));
}

void storeMemory(benchmark::State &state)
{
    const QVector<SettingName> names = settingNames(sizeOf(state));
    std::vector<int> variables(static_cast<size_t>(names.size()));
    qint64 bytes = 0;
    for (auto _ : state) {
        ConfStorage store;
        const qint64 before = heapBytes();
        for (int i = 0; i < names.size(); ++i)
            store.reserveConf(names.at(i).key(), &variables[static_cast<size_t>(i)]);
        bytes = heapBytes() - before;
    }
    countBytes(state, bytes);
}

void mapMemory(benchmark::State &state)
{
    const QVector<SettingName> names = settingNames(sizeOf(state));
    qint64 bytes = 0;
    for (auto _ : state) {
        QMap<QString, int> values;
        const qint64 before = heapBytes();
        for (int i = 0; i < names.size(); ++i)
            values.insert(names.at(i).key(), i);
        bytes = heapBytes() - before;
    }
    countBytes(state, bytes);
}

} // namespace

void addStoreBenchmarks()
{
    addBenchmark("readVariable", "library", readBoundVariables);
    addBenchmark("readVariable", "bare", readPlainVariables);
    addBenchmark("getInt", "library", benchRead<BoundStore<int>>);
    addBenchmark("getInt", "bare", lookUpValues<int>);
    addBenchmark("getBool", "library", benchRead<BoundStore<bool>>);
    addBenchmark("getBool", "bare", lookUpValues<bool>);
    addBenchmark("getQString", "library", benchRead<BoundStore<QString>>);
    addBenchmark("getQString", "bare", lookUpValues<QString>);
    addBenchmark("setInt", "library", benchWrite<WatchedStore>);
    addBenchmark("setInt", "bare", benchWrite<BareWatchedMap>);
    addBenchmark("memory", "library", storeMemory);
    addBenchmark("memory", "bare", mapMemory);
}
