#pragma once

#include "FaultInjection.h"

#include <QMetaType>

#include <cerrno>

/// A failing call: the `nth` call (from 0) of `kind` on a path that ends with `suffix`; with
/// `lasting`, all such calls after it fail too.
struct OneFault
{
    Faults::Kind kind = Faults::Kind::Open;
    QByteArray suffix;
    int nth = 0;
    Faults::Answer answer;
    bool lasting = true;

    /// Returns a hook that injects this fault.
    Faults::Hook hook() const
    {
        return [fault = *this, count = 0](const Faults::Call &call) mutable {
            if (call.kind != fault.kind || !call.path.endsWith(fault.suffix))
                return Faults::proceed();
            const int index = count++;
            const bool hit = fault.lasting ? index >= fault.nth : index == fault.nth;
            return hit ? fault.answer : Faults::proceed();
        };
    }
};
Q_DECLARE_METATYPE(OneFault)

/// Returns a lasting fault with this errno.
inline OneFault failing(Faults::Kind kind, const char *suffix, int nth, int error)
{
    return {kind, suffix, nth, Faults::fail(error), true};
}

/// Returns the fault of a call that is interrupted once by a signal.
inline OneFault interrupted(Faults::Kind kind, const char *suffix, int nth = 0)
{
    return {kind, suffix, nth, Faults::fail(EINTR), false};
}

/// Returns a hook for a disk with space for `bytes` more bytes. Removing files frees no space.
inline Faults::Hook fullDisk(qint64 bytes)
{
    return [left = bytes](const Faults::Call &call) mutable {
        if (call.kind != Faults::Kind::Write)
            return Faults::withoutWaiting(call);
        if (left == 0)
            return Faults::fail(ENOSPC);
        const qint64 size = std::min(left, call.size);
        left -= size;
        return Faults::partly(size);
    };
}
