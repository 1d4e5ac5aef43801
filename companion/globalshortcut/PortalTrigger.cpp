#include "PortalTrigger_p.h"

#include "Chord_p.h"
#include "X11KeySymbols_p.h"

#include <QVector>

#include <xkbcommon/xkbcommon.h>

namespace {

QString nameOf(xkb_keysym_t symbol)
{
    char name[64];
    return xkb_keysym_get_name(symbol, name, sizeof name) > 0 ? QString::fromLatin1(name)
                                                              : QString();
}

} // namespace

QString portalTrigger(int chord)
{
    // Of several keysyms the last one is that of the keyboard layouts: "Cyrillic_ef", not "U0444".
    const QVector<xkb_keysym_t> symbols = x11KeySymbols(chord);
    const QString key = symbols.isEmpty() ? QString() : nameOf(symbols.last());
    if (key.isEmpty())
        return {};
    QString trigger;
    const Qt::KeyboardModifiers modifiers = modifiersOf(chord);
    if (modifiers & Qt::ControlModifier)
        trigger += QStringLiteral("CTRL+");
    if (modifiers & Qt::AltModifier)
        trigger += QStringLiteral("ALT+");
    if (modifiers & Qt::ShiftModifier)
        trigger += QStringLiteral("SHIFT+");
    if (modifiers & Qt::MetaModifier)
        trigger += QStringLiteral("LOGO+");
    return trigger + key;
}
