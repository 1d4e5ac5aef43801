#include "FaultInjection.h"

#include <QFile>

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace Faults {

namespace {

thread_local Scope *tScope = nullptr;

/// Returns the definition that would be called without this file.
template<class Function> Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

QByteArray absolute(const char *path)
{
    if (path[0] == '/')
        return path;
    char folder[4096];
    if (!::getcwd(folder, sizeof folder))
        return path;
    return QByteArray(folder) + '/' + path;
}

} // namespace

/// Passes calls to the hook of the current scope.
struct Gate
{
    static bool watches(const QByteArray &path)
    {
        const QByteArray &folder = tScope->mFolder;
        return path == folder || path.startsWith(folder + '/');
    }

    static Answer ask(const Call &call)
    {
        tScope->mBusy = true;
        const Answer answer = tScope->mHook(call);
        tScope->mBusy = false;
        return answer;
    }

    static bool isOpen() { return tScope && !tScope->mBusy; }

    /// Handles a call on a path; `proceed` makes the real call.
    template<class Proceed> static int onPath(Call call, Proceed proceed)
    {
        if (!isOpen() || !watches(call.path))
            return proceed();
        const Answer answer = ask(call);
        if (answer.action == Answer::Skip)
            return 0;
        if (answer.action == Answer::Fail) {
            errno = answer.error;
            return -1;
        }
        const int result = proceed();
        if (call.kind == Kind::Open && result != -1)
            tScope->mOpened[result] = call.path;
        return result;
    }

    /// Handles a call on a descriptor; `proceed` makes the real call with that number of bytes.
    template<class Proceed> static ssize_t onDescriptor(int descriptor, Call call, Proceed proceed)
    {
        if (!isOpen() || !tScope->mOpened.count(descriptor))
            return proceed(call.size);
        call.path = tScope->mOpened[descriptor];
        const Answer answer = ask(call);
        if (call.kind == Kind::Close) {
            tScope->mOpened.erase(descriptor);
            proceed(0);
        }
        switch (answer.action) {
        case Answer::Fail: errno = answer.error; return -1;
        case Answer::Partly: return proceed(std::min(answer.size, call.size));
        case Answer::PartlyThenDie: proceed(std::min(answer.size, call.size)); ::_exit(sDeathCode);
        case Answer::Skip: return 0;
        case Answer::Fill: return static_cast<ssize_t>(call.size);
        case Answer::Proceed: break;
        }
        return call.kind == Kind::Close ? 0 : proceed(call.size);
    }
};

Scope::Scope(const QByteArray &folder, Hook hook) : mFolder(folder), mHook(std::move(hook))
{
    tScope = this;
}

Scope::~Scope()
{
    tScope = nullptr;
}

namespace {

int openAt(const char *name, int folder, const char *path, int flags, mode_t mode)
{
    using Function = int (*)(int, const char *, int, ...);
    const Function real = next<Function>(name);
    Call call{Kind::Open, Gate::isOpen() ? absolute(path) : QByteArray(), {}, flags};
    return Gate::onPath(call, [&] { return real(folder, path, flags, mode); });
}

int openPath(const char *name, const char *path, int flags, mode_t mode)
{
    using Function = int (*)(const char *, int, ...);
    const Function real = next<Function>(name);
    Call call{Kind::Open, Gate::isOpen() ? absolute(path) : QByteArray(), {}, flags};
    return Gate::onPath(call, [&] { return real(path, flags, mode); });
}

int truncateTo(const char *name, int descriptor, off_t length)
{
    using Function = int (*)(int, off_t);
    const Function real = next<Function>(name);
    Call call{Kind::Truncate, {}, {}, 0, length};
    return static_cast<int>(Gate::onDescriptor(
        descriptor, call, [&](qint64) -> ssize_t { return real(descriptor, length); }));
}

ssize_t writeAt(const char *name, int descriptor, const void *data, size_t size, off_t offset)
{
    using Function = ssize_t (*)(int, const void *, size_t, off_t);
    const Function real = next<Function>(name);
    Call call{Kind::Write, {}, {}, 0, offset, static_cast<const char *>(data), qint64(size)};
    return Gate::onDescriptor(descriptor, call, [&](qint64 count) {
        return real(descriptor, data, size_t(count), offset);
    });
}

int syncWith(const char *name, int descriptor)
{
    using Function = int (*)(int);
    const Function real = next<Function>(name);
    return static_cast<int>(Gate::onDescriptor(
        descriptor, {Kind::Sync, {}, {}}, [&](qint64) -> ssize_t { return real(descriptor); }));
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & O_CREAT) ? static_cast<mode_t>(va_arg(arguments, unsigned int)) : 0;
}

} // namespace

} // namespace Faults

extern "C" {

int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = Faults::modeOf(flags, arguments);
    va_end(arguments);
    return Faults::openPath("open", path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = Faults::modeOf(flags, arguments);
    va_end(arguments);
    return Faults::openPath("open64", path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = Faults::modeOf(flags, arguments);
    va_end(arguments);
    return Faults::openAt("openat", folder, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = Faults::modeOf(flags, arguments);
    va_end(arguments);
    return Faults::openAt("openat64", folder, path, flags, mode);
}

ssize_t read(int descriptor, void *data, size_t size)
{
    using Function = ssize_t (*)(int, void *, size_t);
    static const Function sReal = Faults::next<Function>("read");
    Faults::Call call{Faults::Kind::Read, {}, {}, 0, 0, nullptr, qint64(size)};
    return Faults::Gate::onDescriptor(
        descriptor, call, [&](qint64 count) { return sReal(descriptor, data, size_t(count)); });
}

ssize_t write(int descriptor, const void *data, size_t size)
{
    using Function = ssize_t (*)(int, const void *, size_t);
    static const Function sReal = Faults::next<Function>("write");
    Faults::Call call{Faults::Kind::Write, {}, {}, 0, 0, static_cast<const char *>(data),
                      qint64(size)};
    if (Faults::Gate::isOpen())
        call.offset = ::lseek(descriptor, 0, SEEK_CUR);
    return Faults::Gate::onDescriptor(
        descriptor, call, [&](qint64 count) { return sReal(descriptor, data, size_t(count)); });
}

ssize_t pwrite(int descriptor, const void *data, size_t size, off_t offset)
{
    return Faults::writeAt("pwrite", descriptor, data, size, offset);
}

ssize_t pwrite64(int descriptor, const void *data, size_t size, off64_t offset)
{
    return Faults::writeAt("pwrite64", descriptor, data, size, offset);
}

int ftruncate(int descriptor, off_t length) noexcept
{
    return Faults::truncateTo("ftruncate", descriptor, length);
}

int ftruncate64(int descriptor, off64_t length) noexcept
{
    return Faults::truncateTo("ftruncate64", descriptor, length);
}

int fsync(int descriptor)
{
    return Faults::syncWith("fsync", descriptor);
}

int fdatasync(int descriptor)
{
    return Faults::syncWith("fdatasync", descriptor);
}

int rename(const char *from, const char *to) noexcept
{
    using Function = int (*)(const char *, const char *);
    static const Function sReal = Faults::next<Function>("rename");
    Faults::Call call{Faults::Kind::Rename, {}, {}};
    if (Faults::Gate::isOpen()) {
        call.path = Faults::absolute(from);
        call.newPath = Faults::absolute(to);
    }
    return Faults::Gate::onPath(call, [&] { return sReal(from, to); });
}

int unlink(const char *path) noexcept
{
    using Function = int (*)(const char *);
    static const Function sReal = Faults::next<Function>("unlink");
    Faults::Call call{
        Faults::Kind::Unlink, Faults::Gate::isOpen() ? Faults::absolute(path) : QByteArray(), {}};
    return Faults::Gate::onPath(call, [&] { return sReal(path); });
}

int close(int descriptor)
{
    using Function = int (*)(int);
    static const Function sReal = Faults::next<Function>("close");
    return static_cast<int>(
        Faults::Gate::onDescriptor(descriptor, {Faults::Kind::Close, {}, {}},
                                   [&](qint64) -> ssize_t { return sReal(descriptor); }));
}

} // extern "C"
