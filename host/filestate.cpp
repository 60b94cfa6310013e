#include "host/filestate.h"

#include "host/paths.h"

#include <time.h>

namespace host {

namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
constexpr qint64 SureAfter = 20'000'000;
constexpr qint64 SureAfterCoarse = 4 * NanosecondsPerSecond;

} // namespace

qint64 nanoseconds(const timespec &time)
{
    return time.tv_sec * NanosecondsPerSecond + time.tv_nsec;
}

size_t qHash(const FileState &state, size_t seed) noexcept
{
    return qHashMulti(seed, state.device, state.file, state.size, state.modified, state.changed);
}

std::optional<FileState> stateOf(const struct stat &status)
{
    if (!S_ISREG(status.st_mode) || !isSettled(status.st_ctim))
        return std::nullopt;
    return FileState { status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
        nanoseconds(status.st_ctim) };
}

std::optional<FileState> stateOfFile(const QString &path)
{
    struct stat status;
    if (stat(findOnDisk(path).constData(), &status) != 0)
        return std::nullopt;
    return stateOf(status);
}

// The clock of a file system that counts whole seconds, or pairs of them, doesn't show a change soon after
// another.
bool isSettled(const timespec &changed)
{
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now) - nanoseconds(changed) > (changed.tv_nsec == 0 ? SureAfterCoarse : SureAfter);
}

} // namespace host
