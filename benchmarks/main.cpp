#include "benchmarks.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QMessageLogContext>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // With Qt's random hash seed the work would differ from run to run.
    qSetGlobalQHashSeed(0);
    // Log output would be measured too, and would hide the results.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication application(argc, argv);

    addProgramBenchmarks();
    addStoreBenchmarks();
    addFileBenchmarks();
    addQSettingsBenchmarks();
    addKConfigBenchmarks();
    addManagerBenchmarks();
    addWindowBenchmarks();

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    if (benchmark::RunSpecifiedBenchmarks() == 0) {
        std::fputs("no benchmark matches the filter\n", stderr);
        return 1;
    }
    return 0;
}
