#include "SettingsFile_p.h"

#include "MaltoConfiguration/store/DumpMember_p.h"
#include "MaltoConfiguration/store/JsonText_p.h"
#include "MaltoConfiguration/store/PosixFile_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QLocale>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>

namespace MtConf {

namespace {

constexpr QLatin1String sOwnKeys("Malto.");

/// Whether `entry` may be an entry of a dump.
bool isEntry(const QJsonValue &entry)
{
    const QJsonObject members = entry.toObject();
    return members.contains(sTimeKey.name()) || members.contains(sRemovedKey.name())
           || members.contains(sValueKey.name());
}

QByteArray textOf(const ConfStorage &store)
{
    const QJsonObject dump = store.dumpConf(ConfStorage::DumpShared);
    QByteArray text;
    for (auto entry = dump.constBegin(); entry != dump.constEnd(); ++entry) {
        if (staysHere(store, keyOfEntry(entry.key())))
            continue;
        text += text.isEmpty() ? "\n    " : ",\n    ";
        appendJsonString(text, entry.key());
        text += ": ";
        appendJsonValue(text, entry.value());
    }
    return '{' + text + "\n}\n";
}

/// Returns `error` as a sentence about the file `path`.
QString sentence(QString error, const QString &path)
{
    return error.replace(QLatin1String("%1"), QDir::toNativeSeparators(path));
}

bool writeAll(QSaveFile &file, const QByteArray &text)
{
    qint64 written = 0;
    while (written < text.size()) {
        const qint64 count = file.write(text.constData() + written, text.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    // QSaveFile::commit() does not notice that the disk is full while it writes what is buffered.
    // The first call fails without a reason if the system takes only a part; the next one tells it.
    return file.flush() || file.flush();
}

QString notAFile()
{
    return QCoreApplication::translate("MtConf::SettingsFile", "\"%1\" is not a file.");
}

} // namespace

bool staysHere(const ConfStorage &store, const QString &key)
{
    const ConfStorage::DynamicConfClass *cls = store.findDynamicConfClass(key);
    const quint32 flags = store.mConfMetas.value(key).flags | (cls ? cls->flags : 0);
    return (flags & (ConfStorage::FlagLocalOnly | ConfStorage::FlagSecret))
           || key.startsWith(sOwnKeys);
}

QString keyOfEntry(const QString &name)
{
    const auto mark = name.lastIndexOf(QLatin1Char('#'));
    const QString key = name.left(mark); // the whole name without a mark
    return mark < 0 || addSysMark(key) == name ? key : QString();
}

QString SettingsFile::proposedName()
{
    constexpr int sMaxLength = 60; // file systems accept 255 bytes
    // What file systems do not accept, or hide.
    static const QRegularExpression sForbidden(QStringLiteral("[\\x00-\\x1f\\x7f/\\\\:*?\"<>|]+"));
    QString name = QCoreApplication::translate("MtConf::SettingsFile", "%1 settings",
                                               "name of a file")
                       .arg(QGuiApplication::applicationDisplayName().left(sMaxLength));
    name.replace(sForbidden, QStringLiteral(" "));
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    return name.simplified() + QLatin1String(".json");
}

QString SettingsFile::write(const ConfStorage &store) const
{
    const QByteArray text = textOf(store);
    const QFileInfo target(mPath);
    const bool isReplaceable = target.isFile() || !target.exists(); // QSaveFile replaces pipes
    QSaveFile file(mPath);
    if (isReplaceable && file.open(QIODevice::WriteOnly) && writeAll(file, text) && file.commit())
        return QString();
    const QString reason = isReplaceable ? file.errorString() : sentence(notAFile(), mPath);
    qWarning() << "ConfigurationWindow settings could not be exported: " << mPath;
    return sentence(QCoreApplication::translate("MtConf::SettingsFile",
                                                "The settings could not be saved in \"%1\"."),
                    mPath)
           + QLatin1Char('\n') + reason;
}

SettingsFile::Content SettingsFile::read(qint64 limit) const
{
    using Status = PosixFile::Status;
    Content content;
    const PosixFile::Content file = PosixFile::read(mPath, limit);
    switch (file.status) {
    case Status::Done: content.error = readError(file.bytes, &content.dump); break;
    case Status::Missing:
        content.error = QCoreApplication::translate("MtConf::SettingsFile",
                                                    "The file \"%1\" does not exist.");
        break;
    case Status::Refused: content.error = notAFile(); break;
    case Status::TooLarge:
        content.error = QCoreApplication::translate("MtConf::SettingsFile",
                                                    "The file \"%1\" is larger than %2.")
                            .replace(QLatin1String("%2"), QLocale().formattedDataSize(limit));
        break;
    case Status::Failed:
        content.error = QCoreApplication::translate("MtConf::SettingsFile",
                                                    "The file \"%1\" could not be read.");
        break;
    }
    if (content.error.isEmpty())
        return content;
    qWarning() << "ConfigurationWindow settings could not be imported: " << mPath;
    return {QJsonObject(), sentence(content.error, mPath)};
}

/// Parses `text` into `dump`. Returns why that failed, with "%1" for the path, or an empty text.
QString SettingsFile::readError(const QByteArray &text, QJsonObject *dump) const
{
    const QByteArray trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return QCoreApplication::translate("MtConf::SettingsFile", "The file \"%1\" is empty.");
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error == QJsonParseError::DeepNesting)
        return QCoreApplication::translate(
            "MtConf::SettingsFile",
            "The file \"%1\" is damaged: its content is nested too deeply.");
    const bool isParsed = error.error == QJsonParseError::NoError;
    if (!isParsed && (trimmed.startsWith('{') || trimmed.startsWith("\xef\xbb\xbf{")))
        return QCoreApplication::translate("MtConf::SettingsFile",
                                           "The file \"%1\" is damaged or not complete.");
    *dump = document.object();
    const bool hasEntries = dump->isEmpty()
                            || std::any_of(dump->constBegin(), dump->constEnd(), isEntry);
    if (document.isObject() && hasEntries)
        return QString();
    return QCoreApplication::translate("MtConf::SettingsFile",
                                       "The file \"%1\" does not contain settings.");
}

} // namespace MtConf
