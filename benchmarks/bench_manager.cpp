#include "BenchmarkSupport.h"
#include "benchmarks.h"
#include "support/CleanStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

namespace {

std::unique_ptr<MtConf::MtConfManage> declared(const QVector<SettingName> &names,
                                               std::vector<int> &values)
{
    auto manager = std::make_unique<MtConf::MtConfManage>();
    for (int i = 0; i < names.size(); ++i) {
        const SettingName &name = names.at(i);
        manager->addConfInt32("Size", &values[static_cast<size_t>(i)], name.className, name.name,
                              name.subName);
    }
    return manager;
}

void declareItems(benchmark::State &state)
{
    const QVector<SettingName> names = settingNames(sizeOf(state));
    std::vector<int> values(static_cast<size_t>(names.size()));
    for (auto _ : state) {
        const auto manager = declared(names, values);
        state.PauseTiming();
        if (manager->items.size() != names.size())
            state.SkipWithError("not every item was declared");
        clearStore(); // which outlives every manager
        state.ResumeTiming();
    }
    countEntries(state);
}

void insertIntoHash(benchmark::State &state)
{
    const QVector<SettingName> names = settingNames(sizeOf(state));
    for (auto _ : state) {
        QHash<QString, int> hash;
        for (int i = 0; i < names.size(); ++i)
            hash.insert(names.at(i).key(), i);
        benchmark::DoNotOptimize(hash);
    }
    countEntries(state);
}

/// Returns a configuration file in which every value differs from its default.
QByteArray configurationText(const QVector<SettingName> &names)
{
    QJsonObject members;
    std::vector<QString> keys = keysOf(names);
    std::sort(keys.begin(), keys.end()); // inserting into an object is only fast in sorted order
    for (size_t i = 0; i < keys.size(); ++i)
        members.insert(keys[i], static_cast<int>(i) + 1);
    return QJsonDocument(members).toJson();
}

void loadConfiguration(benchmark::State &state)
{
    const QVector<SettingName> names = settingNames(sizeOf(state));
    std::vector<int> values(static_cast<size_t>(names.size()));
    const auto manager = declared(names, values);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("configuration.json")));
    if (!file.open(QIODevice::WriteOnly))
        state.SkipWithError("no temporary file");
    file.write(configurationText(names));
    file.close();

    for (auto _ : state)
        manager->loadFromFile(file.fileName());
    if (std::find(values.cbegin(), values.cend(), 0) != values.cend())
        state.SkipWithError("not every value was loaded");
    countEntries(state);
    clearStore();
}

void parseConfiguration(benchmark::State &state)
{
    const QByteArray text = configurationText(settingNames(sizeOf(state)));
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
    countEntries(state);
}

} // namespace

void addManagerBenchmarks()
{
    addBenchmark("declareItems", "library", declareItems);
    addBenchmark("declareItems", "bare", insertIntoHash);
    addBenchmark("loadConfiguration", "library", loadConfiguration);
    addBenchmark("loadConfiguration", "bare", parseConfiguration);
}
