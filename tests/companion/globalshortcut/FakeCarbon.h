#pragma once

#include "MacLayout_p.h"

#include <Carbon/Carbon.h>

#include <memory>
#include <vector>

/// The state of the fake Carbon API: what is registered, and how its functions respond.
class FakeCarbon
{
public:
    struct HotKey
    {
        UInt32 code;
        UInt32 modifiers;
        EventHotKeyID id;
    };

    static FakeCarbon &instance();

    /// Chooses another keyboard layout, null for an input method without one, and tells the
    /// observer.
    void choose(const MacLayout *layout);

    /// Sends a hotkey event to the installed handler; returns noErr if the handler accepts it.
    OSStatus press(EventHotKeyID id) const;
    /// Presses a registered hotkey; returns eventNotHandledErr if there is none.
    OSStatus press(UInt32 code, UInt32 modifiers) const;

    std::vector<std::unique_ptr<HotKey>> hotKeys; ///< currently registered
    int handlerFunctions = 0;                     ///< created and not yet disposed of
    EventHandlerUPP handler = nullptr;            ///< currently installed
    void *handlerData = nullptr;
    bool refusesHandlers = false;
    std::vector<HotKey> occupied; ///< registered by other programs; their ids do not matter

    const MacLayout *layout = nullptr;         ///< of the current input source; null: it has none
    const MacLayout *asciiLayout = nullptr;    ///< of the source that types ASCII
    int inputSources = 0;                      ///< copied and not yet released
    CFNotificationCallback observer = nullptr; ///< of the current input source
    const void *observerData = nullptr;
};
