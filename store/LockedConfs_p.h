#pragma once

#include <QSet>
#include <QString>

/// The keys whose values an administrator has fixed.
class LockedConfs
{
public:
    bool contains(const QString &key) const { return mKeys.contains(key); }

private:
    QSet<QString> mKeys;
};
