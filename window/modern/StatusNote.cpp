#include "StatusNote_p.h"

#include <OrvUtils/QThemeCtrl.h>

namespace MtConf {

StatusNote::StatusNote(ConfigItemWidget *editor, QWidget *parent) : QLabel(parent), mEditor(editor)
{
    setProperty("class", QStringLiteral("RowWarning"));
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(this, &QLabel::linkActivated, this, &StatusNote::act);
    editor->onStatusChanged = [this] { refresh(); };
    refresh();
}

StatusNote::~StatusNote()
{
    if (mEditor)
        mEditor->onStatusChanged = nullptr;
}

void StatusNote::refresh()
{
    const ConfigItemWidget::Status status = mEditor ? mEditor->status()
                                                    : ConfigItemWidget::Status();
    if (status.icon)
        status.icon->hide();
    QString html = status.text.toHtmlEscaped();
    if (status.action) {
        // A style sheet does not colour links.
        const QColor color = QThemeCtrl::instance()->color(QStringLiteral("ModernAccent"));
        html += QStringLiteral(" <a href=\"#\" style=\"color: %1\">%2</a>")
                    .arg(color.name(), status.actionText.toHtmlEscaped());
    }
    setText(html);
    setFocusPolicy(status.action ? Qt::StrongFocus : Qt::NoFocus);
    setAccessibleName(status.action ? status.text + QLatin1Char(' ') + status.actionText
                                    : status.text);
    setVisible(!status.text.isEmpty());
}

void StatusNote::act()
{
    const ConfigItemWidget::Status status = mEditor ? mEditor->status()
                                                    : ConfigItemWidget::Status();
    if (status.action)
        status.action(); // host code may delete this note
}

} // namespace MtConf
