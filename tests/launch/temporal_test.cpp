// The directory for unpacked games: where it is, what the sweep takes, what it leaves.
#include "launch/temporal.h"

#include "escenario.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class TemporalTest : public Escenario {
protected:
    void dejaAlgo()
    {
        makeDirectory("tmp/ZB-TMP");
        setMode("tmp/ZB-TMP", 0700);
        makeFile("tmp/ZB-TMP/left.nes");
    }
};

TEST_F(TemporalTest, TheTemporaryPathIsTheUsersOwnWithItsSeparator)
{
    EXPECT_EQ(launch::DirectorioTemporal(), path(u"tmp/"_s));
    EXPECT_EQ(launch::RutaZBTMP(), path(u"tmp/ZB-TMP"_s));
}

TEST_F(TemporalTest, TheTemporaryPathIsAskedForAnew)
{
    EXPECT_EQ(launch::DirectorioTemporal(), path(u"tmp/"_s));
    makeDirectory("tmp2");
    setMode("tmp2", 0700);
    qputenv("TMPDIR", place("tmp2"));
    EXPECT_EQ(launch::DirectorioTemporal(), path(u"tmp2/"_s));
}

TEST_F(TemporalTest, InASharedDirectoryItLiesInOneOfTheUsersOwn)
{
    setMode("tmp", 01777);
    const QString propio = path(u"tmp/zembrolix-"_s) + QString::number(geteuid());
    EXPECT_EQ(launch::RutaZBTMP(), propio + u"/ZB-TMP"_s);
    launch::RecogeTemporal();
    EXPECT_EQ(access(propio.toUtf8().constData(), F_OK), -1) << "the empty directory was left";
}

TEST_F(TemporalTest, WithoutAPlaceItLiesInTheWorkingDirectory)
{
    setMode("tmp", 01777);
    makeLink("elsewhere", "tmp/zembrolix-" + QByteArray::number(geteuid()));
    EXPECT_EQ(launch::DirectorioTemporal(), QString());
    EXPECT_EQ(launch::RutaZBTMP(), path(u"program/ZB-TMP"_s));
}

TEST_F(TemporalTest, TheSweepRemovesWhatWasLeft_ReadOnlyAndHiddenFilesToo)
{
    dejaAlgo();
    makeFile("tmp/ZB-TMP/readonly.nes");
    setMode("tmp/ZB-TMP/readonly.nes", 0444);
    makeFile("tmp/ZB-TMP/.hidden");
    launch::BarreZBTMP(M);
    EXPECT_FALSE(exists("tmp/ZB-TMP"));
    EXPECT_TRUE(exists("tmp"));
    EXPECT_EQ(M.RutaTrabajo, path(u"tmp/ZB-TMP/"_s));
    EXPECT_EQ(M.DirActual, u"readonly.nes"_s);
}

TEST_F(TemporalTest, TheSweepLeavesSubdirectories_AndThenTheDirectory)
{
    dejaAlgo();
    makeDirectory("tmp/ZB-TMP/sub");
    makeFile("tmp/ZB-TMP/sub/in.nes");
    launch::BarreZBTMP(M);
    EXPECT_FALSE(exists("tmp/ZB-TMP/left.nes"));
    EXPECT_TRUE(exists("tmp/ZB-TMP/sub/in.nes"));
}

TEST_F(TemporalTest, TheSweepPassesByADirectoryWithAnyOtherAttribute)
{
    dejaAlgo();
    setMode("tmp/ZB-TMP", 0500);
    launch::BarreZBTMP(M);
    EXPECT_TRUE(exists("tmp/ZB-TMP/left.nes"));
    EXPECT_EQ(M.RutaTrabajo, QString());
    setMode("tmp/ZB-TMP", 0700);
}

TEST_F(TemporalTest, TheSweepPassesByALink)
{
    makeDirectory("precious");
    makeFile("precious/kept");
    makeLink("../precious", "tmp/ZB-TMP");
    launch::BarreZBTMP(M);
    EXPECT_TRUE(exists("tmp/ZB-TMP"));
    EXPECT_TRUE(exists("precious/kept"));
}

TEST_F(TemporalTest, TheSweepPassesByAFile_AndByNothing)
{
    launch::BarreZBTMP(M);
    EXPECT_EQ(M.RutaTrabajo, QString());
    makeFile("tmp/ZB-TMP", "kept");
    launch::BarreZBTMP(M);
    EXPECT_EQ(bytes("tmp/ZB-TMP"), "kept");
}

TEST_F(TemporalTest, TheSweepPassesByADirectoryOfSomebodyElse)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a directory away";
    dejaAlgo();
    ASSERT_EQ(chown(place("tmp/ZB-TMP").constData(), 65534, 65534), 0);
    launch::BarreZBTMP(M);
    launch::VaciaZBTMP(path(u"tmp/ZB-TMP"_s));
    EXPECT_TRUE(exists("tmp/ZB-TMP/left.nes"));
    EXPECT_FALSE(launch::EsDirectorioPropio(path(u"tmp/ZB-TMP"_s)));
}

TEST_F(TemporalTest, TheSweepFollowsNoLinkInTheDirectory)
{
    dejaAlgo();
    makeFile("kept.nes");
    setMode("kept.nes", 0444);
    makeLink("../../kept.nes", "tmp/ZB-TMP/link.nes");
    launch::BarreZBTMP(M);
    EXPECT_EQ(mode("kept.nes"), 0444U);
    EXPECT_FALSE(exists("tmp/ZB-TMP/left.nes"));
}

TEST_F(TemporalTest, EmptyingAfterARunDoesNotClearAttributes)
{
    dejaAlgo();
    makeFile("tmp/ZB-TMP/readonly.nes");
    setMode("tmp/ZB-TMP/readonly.nes", 0444);
    launch::VaciaZBTMP(path(u"tmp/ZB-TMP"_s));
    EXPECT_FALSE(exists("tmp/ZB-TMP/left.nes"));
    EXPECT_TRUE(exists("tmp/ZB-TMP/readonly.nes"));
}

} // namespace
