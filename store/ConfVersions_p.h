#pragma once

#include <QJsonValue>
#include <QMap>
#include <QString>

#include <functional>

/// What older versions of the program wrote: former names of keys, and older forms of values.
class ConfVersions
{
public:
    struct FormerName
    {
        QString key;    ///< the current name
        bool keepEntry; ///< whether the local file keeps the entry of the former name
    };

    QMap<QString, FormerName> mFormerNames;                                   ///< by former name
    QMap<QString, std::function<QJsonValue(const QJsonValue &)>> mConverters; ///< by key
};
