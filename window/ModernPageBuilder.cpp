#include "ModernPageBuilder_p.h"

#include "ModernRow_p.h"
#include "SwitchCaption_p.h"

#include <MaltoConfiguration/manage/MajorConfItem.h>
#include <MaltoConfiguration/widgets/ConfWidgetPath.h>

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <utility>

namespace MtConf {

namespace {

// Sizes in pixels at 96 dots per inch.
constexpr double sPixelsPerInch = 96;
constexpr double sPointsPerInch = 72;
constexpr QSize sSwitch(38, 22);
constexpr int sField = 220;
constexpr int sNumber = 104;

QList<QWidget *> childrenOf(const QWidget *widget)
{
    return widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Areas of several lines and paths use the width of the row.
ModernRow::Place placeOf(ConfigItemWidget *editor)
{
    bool isWide = dynamic_cast<ConfWidgetPath *>(editor);
    const QList<QWidget *> children = childrenOf(editor);
    for (QWidget *child : children)
        isWide = isWide || qobject_cast<QAbstractScrollArea *>(child);
    return isWide ? ModernRow::Place::Below : ModernRow::Place::Beside;
}

bool isNumber(QWidget *field)
{
    return qobject_cast<QAbstractSpinBox *>(field) && !qobject_cast<QDateTimeEdit *>(field);
}

bool isField(QWidget *widget)
{
    return qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QComboBox *>(widget)
           || qobject_cast<QLineEdit *>(widget);
}

} // namespace

ModernPageBuilder::ModernPageBuilder(QWidget *board, QVBoxLayout *layout, double scale,
                                     std::function<QString()> className)
    : mBoard(board), mLayout(layout), mPixel(scale * sPointsPerInch / sPixelsPerInch),
      mClassName(std::move(className))
{
}

void ModernPageBuilder::beginGroup(const QString &caption, const QString &source, int flags)
{
    const bool isClass = mLayout->count() == 0 && source == mClassName();
    mTitle = nullptr;
    if (!isClass && !(flags & ClassWithoutGroupBoxes)) {
        mTitle = new QLabel(caption, mBoard);
        mTitle->setIndent(0);
        mTitle->setProperty("SourceText", source);
        mTitle->setProperty("ClassLabel", QStringLiteral("normal"));
    }
    mPanel = new QGroupBox(mBoard);
    mPanel->setProperty("GroupName", source);
    mPanel->setObjectName(QStringLiteral("ConfigGroupBox"));
    auto *rows = new QVBoxLayout(mPanel);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    mRowCount = 0;
}

QWidget *ModernPageBuilder::newRowParent()
{
    mRow = mPanel ? new ModernRow(mPanel, mPixel) : nullptr;
    return mRow;
}

void ModernPageBuilder::addRow(PageRow *row, bool isLast)
{
    Q_UNUSED(isLast)                      // the line is above a row
    if (!mPanel || !mRow || !row->editor) // deleted by host code
        return;
    mRow->setProperty("first", mRowCount++ == 0 ? QStringLiteral("1") : QStringLiteral("0"));
    row->frame = mRow;
    row->panel = mPanel;
    if (auto *box = qobject_cast<QCheckBox *>(row->caption))
        row->caption = new SwitchCaption(box, sSwitch * mPixel, mRow);
    if (row->caption)
        mRow->addText(row->caption);
    if (row->message)
        mRow->addText(row->message);
    setFieldWidths(row->editor, mPixel);
    mRow->setEditor(row->editor, placeOf(row->editor));
    mPanel->layout()->addWidget(mRow);
}

void ModernPageBuilder::dropRow()
{
    delete mRow;
}

void ModernPageBuilder::endGroup()
{
    if (mRowCount == 0) {
        delete mTitle;
        delete mPanel;
    }
    // Host code may have deleted them.
    if (mTitle)
        mLayout->addWidget(mTitle);
    if (mPanel)
        mLayout->addWidget(mPanel);
}

void ModernPageBuilder::addAtEnd(const PageRow &row, QWidget *widget)
{
    if (row.frame)
        static_cast<ModernRow *>(row.frame.data())->setButton(widget);
}

void ModernPageBuilder::addUnderCaption(const PageRow &row, QWidget *widget)
{
    if (row.frame)
        static_cast<ModernRow *>(row.frame.data())->addText(widget);
}

void ModernPageBuilder::setFieldWidths(QWidget *editor, double pixel)
{
    QList<QWidget *> fields;
    const QList<QWidget *> children = childrenOf(editor);
    for (QWidget *child : children) {
        if (isField(child))
            fields.append(child);
    }
    // Several fields share the width.
    if (fields.size() != 1)
        return;
    QWidget *const field = fields.first();
    field->setMinimumWidth(qRound((isNumber(field) ? sNumber : sField) * pixel));
}

} // namespace MtConf
