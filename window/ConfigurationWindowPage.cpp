#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include "MaltoConfiguration/manage/ItemVisibility_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "PageBuilder_p.h"
#include "WindowFeature_p.h"
#include "ui_ConfigurationWindow.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QPersistentModelIndex>
#include <QTimer>

#include <memory>
#include <utility>

namespace MtConf {

void ConfigurationWindow::onClassItemClick(const QModelIndex &index)
{
    const QPersistentModelIndex page = index;
    const QPointer<ConfigurationWindow> self(this);
    commitEditors();
    if (self)
        showPage(page);
}

void ConfigurationWindow::showPage(const QPersistentModelIndex &index)
{
    if (!mManager)
        return;
    if (mBuildingPage) {
        // Host code that builds part of the page asks for another one: it is built afterwards.
        mNextPage = index;
        mIsNextPageWanted = true;
        return;
    }
    mShowsItems = false;
    replacePage(
        [this, className = index.data(sClassNameRole).toString()] { buildPage(className); });
}

/// Shows items of several classes. Does nothing while a page is being built.
void ConfigurationWindow::showItems(const QList<std::pair<QString, QList<ConfItem *>>> &groups)
{
    const QPointer<ConfigurationWindow> self(this);
    commitEditors();
    if (!self || !mManager || mBuildingPage)
        return;
    mShowsItems = true;
    replacePage([this, self, groups] {
        mUi->btnRestoreDefault->hide();
        for (const auto &[caption, items] : groups) {
            if (self && mManager)
                addGroup(caption, QString(), items, 0);
        }
        if (self)
            endPage();
    });
}

/// Deletes the widgets of the page and calls `build`, which creates others.
void ConfigurationWindow::replacePage(const std::function<void()> &build)
{
    // Host code that builds part of the page may delete the window.
    const QPointer<ConfigurationWindow> self(this);
    mBuildingPage = true;
    clearConfigItem();
    if (self && mManager) {
        const HostCodeScope scope(mHostCode);
        build();
    }
    if (!self)
        return;
    mBuildingPage = false;
    describePage();
    orderTabs();
    tellFeatures(&WindowFeature::pageShown);
    if (self && mIsNextPageWanted) {
        mIsNextPageWanted = false;
        QTimer::singleShot(0, this, [this] { onClassItemClick(mNextPage); });
    }
}

void ConfigurationWindow::buildPage(const QString &className)
{
    const MajorConfItem *found = mManager->getMajorConfItemByName(className);
    const MajorConfItem major = found ? *found : MajorConfItem();
    mUi->btnRestoreDefault->setVisible(!(major.classFlag & ClassWithoutRestoreButton));
    if (!major.majorWidget) {
        addItemPage(className, major.classFlag);
        return;
    }
    const QPointer<ConfigurationWindow> self(this);
    QWidget *page = major.majorWidget(this);
    if (self && page)
        mUi->layoutConfigItem->addWidget(page);
}

void ConfigurationWindow::addItemPage(const QString &className, int classFlag)
{
    QList<ConfItem *> ungrouped;
    QStringList groupNames;
    QHash<QString, QList<ConfItem *>> groups;
    const QList<ConfItem *> items = mManager->getConfItemList(className);
    for (ConfItem *item : items) {
        if (item->subName.isEmpty()) {
            ungrouped.append(item);
            continue;
        }
        QList<ConfItem *> &group = groups[item->name];
        if (group.isEmpty())
            groupNames.append(item->name);
        group.append(item);
    }
    const QPointer<ConfigurationWindow> self(this);
    if (!ungrouped.isEmpty())
        addGroup(translatedName(className), className, ungrouped, classFlag);
    for (const QString &name : std::as_const(groupNames)) {
        if (self && mManager)
            addGroup(translatedName(name), name, groups.value(name), classFlag);
    }
    if (self)
        endPage();
}

/// Keeps the rows at the top of the page, and shows the first one.
void ConfigurationWindow::endPage()
{
    mUi->layoutConfigItem->addItem(
        new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));
    mUi->scrollArea->ensureVisible(0, 0, 50, 50);
}

void ConfigurationWindow::addGroup(const QString &caption, const QString &source,
                                   const QList<ConfItem *> &items, int flags)
{
    const QPointer<ConfigurationWindow> self(this);
    mBuilder->beginGroup(caption, source, flags);
    for (int i = 0; mManager && i < items.size(); ++i) {
        if (isItemShown(*mManager, items.at(i)) && self)
            addItemWidget(items.at(i), source.isEmpty() ? caption : source, i + 1 == items.size());
        if (!self)
            return;
    }
    mBuilder->endGroup();
}

bool ConfigurationWindow::addItemWidget(ConfItem *item, const QString &group, bool isLast)
{
    // The window leaves out items without an editor.
    const WidgetCreator creator =
        item->widgetCreator; // a copy: the host may replace it in the call
    const QPointer<QWidget> parent(creator ? mBuilder->newRowParent() : nullptr);
    ConfigItemWidget *const editor = parent ? creator(item, parent) : nullptr;
    if (!parent || !editor) {
        if (parent)
            mBuilder->dropRow();
        return false;
    }
    PageRow row;
    row.item = item;
    row.key = item->getFullName();
    row.group = group;
    row.editor = editor;
    row.caption = editor->label();
    row.message = editor->messageLabel();
    mBuilder->addRow(&row, isLast);
    for (const QPointer<WindowFeature> &feature : std::as_const(mFeatures)) {
        if (feature)
            feature->rowAdded(row);
    }
    mRows.append(row);
    return true;
}

/// Lets the editors store what the user has not confirmed yet.
void ConfigurationWindow::commitEditors()
{
    if (mBuildingPage)
        return;
    const HostCodeScope scope(mHostCode);
    const QList<PageRow> rows = mRows;
    for (const PageRow &row : rows) {
        if (row.editor)
            row.editor->commit();
    }
}

void ConfigurationWindow::describePage()
{
    mUi->configList->setAccessibleName(windowTitle());
    const QString page = mUi->configList->currentIndex().data().toString();
    mUi->scrollArea->setAccessibleName(page);
    mUi->gboxConfigBoard->setAccessibleName(page);
    for (const PageRow &row : std::as_const(mRows)) {
        if (!row.editor || !row.panel) // a host may have deleted the editor
            continue;
        const QString group = translatedName(row.group);
        row.panel->setAccessibleName(group);
        row.editor->describeControls(group);
    }
}

void ConfigurationWindow::orderTabs()
{
    // Page widgets are created after the buttons; move the restore buttons last in the tab order.
    QWidget *last = mUi->scrollArea;
    for (QWidget *widget = last->nextInFocusChain(); widget != mUi->scrollArea;
         widget = widget->nextInFocusChain()) {
        const bool isOnPage = mUi->gboxConfigBoard->isAncestorOf(widget);
        if (isOnPage && widget != mUi->btnRestoreDefault && widget->focusPolicy() != Qt::NoFocus)
            last = widget;
    }
    setTabOrder(last, mUi->btnRestoreDefault);
    setTabOrder(mUi->btnRestoreDefault, mUi->btnRestoreAllDefault);
    if (!mFeatures.isEmpty())
        orderTabsOfColumn();
}

/// Orders what features have added beside the page as it is laid out, before the page.
void ConfigurationWindow::orderTabsOfColumn()
{
    QList<QWidget *> stops;
    for (int i = 0; i < mUi->verticalLayout_3->count(); ++i) {
        QWidget *const widget = mUi->verticalLayout_3->itemAt(i)->widget();
        if (!widget || widget == mUi->btnRestoreAllDefault)
            continue;
        if (widget->focusPolicy() != Qt::NoFocus)
            stops.append(widget);
        else
            stops.append(widget->findChildren<QWidget *>());
    }
    stops.append(mUi->scrollArea);
    for (int i = 1; i < stops.size(); ++i)
        setTabOrder(stops.at(i - 1), stops.at(i));
}

void ConfigurationWindow::clearConfigItem()
{
    tellFeatures(&WindowFeature::pageCleared);
    mRows.clear();
    while (const auto item = std::unique_ptr<QLayoutItem>(mUi->layoutConfigItem->takeAt(0)))
        mHostCode->deleteWidget(item->widget());
}

} // namespace MtConf
