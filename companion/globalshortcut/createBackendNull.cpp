#include "NullShortcutBackend_p.h"

std::unique_ptr<GlobalShortcutBackend> GlobalShortcutBackend::create(Listener &listener)
{
    return std::make_unique<NullShortcutBackend>(listener);
}
