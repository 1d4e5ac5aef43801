#include "ClassicPageBuilder_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace MtConf {

namespace {

constexpr int sGridSpacing = 12; // points
constexpr int sEndWidth = 18;    // the same

// Rows of the grid, counted from that of the editor. A row without widgets takes no space.
constexpr int sTextRow = 2;
constexpr int sLineRow = 3;

QGridLayout *gridOf(const PageRow &row)
{
    return row.frame ? qobject_cast<QGridLayout *>(row.frame->layout()) : nullptr;
}

} // namespace

ClassicPageBuilder::ClassicPageBuilder(QWidget *board, QVBoxLayout *layout, double scale,
                                       quint32 features)
    : mBoard(board), mLayout(layout), mScale(scale), mHasFeatures(features),
      mHasResetButtons(features & ResetFeature)
{
}

void ClassicPageBuilder::addCaption(const QString &caption, const QString &source)
{
    auto *label = new QLabel(caption, mBoard);
    label->setProperty("SourceText", source);
    label->setProperty("ClassLabel", QStringLiteral("normal"));
    mLayout->addWidget(label);
}

void ClassicPageBuilder::beginGroup(const QString &caption, const QString &source, int flags)
{
    const bool bare = flags & ClassWithoutGroupBoxes;
    if (!bare)
        addCaption(caption, source);

    // Created in its final parent, because a new parent would polish every widget inside again.
    mBox = new QGroupBox(mBoard);
    mBox->setProperty("GroupName", source);
    mBox->setObjectName(QStringLiteral("ConfigGroupBox"));
    mGrid = new QGridLayout;
    mGrid->setSpacing(0);
    mGrid->setObjectName(QStringLiteral("layoutConfigItem"));
    mBox->setLayout(mGrid);
    if (bare) {
        mBox->setProperty("NoGroupBox", QStringLiteral("1"));
        mBox->setContentsMargins(0, 0, 0, 0);
        mGrid->setContentsMargins(0, 0, 0, 0);
    } else {
        const int spacing = static_cast<int>(mScale * sGridSpacing);
        mGrid->setContentsMargins(spacing, spacing, spacing, spacing);
        mGrid->setSpacing(spacing);
        mGrid->setProperty("SourceSpacing", sGridSpacing);
    }
}

/// Reserves the last column, so that the others do not move when a widget is added there.
void ClassicPageBuilder::keepEndFree(int gridRow)
{
    auto *end = new QWidget(mBox);
    end->setFixedSize(qRound(mScale * sEndWidth), 0);
    mGrid->addWidget(end, gridRow, 2);
}

QWidget *ClassicPageBuilder::newRowParent()
{
    return mBox;
}

void ClassicPageBuilder::addRow(PageRow *row, bool isLast)
{
    const int gridRow = mGrid->rowCount();
    row->frame = mBox;
    row->panel = mBox;
    row->gridRow = gridRow;
    if (row->caption) {
        mGrid->addWidget(row->editor, gridRow, 1);
        mGrid->addWidget(row->caption, gridRow, 0);
    } else {
        mGrid->addWidget(row->editor, gridRow, 0, 1, 2);
    }
    if (row->message)
        mGrid->addWidget(row->message, mGrid->rowCount(), row->caption ? 1 : 0);
    if (mHasResetButtons && gridRow == 1) // the first row
        keepEndFree(gridRow);
    if (isLast)
        return;
    auto *line = new QFrame(mBox);
    line->setProperty("class", QStringLiteral("SplitLine"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    if (mHasFeatures)
        mGrid->addWidget(line, gridRow + sLineRow, 0, 1, mHasResetButtons ? 3 : 2);
    else
        mGrid->addWidget(line, mGrid->rowCount(), 0, 1, 2);
}

void ClassicPageBuilder::endGroup()
{
    if (mBox) // host code may have deleted it
        mLayout->addWidget(mBox);
}

void ClassicPageBuilder::addAtEnd(const PageRow &row, QWidget *widget)
{
    if (QGridLayout *const grid = gridOf(row))
        grid->addWidget(widget, row.gridRow, 2);
}

void ClassicPageBuilder::addUnderCaption(const PageRow &row, QWidget *widget)
{
    QGridLayout *const grid = gridOf(row);
    if (!grid)
        return;
    const int textRow = row.gridRow + sTextRow;
    QLayoutItem *const item = grid->itemAtPosition(textRow, 0);
    auto *texts = item ? qobject_cast<QVBoxLayout *>(item->layout()) : nullptr;
    if (!texts) {
        texts = new QVBoxLayout;
        texts->setSpacing(0);
        grid->addLayout(texts, textRow, 0, 1, 2);
    }
    texts->addWidget(widget);
}

void ClassicPageBuilder::addBelow(const PageRow &row, QWidget *widget)
{
    addUnderCaption(row, widget);
}

} // namespace MtConf
