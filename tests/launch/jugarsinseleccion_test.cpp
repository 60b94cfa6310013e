// A whole launch with nothing selected in the list.
#include "escenario.h"

using namespace Qt::StringLiterals;

namespace {

// Without notes the empty entry is the empty first note's text: its route, with an empty key.
class SinSeleccion : public Escenario {
protected:
    void juega(int tipo)
    {
        PonEmulador(tipo, u"-1"_s, u"-2"_s);
        PonROM("mario.nes");
        PonParametros("MARIO.NES,s,e,-mario\r\n,s,e,-none\r\n");
        pantalla.lista1.clear();
        M.DebugMode = u"1"_s;
        Juega();
        EXPECT_TRUE(HuboJuego());
    }
    QString mostrada(const QString &orden) const { return u"Zembrolix: "_s + Corta(orden); }
};

TEST_F(SinSeleccion, Type0HandsTheDirectoryOver)
{
    juega(0);
    EXPECT_EQ(respuestas.dichos.value(0), mostrada(u"emu/emu.sh -1 "_s) + Corta(u"roms/ -2 -none"_s));
}

TEST_F(SinSeleccion, Types1And2HandNoNameOver)
{
    for (const int tipo : { 1, 2 }) {
        juega(tipo);
        EXPECT_EQ(respuestas.dichos.takeFirst(), mostrada(u"emu/emu.sh -1  -2 -none"_s)) << tipo;
        EXPECT_EQ(Programa(), place("emu/emu.sh")) << tipo;
    }
}

TEST_F(SinSeleccion, Type2UnpacksNothingAndLeavesTheEmulatorsDirectory)
{
    makeFile("emu/kept");
    PonROM(".zip", "no archive");
    juega(2);
    EXPECT_TRUE(exists("emu/kept"));
    EXPECT_EQ(M.ArchivoZip, QString());
}

TEST_F(SinSeleccion, Type3GluesTheSecondParametersToNoName)
{
    juega(3);
    EXPECT_EQ(respuestas.dichos.value(0), mostrada(u"emu/emu.sh -1 -2 -none"_s));
}

TEST_F(SinSeleccion, NeoRageGetsAnArchiveWithoutAName)
{
    pantalla.combo2 = u"NeoRage"_s;
    juega(3);
    EXPECT_EQ(respuestas.dichos.value(0), mostrada(u"emu/emu.sh -1 "_s) + Corta(u"roms/.zip -2 -none"_s));
}

TEST_F(SinSeleccion, WithNotesItIsAFileWithoutAName)
{
    PonNota(0, u"MARIO.NES"_s, u"The Plumber"_s);
    juega(3);
    EXPECT_EQ(respuestas.dichos.value(0), mostrada(u"emu/emu.sh -1  -2 -none"_s));
}

} // namespace
