#include "RowReset_p.h"

#include "ChangedDot_p.h"
#include "MaltoConfiguration/manage/ItemVisibility_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "PageBuilder_p.h"
#include "ResetButton_p.h"
#include "RowWords_p.h"
#include "SettingsFind_p.h"
#include "ValueInWords_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfOperation.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

constexpr double sButtonSize = 24; // pixels at 96 dots per inch
constexpr double sDotSize = 6;     // the same

QKeySequence resetKey()
{
    return QKeySequence(Qt::CTRL | Qt::Key_R);
}

/// Returns the controls of `editor` that take the focus by Tab.
QList<QWidget *> controlsOf(const ConfigItemWidget *editor)
{
    QList<QWidget *> controls;
    const QList<QWidget *> children = editor->findChildren<QWidget *>();
    for (QWidget *child : children) {
        // The list of a combo box is a window of its own.
        if ((child->focusPolicy() & Qt::TabFocus) && child->window() == editor->window())
            controls.append(child);
    }
    return controls;
}

/// Returns whether a click at `position` in the frame of the row is meant for the row.
bool contains(const PageRow &row, const QPoint &position)
{
    const auto hasHeight = [&](const QWidget *widget) {
        const int y = widget ? widget->mapFrom(row.frame, position).y() : -1;
        return y >= 0 && y < widget->height();
    };
    return hasHeight(row.editor) || hasHeight(row.caption);
}

} // namespace

RowReset::RowReset(ConfigurationWindow *window)
    : WindowFeature(window), mChangesButton(new QPushButton(window)),
      mObserver(ConfStorage::instance(), [this](const ConfChange &) { queueUpdate(); })
{
    auto *shortcut = new QShortcut(resetKey(), window);
    connect(shortcut, &QShortcut::activated, this, &RowReset::resetFocusedRow);
    mChangesButton->setObjectName(QStringLiteral("ShowChangesButton"));
    mChangesButton->setCheckable(true);
    connect(mChangesButton, &QAbstractButton::clicked, this, &RowReset::showChanges);
    classColumn()->insertWidget(classColumn()->indexOf(classList()) + 1, mChangesButton);
    updateClasses();
}

void RowReset::rowAdded(const PageRow &row)
{
    row.frame->removeEventFilter(this); // rows of the classic look share their frame
    row.frame->installEventFilter(this);
    updateRow(row);
}

void RowReset::pageShown()
{
    mChangesButton->setChecked(mIsShowingChanges);
    updatePageState();
    updateClasses();
}

void RowReset::pageCleared()
{
    mButtons.clear();
}

void RowReset::sheetApplied()
{
    const auto color = [](const char *name) {
        return QThemeCtrl::instance()->color(QLatin1String(name));
    };
    QAbstractItemDelegate *const former = classList()->itemDelegate();
    classList()->setItemDelegate(
        new ChangedDot(scaled(sDotSize), color(isModern() ? "ModernAccent" : "ColorMain"),
                       isModern() ? color("ModernOnAccent") : QColor(Qt::white), classList()));
    former->deleteLater();
}

void RowReset::retranslate()
{
    mChangesButton->setText(tr("Show changed"));
    update();
}

void RowReset::queueUpdate()
{
    if (std::exchange(mIsQueued, true))
        return;
    QMetaObject::invokeMethod(this, &RowReset::update, Qt::QueuedConnection);
}

void RowReset::update()
{
    mIsQueued = false;
    for (const PageRow &row : rows())
        updateRow(row);
    updatePageState();
    updateClasses();
}

/// Shows how many rows of the page have changed, if the look has a place for it.
void RowReset::updatePageState()
{
    auto *const state = window()->findChild<QLabel *>(QStringLiteral("ModernPageState"));
    if (!state)
        return;
    const auto count = static_cast<int>(
        std::count_if(rows().cbegin(), rows().cend(),
                      [](const PageRow &row) { return !row.item->isDefaultValue(); }));
    state->setText(tr("%n changed", nullptr, count));
    state->setVisible(count > 0);
}

void RowReset::updateRow(const PageRow &row)
{
    const bool isChanged = !row.item->isDefaultValue()
                           && !ConfStorage::instance()->isLocked(row.key);
    ResetButton *button = mButtons.value(row.key);
    // Most rows never need one.
    if (!button && isChanged && row.frame)
        button = addButton(row);
    if (!button)
        return;
    // The keyboard would be without focus.
    if (!isChanged && button->hasFocus() && row.editor) {
        const QList<QWidget *> controls = controlsOf(row.editor);
        if (!controls.isEmpty())
            controls.first()->setFocus();
    }
    button->setVisible(isChanged);
    button->setAccessibleName(tr("Reset %1").arg(QObject::tr(row.item->displayText)));
    button->setToolTip(
        QStringLiteral("%1 (%2)").arg(tr("Reset"), resetKey().toString(QKeySequence::NativeText)));
}

ResetButton *RowReset::addButton(const PageRow &row)
{
    auto *button = new ResetButton(row.frame);
    button->setFixedSize(scaled(sButtonSize), scaled(sButtonSize));
    builder()->addAtEnd(row, button);
    connect(button, &QAbstractButton::clicked, this, [this, key = row.key] { resetKeyed(key); });
    // After the controls of its row.
    if (row.editor) {
        const QList<QWidget *> controls = controlsOf(row.editor);
        if (!controls.isEmpty())
            QWidget::setTabOrder(controls.last(), button);
    }
    mButtons.insert(row.key, button);
    return button;
}

void RowReset::resetKeyed(const QString &key)
{
    for (const PageRow &row : rows()) {
        if (row.key == key) {
            reset(PageRow(row));
            return;
        }
    }
}

/// Marks the classes on whose pages something has changed.
void RowReset::updateClasses()
{
    QAbstractItemModel *const model = classList()->model();
    QSet<QString> changed;
    if (manager()) {
        const HostCodeScope scope(hostCode());
        for (ConfItem *item : changedItems())
            changed.insert(item->majorName);
        for (int i = 0; manager() && i < manager()->majorItems.size(); ++i) {
            const MajorConfItem major = manager()->majorItems.at(i);
            if (major.isChanged && major.isChanged())
                changed.insert(major.name);
        }
    }
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        const bool isChanged = changed.contains(index.data(sClassNameRole).toString());
        if (index.data(ChangedDot::sChangedRole).toBool() != isChanged)
            model->setData(index, isChanged, ChangedDot::sChangedRole);
    }
    mChangesButton->setEnabled(!changed.isEmpty() || mChangesButton->isChecked());
}

/// Returns the items that the pages show and whose values are not the default ones.
QList<ConfItem *> RowReset::changedItems() const
{
    QList<ConfItem *> changed;
    // The filter of the host may destroy the manager.
    for (int i = 0; manager() && i < manager()->majorItems.size(); ++i) {
        const MajorConfItem &major = manager()->majorItems.at(i);
        const QList<ConfItem *> items = major.majorWidget ? QList<ConfItem *>()
                                                          : manager()->getConfItemList(major.name);
        for (ConfItem *item : items) {
            if (manager() && item->widgetCreator && !item->isDefaultValue()
                && isItemShown(*manager(), item))
                changed.append(item);
        }
    }
    return changed;
}

void RowReset::resetFocusedRow()
{
    const QWidget *const focused = window()->focusWidget();
    for (const PageRow &row : rows()) {
        const bool hasFocus = focused && row.editor
                              && (focused == row.caption || row.editor->isAncestorOf(focused)
                                  || focused == mButtons.value(row.key));
        if (hasFocus) {
            reset(PageRow(row));
            return;
        }
    }
}

void RowReset::reset(const PageRow &row)
{
    if (!row.editor)
        return;
    const HostCodeScope scope(hostCode());
    const QPointer<RowReset> self(this);
    {
        const ConfOperation operation(ConfStorage::instance(), ConfChange::Cause::Restored);
        row.editor->restoreDefault();
    }
    if (self && row.editor)
        row.editor->refresh();
    if (self)
        update();
}

void RowReset::showChanges(bool isOn)
{
    if (!manager())
        return;
    if (auto *const find = window()->findChild<SettingsFind *>()) {
        find->show(isOn ? QStringLiteral("@changed") : QString());
        return;
    }
    const QPointer<RowReset> self(this);
    mIsShowingChanges = isOn;
    if (isOn)
        showItems(pageGroups(changedItems()));
    else
        rebuildPage();
    if (self)
        mIsShowingChanges = false;
}

bool RowReset::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto *menu = static_cast<QContextMenuEvent *>(event);
    for (const PageRow &row : rows()) {
        if (row.frame == watched && contains(row, menu->pos())) {
            showMenu(row, menu->globalPos());
            return true;
        }
    }
    return false;
}

void RowReset::showMenu(const PageRow &row, const QPoint &position)
{
    auto *menu = new QMenu(window());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *const resetAction = menu->addAction(tr("Reset"));
    resetAction->setShortcut(resetKey());
    resetAction->setEnabled(mButtons.value(row.key) && mButtons.value(row.key)->isVisible());
    connect(resetAction, &QAction::triggered, this, [this, key = row.key] { resetKeyed(key); });
    connect(menu->addAction(tr("Copy key")), &QAction::triggered, this,
            [key = row.key] { QApplication::clipboard()->setText(key); });
    const ConfStorage *const store = ConfStorage::instance();
    if (!(store->mConfMetas.value(row.key).flags & ConfStorage::FlagSecret)) {
        const QString value = valueInWords(*row.item,
                                           store->mConfValues.value(row.key).toJsonValue());
        connect(menu->addAction(tr("Copy value")), &QAction::triggered, this,
                [value] { QApplication::clipboard()->setText(value); });
    }
    menu->addSeparator();
    for (const QString &text : {defaultInWords(row), changeInWords(row)}) {
        if (!text.isEmpty())
            menu->addAction(text)->setEnabled(false);
    }
    menu->popup(position);
}

} // namespace MtConf
