#pragma once

#include "KeyGrabber_p.h"

#include <map>
#include <set>

/// A keyboard on which this program and others register combinations. `GlobalShortcutBackend` uses
/// it in programs that link FakeKeyboard.cpp.
class FakeKeyboard
{
public:
    using Layout = std::map<int, QVector<KeyCombination>>; ///< by chord

    static FakeKeyboard &instance();

    /// Returns to an empty layout without grabs of other programs.
    void reset();
    /// Replaces the layout and reports it.
    void setLayout(const Layout &layout);
    /// Ends the connection to the system and reports it.
    void disconnect();
    /// Presses a combination. Nothing happens unless this program has registered it.
    void press(const KeyCombination &combination);

    Layout layout;
    std::set<KeyCombination> others;  ///< registered by other programs
    std::set<KeyCombination> grabbed; ///< registered by this program
    int grabs = 0;                    ///< number of successful and refused registrations
    int lookups = 0;                  ///< number of chords that were looked up in the layout
    bool isConnected = true;
    bool endsInGrab = false; ///< whether the connection ends when a combination is registered
    KeyGrabber::Listener *listener = nullptr; ///< null without a backend
};
