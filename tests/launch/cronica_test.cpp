// What is told of a launch, and read again.
#include "escenario.h"
#include "zipdeprueba.h"

#include "launch/cronica.h"
#include "launch/jugar.h"

#include <csignal>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using launch::Partida;
using launch::UltimaPartida;

namespace {

class CronicaTest : public Escenario {
protected:
    CronicaTest()
    {
        PonEmulador(0, u"-a"_s);
        M.Cat_Nombre(3, 0) = u"-Sis"_s;
        PonROM("mario.nes");
    }

    Partida juega()
    {
        return launch::Jugar(M, pantalla, [this](const QString &linea) { lineas += linea; });
    }
    Partida leida() const { return UltimaPartida(lineas.join(u'\n')).value_or(Partida()); }

    QStringList lineas;
};

TEST_F(CronicaTest, TellsTheRealArgumentsTheDirectoryAndTheStatus)
{
    HazDuranteElJuego("exit 3\n");
    const Partida partida = juega();
    EXPECT_EQ(partida.argumentos, QStringList({ path(u"emu/emu.sh"_s), u"-a"_s, path(u"roms/mario.nes"_s) }));
    EXPECT_EQ(partida.directorio, path(u"emu"_s));
    EXPECT_EQ(partida.final.status, 3);
    EXPECT_EQ(partida.final.signal, std::nullopt);
    EXPECT_EQ(partida.fallo, QString());
    EXPECT_EQ(lineas.size(), 4);
    EXPECT_TRUE(lineas[0].endsWith(u" game Sis Emu mario.nes"_s)) << lineas[0].toStdString();
    EXPECT_EQ(leida().argumentos, partida.argumentos);
    EXPECT_EQ(leida().directorio, partida.directorio);
    EXPECT_EQ(leida().final.status, 3);
    EXPECT_EQ(leida().entrada, u"mario.nes"_s);
    EXPECT_EQ(leida().momento, partida.momento);
}

TEST_F(CronicaTest, TellsTheSignalThatEndedIt)
{
    HazDuranteElJuego("kill -SEGV $$\n");
    EXPECT_EQ(juega().final.signal, SIGSEGV);
    EXPECT_EQ(leida().final.signal, SIGSEGV);
    EXPECT_EQ(leida().final.status, std::nullopt);
}

TEST_F(CronicaTest, TellsOfAnExecutableThatIsNotThere)
{
    M.Cat_EXE(3, 2) = u"EXE=/nowhere/emu"_s;
    EXPECT_EQ(juega().fallo, u"There is no executable /nowhere/emu"_s);
    EXPECT_EQ(leida().fallo, u"There is no executable /nowhere/emu"_s);
    EXPECT_EQ(lineas.size(), 2);
}

TEST_F(CronicaTest, TellsOfAProgramThatMayNotRun)
{
    ASSERT_EQ(chmod(place("emu/emu.sh").constData(), 0600), 0);
    const Partida partida = juega();
    EXPECT_TRUE(partida.fallo.startsWith(u"Failed to start a program: "_s)) << partida.fallo.toStdString();
    EXPECT_FALSE(partida.argumentos.isEmpty());
    EXPECT_EQ(leida().fallo, partida.fallo);
}

TEST_F(CronicaTest, TellsOfAZipWithoutAGame)
{
    M.Msg_ZipSinRoms1 = u"no game\nin there"_s;
    PonROM("mario.zip", "no zip");
    pantalla.lista1 = u"mario.zip"_s;
    EXPECT_EQ(juega().fallo, u"no game\nin there"_s);
    EXPECT_EQ(leida().fallo, u"no game\nin there"_s);
    for (const QString &linea : std::as_const(lineas))
        EXPECT_FALSE(linea.contains(u'\n'));
}

// What can't be unpacked beside the emulator may be there already: it starts all the same.
TEST_F(CronicaTest, ANoticeAheadOfAStartIsNoFailure)
{
    PonEmulador(2, u"-a"_s);
    M.Palabras.Zem_NoZip1 = u"not a member\ncan be read"_s;
    PonROM("mario.zip", Zip({ { .nombre = "rom.bin", .metodo = 6 } }));
    pantalla.lista1 = u"mario.zip"_s;
    for (const Partida &partida : { juega(), leida() }) {
        EXPECT_EQ(partida.fallo, QString());
        EXPECT_EQ(partida.aviso, M.Palabras.Zem_NoZip1);
        EXPECT_EQ(partida.final.status, 0);
    }
    EXPECT_TRUE(lineas.filter(u" failed "_s).isEmpty());
}

TEST_F(CronicaTest, TheLaunchThatBeganLastCounts_WhateverEndsBehindIt)
{
    const QString texto =
        u"noise\nzembrolix T1 7.1 game A B c\nzembrolix T1 7.1 start x\nzembrolix T2 7.2 game D E f\n"
        "other T3 9.9 game X Y z\nzembrolix T4 7.2 status 1 after 0.5\nzembrolix T5 7.1 signal 9 after 2.0\nzembrolix T6 7.2"_s;
    const Partida partida = UltimaPartida(texto).value_or(Partida());
    EXPECT_EQ(partida.sistema, u"D"_s);
    EXPECT_EQ(partida.momento, u"T2"_s);
    EXPECT_EQ(partida.final.status, 1);
    EXPECT_EQ(partida.final.signal, std::nullopt);
    EXPECT_DOUBLE_EQ(partida.segundos, 0.5);
    EXPECT_EQ(UltimaPartida(u"noise"_s).has_value(), false);
    EXPECT_EQ(UltimaPartida(QString()).has_value(), false);
}

} // namespace
