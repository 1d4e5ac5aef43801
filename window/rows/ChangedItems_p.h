#pragma once

#include <QList>
#include <QPointer>
#include <QSet>
#include <QString>

#include <optional>

namespace MtConf {

class ConfItem;
class MtConfManage;

/// Returns whether the value of `item` is not the default one, and can be reset: an administrator
/// has not locked it.
bool isResettable(const ConfItem &item);

/// Returns the items that the pages show and that can be reset, page by page.
/// Calls the host's filter, which may delete the window or destroy `manager`; then the result is
/// empty.
QList<ConfItem *> changedItems(const QPointer<MtConfManage> &manager);

/// The names of classes that have changed.
struct ChangedClasses
{
    QSet<QString> ofItems; ///< with such items
    QSet<QString> ofHost;  ///< with custom pages that have changed
};

/// Returns the classes that have changed. `keys` are those that have changed since the classes were
/// `former`; null looks at all items.
/// Calls `MajorConfItem::isChanged`; otherwise the same.
ChangedClasses changedClasses(const QPointer<MtConfManage> &manager, QSet<QString> former,
                              const std::optional<QSet<QString>> &keys);

} // namespace MtConf
