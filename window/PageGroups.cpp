#include "PageGroups_p.h"

#include "WindowFeature_p.h"

#include <algorithm>

namespace MtConf {

QString groupCaption(const ConfItem &item)
{
    const QString page = WindowFeature::translatedName(item.majorName);
    return item.subName.isEmpty()
               ? page
               : page + QStringLiteral(" \u203a ") + WindowFeature::translatedName(item.name);
}

PageGroups pageGroups(const QList<ConfItem *> &items)
{
    PageGroups groups;
    for (ConfItem *item : items) {
        const QString caption = groupCaption(*item);
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [&](const auto &other) { return other.first == caption; });
        if (group == groups.end())
            group = groups.insert(groups.end(), {caption, {}});
        group->second.append(item);
    }
    return groups;
}

} // namespace MtConf
