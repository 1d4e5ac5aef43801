#include "DependencyNote_p.h"

#include "MaltoConfiguration/window/rows/ValueInWords_p.h"

#include <MaltoConfiguration/manage/ConfItem.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QEvent>

#include <utility>

namespace MtConf {

DependencyNote::DependencyNote(ConfItem *item, ConfigItemWidget *editor, Find find, QWidget *parent)
    : QLabel(parent), mItem(item), mEditor(editor), mFind(std::move(find))
{
    setProperty("class", QStringLiteral("RowReason"));
    setTextFormat(Qt::PlainText);
    editor->installEventFilter(this);
    hide();
}

bool DependencyNote::eventFilter(QObject *watched, QEvent *event)
{
    // The type first: comparing a pointer to a widget that is being deleted casts it.
    if (event->type() == QEvent::EnabledChange && watched == mEditor)
        refresh();
    return QLabel::eventFilter(watched, event);
}

void DependencyNote::refresh()
{
    const bool isNeeded = mEditor && !mEditor->isEnabled();
    setText(isNeeded ? reason() : QString());
    setVisible(!text().isEmpty());
}

/// Returns what is missing; empty if nothing is.
QString DependencyNote::reason() const
{
    const ConfStorage *const store = ConfStorage::instance();
    for (auto need = mItem->dependencies.cbegin(); need != mItem->dependencies.cend(); ++need) {
        if (store->mConfValues.value(need.key()).toJsonValue() == *need)
            continue;
        const ConfItem *const other = mFind(need.key());
        if (!other)
            continue;
        const QString name = QObject::tr(other->displayText);
        if (need->isBool())
            return (need->toBool() ? tr("Needs “%1”") : tr("Not with “%1”")).arg(name);
        return tr("Needs “%1”: %2").arg(name, valueInWords(*other, *need));
    }
    return QString();
}

} // namespace MtConf
