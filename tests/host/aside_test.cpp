// Lines beside the program: where they may go, and that nothing of it disturbs.
#include "disktest.h"

#include "host/aside.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// The standard error leads elsewhere while it stands.
class ErrorTo {
public:
    explicit ErrorTo(int descriptor)
        : m_before(dup(STDERR_FILENO))
    {
        dup2(descriptor, STDERR_FILENO);
    }
    ~ErrorTo()
    {
        dup2(m_before, STDERR_FILENO);
        close(m_before);
    }
    ErrorTo(const ErrorTo &) = delete;
    ErrorTo &operator=(const ErrorTo &) = delete;

private:
    int m_before;
};

class AsideTest : public DiskTest {
protected:
    AsideTest() { qputenv(host::AsideFileVariable, place("log")); }
    ~AsideTest() override { qunsetenv(host::AsideFileVariable); }

    QByteArray log() const { return bytes("log").value_or("none"); }
};

TEST_F(AsideTest, LinesGoIntoTheFileThatTheEnvironmentNames)
{
    host::tellAside("one");
    host::tellAside("two");
    EXPECT_EQ(log(), "one\ntwo\n");
    struct stat status { };
    ASSERT_EQ(stat(place("log").constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(AsideTest, WithoutTheVariableThereIsNoFile)
{
    qunsetenv(host::AsideFileVariable);
    host::tellAside("one");
    qputenv(host::AsideFileVariable, "log");
    host::tellAside("one");
    EXPECT_EQ(log(), "none");
    EXPECT_FALSE(QFile::exists(u"log"_s));
}

TEST_F(AsideTest, NothingButAPlainFileOfTheUsersOwnIsWrittenTo)
{
    makeFile("target", "kept");
    ASSERT_EQ(symlink(place("target").constData(), place("log").constData()), 0);
    host::tellAside("one");
    EXPECT_EQ(bytes("target"), "kept");
    ASSERT_EQ(unlink(place("log").constData()), 0);
    ASSERT_EQ(link(place("target").constData(), place("log").constData()), 0);
    host::tellAside("one");
    EXPECT_EQ(bytes("target"), "kept");
    ASSERT_EQ(unlink(place("log").constData()), 0);
    ASSERT_EQ(mkfifo(place("log").constData(), 0600), 0);
    host::tellAside("one"); // nobody reads it, and nobody waits
    ASSERT_EQ(unlink(place("log").constData()), 0);
    ASSERT_EQ(mkdir(place("log").constData(), 0700), 0);
    host::tellAside("one");
    qputenv(host::AsideFileVariable, "/dev/full");
    host::tellAside("one");
    qputenv(host::AsideFileVariable, "/nowhere/at/all");
    host::tellAside("one");
}

TEST_F(AsideTest, WhatIsWrittenIsRead_AndNothingOfAFileThatNothingIsWrittenTo)
{
    EXPECT_EQ(failureOf([&] { host::readAside(place("log")); }), host::FileNotFound);
    host::tellAside("one");
    EXPECT_EQ(host::readAside(place("log")), "one\n");
    EXPECT_EQ(host::readAside("log"), std::nullopt);
    ASSERT_EQ(link(place("log").constData(), place("second").constData()), 0);
    EXPECT_EQ(host::readAside(place("log")), std::nullopt);
    ASSERT_EQ(unlink(place("log").constData()), 0);
    ASSERT_EQ(symlink(place("second").constData(), place("log").constData()), 0);
    EXPECT_EQ(host::readAside(place("log")), std::nullopt);
    ASSERT_EQ(unlink(place("log").constData()), 0);
    ASSERT_EQ(mkfifo(place("log").constData(), 0600), 0);
    EXPECT_EQ(host::readAside(place("log")), std::nullopt);
}

TEST_F(AsideTest, OfALongFileTheEndIsRead)
{
    makeFile("log", QByteArray(5 * host::MostOfAsideFile, 'x') + "end");
    const QByteArray read = host::readAside(place("log")).value_or(QByteArray());
    EXPECT_EQ(read.size(), 4 * host::MostOfAsideFile);
    EXPECT_TRUE(read.endsWith("xend"));
}

TEST_F(AsideTest, ALongFileBeginsAnew)
{
    makeFile("log", QByteArray(host::MostOfAsideFile + 1, 'x'));
    host::tellAside("one");
    EXPECT_EQ(log(), "one\n");
}

TEST_F(AsideTest, AStandardErrorThatNobodyReadsDoesNotHoldUp)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    {
        const ErrorTo elsewhere(ends[1]);
        for (int i = 0; i < 300; ++i)
            host::tellAside(QByteArray(1000, 'x'));
    }
    EXPECT_EQ(log().size(), 300 * 1001);
    close(ends[0]);
    {
        const ErrorTo elsewhere(ends[1]);
        host::tellAside("into a pipe without an end"); // would end the process
    }
    close(ends[1]);
    EXPECT_TRUE(log().endsWith("into a pipe without an end\n"));
}

TEST_F(AsideTest, AClosedStandardErrorIsNoHindrance)
{
    const int before = dup(STDERR_FILENO);
    close(STDERR_FILENO);
    host::tellAside("one");
    dup2(before, STDERR_FILENO);
    close(before);
    EXPECT_EQ(log(), "one\n");
}

} // namespace
