#pragma once

#include "KeyGrabber_p.h"
#include "MacKeyboard_p.h"

#include <Carbon/Carbon.h>

#include <map>
#include <utility>

/// Registers hotkeys with Carbon's hotkey functions, for macOS.
class MacKeyGrabber : public KeyGrabber
{
public:
    /// Installs an event handler for hotkeys in the application.
    explicit MacKeyGrabber(Listener &listener);
    ~MacKeyGrabber() override;
    Q_DISABLE_COPY(MacKeyGrabber)

    bool isSupported() const override;
    QVector<KeyCombination> combinations(int chord) const override;
    bool grab(const KeyCombination &combination) override;
    void ungrab(const KeyCombination &combination) override;

private:
    static OSStatus handleEvent(EventHandlerCallRef next, EventRef event, void *grabber);

    Listener &mListener;
    MacKeyboard mKeyboard;
    EventHandlerUPP mHandlerFunction = nullptr;
    EventHandlerRef mHandler = nullptr;
    std::map<UInt32, EventHotKeyRef> mHotKeys; // by hotKeyNumber()
};
