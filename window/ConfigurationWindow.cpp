#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include "ui_ConfigurationWindow.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <OrvUtils/SetWindowTopmost.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QIcon>
#include <QMessageBox>
#include <QPersistentModelIndex>
#include <QStandardItemModel>
#include <QTimer>

#include <algorithm>

namespace MtConf {

namespace {

ConfigurationWindow *sWindow = nullptr;

} // namespace

QMap<QString, QChar> ConfigurationWindow::mIconMap;

ConfigurationWindow *ShowConfigurationWindow(MtConfManage *manager)
{
    if (sWindow && sWindow->isGoing())
        sWindow->giveWay();
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
    // Qt ends the process at the first widget then.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        qCritical() << "ShowConfigurationWindow without an application";
        return nullptr;
    }
    new ConfigurationWindow(manager);
    ConfigurationWindow *window = ConfigurationWindow::instance(); // null: its own page closed it
    if (window)
        window->show();
    return window;
}

void setStaysOnTopHint(bool on)
{
    ConfigurationWindow *window = ConfigurationWindow::instance();
    if (!window || window->isGoing())
        return;
    SetWindowTopmost(window, on, OrvWindowTypeSettings);
    window->show();
    window->raise();
}

ConfigurationWindow::ConfigurationWindow(MtConfManage *manager)
    : mUi(std::make_unique<Ui_ConfigurationWindow>()), mManager(manager)
{
    // Known from here on: the first page is built below, by code of the host that may ask for it.
    if (!sWindow)
        sWindow = this;

    mUi->setupUi(this);
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

    setWindowIcon(QIcon(QStringLiteral(":/icon/AppIcon")));
    retranslateUi();

    const QPersistentModelIndex first = mClassModel->index(0, 0);
    const QPointer<ConfigurationWindow> self(this);
    mUi->configList->setCurrentIndex(first);
    if (self)
        onClassItemClick(first);
}

ConfigurationWindow::~ConfigurationWindow()
{
    if (!mGaveWay)
        saveGeometryToFile();
    if (sWindow == this)
        sWindow = nullptr;
}

bool ConfigurationWindow::isGoing() const
{
    return !testAttribute(Qt::WA_DeleteOnClose) && !isVisible();
}

void ConfigurationWindow::giveWay()
{
    saveGeometryToFile();
    mGaveWay = true;
    if (sWindow == this)
        sWindow = nullptr;
}

bool ConfigurationWindow::runsHostCode() const
{
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    return mHostCode > 0
           || std::any_of(widgets.cbegin(), widgets.cend(), [](const QWidget *widget) {
                  const auto *editor = dynamic_cast<const ConfigItemWidget *>(widget);
                  return editor && editor->isWriting();
              });
}

void ConfigurationWindow::managerIsGoing(const QList<QList<ConfItem>> &items)
{
    const QPointer<ConfigurationWindow> self(this);
    close();
    if (!self)
        return;
    if (!mBuildingPage && !runsHostCode()) {
        delete this;
        return;
    }
    if (!mGaveWay)
        giveWay();
    mManager = nullptr;
    // The copy shares the manager's items, and a connection goes after the last editor.
    connect(this, &QObject::destroyed, [items] {});
    deleteLater();
}

ConfigurationWindow *ConfigurationWindow::instance()
{
    return sWindow;
}

void ConfigurationWindow::switchToView(QString className)
{
    QModelIndex found;
    for (int row = 0; row < mClassModel->rowCount() && !found.isValid(); ++row) {
        const QModelIndex index = mClassModel->index(row, 0);
        if (index.data(ClassNameRole).toString() == className)
            found = index;
    }
    const QPointer<ConfigurationWindow> self(this);
    const QPersistentModelIndex index = found;
    mUi->configList->setCurrentIndex(index);
    if (self)
        onClassItemClick(index);
}

bool ConfigurationWindow::event(QEvent *event)
{
    if (event->type() == QEvent::DeferredDelete && (mBuildingPage || runsHostCode())) {
        // A dialog of the host has an event loop of its own, above the control that opened it.
        QTimer::singleShot(sWaitForHost, this, &QObject::deleteLater);
        return true;
    }
    // Changes of language, font and style are passed on from here to the editors.
    const HostCode running(this);
    return QMainWindow::event(event);
}

void ConfigurationWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    if (mManager)
        mManager->saveToFile();
}

void ConfigurationWindow::onClassItemChange(const QModelIndex &current, const QModelIndex &previous)
{
    Q_UNUSED(previous)
    onClassItemClick(current);
}

void ConfigurationWindow::restorePageDefault()
{
    if (!confirm(tr("Are you sure to restore current page default?")))
        return;
    // A callback may rebuild the page, which deletes editors, or close the window.
    const QPointer<ConfigurationWindow> self(this);
    {
        const HostCode running(this);
        const QList<QPointer<ConfigItemWidget>> editors = mEditors;
        for (const QPointer<ConfigItemWidget> &editor : editors) {
            if (editor)
                editor->restoreDefault();
        }
    }
    if (self)
        rebuildPage();
}

void ConfigurationWindow::restoreAllDefault()
{
    if (!confirm(tr("Are you sure to restore all default?")) || !mManager)
        return;
    const QPointer<ConfigurationWindow> self(this);
    {
        const HostCode running(this);
        mManager->restoreAllDefault();
    }
    if (self)
        rebuildPage();
}

bool ConfigurationWindow::confirm(const QString &question)
{
    const QPointer<ConfigurationWindow> self(this);
    const QPointer<QMessageBox> box(new QMessageBox(this));
    box->setIcon(QMessageBox::Question);
    // The first text never shows, but translators find it in their catalogues.
    box->setText(tr("Confirm"));
    box->setText(question);
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box->setDefaultButton(QMessageBox::Yes);
    const int answer = box->exec();
    if (!self || !box) // closed while the question stood
        return false;
    box->deleteLater();
    // Whatever is not a No is a Yes; closing the question counts as No.
    return answer != QMessageBox::No;
}

void ConfigurationWindow::rebuildPage()
{
    onClassItemClick(mUi->configList->currentIndex());
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
    for (const MajorConfItem &major : qAsConst(mManager->majorItems)) {
        auto *row = new QStandardItem(translatedName(major.name));
        mItemIcons.insert(row, major.name);
        row->setData(major.name, ClassNameRole);
        mClassModel->appendRow(row);
    }
}

} // namespace MtConf
