#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

class QKeyEvent;
class QKeySequence;

/// Returns the key combination of `event` as a sequence of one chord: its key with the modifiers
/// Shift, Control, Alt, Meta and Keypad of the event. Empty if `event` is null or has no known key.
///
/// The key is the one that Qt reports, also for symbols typed with Shift. Exceptions: a modifier
/// key does not have its own modifier; Shift+Backtab becomes Shift+Tab, which can be registered as
/// a hotkey; the arrow keys of macOS lose the keypad modifier, which that system reports for them.
///
/// @since 0.1
ORVUTILS_EXPORT QKeySequence GetKeySequence(const QKeyEvent *event);
