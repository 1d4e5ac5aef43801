#pragma once

#include <QAbstractTableModel>
#include <QStringList>

namespace MtConf {
class MtConfManage;
}

/// A table of the program's variables: key, value, and whether the value differs from its default.
class BoundValueModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { KeyColumn, ValueColumn, ChangedColumn, ColumnCount };

    /// Shows the variables of `manager`, which must outlive the model, and the profiles.
    explicit BoundValueModel(const MtConf::MtConfManage &manager, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Returns the number of variables that differ from their defaults.
    int changedCount() const;

    /// Returns the row of the setting `key`, or -1 if there is none.
    int rowOf(const QString &key) const { return static_cast<int>(mKeys.indexOf(key)); }

public Q_SLOTS:
    /// Reads all variables again. Call it when settings have changed.
    void refresh();
    /// Translates the headings again after a change of the language.
    void retranslate();

private:
    QStringList currentKeys() const;
    static QString valueText(const QString &key);

    const MtConf::MtConfManage &mManager;
    QStringList mKeys;
};
