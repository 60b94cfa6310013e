#include "disktest.h"
#include "systemcalls.h"

#include "host/directory.h"
#include "host/letters.h"
#include "host/paths.h"

#include <algorithm>
#include <cerrno>
#include <random>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace host;

namespace {

class DirectoryReadings : public DiskTest {
protected:
    // Looks up until the reading is kept: one that follows a change too closely is not.
    void lookUntilKept() const
    {
        for (int tries = 0; tries < 5000; ++tries) {
            const int before = Directory::readings();
            findOnDisk(path(u"NONE"_s));
            if (Directory::readings() == before)
                return;
            usleep(1000);
        }
        FAIL() << "the reading is never kept";
    }

    void findEachNewFile(int count) const
    {
        for (int i = 0; i < count; ++i) {
            makeFile("File" + QByteArray::number(i));
            ASSERT_EQ(findOnDisk(path(u"FILE%1"_s.arg(i))), place("File" + QByteArray::number(i)));
        }
    }
};

} // namespace

TEST_F(DirectoryReadings, AreNotRepeated_WhileTheDirectoryStandsUnchanged)
{
    for (int i = 0; i < 800; ++i)
        makeFile("Game " + QByteArray::number(i) + ".ZIP");
    lookUntilKept();
    const int before = Directory::readings();
    for (int i = 0; i < 800; ++i) {
        const QByteArray number = QByteArray::number(i);
        ASSERT_EQ(findOnDisk(path(u"GAME %1.zip"_s.arg(i))), place("Game " + number + ".ZIP"));
        ASSERT_EQ(findOnDisk(path(u"game_%1.zip"_s.arg(i))), place("Game " + number + ".ZIP"));
        ASSERT_EQ(findOnDisk(path(u"other %1.zip"_s.arg(i))), QByteArray());
    }
    EXPECT_EQ(Directory::readings(), before);
}

TEST_F(DirectoryReadings, NewNamesAreFoundAtOnce)
{
    findEachNewFile(150);
}

TEST_F(DirectoryReadings, NewNamesAreFoundAtOnce_WhereTheClockTicksCoarsely)
{
    const systemcalls::CoarseClock clock(10'000'000);
    findEachNewFile(150);
}

TEST_F(DirectoryReadings, NewNamesAreFoundAtOnce_WhereTheClockTellsWholeSeconds)
{
    const systemcalls::CoarseClock clock(systemcalls::CoarseClock::WholeSeconds);
    findEachNewFile(150);
}

TEST_F(DirectoryReadings, AreNone_WhereTheDirectoryCannotBeReadToItsEnd)
{
    makeFile("a");
    for (const int error : { EIO, ENOENT }) {
        const systemcalls::FaultOf reading("readdir", error);
        EXPECT_FALSE(Directory::at(place())) << error;
    }
    ASSERT_TRUE(Directory::at(place()));
    EXPECT_EQ(Directory::at(place())->entries().size(), 1u);
}

TEST_F(DirectoryReadings, GoOn_WhereTheyAreInterrupted)
{
    makeFile("a");
    for (const char *call : { "stat", "lstat", "open", "fstat", "readdir" }) {
        const systemcalls::FaultOf interruptions(call, EINTR, 2);
        EXPECT_EQ(findOnDisk(path(u"A"_s)), place("a")) << call;
        ASSERT_TRUE(Directory::at(place())) << call;
        EXPECT_EQ(Directory::at(place())->entries().size(), 1u) << call;
    }
}

TEST(OldDirectoryReadings, AreKept_AlsoWhereTheClockTellsWholeSeconds)
{
    struct stat status;
    ASSERT_EQ(stat("/usr", &status), 0);
    ASSERT_GT(time(nullptr) - status.st_ctim.tv_sec, 10);
    const systemcalls::CoarseClock clock(systemcalls::CoarseClock::WholeSeconds);
    EXPECT_TRUE(Directory::at("/usr"));
    const int before = Directory::readings();
    EXPECT_TRUE(Directory::at("/usr"));
    EXPECT_EQ(Directory::readings(), before);
}

TEST_F(DirectoryReadings, RemovedNamesAreGoneAtOnce)
{
    for (int i = 0; i < 300; ++i) {
        makeFile("File");
        ASSERT_EQ(listFiles(path()).size(), 1);
        ASSERT_EQ(unlink(place("File").constData()), 0);
        ASSERT_EQ(listFiles(path()).size(), 0);
    }
}

TEST_F(DirectoryReadings, NewNamesAreFound_WhenTheModificationTimeIsSetBack)
{
    makeFile("one");
    lookUntilKept();
    struct stat status;
    ASSERT_EQ(stat(place().constData(), &status), 0);
    const timespec times[2] = { status.st_atim, status.st_mtim };
    makeFile("Two");
    ASSERT_EQ(utimensat(AT_FDCWD, place().constData(), times, 0), 0);
    EXPECT_EQ(findOnDisk(path(u"two"_s)), place("Two"));
}

TEST_F(DirectoryReadings, BelongToTheDirectoryAndNotToThePath)
{
    makeDirectory("a");
    makeFile("a/One");
    changeDirectory(path(u"a"_s));
    EXPECT_EQ(findOnDisk(u"ONE"_s), "One");
    makeDirectory("b");
    makeFile("b/Two");
    changeDirectory(path(u"b"_s));
    EXPECT_EQ(findOnDisk(u"ONE"_s), QByteArray());
    EXPECT_EQ(findOnDisk(u"TWO"_s), "Two");
}

TEST_F(DirectoryReadings, ManyDirectoriesAreReadRight)
{
    for (int i = 0; i < 300; ++i) {
        const QByteArray name = QByteArray::number(i);
        makeDirectory(name);
        makeFile(name + "/File" + name);
        ASSERT_EQ(findOnDisk(path(u"%1/FILE%1"_s.arg(i))), place(name + "/File" + name));
    }
    EXPECT_EQ(findOnDisk(path(u"7/FILE7"_s)), place("7/File7"));
}

// Names that begin alike for longer than is looked at first, and differ there in case, in letters beyond
// ASCII, and in those whose capital is within it.
TEST(DirectoryOrder, IsThatOfTheNames)
{
    const QStringList beginnings { u""_s, u"a"_s, QString(30, u'q'), QString(31, u'Q'), QString(32, u'q'),
        QString(30, u'q') + u"\u00E9"_s, QString(31, u'q') + u"\u0131"_s };
    const QStringList ends { u"."_s, u"i"_s, u"I"_s, u"\u0131"_s, u"\u017F"_s, u"s"_s, u"\u00E9"_s,
        u"\u00C9b"_s, u"\uFFFD"_s, u"\U00010428"_s, u"~"_s, u"_"_s };
    std::vector<Directory::Entry> entries;
    for (const QString &beginning : beginnings) {
        for (const QString &end : ends)
            entries.push_back({ beginning + end, DT_REG });
    }
    std::shuffle(entries.begin(), entries.end(), std::mt19937(1));
    const Directory directory(entries);
    ASSERT_EQ(directory.entries().size(), entries.size());
    for (std::size_t i = 1; i < entries.size(); ++i) {
        const QString &one = directory.entries()[i - 1].name;
        const QString &next = directory.entries()[i].name;
        const int order = compareNames(one, next);
        EXPECT_TRUE(order < 0 || (order == 0 && one.toUtf8() < next.toUtf8()))
            << one.toStdString() << ' ' << next.toStdString();
        EXPECT_EQ(directory.find(next), next);
    }
}
