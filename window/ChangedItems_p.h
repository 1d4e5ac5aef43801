#pragma once

#include <QList>
#include <QPointer>
#include <QSet>
#include <QString>

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

/// Returns the names of the classes with such items, and of those whose custom pages have changed.
/// Calls `MajorConfItem::isChanged`; otherwise the same.
QSet<QString> changedClasses(const QPointer<MtConfManage> &manager);

} // namespace MtConf
