#include "FaintPlaceholder_p.h"

#include <QEvent>
#include <QWidget>

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
        QColor color = palette.color(group, QPalette::Text);
        if (palette.color(group, QPalette::PlaceholderText) != color)
            continue;
        color.setAlphaF(color.alphaF() / 2);
        palette.setColor(group, QPalette::PlaceholderText, color);
        faded = true;
    }
    if (faded)
        mEdit->setPalette(palette);
}
