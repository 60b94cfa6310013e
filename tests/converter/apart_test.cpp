// Work in processes of its own.

#include "converter/apart.h"

#include <gmock/gmock.h>

#include <csignal>
#include <map>
#include <new>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

using converter::Outcome;

namespace {

using Told = std::map<std::size_t, std::string>;

Told done(std::size_t pieces, unsigned atOnce, const std::function<Outcome(std::size_t)> &work)
{
    converter::Limits limits;
    limits.seconds = 1;
    limits.bytes = 200'000'000;
    Told told;
    converter::doApart(pieces, atOnce, limits, work, [&](std::size_t piece, const Outcome &outcome) {
        EXPECT_FALSE(told.contains(piece));
        told[piece] = outcome.code + '/' + outcome.detail;
    });
    return told;
}

} // namespace

TEST(Apart, EachPieceIsToldOnce)
{
    for (const unsigned atOnce : { 0U, 1U, 3U, 50U }) {
        const Told told = done(7, atOnce, [](std::size_t piece) {
            return piece % 2 == 0 ? Outcome() : Outcome { "odd", std::to_string(piece) };
        });
        EXPECT_EQ(told,
            (Told { { 0, "/" }, { 1, "odd/1" }, { 2, "/" }, { 3, "odd/3" }, { 4, "/" }, { 5, "odd/5" },
                { 6, "/" } }))
            << atOnce;
    }
}

TEST(Apart, WhatBreaksTakesNothingElseAlong)
{
    const Told told = done(4, 2, [](std::size_t piece) {
        if (piece == 1)
            std::raise(SIGTERM);
        if (piece == 2)
            _exit(3);
        return Outcome { "here", std::string(9000, 'x') };
    });
    EXPECT_EQ(told.size(), 4U);
    EXPECT_EQ(told.at(0), "here/" + std::string(3995, 'x'));
    EXPECT_EQ(told.at(1), "damaged/its reader ended by the signal 15");
    EXPECT_EQ(told.at(2), "failed/its reader ended without a word");
    EXPECT_EQ(told.at(3), told.at(0));
}

TEST(Apart, WhatNeverEndsIsEnded)
{
    volatile unsigned turns = 0;
    const Told told = done(2, 2, [&](std::size_t piece) {
        while (piece == 0)
            turns = turns + 1;
        for (;;)
            pause();
        return Outcome();
    });
    EXPECT_EQ(told,
        (Told { { 0, "too-large/it takes too long, or too much memory" },
            { 1, "too-large/it takes too long, or too much memory" } }));
}

// The sanitizer ends a process that gets none.
TEST(Apart, WhatTakesTooMuchMemoryGetsNone)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "memory that isn't there ends the process here";
#endif
    const Told told = done(1, 1, [](std::size_t) {
        std::vector<std::vector<char>> swallowed;
        for (int i = 0; i < 100; ++i)
            swallowed.emplace_back(10'000'000);
        return Outcome { "swallowed", {} };
    });
    EXPECT_EQ(told, (Told { { 0, "too-large/it takes too much memory" } }));
}

TEST(Apart, WithoutProcessesEachIsToldSo)
{
    rlimit before {};
    getrlimit(RLIMIT_NOFILE, &before);
    rlimit none = before;
    none.rlim_cur = 3;
    setrlimit(RLIMIT_NOFILE, &none);
    const Told told = done(2, 2, [](std::size_t) { return Outcome(); });
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(told,
        (Told { { 0, "failed/no process can be started for it" },
            { 1, "failed/no process can be started for it" } }));
}
