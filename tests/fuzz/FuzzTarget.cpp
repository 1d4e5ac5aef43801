#include "FuzzTarget.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

void startFuzzing()
{
    static bool sStarted = false;
    if (sStarted)
        return;
    sStarted = true;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QLocale::setDefault(QLocale::c());
    static int sCount = 1;
    static char sName[] = "fuzz";
    static char *sArguments[] = {sName, nullptr};
    // Never destroyed: the fuzzer calls exit() during a run.
    new QApplication(sCount, sArguments);
}

void expect(bool holds, const char *what, const QByteArray &found, const QByteArray &expected)
{
    if (holds)
        return;
    std::fprintf(stderr, "failed: %s\nfound:    %s\nexpected: %s\n", what, found.constData(),
                 expected.constData());
    std::abort();
}

bool isReadBack(const QKeySequence &keys)
{
    return QKeySequence::fromString(keys.toString()) == keys;
}

QString scratchFolder()
{
    static const QTemporaryDir sFolder;
    expect(sFolder.isValid(), "a scratch folder can be created");
    return sFolder.path();
}

void writeScratchFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    expect(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
           "a scratch file can be written");
}
