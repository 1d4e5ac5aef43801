#include "MacKeyGrabber_p.h"

#include "MacKeys_p.h"

#include <QCoreApplication>

namespace {

/// "MtHk": distinguishes our hotkeys from those that other code of the host registers.
constexpr OSType sHotKeySignature = 0x4d74486b;

/// Key code and modifiers fit into 16 bits each, so the number of a hotkey identifies both.
UInt32 hotKeyNumber(const KeyCombination &combination)
{
    return combination.key << 16 | combination.modifiers;
}

} // namespace

MacKeyGrabber::MacKeyGrabber(Listener &listener)
    : mListener(listener), mKeyboard([this] { mListener.keyboardChanged(); }),
      mHandlerFunction(NewEventHandlerUPP(&MacKeyGrabber::handleEvent))
{
    const EventTypeSpec pressed{kEventClassKeyboard, kEventHotKeyPressed};
    if (InstallEventHandler(GetApplicationEventTarget(), mHandlerFunction, 1, &pressed, this,
                            &mHandler)
        != noErr)
        mHandler = nullptr;
}

MacKeyGrabber::~MacKeyGrabber()
{
    for (const auto &[number, hotKey] : mHotKeys)
        UnregisterEventHotKey(hotKey);
    if (mHandler)
        RemoveEventHandler(mHandler);
    DisposeEventHandlerUPP(mHandlerFunction);
}

bool MacKeyGrabber::isSupported() const
{
    return mHandler != nullptr;
}

QVector<KeyCombination> MacKeyGrabber::combinations(int chord) const
{
    const bool asOnKeys = QCoreApplication::testAttribute(Qt::AA_MacDontSwapCtrlAndMeta);
    return macKeyCombinations(chord,
                              asOnKeys ? MacModifierNames::AsOnKeys : MacModifierNames::Swapped,
                              mKeyboard.layout());
}

bool MacKeyGrabber::grab(const KeyCombination &combination)
{
    if (!isSupported())
        return false;
    const EventHotKeyID id{sHotKeySignature, hotKeyNumber(combination)};
    EventHotKeyRef hotKey = nullptr;
    const OSStatus status = RegisterEventHotKey(combination.key, combination.modifiers, id,
                                                GetApplicationEventTarget(), kEventHotKeyExclusive,
                                                &hotKey);
    if (status != noErr || !hotKey)
        return false;
    mHotKeys[id.id] = hotKey;
    return true;
}

void MacKeyGrabber::ungrab(const KeyCombination &combination)
{
    const auto found = mHotKeys.find(hotKeyNumber(combination));
    if (found == mHotKeys.end())
        return;
    UnregisterEventHotKey(found->second);
    mHotKeys.erase(found);
}

OSStatus MacKeyGrabber::handleEvent(EventHandlerCallRef, EventRef event, void *grabber)
{
    EventHotKeyID id{};
    const OSStatus status = GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID,
                                              nullptr, sizeof(id), nullptr, &id);
    if (status != noErr || id.signature != sHotKeySignature)
        return eventNotHandledErr;
    static_cast<MacKeyGrabber *>(grabber)->mListener.keyPressed(id.id >> 16, id.id & 0xffff);
    return noErr;
}
