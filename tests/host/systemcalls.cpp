#include "systemcalls.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <type_traits>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <time.h>
#include <unistd.h>

namespace {

struct Plan {
    const char *failing = nullptr;
    int error = 0;
    int times = 0;
    int passing = 0;
};

Plan plan;
std::size_t mostWritten = std::numeric_limits<std::size_t>::max();

long tickOfChanges = 0;
std::atomic<long> delayOfLooks = 0;
std::atomic<int> looksAtPaths = 0;
int flushesDone = 0;
std::atomic<int> locksAsked = 0;

bool waitsAreQuick = false;
timespec waitedFor {};
int toldOfWaits = -1;

constexpr long NanosecondsPerSecond = 1'000'000'000;

void add(timespec &time, const timespec &more)
{
    time.tv_sec += more.tv_sec + (time.tv_nsec + more.tv_nsec) / NanosecondsPerSecond;
    time.tv_nsec = (time.tv_nsec + more.tv_nsec) % NanosecondsPerSecond;
}

timespec difference(const timespec &later, const timespec &earlier)
{
    const long nanoseconds = later.tv_nsec - earlier.tv_nsec;
    return { later.tv_sec - earlier.tv_sec - (nanoseconds < 0 ? 1 : 0),
        nanoseconds + (nanoseconds < 0 ? NanosecondsPerSecond : 0) };
}

double seconds(const timespec &time)
{
    return double(time.tv_sec) + double(time.tv_nsec) / NanosecondsPerSecond;
}

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

// True if this call is to fail, with errno set.
bool goesWrong(const char *name)
{
    if (!plan.failing || std::strcmp(plan.failing, name) != 0 || plan.passing-- > 0 || plan.times-- <= 0)
        return false;
    errno = plan.error;
    return true;
}

template <typename Function, typename... Arguments> auto passed(const char *name, Arguments... arguments)
{
    using Result = std::invoke_result_t<Function, Arguments...>;
    return goesWrong(name) ? Result(-1) : next<Function>(name)(arguments...);
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
    ++locksAsked;
    if ((operation & LOCK_NB) == 0 && goesWrong("waiting flock"))
        return -1;
    return passed<int(int, int)>("flock", file, operation);
}

int fstat(int file, struct stat *status) noexcept
{
    return withTicks(passed<int(int, struct stat *)>("fstat", file, status), status);
}

int stat(const char *path, struct stat *status) noexcept
{
    ++looksAtPaths;
    return withTicks(passed<int(const char *, struct stat *)>("stat", path, status), status);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return passed<int(const char *, mode_t)>("mkdir", path, mode);
}

int rmdir(const char *path) noexcept
{
    return passed<int(const char *)>("rmdir", path);
}

int unlink(const char *path) noexcept
{
    return passed<int(const char *)>("unlink", path);
}

int lstat(const char *path, struct stat *status) noexcept
{
    ++looksAtPaths;
    return passed<int(const char *, struct stat *)>("lstat", path, status);
}

int fstatat(int directory, const char *path, struct stat *status, int flags) noexcept
{
    ++looksAtPaths;
    const timespec delay { 0, delayOfLooks };
    if (delay.tv_nsec > 0)
        nanosleep(&delay, nullptr);
    return withTicks(
        passed<int(int, const char *, struct stat *, int)>("fstatat", directory, path, status, flags),
        status);
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

ssize_t flistxattr(int file, char *names, std::size_t size) noexcept
{
    return passed<ssize_t(int, char *, std::size_t)>("flistxattr", file, names, size);
}

ssize_t fgetxattr(int file, const char *name, void *value, std::size_t size) noexcept
{
    return passed<ssize_t(int, const char *, void *, std::size_t)>("fgetxattr", file, name, value, size);
}

int fsetxattr(int file, const char *name, const void *value, std::size_t size, int flags) noexcept
{
    return passed<int(int, const char *, const void *, std::size_t, int)>(
        "fsetxattr", file, name, value, size, flags);
}

int fremovexattr(int file, const char *name) noexcept
{
    return passed<int(int, const char *)>("fremovexattr", file, name);
}

dirent *readdir(DIR *stream)
{
    return goesWrong("readdir") ? nullptr : next<dirent *(DIR *)>("readdir")(stream);
}

int fsync(int file)
{
    const int result = passed<int(int)>("fsync", file);
    flushesDone += result == 0 ? 1 : 0;
    return result;
}

int renameat(int oldDirectory, const char *oldPath, int newDirectory, const char *newPath) noexcept
{
    return passed<int(int, const char *, int, const char *)>(
        "renameat", oldDirectory, oldPath, newDirectory, newPath);
}

ssize_t read(int file, void *buffer, std::size_t size)
{
    return passed<ssize_t(int, void *, std::size_t)>("read", file, buffer, size);
}

ssize_t write(int file, const void *buffer, std::size_t size)
{
    return passed<ssize_t(int, const void *, std::size_t)>(
        "write", file, buffer, std::min(size, mostWritten));
}

int pthread_cond_clockwait(
    pthread_cond_t *condition, pthread_mutex_t *mutex, clockid_t clock, const timespec *end)
{
    using Wait = int(pthread_cond_t *, pthread_mutex_t *, clockid_t, const timespec *);
    if (toldOfWaits >= 0 && write(toldOfWaits, "", 1) != 1)
        return EINVAL;
    if (!waitsAreQuick)
        return next<Wait>("pthread_cond_clockwait")(condition, mutex, clock, end);
    timespec now {};
    clock_gettime(clock, &now);
    add(waitedFor, difference(*end, now));
    return ETIMEDOUT;
}

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const int result = next<int(clockid_t, timespec *)>("clock_gettime")(clock, time);
    if (result == 0 && waitsAreQuick)
        add(*time, waitedFor);
    return result;
}

} // extern "C"

namespace systemcalls {

FaultOf::FaultOf(const char *name, int error, int times, int passing)
{
    plan = { name, error, times, passing };
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

SlowLooks::SlowLooks(long delay)
{
    delayOfLooks = delay;
}

SlowLooks::~SlowLooks()
{
    delayOfLooks = 0;
}

int looks()
{
    return looksAtPaths;
}

int flushes()
{
    return flushesDone;
}

int locks()
{
    return locksAsked;
}

QuickTime::QuickTime()
{
    waitedFor = {};
    waitsAreQuick = true;
}

QuickTime::~QuickTime()
{
    waitsAreQuick = false;
}

double QuickTime::now()
{
    timespec time {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return seconds(time);
}

double QuickTime::waited()
{
    return seconds(waitedFor);
}

void tellOfWaits(int descriptor)
{
    toldOfWaits = descriptor;
}

void setMostWritten(std::size_t bytes)
{
    mostWritten = bytes;
}

} // namespace systemcalls
