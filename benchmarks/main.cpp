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
    // Counted under Qt's control, hashes and with them the work differ from run to run.
    qSetGlobalQHashSeed(0);
    // What is logged would be measured as well, and drown the results.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication application(argc, argv);

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
        std::fputs("no benchmark has such a name\n", stderr);
        return 1;
    }
    return 0;
}
