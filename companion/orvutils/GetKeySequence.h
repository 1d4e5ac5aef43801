#pragma once

/// @file

#include <OrvUtils/orvutils_export.h>

class QKeyEvent;
class QKeySequence;

/// The key combination of an event as a sequence of one chord: its key with Shift, Control, Alt,
/// Meta and the keypad mark as they were held; a modifier key is not held with itself. The key is
/// the one that Qt reports, also for symbols typed with Shift; only Shift with Backtab becomes
/// Shift with Tab, which is what is on the keyboard and what can be registered as a hotkey. Empty
/// for null and for an event without a known key.
ORVUTILS_EXPORT QKeySequence GetKeySequence(const QKeyEvent *event);
