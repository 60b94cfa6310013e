// The lock that a rewrite holds on its directory: who waits, how long, and what is said then.
#include "disktest.h"
#include "systemcalls.h"

#include "host/numberedfiles.h"

#include <QFile>

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

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

    QString wordsOfTheFailure() const
    {
        try {
            rewrite();
        } catch (const host::Failure &failure) {
            return QString::fromUtf8(failure.what());
        }
        return {};
    }

    const QByteArray Old = "old line\r\n";
    const QByteArray New = "old line\r\nnew line\r\n";
};

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

} // namespace

TEST_F(DirectoryLock, SecondProcessWaits_UntilTheDirectoryIsUnlocked)
{
    makeFile("Zembro.tmp", "half of another's work");
    Pipe pauses;
    const int directory = lockTheDirectory();
    const pid_t child = startChild([&] {
        close(directory);
        systemcalls::tellOfPauses(pauses.writing());
        rewrite();
        return 0;
    });
    pauses.closeWriting();
    EXPECT_TRUE(pauses.wait()) << "it went on";
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_EQ(bytes("Zembro.tmp"), "half of another's work");
    close(directory);
    EXPECT_EQ(endOf(child), 0);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
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
    const QString words = wordsOfTheFailure();
    EXPECT_GE(time.seconds(), 10.0);
    EXPECT_LT(time.seconds(), 10.5);
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

TEST_F(DirectoryLock, LockIsWaitedForAgain_WhenASignalInterruptsTheWaiting)
{
    const systemcalls::QuickTime time;
    const int directory = lockTheDirectory();
    const systemcalls::FaultOf interruptions("flock", EINTR, 3);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::PermissionDenied);
    close(directory);
    EXPECT_EQ(failureOf([this] { rewrite(); }), 0);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}
