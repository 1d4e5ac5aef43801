#include <MaltoConfiguration/manage/helpers.h>

#include "MaltoConfiguration/store/PosixFile_p.h"

#include "QtCompat_p.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QJsonParseError>
#include <QTextStream>

QString getIndexName(const QString &a, const QString &b, const QString &c)
{
    const QLatin1Char separator('.');
    if (!c.isEmpty())
        return a + separator + b + separator + c;
    return b.isEmpty() ? a : a + separator + b;
}

QJsonDocument readJsonFromFile(QString path)
{
    QFile file(path);
    if (!file.exists())
        return QJsonDocument();
    // Reading a pipe or a device might never end, and what no memory holds would end the process.
    const bool isUsable = QFileInfo(path).isFile() && file.size() <= PosixFile::sMaxSize;
    if (!isUsable || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qCritical() << "can't open config file" << path;
        return QJsonDocument();
    }
    QTextStream stream(&file);
    QtCompat::setUtf8(stream);
    const QByteArray text = stream.readAll().toUtf8();
    file.close();

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    // A failed parse gives a null document, so a malformed file is dropped without a message; hosts
    // start with files that do not exist yet or are empty, and that is no error.
    if (error.error != QJsonParseError::NoError && !document.isNull()) {
        qCritical() << "read config faild: " << error.error;
        return QJsonDocument();
    }
    return document;
}

void setAppAutoRun(bool on)
{
    Q_UNUSED(on)
    // What a registration would need is gathered in the form it would take, and then left alone:
    // on this platform nothing is registered.
    const QString name = QCoreApplication::applicationName();
    QString path = QCoreApplication::applicationFilePath();
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    Q_UNUSED(name)
    Q_UNUSED(path)
}
