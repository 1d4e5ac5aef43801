#pragma once

#include "BenchmarkSupport.h"

#include <QColor>
#include <QFont>
#include <QKeySequence>
#include <QString>

#include <variant>
#include <vector>

/// One variable of a program.
using Variable = std::variant<int, bool, QString, QColor, QFont, QKeySequence>;

/// The settings of a program, in the mix of types that programs have: whole numbers, flags, texts
/// in several scripts, some with quotes and line breaks, colours, hotkeys and a few fonts. The user
/// has changed each of them once, and a fifth of them back.
struct ProgramSettings
{
    explicit ProgramSettings(int count);

    QVector<SettingName> names;
    std::vector<Variable> defaults;
    std::vector<Variable> saved;  ///< what the file contains
    std::vector<Variable> edited; ///< what the user sets then
    std::vector<int> reads;       ///< the numbers of those that the program reads by key
    std::vector<int> edits;       ///< the numbers of those that the user edits
};

/// Runs a program again and again, and measures one part of each run: `measured(host,
/// settings)`, which begins and ends with the timing paused.
///
/// A `Host` is a program with one settings library. `Host::write(settings, path)` writes the file.
/// `Host(settings, path)` prepares what is not measured: a program has its keys as literals.
/// `start()` declares all settings and reads the file into `variables()`. `read(i)` returns a value
/// by its key, `edit(i, values)` sets one, `save()` saves all, and `isSaved()` returns whether
/// nothing is left to save.
template<class Host, class Measured> void runProgram(benchmark::State &state, Measured measured)
{
    const ProgramSettings settings(sizeOf(state));
    const QTemporaryDir folder;
    const QString original = folder.filePath(QStringLiteral("original"));
    Host::write(settings, original);
    int runs = 0;
    for (auto _ : state) {
        state.PauseTiming();
        // A new file name: peers cache files that they have read before.
        const QString path = folder.filePath(QString::number(++runs));
        QFile::copy(original, path);
        {
            Host host(settings, path);
            measured(host, settings);
        }
        QFile::remove(path);
        state.ResumeTiming();
    }
    countIterations(state);
}

/// Declares all settings and reads the file.
template<class Host> void programStart(benchmark::State &state)
{
    runProgram<Host>(state, [&state](Host &host, const ProgramSettings &settings) {
        state.ResumeTiming();
        host.start();
        state.PauseTiming();
        if (host.variables() != settings.saved)
            state.SkipWithError("the values were not read");
    });
}

/// Reads 200 settings and edits 20, by their keys.
template<class Host> void programUse(benchmark::State &state)
{
    runProgram<Host>(state, [&state](Host &host, const ProgramSettings &settings) {
        host.start();
        state.ResumeTiming();
        for (const int i : settings.reads)
            benchmark::DoNotOptimize(host.read(i));
        for (const int i : settings.edits)
            host.edit(i, settings.edited);
        state.PauseTiming();
        const int last = settings.edits.back();
        if (host.read(last) != settings.edited[static_cast<size_t>(last)])
            state.SkipWithError("nothing was edited");
    });
}

/// Saves after these edits.
template<class Host> void programSave(benchmark::State &state)
{
    runProgram<Host>(state, [&state](Host &host, const ProgramSettings &settings) {
        host.start();
        for (const int i : settings.edits)
            host.edit(i, settings.edited);
        state.ResumeTiming();
        host.save();
        state.PauseTiming();
        if (!host.isSaved())
            state.SkipWithError("nothing was saved");
    });
}

/// Registers the three for one library.
template<class Host> void addProgramBenchmarks(const char *who)
{
    const std::vector<int> sizes{30, 300, 3000, 30000};
    addBenchmark("programStart", who, programStart<Host>, sizes);
    addBenchmark("programUse", who, programUse<Host>, sizes);
    addBenchmark("programSave", who, programSave<Host>, sizes);
}
