#pragma once

#include <benchmark/benchmark.h>

#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

#include <vector>

/// The name of one setting in the form that hosts use: "General0.Hotkey.Left0".
struct SettingName
{
    QString className, name, subName;

    /// Returns the name within the class.
    QString inner() const { return name + QLatin1Char('.') + subName; }
    QString key() const { return className + QLatin1Char('.') + inner(); }
};

/// Returns `count` different names in up to 50 classes.
QVector<SettingName> settingNames(int count);

/// Returns the keys of these names.
std::vector<QString> keysOf(const QVector<SettingName> &names);

/// Returns the numbers below `count` in a fixed pseudo-random order, because the order in which a
/// host reads its settings is not predictable for the processor's caches.
std::vector<int> shuffled(int count);

/// Returns value number `i` of a setting of type `T`.
template<class T> T valueOf(int i) = delete;
template<> int valueOf<int>(int i);
template<> bool valueOf<bool>(int i);
template<> QString valueOf<QString>(int i);

int sizeOf(const benchmark::State &state);

/// Reports the time per entry. One iteration handles as many entries as the size of the benchmark.
void countEntries(benchmark::State &state);

/// Reports the time per iteration.
void countIterations(benchmark::State &state);

/// Returns the number of bytes in use on the heap of the process.
qint64 heapBytes();

/// Reports a measured total of `bytes` as bytes per entry.
void countBytes(benchmark::State &state, qint64 bytes);

/// Registers `function` as the implementation of `work` by `who`: "library", "bare" or a peer.
benchmark::internal::Benchmark *addBenchmark(const char *work, const char *who,
                                             void (*function)(benchmark::State &),
                                             const std::vector<int> &sizes = {100, 1000, 10000,
                                                                              100000});

/// Reads every key once per iteration. A `Subject` is constructed with names and has their values.
template<class Subject> void benchRead(benchmark::State &state)
{
    const Subject subject(settingNames(sizeOf(state)));
    const std::vector<int> order = shuffled(sizeOf(state));
    for (auto _ : state) {
        for (const int i : order)
            benchmark::DoNotOptimize(subject.read(i));
    }
    if (subject.read(order.front()) != valueOf<decltype(subject.read(0))>(order.front()))
        state.SkipWithError("a wrong value was read");
    countEntries(state);
}

/// Writes every key once per iteration.
template<class Subject> void benchWrite(benchmark::State &state)
{
    Subject subject(settingNames(sizeOf(state)));
    const std::vector<int> order = shuffled(sizeOf(state));
    for (auto _ : state) {
        for (const int i : order)
            subject.write(i, i + 1);
    }
    if (subject.read(order.front()) != order.front() + 1)
        state.SkipWithError("nothing was written");
    countEntries(state);
}

/// Loads a file into the variables of a host. `File(names, path)` writes the file. After that
/// `load(path)` and `forget()` can be called any number of times; `isLoaded()` returns whether the
/// values are loaded.
template<class File> void benchLoad(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString original = folder.filePath(QStringLiteral("original"));
    File file(settingNames(sizeOf(state)), original);
    int loads = 0;
    for (auto _ : state) {
        state.PauseTiming();
        file.forget();
        // Copy to a new file name: peers cache files that they have read before.
        const QString path = folder.filePath(QString::number(++loads));
        QFile::copy(original, path);
        state.ResumeTiming();
        file.load(path);
        state.PauseTiming();
        QFile::remove(path);
        state.ResumeTiming();
    }
    if (!file.isLoaded())
        state.SkipWithError("nothing was loaded");
    countEntries(state);
}

/// Changes one value and saves all of them.
template<class File> void benchSave(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("saved"));
    File file(settingNames(sizeOf(state)), path);
    int value = sizeOf(state); // larger than all values in the file
    for (auto _ : state)
        file.save(++value);
    if (QFileInfo(path).size() < sizeOf(state))
        state.SkipWithError("nothing was saved");
    countEntries(state);
}
