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

#include <functional>
#include <memory>
#include <utility>

class QModelIndex;
class QStandardItem;
class QStandardItemModel;
class Ui_ConfigurationWindow;

namespace MtConf {

class ConfItem;
class ConfigurationWindow;
class HostCode;
class MtConfManage;
class PageBuilder;
class WindowFeature;
struct LookValues;
struct PageRow;

/// Shows the settings window and returns it. An existing window is raised, and restored if it is
/// minimised; `manager` is ignored then. Otherwise creates the window of `manager`. Returns null
/// and logs a critical message if there is no window and no manager, or no `QApplication`.
///
/// @see MtConfManage::ShowWindow
/// @since 0.1
MALTO_EXPORT ConfigurationWindow *ShowConfigurationWindow(MtConfManage *manager);

/// Sets whether the settings window stays above other windows, then shows and raises it. Does
/// nothing while no window exists.
///
/// @see MtConfManage::setWindowStayOnTop
/// @since 0.1
MALTO_EXPORT void setStaysOnTopHint(bool on);

/// Gives `widget` the style sheets of the settings window, expanded for the current theme and for
/// `scale` (dots per inch divided by 72): first the common sheet, then the window's own. Each is
/// read from the first of its sources that exists; paths are relative to the working directory:
/// - the common sheet: the file "./res/qss/CommonWindow.qss", the host's resource
///   ":/qss/CommonWindow", the library's resource ":/malto/qss/CommonWindow";
/// - the window's sheet: the file "ThirdParty/MaltoConfiguration/res/ConfigurationWindow.qss", the
///   resource ":/qss/ConfigurationWindow".
///
/// The two files are skipped if `ConfigurationWindow::sSheetsOfWorkingDirectory` is false.
///
/// From then on a ring in the accent colour surrounds whatever has the keyboard focus in `widget`
/// and in its dialogs.
///
/// @see ConfigurationWindow::loadQss, QThemeCtrl::handleQssFile
/// @since 0.1
MALTO_EXPORT void setQssForWidget(QWidget *widget, double scale);

/// The settings window: the list of classes on the left, the editors of the selected class on the
/// right.
///
/// One window exists at a time. Closing it saves the store's local file and the geometry of the
/// window, in "ConfigurationWindowConfig.ini" in the working directory or, with `HostNameFeature`,
/// in the store. Then it deletes the window. The deletion waits while host code, such as a change
/// callback, is on the stack.
///
/// @see MtConfManage::ShowWindow, MtConfManage::closeConfigWindow
/// @since 0.1
class MALTO_EXPORT ConfigurationWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// Creates the window of `manager`, without showing it. A manager that is destroyed while the
    /// window exists closes it and deletes it. With a null manager the window is empty, and the
    /// critical message "ConfigurationWindow without a manager" is logged. Hosts call
    /// `MtConfManage::ShowWindow` instead.
    explicit ConfigurationWindow(MtConfManage *manager);
    ~ConfigurationWindow() override;

    /// Returns the settings window, or null if none exists.
    static ConfigurationWindow *instance();

    /// Returns the manager that the window shows. Null if there is none, or if it was destroyed
    /// while host code was running: the window is then closed and about to be deleted.
    MtConfManage *manager() const { return mManager; }

    /// Selects the first class named `className` in the list and shows its page. An unknown name
    /// clears the selection, shows an empty page and logs the warning "major class not exist: ".
    void switchToView(QString className);

    /// Returns the name, not translated, of the class that is selected in the list and whose page
    /// is shown. Empty if there is none, as after switchToView() with an unknown name.
    QString currentClass() const;

    /// Enlarges the window until the shown page fits without scrolling, even if the window then
    /// exceeds the screen. Call it after the page has been laid out, which the event loop does.
    void fitToPage();

    /// The glyphs of the icon font that the list shows beside the classes, by class name. A class
    /// without a glyph has no icon.
    ///
    /// @see MtConfManage::setIconMap
    static QMap<QString, QChar> mIconMap;

    /// Whether `setQssForWidget`, and so the window, reads style sheets from the working directory.
    /// Set it to false before the first window is created if others can write to that directory:
    /// a style sheet can open files and set properties. True by default.
    ///
    /// @see setQssForWidget
    static bool sSheetsOfWorkingDirectory;

public Q_SLOTS:
    /// Applies the style sheets for the current screen and theme, and draws the icons of the
    /// classes. Called when the theme changes.
    ///
    /// @see setQssForWidget
    void loadQss();
    /// Sets every text in the current language. Called when the manager emits `sigLanguageChange`.
    void retranslateUi();
    /// Restores the settings of the shown page to their defaults if the user confirms it.
    void restorePageDefault();
    /// Restores all settings to their defaults if the user confirms it.
    ///
    /// @see MtConfManage::restoreAllDefault
    void restoreAllDefault();

protected:
    /// Delays a deferred deletion of the window while host code is on the stack.
    bool event(QEvent *event) override;
    /// Saves the store's local file, through the manager.
    void closeEvent(QCloseEvent *event) override;

private:
    friend MALTO_EXPORT ConfigurationWindow *ShowConfigurationWindow(MtConfManage *manager);
    friend MALTO_EXPORT void setStaysOnTopHint(bool on);
    friend class MtConfManage;
    friend class WindowFeature;

    static constexpr int sClassNameRole = Qt::UserRole + 1;

    /// Deletes the closed window, at once unless host code is on the stack. `items` keeps the items
    /// of the destroyed manager alive until the last editor is deleted.
    void detachManager(std::shared_ptr<const void> items);

    /// Returns whether the window is closed and waits for its deletion.
    bool isClosed() const;
    /// Saves the geometry and makes room for a new window, while this one waits for its deletion.
    void resign();
    void initConfigClassList();
    LookValues look() const;
    void initAppearance();
    void applyDefaultGeometry();
    void refreshItemIcon();
    void saveGeometryToFile() const;
    double screenScale() const;
    static QString translatedName(const QString &name);

    void openPage(const QPersistentModelIndex &index);
    void onClassItemChange(const QModelIndex &current, const QModelIndex &previous);
    void onClassItemClick(const QModelIndex &index);
    void showPage(const QPersistentModelIndex &index);
    void showItems(const QList<std::pair<QString, QList<ConfItem *>>> &groups);
    void replacePage(const std::function<void()> &build);
    void buildPage(const QString &className);
    void addItemPage(const QString &className, int classFlag);
    void addGroup(const QString &caption, const QString &source, const QList<ConfItem *> &items,
                  int flags);
    bool addItemWidget(ConfItem *item, const QString &group, bool isLast);
    void endPage();
    void describePage();
    void orderTabs();
    void orderTabsOfColumn();
    int startRow() const;
    void addFeatures();
    void tellFeatures(void (WindowFeature::*happened)());
    void commitEditors();
    void commitBeforeQuit();
    bool commitForRestore();
    void clearConfigItem();

    bool confirmPageRestore();
    bool confirmRestoreOfAll();
    bool confirm(const QString &question);
    void restoreCustomPage();
    void restoreCustomPages();
    void rebuildPage();

    const std::unique_ptr<Ui_ConfigurationWindow> mUi;
    std::shared_ptr<HostCode> mHostCode;
    MtConfManage *mManager;
    std::shared_ptr<const void> mDetachedItems;
    QStandardItemModel *mClassModel = nullptr;
    std::unique_ptr<PageBuilder> mBuilder;
    QList<PageRow> mRows;
    QList<QPointer<WindowFeature>> mFeatures;
    QMap<QStandardItem *, QString> mItemIcons;
    double mScale = 1;
    const bool mIsModern;
    const bool mUsesFiles; // of the working directory: for the geometry and style sheets
    QPersistentModelIndex mNextPage;
    bool mShowsItems = false; // of several classes, instead of a page
    bool mOpeningPage = false;
    bool mBuildingPage = false;
    bool mIsNextPageWanted = false;
    bool mHasResigned = false;
};

} // namespace MtConf
