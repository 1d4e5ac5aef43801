#include "HotkeyItems_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QPointer>
#include <QSet>
#include <QxtGlobalShortcut>

#include <utility>

namespace MtConf {

void registerHotkeys(const MtConfManage *manager, const QStringList &keys)
{
    if (!manager)
        return;
    const QSet<QString> wanted(keys.cbegin(), keys.cend());
    // Collected first: setShortcut() calls the host, which may destroy the manager.
    QList<std::pair<QString, QPointer<QxtGlobalShortcut>>> hotkeys;
    for (const ConfItem &item : manager->items) {
        const QVariant property = item.properties.value(QStringLiteral("Shortcut"));
        auto *const shortcut = property.value<QxtGlobalShortcut *>();
        if (shortcut && wanted.contains(item.getFullName()))
            hotkeys.append({item.getFullName(), shortcut});
    }
    for (const auto &[key, shortcut] : std::as_const(hotkeys)) {
        const ConfValue stored = ConfStorage::instance()->mConfValues.value(key);
        if (!shortcut || stored.mType != ConfValue::TyQKeySequence)
            continue;
        const auto sequence = stored.get<QKeySequence>();
        if (shortcut->shortcut() != sequence)
            shortcut->setShortcut(sequence);
    }
}

} // namespace MtConf
