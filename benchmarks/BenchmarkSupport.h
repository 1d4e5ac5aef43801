#pragma once

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageLogContext>
#include <QString>
#include <QStringList>

/// Keys as hosts name them, "General.Hotkey.Left0" and so on, in 50 classes.
inline QStringList settingNames(int count)
{
    const QStringList classes{QStringLiteral("General"), QStringLiteral("Capture"),
                              QStringLiteral("Toolbar"), QStringLiteral("Hotkeys"),
                              QStringLiteral("System")};
    const QStringList names{QStringLiteral("Hotkey"), QStringLiteral("Window"),
                            QStringLiteral("Border"), QStringLiteral("Magnifier")};
    const QStringList subNames{QStringLiteral("Left"), QStringLiteral("Right"),
                               QStringLiteral("Width"), QStringLiteral("Opacity")};
    QStringList keys;
    keys.reserve(count);
    for (int i = 0; i < count; ++i) {
        const QString className = classes.at(i % 5) + QString::number(i / 5 % 10);
        keys.append(QStringLiteral("%1.%2.%3%4").arg(className, names.at(i / 50 % 4),
                                                     subNames.at(i / 200 % 4),
                                                     QString::number(i)));
    }
    return keys;
}

/// Reports the time of one entry, one iteration handling `count` of them. `bare` names the benchmark
/// that does the least that this one could do; nothing for the bare ones themselves.
inline void countEntries(benchmark::State &state, int count, const char *bare = "")
{
    using Counter = benchmark::Counter;
    state.counters["per_entry"] = Counter(count, Counter::kIsIterationInvariantRate
                                                     | Counter::kInvert);
    state.SetLabel(bare);
}

/// The bare cost of reading: parses `text` and nothing else.
inline void benchParse(benchmark::State &state, const QByteArray &text, int count)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
    countEntries(state, count);
}

/// Runs the registered benchmarks as a program. What the library logs would be measured as well, and
/// drown the results, so it is dropped.
inline int runBenchmarks(int argc, char **argv)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
