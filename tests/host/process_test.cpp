// Programs started without a shell: what they get, how they are found, how their end is seen.
#include "host/process.h"

#include "disktest.h"

#include "host/encoding.h"
#include "host/failure.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestWait = 10000; // milliseconds

// True once the process has ended, as its descriptor tells.
bool endComes(const host::Process &process)
{
    pollfd end { process.endDescriptor(), POLLIN, 0 };
    return poll(&end, 1, LongestWait) == 1;
}

bool becomesTrue(const std::function<bool()> &condition)
{
    for (int waited = 0; waited < LongestWait; waited += 5) {
        if (condition())
            return true;
        poll(nullptr, 0, 5);
    }
    return false;
}

// 'R', 'S', 'Z' ...; a space for a process that isn't there any more.
char stateOf(pid_t id)
{
    const QByteArray path = "/proc/" + QByteArray::number(id) + "/stat";
    FILE *file = fopen(path.constData(), "r");
    if (!file)
        return ' ';
    std::array<char, 512> buffer {};
    const QByteArray line(buffer.data(), qsizetype(fread(buffer.data(), 1, buffer.size() - 1, file)));
    fclose(file);
    const qsizetype behindName = line.lastIndexOf(") ");
    return behindName < 0 ? ' ' : line[behindName + 2];
}

std::ptrdiff_t entriesOf(const char *directory)
{
    return std::distance(std::filesystem::directory_iterator(directory), {});
}

std::ptrdiff_t threads()
{
    return entriesOf("/proc/self/task");
}

std::ptrdiff_t openFiles()
{
    return entriesOf("/proc/self/fd");
}

class ProcessTest : public DiskTest {
protected:
    ProcessTest() { EXPECT_EQ(chdir(place().constData()), 0); }
    ~ProcessTest() override
    {
        qputenv("PATH", m_searchPath);
        host::rememberEnvironment();
    }

    // What the next programs are looked for in; what they are started with keeps the usual one.
    void setSearchPath(const QByteArray &path) const
    {
        qputenv("PATH", path);
        host::rememberEnvironment();
        qputenv("PATH", m_searchPath);
    }

    void makeProgram(const QByteArray &name, const QByteArray &script) const
    {
        makeFile(name, "#!/bin/sh\n" + script);
        setMode(name, 0755);
    }

    // A program that records its name and arguments, each closed by a zero byte.
    void makeRecorder(const QByteArray &name) const
    {
        makeProgram(name, "printf '%s\\0' \"$0\" \"$@\" > '" + place("arguments") + "'\n");
    }

    QList<QByteArray> recorded() const
    {
        QList<QByteArray> words = bytes("arguments").value_or("nothing recorded").split('\0');
        words.removeLast();
        return words;
    }

    void run(const QStringList &arguments) const
    {
        host::Process process = host::Process::start(arguments);
        ASSERT_TRUE(endComes(process));
        ASSERT_TRUE(process.hasEnded());
    }

    // What a program of these lines writes to its output file.
    QByteArray outputOf(const QByteArray &script) const
    {
        makeProgram("reporter", "exec > '" + place("output") + "'\n" + script);
        run({ u"./reporter"_s });
        return bytes("output").value_or("no output");
    }

    void makeWaiter() const
    {
        makeProgram("waiter",
            "while [ -e '" + place("waiter") + "' ] && [ ! -e '" + place("go")
                + "' ]; do sleep 0.01; done\n");
    }

    // Runs until the file "go" is there.
    host::Process startWaiting() const
    {
        makeWaiter();
        return host::Process::start({ u"./waiter"_s });
    }

private:
    QByteArray m_searchPath = qgetenv("PATH");
};

TEST(SplitArguments, SplitsAtBlanksAndTabs)
{
    EXPECT_EQ(host::splitArguments(u"  -a  b\tc "), QStringList({ u"-a"_s, u"b"_s, u"c"_s }));
    EXPECT_EQ(host::splitArguments(u""), QStringList());
    EXPECT_EQ(host::splitArguments(u"   "), QStringList());
}

TEST(SplitArguments, GroupsByDoubleQuotesWhichGo)
{
    EXPECT_EQ(host::splitArguments(u"\"a b\"c d"), QStringList({ u"a bc"_s, u"d"_s }));
    EXPECT_EQ(host::splitArguments(u"x\" \"y"), QStringList({ u"x y"_s }));
    EXPECT_EQ(host::splitArguments(u"a \"\" b"), QStringList({ u"a"_s, u""_s, u"b"_s }));
}

TEST(SplitArguments, AQuoteWithoutItsPairGroupsToTheEnd)
{
    EXPECT_EQ(host::splitArguments(u"a \"b  c"), QStringList({ u"a"_s, u"b  c"_s }));
}

TEST(SplitArguments, LeavesEverySignOfAShellAlone)
{
    EXPECT_EQ(host::splitArguments(u"$HOME `id` ; 'a b' \\ * ~"),
        QStringList({ u"$HOME"_s, u"`id`"_s, u";"_s, u"'a"_s, u"b'"_s, u"\\"_s, u"*"_s, u"~"_s }));
}

TEST(ArgumentSplitter, AWholePieceIsNeverSplitAndJoinsItsNeighbours)
{
    host::ArgumentSplitter splitter;
    splitter.addText(u"-f ");
    splitter.addWhole(u"a \"b c"_s);
    splitter.addText(u"-z d");
    EXPECT_EQ(splitter.arguments(), QStringList({ u"-f"_s, u"a \"b c-z"_s, u"d"_s }));
}

TEST(ArgumentSplitter, AnEmptyWholePieceIsNoArgument)
{
    host::ArgumentSplitter splitter;
    splitter.addText(u"-f ");
    splitter.addWhole(u""_s);
    splitter.addText(u" g");
    EXPECT_EQ(splitter.arguments(), QStringList({ u"-f"_s, u"g"_s }));
}

TEST_F(ProcessTest, HandsEachArgumentOverWhole_WhateverItHolds)
{
    makeRecorder("recorder");
    const QList<QByteArray> arguments { "two words", "\"quoted\"", "it's", "`touch bad`", "$HOME", "a;b",
        "line\nline", "bad\xff\xfe", "", "-x", "*", "ñ" };
    QStringList texts { path(u"recorder"_s) };
    for (const QByteArray &argument : arguments)
        texts << host::nameFromDisk(argument);
    run(texts);
    EXPECT_EQ(recorded(), QList<QByteArray>({ place("recorder") }) + arguments);
    EXPECT_FALSE(exists("bad"));
}

TEST_F(ProcessTest, FindsABareNameInTheWorkingDirectoryBeforeThePath)
{
    makeRecorder("true");
    run({ u"true"_s, u"a"_s });
    EXPECT_EQ(recorded(), QList<QByteArray>({ "./true", "a" }));
}

TEST_F(ProcessTest, FindsABareNameInThePath_WhereTheWorkingDirectoryHasNone)
{
    makeDirectory("bin");
    makeRecorder("bin/tool");
    for (const QByteArray &path : { place("bin"), "/nowhere::" + place("bin") }) {
        setSearchPath(path);
        run({ u"tool"_s });
        EXPECT_EQ(recorded(), QList<QByteArray>({ place("bin/tool") })) << path.constData();
        ASSERT_EQ(unlink(place("arguments").constData()), 0);
    }
}

TEST_F(ProcessTest, TakesTheFirstOfThePathThatMayRun)
{
    for (const char *directory : { "no", "directory", "directory/tool", "forbidden", "first", "second" })
        makeDirectory(directory);
    makeFile("forbidden/tool");
    makeRecorder("first/tool");
    makeRecorder("second/tool");
    const auto path = [this](const QByteArrayList &directories) {
        QByteArrayList places;
        for (const QByteArray &directory : directories)
            places << place(directory);
        return places.join(':');
    };
    setSearchPath(path({ "no", "directory", "forbidden", "first", "second" }));
    run({ u"tool"_s });
    EXPECT_EQ(recorded(), QList<QByteArray>({ place("first/tool") }));
    setSearchPath(path({ "no", "forbidden", "directory" }));
    EXPECT_EQ(failureOf([] { host::Process::start({ u"tool"_s }); }), host::PermissionDenied);
    setSearchPath(path({ "no", "directory" }));
    EXPECT_EQ(failureOf([] { host::Process::start({ u"tool"_s }); }), host::FileNotFound);
}

TEST_F(ProcessTest, LooksInTheUsualDirectories_WhereTheEnvironmentHasNoPath)
{
    qunsetenv("PATH");
    host::rememberEnvironment();
    run({ u"true"_s });
    EXPECT_EQ(inChild([this] {
        clearenv();
        host::rememberEnvironment();
        run({ u"true"_s });
        return HasFailure() ? 1 : 0;
    }),
        0);
}

TEST_F(ProcessTest, DoesNotLookInThePathForANameWithASeparator)
{
    makeDirectory("bin");
    makeDirectory("bin/sub");
    makeRecorder("bin/tool");
    makeRecorder("bin/sub/tool");
    setSearchPath(place("bin"));
    for (const QString &name : { u"sub/tool"_s, u"sub\\tool"_s, u"/tool"_s, u"./tool"_s })
        EXPECT_EQ(failureOf([&] { host::Process::start({ name }); }), host::FileNotFound)
            << name.toStdString();
    EXPECT_FALSE(exists("arguments"));
}

TEST_F(ProcessTest, DoesNotTakeAnEmptyEntryOfThePathForTheRootDirectory)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator may change the root directory";
    makeDirectory("root");
    makeDirectory("root/work");
    makeFile("root/tool");
    setSearchPath(":");
    const int failure = inChild([this] {
        if (chroot(place("root").constData()) != 0 || chdir("/work") != 0)
            return -1;
        return failureOf([] { host::Process::start({ u"tool"_s }); });
    });
    EXPECT_EQ(failure, host::FileNotFound);
}

TEST_F(ProcessTest, FailsAsForbidden_WhereABareNameInTheWorkingDirectoryMayNotRun_WhateverThePathHolds)
{
    makeDirectory("bin");
    makeRecorder("bin/tool");
    makeFile("tool");
    setSearchPath(place("bin"));
    EXPECT_EQ(failureOf([] { host::Process::start({ u"tool"_s }); }), host::PermissionDenied);
}

TEST_F(ProcessTest, StartsAProgramThatBeginsWithADash)
{
    makeRecorder("-c");
    run({ u"-c"_s, u"touch bad"_s });
    EXPECT_EQ(recorded(), QList<QByteArray>({ "./-c", "touch bad" }));
}

TEST_F(ProcessTest, FindsAProgramInAnyCase)
{
    makeDirectory("Emus");
    makeRecorder("Emus/Stella");
    run({ path(u"emus/STELLA"_s) });
    EXPECT_EQ(recorded(), QList<QByteArray>({ place("Emus/Stella") }));
    EXPECT_EQ(chdir(place("Emus").constData()), 0);
    run({ u"stella"_s });
    EXPECT_EQ(recorded(), QList<QByteArray>({ "./Stella" }));
}

TEST_F(ProcessTest, FailsWith53_WhereThereIsNoSuchProgram)
{
    makeDirectory("directory");
    const auto start = [](const QStringList &arguments) {
        return failureOf([&] { host::Process::start(arguments); });
    };
    EXPECT_EQ(start({}), host::FileNotFound);
    EXPECT_EQ(start({ u""_s, u"a"_s }), host::FileNotFound);
    EXPECT_EQ(start({ u"no-such-program"_s }), host::FileNotFound);
    EXPECT_EQ(start({ path(u"no-such-program"_s) }), host::FileNotFound);
    EXPECT_EQ(start({ path(u"directory"_s) }), host::FileNotFound);
}

TEST_F(ProcessTest, FailsWith53_WhereTheInterpreterIsMissing)
{
    makeFile("script", "#!/no/such/interpreter\n");
    setMode("script", 0755);
    EXPECT_EQ(failureOf([&] { host::Process::start({ path(u"script"_s) }); }), host::FileNotFound);
}

TEST_F(ProcessTest, FailsWith70_WithoutTheRightToRunIt)
{
    makeFile("program", "#!/bin/sh\n");
    EXPECT_EQ(failureOf([&] { host::Process::start({ path(u"program"_s) }); }), host::PermissionDenied);
}

TEST_F(ProcessTest, FailsWith5_WhereTheFormatDoesNotRun)
{
    makeFile("program", "no program");
    setMode("program", 0755);
    EXPECT_EQ(failureOf([&] { host::Process::start({ path(u"program"_s) }); }), host::InvalidArgument);
}

TEST_F(ProcessTest, NamesTheProgramInTheFailure)
{
    try {
        host::Process::start({ u"no-such-program"_s });
        FAIL();
    } catch (const host::Failure &failure) {
        EXPECT_EQ(failure.operation(), u"start a program"_s);
        EXPECT_EQ(failure.about(), u"no-such-program"_s);
    }
}

TEST_F(ProcessTest, TheChildHasASessionOfItsOwn)
{
    const QList<QByteArray> words =
        outputOf("echo $$ $(cut -d' ' -f6 /proc/$$/stat)\n").simplified().split(' ');
    ASSERT_EQ(words.size(), 2);
    EXPECT_EQ(words[0], words[1]);
}

TEST_F(ProcessTest, TheChildStartsInTheWorkingDirectory)
{
    EXPECT_EQ(outputOf("pwd\n"), place() + '\n');
}

TEST_F(ProcessTest, TheChildHasDefaultSignalsAndNoneBlocked)
{
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    sigprocmask(SIG_BLOCK, &blocked, &before);
    const auto handler = signal(SIGPIPE, SIG_IGN);
    const QByteArray output = outputOf("exec sed -n -E 's/^Sig(Blk|Ign):\\t//p' /proc/self/status\n");
    signal(SIGPIPE, handler);
    sigprocmask(SIG_SETMASK, &before, nullptr);
    const QList<QByteArray> masks = output.trimmed().split('\n');
    ASSERT_EQ(masks.size(), 2) << output.constData();
    EXPECT_EQ(masks[0], "0000000000000000");
    // The C library keeps the signals 32 and 33 to itself.
    EXPECT_EQ(masks[1].toULongLong(nullptr, 16) & ~0x180000000ULL, 0U) << masks[1].constData();
}

TEST_F(ProcessTest, TheChildHasNoneOfOurOpenFiles)
{
    const int open3 = open(place().constData(), O_RDONLY);
    const int open200 = dup2(open3, 200);
    const QByteArray output =
        outputOf("for n in 3 4 5 6 7 8 9 200; do [ -e /proc/self/fd/$n ] && echo $n; done\n");
    EXPECT_EQ(output.contains("200"), false);
    EXPECT_EQ(output.contains(QByteArray::number(open3)), false);
    close(open3);
    close(open200);
}

TEST_F(ProcessTest, TheChildHasTheRememberedEnvironment)
{
    qputenv("ZTEST_KEPT", "as it was");
    host::rememberEnvironment();
    qputenv("ZTEST_KEPT", "changed later");
    qputenv("ZTEST_LATER", "added later");
    EXPECT_EQ(outputOf("echo \"$ZTEST_KEPT/$ZTEST_LATER\"\n"), "as it was/\n");
    EXPECT_EQ(host::rememberedVariable("ZTEST_KEPT"), "as it was");
    EXPECT_EQ(host::rememberedVariable("ZTEST_KEP"), std::nullopt);
    EXPECT_EQ(host::rememberedVariable("ZTEST_LATER"), std::nullopt);
    qunsetenv("ZTEST_KEPT");
    qunsetenv("ZTEST_LATER");
}

TEST_F(ProcessTest, ARunningProcessHasNotEnded_AndItsEndIsSeenOnce)
{
    host::Process process = startWaiting();
    EXPECT_FALSE(process.hasEnded());
    EXPECT_GT(process.id(), 0);
    pollfd end { process.endDescriptor(), POLLIN, 0 };
    EXPECT_EQ(poll(&end, 1, 0), 0);
    makeFile("go");
    EXPECT_TRUE(endComes(process));
    EXPECT_TRUE(process.hasEnded());
    EXPECT_TRUE(process.hasEnded());
    EXPECT_EQ(stateOf(process.id()), ' ') << "a zombie was left";
}

TEST_F(ProcessTest, AProcessThatASignalEndsHasEnded)
{
    makeProgram("crasher", "kill -KILL $$\n");
    run({ u"./crasher"_s });
}

TEST_F(ProcessTest, GoingOutOfScopeLeavesTheProcessRunning_AndNoZombieAtItsEnd)
{
    const pid_t id = startWaiting().id();
    EXPECT_NE(stateOf(id), ' ');
    EXPECT_NE(stateOf(id), 'Z');
    makeFile("go");
    EXPECT_TRUE(becomesTrue([id] { return stateOf(id) == ' '; })) << stateOf(id);
}

TEST_F(ProcessTest, GoingOutOfScopeTakesNoThread_WhereThereIsNothingToWaitFor)
{
    const host::Process other = startWaiting();
    const std::ptrdiff_t before = threads();
    {
        // A wait for just any child would take the end of the other one.
        const host::Process none;
        host::Process moved = startWaiting();
        const host::Process takesOver(std::move(moved));
        makeFile("go");
        ASSERT_TRUE(endComes(takesOver));
    }
    EXPECT_EQ(threads(), before);
}

TEST_F(ProcessTest, GoingOutOfScopeEndsNothing_WhereNoThreadCanBeMade)
{
    makeWaiter();
    const int status = inChildOfOrdinaryUser([] {
        const host::Process process = host::Process::start({ u"./waiter"_s });
        const rlimit none { 0, 0 };
        return setrlimit(RLIMIT_NPROC, &none) == 0 && process.id() > 0 ? 0 : 1;
    });
    makeFile("go");
    EXPECT_EQ(status, 0);
}

TEST_F(ProcessTest, GoingOutOfScopeClosesTheDescriptorOfTheEnd)
{
    const std::ptrdiff_t before = openFiles();
    run({ u"true"_s });
    {
        const host::Process process = startWaiting();
        EXPECT_EQ(openFiles(), before + 1);
        EXPECT_GE(process.endDescriptor(), 0);
    }
    EXPECT_EQ(openFiles(), before);
    makeFile("go");
}

TEST_F(ProcessTest, AProcessWhoseEndWasTakenByAnotherHasEnded)
{
    host::Process process = startWaiting();
    makeFile("go");
    EXPECT_EQ(waitpid(process.id(), nullptr, 0), process.id());
    EXPECT_TRUE(process.hasEnded());
}

TEST_F(ProcessTest, MovingHandsTheProcessOn)
{
    host::Process first = startWaiting();
    const pid_t id = first.id();
    host::Process second(std::move(first));
    host::Process third;
    EXPECT_TRUE(third.hasEnded());
    third = std::move(second);
    EXPECT_EQ(third.id(), id);
    EXPECT_FALSE(third.hasEnded());
    makeFile("go");
    EXPECT_TRUE(endComes(third));
    EXPECT_TRUE(third.hasEnded());
}

TEST(EndProcessDeathTest, EndsAtOnceWithTheStatusAndTheStreamsWritten)
{
    std::array<char, 4096> buffer;
    EXPECT_EXIT(
        {
            setvbuf(stderr, buffer.data(), _IOFBF, buffer.size());
            fputs("still in the buffer", stderr);
            host::endProcess(3);
        },
        testing::ExitedWithCode(3), "still in the buffer");
}

} // namespace
