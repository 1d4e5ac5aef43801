#pragma once

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <utility>

// What the addConf family has in common.

namespace MtConf {

template<class T> ConfItem *MtConfManage::addConf(const char *text, T *value,
                                                  const QString &majorName, const QString &name,
                                                  const QString &subName, WidgetCreator creator,
                                                  WidgetCreator defaultCreator)
{
    ConfItem item(value, majorName, name, subName);
    item.displayText = text;
    item.widgetCreator = creator ? std::move(creator) : std::move(defaultCreator);
    return addConfItem(item);
}

/// Returns whether the editor of `item` is the spin box of `MtConfManage::addConfInt32`.
bool hasSpinBox(const ConfItem &item);

} // namespace MtConf
