#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include "ClassicPageBuilder_p.h"
#include "DialogDress_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "MaltoConfiguration/window/modern/ModernPageBuilder_p.h"
#include "MaltoConfiguration/window/rows/ChangedItems_p.h"
#include "ResetQuestion_p.h"
#include "WindowFeature_p.h"
#include "ui_ConfigurationWindow.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/store/ConfOperation.h>

#include <OrvUtils/SetWindowTopmost.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QIcon>
#include <QMessageBox>
#include <QPersistentModelIndex>
#include <QStandardItemModel>

#include <optional>
#include <utility>

namespace MtConf {

namespace {

ConfigurationWindow *sWindow = nullptr;

/// While it exists, what is restored is one step for undo, if `manager` has that feature.
class RestoreStep
{
public:
    explicit RestoreStep(const MtConfManage *manager)
    {
        if (manager && (manager->windowFeatures & UndoFeature))
            mOperation.emplace(ConfStorage::instance(), ConfChange::Cause::Restored);
    }
    Q_DISABLE_COPY(RestoreStep)

private:
    std::optional<ConfOperation> mOperation;
};

} // namespace

QMap<QString, QChar> ConfigurationWindow::mIconMap;
bool ConfigurationWindow::sSheetsOfWorkingDirectory = true;

ConfigurationWindow *ShowConfigurationWindow(MtConfManage *manager)
{
    if (sWindow && sWindow->isClosed())
        sWindow->resign();
    if (ConfigurationWindow *window = ConfigurationWindow::instance()) {
        if (window->isMinimized())
            window->showNormal();
        window->raise();
        return window;
    }
    if (!manager) {
        qCritical() << "ShowConfigurationWindow without a manager";
        return nullptr;
    }
    // Qt aborts the process at the first widget without one.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        qCritical() << "ShowConfigurationWindow without an application";
        return nullptr;
    }
    new ConfigurationWindow(manager);
    ConfigurationWindow *window = ConfigurationWindow::instance(); // null if its page closed it
    if (window)
        window->show();
    return window;
}

void setStaysOnTopHint(bool on)
{
    ConfigurationWindow *window = ConfigurationWindow::instance();
    if (!window || window->isClosed())
        return;
    SetWindowTopmost(window, on, OrvWindowTypeSettings);
    window->show();
    window->raise();
}

ConfigurationWindow::ConfigurationWindow(MtConfManage *manager)
    : mUi(std::make_unique<Ui_ConfigurationWindow>()), mManager(manager),
      mIsModern(manager && manager->windowLook == ModernLook),
      mUsesFiles(!manager || !(manager->windowFeatures & HostNameFeature))
{
    mHostCode = HostCode::of(this);
    // Host code that builds the first page below may call instance().
    if (!sWindow)
        sWindow = this;

    mUi->setupUi(this);
    new DialogDress(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowStaysOnTopHint);

    initConfigClassList();
    initAppearance();

    connect(mUi->btnRestoreAllDefault, &QAbstractButton::clicked, this,
            &ConfigurationWindow::restoreAllDefault);
    connect(mUi->btnRestoreDefault, &QAbstractButton::clicked, this,
            &ConfigurationWindow::restorePageDefault);
    if (mManager)
        connect(mManager, &MtConfManage::sigLanguageChange, this,
                &ConfigurationWindow::retranslateUi);
    else
        qCritical() << "ConfigurationWindow without a manager";
    connect(mUi->configList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ConfigurationWindow::onClassItemChange);

    connect(qApp, &QCoreApplication::aboutToQuit, this, &ConfigurationWindow::commitBeforeQuit);

    setWindowIcon(QIcon(QStringLiteral(":/icon/AppIcon")));
    if (mIsModern)
        mBuilder = std::make_unique<ModernPageBuilder>(mUi->gboxConfigBoard, mUi->layoutConfigItem,
                                                       mScale, [this] { return currentClass(); });
    else
        mBuilder = std::make_unique<ClassicPageBuilder>(mUi->gboxConfigBoard, mUi->layoutConfigItem,
                                                        mScale,
                                                        mManager ? mManager->windowFeatures : 0);
    addFeatures();
    retranslateUi();

    openPage(mClassModel->index(startRow(), 0));
}

ConfigurationWindow::~ConfigurationWindow()
{
    if (!mHasResigned)
        saveGeometryToFile();
    if (sWindow == this)
        sWindow = nullptr;
    // Nothing builds a page from here on. The editors are deleted while the items that they use
    // exist, which may be those in mDetachedItems.
    mManager = nullptr;
    while (QWidget *child = findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        delete child;
}

bool ConfigurationWindow::isClosed() const
{
    return !testAttribute(Qt::WA_DeleteOnClose) && !isVisible();
}

void ConfigurationWindow::resign()
{
    saveGeometryToFile();
    mHasResigned = true;
    if (sWindow == this)
        sWindow = nullptr;
}

void ConfigurationWindow::detachManager(std::shared_ptr<const void> items)
{
    if (!mHasResigned)
        resign();
    mManager = nullptr;
    mDetachedItems = std::move(items);
    mHostCode->deleteWidget(this);
}

ConfigurationWindow *ConfigurationWindow::instance()
{
    return sWindow;
}

QString ConfigurationWindow::currentClass() const
{
    return mUi->configList->currentIndex().data(sClassNameRole).toString();
}

void ConfigurationWindow::fitToPage()
{
    const QSize shown = mUi->scrollArea->viewport()->size();
    QSize needed = mUi->gboxConfigBoard->minimumSizeHint().expandedTo(QSize(shown.width(), 0));
    // Captions may have several lines.
    needed.setHeight(qMax(needed.height(), mUi->gboxConfigBoard->heightForWidth(needed.width())));
    const QSize missing = needed - shown;
    resize(size() + missing.expandedTo(QSize(0, 0)));
}

void ConfigurationWindow::switchToView(QString className)
{
    QModelIndex found;
    for (int row = 0; row < mClassModel->rowCount() && !found.isValid(); ++row) {
        const QModelIndex index = mClassModel->index(row, 0);
        if (index.data(sClassNameRole).toString() == className)
            found = index;
    }
    openPage(found);
}

void ConfigurationWindow::openPage(const QPersistentModelIndex &index)
{
    const QPointer<ConfigurationWindow> self(this);
    const QModelIndex previous = mUi->configList->currentIndex();
    // Host code that builds part of the page may delete the window, which Qt 6 uses after the
    // signal. So the page is built after the call.
    mOpeningPage = true;
    mUi->configList->setCurrentIndex(index);
    mOpeningPage = false;
    // If the row was not current yet, its page is built twice. Hosts see both in the calls of their
    // factories, so it stays.
    if (mUi->configList->currentIndex() != previous)
        onClassItemClick(index);
    if (self)
        onClassItemClick(index);
}

bool ConfigurationWindow::event(QEvent *event)
{
    // A dialog that host code opens in a callback has an event loop of its own.
    if (event->type() == QEvent::DeferredDelete && mHostCode->isRunning()) {
        mHostCode->deleteWidget(this);
        return true;
    }
    // Changes of language, font and style reach the editors from here.
    const HostCodeScope scope(mHostCode);
    return QMainWindow::event(event);
}

void ConfigurationWindow::closeEvent(QCloseEvent *event)
{
    const QPointer<ConfigurationWindow> self(this);
    tellFeatures(&WindowFeature::windowClosed);
    if (!self) // deleted by an observer of what the features have stored
        return;
    QMainWindow::closeEvent(event);
    if (mManager)
        mManager->saveToFile();
}

/// Saves what the user has entered and not confirmed when the program quits with an open window.
/// Other changes are left to the host, as without a window.
void ConfigurationWindow::commitBeforeQuit()
{
    ConfStorage *const store = ConfStorage::instance();
    const QPointer<ConfigurationWindow> self(this);
    const bool wasChanged = std::exchange(store->mChanged, false);
    if (!isClosed())
        tellFeatures(&WindowFeature::windowClosed);
    if (self)
        commitEditors();
    const bool hasCommitted = store->mChanged;
    store->mChanged = hasCommitted || wasChanged;
    if (self && mManager && hasCommitted)
        mManager->saveToFile();
}

void ConfigurationWindow::onClassItemChange(const QModelIndex &current, const QModelIndex &previous)
{
    Q_UNUSED(previous)
    if (!mOpeningPage)
        onClassItemClick(current);
}

void ConfigurationWindow::restorePageDefault()
{
    // A callback may rebuild the page, which deletes its editors, or close the window.
    const QPointer<ConfigurationWindow> self(this);
    if (!commitForRestore() || !confirmPageRestore())
        return;
    {
        const HostCodeScope scope(mHostCode);
        const RestoreStep step(mManager);
        const QList<PageRow> rows = mRows;
        for (const PageRow &row : rows) {
            if (row.editor)
                row.editor->restoreDefault();
        }
        if (self && mIsModern)
            restoreCustomPage();
    }
    if (self)
        rebuildPage();
}

void ConfigurationWindow::restoreAllDefault()
{
    const QPointer<ConfigurationWindow> self(this);
    if (!commitForRestore() || !confirmRestoreOfAll() || !mManager)
        return;
    {
        const HostCodeScope scope(mHostCode);
        const RestoreStep step(mManager);
        mManager->restoreAllDefault();
        if (self)
            restoreCustomPages();
    }
    if (self)
        rebuildPage();
}

/// Lets the editors store what is typed, before the default values are restored. Returns false if a
/// callback has deleted the window or destroyed its manager.
bool ConfigurationWindow::commitForRestore()
{
    const QPointer<ConfigurationWindow> self(this);
    const MtConfManage *const manager = mManager;
    commitEditors();
    return self && mManager == manager;
}

void ConfigurationWindow::restoreCustomPage()
{
    const MajorConfItem *const shown = mManager ? mManager->getMajorConfItemByName(currentClass())
                                                : nullptr;
    const auto restore = shown ? shown->restoreDefault : nullptr; // a copy: see addItemWidget()
    if (restore && mRows.isEmpty())
        restore();
}

/// Restores the pages of the host that have a function for it.
void ConfigurationWindow::restoreCustomPages()
{
    const QPointer<MtConfManage> manager(mManager);
    for (int i = 0; manager && i < manager->majorItems.size(); ++i) {
        const auto restore = manager->majorItems.at(i).restoreDefault; // a copy, too
        if (restore)
            restore();
    }
}

bool ConfigurationWindow::confirmPageRestore()
{
    if (!mIsModern)
        return confirm(tr("Are you sure to restore current page default?"));
    QStringList captions;
    for (const PageRow &row : std::as_const(mRows)) {
        if (row.editor && isResettable(*row.item))
            captions.append(QObject::tr(row.item->displayText));
    }
    return askToReset(this, ResetScope::Page, captions);
}

bool ConfigurationWindow::confirmRestoreOfAll()
{
    if (!mIsModern || !mManager)
        return confirm(tr("Are you sure to restore all default?"));
    const QPointer<ConfigurationWindow> self(this);
    QStringList captions;
    const QList<ConfItem *> changed = changedItems(mManager);
    for (const ConfItem *item : changed)
        captions.append(QObject::tr(item->displayText));
    return self && askToReset(this, ResetScope::All, captions);
}

bool ConfigurationWindow::confirm(const QString &question)
{
    const QPointer<ConfigurationWindow> self(this);
    const QPointer<QMessageBox> box(new QMessageBox(this));
    box->setIcon(QMessageBox::Question);
    // The first text is never visible, but the catalogues contain it.
    box->setText(tr("Confirm"));
    box->setText(question);
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(QMessageBox::Yes);
    const int answer = box->exec();
    if (!self || !box) // deleted while the question was open
        return false;
    box->deleteLater();
    // Every answer but No means Yes. Closing the question gives No.
    return answer != QMessageBox::No;
}

void ConfigurationWindow::rebuildPage()
{
    showPage(mUi->configList->currentIndex());
}

void ConfigurationWindow::initConfigClassList()
{
    const double scale = screenScale();
    mClassModel = new QStandardItemModel(this);
    mClassModel->setHorizontalHeaderLabels({QStringLiteral("Config")});
    mUi->configList->setModel(mClassModel);
    mUi->configList->setMinimumWidth(qRound(200 * scale));
    const int iconSize = static_cast<int>(28 * scale);
    mUi->configList->setIconSize(QSize(iconSize, iconSize));
    if (!mManager)
        return;
    for (const MajorConfItem &major : std::as_const(mManager->majorItems)) {
        auto *row = new QStandardItem(translatedName(major.name));
        mItemIcons.insert(row, major.name);
        row->setData(major.name, sClassNameRole);
        mClassModel->appendRow(row);
    }
}

} // namespace MtConf
