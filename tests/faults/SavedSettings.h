#pragma once

#include "FaultInjection.h"
#include "support/LogCapture.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDir>
#include <QFile>
#include <QJsonObject>

/// Two settings of a host, their store, and their local file in a separate folder. One number `n`
/// determines both values and their timestamp, which is `n` hundred seconds.
class SavedSettings
{
public:
    static QString path() { return "box/local.json"; }
    static QString journalPath() { return "box/local.json.save-journal"; }
    static QByteArray folder() { return QFile::encodeName(QDir::currentPath() + "/box"); }

    explicit SavedSettings(bool safe)
        : SavedSettings(safe ? quint32(ConfStorage::SafeSave) : quint32(0))
    {
    }
    explicit SavedSettings(quint32 options)
    {
        store.mFileOptions = options;
        store.mLocalSaveFile = path();
        store.reserveConf("size", &size);
        store.reserveConf("text", &text);
    }

    /// Sets both settings to the values for number `n` (1 to 9).
    void change(int n)
    {
        const QDateTime time = QDateTime::fromSecsSinceEpoch(n * 100, Qt::UTC);
        store.set<int>("size", n);
        store.set<QString>("text", QString("text %1").arg(n));
        store.mConfMetas["size"].lastChangeTime = time;
        store.mConfMetas["text"].lastChangeTime = time;
    }

    /// Returns the number of the current values: 0 for the defaults, -1 for a mixture.
    int number() const
    {
        if (size == 0 && text == "none")
            return 0;
        return text == QString("text %1").arg(size) ? size : -1;
    }

    /// Returns the text of the local file for number `n`.
    static QByteArray fileText(int n)
    {
        return QByteArray("{\"size\":{\"t\":N00,\"v\":N},\"text\":{\"t\":N00,\"v\":\"text N\"}}")
            .replace('N', QByteArray::number(n));
    }

    static QByteArray content(const QString &name = path())
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static bool write(const QByteArray &text, const QString &name = path())
    {
        QFile file(name);
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }

    /// Returns the message that a successful save logs.
    static QString saved()
    {
        return "ConfStorage::saveToLocalConfFile() save to file:  \"box/local.json\"";
    }
    static QString openFailed()
    {
        return "ConfStorage::saveToLocalConfFile() open file failed:  \"box/local.json\"";
    }
    static QString journalFailed()
    {
        return "ConfStorage::saveToLocalConfFile() write journal failed:  "
               "\"box/local.json.save-journal\"";
    }

    /// Loads the file as the next run of the host does, with and without `SafeSave`, and returns
    /// the number of the loaded values.
    static int nextRun()
    {
        const LogCapture log;
        SavedSettings settings(false);
        settings.store.loadLocalConfFile();
        return settings.number();
    }

    /// Saves while `hook` handles the file system calls.
    void saveUnder(const Faults::Hook &hook)
    {
        const Faults::Scope faults(folder(), hook);
        store.saveToLocalConfFile();
    }

    /// Creates an empty folder for the file.
    static void makeFolder()
    {
        QDir("box").removeRecursively();
        QDir().mkdir("box");
    }

    int size = 0;
    QString text = "none";
    ConfStorage store;
};
