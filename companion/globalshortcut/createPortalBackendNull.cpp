#include "createPortalBackend_p.h"

#include "NullShortcutBackend_p.h"

std::unique_ptr<GlobalShortcutBackend> createPortalBackend(
    GlobalShortcutBackend::Listener &listener)
{
    return std::make_unique<NullShortcutBackend>(listener);
}
