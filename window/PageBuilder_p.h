#pragma once

#include "PageRow_p.h"

#include <QString>

class QBoxLayout;

namespace MtConf {

/// Lays out the rows of a page. One class for each look of the window.
///
/// The window calls beginGroup(), for each row newRowParent() and then addRow() or dropRow(), and
/// endGroup(). All widgets become children of the page, which deletes them.
class PageBuilder
{
public:
    PageBuilder() = default;
    virtual ~PageBuilder() = default;
    Q_DISABLE_COPY(PageBuilder)

    /// Begins a group with the caption `caption`, which is translated, or none if it is empty.
    /// `source` is the untranslated caption. `flags` are `MajorConfFlag` bits.
    virtual void beginGroup(const QString &caption, const QString &source, int flags) = 0;
    /// Returns the parent for the widgets of the next row. Null if host code has deleted the page.
    virtual QWidget *newRowParent() = 0;
    /// Adds the widgets of `row`, and fills in where it is. `isLast` tells whether no other item
    /// follows in the group.
    virtual void addRow(PageRow *row, bool isLast) = 0;
    /// Forgets the row of the last newRowParent(): its item has no editor.
    virtual void dropRow() = 0;
    virtual void endGroup() = 0;

    /// Adds `widget` at the end of a row, in a column that all rows of the page keep free.
    virtual void addAtEnd(const PageRow &row, QWidget *widget) = 0;
    /// Adds `widget`, a text, under the caption of a row.
    virtual void addUnderCaption(const PageRow &row, QWidget *widget) = 0;
    /// Adds `widget` below the caption and the editor of a row, as wide as both.
    virtual void addBelow(const PageRow &row, QWidget *widget) = 0;
};

} // namespace MtConf
