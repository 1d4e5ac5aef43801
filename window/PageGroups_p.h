#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace MtConf {

class ConfItem;

/// Captions, translated, with the items below each.
using PageGroups = QList<std::pair<QString, QList<ConfItem *>>>;

/// Returns the page and the group of `item`, such as "Capture › Snapping", translated.
QString groupCaption(const ConfItem &item);

/// Returns `items`, which may be of several pages, below captions such as "Capture › Snapping".
/// Their order is that in which each caption is first needed.
PageGroups pageGroups(const QList<ConfItem *> &items);

} // namespace MtConf
