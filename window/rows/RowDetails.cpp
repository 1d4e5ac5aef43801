#include "RowDetails_p.h"

#include "MaltoConfiguration/widgets/Captions_p.h"
#include "MaltoConfiguration/window/PageBuilder_p.h"
#include "RowWords_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

namespace MtConf {

namespace {

constexpr char sHelpClass[] = "RowHelp";

bool isLocked(const PageRow &row)
{
    return ConfStorage::instance()->isLocked(row.key);
}

} // namespace

RowDetails::RowDetails(ConfigurationWindow *window)
    : WindowFeature(window),
      mObserver(ConfStorage::instance(), [this](const ConfChange &change) { onChange(change); })
{
}

/// A value may be locked while its row is shown, by a file that is loaded later.
void RowDetails::onChange(const ConfChange &change)
{
    for (const PageRow &row : rows()) {
        if (row.key == change.key && row.editor && !mLocked.contains(row.key) && isLocked(row))
            showLock(row);
    }
}

void RowDetails::showLock(const PageRow &row)
{
    addText(row, "RowLocked", lockInWords());
    row.editor->setRowLocked(true);
    mLocked.insert(row.key);
}

void RowDetails::pageCleared()
{
    mLocked.clear();
}

void RowDetails::rowAdded(const PageRow &row)
{
    const QString help = row.item->helpText();
    if (!help.isEmpty())
        addText(row, sHelpClass, help);
    if (isLocked(row)) {
        showLock(row);
    }
    row.editor->installEventFilter(this);
    if (row.caption)
        row.caption->installEventFilter(this);
}

void RowDetails::addText(const PageRow &row, const char *styleClass, const QString &text)
{
    auto *label = new WrappedLabel(text, row.frame);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("class", QLatin1String(styleClass));
    label->setProperty("Key", row.key);
    builder()->addUnderCaption(row, label);
}

void RowDetails::retranslate()
{
    for (const PageRow &row : rows()) {
        const QList<QLabel *> labels = row.frame ? row.frame->findChildren<QLabel *>()
                                                 : QList<QLabel *>();
        for (QLabel *label : labels) {
            if (label->property("Key") != row.key)
                continue;
            const bool isHelp = label->property("class") == QLatin1String(sHelpClass);
            label->setText(isHelp ? row.item->helpText() : lockInWords());
        }
    }
    describe();
}

void RowDetails::pageShown()
{
    describe();
}

/// Adds the range and the default value to what screen readers say of the controls.
void RowDetails::describe()
{
    for (const PageRow &row : rows()) {
        const QList<QWidget *> controls = row.editor ? row.editor->findChildren<QWidget *>()
                                                     : QList<QWidget *>();
        for (QWidget *control : controls) {
            const QString known = control->accessibleDescription();
            QStringList texts{known, row.editor->rangeText(), defaultInWords(row)};
            texts.removeAll(QString());
            if (!known.isEmpty()) // one that the page describes
                control->setAccessibleDescription(texts.join(QStringLiteral(". ")));
        }
    }
}

bool RowDetails::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    for (const PageRow &row : rows()) {
        if (watched != row.editor && watched != row.caption)
            continue;
        // As rich text, so that long lines are wrapped.
        const QString text = toolTipOf(row).toHtmlEscaped().replace(QLatin1Char('\n'),
                                                                    QStringLiteral("<br>"));
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           QStringLiteral("<p>%1</p>").arg(text), row.editor);
        return true;
    }
    return false;
}

QString RowDetails::toolTipOf(const PageRow &row) const
{
    QStringList lines;
    if (row.editor)
        lines << row.editor->rangeText();
    lines << defaultInWords(row);
    if (manager() && origins())
        lines << originInWords(row, *origins(), *manager());
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

} // namespace MtConf
