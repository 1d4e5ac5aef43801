#pragma once

#include "GlobalShortcutBackend_p.h"

/// For platforms without hotkeys, such as offscreen: no action is registered.
class NullShortcutBackend : public GlobalShortcutBackend
{
public:
    explicit NullShortcutBackend(Listener &listener) : mListener(listener) {}

    bool isSupported() const override { return false; }
    void add(const Action &action) override
    {
        mListener.resultChanged(action.id, {QxtGlobalShortcut::NoBackend, QString()});
    }
    void change(const Action &action) override { add(action); }
    void remove(const QString &) override {}
    void suspend(bool) override {}

private:
    Listener &mListener;
};
