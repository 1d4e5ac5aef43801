#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QChar>
#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QString>

#include <memory>

class QGridLayout;
class QGroupBox;
class QLabel;
class QModelIndex;
class QStandardItem;
class QStandardItemModel;
class Ui_ConfigurationWindow;

namespace MtConf {

class ConfItem;
class ConfigItemWidget;
class ConfigurationWindow;
class HostCode;
class MtConfManage;

/// Shows the settings window of `manager`: the existing window, restored if it is minimised and
/// raised, whoever opened it, or else a new one. Null, and one critical line on the log, without a
/// manager or without a `QApplication`.
MALTO_EXPORT ConfigurationWindow *ShowConfigurationWindow(MtConfManage *manager);

/// Whether the settings window stays above other windows; shows and raises it. Does nothing while
/// no window exists.
MALTO_EXPORT void setStaysOnTopHint(bool on);

/// Gives `widget` the style sheets of the settings window, expanded for the current theme and for
/// `scale` (dots per inch divided by 72): first the common sheet, then the window's own. Each is
/// read from the first of its sources that exists; paths are relative to the working directory:
/// - the common sheet: the file "./res/qss/CommonWindow.qss", the host's resource
///   ":/qss/CommonWindow", the library's resource ":/malto/qss/CommonWindow";
/// - the window's sheet: the file "ThirdParty/MaltoConfiguration/res/ConfigurationWindow.qss", the
///   resource ":/qss/ConfigurationWindow".
MALTO_EXPORT void setQssForWidget(QWidget *widget, double scale);

/// The settings window: the classes on the left, the editors of the chosen class on the right.
///
/// One window exists at a time. It deletes itself when it is closed, which saves the store's local
/// file and the window's geometry (in "ConfigurationWindowConfig.ini" in the working directory).
class MALTO_EXPORT ConfigurationWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Builds the window of `manager`. A manager that is destroyed while the window exists closes
    /// it and deletes it. With a null manager the window is empty, and the critical message
    /// "ConfigurationWindow without a manager" is logged. Hosts call `MtConfManage::ShowWindow`
    /// instead.
    explicit ConfigurationWindow(MtConfManage *manager);
    ~ConfigurationWindow() override;

    /// The one settings window, or null.
    static ConfigurationWindow *instance();

    /// Returns the manager that the window shows. Null if there is none, or if it was destroyed
    /// while host code was running: the window is then closed and about to be deleted.
    MtConfManage *manager() const { return mManager; }

    /// Makes the class of that name current and shows its page; an unknown name shows an empty
    /// page.
    void switchToView(QString className);

    /// Returns the name, not translated, of the class that is selected in the list and whose page
    /// is shown. Empty if there is none, as after switchToView() with an unknown name.
    QString currentClass() const;

    /// Enlarges the window until the shown page fits without scrolling, even if the window then
    /// exceeds the screen. Call it after the page has been laid out, which the event loop does.
    void fitToPage();

    /// The icon font's glyph of each class, by class name; a class without one has no icon.
    static QMap<QString, QChar> mIconMap;

public Q_SLOTS:
    /// Applies the style sheets for the window's current screen and theme, and draws the icons of
    /// the classes again.
    void loadQss();
    /// Sets every text again after a change of language.
    void retranslateUi();
    /// Asks, then restores the settings of the shown page to their defaults.
    void restorePageDefault();
    /// Asks, then restores all settings to their defaults.
    void restoreAllDefault();

protected:
    /// Delays a deferred deletion of the window while host code is on the stack.
    bool event(QEvent *event) override;
    /// Has the manager save.
    void closeEvent(QCloseEvent *event) override;

private:
    friend MALTO_EXPORT ConfigurationWindow *ShowConfigurationWindow(MtConfManage *manager);
    friend MALTO_EXPORT void setStaysOnTopHint(bool on);
    friend class MtConfManage;

    static constexpr int ClassNameRole = Qt::UserRole + 1;

    /// Deletes the closed window, at once unless host code is on the stack. `items` keeps the items
    /// of the destroyed manager alive until the last editor is deleted.
    void detachManager(std::shared_ptr<const void> items);

    /// Returns whether the window is closed and waits for its deletion.
    bool isClosed() const;
    /// Saves the geometry and makes room for a new window, while this one waits for its deletion.
    void resign();
    void initConfigClassList();
    void initAppearance();
    void applyDefaultGeometry();
    void refreshItemIcon();
    void saveGeometryToFile() const;
    double screenScale() const;
    static QString translatedName(const QString &name);

    void openPage(const QPersistentModelIndex &index);
    void onClassItemChange(const QModelIndex &current, const QModelIndex &previous);
    void onClassItemClick(const QModelIndex &index);
    void buildPage(const QString &className);
    void addItemPage(const QString &className, int classFlag);
    void addClassItemWidgets(const QString &caption, const QList<ConfItem *> &items, int flags);
    bool addItemWidget(ConfItem *item, QGroupBox *box, QGridLayout *grid);
    void describePage();
    void orderTabs();
    bool isShown(ConfItem *item) const;
    void addClassLabel(const QString &caption);
    void clearConfigItem();

    bool confirm(const QString &question);
    void rebuildPage();

    const std::unique_ptr<Ui_ConfigurationWindow> mUi;
    std::shared_ptr<HostCode> mHostCode;
    MtConfManage *mManager;
    std::shared_ptr<const void> mDetachedItems;
    QStandardItemModel *mClassModel = nullptr;
    QList<QPointer<ConfigItemWidget>> mEditors;
    QList<QLabel *> mClassCaptions;
    QMap<QStandardItem *, QString> mItemIcons;
    double mScale = 1;
    QPersistentModelIndex mNextPage;
    bool mBuildingPage = false;
    bool mIsNextPageWanted = false;
    bool mHasResigned = false;
};

} // namespace MtConf
