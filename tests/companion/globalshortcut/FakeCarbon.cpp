#include "FakeCarbon.h"

#include <QChar>

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

void FakeCarbon::choose(const MacLayout *chosen)
{
    layout = chosen;
    if (observer)
        observer(CFNotificationCenterGetDistributedCenter(), const_cast<void *>(observerData),
                 kTISNotifySelectedKeyboardInputSourceChanged, nullptr, nullptr);
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

// An input source is the variable with its layout, and the layout is the data of its property.
const CFStringRef kTISPropertyUnicodeKeyLayoutData = reinterpret_cast<CFStringRef>("layout");
const CFStringRef kTISNotifySelectedKeyboardInputSourceChanged = reinterpret_cast<CFStringRef>(
    "changed");

void CFRelease(CFTypeRef)
{
    --FakeCarbon::instance().inputSources;
}

const UInt8 *CFDataGetBytePtr(CFDataRef data)
{
    return reinterpret_cast<const UInt8 *>(data);
}

CFNotificationCenterRef CFNotificationCenterGetDistributedCenter()
{
    return reinterpret_cast<CFNotificationCenterRef>(&FakeCarbon::instance());
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef, const void *observer,
                                     CFNotificationCallback callback, CFStringRef name,
                                     const void *, CFNotificationSuspensionBehavior)
{
    if (name != kTISNotifySelectedKeyboardInputSourceChanged)
        return;
    FakeCarbon::instance().observer = callback;
    FakeCarbon::instance().observerData = observer;
}

void CFNotificationCenterRemoveEveryObserver(CFNotificationCenterRef, const void *observer)
{
    if (FakeCarbon::instance().observerData == observer)
        FakeCarbon::instance().observer = nullptr;
}

TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource()
{
    ++FakeCarbon::instance().inputSources;
    return reinterpret_cast<TISInputSourceRef>(&FakeCarbon::instance().layout);
}

TISInputSourceRef TISCopyCurrentASCIICapableKeyboardLayoutInputSource()
{
    ++FakeCarbon::instance().inputSources;
    return reinterpret_cast<TISInputSourceRef>(&FakeCarbon::instance().asciiLayout);
}

void *TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef property)
{
    if (property != kTISPropertyUnicodeKeyLayoutData)
        return nullptr;
    return const_cast<MacLayout *>(*reinterpret_cast<const MacLayout **>(source));
}

UInt8 LMGetKbdType()
{
    return 40;
}

OSStatus UCKeyTranslate(const UCKeyboardLayout *layout, UInt16 code, UInt16 action,
                        UInt32 modifiers, UInt32 keyboardType, OptionBits options, UInt32 *deadKeys,
                        UniCharCount size, UniCharCount *length, UniChar *text)
{
    if (action != kUCKeyActionDown || keyboardType != LMGetKbdType() || size < 2
        || options != kUCKeyTranslateNoDeadKeysMask || *deadKeys != 0)
        return eventNotHandledErr;
    const size_t level = (modifiers & (shiftKey >> 8) ? MacLayout::sShift : 0U)
                         | (modifiers & (optionKey >> 8) ? MacLayout::sOption : 0U)
                         | (modifiers & (cmdKey >> 8) ? MacLayout::sCommand : 0U);
    const uint character = reinterpret_cast<const MacLayout *>(layout)->keys.at(code).at(level);
    *length = 0;
    if (QChar::requiresSurrogates(character)) {
        text[(*length)++] = QChar::highSurrogate(character);
        text[(*length)++] = QChar::lowSurrogate(character);
    } else if (character != 0) {
        text[(*length)++] = static_cast<UniChar>(character);
    }
    return noErr;
}
