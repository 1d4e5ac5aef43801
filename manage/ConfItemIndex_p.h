#pragma once

#include <QHash>
#include <QList>
#include <QString>

namespace MtConf {

class ConfItem;

/// Finds items of a list by their names at a cost that does not grow with the list. It notices when
/// the list changes and then reads it again, so that a callback that declares, removes or replaces
/// items between two lookups gets the same answers as a walk through the list would give.
class ConfItemIndex
{
public:
    explicit ConfItemIndex(const QList<ConfItem> &items) : mItems(items) {}

    /// The first item with these three names, or null.
    const ConfItem *find(const QString &majorName, const QString &name, const QString &subName);

private:
    struct Names
    {
        QString majorName, name, subName;
        bool operator==(const Names &other) const
        {
            return majorName == other.majorName && name == other.name && subName == other.subName;
        }
    };
    friend uint qHash(const Names &names, uint seed);
    static Names namesOf(const ConfItem &item);

    bool isStale() const;
    void rebuild();

    const QList<ConfItem> &mItems;
    QHash<Names, int> mFirst;
    const void *mData = nullptr;
    int mSize = -1;
    quint64 mRevision = 0;
};

} // namespace MtConf
