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

    /// Returns whether the local file keeps the entries of `formerName`.
    bool isKept(const QString &formerName) const
    {
        const auto former = mFormerNames.constFind(formerName);
        return former != mFormerNames.constEnd() && former->keepEntry;
    }

    /// Returns `value` in the current form of `key`. The default value, null or undefined, has no
    /// other form.
    QJsonValue convert(const QString &key, const QJsonValue &value) const
    {
        const auto converter = mConverters.value(key); // a copy, as it may replace itself
        return converter && !value.isNull() && !value.isUndefined() ? converter(value) : value;
    }

    QMap<QString, FormerName> mFormerNames;                                   ///< by former name
    QMap<QString, std::function<QJsonValue(const QJsonValue &)>> mConverters; ///< by key
};
