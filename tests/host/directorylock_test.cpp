// The lock that a rewrite holds on its directory: who waits, how long, and what is said then.
#include "disktest.h"
#include "systemcalls.h"

#include "host/numberedfiles.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

// Both ends of a pipe.
class Pipe {
public:
    Pipe() { EXPECT_EQ(pipe2(m_ends.data(), O_CLOEXEC), 0); }
    ~Pipe()
    {
        closeReading();
        closeWriting();
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    int writing() const { return m_ends[1]; }
    void closeReading() { close(std::exchange(m_ends[0], -1)); }
    void closeWriting() { close(std::exchange(m_ends[1], -1)); }

    bool tell() const { return write(m_ends[1], "", 1) == 1; }
    // False where the other end has been closed.
    bool wait() const
    {
        char byte = 0;
        return read(m_ends[0], &byte, 1) == 1;
    }

private:
    std::array<int, 2> m_ends;
};

class DirectoryLock : public DiskTest {
protected:
    DirectoryLock() { makeFile("Zembro.cfg", Old); }

    // Holds the lock until it is closed.
    int lockTheDirectory() const
    {
        const int directory = open(place().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        EXPECT_EQ(flock(directory, LOCK_EX), 0);
        return directory;
    }

    void rewrite() const
    {
        host::NumberedFiles().rewrite(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s,
            [](const QString &text) { return text + u"new line\r\n"_s; });
    }

    // In a process of its own, which tells when it waits, and yields how often it has asked for the lock.
    pid_t startRewriting(int directory, Pipe &waits) const
    {
        const pid_t child = startChild([&] {
            close(directory);
            systemcalls::tellOfWaits(waits.writing());
            const int before = systemcalls::locks();
            rewrite();
            return systemcalls::locks() - before;
        });
        waits.closeWriting();
        return child;
    }

    QString wordsOfTheFailure() const
    {
        try {
            rewrite();
        } catch (const host::Failure &failure) {
            return QString::fromUtf8(failure.what());
        }
        return {};
    }

    static constexpr int AskedAtOnceAndInTheQueue = 2;
    const QByteArray Old = "old line\r\n";
    const QByteArray New = "old line\r\nnew line\r\n";
};

} // namespace

TEST_F(DirectoryLock, SecondProcessWaits_UntilTheDirectoryIsUnlocked)
{
    makeFile("Zembro.tmp", "half of another's work");
    Pipe waits;
    const int directory = lockTheDirectory();
    const pid_t child = startRewriting(directory, waits);
    EXPECT_TRUE(waits.wait()) << "it went on";
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_EQ(bytes("Zembro.tmp"), "half of another's work");
    close(directory);
    EXPECT_EQ(endOf(child), AskedAtOnceAndInTheQueue);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

// Asked for every now and then, the lock would mostly be another's again, where that one has much to write.
TEST_F(DirectoryLock, IsAskedForOnce_HoweverLongItIsWaitedFor)
{
    Pipe waits;
    const int directory = lockTheDirectory();
    const pid_t child = startRewriting(directory, waits);
    EXPECT_TRUE(waits.wait());
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    close(directory);
    EXPECT_EQ(endOf(child), AskedAtOnceAndInTheQueue);
}

TEST_F(DirectoryLock, WaitingGoesOn_WhenASignalInterruptsIt)
{
    Pipe waits;
    const int directory = lockTheDirectory();
    const systemcalls::FaultOf interruptions("waiting flock", EINTR, 3);
    const pid_t child = startRewriting(directory, waits);
    EXPECT_TRUE(waits.wait());
    close(directory);
    EXPECT_EQ(endOf(child), AskedAtOnceAndInTheQueue + 3);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

TEST_F(DirectoryLock, RewriteFails_WhereItCannotWaitForTheLock)
{
    const int directory = lockTheDirectory();
    const QString words = u"wait for another program to rewrite a file ("_s;
    {
        const systemcalls::FaultOf waiting("waiting flock", EIO);
        EXPECT_TRUE(wordsOfTheFailure().contains(words));
    }
    const auto withoutFurtherDescriptors = [&] {
        const rlim_t most = rlim_t(directory) + 2; // one for the rewrite's own
        const rlimit limit { most, most };
        return setrlimit(RLIMIT_NOFILE, &limit) == 0 && wordsOfTheFailure().contains(words) ? 0 : 1;
    };
    EXPECT_EQ(inChild(withoutFurtherDescriptors), 0);
    close(directory);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(DirectoryLock, WaitingEndsAfterTenSeconds_AndSaysWhoHasTheLock)
{
    Pipe locked;
    Pipe stay;
    const pid_t holder = startChild([&] {
        stay.closeWriting();
        lockTheDirectory();
        return locked.tell() && !stay.wait() ? 0 : 1;
    });
    ASSERT_TRUE(locked.wait());
    QFile name(u"/proc/%1/comm"_s.arg(holder));
    ASSERT_TRUE(name.open(QIODevice::ReadOnly));

    const systemcalls::QuickTime time;
    const double begin = time.now();
    const QString words = wordsOfTheFailure();
    EXPECT_GE(time.now() - begin, 10.0);
    EXPECT_LE(time.waited(), 10.0);
    EXPECT_EQ(words,
        u"failure 70: rewrite a file, as another program (%1, process %2) has kept its directory locked for 10 seconds: %3"_s
            .arg(QString::fromUtf8(name.readAll()).trimmed())
            .arg(holder)
            .arg(path(u"Zembro.cfg"_s)));
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
    stay.closeWriting();
    EXPECT_EQ(endOf(holder), 0);
}

TEST_F(DirectoryLock, WaitingEndsWithoutAName_WhereTheHolderCannotBeFound)
{
    const int directory = lockTheDirectory();
    const systemcalls::QuickTime time;
    const systemcalls::FaultOf looking("fstat", EIO);
    EXPECT_EQ(wordsOfTheFailure(),
        u"failure 70: rewrite a file, as another program has kept its directory locked for 10 seconds: "_s
            + path(u"Zembro.cfg"_s));
    close(directory);
}

TEST_F(DirectoryLock, FileIsRewritten_WhereTheFileSystemCannotLockADirectory)
{
    for (const int error : { EBADF, ENOLCK, EOPNOTSUPP, EINVAL }) {
        makeFile("Zembro.cfg", Old);
        const systemcalls::FaultOf locking("flock", error);
        rewrite();
        EXPECT_EQ(bytes("Zembro.cfg"), New) << error;
    }
}

TEST_F(DirectoryLock, LockIsAskedForAgain_WhenASignalInterruptsTheAsking)
{
    const systemcalls::QuickTime time;
    const int directory = lockTheDirectory();
    const systemcalls::FaultOf interruptions("flock", EINTR, 3);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::PermissionDenied);
    close(directory);
    EXPECT_EQ(failureOf([this] { rewrite(); }), 0);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}
