#pragma once

#include <QByteArray>

#include <functional>
#include <map>

/// Stands between the test program and the operating system: the program defines the C library's
/// file functions itself, and definitions of the program come before those of any library, so Qt's
/// calls arrive here as well as ours.
namespace Faults {

enum class Kind { Open, Read, Write, Truncate, Sync, Rename, Unlink, Close };

/// One call that is about to be made, on a path under the watched folder.
struct Call
{
    Kind kind;
    QByteArray path;            ///< absolute, also for calls on descriptors
    QByteArray newPath;         ///< of Rename
    int flags = 0;              ///< of Open
    qint64 offset = 0;          ///< of Write, where in the file; of Truncate, the new length
    const char *data = nullptr; ///< of Write
    qint64 size = 0;            ///< of Read and Write, in bytes
};

/// What becomes of a call.
struct Answer
{
    enum Action { Proceed, Fail, Partly, PartlyThenDie, Skip };
    Action action = Proceed;
    int error = 0;   ///< of Fail: errno. A failing close closes all the same
    qint64 size = 0; ///< of Partly and PartlyThenDie: how many bytes are read or written
};

inline Answer proceed()
{
    return {};
}
inline Answer fail(int error)
{
    return {Answer::Fail, error, 0};
}
inline Answer partly(qint64 size)
{
    return {Answer::Partly, 0, size};
}
/// Writes `size` bytes and ends the process.
inline Answer partlyThenDie(qint64 size)
{
    return {Answer::PartlyThenDie, 0, size};
}
/// Reports success and does nothing.
inline Answer skip()
{
    return {Answer::Skip, 0, 0};
}

/// What a process exits with that died by injection.
constexpr int sDeathCode = 99;

using Hook = std::function<Answer(const Call &)>;

/// Lets everything through, but does not wait for the disk: for what is done thousands of times.
inline Answer withoutWaiting(const Call &call)
{
    return call.kind == Kind::Sync ? skip() : proceed();
}

/// Asks `hook` about every call of this thread on `folder` and what lies in it, while it lives.
/// Calls that the hook itself makes are not asked about.
class Scope
{
public:
    Scope(const QByteArray &folder, Hook hook);
    ~Scope();
    Scope(const Scope &) = delete;
    Scope &operator=(const Scope &) = delete;

private:
    friend struct Gate;

    QByteArray mFolder;
    Hook mHook;
    bool mBusy = false;
    std::map<int, QByteArray> mOpened; // path by descriptor
};

} // namespace Faults
