#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "ui_ConfigurationWindow.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPersistentModelIndex>
#include <QTimer>

#include <memory>
#include <utility>

namespace MtConf {

namespace {

constexpr int sGridSpacing = 12; // points

/// The property of a group box that holds the untranslated caption.
constexpr char sGroupName[] = "GroupName";

} // namespace

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
    // Host code that builds part of the page may delete the window.
    const QPointer<ConfigurationWindow> self(this);
    const QString className = index.data(sClassNameRole).toString();
    mBuildingPage = true;
    clearConfigItem();
    if (self && mManager) {
        const HostCodeScope scope(mHostCode);
        buildPage(className);
    }
    if (!self)
        return;
    mBuildingPage = false;
    describePage();
    orderTabs();
    if (mIsNextPageWanted) {
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
        addClassItemWidgets(className, ungrouped, classFlag);
    for (const QString &name : std::as_const(groupNames)) {
        if (self && mManager)
            addClassItemWidgets(name, groups.value(name), classFlag);
    }
    if (!self)
        return;
    mUi->layoutConfigItem->addItem(
        new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));
    mUi->scrollArea->ensureVisible(0, 0, 50, 50);
}

void ConfigurationWindow::addClassItemWidgets(const QString &caption,
                                              const QList<ConfItem *> &items, int flags)
{
    const bool bare = flags & ClassWithoutGroupBoxes;
    if (!bare)
        addClassLabel(caption);

    // Created in its final parent, because a new parent would polish every widget inside again.
    auto *box = new QGroupBox(mUi->gboxConfigBoard);
    box->setProperty(sGroupName, caption);
    box->setObjectName(QStringLiteral("ConfigGroupBox"));
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setObjectName(QStringLiteral("layoutConfigItem"));
    box->setLayout(grid);
    if (bare) {
        box->setProperty("NoGroupBox", QStringLiteral("1"));
        box->setContentsMargins(0, 0, 0, 0);
        grid->setContentsMargins(0, 0, 0, 0);
    } else {
        const int spacing = static_cast<int>(mScale * sGridSpacing);
        grid->setContentsMargins(spacing, spacing, spacing, spacing);
        grid->setSpacing(spacing);
        grid->setProperty("SourceSpacing", sGridSpacing);
    }

    const QPointer<QGroupBox> guard(box); // null once the window is deleted
    for (int i = 0; mManager && i < items.size(); ++i) {
        const bool added = isShown(items.at(i)) && guard && addItemWidget(items.at(i), box, grid);
        if (!guard)
            return;
        if (added && i + 1 < items.size()) {
            auto *line = new QFrame(box);
            line->setProperty("class", QStringLiteral("SplitLine"));
            line->setFrameShape(QFrame::HLine);
            line->setFrameShadow(QFrame::Sunken);
            grid->addWidget(line, grid->rowCount(), 0, 1, 2);
        }
    }
    mUi->layoutConfigItem->addWidget(box);
}

bool ConfigurationWindow::isShown(ConfItem *item) const
{
    if (item->properties.value(QStringLiteral("Malto.Expert")).toBool()
        && !mManager->showExpertItems)
        return false;
    if (!(item->flags & ItemIsFiltered))
        return true;
    const auto filter = mManager->itemFilter; // a copy: the host may replace it in the call
    return filter && filter(*item);
}

bool ConfigurationWindow::addItemWidget(ConfItem *item, QGroupBox *box, QGridLayout *grid)
{
    // The window leaves out items without an editor.
    const WidgetCreator creator =
        item->widgetCreator; // a copy: the host may replace it in the call
    const QPointer<QGroupBox> guard(box);
    ConfigItemWidget *editor = creator ? creator(item, box) : nullptr;
    if (!guard || !editor)
        return false;
    QWidget *caption = editor->label();
    const int row = grid->rowCount();
    if (caption) {
        grid->addWidget(editor, row, 1);
        grid->addWidget(caption, row, 0);
    } else {
        grid->addWidget(editor, row, 0, 1, 2);
    }
    if (QWidget *message = editor->messageLabel())
        grid->addWidget(message, grid->rowCount(), caption ? 1 : 0);
    mEditors.append(editor);
    return true;
}

/// Lets the editors store what the user has not confirmed yet.
void ConfigurationWindow::commitEditors()
{
    if (mBuildingPage)
        return;
    const HostCodeScope scope(mHostCode);
    const QList<QPointer<ConfigItemWidget>> editors = mEditors;
    for (const QPointer<ConfigItemWidget> &editor : editors) {
        if (editor)
            editor->commit();
    }
}

void ConfigurationWindow::addClassLabel(const QString &caption)
{
    auto *label = new QLabel(translatedName(caption), mUi->gboxConfigBoard);
    label->setProperty("SourceText", caption);
    label->setProperty("ClassLabel", QStringLiteral("normal"));
    mClassCaptions.append(label);
    mUi->layoutConfigItem->addWidget(label);
}

void ConfigurationWindow::describePage()
{
    mUi->configList->setAccessibleName(windowTitle());
    const QString page = mUi->configList->currentIndex().data().toString();
    mUi->scrollArea->setAccessibleName(page);
    mUi->gboxConfigBoard->setAccessibleName(page);
    for (const QPointer<ConfigItemWidget> &editor : std::as_const(mEditors)) {
        QWidget *box = editor ? editor->parentWidget() : nullptr;
        if (!box) // a host may have deleted the editor or moved it
            continue;
        const QString group = translatedName(box->property(sGroupName).toString());
        box->setAccessibleName(group);
        editor->describeControls(group);
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
}

void ConfigurationWindow::clearConfigItem()
{
    mEditors.clear();
    mClassCaptions.clear();
    while (const auto item = std::unique_ptr<QLayoutItem>(mUi->layoutConfigItem->takeAt(0)))
        mHostCode->deleteWidget(item->widget());
}

} // namespace MtConf
