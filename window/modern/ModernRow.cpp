#include "ModernRow_p.h"

#include <QGridLayout>
#include <QLabel>
#include <QVariant>

namespace MtConf {

namespace {

// Sizes in pixels at 96 dots per inch.
constexpr int sLeastHeight = 46;
constexpr int sLeft = 16;
constexpr int sRight = 8;
constexpr int sAboveAndBelow = 6;
constexpr int sButton = 24;
constexpr int sGap = 12;
constexpr int sTextGap = 1;
constexpr int sEditorGap = 6;

// Columns of the grid.
constexpr int sLeftColumn = 0;
constexpr int sTextColumn = 1;
constexpr int sGapColumn = 2;
constexpr int sEditorColumn = 3;
constexpr int sButtonColumn = 4;
constexpr int sRightColumn = 5;

} // namespace

ModernRow::ModernRow(QWidget *panel, double pixel)
    : QFrame(panel), mPixel(pixel), mGrid(new QGridLayout(this)), mTexts(new QVBoxLayout)
{
    setProperty("class", QStringLiteral("ModernRow"));
    setMinimumHeight(px(sLeastHeight));
    // Columns instead of margins, which would not change sides with the direction of the text, and
    // instead of a spacing, which is only beside columns with widgets.
    mGrid->setContentsMargins(0, px(sAboveAndBelow), 0, px(sAboveAndBelow));
    mGrid->setHorizontalSpacing(0);
    mGrid->setVerticalSpacing(px(sEditorGap));
    mGrid->setColumnStretch(sTextColumn, 1);
    mGrid->setColumnMinimumWidth(sLeftColumn, px(sLeft));
    mGrid->setColumnMinimumWidth(sGapColumn, px(sGap));
    mGrid->setColumnMinimumWidth(sButtonColumn, px(sGap) + px(sButton));
    mGrid->setColumnMinimumWidth(sRightColumn, px(sRight));
    mTexts->setSpacing(px(sTextGap));
    // An aligned layout would not become higher for texts of several lines.
    mTexts->addStretch();
    mTexts->addStretch();
    mGrid->addLayout(mTexts, 0, sTextColumn);
}

void ModernRow::setEditor(QWidget *editor, Place place)
{
    if (place == Place::Beside)
        mGrid->addWidget(editor, 0, sEditorColumn, Qt::AlignRight | Qt::AlignVCenter);
    else
        mGrid->addWidget(editor, 1, sTextColumn, 1, 3);
}

void ModernRow::addText(QWidget *text)
{
    if (auto *label = qobject_cast<QLabel *>(text))
        label->setWordWrap(true);
    mTexts->insertWidget(mTexts->count() - 1, text);
}

void ModernRow::addBelow(QWidget *widget)
{
    constexpr int sBelowRow = 2; // below an editor that is as wide as the row
    mGrid->addWidget(widget, sBelowRow, sTextColumn, 1, 3);
}

void ModernRow::setButton(QWidget *button)
{
    button->setFixedSize(px(sButton), px(sButton));
    mGrid->addWidget(button, 0, sButtonColumn, Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace MtConf
