#include "NullShortcutBackend_p.h"
#include "X11ShortcutBackend_p.h"

#include <QGuiApplication>

std::unique_ptr<GlobalShortcutBackend> GlobalShortcutBackend::create(Listener &listener)
{
    // Under Wayland there may be an X server too, but it receives keys only while one of its
    // windows has the focus.
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        auto backend = std::make_unique<X11ShortcutBackend>(listener);
        if (backend->isSupported())
            return backend;
    }
    return std::make_unique<NullShortcutBackend>();
}
