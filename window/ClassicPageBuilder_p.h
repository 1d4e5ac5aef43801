#pragma once

#include "PageBuilder_p.h"

#include <QPointer>

class QGridLayout;
class QGroupBox;
class QVBoxLayout;

namespace MtConf {

/// Builds pages with two columns, captions and editors, in a panel for each group.
class ClassicPageBuilder : public PageBuilder
{
public:
    /// Builds into `layout`, whose widgets are children of `board`. `scale` is in pixels per point.
    /// `hasFeatures` tells whether widgets are added to the rows later.
    ClassicPageBuilder(QWidget *board, QVBoxLayout *layout, double scale, bool hasFeatures);

    void beginGroup(const QString &caption, const QString &source, int flags) override;
    QWidget *newRowParent() override;
    void addRow(PageRow *row, bool isLast) override;
    void dropRow() override {}
    void endGroup() override;
    void addAtEnd(const PageRow &row, QWidget *widget) override;
    void addUnderCaption(const PageRow &row, QWidget *widget) override;

private:
    void keepEndFree();
    void addCaption(const QString &caption, const QString &source);

    QWidget *const mBoard;
    QVBoxLayout *const mLayout;
    const double mScale;
    const bool mHasFeatures;
    QPointer<QGroupBox> mBox;
    QGridLayout *mGrid = nullptr; // of mBox
};

} // namespace MtConf
