// A whole launch of games that lie in archives and are unpacked beside the emulator.
#include "escenario.h"
#include "zipdeprueba.h"

#include "launch/destino.h"
#include "launch/ensayo.h"
#include "launch/jugar.h"

#include "host/paths.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Answer = host::Questions::Answer;

namespace {

const QString Ilegible = u"Aviso No0: No1"_s;

class Tipo2Test : public Escenario {
protected:
    Tipo2Test()
    {
        PonEmulador(2, u"-1"_s, u"-2"_s);
        PonROM("mario.zip", Zip({ { "rom1.bin", "the game" }, { "rom2.bin" } }));
        PonNota(0, u"MARIO"_s, u"The Plumber"_s);
        HazDuranteElJuego("for d in mario Mario \"My Game\" my_game; do [ -d \"$d\" ] && ls -A \"$d\"; done "
                          "> \"$OUT/unpacked\"\n");
        M.DebugMode = u"1"_s;
    }

    void juega(const QString &entrada)
    {
        pantalla.lista1 = entrada;
        Juega();
    }
};

class PorLasDosVias : public Tipo2Test, public testing::WithParamInterface<QString> { };

TEST_P(PorLasDosVias, TheArchiveIsUnpackedBesideTheEmulator_AndGoesAfterTheRun)
{
    juega(GetParam());
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2" }));
    EXPECT_EQ(DirectorioDelJuego(), place("emu"));
    EXPECT_EQ(Anotado("unpacked"), "rom1.bin\nrom2.bin\n");
    EXPECT_FALSE(exists("emu/mario"));
    EXPECT_TRUE(exists("emu/emu.sh"));
    EXPECT_TRUE(exists("roms/mario.zip"));
}

TEST_P(PorLasDosVias, WhatTheEmulatorWritesIntoTheNewDirectoryGoesToo)
{
    HazDuranteElJuego("echo x > mario/score\n");
    juega(GetParam());
    EXPECT_FALSE(exists("emu/mario"));
}

TEST_P(PorLasDosVias, SubdirectoriesStay_AndThenTheDirectory)
{
    PonROM("mario.zip", Zip({ { "rom1.bin" }, { "sub/rom2.bin" } }));
    juega(GetParam());
    EXPECT_FALSE(exists("emu/mario/rom1.bin"));
    EXPECT_TRUE(exists("emu/mario/sub/rom2.bin"));
}

TEST_P(PorLasDosVias, InADirectoryThatWasThereOnlyWhatWasUnpackedIsDeleted)
{
    makeDirectory("emu/mario");
    makeFile("emu/mario/score", "1000");
    juega(GetParam());
    EXPECT_EQ(Anotado("unpacked"), "rom1.bin\nrom2.bin\nscore\n");
    EXPECT_EQ(bytes("emu/mario/score"), "1000");
    EXPECT_FALSE(exists("emu/mario/rom1.bin"));
}

TEST_P(PorLasDosVias, BeforeAFileThatWasThereIsReplacedTheUserIsAsked)
{
    makeDirectory("emu/mario");
    makeFile("emu/mario/rom1.bin", "the user's");
    respuestas.sobreescribir = { Answer::No };
    juega(GetParam());
    EXPECT_EQ(
        respuestas.preguntas, QStringList({ u"VBUnZip32 - File Already Exists!: Overwrite rom1.bin?"_s }));
    EXPECT_EQ(bytes("emu/mario/rom1.bin"), "the user's");
    EXPECT_FALSE(exists("emu/mario/rom2.bin"));
}

TEST_P(PorLasDosVias, ARomDirectoryOfTheGamesNameKeepsItsRoms)
{
    M.Cat_ROM(3, 2) = u"ROM="_s + path(u"emu/mario/"_s);
    makeDirectory("emu/mario");
    makeFile("emu/mario/mario.zip", Zip({ { "rom1.bin" } }));
    makeFile("emu/mario/zelda.zip");
    juega(GetParam());
    EXPECT_TRUE(HuboJuego());
    EXPECT_TRUE(exists("emu/mario/mario.zip"));
    EXPECT_TRUE(exists("emu/mario/zelda.zip"));
    EXPECT_FALSE(exists("emu/mario/rom1.bin"));
}

TEST_P(PorLasDosVias, ADamagedArchiveStartsTheEmulatorAnyway)
{
    PonROM("mario.zip", "no archive");
    juega(GetParam());
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2" }));
    EXPECT_EQ(Anotado("unpacked"), "");
    EXPECT_FALSE(exists("emu/mario"));
}

TEST_P(PorLasDosVias, WhereNoMemberCanBeReadTheUserIsTold_AndThenTheEmulatorStarts)
{
    bool antes = false;
    pantalla.enLlamada = [&](const QString &llamada) { antes |= llamada == Ilegible && !HuboJuego(); };
    PonROM(
        "mario.zip", Zip({ { .nombre = "rom1.bin", .metodo = 6 }, { .nombre = "rom2.bin", .metodo = 1 } }));
    juega(GetParam());
    EXPECT_TRUE(antes);
    EXPECT_EQ(pantalla.llamadas.filter(u"Aviso"_s), QStringList({ Ilegible }));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2" }));
    EXPECT_FALSE(exists("emu/mario"));
}

TEST_P(PorLasDosVias, WhereSomeMembersCanBeReadNothingIsSaid)
{
    PonROM("mario.zip", Zip({ { .nombre = "rom1.bin", .metodo = 6 }, { "sub/rom2.bin" } }));
    juega(GetParam());
    EXPECT_EQ(pantalla.llamadas.filter(u"Aviso"_s), QStringList());
    EXPECT_TRUE(HuboJuego());
}

TEST_P(PorLasDosVias, WhereTheDirectoryCanNotBeMadeTheEmulatorStartsAnyway)
{
    makeFile("emu/mario", "in the way");
    juega(GetParam());
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2" }));
    EXPECT_EQ(bytes("emu/mario"), "in the way");
}

// A directory for the game that was unpacked there beforehand serves.
TEST_P(PorLasDosVias, WhereNothingCanBeWrittenBesideTheEmulatorTheUserIsTold)
{
    const QString dicho = u"Aviso Junto0: Junto1"_s;
    const auto avisa = [&] {
        setMode("emu", 0555);
        const int estado = inChildOfOrdinaryUser([&] {
            pantalla.lista1 = GetParam();
            pantalla.llamadas.clear();
            const bool alEnsayar = !launch::Ensaya(M, pantalla).aviso.isEmpty();
            Juega();
            return (pantalla.llamadas.contains(dicho) ? 1 : 0) + (alEnsayar ? 2 : 0);
        });
        setMode("emu", 0755);
        return estado;
    };
    setMode("out", 0777);
    EXPECT_EQ(avisa(), 3);
    EXPECT_TRUE(HuboJuego());
    makeDirectory("emu/mario");
    EXPECT_EQ(avisa(), 3) << "it is empty";
    makeFile("emu/mario/rom.bin");
    EXPECT_EQ(avisa(), 0);
    ASSERT_EQ(unlink(place("roms/mario.zip").constData()), 0);
    ASSERT_EQ(unlink(place("emu/mario/rom.bin").constData()), 0);
    EXPECT_EQ(avisa(), 0) << "there is nothing to unpack";
}

TEST_P(PorLasDosVias, ALinkInTheDirectorysPlaceIsNeitherUnpackedIntoNorEmptied)
{
    makeDirectory("precious");
    makeFile("precious/rom1.bin", "the user's");
    makeLink("../precious", "emu/mario");
    juega(GetParam());
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2" }));
    EXPECT_EQ(bytes("precious/rom1.bin"), "the user's");
    EXPECT_FALSE(exists("precious/rom2.bin"));
    EXPECT_TRUE(exists("emu/mario"));
}

TEST_P(PorLasDosVias, AfterAFailedStartTheDirectoryGoesToo)
{
    setMode("emu/emu.sh", 0644);
    juega(GetParam());
    EXPECT_FALSE(HuboJuego());
    EXPECT_FALSE(exists("emu/mario"));
}

TEST_P(PorLasDosVias, AMissingEmulatorMakesAndRemovesNothing)
{
    ASSERT_EQ(unlink(place("emu/emu.sh").constData()), 0);
    makeDirectory("program/mario");
    makeFile("program/mario/kept");
    juega(GetParam());
    EXPECT_TRUE(exists("program/mario/kept"));
    EXPECT_FALSE(exists("program/mario/rom1.bin"));
}

TEST_P(PorLasDosVias, AMissingRomDeletesNothing_AndTheCommandStartsWithTheEmptyField)
{
    ASSERT_EQ(unlink(place("roms/mario.zip").constData()), 0);
    makeFile("emu/kept");
    juega(GetParam());
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "-2" }));
    EXPECT_TRUE(exists("emu/kept"));
    EXPECT_TRUE(exists("emu/emu.sh"));
}

TEST_P(PorLasDosVias, TheCleanUpKeepsToItsDirectory_WhereverTheWorkingDirectoryWent)
{
    makeDirectory("elsewhere");
    makeDirectory("elsewhere/mario");
    makeFile("elsewhere/mario/kept");
    pantalla.enLlamada = [this](const QString &llamada) {
        if (llamada == u"LLena_INFO")
            host::changeDirectory(path(u"elsewhere"_s));
    };
    juega(GetParam());
    EXPECT_TRUE(exists("elsewhere/mario/kept"));
    EXPECT_FALSE(exists("emu/mario"));
}

INSTANTIATE_TEST_SUITE_P(Vias, PorLasDosVias, testing::Values(u"mario.zip"_s, u"The Plumber"_s),
    [](const auto &caso) { return caso.index == 0 ? "PorFichero" : "PorNota"; });

TEST_F(Tipo2Test, ByNoteTheCommandNamesTheWholePathOfTheEmulator)
{
    juega(u"The Plumber"_s);
    EXPECT_EQ(respuestas.dichos, QStringList({ u"Zembrolix: "_s + Corta(u"emu/emu.sh -1 mario -2 "_s) }));
    EXPECT_EQ(Programa(), place("emu/emu.sh"));
    EXPECT_EQ(M.ArchivoZip, Corta(u"roms/mario.zip"_s));
    EXPECT_EQ(M.DirectorioDestino, path(u"emu/mario"_s));
    EXPECT_EQ(M.Nota_Clave(0), u"mario"_s);
}

TEST_F(Tipo2Test, ByFileNameTheCommandNamesTheBareEmulator_BehindWhichTwoBlanksStand)
{
    juega(u"mario.zip"_s);
    EXPECT_EQ(respuestas.dichos, QStringList({ u"Zembrolix: emu.sh  -1 mario -2 "_s }));
    EXPECT_EQ(Programa(), "./emu.sh");
    EXPECT_EQ(M.ArchivoZip, Corta(u"roms/mario.zip "_s));
}

TEST_F(Tipo2Test, AnUncleanNameIsPlayedByItsShortForm)
{
    PonROM("My Game.ZIP", Zip({ { "rom.bin" } }));
    PonNota(1, u"MY GAME"_s, u"described"_s);
    for (const QString &entrada : { u"My Game.ZIP"_s, u"described"_s }) {
        juega(entrada);
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "my_game", "-2" }));
        EXPECT_EQ(Anotado("unpacked"), "rom.bin\n");
    }
    EXPECT_FALSE(exists("emu/my_game"));
}

TEST_F(Tipo2Test, AnEntryThatIsNoArchiveIsPlayedWithTheArchiveOfItsBase)
{
    PonROM("mario.nes", "plain");
    juega(u"mario.nes"_s);
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2" }));
    EXPECT_EQ(Anotado("unpacked"), "rom1.bin\nrom2.bin\n");
    EXPECT_EQ(M.ArchivoZip, Corta(u"roms/mario.zip "_s));
}

TEST_F(Tipo2Test, AKeyThatAlreadyEndsInZipFindsNothing_AndDeletesNothing)
{
    PonNota(0, u"MARIO.ZIP"_s, u"The Plumber"_s);
    makeFile("emu/kept");
    juega(u"The Plumber"_s);
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "-2" }));
    EXPECT_TRUE(exists("emu/kept"));
}

TEST_F(Tipo2Test, ANameWithoutAPointHasNoBase_AndDeletesNothing)
{
    PonROM("mario", "plain");
    makeFile("emu/kept");
    juega(u"mario"_s);
    EXPECT_EQ(respuestas.dichos, QStringList({ u"Zembrolix: emu.sh  -1  -2 "_s }));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "-2" }));
    EXPECT_TRUE(exists("emu/kept"));
    EXPECT_FALSE(exists("emu/mario"));
}

TEST_F(Tipo2Test, ABackslashInANameLeadsIntoNoOtherDirectory)
{
    PonROM("a\\b.zip", Zip({ { "rom.bin" } }));
    PonNota(1, u"A\\B"_s, u"described"_s);
    makeDirectory("emu/a");
    makeDirectory("emu/a/b");
    makeFile("emu/a/b/kept");
    HazDuranteElJuego("find . -name rom.bin > \"$OUT/unpacked\"\n");
    for (const QString &entrada : { u"a\\b.zip"_s, u"described"_s }) {
        juega(entrada);
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "a\\b", "-2" }));
        EXPECT_EQ(Anotado("unpacked"), "");
        EXPECT_TRUE(exists("emu/a/b/kept"));
        EXPECT_FALSE(exists("emu/a\\b"));
    }
}

TEST_F(Tipo2Test, ANestedLaunchOfTheSameGameLeavesTheFirstOnesDirectoryToIt)
{
    bool hecho = false;
    PantallaDePrueba otra;
    otra.lista1 = u"mario.zip"_s;
    respuestas.sobreescribir = { Answer::Yes, Answer::Yes };
    pantalla.enLlamada = [&](const QString &llamada) {
        if (!hecho && llamada == u"LLena_INFO") {
            hecho = true;
            launch::Jugar(M, otra);
        }
    };
    juega(u"mario.zip"_s);
    EXPECT_TRUE(hecho);
    EXPECT_FALSE(exists("emu/mario"));
}

} // namespace
