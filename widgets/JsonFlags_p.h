#pragma once

#include <QJsonValue>
#include <QString>

namespace MtConf {

/// Combines flags that are stored under one key, by their JSON: numbers, whose bits are combined,
/// or names, separated by "|".
class JsonFlags
{
public:
    explicit JsonFlags(const QString &key) : mKey(key) {}

    /// Returns `flags` in the form in which the store returns it, such as the name of a number.
    /// Null if the type of the key refuses it.
    QJsonValue normalized(const QJsonValue &flags) const;
    /// Returns whether `flags` contains all bits of `flag`. No flags contain only no flags.
    bool contains(const QJsonValue &flags, const QJsonValue &flag) const;
    /// Returns `flags` and `flag`; no flags if `flag` is the name or number of none.
    QJsonValue with(const QJsonValue &flags, const QJsonValue &flag) const;
    /// Returns `flags` without the bits of `flag`.
    QJsonValue without(const QJsonValue &flags, const QJsonValue &flag) const;

private:
    bool isNone(const QJsonValue &flag) const;

    const QString mKey;
};

} // namespace MtConf
