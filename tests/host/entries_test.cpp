#include "disktest.h"

#include "systemcalls.h"

#include "host/helddirectory.h"
#include "host/lengths.h"
#include "host/paths.h"

#include <cerrno>
#include <chrono>
#include <optional>
#include <thread>
#include <vector>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace host;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

using Attributes = DiskTest;

TEST_F(Attributes, TellDirectoriesFromFiles)
{
    makeDirectory("Dir");
    makeFile("file");
    EXPECT_EQ(attributes(path(u"DIR"_s)), 16);
    EXPECT_EQ(attributes(path(u"dir\\"_s)), 16);
    EXPECT_EQ(attributes(path(u"file"_s)), 0);
    EXPECT_EQ(attributes(u"/"_s) & DirectoryAttribute, 16);
    EXPECT_EQ(attributes(path(u"dir/.."_s)), 16);
}

TEST_F(Attributes, OneIsAdded_WhereTheOwnerCannotWrite)
{
    makeDirectory("dir");
    makeFile("file");
    setMode("dir", 0555);
    setMode("file", 0477);
    EXPECT_EQ(attributes(path(u"dir"_s)), 17);
    EXPECT_EQ(attributes(path(u"file"_s)), 1);
}

TEST_F(Attributes, TwoIsAdded_ForAHiddenName)
{
    makeDirectory(".dir");
    makeFile(".file");
    setMode(".file", 0444);
    EXPECT_EQ(attributes(path(u".dir/"_s)), 18);
    EXPECT_EQ(attributes(path(u".file"_s)), 3);
    EXPECT_EQ(attributes(path(u".dir/."_s)), 16);
}

TEST_F(Attributes, LinkToADirectoryIsNone)
{
    makeDirectory("dir");
    makeLink("dir", "link");
    EXPECT_EQ(attributes(path(u"link"_s)), 0);
    EXPECT_EQ(attributes(path(u"link/"_s)), 0);
}

TEST_F(Attributes, LinkIsAsWritableAsWhatItLeadsTo)
{
    makeFile("file");
    makeLink("file", "link");
    EXPECT_EQ(attributes(path(u"link"_s)), 0);
    setMode("file", 0444);
    EXPECT_EQ(attributes(path(u"link"_s)), 1);
}

TEST_F(Attributes, Fail_WhereThereIsNoFile)
{
    makeLink("nowhere", "broken");
    EXPECT_EQ(failureOf([this] { attributes(path(u"none"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { attributes(path(u"none/none"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { attributes(path(u"broken"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([] { attributes(QString()); }), FileNotFound);
}

TEST_F(Attributes, ClearingLetsTheOwnerWriteAgain)
{
    makeFile("file");
    setMode("file", 0444);
    makeDirectory("dir");
    setMode("dir", 0511);
    clearAttributes(path(u"FILE"_s));
    clearAttributes(path(u"dir/"_s));
    EXPECT_EQ(mode("file"), 0644u);
    EXPECT_EQ(mode("dir"), 0711u);
    EXPECT_EQ(attributes(path(u"file"_s)), 0);
}

TEST_F(Attributes, ClearingFollowsNoLink)
{
    makeFile("file");
    setMode("file", 0444);
    makeLink("file", "link");
    makeDirectory("dir");
    setMode("dir", 0555);
    makeLink("dir", "to dir");
    clearAttributes(path(u"link"_s));
    clearAttributes(path(u"to dir/"_s));
    EXPECT_EQ(mode("file"), 0444u);
    EXPECT_EQ(mode("dir"), 0555u);
    EXPECT_EQ(failureOf([this] { clearAttributes(path(u"none"_s)); }), FileNotFound);
}

using Lengths = DiskTest;

namespace {

std::vector<qint64> allOf(const LengthsIn &lengths, const QStringList &names)
{
    const QList<qint64> all = lengths.ofAll(names);
    return { all.begin(), all.end() };
}

} // namespace

TEST_F(Lengths, AreInBytes)
{
    makeFile("Empty", "");
    makeFile("File", QByteArray(1234567, 'x'));
    makeLink("File", "link");
    EXPECT_EQ(fileLength(path(u"empty"_s)), 0);
    EXPECT_EQ(fileLength(path(u"file"_s)), 1234567);
    EXPECT_EQ(fileLength(path(u"link"_s)), 1234567);
}

TEST_F(Lengths, Fail_WhereThereIsNoFile)
{
    makeDirectory("dir");
    makeLink("nowhere", "broken");
    EXPECT_EQ(failureOf([this] { fileLength(path(u"none"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { fileLength(path(u"broken"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { fileLength(path(u"dir"_s)); }), FileNotFound);
}

TEST_F(Lengths, OfManyFilesOfADirectory_AreThoseOfEach)
{
    for (const char *directory : { "Roms", "Roms/deep", "Roms/dir.nes" })
        makeDirectory(directory);
    makeFile("Roms/One.nes", QByteArray(1, 'x'));
    makeFile("Roms/one.NES", QByteArray(2, 'x'));
    makeFile("Roms/deep/two.nes", QByteArray(3, 'x'));
    makeFile("Roms/a\\b.nes", QByteArray(4, 'x'));
    makeFile("Roms/trail", QByteArray(5, 'x'));
    makeFile("Roms/dir.nes/x", QByteArray(6, 'x'));
    makeFile("Roms/DIR.NES", QByteArray(7, 'x'));
    makeFile("Roms/\xE9.nes", QByteArray(8, 'x'));
    makeFile("Roms/with blank.nes", QByteArray(9, 'x'));
    makeFile("romsplain", QByteArray(10, 'x'));
    makeLink("nowhere", "Roms/broken");
    for (const QString &directory :
        { path(u"Roms/"_s), path(u"ROMS/"_s), path(u"roms"_s), path(u"none/"_s) }) {
        const LengthsIn lengths(directory);
        for (const QString &name :
            { u"One.nes"_s, u"ONE.NES"_s, u"one.NES"_s, u"oNe.nes"_s, u"deep/two.nes"_s, u"deep\\TWO.nes"_s,
                u"\\One.nes"_s, u"/One.nes"_s, u"a\\b.nes"_s, u"trail. ."_s, u"dir.nes"_s, u"Dir.Nes"_s,
                u"deep"_s, u"\uF7E9.nes"_s, u"with_blank.nes"_s, u"broken"_s, u"plain"_s, u".."_s, u""_s,
                u"gone"_s, QString(300, u'x'), QString(u"One.nes"_s + QChar::Null) }) {
            SCOPED_TRACE((directory + name).toStdString());
            qint64 length = -1;
            const int failure = failureOf([&] { length = fileLength(directory + name); });
            EXPECT_EQ(
                allOf(lengths, { name }), failure == 0 ? std::vector { length } : std::vector<qint64>());
            qint64 ofMany = -1;
            EXPECT_EQ(failureOf([&] { ofMany = lengths(directory + name); }), failure);
            EXPECT_EQ(ofMany, length);
            EXPECT_TRUE(failure == 0 || !lengths.lists(directory + name));
        }
    }
}

TEST_F(Lengths, AreSureToBeThere_OfPlainFilesThatAListingTells)
{
    makeDirectory("Roms");
    makeFile("Roms/One.nes", "abc");
    makeDirectory("Roms/dir.nes");
    makeLink("One.nes", "Roms/link.nes");
    const LengthsIn lengths(path(u"Roms/"_s));
    const int before = systemcalls::looks();
    EXPECT_TRUE(lengths.lists(path(u"Roms/One.nes"_s)));
    const int afterTheListing = systemcalls::looks();
    EXPECT_GT(afterTheListing, before) << "the looks aren't counted";
    EXPECT_TRUE(lengths.lists(path(u"Roms/oNE.NES"_s)));
    for (const QString &name : { u"dir.nes"_s, u"link.nes"_s, u"gone"_s, u""_s, u"../Roms/One.nes"_s })
        EXPECT_FALSE(lengths.lists(path(u"Roms/"_s) + name)) << name.toStdString();
    EXPECT_EQ(systemcalls::looks(), afterTheListing);
    EXPECT_FALSE(LengthsIn(path(u"none/"_s)).lists(path(u"none/One.nes"_s)));
}

TEST_F(Lengths, AndStates_TellOneFileFromAnotherAndFromItselfAfterAChange)
{
    makeDirectory("dir");
    makeFile("one", "abc");
    makeFile("two", "abc");
    makeLink("one", "link");
    const LengthsIn files(path(u""_s) + u'/');
    const auto state = [&](const QString &name) { return files.states({ path(name) }).front(); };
    while (!state(u"two"_s))
        std::this_thread::yield();
    EXPECT_EQ(state(u"one"_s), state(u"ONE"_s));
    EXPECT_EQ(state(u"one"_s), state(u"link"_s));
    EXPECT_NE(state(u"one"_s), state(u"two"_s));
    const auto before = state(u"one"_s);
    ASSERT_EQ(chmod(path(u"one"_s).toUtf8().constData(), 0600), 0);
    {
        const systemcalls::CoarseClock clock(systemcalls::CoarseClock::WholeSeconds);
        EXPECT_EQ(state(u"one"_s), std::nullopt) << "a further change might leave no trace";
    }
    while (!state(u"one"_s))
        std::this_thread::yield();
    EXPECT_NE(state(u"one"_s), before);
    EXPECT_EQ(state(u"none/one"_s), std::nullopt);
    for (const QString &name : { u"none"_s, u"dir"_s })
        EXPECT_EQ(failureOf([&] { state(name); }), FileNotFound);
}

// Thousands of them are asked for at once.
TEST_F(Lengths, OfManyFilesOfADirectory_TakeASingleLookEach_AtMostTheFirstMissBeingMore)
{
    makeFile("One.nes", "abc");
    const LengthsIn lengths(path(u""_s) + u'/');
    const int before = systemcalls::looks();
    EXPECT_EQ(lengths(path(u"One.nes"_s)), 3);
    EXPECT_EQ(systemcalls::looks(), before + 1);
    EXPECT_EQ(lengths(path(u"ONE.NES"_s)), 3);
    const int afterAMiss = systemcalls::looks();
    EXPECT_GT(afterAMiss, before + 2) << "the looks aren't counted";
    EXPECT_EQ(lengths(path(u"oNe.nes"_s)), 3);
    EXPECT_EQ(systemcalls::looks(), afterAMiss + 1);
}

TEST_F(Lengths, OfAll_EndAheadOfTheFirstThatCannotBeHad)
{
    makeDirectory("Roms");
    makeFile("Roms/One.nes", "abc");
    makeFile("Roms/two.nes", "abcd");
    const LengthsIn lengths(path(u"Roms/"_s));
    EXPECT_EQ(allOf(lengths, {}), std::vector<qint64>());
    EXPECT_EQ(
        allOf(lengths, { u"TWO.NES"_s, u"One.nes"_s, u"two.nes"_s }), (std::vector<qint64> { 4, 3, 4 }));
    EXPECT_EQ(allOf(lengths, { u"One.nes"_s, u"gone"_s, u"two.nes"_s }), std::vector<qint64> { 3 });
}

TEST_F(Lengths, OfAll_AreAskedForTogether_WhereEachTakesLong)
{
    constexpr int Files = 1000;
    makeDirectory("Roms");
    QStringList names;
    QList<qint64> sizes;
    for (int i = 0; i < Files; ++i) {
        names += u"Game %1.nes"_s.arg(i);
        sizes += i % 7;
        makeFile("Roms/" + names.last().toLatin1(), QByteArray(i % 7, 'x'));
    }
    const systemcalls::SlowLooks slow(1'000'000);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(LengthsIn(path(u"Roms/"_s)).ofAll(names), sizes);
    const auto taken = std::chrono::steady_clock::now() - start;
    EXPECT_LT(taken, std::chrono::milliseconds(Files / 2));
}

using Making = DiskTest;

TEST_F(Making, DirectoryIsMadeInADirectoryFoundInAnyCase)
{
    makeDirectory("Sub");
    host::makeDirectory(path(u"SUB\\New Dir\\"_s));
    EXPECT_EQ(attributes(path(u"Sub/New Dir"_s)), 16);
    host::makeDirectory(path(u"own"_s), 0700);
    EXPECT_EQ(mode("own"), 0700u);
}

TEST_F(Making, Fails_WhereItExistsOrCannotBe)
{
    makeDirectory("Sub");
    makeFile("file");
    EXPECT_EQ(failureOf([this] { host::makeDirectory(path(u"SUB"_s)); }), PathAccess);
    EXPECT_EQ(failureOf([this] { host::makeDirectory(path(u"file"_s)); }), PathAccess);
    EXPECT_EQ(failureOf([this] { host::makeDirectory(path(u"none/new"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([] { host::makeDirectory(QString()); }), PathNotFound);
    EXPECT_THAT(names(), ElementsAre("Sub", "file"));
}

TEST_F(Making, Fails_WhereTheUserMayNot)
{
    const int status =
        inChildOfOrdinaryUser([] { return failureOf([] { host::makeDirectory(u"/zembrolix-test"_s); }); });
    EXPECT_EQ(status, PathAccess);
}

TEST_F(Making, EmptyDirectoryIsRemoved)
{
    makeDirectory("Sub");
    removeDirectory(path(u"SUB/"_s));
    EXPECT_FALSE(exists("Sub"));
}

TEST_F(Making, RemovingFails_OfAnythingElse)
{
    makeDirectory("full");
    makeFile("full/a");
    makeDirectory("empty");
    makeLink("empty", "link");
    makeFile("file");
    EXPECT_EQ(failureOf([this] { removeDirectory(path(u"full"_s)); }), PathAccess);
    EXPECT_EQ(failureOf([this] { removeDirectory(path(u"link/"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { removeDirectory(path(u"file"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { removeDirectory(path(u"none"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([] { removeDirectory(QString()); }), PathNotFound);
    EXPECT_THAT(names(), ElementsAre("empty", "file", "full", "link"));
}

using Deleting = DiskTest;

TEST_F(Deleting, TakesPlainFilesAlone)
{
    makeDirectory("Dir");
    makeDirectory("Dir/sub");
    makeFile("Dir/sub/inner");
    makeFile("outer");
    makeFile("Dir/a.zip");
    makeFile("Dir/no point");
    makeFile("Dir/.hidden");
    makeFile("Dir/Espa\xF1"
             "a");
    makeLink("../outer", "Dir/link");
    makeLink("..", "Dir/up");
    makeFile("Dir/locked");
    setMode("Dir/locked", 0466);
    deleteFiles(path(u"DIR\\"_s));
    EXPECT_TRUE(exists("outer"));
    EXPECT_TRUE(exists("Dir/sub/inner"));
    EXPECT_TRUE(exists("Dir/link"));
    EXPECT_TRUE(exists("Dir/up"));
    EXPECT_TRUE(exists("Dir/locked"));
    EXPECT_FALSE(exists("Dir/a.zip"));
    EXPECT_FALSE(exists("Dir/no point"));
    EXPECT_FALSE(exists("Dir/.hidden"));
    EXPECT_FALSE(exists("Dir/Espa\xF1"
                        "a"));
}

TEST_F(Deleting, TakesReadOnlyFiles_OnceTheirAttributesAreCleared)
{
    makeFile("locked");
    setMode("locked", 0444);
    for (const QString &name : listPlainFiles(path()))
        clearAttributes(path(name));
    deleteFiles(path());
    EXPECT_THAT(names(), ElementsAre());
}

TEST_F(Deleting, TakesTheNamedFilesAlone)
{
    makeDirectory("dir");
    makeDirectory("dir/sub");
    makeFile("outer");
    for (const char *name : { "dir/a", "dir/A", "dir/b", "dir/c", "dir/sub/a" })
        makeFile(name);
    setMode("dir/c", 0444);
    deleteFiles(path(u"dir"_s), { u"a"_s, u"c"_s, u"none"_s, u"sub"_s, u"sub/a"_s, u"../outer"_s, u".."_s });
    EXPECT_FALSE(exists("dir/a"));
    EXPECT_TRUE(exists("dir/A"));
    EXPECT_TRUE(exists("dir/b"));
    EXPECT_TRUE(exists("dir/c"));
    EXPECT_TRUE(exists("dir/sub/a"));
    EXPECT_TRUE(exists("outer"));
}

TEST_F(Deleting, OneFile_TakesItInAnyCaseAndNothingElse)
{
    makeFile("One.pcx");
    makeFile("One.pcx2");
    makeFile("target");
    makeLink("target", "link");
    makeLink("nowhere", "broken");
    deleteFile(path(u"ONE.PCX"_s));
    deleteFile(path(u"link"_s));
    deleteFile(path(u"broken"_s));
    EXPECT_THAT(names(), ElementsAre("One.pcx2", "target"));
}

TEST_F(Deleting, OneFile_FailsWhereItIsMissingOrADirectoryOrMayNotBeWritten)
{
    makeDirectory("dir.pcx");
    makeLink("dir.pcx", "to dir");
    makeFile("locked");
    setMode("locked", 0444);
    EXPECT_EQ(failureOf([this] { deleteFile(path(u"none"_s)); }), FileNotFound);
    EXPECT_EQ(failureOf([] { deleteFile({}); }), FileNotFound);
    EXPECT_EQ(failureOf([this] { deleteFile(path(u"dir.pcx"_s)); }), PathAccess);
    EXPECT_EQ(failureOf([this] { deleteFile(path(u"to dir"_s)); }), PathAccess);
    EXPECT_EQ(failureOf([this] { deleteFile(path(u"locked"_s)); }), PathAccess);
    EXPECT_THAT(names(), ElementsAre("dir.pcx", "locked", "to dir"));
}

TEST_F(Deleting, TakesFiles_WhenAnyOfItsCallsIsInterrupted)
{
    for (const char *call : { "open", "openat", "fstat", "fstatat", "unlinkat" }) {
        makeDirectory("d");
        makeFile("d/a");
        makeFile("d/b");
        const HeldDirectory held(path(u"d"_s));
        const systemcalls::FaultOf interruptions(call, EINTR, 2);
        EXPECT_TRUE(held.isAt(path(u"d"_s))) << call;
        HeldDirectory(path(u"d"_s)).deleteFiles();
        EXPECT_FALSE(exists("d/a") || exists("d/b")) << call;
        ASSERT_EQ(rmdir(place("d").constData()), 0);
    }
}

TEST_F(Deleting, Fails_OfALinkInTheDirectorysPlace)
{
    makeDirectory("home");
    makeFile("home/letter");
    makeLink("home", "ZB-TMP");
    EXPECT_EQ(failureOf([this] { deleteFiles(path(u"ZB-TMP"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { deleteFiles(path(u"ZB-TMP/"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { deleteFiles(path(u"ZB-TMP/"_s), { u"letter"_s }); }), PathNotFound);
    EXPECT_TRUE(exists("home/letter"));
}

TEST_F(Deleting, Fails_OfAPathThatIsNotAbsolute)
{
    makeFile("a");
    changeDirectory(path());
    EXPECT_EQ(failureOf([] { deleteFiles(u"."_s); }), InvalidArgument);
    EXPECT_EQ(failureOf([] { deleteFiles(QString()); }), InvalidArgument);
    EXPECT_EQ(failureOf([] { deleteFiles(u"."_s, { u"a"_s }); }), InvalidArgument);
    EXPECT_TRUE(exists("a"));
}

TEST_F(Deleting, Fails_WhereThereIsNoSuchDirectory)
{
    makeFile("file");
    EXPECT_EQ(failureOf([this] { deleteFiles(path(u"none"_s)); }), PathNotFound);
    EXPECT_EQ(failureOf([this] { deleteFiles(path(u"file"_s)); }), PathNotFound);
    EXPECT_TRUE(exists("file"));
}

TEST_F(Deleting, LeavesWhatCannotBeDeleted)
{
    makeDirectory("dir");
    makeFile("dir/a");
    setMode("dir", 0555);
    const int status =
        inChildOfOrdinaryUser([this] { return failureOf([this] { deleteFiles(path(u"dir"_s)); }); });
    setMode("dir", 0755);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(exists("dir/a"));
}
