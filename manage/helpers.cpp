#include <MaltoConfiguration/manage/helpers.h>

#include "MaltoConfiguration/store/Limits_p.h"
#include "MaltoConfiguration/store/PosixFile_p.h"

#include "QtCompat_p.h"

#include <QCoreApplication>
#include <QDebug>
#include <QIODevice>
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
    const PosixFile::Content content = PosixFile::read(path, Limits::sMaxConfigFileSize);
    if (content.status == PosixFile::Status::Missing)
        return QJsonDocument();
    if (content.status != PosixFile::Status::Done) {
        qCritical() << "can't open config file" << path;
        return QJsonDocument();
    }
    QTextStream stream(content.bytes, QIODevice::ReadOnly | QIODevice::Text);
    QtCompat::setUtf8(stream);
    const QByteArray text = stream.readAll().toUtf8();

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    // Qt returns a null document for text that cannot be parsed, so such a file is dropped
    // silently: at the first start a host's file does not exist or is empty, which is not an error.
    if (error.error != QJsonParseError::NoError && !document.isNull()) {
        qCritical() << "read config faild: " << error.error;
        return QJsonDocument();
    }
    return document;
}

void setAppAutoRun(bool on)
{
    Q_UNUSED(on)
    // Prepares what a registration needs and does not use it: nothing is registered on this
    // platform.
    const QString name = QCoreApplication::applicationName();
    QString path = QCoreApplication::applicationFilePath();
    path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    Q_UNUSED(name)
    Q_UNUSED(path)
}
