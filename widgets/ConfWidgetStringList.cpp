#include <MaltoConfiguration/widgets/ConfWidgetStringList.h>

#include "FocusedWheel_p.h"

#include <QAbstractItemDelegate>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

/// A list in which Tab ends editing in place. In Qt's views it edits the next entry, and a user of
/// the keyboard could not leave the list.
class EntryList : public FocusedWheel<QListWidget>
{
public:
    using FocusedWheel::FocusedWheel;

protected:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override
    {
        const bool isTab = hint == QAbstractItemDelegate::EditNextItem
                           || hint == QAbstractItemDelegate::EditPreviousItem;
        QListWidget::closeEditor(editor, isTab ? QAbstractItemDelegate::NoHint : hint);
    }
};

} // namespace

ConfWidgetStringList::ConfWidgetStringList(ConfItem *item, QWidget *parent)
    : ConfigItemWidget(item, parent), mList(new EntryList(this)), mAddButton(new QPushButton(this)),
      mRemoveButton(new QPushButton(this)), mUpButton(new QPushButton(this)),
      mDownButton(new QPushButton(this))
{
    auto *buttons = new QVBoxLayout;
    for (QPushButton *button : {mAddButton, mRemoveButton, mUpButton, mDownButton})
        buttons->addWidget(button);
    buttons->addStretch();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mList, 1);
    layout->addLayout(buttons);
    // The buttons decide the height.
    mList->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    mList->installEventFilter(this);
    connect(mList, &QListWidget::currentRowChanged, this, &ConfWidgetStringList::updateButtons);
    connect(mList->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            &ConfWidgetStringList::onEditingEnded);
    connect(mAddButton, &QAbstractButton::clicked, this, &ConfWidgetStringList::add);
    connect(mRemoveButton, &QAbstractButton::clicked, this, &ConfWidgetStringList::removeCurrent);
    connect(mUpButton, &QAbstractButton::clicked, this, [this] { moveCurrent(-1); });
    connect(mDownButton, &QAbstractButton::clicked, this, [this] { moveCurrent(1); });
    retranslateUi();
    loadConf();
}

ConfWidgetStringList::~ConfWidgetStringList()
{
    // Destroying the list ends editing in place, which emits the signal. The base class destroys
    // it, so the slot would run on an object that is partly destroyed.
    mList->itemDelegate()->disconnect(this);
}

ConfigItemWidget *ConfWidgetStringList::CreatConfWidget(ConfItem *item, QWidget *parent)
{
    return create<ConfWidgetStringList>(item, parent);
}

void ConfWidgetStringList::retranslateUi()
{
    ConfigItemWidget::retranslateUi();
    mAddButton->setText(tr("Add"));
    mRemoveButton->setText(tr("Remove"));
    mUpButton->setText(tr("Move up"));
    mDownButton->setText(tr("Move down"));
    for (QPushButton *button : {mAddButton, mRemoveButton, mUpButton, mDownButton})
        button->setAccessibleName(button->text());
}

QStringList ConfWidgetStringList::entries() const
{
    QStringList texts;
    for (int row = 0; row < mList->count(); ++row)
        texts.append(mList->item(row)->text());
    return texts;
}

void ConfWidgetStringList::loadConf()
{
    // The rows are not replaced while one of them is edited in place.
    if (!editorInPlace())
        showEntries(readValue<QStringList>());
    refreshLabelState();
}

void ConfWidgetStringList::showEntries(const QStringList &texts)
{
    mShown = texts;
    const int currentRow = mList->currentRow();
    const QString currentText = entries().value(currentRow);
    const auto count = static_cast<int>(texts.size());
    while (mList->count() > count)
        delete mList->takeItem(mList->count() - 1);
    for (int row = 0; row < count; ++row) {
        if (row == mList->count())
            appendEntry();
        mList->item(row)->setText(texts.at(row));
    }
    // The current entry may have moved.
    if (currentRow >= 0 && texts.value(currentRow) != currentText && texts.contains(currentText))
        mList->setCurrentRow(static_cast<int>(texts.indexOf(currentText)));
    showMessage(QString());
    updateButtons();
}

QListWidgetItem *ConfWidgetStringList::appendEntry()
{
    auto *entry = new QListWidgetItem(mList);
    entry->setFlags(entry->flags() | Qt::ItemIsEditable);
    return entry;
}

/// Returns the control that edits the current entry in place, or null.
QWidget *ConfWidgetStringList::editorInPlace() const
{
    return mList->indexWidget(mList->currentIndex());
}

void ConfWidgetStringList::commit()
{
    QWidget *const editor = editorInPlace();
    if (!editor)
        return;
    QAbstractItemDelegate *const delegate = mList->itemDelegate();
    Q_EMIT delegate->commitData(editor);
    Q_EMIT delegate->closeEditor(editor);
}

bool ConfWidgetStringList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && !editorInPlace()) {
        const auto *press = static_cast<QKeyEvent *>(event);
        // A callback may delete this editor, so nothing follows.
        if (handleKey(press->key(), press->modifiers() & ~Qt::KeypadModifier))
            return true;
    }
    return ConfigItemWidget::eventFilter(watched, event);
}

/// Does what the key means in the list. Returns false if it has no meaning of its own there.
bool ConfWidgetStringList::handleKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down))
        moveCurrent(key == Qt::Key_Up ? -1 : 1);
    else if (modifiers == Qt::NoModifier && key == Qt::Key_Delete)
        removeCurrent();
    else if (modifiers == Qt::NoModifier && (key == Qt::Key_Return || key == Qt::Key_Enter))
        mList->editItem(mList->currentItem());
    else
        return false;
    return true;
}

void ConfWidgetStringList::add()
{
    const QPointer<ConfWidgetStringList> self(this);
    commit();
    if (!self)
        return;
    QListWidgetItem *const entry = appendEntry();
    mList->setCurrentItem(entry);
    mList->editItem(entry);
}

void ConfWidgetStringList::removeCurrent()
{
    if (mList->currentRow() < 0)
        return;
    delete mList->takeItem(mList->currentRow());
    storeEntries();
}

void ConfWidgetStringList::moveCurrent(int rows)
{
    const int from = mList->currentRow();
    const int to = from + rows;
    if (from < 0 || to < 0 || to >= mList->count())
        return;
    const QString moved = mList->item(from)->text();
    mList->item(from)->setText(mList->item(to)->text());
    mList->item(to)->setText(moved);
    mList->setCurrentRow(to);
    storeEntries();
}

void ConfWidgetStringList::onEditingEnded()
{
    const int row = mList->currentRow();
    const bool isLeftEmpty = row >= 0 && mList->item(row)->text().isEmpty()
                             && (row >= mShown.size() || !mShown.at(row).isEmpty());
    if (isLeftEmpty) {
        delete mList->takeItem(row);
        // The user may be pressing the button that removes the current entry.
        mList->setCurrentRow(-1);
    }
    if (entries() == mShown)
        loadConf();
    else
        storeEntries();
}

void ConfWidgetStringList::storeEntries()
{
    const QPointer<ConfWidgetStringList> self(this);
    const QStringList texts = entries();
    const bool isWritten = writeValue(texts);
    if (!self)
        return;
    // A callback may have stored another list. A list that is not accepted stays as it is.
    if (isWritten || readValue<QStringList>() == texts)
        loadConf();
    else
        updateButtons();
}

void ConfWidgetStringList::updateButtons()
{
    const int row = mList->currentRow();
    enable(mRemoveButton, row >= 0);
    enable(mUpButton, row > 0);
    enable(mDownButton, row >= 0 && row + 1 < mList->count());
}

void ConfWidgetStringList::enable(QPushButton *button, bool isEnabled)
{
    // Or the focus would move to the next button, and the same key would do something else.
    if (!isEnabled && button->hasFocus())
        mList->setFocus();
    button->setEnabled(isEnabled);
}

} // namespace MtConf
