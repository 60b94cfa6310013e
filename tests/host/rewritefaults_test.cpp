// A rewrite that goes wrong at every single step, and two at once.
#include "disktest.h"
#include "systemcalls.h"

#include "host/numberedfiles.h"

#include <QFile>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using host::NumberedFiles;
using systemcalls::Fault;
using systemcalls::FaultAt;
using testing::AnyOf;
using testing::ElementsAre;

namespace {

// Far above the calls that one rewrite makes.
constexpr int ManyCalls = 200;

QString changed(const QString &text)
{
    return text + u"new line\r\n"_s;
}

class RewriteFaults : public DiskTest {
protected:
    RewriteFaults() { makeFile("Zembro.cfg", Old); }

    void rewrite() const { NumberedFiles().rewrite(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s, changed); }

    // Fails one call after the other with this error, until a rewrite comes through without reaching the
    // fault.
    void failAtEachCall(int error);

    const QByteArray Old = "old line\r\n";
    const QByteArray New = "old line\r\nnew line\r\n";
};

void RewriteFaults::failAtEachCall(int error)
{
    for (int index = 0; index < ManyCalls; ++index) {
        makeFile("Zembro.cfg", Old);
        bool happened = false;
        int failure = 0;
        {
            const FaultAt fault(index, Fault::Fail, error);
            failure = failureOf([this] { rewrite(); });
            happened = fault.happened();
        }
        EXPECT_EQ(bytes("Zembro.cfg"), failure == 0 ? New : Old) << "call " << index;
        EXPECT_THAT(names(), ElementsAre("Zembro.cfg")) << "call " << index;
        if (!happened) {
            EXPECT_EQ(failure, 0);
            EXPECT_GT(index, 10) << "the calls aren't watched";
            return;
        }
    }
    FAIL() << "the rewrite never came to its end";
}

// Adds one to the number in the file, so and so often.
int countUp(const QString &path, int times)
{
    for (int i = 0; i < times; ++i)
        NumberedFiles().rewrite(
            path, u"Zembro.tmp"_s, [](const QString &text) { return QString::number(text.toInt() + 1); });
    return 0;
}

pid_t startChild(const std::function<int()> &operation)
{
    const pid_t child = fork();
    if (child == 0) {
        int status = 1;
        try {
            status = operation();
        } catch (const std::exception &failure) {
            fprintf(stderr, "%s\n", failure.what());
        }
        _exit(status);
    }
    return child;
}

int endOf(pid_t child)
{
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

// True as soon as the kernel lists this process as waiting for a lock; false if it ends instead.
bool comesToWaitForALock(pid_t child)
{
    const QByteArray waiting = " " + QByteArray::number(child) + " ";
    siginfo_t end {};
    while (waitid(P_PID, id_t(child), &end, WEXITED | WNOHANG | WNOWAIT) == 0 && end.si_pid == 0) {
        QFile locks(u"/proc/locks"_s);
        EXPECT_TRUE(locks.open(QIODevice::ReadOnly));
        for (const QByteArray &line : locks.readAll().split('\n')) {
            if (line.contains("->") && line.contains(waiting))
                return true;
        }
        usleep(1000);
    }
    return false;
}

} // namespace

TEST_F(RewriteFaults, OldFileStandsWhole_WhenAnyCallFindsTheDiskFull)
{
    failAtEachCall(ENOSPC);
}

TEST_F(RewriteFaults, OldFileStandsWhole_WhenAnyCallIsRefused)
{
    failAtEachCall(EACCES);
}

TEST_F(RewriteFaults, OldFileStandsWhole_WhenTheDeviceFailsAtAnyCall)
{
    failAtEachCall(EIO);
}

TEST_F(RewriteFaults, NewFileStandsWhole_WhenTheWritingIsInterrupted)
{
    const systemcalls::FaultOf interruptions("write", EINTR, 2);
    rewrite();
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

TEST_F(RewriteFaults, NewFileStandsWhole_WhenTheSystemTakesFewBytesAtOnce)
{
    const int status = inChild([this] {
        systemcalls::setMostWritten(3);
        rewrite();
        return 0;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

TEST_F(RewriteFaults, OldOrNewFileStandsWhole_WhenTheProcessIsKilledAtAnyCall)
{
    int status = systemcalls::EndStatus;
    int index = 0;
    for (; status == systemcalls::EndStatus && index < ManyCalls; ++index) {
        makeFile("Zembro.cfg", Old);
        status = inChild([this, index] {
            const FaultAt fault(index, Fault::End);
            rewrite();
            return 0;
        });
        EXPECT_THAT(bytes("Zembro.cfg"), AnyOf(Old, New)) << "call " << index;
    }
    EXPECT_EQ(status, 0);
    EXPECT_GT(index, 10) << "the calls aren't watched";
}

TEST_F(RewriteFaults, NextRewriteComesThrough_WhenTheLastOneWasKilledAtAnyCall)
{
    for (int index = 0; index < ManyCalls; ++index) {
        makeFile("Zembro.cfg", Old);
        const int status = inChild([this, index] {
            const FaultAt fault(index, Fault::End);
            rewrite();
            return 0;
        });
        makeFile("Zembro.cfg", Old);
        rewrite();
        EXPECT_EQ(bytes("Zembro.cfg"), New) << "call " << index;
        EXPECT_THAT(names(), ElementsAre("Zembro.cfg")) << "call " << index;
        if (status == 0)
            return;
    }
    FAIL() << "the rewrite never came to its end";
}

TEST_F(RewriteFaults, OldFileStands_WhenTheNewOneDoesNotReachTheDisk)
{
    const systemcalls::FaultOf flushing("fsync", EIO, 1);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::DeviceError);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, NothingIsWrittenThroughALink_ThatComesUnderTheScratchNameAtTheLastMoment)
{
    makeFile("precious", "precious");
    makeLink("precious", "Zembro.tmp");
    // As if there had been nothing to remove.
    const systemcalls::FaultOf removing("unlinkat", ENOENT, 1);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::PathAccess);
    EXPECT_EQ(bytes("precious"), "precious");
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, FailureNamesTheFileAndIsOfAFullDisk_WhenTheNewFileDoesNotFit)
{
    const QString large(100000, u'x');
    const int status = inChild([this, &large] {
        const rlimit limit { 4096, 4096 };
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        try {
            NumberedFiles().rewrite(
                path(u"Zembro.cfg"_s), u"Zembro.tmp"_s, [&](const QString &) { return large; });
        } catch (const host::Failure &failure) {
            return failure.about() == path(u"Zembro.cfg"_s) ? failure.number() : 1;
        }
        return 0;
    });
    EXPECT_EQ(status, host::DiskFull);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(RewriteFaults, OldFileStands_WhereTheUserMayNotWriteInTheDirectory)
{
    setMode({}, 0555);
    const int status = inChildOfOrdinaryUser([this] { return failureOf([this] { rewrite(); }); });
    setMode({}, 0755);
    EXPECT_NE(status, 0);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(RewriteFaults, ScratchFileCannotBeMade_WhereTheUserMayWriteTheFileButNotTheDirectory)
{
    setMode("Zembro.cfg", 0666);
    setMode({}, 0555);
    const int status = inChildOfOrdinaryUser([this] { return failureOf([this] { rewrite(); }); });
    setMode({}, 0755);
    EXPECT_EQ(status, host::PermissionDenied);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, RewriteFails_OfAFileThatOthersMayWriteButNotTheUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can own the file in another user's stead";
    setMode({}, 0777);
    setMode("Zembro.cfg", 0644);
    const int status = inChildOfOrdinaryUser([this] { return failureOf([this] { rewrite(); }); });
    EXPECT_EQ(status, host::PathAccess);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, RewriteFails_OfAFileThatItsOwnerMayNotWrite)
{
    setMode("Zembro.cfg", 0444);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::PathAccess);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, FileIsRewritten_WhereTheFileSystemCannotLockADirectory)
{
    const systemcalls::FaultOf locking("flock", EBADF);
    rewrite();
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

TEST_F(RewriteFaults, LockIsWaitedForAgain_WhenASignalInterruptsTheWaiting)
{
    const int directory = open(place().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(flock(directory, LOCK_EX), 0);
    const pid_t child = startChild([this, directory] {
        close(directory);
        const systemcalls::FaultOf interruptions("flock", EINTR, 3);
        rewrite();
        return 0;
    });
    EXPECT_TRUE(comesToWaitForALock(child));
    close(directory);
    EXPECT_EQ(endOf(child), 0);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

TEST_F(RewriteFaults, NoChangeIsLost_WhenProcessesRewriteAtOnce)
{
    makeFile("count", "0");
    QList<pid_t> children;
    for (int i = 0; i < 4; ++i)
        children.append(startChild([this] { return countUp(path(u"count"_s), 15); }));
    for (const pid_t child : children)
        EXPECT_EQ(endOf(child), 0);
    EXPECT_EQ(bytes("count"), "60");
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg", "count"));
}

TEST_F(RewriteFaults, SecondProcessWaits_UntilTheDirectoryIsUnlocked)
{
    makeFile("Zembro.tmp", "half of another's work");
    const int directory = open(place().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(flock(directory, LOCK_EX), 0);
    const pid_t child = startChild([this, directory] {
        close(directory);
        rewrite();
        return 0;
    });
    EXPECT_TRUE(comesToWaitForALock(child));
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_EQ(bytes("Zembro.tmp"), "half of another's work");
    close(directory);
    EXPECT_EQ(endOf(child), 0);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

class RewriteOfAnothersFile : public RewriteFaults {
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only the administrator can give a file away";
        ASSERT_EQ(chown(place("Zembro.cfg").constData(), 12345, 12345), 0);
        setMode("Zembro.cfg", 0640);
    }
};

TEST_F(RewriteOfAnothersFile, ComesThrough_WhereItsOwnerOrModeCannotBeGiven)
{
    for (const char *call : { "fchown", "fchmod" }) {
        for (const int error : { EPERM, EINVAL, ENOSYS, EOPNOTSUPP }) {
            makeFile("Zembro.cfg", Old);
            ASSERT_EQ(chown(place("Zembro.cfg").constData(), 12345, 12345), 0);
            setMode("Zembro.cfg", 0640);
            const systemcalls::FaultOf giving(call, error);
            EXPECT_EQ(failureOf([this] { rewrite(); }), 0) << call << ' ' << error;
            EXPECT_EQ(bytes("Zembro.cfg"), New);
        }
    }
}

TEST_F(RewriteOfAnothersFile, Fails_WhereTheDeviceFailsAtTheGiving)
{
    for (const char *call : { "fchown", "fchmod" }) {
        const systemcalls::FaultOf giving(call, EIO);
        EXPECT_EQ(failureOf([this] { rewrite(); }), host::DeviceError) << call;
        EXPECT_EQ(bytes("Zembro.cfg"), Old);
        EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
    }
}
