#include "MacKeyboard_p.h"

#include <QChar>

#include <iterator>
#include <utility>

namespace {

/// Keys whose character does not depend on the layout, or that are not on the main block.
bool isFixedKey(size_t code)
{
    return code == kVK_Return || code == kVK_Tab || code == kVK_Space || code == kVK_Delete
           || code == kVK_Escape
           || (code >= kVK_ANSI_KeypadDecimal && code <= kVK_ANSI_Keypad9 && code != kVK_JIS_Yen)
           || code > kVK_JIS_Underscore;
}

/// Returns the character that the key types, 0 if it types none or several.
uint characterOf(const UCKeyboardLayout *layout, size_t code, size_t level)
{
    const UInt32 modifiers = (level & MacLayout::sShift ? shiftKey : 0)
                             | (level & MacLayout::sOption ? optionKey : 0)
                             | (level & MacLayout::sCommand ? cmdKey : 0);
    UInt32 deadKeys = 0;
    UniChar text[4] = {};
    UniCharCount length = 0;
    // Without dead keys, so that a key for an accent has the accent as its character.
    const OSStatus status = UCKeyTranslate(
        layout, static_cast<UInt16>(code), kUCKeyActionDown, modifiers >> 8, LMGetKbdType(),
        kUCKeyTranslateNoDeadKeysMask, &deadKeys, std::size(text), &length, text);
    if (status != noErr)
        return 0;
    if (length == 2 && QChar::isHighSurrogate(text[0]) && QChar::isLowSurrogate(text[1]))
        return QChar::surrogateToUcs4(text[0], text[1]);
    return length == 1 ? text[0] : 0;
}

MacLayout readLayout(const UCKeyboardLayout *source)
{
    MacLayout layout;
    for (size_t code = 0; code < MacLayout::sKeys; ++code) {
        if (isFixedKey(code))
            continue;
        for (size_t level = 0; level < MacLayout::sLevels; ++level)
            layout.keys[code][level] = characterOf(source, code, level);
    }
    return layout;
}

/// Reads the layout of an input source, and releases the source. Returns false if it has none.
bool takeLayout(TISInputSourceRef source, MacLayout *layout)
{
    if (!source)
        return false;
    const auto data = static_cast<CFDataRef>(
        TISGetInputSourceProperty(source, kTISPropertyUnicodeKeyLayoutData));
    if (data)
        *layout = readLayout(reinterpret_cast<const UCKeyboardLayout *>(CFDataGetBytePtr(data)));
    CFRelease(source);
    return data != nullptr;
}

MacLayout currentLayout()
{
    MacLayout layout;
    // Input methods may have no layout of their own.
    if (!takeLayout(TISCopyCurrentKeyboardLayoutInputSource(), &layout)
        && !takeLayout(TISCopyCurrentASCIICapableKeyboardLayoutInputSource(), &layout))
        layout = macAnsiLayout();
    return layout;
}

} // namespace

MacKeyboard::MacKeyboard(std::function<void()> changed)
    : mChanged(std::move(changed)), mLayout(currentLayout())
{
    CFNotificationCenterAddObserver(CFNotificationCenterGetDistributedCenter(), this,
                                    &MacKeyboard::reload,
                                    kTISNotifySelectedKeyboardInputSourceChanged, nullptr,
                                    CFNotificationSuspensionBehaviorDeliverImmediately);
}

MacKeyboard::~MacKeyboard()
{
    CFNotificationCenterRemoveEveryObserver(CFNotificationCenterGetDistributedCenter(), this);
}

void MacKeyboard::reload(CFNotificationCenterRef, void *keyboard, CFStringRef, const void *,
                         CFDictionaryRef)
{
    auto *self = static_cast<MacKeyboard *>(keyboard);
    self->mLayout = currentLayout();
    self->mChanged();
}
