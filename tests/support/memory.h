// What a test's program has allocated.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include <malloc.h>

// Fails where what is allocated grows with each run of `open`, once what is kept for good is there. The
// address sanitizer's memory isn't counted; under it the runs alone are a test.
inline void expectNoGrowth(const std::function<void()> &open)
{
    constexpr int Warm = 60;
    constexpr int Runs = 40;
    constexpr double MostBytes = 500; // of one run: the smallest control takes more
    for (int i = 0; i < Warm; ++i)
        open();
    const auto allocated = [] {
        const struct mallinfo2 now = mallinfo2();
        return static_cast<double>(now.uordblks) + static_cast<double>(now.hblkhd);
    };
    const double before = allocated();
    for (int i = 0; i < Runs; ++i)
        open();
    EXPECT_LT((allocated() - before) / Runs, MostBytes) << "bytes for each run";
}
