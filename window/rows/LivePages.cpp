#include "LivePages_p.h"

#include "MaltoConfiguration/widgets/HostCode_p.h"
#include "MaltoConfiguration/window/PageBuilder_p.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QAccessible>
#include <QApplication>

#include <utility>

namespace MtConf {

LivePages::LivePages(ConfigurationWindow *window)
    : WindowFeature(window),
      mObserver(ConfStorage::instance(), [this](const ConfChange &change) { onChange(change); })
{
    connect(qApp, &QApplication::focusChanged, this, &LivePages::refreshLeft);
}

void LivePages::pageCleared()
{
    mNotices.clear();
}

void LivePages::retranslate()
{
    for (const QPointer<QLabel> &notice : std::as_const(mNotices)) {
        if (notice)
            notice->setText(noticeText());
    }
}

QString LivePages::noticeText()
{
    return tr("Changed elsewhere meanwhile. What you type replaces it.");
}

void LivePages::onChange(const ConfChange &change)
{
    // What an editor stores it shows already, and the user may still be typing.
    for (const PageRow &row : rows()) {
        if (row.editor && row.key == change.key && row.editor->isWriting()
            && change.cause == ConfChange::Cause::Edited)
            return;
    }
    mChanged.insert(change.key);
    if (std::exchange(mIsQueued, true))
        return;
    // Not now: callbacks of the key are called later, and many changes may follow.
    QMetaObject::invokeMethod(this, &LivePages::refreshChanged, Qt::QueuedConnection);
}

void LivePages::refreshChanged()
{
    mIsQueued = false;
    const QSet<QString> changed = std::exchange(mChanged, {});
    const HostCodeScope scope(hostCode());
    const QPointer<LivePages> self(this);
    const QList<PageRow> shown = rows();
    for (const PageRow &row : shown) {
        if (!self)
            return;
        if (!row.editor || !changed.contains(row.key))
            continue;
        if (row.editor->isBeingEdited())
            showNotice(row);
        else
            refresh(row);
    }
}

/// Refreshes the rows whose fields are not being edited any more.
void LivePages::refreshLeft()
{
    if (mNotices.isEmpty())
        return;
    const HostCodeScope scope(hostCode());
    const QPointer<LivePages> self(this);
    const QList<PageRow> shown = rows();
    for (const PageRow &row : shown) {
        if (self && row.editor && mNotices.contains(row.key) && !row.editor->isBeingEdited())
            refresh(row);
    }
}

void LivePages::refresh(const PageRow &row)
{
    delete mNotices.take(row.key);
    row.editor->refresh();
}

void LivePages::showNotice(const PageRow &row)
{
    QPointer<QLabel> &notice = mNotices[row.key];
    if (notice)
        return;
    notice = new QLabel(noticeText(), row.frame);
    notice->setProperty("class", QStringLiteral("RowNotice"));
    notice->setWordWrap(true);
    builder()->addUnderCaption(row, notice);
    notice->show();
    QAccessibleEvent event(notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace MtConf
