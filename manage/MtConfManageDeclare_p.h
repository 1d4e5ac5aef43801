#pragma once

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <utility>

// The function that the addConf family has in common.

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

} // namespace MtConf
