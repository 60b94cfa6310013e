// Below a directory that may be passed but not listed a short name can't be looked up: a launch goes by the
// disk's own spelling there.
#include "escenario.h"
#include "zipdeprueba.h"

#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class CerradosTest : public Escenario {
protected:
    CerradosTest()
    {
        makeDirectory("closed");
        makeDirectory("closed/My Emu");
        makeDirectory("closed/My Roms");
        setMode("closed/My Emu", 0777);
        setMode("out", 0777);
        if (geteuid() == 0) {
            EXPECT_EQ(chown(place("tmp").constData(), Cualquiera, Cualquiera), 0);
        }
        // Of the same name, where a launch that didn't reach its directory would find it.
        makeFile("program/emu.sh", "#!/bin/sh\ntouch '" + place("out") + "/another'\n");
        setMode("program/emu.sh", 0755);
    }

    void pon(int tipo)
    {
        PonEmulador(tipo, u"-1"_s, u"-2"_s);
        ASSERT_EQ(rename(place("emu/emu.sh").constData(), place("closed/My Emu/emu.sh").constData()), 0);
        M.Cat_EXE(3, 2) = u"EXE="_s + path(u"closed/My Emu/emu.sh"_s);
        M.Cat_ROM(3, 2) = u"ROM="_s + path(u"closed/My Roms/"_s);
        setMode("closed", 0711);
    }

    // As a user whom the directory's mode binds; the boxes are that process's own.
    void juegaDeUsuario(const QStringList &muestra)
    {
        M.DebugMode = u"1"_s;
        const int status = inChildOfOrdinaryUser([&] {
            Juega();
            return respuestas.dichos == muestra ? 0 : 1;
        });
        EXPECT_EQ(status, 0) << "another command was shown";
        EXPECT_EQ(DirectorioDelJuego(), place("closed/My Emu"));
        EXPECT_FALSE(exists("out/another"));
    }

    QString enRoms(const QString &nombre) const { return Corta(u"closed/my_roms/"_s + nombre); }
    QString orden(const QString &resto) const { return Corta(u"closed/my_emu/emu.sh -1 "_s) + resto; }

private:
    static constexpr uid_t Cualquiera = 65534;
};

TEST_F(CerradosTest, Type0PlaysAPlainFile_AndRunsInTheEmulatorsDirectory)
{
    makeFile("closed/My Roms/My Game.nes", "the game");
    pon(0);
    pantalla.lista1 = u"My Game.nes"_s;
    juegaDeUsuario({ u"Zembrolix: "_s + orden(enRoms(u"my_game.nes -2 "_s)) });
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("closed/My Roms/My Game.nes"), "-2" }));
    EXPECT_EQ(Abierto(), "the game");
}

TEST_F(CerradosTest, Type0UnpacksAZip)
{
    makeFile("closed/My Roms/My Game.ZIP", Zip({ { "Castle.NES", "the game" } }));
    PonExtensiones({ u"*.NES"_s });
    pon(0);
    pantalla.lista1 = u"My Game.ZIP"_s;
    juegaDeUsuario({ u"Zembrolix: "_s + orden(path(u"tmp/ZB-TMP/castle.nes -2 "_s)) });
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("tmp/ZB-TMP/Castle.NES"), "-2" }));
    EXPECT_EQ(Abierto(), "the game");
    EXPECT_FALSE(exists("tmp/ZB-TMP"));
}

class Tipo2Cerrado : public CerradosTest, public testing::WithParamInterface<QString> { };

TEST_P(Tipo2Cerrado, UnpacksBesideTheEmulator_AndCleansUp)
{
    makeFile("closed/My Roms/My Game.ZIP", Zip({ { "rom.bin", "the game" } }));
    HazDuranteElJuego("cat my_game/rom.bin > \"$OUT/content\"\n");
    PonNota(0, u"MY GAME"_s, u"described"_s);
    pon(2);
    pantalla.lista1 = GetParam();
    const bool porNota = GetParam() == u"described";
    juegaDeUsuario({ u"Zembrolix: "_s + (porNota ? orden(u"my_game -2 "_s) : u"emu.sh  -1 my_game -2 "_s) });
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "my_game", "-2" }));
    EXPECT_EQ(Anotado("content"), "the game");
    EXPECT_FALSE(exists("closed/My Emu/my_game"));
}

INSTANTIATE_TEST_SUITE_P(Vias, Tipo2Cerrado, testing::Values(u"My Game.ZIP"_s, u"described"_s),
    [](const auto &caso) { return caso.index == 0 ? "PorFichero" : "PorNota"; });

class SoloExeCerrado : public CerradosTest, public testing::WithParamInterface<int> { };

TEST_P(SoloExeCerrado, RunsInTheEmulatorsDirectory)
{
    pon(GetParam());
    M.Cat_PAR1(3, 2) = u"PAR1= -x"_s;
    juegaDeUsuario({ u"Zembrolix: emu.sh -x"_s });
    EXPECT_EQ(Programa(), "./emu.sh");
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-x" }));
}

INSTANTIATE_TEST_SUITE_P(Tipos, SoloExeCerrado, testing::Range(5, 9));

// By file name type 2 names the program alone, and asks a question between reading the pieces and starting.
TEST_F(CerradosTest, WhereTheEmulatorsDirectoryGoesMeanwhileNoProgramOfItsNameStartsElsewhere)
{
    makeFile("closed/My Roms/mario.zip", Zip({ { "rom.bin" } }));
    makeDirectory("closed/My Emu/mario");
    makeFile("closed/My Emu/mario/rom.bin", "the user's");
    pon(2);
    pantalla.lista1 = u"mario.zip"_s;
    respuestas.sobreescribir = { host::Questions::Answer::No };
    respuestas.alDecir = [this] {
        rename(place("closed/My Emu").constData(), place("closed/moved").constData());
    };
    Juega();
    EXPECT_EQ(respuestas.preguntas.size(), 1);
    EXPECT_FALSE(HuboJuego());
    EXPECT_FALSE(exists("out/another"));
    EXPECT_EQ(bytes("closed/moved/mario/rom.bin"), "the user's");
}

} // namespace
