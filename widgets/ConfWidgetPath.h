#pragma once

#include <MaltoConfiguration/widgets/ConfWidgetText.h>

class QPushButton;

namespace MtConf {

/// Edits a QString that is the path of a file or a folder. The user types the path or chooses it in
/// a dialog.
///
/// The property "Malto.PathKind" of the item is the `PathKind` as an int, a file to read without
/// it. The property "Malto.Filters" contains the name filters of the dialog as `QFileDialog` takes
/// them, untranslated.
///
/// Paths are stored with "/" and shown with the separators of the system. "~" at the beginning is
/// stored as the home folder of the user. A path that does not exist, or is of the other kind, is
/// stored, and a message under the row says so.
///
/// @see MtConfManage::addConfPath
/// @since 0.1
class MALTO_EXPORT ConfWidgetPath : public ConfWidgetText
{
    Q_OBJECT
public:
    /// Creates an editor of `item`, which must not be null, as a child of `parent` and shows the
    /// stored path.
    ConfWidgetPath(ConfItem *item, QWidget *parent);
    /// Creates the editor; the `WidgetCreator` of this class. Returns null, with the critical
    /// message "ConfigItemWidget without an item", if `item` is null.
    static ConfigItemWidget *CreatConfWidget(ConfItem *item, QWidget *parent);

    void retranslateUi() override;

protected:
    QString toField(const QString &stored) const override;
    QString toStored(const QString &typed) const override;
    void describeText(const QString &text) override;
    /// Checks the stored path again.
    void showEvent(QShowEvent *event) override;

private:
    PathKind kind() const;
    QString problemOf(const QString &path) const;
    void browse();
    void choose(const QString &path);

    QPushButton *mBrowseButton = nullptr;
};

} // namespace MtConf
