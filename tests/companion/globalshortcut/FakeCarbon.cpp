#include "FakeCarbon.h"

#include <algorithm>

// An event contains only the pressed hotkey.
struct OpaqueEventRef
{
    EventHotKeyID id;
};

FakeCarbon &FakeCarbon::instance()
{
    static FakeCarbon sCarbon;
    return sCarbon;
}

OSStatus FakeCarbon::press(EventHotKeyID id) const
{
    OpaqueEventRef event{id};
    return handler ? handler(nullptr, &event, handlerData) : eventNotHandledErr;
}

OSStatus FakeCarbon::press(UInt32 code, UInt32 modifiers) const
{
    for (const auto &hotKey : hotKeys) {
        if (hotKey->code == code && hotKey->modifiers == modifiers)
            return press(hotKey->id);
    }
    return eventNotHandledErr;
}

EventTargetRef GetApplicationEventTarget()
{
    return reinterpret_cast<EventTargetRef>(&FakeCarbon::instance());
}

EventHandlerUPP NewEventHandlerUPP(EventHandlerProcPtr function)
{
    ++FakeCarbon::instance().handlerFunctions;
    return function;
}

void DisposeEventHandlerUPP(EventHandlerUPP)
{
    --FakeCarbon::instance().handlerFunctions;
}

OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount typeCount,
                             const EventTypeSpec *types, void *userData, EventHandlerRef *result)
{
    FakeCarbon &carbon = FakeCarbon::instance();
    if (carbon.refusesHandlers || carbon.handler || target != GetApplicationEventTarget()
        || typeCount != 1 || types->eventClass != kEventClassKeyboard
        || types->eventKind != kEventHotKeyPressed)
        return eventNotHandledErr;
    carbon.handler = handler;
    carbon.handlerData = userData;
    *result = reinterpret_cast<EventHandlerRef>(&carbon);
    return noErr;
}

OSStatus RemoveEventHandler(EventHandlerRef)
{
    FakeCarbon::instance().handler = nullptr;
    return noErr;
}

OSStatus RegisterEventHotKey(UInt32 code, UInt32 modifiers, EventHotKeyID id, EventTargetRef,
                             OptionBits options, EventHotKeyRef *result)
{
    FakeCarbon &carbon = FakeCarbon::instance();
    const auto isSame = [=](const FakeCarbon::HotKey &hotKey) {
        return hotKey.code == code && hotKey.modifiers == modifiers;
    };
    const auto isOurs = [&isSame](const auto &hotKey) { return isSame(*hotKey); };
    const bool taken = std::any_of(carbon.hotKeys.begin(), carbon.hotKeys.end(), isOurs)
                       || std::any_of(carbon.occupied.begin(), carbon.occupied.end(), isSame);
    if (taken && options == kEventHotKeyExclusive)
        return eventHotKeyExistsErr;
    carbon.hotKeys.push_back(
        std::make_unique<FakeCarbon::HotKey>(FakeCarbon::HotKey{code, modifiers, id}));
    *result = reinterpret_cast<EventHotKeyRef>(carbon.hotKeys.back().get());
    return noErr;
}

OSStatus UnregisterEventHotKey(EventHotKeyRef hotKey)
{
    auto &hotKeys = FakeCarbon::instance().hotKeys;
    const auto found = std::find_if(hotKeys.begin(), hotKeys.end(), [hotKey](const auto &known) {
        return reinterpret_cast<EventHotKeyRef>(known.get()) == hotKey;
    });
    if (found == hotKeys.end())
        return eventNotHandledErr;
    hotKeys.erase(found);
    return noErr;
}

OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType desiredType,
                           EventParamType *, ByteCount size, ByteCount *, void *data)
{
    if (name != kEventParamDirectObject || desiredType != typeEventHotKeyID
        || size != sizeof(EventHotKeyID))
        return eventNotHandledErr;
    *static_cast<EventHotKeyID *>(data) = event->id;
    return noErr;
}
