#pragma once

#include <QtGlobal>

#include <functional>

/// Calls a function as soon as there is an application object, and again for each further one that
/// a program creates after it has destroyed the last. For objects that need an event loop, in a
/// store that may exist before and after the application.
class ApplicationStart
{
public:
    /// Calls `start` at once if there is an application object. `start` is called only during the
    /// lifetime of this object, which `start` must not end.
    explicit ApplicationStart(std::function<void()> start);
    ~ApplicationStart();
    Q_DISABLE_COPY(ApplicationStart)

private:
    static void callAll();

    const std::function<void()> mStart;
};
