// The trash of the home's volume, and of another volume where the machine has one.
#include "tests/host/disktest.h"

#include "host/trash.h"

#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class TrashTest : public DiskTest {
protected:
    TrashTest()
    {
        makeDirectory("home");
        makeDirectory("games");
        qputenv("HOME", place("home"));
        qputenv("XDG_DATA_HOME", place("home/data"));
    }
    ~TrashTest() override
    {
        qputenv("HOME", m_home);
        qunsetenv("XDG_DATA_HOME");
    }

private:
    const QByteArray m_home = qgetenv("HOME");
};

} // namespace

TEST_F(TrashTest, FileGoesToTheTrashWithItsContentAndOrigin)
{
    makeFile("games/Pong (a).bin", "PONG");
    EXPECT_TRUE(host::moveToTrash(path(u"games/Pong (a).bin"_s)));
    EXPECT_FALSE(exists("games/Pong (a).bin"));
    EXPECT_EQ(bytes("home/data/Trash/files/Pong (a).bin"), "PONG");
    const auto info = bytes("home/data/Trash/info/Pong (a).bin.trashinfo");
    ASSERT_TRUE(info);
    EXPECT_TRUE(info->contains("games/Pong (a).bin\n")) << info->toStdString();
    EXPECT_EQ(mode("home/data/Trash"), mode_t(0700));
}

TEST_F(TrashTest, FileIsFoundInAnyCase)
{
    makeFile("games/Pong.bin");
    EXPECT_TRUE(host::moveToTrash(path(u"GAMES\\PONG.BIN"_s)));
    EXPECT_FALSE(exists("games/Pong.bin"));
    EXPECT_TRUE(exists("home/data/Trash/files/Pong.bin"));
}

TEST_F(TrashTest, DirectoryGoesWithAllInIt)
{
    makeDirectory("games/Quest");
    makeFile("games/Quest/disk1", "1");
    EXPECT_TRUE(host::moveToTrash(path(u"games/Quest/"_s)));
    EXPECT_FALSE(exists("games/Quest"));
    EXPECT_EQ(bytes("home/data/Trash/files/Quest/disk1"), "1");
}

TEST_F(TrashTest, SecondFileOfANameLeavesTheFirstInTheTrash)
{
    for (const QByteArray &content : { QByteArray("1"), QByteArray("2") }) {
        makeFile("games/a.bin", content);
        EXPECT_TRUE(host::moveToTrash(path(u"games/a.bin"_s)));
    }
    EXPECT_EQ(QDir(path(u"home/data/Trash/files"_s)).entryList(QDir::Files).size(), 2);
}

TEST_F(TrashTest, LinkGoesAloneAndItsTargetStays)
{
    makeFile("real", "x");
    makeLink(place("real"), "games/link.bin");
    EXPECT_TRUE(host::moveToTrash(path(u"games/link.bin"_s)));
    EXPECT_FALSE(exists("games/link.bin"));
    EXPECT_EQ(bytes("real"), "x");
}

TEST_F(TrashTest, NothingHappensForAFileThatIsNotThere)
{
    EXPECT_FALSE(host::moveToTrash(path(u"games/gone.bin"_s)));
    EXPECT_FALSE(host::moveToTrash(QString()));
    EXPECT_FALSE(exists("home/data"));
}

TEST_F(TrashTest, FileStaysWhereTheTrashCannotBeMade)
{
    makeFile("games/a.bin", "A");
    makeFile("home/data", "in the way");
    EXPECT_FALSE(host::moveToTrash(path(u"games/a.bin"_s)));
    EXPECT_EQ(bytes("games/a.bin"), "A");
}

TEST_F(TrashTest, FileStaysWhereATrashDirectoryIsAStrangeThing)
{
    makeFile("games/a.bin", "A");
    makeDirectory("elsewhere");
    for (const QByteArray &part :
        { QByteArray("Trash"), QByteArray("Trash/files"), QByteArray("Trash/info") }) {
        QDir(path(u"home/data"_s)).removeRecursively();
        ASSERT_TRUE(QDir().mkpath(path(u"home/data"_s)));
        if (part != "Trash")
            makeDirectory("home/data/Trash");
        makeLink(place("elsewhere"), "home/data/" + part);
        EXPECT_FALSE(host::moveToTrash(path(u"games/a.bin"_s))) << part.toStdString();
        EXPECT_EQ(bytes("games/a.bin"), "A");
    }
    EXPECT_TRUE(QDir(path(u"elsewhere"_s)).isEmpty());
}

TEST_F(TrashTest, FileThatMayNotBeTakenOutOfItsDirectoryStays)
{
    makeFile("games/a.bin", "A");
    setMode("games", 0555);
    setMode("home", 0777);
    const int moved =
        inChildOfOrdinaryUser([&] { return host::moveToTrash(path(u"games/a.bin"_s)) ? 1 : 0; });
    setMode("games", 0755);
    EXPECT_EQ(moved, 0);
    EXPECT_EQ(bytes("games/a.bin"), "A");
}

// Needs a second volume that this user may write to at its root: /dev/shm is one on most machines.
TEST_F(TrashTest, OtherVolumeHasATrashOfItsOwn)
{
    const QStorageInfo shared(u"/dev/shm"_s);
    if (!shared.isValid() || shared == QStorageInfo(QDir::homePath()) || access("/dev/shm", W_OK) != 0)
        GTEST_SKIP() << "there is no second volume here";
    QTemporaryDir games(u"/dev/shm/zembrolix-XXXXXX"_s);
    const QString trash = shared.rootPath() + u"/.Trash-"_s + QString::number(getuid());
    const bool wasThere = QFile::exists(trash);
    const QString name = QFileInfo(games.path()).fileName() + u".bin"_s;
    const QString file = games.filePath(name);
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));

    EXPECT_TRUE(host::moveToTrash(file));
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(QFile::remove(trash + u"/files/"_s + name));
    EXPECT_TRUE(QFile::remove(trash + u"/info/"_s + name + u".trashinfo"_s));
    EXPECT_FALSE(exists("home/data"));
    if (!wasThere)
        QDir(trash).removeRecursively();
}
