// Stands between the program and the calls to the system with which files are rewritten, and lets one of them
// go wrong. The test program's own definitions of these calls take precedence over the library's.
#pragma once

#include <cstddef>
#include <limits>

namespace systemcalls {

// While it lives, the calls of this name fail with this error, the first few or all of them, behind some that
// pass. One at a time.
// "waiting flock" is a flock that waits for its lock.
class FaultOf {
public:
    FaultOf(const char *name, int error, int times = std::numeric_limits<int>::max(), int passing = 0);
    ~FaultOf();
    FaultOf(const FaultOf &) = delete;
    FaultOf &operator=(const FaultOf &) = delete;
};

// While it lives, files tell the times of their changes in ticks of so many nanoseconds, cut off to the last
// tick and one nanosecond more, or to the whole second.
class CoarseClock {
public:
    explicit CoarseClock(long tick);
    ~CoarseClock();
    CoarseClock(const CoarseClock &) = delete;
    CoarseClock &operator=(const CoarseClock &) = delete;

    static constexpr long WholeSeconds = 1'000'000'000;
};

// While it lives, each look at an entry of an open directory takes so many nanoseconds more.
class SlowLooks {
public:
    explicit SlowLooks(long delay);
    ~SlowLooks();
    SlowLooks(const SlowLooks &) = delete;
    SlowLooks &operator=(const SlowLooks &) = delete;
};

// How many looks at a path, by stat, lstat or fstatat, there have been so far.
int looks();

// How many times something was flushed to the disk so far.
int flushes();

// How often a lock has been asked for so far.
int locks();

// While it lives, waiting for a condition with a limit takes no time and is in vain, but the clock shows
// behind it that the time has passed. One at a time.
class QuickTime {
public:
    QuickTime();
    ~QuickTime();
    QuickTime(const QuickTime &) = delete;
    QuickTime &operator=(const QuickTime &) = delete;

    static double now(); // in seconds, as the clock shows it
    static double waited(); // the seconds that it was asked to wait
};

// From now on each such wait writes a byte to this descriptor as it begins.
void tellOfWaits(int descriptor);

// From now on a write takes no more than this many bytes at once.
void setMostWritten(std::size_t bytes);

} // namespace systemcalls
