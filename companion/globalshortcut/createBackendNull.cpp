#include "NullShortcutBackend_p.h"

std::unique_ptr<GlobalShortcutBackend> GlobalShortcutBackend::create(Listener &)
{
    return std::make_unique<NullShortcutBackend>();
}
