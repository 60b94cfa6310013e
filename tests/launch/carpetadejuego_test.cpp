// The directory of a compressed game beside its emulator: what is made, what is cleaned up, what is somebody
// else's.
#include "launch/carpetadejuego.h"

#include "escenario.h"

#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;
using launch::CarpetaDeJuego;

namespace {

class CarpetaTest : public Escenario {
protected:
    CarpetaDeJuego carpeta(const QString &nombre = u"mario"_s) const
    {
        return CarpetaDeJuego(path(u"emu/"_s), nombre);
    }
    // As a user does while the game runs.
    void renombra(const QByteArray &de, const QByteArray &a) const
    {
        ASSERT_EQ(std::rename(place(de).constData(), place(a).constData()), 0);
    }
};

TEST_F(CarpetaTest, ANewDirectoryGoesWithAllThatLiesInIt)
{
    const CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
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
    const CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
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
    const CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
    EXPECT_EQ(carpeta.Ruta(), path(u"emu/Mario"_s));
    carpeta.Limpia({});
    EXPECT_TRUE(exists("emu/Mario/save.sav"));
}

TEST_F(CarpetaTest, SubdirectoriesStay_AndThenTheDirectory)
{
    const CarpetaDeJuego carpeta(path(u"emu/"_s), u"mario"_s);
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
        const CarpetaDeJuego carpeta(directorio, nombre);
        EXPECT_EQ(carpeta.Ruta(), QString());
        carpeta.Limpia({ u"kept"_s });
    }
    EXPECT_TRUE(exists("emu/kept"));
    EXPECT_FALSE(exists("program/mario"));
}

TEST_F(CarpetaTest, ItStaysTheSameDirectory_WhateverComesBesideIt)
{
    makeDirectory("emu/My Emus");
    const CarpetaDeJuego carpeta(Corta(u"emu/my_emus/"_s), u"mario"_s);
    EXPECT_EQ(carpeta.Ruta(), path(u"emu/My Emus/mario"_s));
    makeDirectory("emu/my_emus");
    makeDirectory("emu/my_emus/mario");
    makeFile("emu/my_emus/mario/kept");
    makeFile("emu/My Emus/mario/rom.bin");
    carpeta.Limpia({});
    EXPECT_TRUE(exists("emu/my_emus/mario/kept"));
    EXPECT_FALSE(exists("emu/My Emus/mario"));
}

TEST_F(CarpetaTest, ThatWasThereLosesWhatWasUnpackedAlone_AndGoesOnlyIfNothingIsLeft)
{
    makeDirectory("emu/mario");
    makeFile("emu/mario/score");
    const CarpetaDeJuego llena = carpeta();
    makeFile("emu/mario/rom.bin");
    llena.Limpia({ u"rom.bin"_s });
    EXPECT_FALSE(exists("emu/mario/rom.bin"));
    EXPECT_TRUE(exists("emu/mario/score"));

    const CarpetaDeJuego otra = carpeta();
    otra.Limpia({ u"score"_s });
    EXPECT_FALSE(exists("emu/mario"));
}

TEST_F(CarpetaTest, IsNoneForTheDirectoryItselfOrTheOneAbove)
{
    makeFile("emu/kept");
    makeFile("kept");
    for (const QString &nombre : { u"."_s, u".."_s, u""_s }) {
        const CarpetaDeJuego c = carpeta(nombre);
        EXPECT_EQ(c.Ruta(), QString()) << nombre.toStdString();
        c.Limpia({ u"kept"_s });
    }
    EXPECT_TRUE(exists("emu/kept"));
    EXPECT_TRUE(exists("kept"));
}

TEST_F(CarpetaTest, AnotherDirectoryThatHasTakenItsPlaceStays)
{
    for (const bool nueva : { true, false }) {
        if (!nueva)
            makeDirectory("emu/mario");
        const CarpetaDeJuego c = carpeta();
        makeFile("emu/mario/rom.bin", "unpacked");
        renombra("emu/mario", "emu/moved");
        makeDirectory("emu/mario");
        makeFile("emu/mario/rom.bin", "the user's");
        c.Limpia({ u"rom.bin"_s });
        EXPECT_EQ(bytes("emu/mario/rom.bin"), "the user's");
        EXPECT_EQ(bytes("emu/moved/rom.bin"), "unpacked");

        ASSERT_EQ(unlink(place("emu/mario/rom.bin").constData()), 0);
        c.Limpia({ u"rom.bin"_s });
        EXPECT_TRUE(exists("emu/mario")) << "empty, but not ours";
        ASSERT_EQ(rmdir(place("emu/mario").constData()), 0);
        ASSERT_EQ(unlink(place("emu/moved/rom.bin").constData()), 0);
        ASSERT_EQ(rmdir(place("emu/moved").constData()), 0);
    }
}

TEST_F(CarpetaTest, ALinkThatHasTakenItsPlaceIsNotFollowed_EvenToTheDirectoryItself)
{
    const CarpetaDeJuego c = carpeta();
    makeFile("emu/mario/rom.bin");
    renombra("emu/mario", "emu/moved");
    makeLink("moved", "emu/mario");
    c.Limpia({ u"rom.bin"_s });
    EXPECT_TRUE(exists("emu/moved/rom.bin"));
    EXPECT_TRUE(exists("emu/mario"));
}

// The system gives the number of a removed directory to the next one that is made, unless the old one is
// held.
TEST_F(CarpetaTest, ADirectoryMadeAfterItsRemovalIsAnother)
{
    const CarpetaDeJuego c = carpeta();
    for (int i = 0; i < 20; ++i) {
        ASSERT_EQ(rmdir(place("emu/mario").constData()), 0);
        makeDirectory("emu/mario");
        makeFile("emu/mario/rom.bin", "the user's");
        c.Limpia({ u"rom.bin"_s });
        ASSERT_EQ(bytes("emu/mario/rom.bin"), "the user's");
        ASSERT_EQ(unlink(place("emu/mario/rom.bin").constData()), 0);
    }
}

TEST_F(CarpetaTest, IsNoneWhereALinkOrAFileIs)
{
    makeDirectory("own");
    makeLink("../own", "emu/mario");
    makeFile("emu/zelda");
    EXPECT_EQ(carpeta().Ruta(), QString());
    EXPECT_EQ(carpeta(u"zelda"_s).Ruta(), QString());
}

} // namespace
