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
    /// `features` are the `WindowFeatureFlag` bits of the features that add widgets to the rows.
    ClassicPageBuilder(QWidget *board, QVBoxLayout *layout, double scale, quint32 features);

    void beginGroup(const QString &caption, const QString &source, int flags) override;
    QWidget *newRowParent() override;
    void addRow(PageRow *row, bool isLast) override;
    void dropRow() override {}
    void endGroup() override;
    void addAtEnd(const PageRow &row, QWidget *widget) override;
    void addUnderCaption(const PageRow &row, QWidget *widget) override;
    void addBelow(const PageRow &row, QWidget *widget) override;

private:
    void keepEndFree(int gridRow);
    void addCaption(const QString &caption, const QString &source);

    QWidget *const mBoard;
    QVBoxLayout *const mLayout;
    const double mScale;
    const bool mHasFeatures;
    const bool mHasResetButtons;
    QPointer<QGroupBox> mBox;
    QGridLayout *mGrid = nullptr; // of mBox
};

} // namespace MtConf
