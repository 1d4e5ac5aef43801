#pragma once

#include <QByteArray>

#include <functional>
#include <map>

/// Intercepts the file system calls of the test program: the program defines the C library's file
/// functions itself, and definitions of the program take precedence over those of all libraries, so
/// calls by Qt are intercepted too.
namespace Faults {

enum class Kind { Open, Read, Write, Truncate, Sync, Rename, Unlink, Close };

/// A call on a path in the watched folder, before it is made.
struct Call
{
    Kind kind;
    QByteArray path;            ///< absolute, even for calls on descriptors
    QByteArray newPath;         ///< for Rename
    int flags = 0;              ///< for Open
    qint64 offset = 0;          ///< for Write the position in the file, for Truncate the new length
    const char *data = nullptr; ///< for Write
    qint64 size = 0;            ///< for Read and Write, in bytes
};

/// How a call is handled.
struct Answer
{
    enum Action { Proceed, Fail, Partly, PartlyThenDie, Skip, Fill };
    Action action = Proceed;
    int error = 0;   ///< for Fail: errno. A close that fails still closes the descriptor
    qint64 size = 0; ///< for Partly and PartlyThenDie: the number of bytes to read or write
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
/// Writes `size` bytes and exits the process.
inline Answer partlyThenDie(qint64 size)
{
    return {Answer::PartlyThenDie, 0, size};
}
/// Reports success without making the call.
inline Answer skip()
{
    return {Answer::Skip, 0, 0};
}

/// Reads as many bytes as are asked for, whatever the file contains.
inline Answer fill()
{
    return {Answer::Fill, 0, 0};
}

/// Exit code of a process that the injection has ended.
constexpr int sDeathCode = 99;

using Hook = std::function<Answer(const Call &)>;

/// A hook that makes all calls except syncs: for tests with thousands of saves.
inline Answer withoutWaiting(const Call &call)
{
    return call.kind == Kind::Sync ? skip() : proceed();
}

/// During its lifetime, calls `hook` for every call of this thread on `folder` and its files,
/// except for calls that the hook itself makes.
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
