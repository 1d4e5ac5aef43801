#pragma once

#include <MaltoConfiguration/ItemList.h>

#include <QHash>
#include <QString>

namespace MtConf {

class ConfItem;

/// Returns how often items were copied or assigned, which puts an item into a list, or got a former
/// name. While this
/// number and the size of a list stay the same, its items change only if they are swapped or if
/// single fields are assigned.
quint64 itemRevision();

/// Finds items of a list by the names of members of a configuration file, in constant time. It is
/// rebuilt when the list has changed: if a callback declares, removes or replaces items between two
/// lookups, the results are those of a linear search.
class ConfItemIndex
{
public:
    explicit ConfItemIndex(const ItemList<ConfItem> &items) : mItems(items) {}

    /// Returns the first item whose two or three names joined by "." are `memberName`, or null. The
    /// third name may be empty. Otherwise the first item with `memberName` as a former name.
    const ConfItem *find(const QString &memberName);

private:
    using Index = ItemList<ConfItem>::size_type;

    const ConfItem *findFormer(const QString &memberName);
    bool isStale() const;
    void rebuild();

    const ItemList<ConfItem> &mItems;
    QHash<QString, Index> mFirst;  // by full name
    QHash<QString, Index> mFormer; // by former name
    const void *mData = nullptr;
    Index mSize = -1;
    quint64 mRevision = 0;
};

} // namespace MtConf
