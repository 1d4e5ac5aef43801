#include "FaintPlaceholder_p.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QEvent>
#include <QVariant>
#include <QWidget>

namespace {

QColor halved(QColor color)
{
    color.setAlpha((color.alpha() + 1) / 2);
    return color;
}

} // namespace

FaintPlaceholder::FaintPlaceholder(QWidget *edit) : QObject(edit), mEdit(edit)
{
    edit->installEventFilter(this);
    fade();
}

bool FaintPlaceholder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        fade();
    return QObject::eventFilter(watched, event);
}

void FaintPlaceholder::fade()
{
    QPalette palette = mEdit->palette();
    bool faded = false;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = palette.color(group, QPalette::Text);
        const QColor placeholder = palette.color(group, QPalette::PlaceholderText);
        const QColor faint = group == QPalette::Disabled ? halved(text) : faintColor(text);
        // Qt 6 halves the opacity itself. Another colour is one of the host.
        if ((placeholder != text && placeholder != halved(text)) || placeholder == faint)
            continue;
        palette.setColor(group, QPalette::PlaceholderText, faint);
        faded = true;
    }
    if (faded)
        mEdit->setPalette(palette);
}

QColor FaintPlaceholder::faintColor(const QColor &text) const
{
    const QString name = mEdit->window()->property("PlaceholderColor").toString();
    const QColor color = QThemeCtrl::instance()->color(name);
    return color.isValid() ? color : halved(text);
}
