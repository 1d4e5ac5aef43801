#include "createPortalBackend_p.h"

#include "NullShortcutBackend_p.h"
#include "PortalShortcutBackend_p.h"

std::unique_ptr<GlobalShortcutBackend> createPortalBackend(
    GlobalShortcutBackend::Listener &listener)
{
    const QDBusConnection bus = PortalShortcutBackend::connectToSessionBus();
    if (bus.isConnected())
        return std::make_unique<PortalShortcutBackend>(listener, bus);
    return std::make_unique<NullShortcutBackend>(listener);
}
