#include "BenchmarkSupport.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QFile>
#include <QTemporaryDir>

#include <vector>

namespace {

/// A configuration file that gives every key a value other than its default.
QByteArray configurationText(const QStringList &keys)
{
    QJsonObject members;
    for (int i = 0; i < keys.size(); ++i)
        members.insert(keys.at(i), i + 1);
    return QJsonDocument(members).toJson();
}

void parse(benchmark::State &state)
{
    const int count = static_cast<int>(state.range(0));
    benchParse(state, configurationText(settingNames(count)), count);
}

void loadFromFile(benchmark::State &state)
{
    const int count = static_cast<int>(state.range(0));
    const QStringList keys = settingNames(count);

    std::vector<int> values(static_cast<size_t>(count));
    MtConf::MtConfManage manager;
    for (int i = 0; i < count; ++i) {
        const QStringList parts = keys.at(i).split(QLatin1Char('.'));
        manager.addConfInt32("Size", &values[static_cast<size_t>(i)], parts.at(0), parts.at(1),
                             parts.at(2));
    }

    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("configuration.json")));
    if (!file.open(QIODevice::WriteOnly))
        state.SkipWithError("no temporary file");
    file.write(configurationText(keys));
    file.close();

    for (auto _ : state)
        manager.loadFromFile(file.fileName());
    if (values.back() != count)
        state.SkipWithError("nothing was loaded");
    countEntries(state, count, "parse");

    // The store outlives the manager; the next size starts from an empty one.
    ConfStorage::instance()->mConfValues.clear();
    ConfStorage::instance()->mConfMetas.clear();
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::RegisterBenchmark("parse", parse)->RangeMultiplier(10)->Range(100, 10000);
    benchmark::RegisterBenchmark("loadFromFile", loadFromFile)
        ->RangeMultiplier(10)->Range(100, 10000);
    return runBenchmarks(argc, argv);
}
