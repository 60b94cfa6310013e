#include "disktest.h"

#include "host/numberedfiles.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace host;
using testing::ElementsAre;

namespace {

const QString Scratch = u"Zembro.tmp"_s;

QString unchanged(const QString &text)
{
    return text;
}

QString changed(const QString &text)
{
    return text + u"new\r\n"_s;
}

class Rewriting : public DiskTest {
protected:
    void rewrite(const QString &name) { files.rewrite(path(name), Scratch, changed); }

    NumberedFiles files;
};

} // namespace

TEST_F(Rewriting, FileBecomesWhatIsMadeOfItsText)
{
    makeFile("Zembro.cfg", "a\xF1\r\nb\n");
    files.rewrite(path(u"Zembro.cfg"_s), Scratch, [](const QString &text) {
        EXPECT_EQ(text, u"añ\r\nb\n"_s);
        return u"€ "_s + text;
    });
    EXPECT_EQ(bytes("Zembro.cfg"), "\x80 a\xF1\r\nb\n");
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(Rewriting, UnchangedTextComesBackByteForByte)
{
    const QByteArray plain("a\x81\r\r\n \t\n\xFF\x1A");
    const QByteArray utf8("\xEF\xBB\xBF\xC3\xB1\r\n");
    makeFile("plain", plain);
    makeFile("utf8", utf8);
    files.rewrite(path(u"plain"_s), Scratch, unchanged);
    files.rewrite(path(u"utf8"_s), Scratch, unchanged);
    EXPECT_EQ(bytes("plain"), plain);
    EXPECT_EQ(bytes("utf8"), utf8);
}

TEST_F(Rewriting, EncodingIsKept_AndMovesToUtf8WhereItMust)
{
    makeFile("utf8", "\xC3\xB1\r\n");
    makeFile("plain", "\xF1\r\n");
    rewrite(u"utf8"_s);
    files.rewrite(path(u"plain"_s), Scratch, [](const QString &text) { return text + u"Ω"_s; });
    EXPECT_EQ(bytes("utf8"), "\xC3\xB1\r\nnew\r\n");
    EXPECT_EQ(bytes("plain"), "\xC3\xB1\r\n\xCE\xA9");
}

TEST_F(Rewriting, NewTextStandsAheadOfTheEndMark)
{
    makeFile("a", "old\r\n\x1A");
    rewrite(u"a"_s);
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n\x1A");
}

TEST_F(Rewriting, SpellingOnTheDiskIsKept)
{
    makeFile("ZEMBRO.Cfg", "old\r\n");
    rewrite(u"zembro.cfg"_s);
    EXPECT_EQ(bytes("ZEMBRO.Cfg"), "old\r\nnew\r\n");
    EXPECT_THAT(names(), ElementsAre("ZEMBRO.Cfg"));
}

TEST_F(Rewriting, RelativePathStandsInTheWorkingDirectory)
{
    makeFile("a", "old\r\n");
    ASSERT_EQ(chdir(place().constData()), 0);
    files.rewrite(u"a"_s, Scratch, changed);
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n");
}

TEST_F(Rewriting, ModeIsKept)
{
    makeFile("a");
    for (const mode_t mode : { 0600, 0640, 0664, 0755 }) {
        setMode("a", mode);
        rewrite(u"a"_s);
        EXPECT_EQ(this->mode("a"), mode);
    }
}

TEST_F(Rewriting, OwnerIsKept)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give a file away";
    makeFile("a");
    setMode("a", 06755);
    ASSERT_EQ(chown(place("a").constData(), 1, 2), 0);
    setMode("a", 06755);
    rewrite(u"a"_s);
    struct stat status;
    ASSERT_EQ(stat(place("a").constData(), &status), 0);
    EXPECT_EQ(status.st_uid, 1u);
    EXPECT_EQ(status.st_gid, 2u);
    EXPECT_EQ(mode("a"), 06755u);
}

TEST_F(Rewriting, FileOfAnotherUserIsRewritten_WhereThatIsAllowed)
{
    setMode({}, 0777);
    makeFile("a", "old\r\n");
    setMode("a", 0666);
    const int status = inChildOfOrdinaryUser([this] { return failureOf([this] { rewrite(u"a"_s); }); });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n");
    EXPECT_EQ(mode("a"), 0666u);
}

TEST_F(Rewriting, LinkIsFollowed_AndTheWorkIsDoneBesideItsTarget)
{
    makeDirectory("real");
    makeDirectory("program");
    makeFile("real/Catalogue", "old\r\n");
    makeLink("../real/Catalogue", "program/second");
    makeLink("second", "program/Zembro.emu");
    bool scratchBesideTarget = false;
    makeFile("program/Zembro.tmp", "left over");
    rewrite(u"program/zembro.emu"_s);
    scratchBesideTarget = bytes("program/Zembro.tmp") == "left over";
    EXPECT_TRUE(scratchBesideTarget);
    EXPECT_EQ(bytes("real/Catalogue"), "old\r\nnew\r\n");
    EXPECT_EQ(bytes("program/Zembro.emu"), "old\r\nnew\r\n");
    struct stat status;
    ASSERT_EQ(lstat(place("program/Zembro.emu").constData(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_FALSE(exists("real/Zembro.tmp"));
}

TEST_F(Rewriting, LinksInACircleFail)
{
    makeLink("b", "a");
    makeLink("a", "b");
    EXPECT_EQ(failureOf([this] { rewrite(u"a"_s); }), PathAccess);
}

TEST_F(Rewriting, LeftOverScratchFileIsOverwritten)
{
    makeFile("a", "old\r\n");
    makeFile("Zembro.tmp", QByteArray(100000, 'x'));
    setMode("Zembro.tmp", 0444);
    rewrite(u"a"_s);
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n");
    EXPECT_NE(mode("a"), 0444u);
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(Rewriting, NothingIsWrittenThroughALinkUnderTheScratchName)
{
    makeFile("a", "old\r\n");
    makeFile("precious", "precious");
    makeLink("precious", "Zembro.tmp");
    rewrite(u"a"_s);
    EXPECT_EQ(bytes("precious"), "precious");
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n");
    EXPECT_THAT(names(), ElementsAre("a", "precious"));
}

TEST_F(Rewriting, PipeUnderTheScratchNameGivesWay)
{
    makeFile("a", "old\r\n");
    ASSERT_EQ(mkfifo(place("Zembro.tmp").constData(), 0600), 0);
    rewrite(u"a"_s);
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n");
}

TEST_F(Rewriting, Fails_WhereADirectoryStandsUnderTheScratchName)
{
    makeFile("a", "old\r\n");
    makeDirectory("Zembro.tmp");
    EXPECT_EQ(failureOf([this] { rewrite(u"a"_s); }), PathAccess);
    EXPECT_EQ(bytes("a"), "old\r\n");
}

TEST_F(Rewriting, Fails_WhereThereIsNoFile)
{
    EXPECT_EQ(failureOf([this] { rewrite(u"none"_s); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { rewrite(u"none/none"_s); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { files.rewrite(QString(), Scratch, changed); }), PathNotFound);
    EXPECT_FALSE(files.isOpen(1));
    EXPECT_FALSE(files.isOpen(2));
    EXPECT_THAT(names(), ElementsAre());
}

TEST_F(Rewriting, Fails_OfWhatIsNoFile)
{
    makeDirectory("dir");
    ASSERT_EQ(mkfifo(place("pipe").constData(), 0600), 0);
    EXPECT_EQ(failureOf([this] { rewrite(u"dir"_s); }), PathAccess);
    EXPECT_EQ(failureOf([this] { rewrite(u"pipe"_s); }), PathAccess);
    EXPECT_THAT(names(), ElementsAre("dir", "pipe"));
}

TEST_F(Rewriting, Fails_WhereTheScratchNameIsNoneBesideTheFile)
{
    makeFile("a", "old\r\n");
    for (const QString &scratch : { u"a"_s, u"../b"_s, QString() })
        EXPECT_EQ(failureOf([&] { files.rewrite(path(u"a"_s), scratch, changed); }), InvalidArgument);
    EXPECT_EQ(bytes("a"), "old\r\n");
}

TEST_F(Rewriting, Fails_WhileEitherOfItsNumbersIsInUse)
{
    makeFile("a", "old\r\n");
    for (const int number : { 1, 2 }) {
        files.openForInput(number, path(u"a"_s));
        EXPECT_EQ(failureOf([this] { rewrite(u"a"_s); }), FileAlreadyOpen);
        EXPECT_EQ(failureOf([this] { files.replace(path(u"a"_s), Scratch, u"x"_s); }), FileAlreadyOpen);
        EXPECT_TRUE(files.isOpen(number));
        files.close(number);
    }
    EXPECT_EQ(bytes("a"), "old\r\n");
}

TEST_F(Rewriting, NumbersAreInUseMeanwhile_AndFreeAfterwards)
{
    makeFile("a", "old\r\n");
    files.openForInput(3, path(u"a"_s));
    files.rewrite(path(u"a"_s), Scratch, [this](const QString &text) {
        EXPECT_EQ(failureOf([this] { files.openForInput(1, path(u"a"_s)); }), FileAlreadyOpen);
        EXPECT_EQ(failureOf([this] { files.openForInput(2, path(u"a"_s)); }), FileAlreadyOpen);
        EXPECT_EQ(failureOf([this] { rewrite(u"a"_s); }), FileAlreadyOpen);
        return text;
    });
    EXPECT_FALSE(files.isOpen(1));
    EXPECT_FALSE(files.isOpen(2));
    EXPECT_TRUE(files.isOpen(3));
}

TEST_F(Rewriting, NumbersStayInUse_AfterAFailedChange)
{
    makeFile("a", "old\r\n");
    const auto failing = [](const QString &) -> QString { throw Failure(OutOfRange, u"read a table"_s); };
    EXPECT_EQ(failureOf([&] { files.rewrite(path(u"a"_s), Scratch, failing); }), OutOfRange);
    EXPECT_TRUE(files.isOpen(1));
    EXPECT_TRUE(files.isOpen(2));
    EXPECT_EQ(failureOf([this] { rewrite(u"a"_s); }), FileAlreadyOpen);
    EXPECT_EQ(bytes("a"), "old\r\n");
    EXPECT_THAT(names(), ElementsAre("a"));
    files.closeAll();
    rewrite(u"a"_s);
    EXPECT_EQ(bytes("a"), "old\r\nnew\r\n");
}

TEST_F(Rewriting, LockIsGivenBack_AfterAFailedChange)
{
    makeFile("a", "old\r\n");
    const auto failing = [](const QString &) -> QString { throw Failure(OutOfRange, u"read a table"_s); };
    EXPECT_EQ(failureOf([&] { files.rewrite(path(u"a"_s), Scratch, failing); }), OutOfRange);
    const int status = inChild([this] {
        alarm(10); // would wait for ever
        return failureOf([this] { NumberedFiles().rewrite(path(u"a"_s), Scratch, changed); });
    });
    EXPECT_EQ(status, 0);
}

using Replacing = Rewriting;

TEST_F(Replacing, FileIsMade_WhereThereIsNone)
{
    const mode_t mask = umask(027);
    files.replace(path(u"Zembro.cfg"_s), Scratch, u"ñ\r\n"_s);
    umask(mask);
    EXPECT_EQ(bytes("Zembro.cfg"), "\xF1\r\n");
    EXPECT_EQ(mode("Zembro.cfg"), 0640u);
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(Replacing, OldFileGoes_ButItsSpellingEncodingAndModeStay)
{
    makeFile("ZEMBRO.CFG", "\xEF\xBB\xBFVACIO\r\n\x1A");
    setMode("ZEMBRO.CFG", 0600);
    files.replace(path(u"Zembro.cfg"_s), Scratch, u"ñ\r\n"_s);
    EXPECT_EQ(bytes("ZEMBRO.CFG"), "\xEF\xBB\xBF\xC3\xB1\r\n");
    EXPECT_EQ(mode("ZEMBRO.CFG"), 0600u);
    EXPECT_THAT(names(), ElementsAre("ZEMBRO.CFG"));
}

TEST_F(Replacing, TargetOfALinkIsMade_WhereItIsMissing)
{
    makeDirectory("real");
    makeLink("real/Target", "link");
    files.replace(path(u"link"_s), Scratch, u"x"_s);
    EXPECT_EQ(bytes("real/Target"), "x");
    EXPECT_EQ(bytes("link"), "x");
}

TEST_F(Replacing, Fails_WhereThereIsNoSuchDirectory)
{
    EXPECT_EQ(failureOf([this] { files.replace(path(u"none/a"_s), Scratch, u"x"_s); }), PathNotFound);
    EXPECT_FALSE(files.isOpen(1));
}
