// Signals that are kept, and handed on.
#include "host/caughtsignals.h"

#include "host/process.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <poll.h>

using namespace Qt::StringLiterals;

TEST(CaughtSignals, AreKeptUntilTheyAreTaken)
{
    host::CaughtSignals signals;
    EXPECT_EQ(signals.take(), std::nullopt);
    raise(SIGTERM);
    pollfd waiting { signals.descriptor(), POLLIN, 0 };
    EXPECT_EQ(poll(&waiting, 1, 0), 1);
    EXPECT_EQ(signals.take(), SIGTERM);
    raise(SIGHUP);
    raise(SIGINT);
    EXPECT_NE(signals.take(), std::nullopt);
    EXPECT_NE(signals.take(), std::nullopt);
    EXPECT_EQ(signals.take(), std::nullopt);
}

TEST(CaughtSignals, OnesThatAreIgnoredStayIgnored)
{
    signal(SIGINT, SIG_IGN);
    {
        host::CaughtSignals signals;
        raise(SIGINT);
        EXPECT_EQ(signals.take(), std::nullopt);
    }
    signal(SIGINT, SIG_DFL);
}

TEST(CaughtSignals, OneThatNobodyTookActsAtTheEnd)
{
    const auto end = [] {
        {
            const host::CaughtSignals signals;
            raise(SIGTERM);
        }
        std::_Exit(0);
    };
    EXPECT_EXIT(end(), testing::KilledBySignal(SIGTERM), "");
}

TEST(CaughtSignals, AChildHasThemAsEver_AndGetsThemWithAllOfItsSession)
{
    host::CaughtSignals signals;
    host::Process child = host::Process::start({ u"/bin/sh"_s, u"-c"_s, u"sleep 60; exit 3"_s });
    host::signalSession(child.id(), SIGTERM);
    pollfd end { child.endDescriptor(), POLLIN, 0 };
    ASSERT_EQ(poll(&end, 1, 10'000), 1);
    EXPECT_TRUE(child.hasEnded());
    EXPECT_EQ(child.end().signal, SIGTERM);
}
