// The trash of the home's volume, and of another volume where the machine has one.
#include "tests/host/disktest.h"

#include "host/encoding.h"
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
    EXPECT_TRUE(
        info->startsWith("[Trash Info]\nPath=" + place("games/Pong%20%28a%29.bin") + "\nDeletionDate=2"))
        << info->toStdString();
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
    EXPECT_EQ(bytes("home/data/Trash/files/a.bin"), "1");
    EXPECT_EQ(bytes("home/data/Trash/files/a.2.bin"), "2");
    EXPECT_TRUE(exists("home/data/Trash/info/a.2.bin.trashinfo"));
}

TEST_F(TrashTest, FileInTheTrashWithoutItsOriginIsNotOverwritten)
{
    for (const QByteArray &directory :
        { QByteArray("home/data"), QByteArray("home/data/Trash"), QByteArray("home/data/Trash/files") })
        makeDirectory(directory);
    makeFile("home/data/Trash/files/a.bin", "old");
    makeFile("games/a.bin", "new");
    EXPECT_TRUE(host::moveToTrash(path(u"games/a.bin"_s)));
    EXPECT_EQ(bytes("home/data/Trash/files/a.bin"), "old");
    EXPECT_EQ(bytes("home/data/Trash/files/a.2.bin"), "new");
    EXPECT_FALSE(exists("home/data/Trash/info/a.bin.trashinfo"));
}

TEST_F(TrashTest, LinkGoesAloneAndItsTargetStays)
{
    makeFile("real", "x");
    makeLink(place("real"), "games/link.bin");
    EXPECT_TRUE(host::moveToTrash(path(u"games/link.bin"_s)));
    EXPECT_FALSE(exists("games/link.bin"));
    EXPECT_EQ(bytes("real"), "x");
}

TEST_F(TrashTest, NameThatIsNotUTF8GoesByItsBytes)
{
    makeDirectory("games/\xF1");
    for (const QByteArray &name : { QByteArray("a\xE9.bin"), QByteArray("\xF1/b.bin") }) {
        makeFile("games/" + name, "A");
        EXPECT_TRUE(host::moveToTrash(host::nameFromDisk(place("games/" + name))));
        EXPECT_FALSE(exists("games/" + name));
    }
    EXPECT_EQ(bytes("home/data/Trash/files/a\xE9.bin"), "A");
    EXPECT_EQ(bytes("home/data/Trash/files/b.bin"), "A");
    const auto info = bytes("home/data/Trash/info/a\xE9.bin.trashinfo");
    ASSERT_TRUE(info);
    EXPECT_TRUE(info->contains("\nPath=" + place("games/a%E9.bin") + '\n')) << info->toStdString();
    EXPECT_TRUE(bytes("home/data/Trash/info/b.bin.trashinfo")
                    .value_or(QByteArray())
                    .contains("\nPath=" + place("games/%F1/b.bin") + '\n'));
}

TEST_F(TrashTest, NameThatIsNotUTF8StaysWhereItCannotBeMoved)
{
    makeFile("games/a\xE9.bin", "A");
    makeDirectory("home/data");
    makeDirectory("home/data/Trash");
    makeDirectory("home/data/Trash/info");
    makeFile("home/data/Trash/files", "in the way");
    EXPECT_FALSE(host::moveToTrash(host::nameFromDisk(place("games/a\xE9.bin"))));
    EXPECT_EQ(bytes("games/a\xE9.bin"), "A");
    EXPECT_TRUE(QDir(path(u"home/data/Trash/info"_s)).isEmpty());
}

TEST_F(TrashTest, NameAsLongAsTheDiskTakesGoesToo)
{
    const QByteArray name = QByteArray(229, 'n') + "\xC3\xB1" + QByteArray(20, 'n') + ".bin";
    makeFile("games/" + name, "A");
    EXPECT_TRUE(host::moveToTrash(host::nameFromDisk(place("games/" + name))));
    EXPECT_FALSE(exists("games/" + name));
    EXPECT_EQ(bytes("home/data/Trash/files/" + QByteArray(229, 'n')), "A");
}

TEST_F(TrashTest, WayOverTheDirectoryAboveNamesNothing)
{
    makeDirectory("games/in");
    EXPECT_FALSE(host::moveToTrash(path(u"games/in/.."_s)));
    EXPECT_FALSE(host::moveToTrash(path(u"games/."_s)));
    EXPECT_TRUE(exists("games/in"));
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
    EXPECT_TRUE(QDir(path(u"home/data/Trash/info"_s)).isEmpty());
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
    QFile info(trash + u"/info/"_s + name + u".trashinfo"_s);
    ASSERT_TRUE(info.open(QIODevice::ReadOnly));
    const QString origin = shared.rootPath() == u"/dev/shm" ? file.sliced(9) : file;
    EXPECT_TRUE(info.readAll().contains("\nPath=" + origin.toUtf8() + '\n'));
    EXPECT_TRUE(info.remove());
    EXPECT_FALSE(exists("home/data"));
    if (!wasThere)
        QDir(trash).removeRecursively();
}
