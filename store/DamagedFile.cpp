#include "DamagedFile_p.h"

#include "PlainDump_p.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

constexpr int sKeptCopies = 3;
constexpr int sMaxCopiesInASecond = 100;

/// A copy, sorted by its age.
struct Copy
{
    QString time;
    int number = 1; // of the copies of this second
    QString path;

    bool operator<(const Copy &other) const
    {
        return std::tie(time, number) < std::tie(other.time, other.number);
    }
};

/// Returns the copies of the file `path`, the oldest first.
std::vector<Copy> copiesOf(const QString &path)
{
    const QFileInfo file(path);
    const QDir folder = file.dir();
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(file.fileName())
        + QLatin1String("\\.damaged-([0-9]{8}T[0-9]{6}Z)(?:-([0-9]{1,3}))?")));
    std::vector<Copy> copies;
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QRegularExpressionMatch match = pattern.match(name);
        if (!match.hasMatch())
            continue;
        const QString number = match.captured(2);
        copies.push_back(
            {match.captured(1), number.isEmpty() ? 1 : number.toInt(), folder.filePath(name)});
    }
    std::sort(copies.begin(), copies.end());
    return copies;
}

/// Creates `copy` under the first name that is free, and returns its path.
QString createCopy(PosixFile *copy, const QString &path)
{
    const QString name = path + QLatin1String(".damaged-")
                         + QDateTime::currentDateTimeUtc().toString(
                             QStringLiteral("yyyyMMdd'T'hhmmss'Z'"));
    for (int number = 1; number <= sMaxCopiesInASecond; ++number) {
        const QString tried = number == 1 ? name
                                          : name + QLatin1Char('-') + QString::number(number);
        switch (copy->createNew(tried)) {
        case PosixFile::Status::Done: return tried;
        case PosixFile::Status::Refused: break;
        default: return QString();
        }
    }
    return QString();
}

} // namespace

bool DamagedFile::isDamaged(const DumpText &dump)
{
    // The parser of the library is faster, but accepts only texts as the library writes them.
    return !dump.text.isEmpty() && !dump.members && !QJsonDocument::fromJson(dump.text).isObject();
}

bool DamagedFile::isDamaged(const QByteArray &text)
{
    return isDamaged(DumpText{text, readPlainDump(text)});
}

bool DamagedFile::isRestOf(const QByteArray &text, const QByteArray &saved)
{
    return text.size() <= saved.size()
           && std::equal(text.cbegin(), text.cend(), saved.cbegin(), [](char found, char expected) {
                  return found == expected || found == '\0';
              });
}

QString DamagedFile::keepCopy(const QByteArray &text, const PosixFile &file,
                              PosixFile::Access access)
{
    const QString path = file.resolvedPath();
    std::vector<Copy> copies = copiesOf(path);
    if (!copies.empty()) {
        const QString newest = copies.back().path;
        const PosixFile::Content content = PosixFile::read(newest, text.size());
        if (content.status == PosixFile::Status::Done && content.bytes == text)
            return newest;
    }
    PosixFile copy;
    const QString copyPath = createCopy(&copy, path);
    if (copyPath.isEmpty())
        return QString();
    // Without the right to give the copy to the owner of the file, it stays private to this user,
    // who can read the file as well.
    copy.copyAccess(file, access);
    if (!copy.write(text) || !copy.sync() || !PosixFile::syncFolderOf(copyPath)) {
        QFile::remove(copyPath);
        return QString();
    }
    // By the clock the new copy may be the oldest, so it is not among those that can be removed.
    for (std::size_t i = 0; i + sKeptCopies <= copies.size(); ++i)
        QFile::remove(copies[i].path);
    return copyPath;
}
