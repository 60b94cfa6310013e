// The trash of the home's volume and of others, which the tests mount where they may.
#include "tests/host/disktest.h"

#include "host/encoding.h"
#include "host/trash.h"

#include <QDir>
#include <QFile>

#include <algorithm>

#include <sched.h>
#include <sys/mount.h>
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

    // Runs it in a process of its own, in which each of these directories is a volume. 0 if it returns true;
    // Skipped where this user can't mount anything.
    int onVolumes(const QList<QByteArray> &directories, const std::function<bool()> &operation) const
    {
        return inChild([&] {
            if (!mountOwnVolumes(directories))
                return Skipped;
            return operation() ? 0 : 1;
        });
    }
    static constexpr int Skipped = 100;

private:
    bool mountOwnVolumes(const QList<QByteArray> &directories) const
    {
        return mayMount() && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
            && std::ranges::all_of(directories, [this](const QByteArray &directory) {
                   return mount("none", place(directory).constData(), "tmpfs", 0, nullptr) == 0;
               });
    }
    // An ordinary user may in a namespace where they are alone.
    static bool mayMount()
    {
        const QByteArray user = QByteArray::number(getuid());
        const QByteArray group = QByteArray::number(getgid());
        if (user == "0")
            return unshare(CLONE_NEWNS) == 0;
        return unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0 && tell("setgroups", "deny")
            && tell("uid_map", user + ' ' + user + " 1") && tell("gid_map", group + ' ' + group + " 1");
    }
    static bool tell(const char *file, const QByteArray &text)
    {
        QFile own(u"/proc/self/"_s + QLatin1StringView(file));
        return own.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && own.write(text) == text.size();
    }

    const QByteArray m_home = qgetenv("HOME");
};

class TrashOfVolumes : public TrashTest {
protected:
    TrashOfVolumes() { makeDirectory("disk"); }

    void expectOn(const QList<QByteArray> &volumes, const std::function<bool()> &operation) const
    {
        const int status = onVolumes(volumes, operation);
        if (status == Skipped)
            GTEST_SKIP() << "nothing can be mounted here";
        EXPECT_EQ(status, 0);
    }
    bool move(const QString &name) const { return host::moveToTrash(path(name)); }
    bool hasOrigin(const QByteArray &trash, const QByteArray &name, const QByteArray &origin) const
    {
        const auto info = bytes(trash + "/info/" + name + ".trashinfo");
        return info && info->startsWith("[Trash Info]\nPath=" + origin + '\n');
    }

    const QByteArray User = QByteArray::number(getuid());
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

TEST_F(TrashTest, TrashIsMadeWithAllDirectoriesAboveIt_ForTheUserAlone)
{
    qputenv("XDG_DATA_HOME", place("home/.local/share"));
    makeFile("games/a.bin", "A");
    EXPECT_TRUE(host::moveToTrash(path(u"games/a.bin"_s)));
    EXPECT_EQ(bytes("home/.local/share/Trash/files/a.bin"), "A");
    for (const QByteArray &made : { QByteArray("home/.local"), QByteArray("home/.local/share") })
        EXPECT_EQ(mode(made), mode_t(0700)) << made.constData();
}

// As the standard asks.
TEST_F(TrashTest, PlaceOfTheTrashThatIsNotAbsoluteIsPassedOver)
{
    ASSERT_EQ(chdir(place("games").constData()), 0);
    qputenv("XDG_DATA_HOME", "share/data");
    makeFile("games/a.bin", "A");
    EXPECT_TRUE(host::moveToTrash(path(u"games/a.bin"_s)));
    EXPECT_EQ(bytes("home/.local/share/Trash/files/a.bin"), "A");
    EXPECT_FALSE(exists("games/share"));

    qputenv("HOME", "home");
    makeFile("games/b.bin", "B");
    EXPECT_FALSE(host::moveToTrash(path(u"games/b.bin"_s)));
    EXPECT_EQ(bytes("games/b.bin"), "B");
    EXPECT_FALSE(exists("games/home"));
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

TEST_F(TrashTest, FileGoesThroughALinkOfTheUsersOwnToo)
{
    for (const QByteArray &part :
        { QByteArray(), QByteArray("/Trash"), QByteArray("/Trash/files"), QByteArray("/Trash/info") }) {
        QDir(path(u"home/data"_s)).removeRecursively();
        QDir(path(u"elsewhere"_s)).removeRecursively();
        unlink(place("home/data").constData());
        makeDirectory("elsewhere");
        if (!part.isEmpty())
            makeDirectory("home/data");
        if (part.size() > 6)
            makeDirectory("home/data/Trash");
        makeLink(place("elsewhere"), "home/data" + part);
        makeFile("games/a.bin", "A");
        EXPECT_TRUE(host::moveToTrash(path(u"games/a.bin"_s))) << part.toStdString();
        EXPECT_FALSE(exists("games/a.bin"));
        EXPECT_EQ(bytes("home/data/Trash/files/a.bin"), "A");
        EXPECT_TRUE(exists("home/data/Trash/info/a.bin.trashinfo"));
        EXPECT_FALSE(QDir(path(u"elsewhere"_s)).isEmpty());
    }
}

TEST_F(TrashTest, FileStaysWhereATrashDirectoryIsAStrangeThing)
{
    makeFile("games/a.bin", "A");
    makeFile("a file");
    for (const QByteArray &part :
        { QByteArray("Trash"), QByteArray("Trash/files"), QByteArray("Trash/info") }) {
        for (const QByteArray &target : { place("a file"), place("nowhere") }) {
            QDir(path(u"home/data"_s)).removeRecursively();
            ASSERT_TRUE(QDir().mkpath(path(u"home/data"_s)));
            if (part != "Trash")
                makeDirectory("home/data/Trash");
            makeLink(target, "home/data/" + part);
            EXPECT_FALSE(host::moveToTrash(path(u"games/a.bin"_s))) << (part + ' ' + target).toStdString();
            EXPECT_EQ(bytes("games/a.bin"), "A");
        }
    }
}

TEST_F(TrashTest, FileStaysWhereATrashDirectoryIsAnotherUsers)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give a directory away";
    makeFile("games/a.bin", "A");
    makeDirectory("home/data");
    makeDirectory("elsewhere");
    makeLink(place("elsewhere"), "home/data/Trash");
    constexpr uid_t Another = 12345;
    ASSERT_EQ(lchown(place("home/data/Trash").constData(), Another, Another), 0);
    EXPECT_FALSE(host::moveToTrash(path(u"games/a.bin"_s))) << "another's link";
    ASSERT_EQ(lchown(place("home/data/Trash").constData(), 0, 0), 0);
    ASSERT_EQ(chown(place("elsewhere").constData(), Another, Another), 0);
    EXPECT_FALSE(host::moveToTrash(path(u"games/a.bin"_s))) << "a link to another's";
    EXPECT_EQ(bytes("games/a.bin"), "A");
    EXPECT_TRUE(QDir(path(u"elsewhere"_s)).isEmpty());
}

TEST_F(TrashTest, FileIsNamedByWhereItReallyLies)
{
    makeDirectory("games/in");
    makeFile("games/in/a.bin", "A");
    makeLink("games/in", "link");
    EXPECT_TRUE(host::moveToTrash(path(u"link/a.bin"_s)));
    const auto info = bytes("home/data/Trash/info/a.bin.trashinfo");
    ASSERT_TRUE(info);
    EXPECT_TRUE(info->contains("\nPath=" + place("games/in/a.bin") + '\n')) << info->toStdString();
}

TEST_F(TrashTest, AnswersWhereTheDirectoryCannotBeLookedAt)
{
    makeFile("games/a.bin", "A");
    setMode("games", 0444);
    const int moved = inChildOfOrdinaryUser(
        [&] { return failureOf([&] { EXPECT_FALSE(host::moveToTrash(path(u"games/a.bin"_s))); }); });
    setMode("games", 0755);
    EXPECT_EQ(moved, 0);
    EXPECT_EQ(bytes("games/a.bin"), "A");
    // A directory that has been removed under the program's feet.
    const int inTheGone = inChild([&] {
        makeDirectory("gone");
        if (chdir(place("gone").constData()) != 0 || rmdir(place("gone").constData()) != 0)
            return 1;
        return host::moveToTrash(u"./a.bin"_s) ? 1 : 0;
    });
    EXPECT_EQ(inTheGone, 0);
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

TEST_F(TrashOfVolumes, FileGoesToTheTrashOfItsOwnVolume)
{
    expectOn({ "disk" }, [this] {
        makeDirectory("disk/games");
        makeFile("disk/games/a.bin", "A");
        makeFile("disk/b.bin", "B");
        const QByteArray trash = "disk/.Trash-" + User;
        return move(u"disk/games/a.bin"_s) && move(u"disk/b.bin"_s) && !exists("disk/games/a.bin")
            && bytes(trash + "/files/a.bin") == "A" && hasOrigin(trash, "a.bin", "games/a.bin")
            && bytes(trash + "/files/b.bin") == "B" && hasOrigin(trash, "b.bin", "b.bin")
            && mode(trash) == 0700 && !exists("home/data");
    });
}

TEST_F(TrashOfVolumes, FileOfTheHomesVolumeGoesToTheTrashAtHome)
{
    expectOn({ "home", "disk" }, [this] {
        makeFile("home/a.bin", "A");
        return move(u"home/a.bin"_s) && bytes("home/data/Trash/files/a.bin") == "A"
            && hasOrigin("home/data/Trash", "a.bin", place("home/a.bin")) && !exists("home/.Trash-" + User);
    });
}

TEST_F(TrashOfVolumes, TrashAtHomeOnAnotherVolumeIsThatVolumes)
{
    expectOn({ "disk" }, [this] {
        makeDirectory("home/data");
        makeDirectory("disk/Trash");
        makeFile("disk/a.bin", "A");
        makeLink(place("disk/Trash"), "home/data/Trash");
        return move(u"disk/a.bin"_s) && bytes("disk/Trash/files/a.bin") == "A"
            && hasOrigin("home/data/Trash", "a.bin", place("disk/a.bin"));
    });
}

TEST_F(TrashOfVolumes, FileBehindALinkIsNamedFromTheTopOfItsVolume)
{
    expectOn({ "disk" }, [this] {
        makeDirectory("disk/games");
        makeFile("disk/games/a.bin", "A");
        makeLink(place("disk/games"), "home/link");
        return move(u"home/link/a.bin"_s) && hasOrigin("disk/.Trash-" + User, "a.bin", "games/a.bin");
    });
}

TEST_F(TrashOfVolumes, VolumeWithinAnotherHasItsOwn)
{
    expectOn({ "disk" }, [this] {
        makeDirectory("disk/inner");
        if (mount("none", place("disk/inner").constData(), "tmpfs", 0, nullptr) != 0)
            return false;
        makeFile("disk/inner/a.bin", "A");
        return move(u"disk/inner/a.bin"_s) && exists("disk/inner/.Trash-" + User + "/files/a.bin")
            && !exists("disk/.Trash-" + User) && !move(u"disk/inner"_s) && exists("disk/inner");
    });
}

// The administrator of the volume has made it for all.
TEST_F(TrashOfVolumes, SharedTrashIsTakenOnlyWithItsStickyBit)
{
    expectOn({ "disk" }, [this] {
        makeDirectory("disk/.Trash");
        setMode("disk/.Trash", 01777);
        makeFile("disk/a.bin", "A");
        const bool taken = move(u"disk/a.bin"_s) && exists("disk/.Trash/" + User + "/files/a.bin")
            && hasOrigin("disk/.Trash/" + User, "a.bin", "a.bin");
        setMode("disk/.Trash", 0777);
        makeFile("disk/b.bin", "B");
        return taken && move(u"disk/b.bin"_s) && exists("disk/.Trash-" + User + "/files/b.bin");
    });
}

TEST_F(TrashOfVolumes, LinkIsNoTrashOfAVolume)
{
    expectOn({ "disk" }, [this] {
        makeFile("disk/a.bin", "A");
        makeDirectory("disk/elsewhere");
        makeLink("elsewhere", "disk/.Trash-" + User);
        return !move(u"disk/a.bin"_s) && bytes("disk/a.bin") == "A"
            && QDir(path(u"disk/elsewhere"_s)).isEmpty();
    });
}

TEST_F(TrashOfVolumes, FileStaysWhereItsVolumeHasNoRoomForATrash)
{
    expectOn({ "disk" }, [this] {
        makeFile("disk/a.bin", "A");
        makeFile("disk/.Trash-" + User, "in the way");
        return !move(u"disk/a.bin"_s) && bytes("disk/a.bin") == "A" && !exists("home/data");
    });
}
