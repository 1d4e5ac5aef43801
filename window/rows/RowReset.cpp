#include "RowReset_p.h"

#include "ChangedDot_p.h"
#include "ChangedItems_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "MaltoConfiguration/window/PageBuilder_p.h"
#include "MaltoConfiguration/window/find/SettingsFind_p.h"
#include "ResetButton_p.h"
#include "RowWords_p.h"
#include "ValueInWords_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
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

/// What finds the changed settings.
QString changedQuery()
{
    return QStringLiteral("@changed");
}

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

/// Returns `text` as a menu shows it: shortened, and without a mark of a shortcut key.
QString inMenu(const QString &text, const QFontMetrics &metrics)
{
    constexpr int sMostCharacters = 60;
    const int width = metrics.averageCharWidth() * sMostCharacters;
    return metrics.elidedText(text, Qt::ElideRight, width)
        .replace(QLatin1Char('&'), QLatin1String("&&"));
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
      mObserver(ConfStorage::instance(), [this](const ConfChange &change) { onChange(change); })
{
    connect(new QShortcut(resetKey(), window), &QShortcut::activated, this, [this] {
        if (const PageRow *const row = focusedRow())
            reset(PageRow(*row));
    });
    // Text fields have menus of their own.
    const QKeySequence menuKey(Qt::SHIFT | Qt::Key_F9);
    connect(new QShortcut(menuKey, window), &QShortcut::activated, this, [this] {
        const PageRow *const row = focusedRow();
        if (row && row->editor)
            showMenu(*row, row->editor->mapToGlobal(row->editor->rect().bottomLeft()));
    });
    mChangesButton->setObjectName(QStringLiteral("ShowChangesButton"));
    mChangesButton->setCheckable(true);
    connect(mChangesButton, &QAbstractButton::clicked, this, &RowReset::showChanges);
    // The class that is current already leads back to its page, too.
    connect(classList(), &QAbstractItemView::clicked, this, [this] {
        if (mChangesButton->isChecked())
            rebuildPage();
    });
    classColumn()->insertWidget(classColumn()->indexOf(classList()) + 1, mChangesButton);
}

void RowReset::rowAdded(const PageRow &row)
{
    row.frame->removeEventFilter(this); // rows of the classic look share their frame
    row.frame->installEventFilter(this);
    updateRow(row);
}

void RowReset::pageShown()
{
    const auto *const find = window()->findChild<SettingsFind *>();
    mChangesButton->setChecked(mIsShowingChanges
                               || (find && showsItems() && find->query() == changedQuery()));
    updatePageState();
    mChangedKeys.reset(); // the host may have added items
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
    for (const PageRow &row : rows())
        updateRow(row);
    updatePageState();
    if (mChangesButton->isChecked())
        showChangedItems(); // captions of several pages are not translated again
}

void RowReset::onChange(const ConfChange &change)
{
    constexpr int sMostKeys = 100; // with more it is faster to look at all items
    const bool isItemOld = change.before.isPresent && change.after.isPresent;
    if (mChangedKeys && isItemOld && mChangedKeys->size() < sMostKeys)
        mChangedKeys->insert(change.key);
    else
        mChangedKeys.reset();
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
    if (showsItems()) { // of several pages, which Find counts
        state->hide();
        return;
    }
    const auto count = static_cast<int>(
        std::count_if(rows().cbegin(), rows().cend(),
                      [](const PageRow &row) { return isResettable(*row.item); }));
    state->setText(tr("%n changed", nullptr, count));
    state->setVisible(count > 0);
}

void RowReset::updateRow(const PageRow &row)
{
    const bool isChanged = isResettable(*row.item);
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
    button->setProperty(sRowKey, row.key);
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
    const QPointer<RowReset> self(this);
    const HostCodeScope scope(hostCode());
    const auto keys = std::exchange(mChangedKeys, QSet<QString>());
    const ChangedClasses found = changedClasses(manager(), mChangedClasses, keys);
    if (!self)
        return;
    mChangedClasses = found.ofItems;
    const QSet<QString> changed = found.ofItems + found.ofHost;
    QAbstractItemModel *const model = classList()->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        const bool isChanged = changed.contains(index.data(sClassNameRole).toString());
        if (index.data(ChangedDot::sChangedRole).toBool() != isChanged)
            model->setData(index, isChanged, ChangedDot::sChangedRole);
        const QString description = isChanged ? tr("Changed") : QString();
        if (index.data(Qt::AccessibleDescriptionRole).toString() != description)
            model->setData(index, description, Qt::AccessibleDescriptionRole);
    }
    mChangesButton->setEnabled(!changed.isEmpty() || mChangesButton->isChecked());
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
    if (auto *const find = window()->findChild<SettingsFind *>())
        find->show(isOn ? changedQuery() : QString());
    else if (isOn)
        showChangedItems();
    else
        rebuildPage();
}

void RowReset::showChangedItems()
{
    const QPointer<RowReset> self(this);
    const QList<ConfItem *> changed = changedItems(manager());
    if (!self)
        return;
    mIsShowingChanges = true;
    showItems(pageGroups(changed));
    if (!self)
        return;
    mIsShowingChanges = false;
    if (auto *const title = window()->findChild<QLabel *>(QStringLiteral("ModernPageTitle")))
        title->setText(tr("Changed settings"));
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
        const QJsonValue json = store->mConfValues.value(row.key).toJsonValue();
        const bool isText = json.isString() && row.item->choices.isEmpty();
        const QString value = isText ? json.toString() : valueInWords(*row.item, json);
        connect(menu->addAction(tr("Copy value")), &QAction::triggered, this,
                [value] { QApplication::clipboard()->setText(value); });
    }
    menu->addSeparator();
    for (const QString &text : {defaultInWords(row), changeInWords(row)}) {
        if (!text.isEmpty())
            menu->addAction(inMenu(text, menu->fontMetrics()))->setEnabled(false);
    }
    menu->popup(position);
}

} // namespace MtConf
