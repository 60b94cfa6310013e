#include "disktest.h"

#include "host/drives.h"
#include "host/helddirectory.h"
#include "host/paths.h"
#include "host/volumes.h"

#include <cstdlib>

#include <QDir>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace host;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace host {

void PrintTo(const Drive &drive, std::ostream *out)
{
    *out << QString(drive.letter + u"="_s + drive.place).toStdString();
}

bool operator==(const Drive &a, const Drive &b)
{
    return a.letter == b.letter && a.place == b.place;
}

} // namespace host

namespace {

// A program directory with a file of drives, and no Wine but the one that a test makes.
class Drives : public DiskTest {
protected:
    Drives()
    {
        makeDirectory("program");
        makeDirectory("old");
        makeDirectory("old/EMUS");
        makeFile("old/EMUS/Nes.exe", "12345");
        setProgramDirectory(path(u"program"_s));
        qputenv("WINEPREFIX", place("wine"));
    }
    ~Drives() override
    {
        setProgramDirectory({});
        qunsetenv("WINEPREFIX");
    }

    void name(const QByteArray &lines) const { makeFile("program/Zembro.uni", lines); }
    void nameC() const { name("C=" + place("old") + "\r\n"); }
};

} // namespace

TEST(DriveLines, NameALetterAndAPlace)
{
    EXPECT_THAT(drivesIn(u"D=/media/cd/\r\nc=/home/ana/oldc\n"_s, u"/p"_s),
        ElementsAre(Drive { u'C', u"/home/ana/oldc"_s }, Drive { u'D', u"/media/cd"_s }));
    EXPECT_THAT(drivesIn(u"C:=/a\n d:\\ = /b c \nE=/"_s, u"/p"_s),
        ElementsAre(Drive { u'C', u"/a"_s }, Drive { u'D', u"/b c"_s }, Drive { u'E', u"/"_s }));
}

TEST(DriveLines, APlaceThatIsNotAbsoluteCountsFromTheExecutable)
{
    EXPECT_THAT(drivesIn(u"C=oldc"_s, u"/p"_s), ElementsAre(Drive { u'C', u"/p/oldc"_s }));
    EXPECT_THAT(drivesIn(u"C=../oldc/"_s, u"/p"_s), ElementsAre(Drive { u'C', u"/p/../oldc"_s }));
}

TEST(DriveLines, ATildeIsTheHome)
{
    const QString home = QDir::homePath();
    EXPECT_THAT(drivesIn(u"C=~\nD= ~/old c/ \nE=~ana\nF=./~"_s, u"/p"_s),
        ElementsAre(Drive { u'C', home }, Drive { u'D', home + u"/old c"_s }, Drive { u'E', u"/p/~ana"_s },
            Drive { u'F', u"/p/./~"_s }));
}

TEST_F(Drives, APathIsSpelledOnTheDriveThatItLiesOn)
{
    name("C=" + place("old") + "/\nZ=/\nE=/nowhere\n");
    EXPECT_EQ(spelledOnDrive(u'C', path(u"old/EMUS/Nes.exe"_s)), u"C:\\EMUS\\Nes.exe"_s);
    EXPECT_EQ(spelledOnDrive(u'C', path(u"old"_s)), u"C:\\"_s);
    EXPECT_EQ(spelledOnDrive(u'Z', u"/usr/bin"_s), u"Z:\\usr\\bin"_s);
    EXPECT_EQ(spelledOnDrive(u'Z', u"/"_s), u"Z:\\"_s);
    for (const QString &other : { path(u"older/EMUS"_s), u"/"_s, path(u"old/a\\b"_s) })
        EXPECT_EQ(spelledOnDrive(u'C', other), other);
    EXPECT_EQ(spelledOnDrive(u'E', u"/usr"_s), u"/usr"_s);
    EXPECT_EQ(spelledOnDrive(u'F', u"/usr"_s), u"/usr"_s);
}

TEST(DriveLines, AreReadBackAsTheyAreWritten)
{
    for (const QString &place : { u"/"_s, u"/media/cd"_s, u"/a b "_s, u"/ "_s, u"/a=b, \"c\""_s, u"/C:"_s,
             u"/tab\t"_s, u"/ni\uF7A4o"_s }) {
        const QString line = lineOf({ u'D', place });
        EXPECT_THAT(drivesIn(line, u"/p"_s), ElementsAre(Drive { u'D', place })) << line.toStdString();
    }
    EXPECT_EQ(lineOf({ u'D', u"/media/cd"_s }), u"D=/media/cd");
    EXPECT_EQ(lineOf({ u'D', u"/a\nb"_s }), QString()) << "no line can name it";
    EXPECT_EQ(lineOf({ u'D', u"/a\\"_s }), QString());
}

TEST(DriveLines, OfTwoForALetterTheFirstCounts)
{
    EXPECT_THAT(drivesIn(u"C=/a\nc:=/b"_s, u"/p"_s), ElementsAre(Drive { u'C', u"/a"_s }));
}

TEST(DriveLines, ThoseThatNameNoneArePassedOver)
{
    for (const QString &line : { u""_s, u"C"_s, u"C="_s, u"C=   "_s, u"=/a"_s, u"CD=/a"_s, u"1=/a"_s,
             u"ñ=/a"_s, u"'C=/a"_s, u"C=D:\\a"_s, u"C::=/a"_s, u"ſ=/a"_s, QString(u"C=/a"_s + QChar::Null) })
        EXPECT_THAT(drivesIn(line + u"\nX=/x"_s, u"/p"_s), ElementsAre(Drive { u'X', u"/x"_s }))
            << line.toStdString();
}

TEST(DriveLetters, AreALetterAndAColon)
{
    EXPECT_EQ(driveLetter(u"C:\\a"), u'C');
    EXPECT_EQ(driveLetter(u"z:"), u'Z');
    for (const QStringView path :
        { u"", u"C", u"1:", u"ñ:/a", u"/C:", u" C:", u"@:/", u"[:/", u"`:", u"\u0141:" })
        EXPECT_TRUE(driveLetter(path).isNull()) << path.toString().toStdString();
}

TEST_F(Drives, PathsOnADriveAreFoundInAnySpelling)
{
    nameC();
    for (const QString &typed : { u"C:\\EMUS\\NES.EXE"_s, u"C:/EMUS/Nes.exe"_s, u"c:\\emus/nes.exe"_s,
             u"C:\\\\EMUS\\\\NES.EXE"_s, u"C:EMUS\\NES.EXE"_s })
        EXPECT_EQ(findOnDisk(typed), place("old/EMUS/Nes.exe")) << typed.toStdString();
    EXPECT_EQ(directoryPath(u"C:"_s), path(u"old"_s));
    EXPECT_EQ(directoryPath(u"C:\\"_s), path(u"old"_s));
    EXPECT_EQ(directoryPath(u"c:\\emus\\"_s), path(u"old/EMUS"_s));
    EXPECT_EQ(findOnDisk(u"C:\\EMUS\\NES.EXE\\"_s), QByteArray()) << "a file is no directory";
    EXPECT_EQ(findOnDisk(u"C:\\NONE"_s), QByteArray());
}

TEST_F(Drives, TheirPlaceMayBeTheRootOrALinkAndIsFoundInAnyCase)
{
    makeLink("old", "link");
    name("C=" + place("OLD") + "\nD=/\nE=" + place("link") + "/\n");
    EXPECT_EQ(findOnDisk(u"C:\\emus"_s), place("old/EMUS"));
    EXPECT_EQ(findOnDisk(u"D:"_s + path(u"old/emus"_s)), place("old/EMUS"));
    EXPECT_EQ(findOnDisk(u"D:\\"_s), "/");
    EXPECT_EQ(findOnDisk(u"E:\\emus"_s), place("link/EMUS"));
}

TEST_F(Drives, EveryOperationTakesThem)
{
    nameC();
    EXPECT_TRUE(host::exists(u"C:\\EMUS\\nes.exe"_s));
    EXPECT_EQ(fileLength(u"C:\\EMUS\\nes.exe"_s), 5);
    EXPECT_EQ(listDirectories(u"C:\\"_s), QStringList { u"EMUS"_s });
    EXPECT_EQ(listFiles(u"c:/emus"_s), QStringList { u"Nes.exe"_s });
    EXPECT_EQ(GetShortPathNameA(u"C:\\EMUS\\"_s), GetShortPathNameA(path(u"old/EMUS/"_s)));
    host::makeDirectory(u"C:\\Roms"_s);
    EXPECT_TRUE(exists("old/Roms"));
    host::makeDirectory(u"C:More"_s);
    EXPECT_TRUE(exists("old/More"));
    EXPECT_EQ(findForWriting(u"C:\\emus\\new.txt"_s), place("old/EMUS/new.txt"));
    removeDirectory(u"C:\\ROMS\\"_s);
    EXPECT_FALSE(exists("old/Roms"));
    changeDirectory(u"C:\\emus"_s);
    EXPECT_EQ(currentDirectory(), path(u"old/EMUS"_s));
    deleteFiles(u"C:\\EMUS"_s);
    EXPECT_FALSE(exists("old/EMUS/Nes.exe"));
}

TEST_F(Drives, ALetterWithoutADriveIsANameWithAColon)
{
    nameC();
    makeFile("D:game.nes");
    makeDirectory("D:");
    makeFile("D:/inside");
    ASSERT_EQ(chdir(place().constData()), 0);
    EXPECT_EQ(findOnDisk(u"d:GAME.nes"_s), "D:game.nes");
    EXPECT_EQ(findOnDisk(u"D:\\inside"_s), "D:/inside");
    EXPECT_EQ(findForWriting(u"D:new"_s), "D:new");
    EXPECT_TRUE(isAbsolute(u"C:\\a"));
    EXPECT_TRUE(isAbsolute(u"/a"));
    EXPECT_TRUE(isAbsolute(u"\\a"));
    EXPECT_FALSE(isAbsolute(u"D:\\a"));
    EXPECT_FALSE(isAbsolute(u"a"));
    EXPECT_FALSE(isAbsolute(u""));
    EXPECT_EQ(failureOf([] { HeldDirectory(u"D:\\"_s); }), 5);
}

TEST_F(Drives, WithoutAFileAllStaysAsItWas)
{
    makeFile("C:game.nes");
    ASSERT_EQ(chdir(place().constData()), 0);
    EXPECT_THAT(drives(), IsEmpty());
    EXPECT_EQ(findOnDisk(u"c:game.NES"_s), "C:game.nes");
    EXPECT_EQ(findOnDisk(u"C:\\EMUS"_s), QByteArray());
}

TEST_F(Drives, OneWhosePlaceIsMissingHasNothing)
{
    name("C=" + place("gone") + "\n");
    makeFile("C:game.nes");
    ASSERT_EQ(chdir(place().constData()), 0);
    EXPECT_EQ(findOnDisk(u"C:game.nes"_s), QByteArray());
    EXPECT_EQ(findForWriting(u"C:\\new"_s), QByteArray());
    EXPECT_EQ(failureOf([] { directoryPath(u"C:\\"_s); }), 76);
}

TEST_F(Drives, AreReadAnewWhenTheFileHasChanged)
{
    nameC();
    EXPECT_THAT(drives(), ElementsAre(Drive { u'C', path(u"old"_s) }));
    name("Q=/q\n");
    EXPECT_THAT(drives(), ElementsAre(Drive { u'Q', u"/q"_s }));
    setProgramDirectory(path(u"old"_s));
    EXPECT_THAT(drives(), IsEmpty());
}

TEST_F(Drives, TheFileIsInTheCodeOfTheOtherTextFiles)
{
    makeDirectory("ni\xC3\xB1os");
    name("C=" + place("ni\xF1os") + "\x1A");
    EXPECT_EQ(findOnDisk(u"C:"_s), place("ni\xC3\xB1os/"));
}

TEST_F(Drives, WithoutTheFileThoseOfTheWinePrefixCount)
{
    makeDirectory("wine");
    makeDirectory("wine/dosdevices");
    makeDirectory("wine/drive_c");
    makeFile("wine/drive_c/Game.exe");
    makeLink("../drive_c", "wine/dosdevices/c:");
    makeLink("/", "wine/dosdevices/z:");
    makeLink("/dev/sr0", "wine/dosdevices/d::");
    makeLink("/media/cd", "wine/dosdevices/d:");
    makeLink("/dev/ttyS0", "wine/dosdevices/com1");
    EXPECT_THAT(drives(),
        ElementsAre(
            Drive { u'C', path(u"wine/drive_c"_s) }, Drive { u'D', u"/media/cd"_s }, Drive { u'Z', u"/"_s }));
    EXPECT_EQ(findOnDisk(u"c:\\GAME.EXE"_s), place("wine/drive_c/Game.exe"));
    EXPECT_EQ(findOnDisk(u"Z:\\"_s + path(u"old"_s)), place("old"));
    unlink(place("wine/dosdevices/d:").constData());
    EXPECT_EQ(drives().size(), 2);
    name("");
    EXPECT_THAT(drives(), IsEmpty()) << "the program's own file comes first, whatever it names";
}

TEST_F(Drives, AreVolumesAndReadyWhileTheirPlaceIsThere)
{
    name("C=" + place("old") + "\nD=" + place("gone") + "\n");
    EXPECT_THAT(volumes(), Contains(u"C:"_s));
    EXPECT_EQ(volumes().last(), u"D:"_s);
    EXPECT_TRUE(isVolumeReady(u"C:"_s));
    EXPECT_FALSE(isVolumeReady(u"D:"_s));
    EXPECT_FALSE(isVolumeReady(u"E:"_s));
    name("");
    EXPECT_THAT(volumes(), Not(Contains(u"C:"_s)));
}
