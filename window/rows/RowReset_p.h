#pragma once

#include "MaltoConfiguration/store/StoreObserver_p.h"
#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <MaltoConfiguration/store/ConfChange.h>

#include <QHash>
#include <QPoint>
#include <QPointer>
#include <QSet>
#include <QString>

#include <optional>

class QPushButton;

namespace MtConf {

class ResetButton;

/// Shows what differs from its default, and resets it: a button at the end of each row, a key, a
/// context menu, dots beside the classes with changes, and a button that shows all changes.
class RowReset : public WindowFeature
{
    Q_OBJECT
public:
    explicit RowReset(ConfigurationWindow *window);

    void rowAdded(const PageRow &row) override;
    void pageShown() override;
    void pageCleared() override;
    void sheetApplied() override;
    void retranslate() override;

protected:
    /// Shows the context menu of a row.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();
    void onChange(const ConfChange &change);
    void updateRow(const PageRow &row);
    ResetButton *addButton(const PageRow &row);
    void resetKeyed(const QString &key);
    void updatePageState();
    void updateClasses();
    void reset(const PageRow &row);
    void showMenu(const PageRow &row, const QPoint &position);
    void showChanges(bool isOn);
    void showChangedItems();

    QHash<QString, QPointer<ResetButton>> mButtons; // of rows that have differed, by key
    QPushButton *const mChangesButton;
    QSet<QString> mChangedClasses;             // with changed items
    std::optional<QSet<QString>> mChangedKeys; // since they were found; null: they are not known
    bool mIsShowingChanges = false;            // while that page is being built
    bool mIsQueued = false;
    const StoreObserver mObserver;
};

} // namespace MtConf
