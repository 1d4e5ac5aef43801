// Writes and reads files with random settings, to compare two builds:
//   malto-exchange write <folder> <seeds>                        writes <folder>/<seed>/…
//   malto-exchange rewrite <from> <folder> <seeds>               reads <from>, writes what it read
//   malto-exchange merge <other> <folder> <seeds> <round>        reads its folder, merges <other>,
//                                                                changes settings, writes
//   malto-exchange digests <seeds>                               prints the lines of digests.txt
#include "RandomFiles.h"
#include "RandomForms.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

Files filesIn(const QString &folder)
{
    Files files;
    const QStringList names = QDir(folder).entryList(QDir::Files);
    for (const QString &name : names) {
        QFile file(folder + '/' + name);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        files[name] = file.readAll();
    }
    return files;
}

void write(const QString &folder, const Files &files)
{
    QDir().mkpath(folder);
    for (const auto &[name, text] : files) {
        QFile file(folder + '/' + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

void writeAll(const QString &folder, const Files &files, const Files &forms)
{
    write(folder, files);
    write(folder, forms);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments().mid(1) + QStringList{"", "", "", "", ""};
    const QString command = arguments[0];
    const QString first = QDir().absoluteFilePath(arguments[1]) + '/';
    const QString second = QDir().absoluteFilePath(arguments[2]) + '/';
    const QTemporaryDir temporary;
    if (!temporary.isValid() || !QDir::setCurrent(temporary.path()))
        qFatal("no temporary folder");

    if (command == "digests") {
        for (int seed = 0; seed < arguments[1].toInt(); ++seed)
            std::puts(digestLine(static_cast<quint64>(seed)).constData());
    } else if (command == "write") {
        for (int seed = 0; seed < arguments[2].toInt(); ++seed)
            writeAll(first + QString::number(seed), writtenFiles(static_cast<quint64>(seed)),
                     writtenForms(static_cast<quint64>(seed)));
    } else if (command == "rewrite") {
        for (int seed = 0; seed < arguments[3].toInt(); ++seed) {
            const QString folder = QString::number(seed);
            const Files files = filesIn(first + folder);
            writeAll(second + folder, rewrittenFiles(files), rewrittenForms(files));
        }
    } else if (command == "merge") {
        for (int seed = 0; seed < arguments[3].toInt(); ++seed) {
            const QString folder = QString::number(seed);
            write(second + folder, mergedFiles(filesIn(second + folder), filesIn(first + folder),
                                               static_cast<quint64>(seed), arguments[4].toInt()));
        }
    } else {
        std::fputs("malto-exchange: unknown command\n", stderr);
        return 2;
    }
    QDir::setCurrent(QDir::rootPath());
    return 0;
}
