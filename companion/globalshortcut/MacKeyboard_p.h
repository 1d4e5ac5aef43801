#pragma once

#include "MacLayout_p.h"

#include <Carbon/Carbon.h>

#include <functional>

/// The current keyboard layout of macOS. Only for the main thread, as the functions of the system.
class MacKeyboard
{
public:
    /// Reads the layout. From then on `changed` is called after the user has chosen another one; it
    /// must not delete the object.
    explicit MacKeyboard(std::function<void()> changed);
    ~MacKeyboard();
    Q_DISABLE_COPY(MacKeyboard)

    /// Returns the layout; that of the American keyboard if the system reports none.
    const MacLayout &layout() const { return mLayout; }

private:
    static void reload(CFNotificationCenterRef center, void *keyboard, CFStringRef name,
                       const void *object, CFDictionaryRef info);

    const std::function<void()> mChanged;
    MacLayout mLayout;
};
