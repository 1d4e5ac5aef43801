#include "HistoryFeature_p.h"

#include "HotkeyItems_p.h"
#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "SettingsHistory_p.h"
#include "UndoBar_p.h"
#include "UndoKeys_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QAction>
#include <QListView>
#include <QScrollArea>
#include <QTimer>

#include <algorithm>

namespace MtConf {

HistoryFeature::HistoryFeature(ConfigurationWindow *window)
    : WindowFeature(window), mHistory(new SettingsHistory(ConfStorage::instance(), this)),
      mBar(new UndoBar(window)), mKeys(new UndoKeys([this] { return mHistory->canRedo(); }, this))
{
    // The last of the window, whatever features have added to its chain.
    mBar->setPredecessor(window->findChild<QWidget *>(QStringLiteral("btnRestoreAllDefault")));
    addAction("Undo", QKeySequence::Undo, &SettingsHistory::undo);
    addAction("Redo", QKeySequence::Redo, &SettingsHistory::redo);
    connect(mKeys, &UndoKeys::focusMoved, mHistory, &SettingsHistory::endTyping);
    connect(mHistory, &SettingsHistory::recorded, this, &HistoryFeature::onRecorded);
    connect(mHistory, &SettingsHistory::applied, this, &HistoryFeature::onApplied);
    connect(mBar, &UndoBar::undoRequested, this, &HistoryFeature::undoShown);
}

void HistoryFeature::addAction(const char *name, QKeySequence::StandardKey key,
                               void (SettingsHistory::*direction)())
{
    auto *const action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(key);
    connect(action, &QAction::triggered, this, [this, direction] { apply(direction); });
    window()->addAction(action);
}

void HistoryFeature::sheetApplied()
{
    mBar->applySheet(scale());
}

void HistoryFeature::retranslate()
{
    mBar->retranslate();
    mBar->hide(); // its text is in the previous language
}

void HistoryFeature::apply(void (SettingsHistory::*direction)())
{
    const HostCodeScope scope(hostCode());
    const QPointer<SettingsHistory> history(mHistory); // callbacks may delete the window
    if (commitEditors() && history)                    // what is typed is the newest step then
        (history->*direction)();
}

/// Undoes the step that the bar speaks of. What is typed is not stored before, because that would
/// be a newer step.
void HistoryFeature::undoShown()
{
    const HostCodeScope scope(hostCode());
    const int shown = mRecordedCount;
    // canUndo() records a step that is not finished, which the bar does not speak of.
    if (mHistory->canUndo() && mRecordedCount == shown)
        mHistory->undo();
}

void HistoryFeature::onRecorded(ConfChange::Cause cause, const QStringList &keys)
{
    using Cause = ConfChange::Cause;
    ++mRecordedCount;
    const auto count = static_cast<int>(keys.size());
    // One setting that was restored is seen in its row. Loads are recorded only if the user imports
    // a file.
    if (!mBar)
        return;
    const bool isLarge = (cause == Cause::Restored && count > 1) || cause == Cause::Removed
                         || cause == Cause::Loaded;
    if (isLarge && count > 0)
        mBar->showText(textOf(cause, count));
    else
        mBar->hide();
}

QString HistoryFeature::textOf(ConfChange::Cause cause, int count)
{
    using Cause = ConfChange::Cause;
    if (cause == Cause::Removed)
        return count == 1 ? tr("Removed 1 entry.") : tr("Removed %n entries.", nullptr, count);
    if (cause == Cause::Loaded)
        return count == 1 ? tr("Imported 1 setting.") : tr("Imported %n settings.", nullptr, count);
    return tr("Restored %n settings.", nullptr, count);
}

void HistoryFeature::onApplied(const QStringList &keys)
{
    const QPointer<HistoryFeature> self(this);
    if (mBar)
        mBar->hide();
    registerHotkeys(manager(), keys);
    if (!self || !refreshRows(keys))
        return;
    mKeys->noteText();
    if (!editorOf(keys))
        openPageOf(keys);
    if (!self)
        return;
    // A page that was just built has no layout yet.
    QTimer::singleShot(0, this, [this, keys] {
        if (QWidget *const editor = editorOf(keys))
            scrollArea()->ensureWidgetVisible(editor);
    });
}

/// Shows the values in the rows of the page. Returns false if host code has deleted the window.
bool HistoryFeature::refreshRows(const QStringList &keys)
{
    const QPointer<HistoryFeature> self(this);
    const QList<PageRow> shown = rows();
    for (const PageRow &row : shown) {
        if (row.editor && keys.contains(row.key))
            row.editor->refresh();
    }
    return self;
}

/// Returns the first editor of one of `keys` on the page, or null.
QWidget *HistoryFeature::editorOf(const QStringList &keys) const
{
    for (const PageRow &row : rows()) {
        if (row.editor && keys.contains(row.key))
            return row.editor;
    }
    return nullptr;
}

/// Opens the page of the first key that has one, unless the shown page has one of the keys.
void HistoryFeature::openPageOf(const QStringList &keys)
{
    QString page;
    for (const QString &key : keys) {
        const QString name = pageOf(key);
        if (name == window()->currentClass() && !showsItems())
            return;
        if (page.isEmpty())
            page = name;
    }
    if (!page.isEmpty())
        window()->switchToView(page);
}

/// Returns the class with whose name `key` begins, as that of an entry on a custom page, or an
/// empty name.
QString HistoryFeature::pageOf(const QString &key) const
{
    const QAbstractItemModel *const classes = classList()->model();
    for (int row = 0; row < classes->rowCount(); ++row) {
        const QString name = classes->index(row, 0).data(sClassNameRole).toString();
        if (key.startsWith(name + QLatin1Char('.')))
            return name;
    }
    return QString();
}

} // namespace MtConf
