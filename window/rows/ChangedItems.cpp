#include "ChangedItems_p.h"

#include "MaltoConfiguration/manage/ItemVisibility_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QHash>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

/// Calls the host's filter last, which may destroy `manager` and `item`.
bool isShownAndChanged(const MtConfManage &manager, ConfItem *item)
{
    return item->widgetCreator && isResettable(*item) && isItemShown(manager, item);
}

/// Returns the classes whose items may have changed with `keys`; all classes without keys.
QSet<QString> classesOf(const MtConfManage &manager, const std::optional<QSet<QString>> &keys)
{
    QSet<QString> all;
    QSet<QString> classes;
    for (const MajorConfItem &major : std::as_const(manager.majorItems)) {
        if (major.majorWidget)
            continue;
        all.insert(major.name);
        const QString prefix = major.name + QLatin1Char('.');
        const auto isInClass = [&](const QString &key) { return key.startsWith(prefix); };
        if (keys && std::any_of(keys->cbegin(), keys->cend(), isInClass))
            classes.insert(major.name);
    }
    if (!keys)
        return all;
    // The filter and the parts of an item can depend on any key.
    for (const ConfItem &item : std::as_const(manager.items)) {
        const bool dependsOnOthers = (item.flags & ItemIsFiltered) || !item.subConfs.isEmpty();
        if (dependsOnOthers && all.contains(item.majorName))
            classes.insert(item.majorName);
    }
    return classes;
}

} // namespace

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
        if (pages.contains(item->majorName) && isShownAndChanged(*manager, item))
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

ChangedClasses changedClasses(const QPointer<MtConfManage> &manager, QSet<QString> former,
                              const std::optional<QSet<QString>> &keys)
{
    if (!manager)
        return {};
    QSet<QString> unknown = classesOf(*manager, keys);
    ChangedClasses changed{former.subtract(unknown), {}};
    for (int i = 0; manager && i < manager->items.size() && !unknown.isEmpty(); ++i) {
        auto *item = const_cast<ConfItem *>(&manager->items.at(i)); // see changedItems()
        const QString name = item->majorName;
        if (unknown.contains(name) && isShownAndChanged(*manager, item)) {
            changed.ofItems.insert(name);
            unknown.remove(name);
        }
    }
    for (int i = 0; manager && i < manager->majorItems.size(); ++i) {
        const MajorConfItem major = manager->majorItems.at(i); // a copy: the host may change it
        if (major.isChanged && major.isChanged())
            changed.ofHost.insert(major.name);
    }
    return manager ? changed : ChangedClasses();
}

} // namespace MtConf
