#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace MtConf {

/// Edits a QStringList. Buttons add, remove and move entries; in the list Return, F2 or a double
/// click edits an entry in place, Delete removes it, and Alt with Up or Down moves it. An entry
/// whose text the user leaves empty is removed. Each change stores the whole list.
///
/// The mouse wheel scrolls the list only while it has the focus.
///
/// @see MtConfManage::addConfStringList
/// @since 0.1
class MALTO_EXPORT ConfWidgetStringList : public ConfigItemWidget
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored list.
    ConfWidgetStringList(ConfItem *item, QWidget *parent);
    ~ConfWidgetStringList() override;
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void retranslateUi() override;
    /// Shows the stored list and keeps the current entry. Does not end editing in place: when the
    /// user ends it without a change, the stored list is shown.
    void loadConf() override;
    /// Ends editing in place and stores the entry.
    void commit() override;
    /// Handles the keys of the list.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList entries() const;
    void showEntries(const QStringList &texts);
    QListWidgetItem *appendEntry();
    QWidget *editorInPlace() const;
    bool handleKey(int key, Qt::KeyboardModifiers modifiers);
    void add();
    void removeCurrent();
    void moveCurrent(int rows);
    void onEditingEnded();
    void storeEntries();
    void updateButtons();
    void enable(QPushButton *button, bool isEnabled);

    QListWidget *mList = nullptr;
    QPushButton *mAddButton = nullptr;
    QPushButton *mRemoveButton = nullptr;
    QPushButton *mUpButton = nullptr;
    QPushButton *mDownButton = nullptr;
    QStringList mShown; ///< the list as it was last loaded or stored
};

} // namespace MtConf
