// A whole launch of games that lie in archives: out of the temporary directory.
#include "escenario.h"
#include "zipdeprueba.h"

#include "launch/destino.h"
#include "launch/jugar.h"

#include "host/paths.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Answer = host::Questions::Answer;

namespace {

const QString SinRoms = u"Aviso Zip0: Zip1"_s;
const QString Ilegible = u"Aviso No0: No1"_s;

class Tipo0Test : public Escenario {
protected:
    Tipo0Test()
    {
        PonEmulador(0, u"-1"_s, u"-2"_s);
        PonExtensiones({ u"*.NES"_s, u"*.FDS"_s });
        HazDuranteElJuego("cd '" + place("tmp") + "'; find . | LC_ALL=C sort > \"$OUT/tmp\"\n");
        pantalla.lista1 = u"game.zip"_s;
    }

    void juega(const QList<MiembroZip> &miembros)
    {
        PonROM("game.zip", Zip(miembros));
        Juega();
    }
    QStringList avisos() const { return pantalla.llamadas.filter(u"Aviso"_s); }
    QByteArrayList enTemporal() const { return Anotado("tmp").trimmed().split('\n'); }
    bool temporalVacio() const { return !exists("tmp/ZB-TMP"); }
    void esperaSinRoms()
    {
        EXPECT_EQ(avisos(), QStringList({ SinRoms }));
        EXPECT_FALSE(HuboJuego());
        EXPECT_EQ(pantalla.llamadas.last(), u"EnfocaLista1"_s);
    }
};

TEST_F(Tipo0Test, AZipIsUnpacked_PlayedFromTheTemporaryDirectory_AndRemoved)
{
    M.DebugMode = u"1"_s;
    juega({ { "Castle of DOOM.NES", "the castle" }, { "Read Me.txt" } });
    EXPECT_EQ(respuestas.dichos,
        QStringList({ u"Zembrolix: "_s + Corta(u"emu/emu.sh -1 "_s)
            + path(u"tmp/ZB-TMP/castle of doom.nes -2 "_s) }));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("tmp/ZB-TMP/Castle of DOOM.NES"), "-2" }));
    EXPECT_EQ(Abierto(), "the castle");
    EXPECT_EQ(DirectorioDelJuego(), place("emu"));
    EXPECT_EQ(enTemporal(),
        QByteArrayList({ ".", "./ZB-TMP", "./ZB-TMP/Castle of DOOM.NES", "./ZB-TMP/Read Me.txt" }));
    EXPECT_TRUE(temporalVacio());
    EXPECT_EQ(avisos(), QStringList());
    EXPECT_EQ(M.ArchivoZip, Corta(u"roms/game.zip"_s));
    EXPECT_EQ(M.DirectorioDestino, path(u"tmp/ZB-TMP"_s));
    EXPECT_EQ(M.RutaTrabajo, path(u"tmp/ZB-TMP/"_s));
}

TEST_F(Tipo0Test, ByNoteToo_WithTheRomsOwnParameters)
{
    PonNota(0, u"GAME.ZIP"_s, u"described"_s);
    PonParametros("GAME.ZIP,s,e,-R\r\n");
    pantalla.lista1 = u"described"_s;
    juega({ { "a.nes", "the game" } });
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("tmp/ZB-TMP/a.nes"), "-2", "-R" }));
}

TEST_F(Tipo0Test, TheTemporaryDirectoryIsForTheUserAlone)
{
    HazDuranteElJuego("stat -c %a '" + place("tmp/ZB-TMP") + "' > \"$OUT/mode\"\n");
    juega({ { "a.nes" } });
    EXPECT_EQ(Anotado("mode"), "700\n");
}

TEST_F(Tipo0Test, InASharedPlaceNothingIsLeft)
{
    setMode("tmp", 01777);
    juega({ { "a.nes", "the game" } });
    const QByteArray propio = "tmp/zembrolix-" + QByteArray::number(geteuid());
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place(propio + "/ZB-TMP/a.nes"), "-2" }));
    EXPECT_EQ(Abierto(), "the game");
    EXPECT_FALSE(exists(propio));
}

class NombreDeZip : public Tipo0Test, public testing::WithParamInterface<QByteArray> { };

TEST_P(NombreDeZip, ThatEndsInTheThreeLettersIsUnpacked_InAnyCase)
{
    pantalla.lista1 = QString::fromUtf8(GetParam());
    PonROM(GetParam(), Zip({ { "a.nes", "the game" } }));
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("tmp/ZB-TMP/a.nes"), "-2" }));
}

INSTANTIATE_TEST_SUITE_P(
    Nombres, NombreDeZip, testing::Values("Game.ZIP", "my game.Zip", "gamezip", "a.b.zip", "ZIP"));

TEST_F(Tipo0Test, AnotherEndingIsHandedOverAsItIs)
{
    pantalla.lista1 = u"game.zip2"_s;
    PonROM("game.zip2", Zip({ { "a.nes" } }));
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("roms/game.zip2"), "-2" }));
}

TEST_F(Tipo0Test, TheFirstExtensionIsFoundOnlyOnTheFirstFile)
{
    juega({ { "readme.txt" }, { "a.nes" } });
    esperaSinRoms();
    EXPECT_TRUE(temporalVacio());
}

TEST_F(Tipo0Test, MembersAreTriedInTheArchivesOrder)
{
    juega({ { "z.fds", "z" }, { "a.nes", "a" } });
    EXPECT_EQ(Argumentos()[1], place("tmp/ZB-TMP/z.fds"));
}

TEST_F(Tipo0Test, AFileInASubdirectoryIsNoCandidate)
{
    juega({ { "sub/a.nes" } });
    esperaSinRoms();
}

TEST_F(Tipo0Test, TheLastNameEnumeratedIsKept)
{
    M.DirActual = u"before"_s;
    juega({ { "b.nes", "the game" }, { "c.txt" }, { "a.txt" } });
    EXPECT_EQ(M.DirActual, u"c.txt"_s);
}

TEST_F(Tipo0Test, AnArchivePlayedAgainAsksForWhatLiesInItsSubdirectory_NamingItWithItsPath)
{
    const QList<MiembroZip> miembros = { { "a.nes", "the game" }, { "docs/how.txt" } };
    juega(miembros);
    ASSERT_TRUE(exists("tmp/ZB-TMP/docs/how.txt"));
    respuestas.sobreescribir = { Answer::No };
    juega(miembros);
    EXPECT_EQ(respuestas.preguntas,
        QStringList({ u"VBUnZip32 - File Already Exists!: Overwrite docs/how.txt?"_s }));
    EXPECT_EQ(Abierto(), "the game");
}

TEST_F(Tipo0Test, WhatIsNoArchiveEndsInTheMessage)
{
    PonROM("game.zip", "no archive");
    Juega();
    esperaSinRoms();
    EXPECT_TRUE(temporalVacio());
}

TEST_F(Tipo0Test, WhereNoMemberCanBeReadTheUserIsToldThatInstead)
{
    for (const int metodo : { 1, 2, 3, 4, 5, 6 }) {
        pantalla.llamadas.clear();
        juega({ { .nombre = "a.nes", .metodo = metodo } });
        EXPECT_EQ(avisos(), QStringList({ Ilegible })) << metodo;
        EXPECT_FALSE(HuboJuego());
        EXPECT_TRUE(temporalVacio());
        EXPECT_EQ(pantalla.llamadas.last(), u"EnfocaLista1"_s);
    }
}

TEST_F(Tipo0Test, WhereOnlyTheGameCanNotBeReadTheUserIsToldSoToo)
{
    juega({ { .nombre = "a.nes", .metodo = 6 }, { "read.me" } });
    EXPECT_EQ(avisos(), QStringList({ Ilegible }));
    EXPECT_TRUE(temporalVacio());
}

TEST_F(Tipo0Test, WithoutAGameTheOldMessageStays_WhateverElseCanNotBeRead)
{
    juega({ { .nombre = "a.txt", .metodo = 6 }, { "read.me" } });
    esperaSinRoms();
}

TEST_F(Tipo0Test, AnEmptyArchiveOfASystemOfFilesWithoutExtensionHasNoUnreadableGame)
{
    PonExtensiones({ u"*.NES"_s, u"*."_s });
    juega({ { "only/", "" } });
    EXPECT_FALSE(avisos().contains(Ilegible));
}

TEST_F(Tipo0Test, AGameThatCanBeReadIsPlayed_WhateverElseCanNot)
{
    juega({ { .nombre = "a.txt", .metodo = 6 }, { "b.fds", "the game" } });
    EXPECT_EQ(avisos(), QStringList());
    EXPECT_EQ(Abierto(), "the game");
}

TEST_F(Tipo0Test, TheMessageComesWhileTheUnpackedFilesAreStillThere)
{
    bool hubo = false;
    pantalla.enLlamada = [&](const QString &llamada) {
        if (llamada == SinRoms)
            hubo = exists("tmp/ZB-TMP/readme.txt");
    };
    juega({ { "readme.txt" } });
    EXPECT_TRUE(hubo);
    EXPECT_TRUE(temporalVacio());
}

TEST_F(Tipo0Test, AnEncryptedArchiveIsUnpackedWithItsPassword)
{
    PonROM("game.zip", ZipCifrado({ { "a.nes", "secret" } }, "sesame"));
    respuestas.contraseñas = { u"sesame"_s };
    Juega();
    EXPECT_EQ(Abierto(), "secret");
}

TEST_F(Tipo0Test, APromptLeftEmptyEndsInTheMessage_AndIsNotAskedAgain)
{
    PonROM("game.zip", ZipCifrado({ { "a.nes", "secret" } }, "sesame"));
    respuestas.contraseñas = { u""_s };
    Juega();
    esperaSinRoms();
    Juega();
    EXPECT_EQ(avisos().size(), 2);
    EXPECT_EQ(respuestas.preguntas.size(), 1);
}

TEST_F(Tipo0Test, OnlyTheFirst151FilesAreCandidates_AndAllAreDeleted)
{
    QList<MiembroZip> miembros;
    for (int i = 0; i < 151; ++i)
        miembros << MiembroZip { QByteArray::number(i) + ".txt" };
    miembros << MiembroZip { "a.fds" };
    juega(miembros);
    esperaSinRoms();
    EXPECT_TRUE(temporalVacio());

    miembros.removeFirst();
    juega(miembros);
    EXPECT_EQ(Argumentos()[1], place("tmp/ZB-TMP/a.fds"));
    EXPECT_TRUE(temporalVacio());
}

TEST_F(Tipo0Test, AReadOnlyFileStaysAfterTheRun_AndGoesWithTheNextLaunch)
{
    juega({ { "a.nes" }, { .nombre = "readonly.txt", .atributos = 1 } });
    EXPECT_FALSE(exists("tmp/ZB-TMP/a.nes"));
    EXPECT_TRUE(exists("tmp/ZB-TMP/readonly.txt"));
    PonEmulador(5);
    Juega();
    EXPECT_EQ(enTemporal(), QByteArrayList({ "." }));
}

TEST_F(Tipo0Test, SubdirectoriesStayForGood_AndTheNextArchiveIsUnpackedBesideThem)
{
    juega({ { "a.nes" }, { "sub/deep.txt" } });
    EXPECT_EQ(Argumentos()[1], place("tmp/ZB-TMP/a.nes"));
    EXPECT_TRUE(exists("tmp/ZB-TMP/sub/deep.txt"));
    EXPECT_FALSE(exists("tmp/ZB-TMP/a.nes"));
    juega({ { "b.nes", "second" } });
    EXPECT_EQ(Abierto(), "second");
    EXPECT_TRUE(exists("tmp/ZB-TMP/sub/deep.txt"));
}

TEST_F(Tipo0Test, OldFilesThatTheSweepPassedByComeFirstAmongTheCandidates)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can write where the owner may not";
    makeDirectory("tmp/ZB-TMP");
    makeFile("tmp/ZB-TMP/old.nes", "old");
    setMode("tmp/ZB-TMP", 0500);
    juega({ { "a.nes", "new" } });
    EXPECT_EQ(Abierto(), "old");
    EXPECT_TRUE(temporalVacio()) << "the clean-up of a run of type 0 takes it";
}

TEST_F(Tipo0Test, ALinkInThePlaceOfTheDirectoryIsNeitherSweptNorUsed)
{
    makeDirectory("precious");
    makeFile("precious/kept.nes");
    makeLink("../precious", "tmp/ZB-TMP");
    juega({ { "a.nes" } });
    esperaSinRoms();
    EXPECT_TRUE(exists("precious/kept.nes"));
    EXPECT_FALSE(exists("precious/a.nes"));
    EXPECT_TRUE(exists("tmp/ZB-TMP"));
}

TEST_F(Tipo0Test, ADirectoryOfTheNameInAnotherCaseIsNeitherSweptNorUsed)
{
    makeDirectory("tmp/zb-tmp");
    makeFile("tmp/zb-tmp/kept.nes");
    juega({ { "a.nes", "the game" } });
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("tmp/ZB-TMP/a.nes"), "-2" }));
    EXPECT_EQ(Abierto(), "the game");
    EXPECT_TRUE(exists("tmp/zb-tmp/kept.nes"));
    EXPECT_FALSE(exists("tmp/zb-tmp/a.nes"));
    EXPECT_TRUE(temporalVacio());
    Juega();
    EXPECT_TRUE(exists("tmp/zb-tmp/kept.nes"));
}

TEST_F(Tipo0Test, WithoutATemporaryPlaceTheGameIsUnpackedInTheWorkingDirectory)
{
    setMode("tmp", 01777);
    makeLink("elsewhere", "tmp/zembrolix-" + QByteArray::number(geteuid()));
    M.DebugMode = u"1"_s;
    juega({ { "A Game.nes", "the game" } });
    EXPECT_EQ(respuestas.dichos,
        QStringList({ u"Zembrolix: "_s + Corta(u"emu/emu.sh -1 ZB-TMP/a game.nes -2 "_s) }));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("program/ZB-TMP/A Game.nes"), "-2" }));
    EXPECT_EQ(Abierto(), "the game");
    EXPECT_FALSE(exists("program/ZB-TMP"));
    EXPECT_FALSE(exists("emu/ZB-TMP"));
}

TEST_F(Tipo0Test, ADirectoryOfSomebodyElseIsNeitherSweptNorUsed)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a directory away";
    makeDirectory("tmp/ZB-TMP");
    makeFile("tmp/ZB-TMP/kept.nes");
    ASSERT_EQ(chown(place("tmp/ZB-TMP").constData(), 65534, 65534), 0);
    juega({ { "a.nes" } });
    esperaSinRoms();
    EXPECT_TRUE(exists("tmp/ZB-TMP/kept.nes"));
    EXPECT_FALSE(exists("tmp/ZB-TMP/a.nes"));
}

TEST_F(Tipo0Test, AFileInThePlaceOfTheDirectoryEndsInTheMessage)
{
    makeFile("tmp/ZB-TMP", "kept");
    juega({ { "a.nes" } });
    esperaSinRoms();
    EXPECT_EQ(bytes("tmp/ZB-TMP"), "kept");
}

TEST_F(Tipo0Test, AFullDiskEndsInTheMessage)
{
    launch::PonEspacioLibre([](int) { return 1000; });
    juega({ { "a.nes" } });
    launch::PonEspacioLibre({});
    esperaSinRoms();
    EXPECT_TRUE(temporalVacio());
}

TEST_F(Tipo0Test, AfterAFailedStartTheTemporaryDirectoryIsRemovedToo)
{
    setMode("emu/emu.sh", 0644);
    juega({ { "a.nes" } });
    EXPECT_EQ(avisos(), QStringList());
    EXPECT_TRUE(temporalVacio());
}

TEST_F(Tipo0Test, AMemberOfAnyNameReachesTheEmulatorAsOneArgument)
{
    for (const QByteArray &nombre :
        { QByteArray("a \"b\" 'c' `touch bad` $d;e\nf.nes"), QByteArray("-x.nes") }) {
        juega({ { nombre, "the game" } });
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("tmp/ZB-TMP/" + nombre), "-2" }));
        EXPECT_EQ(Abierto(), "the game");
    }
}

} // namespace
