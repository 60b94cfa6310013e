#include "disktest.h"
#include "systemcalls.h"

#include "host/paths.h"

#include <cerrno>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace host;
using testing::ElementsAre;

namespace {

class TemporaryPath : public DiskTest {
protected:
    TemporaryPath() { qputenv("TMPDIR", place()); }
    ~TemporaryPath() override
    {
        if (m_before.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", m_before);
    }

    // The user's own directory in a shared one.
    QByteArray own() const { return "zembrolix-" + QByteArray::number(geteuid()); }

private:
    QByteArray m_before = qgetenv("TMPDIR");
};

constexpr mode_t Shared = 01777;

} // namespace

TEST_F(TemporaryPath, IsTheSystems_WhereItBelongsToTheUserAlone)
{
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), path() + u'/');
    qputenv("TMPDIR", place() + '/');
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), path() + u'/');
    EXPECT_THAT(names(), ElementsAre());
}

TEST_F(TemporaryPath, IsADirectoryOfTheUsersOwn_InASharedOne)
{
    setMode({}, Shared);
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), path() + u'/' + QString::fromLatin1(own()) + u'/');
    EXPECT_EQ(mode(own()), 0700u);
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), path() + u'/' + QString::fromLatin1(own()) + u'/');
}

TEST_F(TemporaryPath, IsClosedToOthers_WhenItStoodOpen)
{
    setMode({}, Shared);
    makeDirectory(own());
    setMode(own(), 0777);
    EXPECT_NE(temporaryPath(u"zembrolix"_s), QString());
    EXPECT_EQ(mode(own()), 0700u);
}

TEST_F(TemporaryPath, IsEmpty_WhereALinkOrAFileStandsInItsPlace)
{
    setMode({}, Shared);
    makeDirectory("elsewhere");
    makeLink("elsewhere", own());
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), QString());
    ASSERT_EQ(unlink(place(own()).constData()), 0);
    makeFile(own());
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), QString());
}

TEST_F(TemporaryPath, IsEmpty_WhereItIsSomebodyElses)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give a directory away";
    setMode({}, Shared);
    makeDirectory(own());
    ASSERT_EQ(chown(place(own()).constData(), 65534, 65534), 0);
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), QString());
}

TEST_F(TemporaryPath, IsEmpty_WhereItCannotBeMade)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can own the directory in another user's stead";
    const int status = inChildOfOrdinaryUser([] { return temporaryPath(u"zembrolix"_s).isEmpty() ? 0 : 1; });
    EXPECT_EQ(status, 0);
}

TEST_F(TemporaryPath, IsInTheUsualPlace_WhereTheVariableNamesNoDirectory)
{
    makeDirectory("relative");
    ASSERT_EQ(chdir(place().constData()), 0);
    for (const QByteArray &value : { QByteArray(), place("none"), QByteArray("relative") }) {
        qputenv("TMPDIR", value);
        EXPECT_TRUE(temporaryPath(u"zembrolix-test"_s).startsWith(u"/tmp/"_s)) << value.constData();
        tidyTemporaryPath(u"zembrolix-test"_s);
    }
}

TEST_F(TemporaryPath, NameThatIsNoUtf8IsKept)
{
    makeDirectory("tmp\xF1");
    qputenv("TMPDIR", place("tmp\xF1"));
    EXPECT_EQ(temporaryPath(u"zembrolix"_s), path(u"tmp\uF7F1/"_s));
}

TEST_F(TemporaryPath, OwnDirectoryGoes_IfItIsEmpty)
{
    setMode({}, Shared);
    temporaryPath(u"zembrolix"_s);
    makeFile(own() + "/a");
    tidyTemporaryPath(u"zembrolix"_s);
    EXPECT_TRUE(exists(own() + "/a"));
    ASSERT_EQ(unlink(place(own() + "/a").constData()), 0);
    tidyTemporaryPath(u"zembrolix"_s);
    EXPECT_FALSE(exists(own()));
}

TEST_F(TemporaryPath, IsMadeClosedAndRemoved_WhenAnyOfItsCallsIsInterrupted)
{
    setMode({}, Shared);
    for (const bool standsOpen : { false, true }) {
        for (const char *call : { "stat", "mkdir", "open", "fstat", "fchmod", "rmdir" }) {
            if (standsOpen) {
                makeDirectory(own());
                setMode(own(), 0777);
            }
            const systemcalls::FaultOf interruptions(call, EINTR, 2);
            EXPECT_EQ(temporaryPath(u"zembrolix"_s), path() + u'/' + QString::fromLatin1(own()) + u'/')
                << call;
            EXPECT_EQ(mode(own()), 0700u) << call;
            tidyTemporaryPath(u"zembrolix"_s);
            EXPECT_FALSE(exists(own())) << call;
        }
    }
}

TEST_F(TemporaryPath, SystemsDirectoryStaysWithAllThatIsInIt)
{
    makeDirectory("tmp");
    makeDirectory("tmp/" + own());
    qputenv("TMPDIR", place("tmp"));
    temporaryPath(u"zembrolix"_s);
    tidyTemporaryPath(u"zembrolix"_s);
    EXPECT_TRUE(exists("tmp/" + own()));
}
