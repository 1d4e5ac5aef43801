#pragma once

#include "GlobalShortcutBackend_p.h"

#include <Carbon/Carbon.h>

#include <map>
#include <utility>

/// Registers hotkeys with Carbon's hotkey functions, for macOS.
class MacShortcutBackend : public GlobalShortcutBackend
{
public:
    /// Installs an event handler for hotkeys in the application.
    explicit MacShortcutBackend(Listener &listener);
    ~MacShortcutBackend() override;
    Q_DISABLE_COPY(MacShortcutBackend)

    bool isSupported() const override;
    QVector<KeyCombination> combinations(int chord) const override;
    bool grab(const KeyCombination &combination) override;
    void ungrab(const KeyCombination &combination) override;

private:
    static OSStatus handleEvent(EventHandlerCallRef next, EventRef event, void *backend);

    Listener &mListener;
    EventHandlerUPP mHandlerFunction = nullptr;
    EventHandlerRef mHandler = nullptr;
    std::map<UInt32, EventHotKeyRef> mHotKeys; // by hotKeyNumber()
};
