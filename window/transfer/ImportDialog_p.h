#pragma once

#include "ImportRows_p.h"

#include <QDialog>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace MtConf {

/// Shows what an import would change, with a check box for each change. All are checked at first.
class ImportDialog : public QDialog
{
    Q_OBJECT
public:
    /// `fileName` is the name of the file without its folder. `rows` of one group follow each
    /// other.
    ImportDialog(const QString &fileName, const QVector<ImportRow> &rows, const QStringList &notes,
                 QWidget *parent);

    /// Returns the keys of the checked changes.
    QStringList checkedKeys() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addRows(const QVector<ImportRow> &rows);
    QTreeWidgetItem *addGroup(const QString &caption);
    void addRow(QTreeWidgetItem *group, const ImportRow &row);
    void addButtons(QBoxLayout *layout);
    void checkAll(Qt::CheckState state);
    void toggle(QTreeWidgetItem *item, int column);
    void showCount();

    QTreeWidget *const mTree;
    QPushButton *mImport = nullptr;
};

} // namespace MtConf
