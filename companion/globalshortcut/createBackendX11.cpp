#include "KeyGrabBackend_p.h"
#include "NullShortcutBackend_p.h"
#include "X11KeyGrabber_p.h"
#include "createPortalBackend_p.h"

#include <QGuiApplication>

std::unique_ptr<GlobalShortcutBackend> GlobalShortcutBackend::create(Listener &listener)
{
    // On Wayland there may be an X server too, but it receives keys only while one of its windows
    // has the focus.
    const QString platform = QGuiApplication::platformName();
    if (platform.startsWith(QLatin1String("wayland")))
        return createPortalBackend(listener);
    if (platform == QLatin1String("xcb")) {
        auto backend = std::make_unique<KeyGrabBackend>(listener, [](KeyGrabber::Listener &keys) {
            return std::make_unique<X11KeyGrabber>(keys);
        });
        if (backend->isSupported())
            return backend;
    }
    return std::make_unique<NullShortcutBackend>(listener);
}
