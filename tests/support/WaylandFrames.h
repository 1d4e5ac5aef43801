#pragma once

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <QtTest>

/// Counts the times a window may paint its next frame.
class FrameCounter final : public QObject
{
public:
    explicit FrameCounter(QWindow *window) { window->installEventFilter(this); }
    int frames() const { return mFrames; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        mFrames += event->type() == QEvent::UpdateRequest;
        return false;
    }

private:
    int mFrames = 0;
};

/// Waits until the compositor has shown what `window` has painted. Call it before the window is
/// hidden: if the compositor says so at that moment, two threads of Qt 6.4 destroy the same object
/// and the program aborts. Returns at once if the window is not shown.
inline void awaitFrames(const QWidget *window)
{
    const QPointer<QWindow> handle = window->windowHandle();
    const auto isShown = [&handle] { return handle && handle->isExposed(); };
    // The first frame may paint what has changed since the last one.
    constexpr int sFrames = 2;
    for (int i = 0; i < sFrames && isShown(); ++i) {
        const FrameCounter counter(handle);
        handle->requestUpdate();
        QTRY_VERIFY(counter.frames() > 0 || !isShown());
    }
}
