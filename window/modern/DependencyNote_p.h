#pragma once

#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QLabel>
#include <QPointer>

#include <functional>

namespace MtConf {

/// Says under the caption of a disabled row which other setting it needs. Hidden while the row is
/// enabled.
class DependencyNote : public QLabel
{
    Q_OBJECT
public:
    /// Finds the item with the full name `key`; null if there is none.
    using Find = std::function<ConfItem *(const QString &key)>;

    DependencyNote(ConfItem *item, ConfigItemWidget *editor, Find find, QWidget *parent);

    /// Shows the reason in the present language.
    void refresh();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString reason() const;

    ConfItem *const mItem;
    const QPointer<ConfigItemWidget> mEditor;
    const Find mFind;
};

} // namespace MtConf
