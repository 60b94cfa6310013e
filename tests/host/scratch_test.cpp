// Files on their way, and what a killed run left of them.
#include "host/scratch.h"

#include "disktest.h"
#include "systemcalls.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

using host::Descriptor;
using host::ScratchFile;
using testing::ElementsAre;

namespace {

class Scratch : public DiskTest {
protected:
    Descriptor directory() const { return Descriptor(open(place().constData(), O_RDONLY | O_DIRECTORY)); }

    QByteArray own(int number) const
    {
        return ".making-" + QByteArray::number(getpid()) + '-' + QByteArray::number(number);
    }
    static QByteArray nameOf(pid_t process, int number = 0)
    {
        return ".making-" + QByteArray::number(process) + '-' + QByteArray::number(number);
    }
    void sweep() const { host::sweepScratchFiles(directory().number(), "making"); }
};

// The number of a process that is gone.
pid_t gone()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    waitpid(child, nullptr, 0);
    return child;
}

// A process that lives as long as this.
class Living {
public:
    Living()
        : process(fork())
    {
        if (process == 0) {
            pause();
            _exit(0);
        }
    }
    ~Living()
    {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    Living(const Living &) = delete;
    Living &operator=(const Living &) = delete;

    const pid_t process;
};

} // namespace

TEST_F(Scratch, IsMadeUnderTheFirstNameThatIsFree)
{
    const Descriptor here = directory();
    const ScratchFile first = host::openScratchFile(here.number(), "making");
    const ScratchFile second = host::openScratchFile(here.number(), "making");
    EXPECT_TRUE(first.file.isOpen());
    EXPECT_EQ(first.name, own(0).toStdString());
    EXPECT_EQ(second.name, own(1).toStdString());
    EXPECT_THAT(names(), ElementsAre(own(0), own(1)));
}

TEST_F(Scratch, IsNotMadeThroughALinkThatHasItsName)
{
    makeLink("target", own(0));
    const Descriptor here = directory();
    EXPECT_EQ(host::openScratchFile(here.number(), "making").name, own(1).toStdString());
    EXPECT_FALSE(exists("target"));
}

TEST_F(Scratch, IsNotMadeWhereAllItsNamesAreTaken_AndTheyStay)
{
    for (int i = 0; i < 100; ++i)
        makeFile(own(i), "kept");
    const Descriptor here = directory();
    EXPECT_FALSE(host::openScratchFile(here.number(), "making").file.isOpen());
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(names().size(), 100);
    EXPECT_EQ(bytes(own(99)), "kept");
}

TEST_F(Scratch, IsNotTriedAgainWhereNoneCanBeMade)
{
    EXPECT_FALSE(host::openScratchFile(-1, "making").file.isOpen());
    EXPECT_EQ(errno, EBADF);
    makeDirectory("gone");
    const Descriptor removed(open(place("gone").constData(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(rmdir(place("gone").constData()), 0);
    const ScratchFile none = host::openScratchFile(removed.number(), "making");
    EXPECT_FALSE(none.file.isOpen());
    EXPECT_EQ(none.name, own(0).toStdString()) << "the first failure is the last try";
}

TEST_F(Scratch, TheSweepTakesWhatAProcessThatIsGoneLeft)
{
    const pid_t process = gone();
    makeFile(nameOf(process));
    makeFile(nameOf(process, 99));
    makeFile(nameOf(gone()));
    setMode(nameOf(process, 99), 0444);
    sweep();
    EXPECT_THAT(names(), ElementsAre());
}

TEST_F(Scratch, TheSweepLeavesWhatALivingProcessMakes_OrOneWithItsNumber)
{
    const Living other;
    makeFile(nameOf(other.process));
    makeFile(nameOf(1));
    sweep();
    EXPECT_TRUE(exists(nameOf(other.process)));
    EXPECT_TRUE(exists(nameOf(1)));
}

TEST_F(Scratch, TheSweepTakesWhatOneOfOurOwnNumberLeft_ButNotWhatWeMake)
{
    makeFile(own(0));
    const Descriptor here = directory();
    const ScratchFile making = host::openScratchFile(here.number(), "making");
    sweep();
    EXPECT_THAT(names(), ElementsAre(own(1)));
}

// As of a process of another container, whose number nobody has here.
TEST_F(Scratch, TheSweepLeavesWhatIsLocked)
{
    const QByteArray name = nameOf(gone());
    makeFile(name);
    Descriptor locked(open(place(name).constData(), O_RDONLY));
    ASSERT_EQ(flock(locked.number(), LOCK_EX), 0);
    sweep();
    EXPECT_TRUE(exists(name));
    locked = Descriptor();
    sweep();
    EXPECT_FALSE(exists(name));
}

TEST_F(Scratch, TheSweepLeavesEveryOtherName)
{
    const QByteArray number = QByteArray::number(gone());
    const QByteArrayList others { ".making-" + number, ".making-" + number + "-", ".making-" + number + "-x",
        ".making-" + number + "-100", ".making-" + number + "-01", ".making-0" + number + "-0",
        ".making--" + number + "-0", ".making-+" + number + "-0", ".making-0-0", ".making- " + number + "-0",
        ".making-99999999999999-0", ".making-" + number + "-0.gif", "making-" + number + "-0",
        ".Making-" + number + "-0", ".makings-" + number + "-0", ".cvtgif15-" + number + "-0" };
    for (const QByteArray &name : others)
        makeFile(name);
    sweep();
    EXPECT_EQ(names().size(), others.size());
}

TEST_F(Scratch, TheSweepLeavesWhatIsNoPlainFile)
{
    const pid_t process = gone();
    makeFile("target", "kept");
    makeLink("target", nameOf(process, 0));
    makeLink("nowhere", nameOf(process, 1));
    makeDirectory(nameOf(process, 2));
    ASSERT_EQ(mkfifo(place(nameOf(process, 3)).constData(), 0600), 0);
    sweep();
    EXPECT_EQ(names().size(), 5);
    EXPECT_EQ(bytes("target"), "kept");
}

TEST_F(Scratch, TheSweepLeavesWhatIsSomebodyElses)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a file away";
    const QByteArray name = nameOf(gone());
    makeFile(name);
    ASSERT_EQ(chown(place(name).constData(), 65534, 65534), 0);
    sweep();
    EXPECT_TRUE(exists(name));
}

TEST_F(Scratch, TheSweepTakesWhatIsLeft_WhenAnyOfItsCallsIsInterrupted)
{
    for (const char *call : { "openat", "fstatat", "fstat", "flock", "unlinkat" }) {
        makeFile(own(0));
        makeFile(nameOf(gone()));
        const systemcalls::FaultOf interruptions(call, EINTR, 2);
        sweep();
        EXPECT_THAT(names(), ElementsAre()) << call;
    }
}

TEST_F(Scratch, IsMadeAndLocked_WhenThatIsInterrupted)
{
    for (const char *call : { "openat", "flock" }) {
        const Descriptor here = directory();
        const systemcalls::FaultOf interruption(call, EINTR, 1);
        const ScratchFile making = host::openScratchFile(here.number(), "making");
        EXPECT_TRUE(making.file.isOpen()) << call;
        const Descriptor again(open(place(own(0)).constData(), O_RDONLY));
        EXPECT_NE(flock(again.number(), LOCK_EX | LOCK_NB), 0) << call;
        ASSERT_EQ(unlink(place(own(0)).constData()), 0);
    }
}

TEST_F(Scratch, TheSweepOfWhatIsNoDirectoryDoesNothing)
{
    makeFile("file");
    const Descriptor file(open(place("file").constData(), O_RDONLY));
    host::sweepScratchFiles(file.number(), "making");
    host::sweepScratchFiles(-1, "making");
    EXPECT_THAT(names(), ElementsAre("file"));
}
