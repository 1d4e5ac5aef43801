#pragma once

#include <MaltoConfiguration/widgets/ConfDefWidgetDouble.h>

namespace MtConf {

/// Edits a duration with a spin box: the number of units with the unit, which follows from
/// `ConfItem::secondsPerUnit`. Milliseconds, seconds, minutes, hours and days have one; a suffix of
/// the item replaces it. If the item's `isWholeNumber` is true, only whole numbers can be
/// entered. Larger numbers than those that a `double` has exactly are shown as a text.
///
/// @see MtConfManage::addConfDuration
/// @since 0.1
class MALTO_EXPORT ConfWidgetDuration : public ConfDefWidgetDouble
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored value. Sets the suffix of an item without one to its unit.
    ConfWidgetDuration(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);
};

} // namespace MtConf
