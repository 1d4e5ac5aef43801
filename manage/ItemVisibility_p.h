#pragma once

#include <MaltoConfiguration/manage/MtConfManage.h>

namespace MtConf {

/// Returns whether the settings window shows `item` if it has an editor. Asks
/// `MtConfManage::itemFilter`, which is host code.
inline bool isItemShown(const MtConfManage &manager, ConfItem *item)
{
    if (item->properties.value(QStringLiteral("Malto.Expert")).toBool() && !manager.showExpertItems)
        return false;
    if (!(item->flags & ItemIsFiltered))
        return true;
    const auto filter = manager.itemFilter; // a copy: the host may replace it in the call
    return filter && filter(*item);
}

} // namespace MtConf
