#include "disktest.h"

#include "host/paths.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace host;
using testing::ElementsAre;
using testing::IsEmpty;

using Listings = DiskTest;

TEST_F(Listings, FilesAndDirectoriesAreSortedByTheirCapitals)
{
    for (const char *name : { "b.zip", "A.zip", "a.zip", "_c.zip", "Z.zip", "ñ.zip" })
        makeFile(name);
    for (const char *name : { "Zeta", "alfa", "Alfa" })
        makeDirectory(name);
    EXPECT_THAT(listFiles(path()),
        ElementsAre(u"A.zip"_s, u"a.zip"_s, u"b.zip"_s, u"Z.zip"_s, u"_c.zip"_s, u"ñ.zip"_s));
    EXPECT_THAT(listDirectories(path()), ElementsAre(u"Alfa"_s, u"alfa"_s, u"Zeta"_s));
}

TEST_F(Listings, HiddenNamesAreLeftOut)
{
    makeFile(".hidden");
    makeDirectory(".dir");
    EXPECT_THAT(listFiles(path()), IsEmpty());
    EXPECT_THAT(listDirectories(path()), IsEmpty());
    EXPECT_THAT(listFilesAndDirectories(path()), IsEmpty());
}

TEST_F(Listings, LinksAreWhatTheyLeadTo)
{
    makeFile("file");
    makeDirectory("dir");
    makeLink("file", "to file");
    makeLink("dir", "to dir");
    makeLink("nowhere", "to nothing");
    EXPECT_THAT(listFiles(path()), ElementsAre(u"file"_s, u"to file"_s));
    EXPECT_THAT(listDirectories(path()), ElementsAre(u"dir"_s, u"to dir"_s));
    EXPECT_THAT(listFilesAndDirectories(path()), ElementsAre(u"dir"_s, u"file"_s, u"to dir"_s, u"to file"_s));
}

TEST_F(Listings, PipesAndSocketsAreLeftOut)
{
    ASSERT_EQ(mkfifo(place("pipe").constData(), 0600), 0);
    changeDirectory(path());
    const int socketNumber = socket(AF_UNIX, SOCK_STREAM, 0);
    const sockaddr_un address { AF_UNIX, "socket" };
    ASSERT_EQ(bind(socketNumber, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(socketNumber);
    EXPECT_TRUE(exists("socket"));
    EXPECT_THAT(listFiles(path()), IsEmpty());
    EXPECT_THAT(listDirectories(path()), IsEmpty());
    EXPECT_THAT(listPlainFiles(path()), IsEmpty());
}

TEST_F(Listings, NamesThatAreNoUtf8AreListed)
{
    makeFile("Espa\xF1"
             "a");
    EXPECT_THAT(listFiles(path()), ElementsAre(u"Espa\uF7F1a"_s));
}

TEST_F(Listings, DirectoryIsFoundInAnyCase)
{
    makeDirectory("Sub Dir");
    makeFile("Sub Dir/a");
    EXPECT_THAT(listFiles(path(u"SUB DIR\\"_s)), ElementsAre(u"a"_s));
    EXPECT_THAT(listFiles(path(u"sub_dir"_s)), ElementsAre(u"a"_s));
}

TEST_F(Listings, Fail_WhereThereIsNothingToList)
{
    makeFile("file");
    EXPECT_EQ(failureOf([] { listFiles(QString()); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { listFiles(path(u"none"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { listFiles(path(u"file"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { listDirectories(path(u"none"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { listPlainFiles(path(u"none"_s)); }), PathNotFound);
}

TEST_F(Listings, Fail_OfADirectoryThatTheUserMayNotRead)
{
    makeDirectory("closed");
    setMode("closed", 0311);
    const int status =
        inChildOfOrdinaryUser([this] { return failureOf([this] { listFiles(path(u"closed"_s)); }); });
    EXPECT_EQ(status, PathNotFound);
}

TEST_F(Listings, PatternTakesEndingsInAnyCase)
{
    for (const char *name : { "ESPAÑOL.LNG", "English.lng", "notes.txt", "lng", "x.lngs" })
        makeFile(name);
    EXPECT_THAT(listFiles(path(), u"*.lng"_s), ElementsAre(u"English.lng"_s, u"ESPAÑOL.LNG"_s));
}

TEST_F(Listings, PatternOfAllTakesNamesWithoutAPointToo)
{
    makeFile("README");
    makeFile("a.b");
    EXPECT_THAT(listFiles(path(), u"*.*"_s), ElementsAre(u"a.b"_s, u"README"_s));
}

TEST(Patterns, SeveralAreSeparatedBySemicolons)
{
    const QString programs = u"*.exe;*.com; *.bat"_s;
    EXPECT_TRUE(fitsPattern(u"EMU.EXE", programs));
    EXPECT_TRUE(fitsPattern(u"start.Bat", programs));
    EXPECT_TRUE(fitsPattern(u".com", programs));
    EXPECT_FALSE(fitsPattern(u"exe", programs));
    EXPECT_FALSE(fitsPattern(u"emu.exe.txt", programs));
}

TEST(Patterns, WildcardsStandForCharacters)
{
    EXPECT_TRUE(fitsPattern(u"abcabd", u"*ab?"_s));
    EXPECT_FALSE(fitsPattern(u"abcab", u"*ab?"_s));
    EXPECT_TRUE(fitsPattern(u"a", u"*a*"_s));
    EXPECT_TRUE(fitsPattern(u"", u"*"_s));
    EXPECT_FALSE(fitsPattern(u"", u"?"_s));
    EXPECT_TRUE(fitsPattern(u"ñandú", u"Ñ*Ú"_s));
    EXPECT_TRUE(fitsPattern(u"a.b.zip", u"a.*.zip"_s));
    EXPECT_FALSE(fitsPattern(u"a", u""_s));
}

TEST_F(Listings, PlainFilesAreHiddenOnesTooButNoLinks)
{
    makeFile("file");
    makeFile(".hidden");
    makeDirectory("dir");
    makeLink("file", "link");
    makeFile("locked");
    setMode("locked", 0444);
    EXPECT_THAT(listPlainFiles(path()), ElementsAre(u".hidden"_s, u"file"_s, u"locked"_s));
}

TEST_F(Listings, ProgramsAreWhatFitsThePatternAndWhatTheUserMayExecute)
{
    for (const char *name : { "a.EXE", "b.com", "c.txt", "run", "data" })
        makeFile(name);
    makeFile(".hidden");
    makeDirectory("dir.exe");
    setMode("run", 0755);
    setMode(".hidden", 0755);
    makeLink("run", "link");
    makeLink("c.txt", "plain link");
    EXPECT_THAT(listPrograms(path(), u"*.exe;*.com;*.bat"_s),
        ElementsAre(u"a.EXE"_s, u"b.com"_s, u"link"_s, u"run"_s));
    EXPECT_EQ(failureOf([this] { listPrograms(path(u"none"_s), u"*"_s); }), PathNotFound);
}

TEST_F(Listings, ProgramsOfOthersThatTheUserMayNotExecuteAreLeftOut)
{
    makeFile("mine");
    setMode("mine", 0700);
    setMode("", 0755);
    const int status =
        inChildOfOrdinaryUser([this] { return static_cast<int>(listPrograms(path(), u"*.exe"_s).size()); });
    EXPECT_EQ(status, 0);
}
