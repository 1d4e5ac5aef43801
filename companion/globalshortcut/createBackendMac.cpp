#include "KeyGrabBackend_p.h"
#include "MacKeyGrabber_p.h"

std::unique_ptr<GlobalShortcutBackend> GlobalShortcutBackend::create(Listener &listener)
{
    return std::make_unique<KeyGrabBackend>(
        listener, [](KeyGrabber::Listener &keys) { return std::make_unique<MacKeyGrabber>(keys); });
}
