#pragma once

#include <MaltoConfiguration/ItemList.h>

#include <QHash>
#include <QString>

namespace MtConf {

class ConfItem;

/// Returns how often items were copied, assigned and destroyed: a list of items that keeps its size
/// and its revision is unchanged, but for what is assigned to single fields or swapped.
quint64 itemRevision();

/// Finds items of a list by their member of a configuration file at a cost that does not grow with
/// the list. It notices when the list changes and then reads it again, so that a callback that
/// declares, removes or replaces items between two lookups gets the same answers as a walk through
/// the list would give.
class ConfItemIndex
{
public:
    explicit ConfItemIndex(const ItemList<ConfItem> &items) : mItems(items) {}

    /// The first item whose two or three names `memberName` joins by ".", or null. A third name may
    /// be empty.
    const ConfItem *find(const QString &memberName);

private:
    using Index = ItemList<ConfItem>::size_type;

    bool isStale() const;
    void rebuild();

    const ItemList<ConfItem> &mItems;
    QHash<QString, Index> mFirst; // by full name
    const void *mData = nullptr;
    Index mSize = -1;
    quint64 mRevision = 0;
};

} // namespace MtConf
