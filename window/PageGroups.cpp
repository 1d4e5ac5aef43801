#include "PageGroups_p.h"

#include "WindowFeature_p.h"

#include <algorithm>

namespace MtConf {

PageGroups pageGroups(const QList<ConfItem *> &items)
{
    PageGroups groups;
    for (ConfItem *item : items) {
        QString caption = WindowFeature::translatedName(item->majorName);
        if (!item->subName.isEmpty())
            caption += QStringLiteral(" \u203a ") + WindowFeature::translatedName(item->name);
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [&](const auto &other) { return other.first == caption; });
        if (group == groups.end())
            group = groups.insert(groups.end(), {caption, {}});
        group->second.append(item);
    }
    return groups;
}

} // namespace MtConf
