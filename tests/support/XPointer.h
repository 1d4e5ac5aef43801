#pragma once

#include <QPoint>
#include <QtGlobal>

#include <xcb/xtest.h>

#include <cstdlib>

/// The mouse of the X server, controlled by another client. The server finds the window under the
/// pointer and handles grabs, enter and leave events as it does for a real mouse.
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

    /// Moves the pointer to `global`, in screen pixels.
    void moveTo(const QPoint &global) const { send(XCB_MOTION_NOTIFY, 0, global); }
    /// Presses the left button at the current position.
    void press() const { send(XCB_BUTTON_PRESS, sLeftButton); }
    /// Releases the left button.
    void release() const { send(XCB_BUTTON_RELEASE, sLeftButton); }
    /// Turns the wheel up by one notch at the current position.
    void turnWheelUp() const
    {
        send(XCB_BUTTON_PRESS, sWheelUp);
        send(XCB_BUTTON_RELEASE, sWheelUp);
    }
    /// Moves, presses and releases.
    void click(const QPoint &global) const
    {
        moveTo(global);
        press();
        release();
    }

private:
    static constexpr uint8_t sLeftButton = 1;
    static constexpr uint8_t sWheelUp = 4;

    /// Returns after the server has processed the event. The program receives it the next time it
    /// runs its event loop.
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
