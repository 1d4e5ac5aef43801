#include "ImportDialog_p.h"

#include "MaltoConfiguration/window/rows/ValueInWords_p.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace MtConf {

namespace {

enum Column { Setting, Here, InFile, ColumnCount };

constexpr int sKeyRole = Qt::UserRole + 1;

/// A long text slows the view down, and a tool tip that is larger than the screen cannot be read.
constexpr int sMaxShown = 200;
constexpr int sMaxToolTip = 2000;

QString shortened(const QString &text, int length)
{
    return text.size() > length ? text.left(length) + QChar(0x2026) : text;
}

/// Draws higher rows than a plain list, and colours as high as the text.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index)
               + QSize(0, option.fontMetrics.height() / 2);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        const int height = option->fontMetrics.ascent();
        option->decorationSize = QSize(2 * height, height);
        QStyledItemDelegate::initStyleOption(option, index);
    }
};

} // namespace

ImportDialog::ImportDialog(const QString &fileName, const QVector<ImportRow> &rows,
                           const QStringList &notes, QWidget *parent)
    : QDialog(parent), mTree(new QTreeWidget(this))
{
    setWindowTitle(tr("Import settings"));
    auto *layout = new QVBoxLayout(this);
    const auto addText = [&](const QString &text, const char *name) {
        auto *label = new QLabel(text, this);
        label->setObjectName(QLatin1String(name));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    };
    addText(tr("The file \"%1\" changes these settings. Those that are checked are imported.")
                .arg(fileName),
            "ImportText");
    mTree->setObjectName(QStringLiteral("ImportTree"));
    mTree->setAccessibleName(tr("Settings in the file"));
    mTree->setColumnCount(ColumnCount);
    mTree->setHeaderLabels({tr("Setting"), tr("Here"), tr("In the file")});
    mTree->header()->setStretchLastSection(false);
    mTree->header()->setSectionResizeMode(Setting, QHeaderView::Stretch);
    mTree->header()->setSectionsMovable(false);
    mTree->setAllColumnsShowFocus(true);
    mTree->setUniformRowHeights(true);
    mTree->setItemDelegate(new RowDelegate(mTree));
    layout->addWidget(mTree, 1);
    if (!notes.isEmpty())
        addText(notes.join(QLatin1Char('\n')), "ImportNotes");
    addRows(rows);
    addButtons(layout);
    connect(mTree, &QTreeWidget::itemChanged, this, &ImportDialog::showCount);
    connect(mTree, &QTreeWidget::itemClicked, this, &ImportDialog::toggle);
    showCount();
    mTree->setFocus();
}

void ImportDialog::addRows(const QVector<ImportRow> &rows)
{
    QTreeWidgetItem *group = nullptr;
    for (const ImportRow &row : rows) {
        if (!group || group->text(Setting) != row.group)
            group = addGroup(row.group);
        addRow(group, row);
    }
    mTree->expandAll();
    mTree->setCurrentItem(mTree->topLevelItem(0));
}

QTreeWidgetItem *ImportDialog::addGroup(const QString &caption)
{
    auto *group = new QTreeWidgetItem(mTree, {caption});
    group->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                    | Qt::ItemIsAutoTristate);
    group->setCheckState(Setting, Qt::Checked);
    group->setFirstColumnSpanned(true);
    QFont font = group->font(Setting);
    font.setBold(true);
    group->setFont(Setting, font);
    return group;
}

void ImportDialog::addRow(QTreeWidgetItem *group, const ImportRow &row)
{
    const QString texts[ColumnCount] = {row.caption, row.here, row.inFile};
    const QColor colors[ColumnCount] = {QColor(), row.hereColor, row.inFileColor};
    auto *item = new QTreeWidgetItem(group);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                   | Qt::ItemNeverHasChildren);
    for (int column = 0; column < ColumnCount; ++column) {
        const QString text = texts[column];
        item->setText(column, isolated(shortened(text, sMaxShown)));
        item->setToolTip(
            column, QStringLiteral("<p>%1</p>").arg(shortened(text, sMaxToolTip).toHtmlEscaped()));
        if (colors[column].isValid())
            item->setData(column, Qt::DecorationRole, colors[column]);
    }
    item->setCheckState(Setting, Qt::Checked);
    item->setData(Setting, sKeyRole, row.key);
    item->setData(Setting, Qt::AccessibleTextRole,
                  tr("%1, here: %2, in the file: %3")
                      .arg(item->text(Setting), item->text(Here), item->text(InFile)));
}

void ImportDialog::addButtons(QBoxLayout *layout)
{
    auto *box = new QDialogButtonBox(this);
    mImport = box->addButton(QString(), QDialogButtonBox::AcceptRole);
    mImport->setObjectName(QStringLiteral("btnImportChecked"));
    mImport->setDefault(true);
    auto *cancel = box->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    auto *all = new QPushButton(tr("Select all"), this);
    auto *none = new QPushButton(tr("Select none"), this);
    all->setObjectName(QStringLiteral("btnSelectAll"));
    none->setObjectName(QStringLiteral("btnSelectNone"));
    for (QPushButton *button : {all, none, cancel})
        button->setAutoDefault(false);
    auto *row = new QHBoxLayout;
    row->addWidget(all);
    row->addWidget(none);
    row->addStretch(1);
    row->addWidget(box);
    layout->addLayout(row);
    connect(all, &QAbstractButton::clicked, this, [this] { checkAll(Qt::Checked); });
    connect(none, &QAbstractButton::clicked, this, [this] { checkAll(Qt::Unchecked); });
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

/// Gives the values the width that they need, up to a third of the dialog each, and the captions
/// the rest.
void ImportDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    const int gap = 2 * fontMetrics().averageCharWidth();
    for (const int column : {Here, InFile}) {
        mTree->resizeColumnToContents(column);
        mTree->setColumnWidth(column, qMin(mTree->columnWidth(column) + gap, width() / 3));
    }
}

QStringList ImportDialog::checkedKeys() const
{
    QStringList keys;
    for (QTreeWidgetItemIterator item(mTree, QTreeWidgetItemIterator::Checked); *item; ++item) {
        const QString key = (*item)->data(Setting, sKeyRole).toString();
        if (!key.isEmpty())
            keys.append(key);
    }
    return keys;
}

void ImportDialog::checkAll(Qt::CheckState state)
{
    {
        const QSignalBlocker blocker(mTree);
        for (int i = 0; i < mTree->topLevelItemCount(); ++i)
            mTree->topLevelItem(i)->setCheckState(Setting, state);
    }
    showCount();
}

/// Toggles the check box of a row when one of its values is clicked. Space toggles it only if the
/// current cell has the box.
void ImportDialog::toggle(QTreeWidgetItem *item, int column)
{
    if (column == Setting)
        return;
    const bool isChecked = item->checkState(Setting) == Qt::Checked;
    item->setCheckState(Setting, isChecked ? Qt::Unchecked : Qt::Checked);
    mTree->setCurrentItem(item, Setting);
}

void ImportDialog::showCount()
{
    const auto count = checkedKeys().size();
    mImport->setText(tr("Import (%1)").arg(count));
    mImport->setEnabled(count > 0);
}

} // namespace MtConf
