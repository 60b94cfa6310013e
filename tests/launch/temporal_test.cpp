// The directory for unpacked games: where it is, what the sweep takes, what it leaves.
#include "launch/temporal.h"

#include "launch/carpetadejuego.h"

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

class CarpetaTest : public Escenario { };

TEST_F(CarpetaTest, ANewDirectoryGoesWithAllThatLiesInIt)
{
    const launch::CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
    EXPECT_EQ(carpeta.Ruta(), path(u"emu/mario"_s));
    makeFile("emu/mario/rom.bin");
    makeFile("emu/mario/written by the emulator");
    carpeta.Limpia({});
    EXPECT_FALSE(exists("emu/mario"));
    EXPECT_TRUE(exists("emu"));
}

TEST_F(CarpetaTest, InADirectoryThatWasThereOnlyWhatWasUnpackedGoes)
{
    makeDirectory("emu/mario");
    makeFile("emu/mario/save.sav");
    const launch::CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
    EXPECT_EQ(carpeta.Ruta(), path(u"emu/mario"_s));
    makeFile("emu/mario/rom.bin");
    makeFile("emu/mario/other.bin");
    carpeta.Limpia({ u"rom.bin"_s });
    EXPECT_FALSE(exists("emu/mario/rom.bin"));
    EXPECT_TRUE(exists("emu/mario/save.sav"));
    EXPECT_TRUE(exists("emu/mario/other.bin"));
}

TEST_F(CarpetaTest, ADirectoryThatWasThereInAnotherCaseIsTheSame)
{
    makeDirectory("emu/Mario");
    makeFile("emu/Mario/save.sav");
    const launch::CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
    EXPECT_EQ(carpeta.Ruta(), path(u"emu/Mario"_s));
    carpeta.Limpia({});
    EXPECT_TRUE(exists("emu/Mario/save.sav"));
}

TEST_F(CarpetaTest, SubdirectoriesStay_AndThenTheDirectory)
{
    const launch::CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
    makeDirectory("emu/mario/sub");
    makeFile("emu/mario/rom.bin");
    carpeta.Limpia({ u"rom.bin"_s });
    EXPECT_TRUE(exists("emu/mario/sub"));
    EXPECT_FALSE(exists("emu/mario/rom.bin"));
}

TEST_F(CarpetaTest, WithoutANameOrAnEmulatorsDirectoryThereIsNone)
{
    makeFile("emu/kept");
    for (const auto &[directorio, nombre] :
        { std::pair(path(u"emu/"_s), QString()), std::pair(QString(), u"mario"_s) }) {
        const launch::CarpetaDeJuego carpeta(directorio, nombre);
        EXPECT_EQ(carpeta.Ruta(), QString());
        carpeta.Limpia({ u"kept"_s });
    }
    EXPECT_TRUE(exists("emu/kept"));
    EXPECT_FALSE(exists("program/mario"));
}

TEST_F(CarpetaTest, ItStaysTheSameDirectory_WhateverComesBesideIt)
{
    makeDirectory("emu/My Emus");
    const launch::CarpetaDeJuego carpeta(Corta(u"emu/my_emus/"_s), u"mario"_s);
    EXPECT_EQ(carpeta.Ruta(), path(u"emu/My Emus/mario"_s));
    makeDirectory("emu/my_emus");
    makeDirectory("emu/my_emus/mario");
    makeFile("emu/my_emus/mario/kept");
    makeFile("emu/My Emus/mario/rom.bin");
    carpeta.Limpia({});
    EXPECT_TRUE(exists("emu/my_emus/mario/kept"));
    EXPECT_FALSE(exists("emu/My Emus/mario"));
}

} // namespace
