#include "ChangedItems_p.h"

#include "MaltoConfiguration/manage/ItemVisibility_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QHash>

#include <algorithm>

namespace MtConf {

bool isResettable(const ConfItem &item)
{
    return !item.isDefaultValue() && !ConfStorage::instance()->isLocked(item.getFullName());
}

QList<ConfItem *> changedItems(const QPointer<MtConfManage> &manager)
{
    QHash<QString, int> pages; // of items, in the order of the classes
    for (int i = 0; manager && i < manager->majorItems.size(); ++i) {
        const MajorConfItem &major = manager->majorItems.at(i);
        if (!major.majorWidget)
            pages.insert(major.name, i);
    }
    QList<ConfItem *> changed;
    for (int i = 0; manager && i < manager->items.size(); ++i) {
        // Without detaching the list, which would move the items.
        auto *item = const_cast<ConfItem *>(&manager->items.at(i));
        if (item->widgetCreator && pages.contains(item->majorName) && isResettable(*item)
            && isItemShown(*manager, item))
            changed.append(item);
    }
    if (!manager)
        return QList<ConfItem *>();
    std::stable_sort(changed.begin(), changed.end(),
                     [&](const ConfItem *left, const ConfItem *right) {
                         return pages.value(left->majorName) < pages.value(right->majorName);
                     });
    return changed;
}

QSet<QString> changedClasses(const QPointer<MtConfManage> &manager)
{
    QSet<QString> changed;
    const QList<ConfItem *> items = changedItems(manager);
    for (const ConfItem *item : items)
        changed.insert(item->majorName);
    for (int i = 0; manager && i < manager->majorItems.size(); ++i) {
        const MajorConfItem major = manager->majorItems.at(i); // a copy: the host may change it
        if (major.isChanged && major.isChanged())
            changed.insert(major.name);
    }
    return manager ? changed : QSet<QString>();
}

} // namespace MtConf
