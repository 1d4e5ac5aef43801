#include "BenchmarkSupport.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QTemporaryDir>

#include <optional>
#include <vector>

namespace {

/// The variables of a host and a store that is bound to them, at their defaults.
class Host
{
public:
    explicit Host(const QStringList &keys) : mValues(static_cast<size_t>(keys.size()))
    {
        for (int i = 0; i < keys.size(); ++i)
            store.reserveConf(keys.at(i), &mValues[static_cast<size_t>(i)]);
    }
    Q_DISABLE_COPY(Host)

    /// Changes every value, as a person would have over the years.
    void changeAll(const QStringList &keys)
    {
        for (int i = 0; i < keys.size(); ++i)
            store.set(keys.at(i), i + 1);
    }

    ConfStorage store;

private:
    std::vector<int> mValues;
};

QByteArray dumpedText(const QStringList &keys)
{
    Host host(keys);
    host.changeAll(keys);
    const QJsonObject dump = host.store.dumpConf(ConfStorage::DumpLocal);
    return QJsonDocument(dump).toJson(QJsonDocument::Compact);
}

int sizeOf(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

void parse(benchmark::State &state)
{
    benchParse(state, dumpedText(settingNames(sizeOf(state))), sizeOf(state));
}

void serialize(benchmark::State &state)
{
    const QByteArray text = dumpedText(settingNames(sizeOf(state)));
    const QJsonDocument document = QJsonDocument::fromJson(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(document.toJson(QJsonDocument::Compact));
    countEntries(state, sizeOf(state));
}

void dump(benchmark::State &state)
{
    const QStringList keys = settingNames(sizeOf(state));
    Host host(keys);
    host.changeAll(keys);
    for (auto _ : state)
        benchmark::DoNotOptimize(host.store.dumpConf(ConfStorage::DumpLocal));
    countEntries(state, sizeOf(state), "serialize");
}

/// Times `load(store)` into stores that are at their defaults.
template<class Load> void benchLoad(benchmark::State &state, const QStringList &keys, Load load)
{
    std::optional<Host> other;
    for (auto _ : state) {
        state.PauseTiming(); // only a fresh store takes the values
        other.emplace(keys);
        state.ResumeTiming();
        load(other->store);
    }
    if (other->store.get<int>(keys.last()) != sizeOf(state))
        state.SkipWithError("nothing was loaded");
    countEntries(state, sizeOf(state), "parse");
}

void load(benchmark::State &state)
{
    const QStringList keys = settingNames(sizeOf(state));
    const QJsonObject dump = QJsonDocument::fromJson(dumpedText(keys)).object();
    benchLoad(state, keys, [&](ConfStorage &store) { store.loadConf(dump, ConfStorage::LoadLocal); });
}

void saveLocalFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QStringList keys = settingNames(sizeOf(state));
    Host host(keys);
    host.changeAll(keys);
    host.store.mLocalSaveFile = folder.filePath(QStringLiteral("local.json"));
    for (auto _ : state) {
        host.store.mChanged = true;
        host.store.saveToLocalConfFile();
    }
    if (host.store.mChanged)
        state.SkipWithError("nothing was saved");
    countEntries(state, sizeOf(state), "serialize");
}

void loadLocalFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("local.json"));
    const QStringList keys = settingNames(sizeOf(state));
    {
        Host host(keys);
        host.changeAll(keys);
        host.store.mLocalSaveFile = path;
        host.store.saveToLocalConfFile();
    }
    benchLoad(state, keys, [&](ConfStorage &store) {
        store.mLocalSaveFile = path;
        store.loadLocalConfFile();
    });
}

} // namespace

int main(int argc, char **argv)
{
    const auto add = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->RangeMultiplier(10)->Range(100, 100000);
    };
    add("serialize", serialize);
    add("dump", dump);
    add("saveLocalFile", saveLocalFile);
    add("parse", parse);
    add("load", load);
    add("loadLocalFile", loadLocalFile);
    return runBenchmarks(argc, argv);
}
