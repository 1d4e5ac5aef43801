#pragma once

#include <QPoint>
#include <QtGlobal>

#include <xcb/xtest.h>

#include <cstdlib>

/// The mouse of the X server, moved and pressed from another client: what the server makes of it
/// (the windows hit, grabs, entering and leaving) reaches the program as it does from a hand.
class XPointer
{
public:
    XPointer() : mConnection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(mConnection))
            qFatal("no X server");
        mRoot = xcb_setup_roots_iterator(xcb_get_setup(mConnection)).data->root;
    }
    ~XPointer() { xcb_disconnect(mConnection); }
    Q_DISABLE_COPY(XPointer)

    /// Moves to `global`, in pixels of the screen.
    void moveTo(const QPoint &global) const { send(XCB_MOTION_NOTIFY, 0, global); }
    /// Presses the left button where the pointer is.
    void press() const { send(XCB_BUTTON_PRESS, leftButton); }
    /// Releases it.
    void release() const { send(XCB_BUTTON_RELEASE, leftButton); }
    /// Moves, presses and releases.
    void click(const QPoint &global) const
    {
        moveTo(global);
        press();
        release();
    }

private:
    static constexpr uint8_t leftButton = 1;

    /// The events have reached the server when this returns, and the program when it has run its
    /// event loop.
    void send(uint8_t type, uint8_t detail, const QPoint &global = QPoint()) const
    {
        xcb_test_fake_input(mConnection, type, detail, XCB_CURRENT_TIME, mRoot,
                            static_cast<int16_t>(global.x()), static_cast<int16_t>(global.y()), 0);
        std::free(
            xcb_get_input_focus_reply(mConnection, xcb_get_input_focus(mConnection), nullptr));
    }

    xcb_connection_t *const mConnection;
    xcb_window_t mRoot = XCB_NONE;
};
