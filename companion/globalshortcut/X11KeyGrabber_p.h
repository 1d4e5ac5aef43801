#pragma once

#include "KeyGrabber_p.h"
#include "X11Keyboard_p.h"

#include <xcb/xcb.h>

#include <QObject>
#include <QTimer>

#include <memory>

class QSocketNotifier;

/// Registers hotkeys as passive grabs on the root windows of an X server, with a separate
/// connection.
///
/// Qt's connection is not used because it ends with the application object, because its settings
/// belong to Qt and because it is accessible with private headers only.
class X11KeyGrabber : public KeyGrabber
{
public:
    /// Connects to the display of the environment variable DISPLAY.
    explicit X11KeyGrabber(Listener &listener);
    ~X11KeyGrabber() override;
    Q_DISABLE_COPY(X11KeyGrabber)

    bool isSupported() const override;
    QVector<KeyCombination> combinations(int chord) const override;
    bool grab(const KeyCombination &combination) override;
    void ungrab(const KeyCombination &combination) override;

private:
    void startXkb();
    void readEvents();
    bool handleEvent(const xcb_generic_event_t &event);
    void handleKeyPress(const xcb_key_press_event_t &event);
    void readEventsLater();
    bool isDown(quint32 key) const;
    void forgetReleasedKeys();

    Listener &mListener;
    xcb_connection_t *const mConnection;
    QObject mContext; // its queued calls are dropped with the backend
    std::unique_ptr<QSocketNotifier> mNotifier;
    X11Keyboard mKeyboard;
    QVector<xcb_window_t> mRoots;
    int mFirstXkbEvent = -1;
    xcb_keycode_t mHeldKey = 0;
    QVector<quint32> mKeysDownBefore; // pressed before they were grabbed
    QTimer mReleaseTimer;
};
