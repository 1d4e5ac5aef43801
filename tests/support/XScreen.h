#pragma once

#include <QImage>
#include <QRect>
#include <QScopedPointer>

#include <xcb/xcb.h>

/// Returns what the X server shows in `area`, which is in screen pixels and within the screen. Null
/// if the server does not tell.
inline QImage pictureOfScreen(const QRect &area)
{
    xcb_connection_t *const server = xcb_connect(nullptr, nullptr);
    QImage picture;
    if (!xcb_connection_has_error(server)) {
        const auto width = static_cast<uint16_t>(area.width());
        const auto height = static_cast<uint16_t>(area.height());
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
        const auto request = xcb_get_image(server, XCB_IMAGE_FORMAT_Z_PIXMAP, root,
                                           static_cast<int16_t>(area.x()),
                                           static_cast<int16_t>(area.y()), width, height, ~0U);
        const QScopedPointer<xcb_get_image_reply_t, QScopedPointerPodDeleter> reply(
            xcb_get_image_reply(server, request, nullptr));
        if (reply) // a copy: the reply owns its pixels
            picture = QImage(xcb_get_image_data(reply.get()), width, height, QImage::Format_RGB32)
                          .copy();
    }
    xcb_disconnect(server);
    return picture;
}
