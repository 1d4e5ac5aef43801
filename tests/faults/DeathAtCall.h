#pragma once

#include "FaultInjection.h"
#include "SavedSettings.h"
#include "support/LogCapture.h"

#include <cerrno>
#include <sys/wait.h>
#include <unistd.h>

/// Runs `work` in a child process that is killed at its `nth` call (from 0) in the folder of the
/// settings: before the call, or with `halfway` in the middle of a write. Returns whether the child
/// was killed, as opposed to finishing its work.
template<class Work> bool diesAtCall(int nth, bool halfway, Work work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const LogCapture log;
        int count = 0;
        const Faults::Scope faults(SavedSettings::folder(), [&](const Faults::Call &call) {
            if (count++ != nth)
                return Faults::withoutWaiting(call);
            if (halfway && call.kind == Faults::Kind::Write)
                return Faults::partlyThenDie(call.size / 2);
            ::_exit(Faults::sDeathCode);
        });
        work();
        ::_exit(0);
    }
    int status = 0;
    while (::waitpid(child, &status, 0) == -1 && errno == EINTR) {}
    if (!WIFEXITED(status)
        || (WEXITSTATUS(status) != 0 && WEXITSTATUS(status) != Faults::sDeathCode))
        qFatal("the process died by itself: %d", status);
    return WEXITSTATUS(status) == Faults::sDeathCode;
}
