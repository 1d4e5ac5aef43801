#pragma once

#include "MaltoConfiguration/window/PageBuilder_p.h"

#include <QPointer>

#include <functional>

class QGroupBox;
class QVBoxLayout;

namespace MtConf {

class ModernRow;

/// Builds pages of the modern look: a panel for each group, and rows with the editors at the right.
class ModernPageBuilder : public PageBuilder
{
public:
    /// Builds into `layout`, whose widgets are children of `board`. `scale` is in pixels per point.
    /// `className` returns the name of the shown class, whose own group needs no title.
    ModernPageBuilder(QWidget *board, QVBoxLayout *layout, double scale,
                      std::function<QString()> className);

    void beginGroup(const QString &caption, const QString &source, int flags) override;
    QWidget *newRowParent() override;
    void addRow(PageRow *row, bool isLast) override;
    void dropRow() override;
    void endGroup() override;
    void addAtEnd(const PageRow &row, QWidget *widget) override;
    void addUnderCaption(const PageRow &row, QWidget *widget) override;
    void addBelow(const PageRow &row, QWidget *widget) override;

    /// Gives the fields of a row the usual widths, texts in the present language and icons in the
    /// colours of the present theme. To be called again after a change: editors that translate
    /// themselves also set some of the widths.
    static void setFields(const PageRow &row, double pixel);
    /// Lets the actions of all gestures of a page begin in one column, whichever kinds they are of,
    /// if there is room for their longest text. To be called after `setFields`.
    static void alignActions(const QList<PageRow> &rows);

private:
    QWidget *const mBoard;
    QVBoxLayout *const mLayout;
    const double mPixel;
    const std::function<QString()> mClassName;
    QPointer<QLabel> mTitle; // of mPanel
    QPointer<QGroupBox> mPanel;
    QPointer<ModernRow> mRow;
    int mRowCount = 0; // in mPanel
};

} // namespace MtConf
