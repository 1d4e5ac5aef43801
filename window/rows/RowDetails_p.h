#pragma once

#include "MaltoConfiguration/store/StoreObserver_p.h"
#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <QSet>
#include <QString>

namespace MtConf {

/// Shows what there is to know of each row: the help text under the caption, and in the tool tip
/// the range, the default value and where the value comes from. Rows that an administrator has
/// locked say so, and are disabled.
class RowDetails : public WindowFeature
{
    Q_OBJECT
public:
    explicit RowDetails(ConfigurationWindow *window);

    void rowAdded(const PageRow &row) override;
    void pageShown() override;
    void pageCleared() override;
    void retranslate() override;

protected:
    /// Shows the tool tip of a row.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addText(const PageRow &row, const char *styleClass, const QString &text);
    void describe();
    void showLock(const PageRow &row);
    void onChange(const ConfChange &change);
    QString toolTipOf(const PageRow &row) const;

    QSet<QString> mLocked; // keys of rows that say so
    const StoreObserver mObserver;
};

} // namespace MtConf
