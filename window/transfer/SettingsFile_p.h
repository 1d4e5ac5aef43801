#pragma once

#include <QJsonObject>
#include <QString>

class ConfStorage;

namespace MtConf {

/// Returns whether the entry of `key` stays on this computer: local-only and secret keys, and the
/// library's own, which begin with "Malto.".
bool staysHere(const ConfStorage &store, const QString &key);

/// Returns the key of the entry `name` of a dump: without the system mark. Empty if the entry has
/// the mark of another system.
QString keyOfEntry(const QString &name);

/// A file of settings, which the user exports and imports: a dump as `ConfStorage::DumpShared`
/// writes it, one entry in each line, in UTF-8. Its errors are sentences for the user.
class SettingsFile
{
public:
    /// What a file contains.
    struct Content
    {
        QJsonObject dump; ///< empty if there is an error
        QString error;    ///< why the file cannot be imported; empty if it can
    };

    explicit SettingsFile(const QString &path) : mPath(path) {}

    /// Returns the name that is proposed for an exported file, from the name of the host.
    static QString proposedName();

    /// Writes all entries of `store` but those that stay here. Replaces an existing file, or leaves
    /// it as it is if that fails. Returns why it failed, or an empty text. Logs the warning
    /// "ConfigurationWindow settings could not be exported: " with the path if it failed.
    QString write(const ConfStorage &store) const;

    /// Reads the file. One of more than `limit` bytes is refused. Logs the warning
    /// "ConfigurationWindow settings could not be imported: " with the path if there is an error.
    Content read(qint64 limit) const;

private:
    QString readError(const QByteArray &text, QJsonObject *dump) const;

    QString mPath;
};

} // namespace MtConf
