#include "BenchmarkSupport.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

namespace {

/// Returns the time of an iteration, divided by `count`.
benchmark::Counter timePer(double count)
{
    using Counter = benchmark::Counter;
    return Counter(count, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

} // namespace

QVector<SettingName> settingNames(int count)
{
    const QStringList classes{QStringLiteral("General"), QStringLiteral("Capture"),
                              QStringLiteral("Toolbar"), QStringLiteral("Hotkeys"),
                              QStringLiteral("System")};
    const QStringList names{QStringLiteral("Hotkey"), QStringLiteral("Window"),
                            QStringLiteral("Border"), QStringLiteral("Magnifier")};
    const QStringList subNames{QStringLiteral("Left"), QStringLiteral("Right"),
                               QStringLiteral("Width"), QStringLiteral("Opacity")};
    QVector<SettingName> result;
    result.reserve(count);
    for (int i = 0; i < count; ++i) {
        // All settings of a class one after the other, as hosts declare their pages.
        const int page = static_cast<int>(50LL * i / count);
        result.append({classes.at(page % 5) + QString::number(page / 5), names.at(i / 4 % 4),
                       subNames.at(i % 4) + QString::number(i)});
    }
    return result;
}

std::vector<QString> keysOf(const QVector<SettingName> &names)
{
    std::vector<QString> keys;
    keys.reserve(static_cast<size_t>(names.size()));
    for (const SettingName &name : names)
        keys.push_back(name.key());
    return keys;
}

std::vector<int> shuffled(int count)
{
    std::vector<int> order(static_cast<size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), std::mt19937(1));
    return order;
}

template<> int valueOf<int>(int i)
{
    return i;
}

template<> bool valueOf<bool>(int i)
{
    return i % 2 == 0;
}

template<> QString valueOf<QString>(int i)
{
    return QStringLiteral("Border style %1").arg(i);
}

int sizeOf(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

void countEntries(benchmark::State &state)
{
    state.counters["per_entry"] = timePer(sizeOf(state));
}

void countIterations(benchmark::State &state)
{
    state.counters["per_iteration"] = timePer(1);
}

void countBytes(benchmark::State &state, qint64 bytes)
{
    state.counters["bytes"] = static_cast<double>(bytes) / sizeOf(state);
}

benchmark::internal::Benchmark *addBenchmark(const char *work, const char *who,
                                             void (*function)(benchmark::State &),
                                             const std::vector<int> &sizes)
{
    const std::string name = std::string(work) + '/' + who;
    auto *registered = benchmark::RegisterBenchmark(name.c_str(), function);
    for (const int size : sizes)
        registered->Arg(size);
    return registered;
}
