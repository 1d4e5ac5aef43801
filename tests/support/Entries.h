#pragma once

#include <QDateTime>
#include <QJsonObject>

/// Returns a timestamp of a store.
inline QDateTime second(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

/// Returns an entry of a dump, which changed in second `time`.
inline QJsonObject entry(qint64 time, const QJsonValue &value)
{
    return {{"t", time}, {"v", value}};
}
