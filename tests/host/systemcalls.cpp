#include "systemcalls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using systemcalls::Fault;

struct Plan {
    int faultAt = -1;
    Fault fault = Fault::Fail;
    int error = 0;
    int calls = 0;
    const char *failing = nullptr;
    int times = 0;
};

Plan plan;
std::size_t mostWritten = std::numeric_limits<std::size_t>::max();

long tickOfChanges = 0;
int looksAtPaths = 0;

int withTicks(int result, struct stat *status)
{
    if (result == 0 && tickOfChanges == systemcalls::CoarseClock::WholeSeconds)
        status->st_ctim.tv_nsec = 0;
    else if (result == 0 && tickOfChanges > 0)
        status->st_ctim.tv_nsec = status->st_ctim.tv_nsec / tickOfChanges * tickOfChanges + 1;
    return result;
}

template <typename Function> Function *next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

// True if this call is to fail, with errno set. If the process is to end here, `lastAct` is done before.
template <typename Act> bool goesWrong(const char *name, Act lastAct)
{
    if (plan.failing) {
        errno = plan.error;
        return std::strcmp(plan.failing, name) == 0 && plan.times-- > 0;
    }
    if (plan.faultAt < 0 || plan.calls++ != plan.faultAt)
        return false;
    if (plan.fault == Fault::End) {
        lastAct();
        _exit(systemcalls::EndStatus);
    }
    errno = plan.error;
    return true;
}

template <typename Function, typename... Arguments> int passed(const char *name, Arguments... arguments)
{
    return goesWrong(name, [] {}) ? -1 : next<Function>(name)(arguments...);
}

mode_t modeOf(int flags, va_list list)
{
    return (flags & O_CREAT) != 0 ? va_arg(list, mode_t) : 0;
}

} // namespace

extern "C" {

int open(const char *path, int flags, ...)
{
    va_list list;
    va_start(list, flags);
    const mode_t mode = modeOf(flags, list);
    va_end(list);
    return passed<int(const char *, int, ...)>("open", path, flags, mode);
}

int openat(int directory, const char *path, int flags, ...)
{
    va_list list;
    va_start(list, flags);
    const mode_t mode = modeOf(flags, list);
    va_end(list);
    return passed<int(int, const char *, int, ...)>("openat", directory, path, flags, mode);
}

int flock(int file, int operation) noexcept
{
    return passed<int(int, int)>("flock", file, operation);
}

int fstat(int file, struct stat *status) noexcept
{
    return withTicks(passed<int(int, struct stat *)>("fstat", file, status), status);
}

int stat(const char *path, struct stat *status) noexcept
{
    ++looksAtPaths;
    return withTicks(next<int(const char *, struct stat *)>("stat")(path, status), status);
}

int lstat(const char *path, struct stat *status) noexcept
{
    ++looksAtPaths;
    return next<int(const char *, struct stat *)>("lstat")(path, status);
}

int unlinkat(int directory, const char *path, int flags) noexcept
{
    return passed<int(int, const char *, int)>("unlinkat", directory, path, flags);
}

int faccessat(int directory, const char *path, int mode, int flags) noexcept
{
    return passed<int(int, const char *, int, int)>("faccessat", directory, path, mode, flags);
}

int fchown(int file, uid_t user, gid_t group) noexcept
{
    return passed<int(int, uid_t, gid_t)>("fchown", file, user, group);
}

int fchmod(int file, mode_t mode) noexcept
{
    return passed<int(int, mode_t)>("fchmod", file, mode);
}

int fsync(int file)
{
    return passed<int(int)>("fsync", file);
}

int renameat(int oldDirectory, const char *oldPath, int newDirectory, const char *newPath) noexcept
{
    return passed<int(int, const char *, int, const char *)>(
        "renameat", oldDirectory, oldPath, newDirectory, newPath);
}

ssize_t read(int file, void *buffer, std::size_t size)
{
    return goesWrong("read", [] {}) ? -1
                                    : next<ssize_t(int, void *, std::size_t)>("read")(file, buffer, size);
}

ssize_t write(int file, const void *buffer, std::size_t size)
{
    auto *const real = next<ssize_t(int, const void *, std::size_t)>("write");
    const auto writeHalf = [&] { real(file, buffer, size / 2); };
    return goesWrong("write", writeHalf) ? -1 : real(file, buffer, std::min(size, mostWritten));
}

} // extern "C"

namespace systemcalls {

FaultAt::FaultAt(int index, Fault fault, int error)
{
    plan = {};
    plan.faultAt = index;
    plan.fault = fault;
    plan.error = error;
}

FaultAt::~FaultAt()
{
    plan = {};
}

bool FaultAt::happened() const
{
    return plan.calls > plan.faultAt;
}

FaultOf::FaultOf(const char *name, int error, int times)
{
    plan = {};
    plan.failing = name;
    plan.error = error;
    plan.times = times;
}

FaultOf::~FaultOf()
{
    plan = {};
}

CoarseClock::CoarseClock(long tick)
{
    tickOfChanges = tick;
}

CoarseClock::~CoarseClock()
{
    tickOfChanges = 0;
}

int looks()
{
    return looksAtPaths;
}

void setMostWritten(std::size_t bytes)
{
    mostWritten = bytes;
}

} // namespace systemcalls
