#pragma once

#include <Carbon/Carbon.h>

#include <memory>
#include <vector>

/// The system behind the stand-in for Carbon: what has been registered with it, and what it will
/// answer.
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

    /// Sends the event of a hotkey to the installed handlers; noErr when one of them took it.
    OSStatus press(EventHotKeyID id) const;
    /// Presses the registered hotkey; eventNotHandledErr when there is none.
    OSStatus press(UInt32 code, UInt32 modifiers) const;

    std::vector<std::unique_ptr<HotKey>> hotKeys; ///< registered now
    int handlerFunctions = 0;                     ///< made and not disposed of
    EventHandlerUPP handler = nullptr;            ///< installed now
    void *handlerData = nullptr;
    bool refusesHandlers = false;
    std::vector<HotKey> occupied; ///< registered by other programs; ids are of no account
};
