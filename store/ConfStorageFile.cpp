#include <MaltoConfiguration/store/ConfStorage.h>

#include <QDebug>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

void ConfStorage::saveToLocalConfFile()
{
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::saveToLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    if (!mChanged)
        return;
    // Rewritten in place, so that links and permissions that a person gave the file stay.
    QFile file(mLocalSaveFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        qCritical() << "ConfStorage::saveToLocalConfFile() open file failed: " << mLocalSaveFile;
        return;
    }
    file.write(QJsonDocument(dumpConf(DumpLocal)).toJson(QJsonDocument::Compact));
    qDebug() << "ConfStorage::saveToLocalConfFile() save to file: " << mLocalSaveFile;
    mChanged = false;
}

void ConfStorage::loadLocalConfFile()
{
    if (mLocalSaveFile.isEmpty()) {
        qCritical() << "ConfStorage::loadLocalConfFile() mLocalSaveFile.isEmpty()";
        return;
    }
    QByteArray text;
    {
        QFile file(mLocalSaveFile);
        if (file.open(QIODevice::ReadOnly))
            text = file.readAll();
    }
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (document.isObject())
        loadConf(document.object(), LoadLocal);
    loadPresetDynamicConf();
    mChanged = false;
    mLocalLoaded = true;
}
