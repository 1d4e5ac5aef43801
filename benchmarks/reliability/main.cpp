/// Lets the library and other settings systems run the same programs with the same faults, and
/// prints what is lost as a table in Markdown. Losses are in bold type.
///
///     malto-peers [PROGRAMS SAVES]
///
/// Six programs make 1,000 saves by default, and a program is killed at least once for every ten.
/// The files are in a temporary folder below the current one. Exits with 1 if the library loses
/// something with useRobustFiles().

#include "PeerRow.h"

#include "sharing/KilledProgram.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

void printFatalMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

std::vector<PeerKind> allKinds()
{
    std::vector<PeerKind> kinds = {defaultLibrary(), robustLibrary(), qSettingsPeer()};
    if (const auto kConfig = kConfigPeer())
        kinds.push_back(*kConfig);
    else
        std::fputs("KConfig is not measured: CMake did not find it\n", stderr);
    return kinds;
}

std::vector<PeerRow> allRows(int programs, int saves)
{
    std::vector<PeerRow> rows = {sharingRow(programs, saves)};
    for (const auto &more : {damageRows(), entryRows(), terminationRows()})
        rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

void printLine(const QStringList &cells)
{
    std::printf("| %s |\n", qPrintable(cells.join(QStringLiteral(" | "))));
    std::fflush(stdout); // before the process forks
}

PeerCell measure(const PeerRow &row, const PeerKind &kind)
{
    const QTemporaryDir folder(QDir::current().filePath(QStringLiteral("peer")));
    if (!folder.isValid()) {
        std::fprintf(stderr, "%s\n", qPrintable(folder.errorString()));
        std::exit(2);
    }
    return row.measure(kind, folder.filePath(QStringLiteral("settings")));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 1 && argc != 3) {
        std::fputs("usage: malto-peers [PROGRAMS SAVES]\n", stderr);
        return 2;
    }
    const int programs = std::clamp(argc > 1 ? std::atoi(argv[1]) : 6, 1,
                                    ProgramBoard::sMaxPrograms);
    const int saves = argc > 2 ? std::atoi(argv[2]) : 1000;
    qInstallMessageHandler(printFatalMessage);

    const std::vector<PeerKind> kinds = allKinds();
    QStringList titles = {QStringLiteral("What happens")};
    QStringList rule = {QStringLiteral("---")};
    for (const PeerKind &kind : kinds) {
        titles.append(kind.title);
        rule.append(QStringLiteral("---"));
    }
    printLine(titles);
    printLine(rule);
    bool hasFailed = false;
    for (const PeerRow &row : allRows(programs, saves)) {
        QStringList cells = {row.title};
        for (const PeerKind &kind : kinds) {
            const PeerCell cell = measure(row, kind);
            cells.append(cell.isLoss ? QStringLiteral("**%1**").arg(cell.text) : cell.text);
            hasFailed = hasFailed || (cell.isLoss && kind.mustKeepAll && row.isPromised);
        }
        printLine(cells);
    }
    if (hasFailed)
        std::fputs("The library loses something with useRobustFiles()\n", stderr);
    return hasFailed ? 1 : 0;
}
