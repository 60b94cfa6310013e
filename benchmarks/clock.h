// What the benchmarks measure with: one clock for all processes, and medians.
#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

#include <sys/resource.h>

// Milliseconds of the system's monotonic clock, the same in every process.
inline double milliseconds()
{
    timespec now {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

// What a start cost: milliseconds since the one that started it looked at the clock, and its peak memory in
// MiB.
inline void printStart(double begun)
{
    const double now = milliseconds();
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%.1f %.1f\n", now - begun, static_cast<double>(usage.ru_maxrss) / 1024);
}
