#include "SheetWatcher_p.h"

#include "MaltoFiles/Limits_p.h"
#include "MaltoFiles/PosixFile_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

// Longer than the time between deleting and rewriting a file when a text editor saves it.
constexpr int sStillMilliseconds = 100;

} // namespace

QByteArray readSheet(const QString &file)
{
    const QString path = QFileInfo(file).filePath(); // without a prefix of QDir::setSearchPaths()
    QByteArray content;
    if (path.startsWith(QLatin1Char(':'))) {
        QFile resource(path);
        if (!QFileInfo(path).isFile() || !resource.open(QIODevice::ReadOnly))
            return QByteArray();
        content = resource.readAll();
    } else {
        const PosixFile::Content read = PosixFile::read(path, Limits::sMaxSmallFileSize);
        if (read.status != PosixFile::Status::Done)
            return QByteArray();
        content = read.bytes;
    }
    return content.isNull() ? QByteArray("") : content;
}

SheetWatcher::SheetWatcher(QObject *parent) : QObject(parent)
{
    mStill.setSingleShot(true);
    mStill.setInterval(sStillMilliseconds);
    connect(&mStill, &QTimer::timeout, this, &SheetWatcher::compareContents);
}

void SheetWatcher::watch(QWidget *widget, const QHash<QString, QByteArray> &sheets)
{
    const auto isOver = [widget](const Use &use) { return !use.widget || use.widget == widget; };
    mUses.erase(std::remove_if(mUses.begin(), mUses.end(), isOver), mUses.end());
    if (!sheets.isEmpty())
        mUses.append({widget, sheets});
    watchFiles();
}

void SheetWatcher::watchFiles()
{
    QSet<QString> paths;
    for (const Use &use : std::as_const(mUses)) {
        for (auto sheet = use.sheets.cbegin(); use.widget && sheet != use.sheets.cend(); ++sheet) {
            const QFileInfo file(sheet.key());
            // Watch the folder too, because a replaced file is no longer watched.
            for (const QString &path : {file.filePath(), file.path()}) {
                if (QFileInfo::exists(path))
                    paths.insert(path);
            }
        }
    }
    if (!mFiles) {
        if (paths.isEmpty())
            return;
        // A child of the application, because its notifiers must not outlive the event dispatcher.
        mFiles = new QFileSystemWatcher(QCoreApplication::instance());
        const auto restart = [this] { mStill.start(); };
        connect(mFiles, &QFileSystemWatcher::fileChanged, this, restart);
        connect(mFiles, &QFileSystemWatcher::directoryChanged, this, restart);
    }
    // Add all paths again, because a watched path may belong to a file that was replaced.
    const QStringList old = mFiles->files() + mFiles->directories();
    if (!old.isEmpty())
        mFiles->removePaths(old);
    if (!paths.isEmpty())
        mFiles->addPaths(paths.values());
}

void SheetWatcher::compareContents()
{
    watchFiles();
    bool changed = false;
    for (Use &use : mUses) {
        for (auto sheet = use.sheets.begin(); use.widget && sheet != use.sheets.end(); ++sheet) {
            const QByteArray content = readSheet(sheet.key());
            if (content == sheet.value() && content.isNull() == sheet.value().isNull())
                continue;
            sheet.value() = content;
            changed = true;
        }
    }
    if (changed)
        Q_EMIT sheetsChanged();
}
