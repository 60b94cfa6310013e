#include "disktest.h"

#include "host/encoding.h"
#include "host/namesin.h"
#include "host/paths.h"

#include <unistd.h>

#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using namespace host;

TEST(Separators, LastOneIsOfEitherKind)
{
    EXPECT_EQ(lastSeparator(u"/home/a.b"), 5);
    EXPECT_EQ(lastSeparator(u"roms\\sub\\a"), 8);
    EXPECT_EQ(lastSeparator(u"/home\\a"), 5);
    EXPECT_EQ(lastSeparator(u"/"), 0);
    EXPECT_EQ(lastSeparator(u"name"), -1);
    EXPECT_EQ(lastSeparator(u""), -1);
}

TEST(Separators, AddedOneIsThePathsOwn)
{
    EXPECT_EQ(separatorOf(u"roms\\sub"), u'\\');
    EXPECT_EQ(separatorOf(u"/home\\sub"), u'/');
    EXPECT_EQ(separatorOf(u"/home"), u'/');
    EXPECT_EQ(separatorOf(u"name"), u'/');
    EXPECT_EQ(withClosingSeparator(u"roms\\sub"_s), u"roms\\sub\\"_s);
    EXPECT_EQ(withClosingSeparator(u"/home\\sub"_s), u"/home\\sub/"_s);
    EXPECT_EQ(withClosingSeparator(u"name"_s), u"name/"_s);
}

TEST(Separators, NoneIsAddedToAnEmptyOrClosedPath)
{
    EXPECT_EQ(withClosingSeparator(QString()), QString());
    EXPECT_EQ(withClosingSeparator(u"roms/"_s), u"roms/"_s);
    EXPECT_EQ(withClosingSeparator(u"/roms\\"_s), u"/roms\\"_s);
}

using Finding = DiskTest;

TEST_F(Finding, PathIsFoundAsSpelled)
{
    makeFile("a.zip");
    makeFile("A.zip");
    EXPECT_EQ(findOnDisk(path(u"a.zip"_s)), place("a.zip"));
    EXPECT_EQ(findOnDisk(path(u"A.zip"_s)), place("A.zip"));
    EXPECT_EQ(trueSpelling(path(u"A.zip"_s)), path(u"A.zip"_s));
    EXPECT_EQ(findOnDisk(u"/"_s), "/");
}

TEST_F(Finding, NothingIsFound_WhereThereIsNoSuchPath)
{
    makeFile("a.zip");
    EXPECT_EQ(findOnDisk(path(u"b.zip"_s)), QByteArray());
    EXPECT_EQ(findOnDisk(path(u"sub/a.zip"_s)), QByteArray());
    EXPECT_EQ(findOnDisk(path(u"a.zip/b"_s)), QByteArray());
    EXPECT_EQ(findOnDisk(QString()), QByteArray());
    EXPECT_EQ(trueSpelling(path(u"b.zip"_s)), QString());
}

TEST_F(Finding, NothingIsFound_OfANameWithANullCharacter)
{
    makeFile("a");
    EXPECT_EQ(findOnDisk(path(u"a\0b"_s)), QByteArray());
    EXPECT_EQ(findForWriting(path(u"a\0b"_s)), QByteArray());
}

TEST_F(Finding, NamesOfAnOldDiskAreFoundByWhatTheirBytesMean)
{
    makeDirectory("NI\xD1OS");
    makeDirectory("NI\xD1OS/\xC9poca");
    makeFile("NI\xD1OS/\xC9poca/a\xF1o.txt");
    for (const QString &name :
        { u"NIÑOS/Época/año.txt"_s, u"niños\\ÉPOCA\\AÑO.TXT"_s, u"Niños./época/AÑO.TXT "_s })
        EXPECT_EQ(findOnDisk(path(name)), place("NI\xD1OS/\xC9poca/a\xF1o.txt")) << name.toStdString();
    EXPECT_EQ(findOnDisk(path(u"NINOS"_s)), QByteArray());
    EXPECT_EQ(findOnDisk(path(u"NIÓOS"_s)), QByteArray());
    EXPECT_EQ(findOnDisk(path(nameFromDisk("ni\xD1os"))), place("NI\xD1OS")) << "as ever";
    makeDirectory("ni\xC3\xB1os");
    EXPECT_EQ(findOnDisk(path(u"NIÑOS/"_s)), place("ni\xC3\xB1os/")) << "which says it itself";
}

TEST_F(Finding, EachComponentIsFoundInAnyCase)
{
    makeDirectory("Roms");
    makeDirectory("Roms/España");
    makeFile("Roms/España/Juego.ZIP");
    EXPECT_EQ(findOnDisk(path(u"ROMS/ESPAÑA/JUEGO.zip"_s)), place("Roms/España/Juego.ZIP"));
    EXPECT_EQ(trueSpelling(path(u"roms/españa/juego.zip"_s)), path(u"Roms/España/Juego.ZIP"_s));
}

TEST_F(Finding, FirstInTheOrderOfCapitalsIsFound_WhereNoneIsSpelledSo)
{
    makeFile("gaME");
    makeFile("Game");
    makeFile("gAME");
    EXPECT_EQ(findOnDisk(path(u"game"_s)), place("Game"));
    makeFile("GAme");
    EXPECT_EQ(findOnDisk(path(u"game"_s)), place("GAme"));
}

TEST_F(Finding, BothSeparatorsAreUnderstood)
{
    makeDirectory("sub");
    makeDirectory("sub/deep");
    makeFile("sub/deep/a");
    EXPECT_EQ(findOnDisk(path(u"sub\\deep/a"_s)), place("sub/deep/a"));
    EXPECT_EQ(findOnDisk(path(u"SUB\\DEEP\\A"_s)), place("sub/deep/a"));
    EXPECT_EQ(findOnDisk(path().replace(u'/', u'\\') + u"\\sub"_s), place("sub"));
}

TEST_F(Finding, DoubledSeparatorsCountAsOne)
{
    makeDirectory("sub");
    makeFile("sub/a");
    EXPECT_EQ(findOnDisk(path(u"sub//a"_s)), place("sub/a"));
    EXPECT_EQ(findOnDisk(path(u"sub\\\\a"_s)), place("sub/a"));
    EXPECT_EQ(findOnDisk(path(u"sub/\\a"_s)), place("sub/a"));
}

TEST_F(Finding, ClosingSeparatorIsKept_AndFitsADirectoryAlone)
{
    makeDirectory("sub");
    makeFile("file");
    makeLink("sub", "link");
    EXPECT_EQ(findOnDisk(path(u"SUB/"_s)), place("sub/"));
    EXPECT_EQ(findOnDisk(path(u"SUB\\"_s)), place("sub/"));
    EXPECT_EQ(findOnDisk(path(u"link/"_s)), place("link/"));
    EXPECT_EQ(findOnDisk(path(u"file/"_s)), QByteArray());
    EXPECT_EQ(findOnDisk(path(u"file\\"_s)), QByteArray());
}

TEST_F(Finding, BackslashInANameIsPartOfIt)
{
    makeDirectory("sub");
    makeFile("sub/a");
    makeFile("Sub\\A");
    EXPECT_EQ(findOnDisk(path(u"Sub\\A"_s)), place("Sub\\A"));
    EXPECT_EQ(findOnDisk(path(u"sub\\a"_s)), place("Sub\\A"));
    EXPECT_EQ(findOnDisk(path(u"sub/a"_s)), place("sub/a"));
}

TEST_F(Finding, BackslashSeparates_WhereTheNamesWithItDoNotFit)
{
    makeDirectory("sub");
    makeDirectory("sub/deep");
    makeFile("sub/deep/a");
    makeFile("sub\\deep"); // a file: nothing can lie in it
    makeFile("sub/b\\c");
    EXPECT_EQ(findOnDisk(path(u"sub\\deep\\a"_s)), place("sub/deep/a"));
    EXPECT_EQ(findOnDisk(path(u"sub\\b\\c"_s)), place("sub/b\\c"));
}

TEST_F(Finding, NamesThatBeginOrEndWithABackslashAreFound)
{
    makeFile("\\a");
    makeFile("a\\");
    EXPECT_EQ(findOnDisk(path(u"\\a"_s)), place("\\a"));
    EXPECT_EQ(findOnDisk(path(u"a\\"_s)), place("a\\"));
}

TEST_F(Finding, PointsAndBlanksAtTheEndDoNotCount_WhereNothingHasThem)
{
    makeDirectory("Docs");
    makeFile("Docs/README");
    makeFile("Docs/other.");
    makeFile("Docs/OTHER");
    EXPECT_EQ(host::findOnDisk(path(u"docs. /readme."_s)), place("Docs/README"));
    EXPECT_EQ(host::findOnDisk(path(u"docs/readme. . "_s)), place("Docs/README"));
    EXPECT_EQ(host::findOnDisk(path(u"docs/Other."_s)), place("Docs/other."));
    EXPECT_EQ(host::findOnDisk(path(u"docs/..."_s)), QByteArray());
    EXPECT_EQ(host::findOnDisk(path(u"docs/ "_s)), QByteArray());
    EXPECT_EQ(host::findForWriting(path(u"docs/new."_s)), place("Docs/new."));
}

TEST_F(Finding, RelativePathsStandInTheWorkingDirectory)
{
    makeDirectory("Sub");
    makeFile("Sub/a");
    changeDirectory(path());
    EXPECT_EQ(findOnDisk(u"SUB/A"_s), "Sub/a");
    EXPECT_EQ(findOnDisk(u"./sub"_s), "./Sub");
    changeDirectory(u"sub"_s);
    EXPECT_EQ(findOnDisk(u"A"_s), "a");
    EXPECT_EQ(findOnDisk(u"../SUB/a"_s), "../Sub/a");
    EXPECT_EQ(findOnDisk(u"."_s), ".");
}

TEST_F(Finding, LinksAreNotFollowedInTheSpelling)
{
    makeDirectory("sub");
    makeFile("sub/a");
    makeLink("sub", "Link");
    makeLink("nowhere", "Broken");
    EXPECT_EQ(findOnDisk(path(u"link/A"_s)), place("Link/a"));
    EXPECT_EQ(findOnDisk(path(u"broken"_s)), place("Broken"));
}

TEST_F(Finding, NamesThatAreNoUtf8AreFound)
{
    makeFile("Espa\xF1"
             "a.ZIP");
    EXPECT_EQ(findOnDisk(path(u"Espa\uF7F1a.ZIP"_s)),
        place("Espa\xF1"
              "a.ZIP"));
    EXPECT_EQ(findOnDisk(path(u"espa\uF7F1A.zip"_s)),
        place("Espa\xF1"
              "a.ZIP"));
}

TEST_F(Finding, ExactSpellingIsFound_InADirectoryThatCannotBeListed)
{
    makeDirectory("closed");
    makeFile("closed/a");
    setMode("closed", 0111);
    const int status = inChildOfOrdinaryUser([this] {
        return findOnDisk(path(u"closed/a"_s)) == place("closed/a")
                && findOnDisk(path(u"closed/A"_s)).isEmpty()
            ? 0
            : 1;
    });
    EXPECT_EQ(status, 0);
}

TEST_F(Finding, PathToBeMadeHasItsDirectoryAsFound)
{
    makeDirectory("Sub");
    makeFile("Sub/Old.txt");
    EXPECT_EQ(findForWriting(path(u"SUB/New.txt"_s)), place("Sub/New.txt"));
    EXPECT_EQ(findForWriting(path(u"SUB\\New.txt"_s)), place("Sub/New.txt"));
    EXPECT_EQ(findForWriting(path(u"SUB/OLD.TXT"_s)), place("Sub/Old.txt"));
    EXPECT_EQ(findForWriting(path(u"Sub/New/"_s)), place("Sub/New"));
    EXPECT_EQ(findForWriting(path(u"sub\\"_s)), place("Sub"));
    makeFile("Sub/x\\");
    EXPECT_EQ(findForWriting(path(u"Sub/X\\"_s)), place("Sub/x\\"));
    EXPECT_EQ(findForWriting(path(u"none/New.txt"_s)), QByteArray());
    EXPECT_EQ(findForWriting(path(u"Sub/Old.txt/a"_s)), QByteArray());
    EXPECT_EQ(findForWriting(QString()), QByteArray());
    EXPECT_EQ(findForWriting(u"New.txt"_s), "New.txt");
    EXPECT_EQ(findForWriting(u"/none.txt"_s), "/none.txt");
}

using WorkingDirectory = DiskTest;

TEST_F(WorkingDirectory, ChangesToADirectoryInAnyCase)
{
    makeDirectory("Sub");
    changeDirectory(path(u"SUB/"_s));
    EXPECT_EQ(currentDirectory(), path(u"Sub"_s));
}

TEST_F(WorkingDirectory, ChangeFails_WhereThereIsNoSuchDirectory)
{
    makeFile("file");
    EXPECT_EQ(failureOf([this] { changeDirectory(path(u"none"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { changeDirectory(path(u"file"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([] { changeDirectory(QString()); }), PathNotFound);
}

TEST_F(WorkingDirectory, IsEmpty_WhenItHasBeenDeleted)
{
    makeDirectory("sub");
    changeDirectory(path(u"sub"_s));
    ASSERT_EQ(rmdir(place("sub").constData()), 0);
    EXPECT_EQ(currentDirectory(), QString());
}

TEST(ProgramDirectory, IsThatOfTheExecutable_UnlessATestSetsAnother)
{
    const QString own = programDirectory();
    EXPECT_EQ(access((own + u"/host_files_tests"_s).toUtf8().constData(), X_OK), 0) << own.toStdString();
    setProgramDirectory(u"/some/where"_s);
    EXPECT_EQ(programDirectory(), u"/some/where"_s);
    EXPECT_EQ(programFile(u"Zembro.cfg"_s), u"/some/where/Zembro.cfg"_s);
    setProgramDirectory(QString());
    EXPECT_EQ(programDirectory(), own);
}

TEST(EndlessPaths, AreNoneAtOnce)
{
    for (const QString &piece : { u"\\"_s, u"x\\"_s, u"/"_s, u"x"_s }) {
        QElapsedTimer time;
        time.start();
        EXPECT_EQ(host::findOnDisk(piece.repeated(1'000'000)), QByteArray());
        EXPECT_EQ(host::findOnDisk(u"/tmp/"_s + piece.repeated(30'000)), QByteArray());
        EXPECT_LT(time.elapsed(), 1000);
    }
}

TEST_F(Finding, ADirectorysPathIsAbsoluteInItsTrueSpellingWithoutAClosingSeparator)
{
    makeDirectory("Games");
    makeDirectory("Games/Old ones");
    makeFile("file");
    makeLink("Games", "link");
    for (const QString &typed : { u"Games/Old ones"_s, u"games/OLD ONES/"_s, u"Games\\old ones\\"_s,
             u"Games/./Old ones/../Old ones"_s, u"link/../games/old_ones"_s })
        EXPECT_EQ(directoryPath(path(typed)), path(u"Games/Old ones"_s)) << typed.toStdString();
    EXPECT_EQ(directoryPath(path(u"LINK/"_s)), path(u"link"_s));
    EXPECT_EQ(directoryPath(u"/"_s), u"/"_s);
    EXPECT_EQ(directoryPath(u"/../"_s), u"/"_s);
    changeDirectory(path());
    EXPECT_EQ(directoryPath(u"games"_s), path(u"Games"_s));
    EXPECT_EQ(directoryPath(u"."_s), path());
    for (const QString &none : { QString(), path(u"none"_s), path(u"file"_s) })
        EXPECT_EQ(failureOf([&none] { directoryPath(none); }), PathNotFound) << none.toStdString();
}

TEST_F(Finding, NamesInADirectoryAreSpelledAsTheirWholePathsAre)
{
    for (const char *name : { "Game.nes", "game.NES", "A B.c.d", "a\\b", "caf\xe9", "dot." })
        makeFile(name);
    makeDirectory("Sub");
    makeFile("Sub/inner");
    for (const QString &directory :
        { path() + u'/', path(), path() + u"/sub/"_s, path() + u"/none/"_s, u""_s }) {
        const NamesIn names(directory);
        for (const QString &name : { u"Game.nes"_s, u"GAME.NES"_s, u"game.nes"_s, u"a_b_c.d"_s, u"A B.C.D"_s,
                 u"a\\b"_s, u"sub\\inner"_s, u"Sub/inner"_s, u"none"_s, u""_s, u"."_s, u".."_s, u"dot"_s,
                 u"dot."_s, u"game.nes. "_s, u"sub"_s, u"sub/"_s, u"/Game.nes"_s, nameFromDisk("caf\xe9"),
                 QString(300, u'x'), QString(QChar::Null) })
            EXPECT_EQ(names.trueSpelling(directory + name), trueSpelling(directory + name))
                << directory.toStdString() << ' ' << name.toStdString();
    }
}
