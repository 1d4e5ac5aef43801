// File names in the folder of translations, one per line, and after an empty line a stored code.
#include "FuzzTarget.h"

#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

using MtConf::ConfWidgetLanguage;

namespace {

constexpr int sMostFiles = 4;

/// Creates an empty folder of translations and sets it as the folder to search.
QByteArray translationsFolder()
{
    const QString folder = scratchFolder() + "/language/";
    expect(QDir().mkpath(folder), "a folder can be created");
    const QDir program(QCoreApplication::applicationDirPath());
    ConfWidgetLanguage::sLanguagePath = '/' + program.relativeFilePath(folder) + '/';
    return QFile::encodeName(folder);
}

/// Creates the files and returns the names of those that could be created.
QByteArrayList makeFiles(const QByteArray &folder, const QByteArrayList &names)
{
    QByteArrayList made;
    for (const QByteArray &name : names) {
        if (name.contains('/') || name.contains('\0') || made.size() == sMostFiles)
            continue;
        const int file = ::open((folder + name).constData(), O_CREAT | O_EXCL | O_WRONLY, 0600);
        if (file < 0)
            continue;
        ::close(file);
        made.append(name);
    }
    return made;
}

QStringList expectedCodes(const QByteArrayList &files)
{
    QStringList codes;
    for (const QByteArray &file : files) {
        const QString name = QFile::decodeName(file);
        // Hidden files are ignored, and files whose name cannot be decoded.
        if (!name.startsWith('.') && name.endsWith(".qm", Qt::CaseInsensitive)
            && QFile::encodeName(name) == file)
            codes.append(name.left(name.indexOf('.')).toLower());
    }
    std::sort(codes.begin(), codes.end());
    return codes;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    static const QByteArray sFolder = translationsFolder();
    const QByteArray input = bytesOf(data, size);
    const auto gap = input.indexOf("\n\n");
    const QByteArrayList files = makeFiles(sFolder, input.left(gap).split('\n'));
    const QString stored = gap < 0 ? QString("auto") : QString::fromUtf8(input.mid(gap + 2));

    ConfWidgetLanguage::mSupportLangCodes.clear();
    const QStringList codes = ConfWidgetLanguage::loadSupportLanguageCode();
    for (const QByteArray &file : files)
        ::unlink((sFolder + file).constData());

    expect(codes.mid(0, 2) == QStringList({"auto", "en-us"}), "two codes are built in");
    QStringList found = codes.mid(2);
    std::sort(found.begin(), found.end());
    expect(found == expectedCodes(files), "every file has its code", found.join('|').toUtf8(),
           expectedCodes(files).join('|').toUtf8());

    const QString valid = ConfWidgetLanguage::getVaildLanguageCode(stored);
    expect(valid != "auto" && codes.contains(valid), "a stored code resolves to a usable one",
           valid.toUtf8());
    if (stored != "auto" && codes.contains(stored))
        expect(valid == stored, "a usable code is kept", valid.toUtf8(), stored.toUtf8());
    ConfWidgetLanguage::installTranslator(stored);
    return 0;
}
