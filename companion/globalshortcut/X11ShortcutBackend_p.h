#pragma once

#include "GlobalShortcutBackend_p.h"
#include "X11Keyboard_p.h"

#include <xcb/xcb.h>

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Hotkeys of an X server: passive grabs on the root windows, over a connection of its own.
///
/// Its own, because the one of Qt ends with the application object and belongs to Qt in what it
/// asks of the server; and because only private headers lead to it.
class X11ShortcutBackend : public GlobalShortcutBackend
{
public:
    /// Connects to the display that DISPLAY names.
    explicit X11ShortcutBackend(Listener &listener);
    ~X11ShortcutBackend() override;
    Q_DISABLE_COPY(X11ShortcutBackend)

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

    Listener &mListener;
    xcb_connection_t *const mConnection;
    QObject mContext; // what is queued for it dies with the backend
    std::unique_ptr<QSocketNotifier> mNotifier;
    X11Keyboard mKeyboard;
    QVector<xcb_window_t> mRoots;
    int mFirstXkbEvent = -1;
    xcb_keycode_t mHeldKey = 0;
};
