#include <MaltoConfiguration/widgets/ConfWidgetDuration.h>

#include "EditorTexts_p.h"

#include <cmath>

namespace MtConf {

namespace {

struct Unit
{
    double seconds;
    const char *suffix;
};

constexpr Unit sUnits[] = {{0.001, QT_TRANSLATE_NOOP("QObject", " ms")},
                           {1, QT_TRANSLATE_NOOP("QObject", " s")},
                           {60, QT_TRANSLATE_NOOP("QObject", " min")},
                           {3600, QT_TRANSLATE_NOOP("QObject", " h")},
                           {86400, QT_TRANSLATE_NOOP("QObject", " d")}};

/// Sets the suffix of an item without one, so that all texts with numbers of the item contain it.
ConfItem *withUnit(ConfItem *item)
{
    if (item->properties.contains(QStringLiteral("Malto.Suffix")))
        return item;
    if (const char *suffix = unitSuffix(*item))
        item->setSuffix(suffix);
    return item;
}

} // namespace

const char *unitSuffix(const ConfItem &item)
{
    for (const Unit &unit : sUnits) {
        if (std::abs(item.secondsPerUnit() / unit.seconds - 1) < 1e-9)
            return unit.suffix;
    }
    return nullptr;
}

ConfWidgetDuration::ConfWidgetDuration(ConfItem *item, QWidget *parent)
    : ConfDefWidgetDouble(withUnit(item), parent)
{
}

ConfigItemWidget *ConfWidgetDuration::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetDuration>(item, parent);
}

} // namespace MtConf
