// Programs that are run for what they write.

#include "host/reading.h"

#include "disktest.h"

#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <optional>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class Reading : public DiskTest {
protected:
    QString script(const QByteArray &lines) const
    {
        makeFile("program", "#!/bin/sh\ncd \"${0%/*}\" || exit\n" + lines);
        setMode("program", 0755);
        return path(u"program"_s);
    }

    host::ProcessEnd run(
        const QByteArray &lines, const QByteArray &input = {}, std::chrono::milliseconds patience = 20s)
    {
        return host::readProgram({ script(lines), u"an argument"_s }, input, patience,
            [this](const QByteArray &piece) { written += piece; });
    }

    // The number that a program has written into that file; none while there is none. Numbers below 2 would
    // mean all processes of the user.
    std::optional<pid_t> numberIn(const QByteArray &name) const
    {
        const pid_t number = bytes(name).value_or(QByteArray()).trimmed().toInt();
        return number > 1 ? std::optional(number) : std::nullopt;
    }

    // Waits until the process of that number runs no more; false if there is no number, or it runs on.
    static bool goes(std::optional<pid_t> process)
    {
        if (!process)
            return false;
        // Also where nobody takes the end of a child that lost its parent.
        const auto runs = [&] {
            QFile words(u"/proc/%1/cmdline"_s.arg(*process));
            return words.open(QIODevice::ReadOnly) && !words.readAll().isEmpty();
        };
        for (int i = 0; i < 1000 && runs(); ++i)
            usleep(10'000);
        return !runs();
    }

    QByteArray written;
};

} // namespace

TEST_F(Reading, GivesAllThatAProgramWrites_AndHowItEnded)
{
    const host::ProcessEnd end =
        run("echo \"$1\"; cat; exit 3\n", "its\0input\n"_ba + QByteArray(300'000, 'x'));
    EXPECT_EQ(written, "an argument\n" + "its\0input\n"_ba + QByteArray(300'000, 'x'));
    EXPECT_EQ(end.status, 3);
    EXPECT_EQ(end.signal, std::nullopt);
    EXPECT_EQ(run("kill -TERM $$\n").signal, SIGTERM);
}

TEST_F(Reading, TakesNoMoreMemoryThanThePieces)
{
    qint64 sum = 0;
    qsizetype greatest = 0;
    host::readProgram({ script("head -c 30000000 /dev/zero\n") }, {}, 20s, [&](const QByteArray &piece) {
        sum += piece.size();
        greatest = std::max(greatest, piece.size());
    });
    EXPECT_EQ(sum, 30'000'000);
    EXPECT_LE(greatest, 2 << 20);
}

TEST_F(Reading, OfOneThatIsntThereFails)
{
    const auto take = [](const QByteArray &) {};
    EXPECT_EQ(failureOf([&] { host::readProgram({ path(u"none"_s) }, {}, 20s, take); }), host::FileNotFound);
    makeFile("unallowed", "#!/bin/sh\n");
    EXPECT_EQ(failureOf([&] { host::readProgram({ path(u"unallowed"_s) }, {}, 20s, take); }),
        host::PermissionDenied);
    makeFile("odd",
        "\x7F"
        "ELF");
    setMode("odd", 0755);
    EXPECT_EQ(
        failureOf([&] { host::readProgram({ path(u"odd"_s) }, {}, 20s, take); }), host::InvalidArgument);
}

TEST_F(Reading, OfOneThatSaysNothingEndsIt)
{
    EXPECT_EQ(
        failureOf([&] { run("echo $$ >number; echo a; exec sleep 1000\n", {}, 300ms); }), host::DeviceError);
    EXPECT_EQ(written, "a\n");
    EXPECT_TRUE(goes(numberIn("number")));
}

TEST_F(Reading, EndsWithTheProgram_WhoeverElseHoldsItsOutput)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(run("echo a\nsleep 30 &\necho $! >number\n").status, 0);
    EXPECT_LT(timer.elapsed(), 15'000);
    EXPECT_EQ(written, "a\n");
    const std::optional<pid_t> other = numberIn("number");
    ASSERT_TRUE(other);
    kill(*other, SIGKILL);
}

TEST_F(Reading, ThatFailsEndsTheProgram)
{
    EXPECT_THROW(host::readProgram({ script("echo $$ >number; echo a; exec sleep 1000\n") }, {}, 20s,
                     [](const QByteArray &) { throw std::runtime_error("enough"); }),
        std::runtime_error);
    EXPECT_TRUE(goes(numberIn("number")));
}

// A script that starts what does the work, as many a distribution's do.
TEST_F(Reading, ThatASignalEndsTakesAllAlongThatTheProgramStarted)
{
    const QString program =
        script("sleep 1000 & echo $! >started; echo $$ >number; echo a; trap '' INT TERM HUP QUIT; wait\n");
    const auto read = [&] { host::readProgram({ program }, {}, 1000s, [](const QByteArray &) {}); };
    const auto readAll = [&] {
        host::readAllThatIsSaid(path(u""_s), { program }, 1000s, [](const QByteArray &) {});
    };
    for (const int signal : { SIGINT, SIGTERM, SIGHUP }) {
        for (const std::function<void()> &reading :
            { std::function<void()>(read), std::function<void()>(readAll) }) {
            makeFile("number", "");
            const pid_t reader = startChild([&] {
                reading();
                return 0;
            });
            for (int i = 0; i < 1000 && !numberIn("number"); ++i)
                usleep(10'000);
            ASSERT_GT(reader, 1);
            kill(reader, signal);
            int status = 0;
            ASSERT_EQ(waitpid(reader, &status, 0), reader);
            EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << signal;
            EXPECT_TRUE(goes(numberIn("number"))) << signal;
            EXPECT_TRUE(goes(numberIn("started"))) << signal;
        }
    }
}

// As one that runs in the background is started.
TEST_F(Reading, ThatIgnoresASignalGoesOn)
{
    const pid_t reader = startChild([&] {
        signal(SIGINT, SIG_IGN);
        return run("kill -INT $PPID; sleep 0.2; exit 3\n").status.value_or(0);
    });
    EXPECT_EQ(endOf(reader), 3);
}

// One that hands on what it writes in large pieces is silent for long, so the whole is what counts.
TEST_F(Reading, OfAllThatIsSaidEndsWithItsTime_HoweverMuchIsSaid)
{
    QElapsedTimer timer;
    timer.start();
    for (const QByteArray &lines :
        { "while :; do echo a; sleep 0.01; done\n"_ba, "yes\n"_ba, "sleep 1000\n"_ba }) {
        EXPECT_EQ(failureOf([&] {
            host::readAllThatIsSaid(path(u""_s), { script(lines) }, 300ms, [](const QByteArray &) {});
        }),
            host::DeviceError);
    }
    EXPECT_LT(timer.elapsed(), 15'000);
    QByteArray said;
    host::readAllThatIsSaid(path(u""_s), { script("echo a; sleep 0.3; echo b\n") }, 20s,
        [&](const QByteArray &piece) { said += piece; });
    EXPECT_EQ(said, "a\nb\n");
}

TEST_F(Reading, ThatIsKilledTakesTheProgramAlong)
{
    const QString program = script("echo $$ >number; echo a; exec sleep 1000\n");
    const pid_t reader = startChild([&] {
        host::readProgram({ program }, {}, 1000s, [](const QByteArray &) {});
        return 0;
    });
    for (int i = 0; i < 1000 && !numberIn("number"); ++i)
        usleep(10'000);
    ASSERT_GT(reader, 1);
    kill(reader, SIGKILL);
    endOf(reader);
    EXPECT_TRUE(goes(numberIn("number")));
}
