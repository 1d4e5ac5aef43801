#pragma once

#include "GlobalShortcutBackend_p.h"

/// For platforms without hotkeys, such as Wayland and offscreen: registers nothing.
class NullShortcutBackend : public GlobalShortcutBackend
{
public:
    bool isSupported() const override { return false; }
    QVector<KeyCombination> combinations(int) const override { return {}; }
    bool grab(const KeyCombination &) override { return false; }
    void ungrab(const KeyCombination &) override {}
};
