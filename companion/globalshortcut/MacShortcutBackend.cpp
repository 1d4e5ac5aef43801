#include "MacShortcutBackend_p.h"

#include "MacKeys_p.h"

// Marks our hotkeys among those that other code of the host registers: "MtHk".
static constexpr OSType hotKeySignature = 0x4d74486b;

// Key codes and modifiers both fit into 16 bits, so the number says all that an event has to.
static UInt32 hotKeyNumber(const KeyCombination &combination)
{
    return combination.key << 16 | combination.modifiers;
}

MacShortcutBackend::MacShortcutBackend(Listener &listener)
    : mListener(listener), mHandlerFunction(NewEventHandlerUPP(&MacShortcutBackend::handleEvent))
{
    const EventTypeSpec pressed{kEventClassKeyboard, kEventHotKeyPressed};
    if (InstallEventHandler(GetApplicationEventTarget(), mHandlerFunction, 1, &pressed, this,
                            &mHandler)
        != noErr)
        mHandler = nullptr;
}

MacShortcutBackend::~MacShortcutBackend()
{
    for (const auto &[number, hotKey] : mHotKeys)
        UnregisterEventHotKey(hotKey);
    if (mHandler)
        RemoveEventHandler(mHandler);
    DisposeEventHandlerUPP(mHandlerFunction);
}

bool MacShortcutBackend::isSupported() const
{
    return mHandler != nullptr;
}

QVector<KeyCombination> MacShortcutBackend::combinations(int chord) const
{
    return macKeyCombinations(chord);
}

bool MacShortcutBackend::grab(const KeyCombination &combination)
{
    if (!isSupported())
        return false;
    const EventHotKeyID id{hotKeySignature, hotKeyNumber(combination)};
    EventHotKeyRef hotKey = nullptr;
    const OSStatus status = RegisterEventHotKey(combination.key, combination.modifiers, id,
                                                GetApplicationEventTarget(), kEventHotKeyExclusive,
                                                &hotKey);
    if (status != noErr || !hotKey)
        return false;
    mHotKeys[id.id] = hotKey;
    return true;
}

void MacShortcutBackend::ungrab(const KeyCombination &combination)
{
    const auto found = mHotKeys.find(hotKeyNumber(combination));
    if (found == mHotKeys.end())
        return;
    UnregisterEventHotKey(found->second);
    mHotKeys.erase(found);
}

OSStatus MacShortcutBackend::handleEvent(EventHandlerCallRef, EventRef event, void *backend)
{
    EventHotKeyID id{};
    const OSStatus status = GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID,
                                              nullptr, sizeof(id), nullptr, &id);
    if (status != noErr || id.signature != hotKeySignature)
        return eventNotHandledErr;
    static_cast<MacShortcutBackend *>(backend)->mListener.keyPressed(id.id >> 16, id.id & 0xffff);
    return noErr;
}
