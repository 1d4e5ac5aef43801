#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonValue>
#include <QMap>
#include <QString>

#include <optional>

/// The functions that decide which values keys accept.
class ConfConstraints
{
public:
    bool contains(const QString &key) const { return mConstraints.contains(key); }
    void set(const QString &key, const ConfConstraint &constraint);

    /// Returns the value that `stored`, the entry of `key`, gets from `json`, as the type writes
    /// it; nothing if it is refused. The default value, null or undefined, is always accepted. Logs
    /// what is refused or changed.
    std::optional<QJsonValue> accepted(const QString &key, const ConfValue &stored,
                                       const QJsonValue &json) const;

private:
    QMap<QString, ConfConstraint> mConstraints; // by key
};
