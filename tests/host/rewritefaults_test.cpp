// A rewrite that goes wrong: on the disk, by its rights, and by what others do meanwhile.
#include "disktest.h"
#include "systemcalls.h"

#include "host/numberedfiles.h"
#include "host/replacement.h"

#include <QFile>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using host::NumberedFiles;
using testing::ElementsAre;

namespace {

QString changed(const QString &text)
{
    return text + u"new line\r\n"_s;
}

class RewriteFaults : public DiskTest {
protected:
    RewriteFaults() { makeFile("Zembro.cfg", Old); }

    void rewrite() const { NumberedFiles().rewrite(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s, changed); }

    const QByteArray Old = "old line\r\n";
    const QByteArray New = "old line\r\nnew line\r\n";
};

} // namespace

TEST_F(RewriteFaults, NewFileStandsWhole_WhenTheSystemTakesFewBytesAtOnce)
{
    const int status = inChild([this] {
        systemcalls::setMostWritten(3);
        rewrite();
        return 0;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(bytes("Zembro.cfg"), New);
}

TEST_F(RewriteFaults, NewFileStandsWhole_WhenAnyOfItsCallsIsInterrupted)
{
    for (const char *call : { "open", "openat", "fstat", "fstatat", "read", "faccessat", "unlinkat", "write",
             "fchown", "fchmod", "fsync", "renameat", "flock" }) {
        makeFile("Zembro.cfg", Old);
        const systemcalls::FaultOf interruptions(call, EINTR, 2);
        EXPECT_EQ(failureOf([this] { rewrite(); }), 0) << call;
        EXPECT_EQ(bytes("Zembro.cfg"), New) << call;
        EXPECT_THAT(names(), ElementsAre("Zembro.cfg")) << call;
    }
}

TEST_F(RewriteFaults, OldFileStands_WhenTheNewOneDoesNotReachTheDisk)
{
    const systemcalls::FaultOf flushing("fsync", EIO, 1);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::DeviceError);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, NothingIsWrittenThroughALink_ThatComesUnderTheScratchNameAtTheLastMoment)
{
    makeFile("precious", "precious");
    makeLink("precious", "Zembro.tmp");
    // As if there had been nothing to remove.
    const systemcalls::FaultOf removing("unlinkat", ENOENT, 1);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::PathAccess);
    EXPECT_EQ(bytes("precious"), "precious");
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, ScratchFileThatAnotherProgramMadeIsNeitherPutInPlaceNorRemoved)
{
    QString words;
    try {
        host::Replacement replacement(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s);
        replacement.read();
        replacement.write(New);
        makeFile("another's", "the text of another file");
        ASSERT_EQ(rename(place("another's").constData(), place("Zembro.tmp").constData()), 0);
        replacement.commit();
    } catch (const host::Failure &failure) {
        words = QString::fromUtf8(failure.what());
    }
    EXPECT_EQ(words,
        u"failure 75: rewrite a file, as another program has taken the scratch file meanwhile: "_s
            + path(u"Zembro.cfg"_s));
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_EQ(bytes("Zembro.tmp"), "the text of another file");
}

TEST_F(RewriteFaults, OldFileStands_WhereTheScratchFileIsGone)
{
    const auto rewriteWithoutScratch = [this] {
        host::Replacement replacement(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s);
        replacement.read();
        replacement.write(New);
        ASSERT_EQ(unlink(place("Zembro.tmp").constData()), 0);
        replacement.commit();
    };
    EXPECT_EQ(failureOf(rewriteWithoutScratch), host::PathAccess);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(RewriteFaults, ChangeThatAnotherProgramMakesMeanwhileIsNotLost)
{
    const auto rewriteAfter = [this](const std::function<void()> &another) {
        NumberedFiles().rewrite(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s, [&another](const QString &text) {
            another();
            return changed(text);
        });
    };
    for (const QByteArray &another : { QByteArray("another text"), QByteArray("OLD LINE\r\n") }) {
        makeFile("Zembro.cfg", Old);
        usleep(20000); // the file system's clock ticks coarsely
        EXPECT_EQ(
            failureOf([&] { rewriteAfter([&] { makeFile("Zembro.cfg", another); }); }), host::PathAccess);
        EXPECT_EQ(bytes("Zembro.cfg"), another);
        makeFile("Zembro.cfg", Old);
        makeFile("beside", another);
        EXPECT_EQ(failureOf([&] {
            rewriteAfter([this] { rename(place("beside").constData(), place("Zembro.cfg").constData()); });
        }),
            host::PathAccess);
        EXPECT_EQ(bytes("Zembro.cfg"), another);
    }
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(RewriteFaults, ChangeOfTheLengthIsSeen_WhereTheTimeHasBeenSetBack)
{
    struct stat before { };
    ASSERT_EQ(stat(place("Zembro.cfg").constData(), &before), 0);
    const auto another = [&](const QString &text) {
        makeFile("Zembro.cfg", "longer than the old line");
        const timespec times[] = { before.st_atim, before.st_mtim };
        EXPECT_EQ(utimensat(AT_FDCWD, place("Zembro.cfg").constData(), times, 0), 0);
        return changed(text);
    };
    EXPECT_EQ(failureOf([&] { NumberedFiles().rewrite(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s, another); }),
        host::PathAccess);
    EXPECT_EQ(bytes("Zembro.cfg"), "longer than the old line");
}

TEST_F(RewriteFaults, FileThatAnotherProgramRemovesMeanwhileDoesNotComeBack)
{
    const auto rewriteTheGone = [this] {
        host::Replacement replacement(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s);
        replacement.read();
        replacement.write(New);
        ASSERT_EQ(unlink(place("Zembro.cfg").constData()), 0);
        replacement.commit();
    };
    EXPECT_EQ(failureOf(rewriteTheGone), host::PathAccess);
    EXPECT_THAT(names(), ElementsAre());
}

TEST_F(RewriteFaults, FileThatAnotherProgramMakesMeanwhileIsNotReplaced)
{
    const auto make = [this] {
        host::Replacement replacement(path(u"new"_s), u"Zembro.tmp"_s);
        EXPECT_FALSE(replacement.read());
        replacement.write(New);
        makeFile("new", "another's");
        replacement.commit();
    };
    EXPECT_EQ(failureOf(make), host::PathAccess);
    EXPECT_EQ(bytes("new"), "another's");
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg", "new"));
}

TEST_F(RewriteFaults, FailureNamesTheFileAndIsOfAFullDisk_WhenTheNewFileDoesNotFit)
{
    const QString large(100000, u'x');
    const int status = inChild([this, &large] {
        const rlimit limit { 4096, 4096 };
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        try {
            NumberedFiles().rewrite(
                path(u"Zembro.cfg"_s), u"Zembro.tmp"_s, [&](const QString &) { return large; });
        } catch (const host::Failure &failure) {
            return failure.about() == path(u"Zembro.cfg"_s) ? failure.number() : 1;
        }
        return 0;
    });
    EXPECT_EQ(status, host::DiskFull);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(RewriteFaults, OldFileStands_WhereTheUserMayNotWriteInTheDirectory)
{
    setMode({}, 0555);
    const int status = inChildOfOrdinaryUser([this] { return failureOf([this] { rewrite(); }); });
    setMode({}, 0755);
    EXPECT_NE(status, 0);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
    EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
}

TEST_F(RewriteFaults, ScratchFileCannotBeMade_WhereTheUserMayWriteTheFileButNotTheDirectory)
{
    setMode("Zembro.cfg", 0666);
    setMode({}, 0555);
    const int status = inChildOfOrdinaryUser([this] { return failureOf([this] { rewrite(); }); });
    setMode({}, 0755);
    EXPECT_EQ(status, host::PermissionDenied);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, FailureSaysThatWritingIsNotAllowedThere_AndOnlyThen)
{
    const auto wordsOf = [this](const char *call, int error) {
        const systemcalls::FaultOf fault(call, error);
        try {
            rewrite();
        } catch (const host::Failure &failure) {
            return failure.operation().section(u" ("_s, 0, 0);
        }
        return QString();
    };
    for (const int error : { EACCES, EPERM, EROFS })
        EXPECT_EQ(wordsOf("unlinkat", error), u"write beside a file, where writing isn't allowed"_s) << error;
    EXPECT_EQ(wordsOf("unlinkat", EIO), u"remove a left-over scratch file"_s);
}

// With which the program goes on: the numbers are free for the next try.
TEST_F(RewriteFaults, WhereNothingCanBeWrittenTheFailureSaysSoByItsKind)
{
    const auto kindOf = [this](const char *call, int error) {
        const systemcalls::FaultOf fault(call, error);
        host::NumberedFiles files;
        try {
            files.rewrite(path(u"Zembro.cfg"_s), u"Zembro.tmp"_s, [](const QString &) { return u"new"_s; });
        } catch (const host::ReadOnlyPlace &failure) {
            EXPECT_TRUE(failure.about().endsWith(u"Zembro.cfg"));
            return files.isOpen(1) || files.isOpen(2) ? u"read-only, in use"_s : u"read-only"_s;
        } catch (const host::Failure &) {
            return files.isOpen(1) && files.isOpen(2) ? u"fatal, in use"_s : u"fatal"_s;
        }
        return u"none"_s;
    };
    for (const int error : { EACCES, EPERM, EROFS })
        EXPECT_EQ(kindOf("unlinkat", error), u"read-only"_s) << error;
    for (const int error : { EIO, ENOSPC, EISDIR })
        EXPECT_EQ(kindOf("unlinkat", error), u"fatal, in use"_s) << error;
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, AFileIsReadOnlyWithItsDirectory_OrAloneAndThenFatally)
{
    const auto kind = [this] {
        return inChildOfOrdinaryUser([this] {
            const int place = host::liesInReadOnlyPlace(path(u"Zembro.cfg"_s)) ? 10 : 0;
            try {
                rewrite();
            } catch (const host::ReadOnlyPlace &) {
                return place + 1;
            } catch (const host::Failure &) {
                return place + 2;
            }
            return place;
        });
    };
    for (const mode_t file : { 0644, 0444, 0666 }) {
        setMode("Zembro.cfg", file);
        setMode({}, 0555);
        EXPECT_EQ(kind(), 11) << file;
        setMode({}, 0777);
        EXPECT_EQ(kind(), file == 0666 ? 0 : 2) << file;
        setMode("Zembro.cfg", 0666);
    }
    // By a link, the place of what it leads to counts.
    makeDirectory("other");
    ASSERT_TRUE(QFile::rename(path(u"Zembro.cfg"_s), path(u"other/real"_s)));
    ASSERT_TRUE(QFile::link(u"other/real"_s, path(u"Zembro.cfg"_s)));
    setMode("other", 0777);
    setMode({}, 0555);
    EXPECT_EQ(kind(), 0);
    setMode({}, 0777);
    setMode("other", 0555);
    EXPECT_EQ(kind(), 11);
    setMode("other", 0777);
    setMode({}, 0755);
}

TEST_F(RewriteFaults, RewriteFails_OfAFileThatOthersMayWriteButNotTheUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can own the file in another user's stead";
    setMode({}, 0777);
    setMode("Zembro.cfg", 0644);
    const int status = inChildOfOrdinaryUser([this] { return failureOf([this] { rewrite(); }); });
    EXPECT_EQ(status, host::PathAccess);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

TEST_F(RewriteFaults, RewriteFails_OfAFileThatItsOwnerMayNotWrite)
{
    setMode("Zembro.cfg", 0444);
    EXPECT_EQ(failureOf([this] { rewrite(); }), host::PathAccess);
    EXPECT_EQ(bytes("Zembro.cfg"), Old);
}

class RewriteOfAnothersFile : public RewriteFaults {
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only the administrator can give a file away";
        ASSERT_EQ(chown(place("Zembro.cfg").constData(), 12345, 12345), 0);
        setMode("Zembro.cfg", 0640);
    }
};

TEST_F(RewriteOfAnothersFile, ComesThrough_WhereItsOwnerOrModeCannotBeGiven)
{
    for (const char *call : { "fchown", "fchmod" }) {
        for (const int error : { EPERM, EINVAL, ENOSYS, EOPNOTSUPP }) {
            makeFile("Zembro.cfg", Old);
            ASSERT_EQ(chown(place("Zembro.cfg").constData(), 12345, 12345), 0);
            setMode("Zembro.cfg", 0640);
            const systemcalls::FaultOf giving(call, error);
            EXPECT_EQ(failureOf([this] { rewrite(); }), 0) << call << ' ' << error;
            EXPECT_EQ(bytes("Zembro.cfg"), New);
        }
    }
}

TEST_F(RewriteOfAnothersFile, Fails_WhereTheDeviceFailsAtTheGiving)
{
    for (const char *call : { "fchown", "fchmod" }) {
        const systemcalls::FaultOf giving(call, EIO);
        EXPECT_EQ(failureOf([this] { rewrite(); }), host::DeviceError) << call;
        EXPECT_EQ(bytes("Zembro.cfg"), Old);
        EXPECT_THAT(names(), ElementsAre("Zembro.cfg"));
    }
}
