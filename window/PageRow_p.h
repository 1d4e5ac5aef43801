#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QLabel>
#include <QPointer>
#include <QString>

namespace MtConf {

/// The property of a widget in a row that belongs to neither editor nor caption: the key of the
/// row.
inline constexpr char sRowKey[] = "RowKey";

/// One row of a page: an item with the widgets that show it. Each pointer may be null: editors
/// without a caption or a message, and widgets that a host has deleted.
struct PageRow
{
    ConfItem *item = nullptr;          ///< the item, which outlives the row
    QString key;                       ///< its full name
    QString group;                     ///< the untranslated caption of its group
    QPointer<ConfigItemWidget> editor; ///< the editor
    QPointer<QWidget> caption;         ///< the caption, which may be the control itself
    QPointer<QLabel> message;          ///< why a value is not accepted
    QPointer<QWidget> frame;           ///< the widget that contains the row, and maybe others
    QPointer<QWidget> panel;           ///< the panel of its group
    int gridRow = 0;                   ///< the row in the grid of the classic page
};

} // namespace MtConf
