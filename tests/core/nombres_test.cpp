// Which names come back from the files, and which would be taken for something else.
#include "directoriodeprograma.h"

#include "core/altas.h"
#include "core/bajas.h"
#include "core/catalogo.h"
#include "core/nombres.h"
#include "core/notas.h"

#include <iterator>
#include <random>

using namespace Qt::StringLiterals;

namespace {

struct Caso {
    QString nombre;
    bool deSistema;
    bool deEmulador;
};

const Caso Casos[] = {
    { u"NES"_s, true, true },
    { u"Ñandú 64, II"_s, true, true },
    { u"Amiga \"AGA\""_s, true, true },
    { u" two  blanks "_s, true, true },
    { u"日本"_s, true, true },
    { u"\U0001F47E"_s, true, true },
    // Nothing, or nothing to be seen.
    { QString(), false, false },
    { u" "_s, false, false },
    { u" \u00A0 "_s, false, false },
    // More than a line, or not to be written.
    { u"a\nb"_s, false, false },
    { u"a\rb"_s, false, false },
    { u"a\tb"_s, false, false },
    { QString(u"a\0b"_s), false, false },
    { QString(QChar(0xD800)), false, false },
    // A field of a record holds either commas, or quotes further back.
    { u"\"q\" at the start"_s, false, false },
    { u" \"q\""_s, false, false },
    { u"Amiga \"AGA\", CD32"_s, false, false },
    { u"\"q\" "_s, false, false },
    { u"a \"q\" "_s, false, false },
    // Lines of Zembro.rom.
    { u"'"_s, false, false },
    { u"'-----"_s, false, false },
    { u"'64"_s, false, false },
    { u"C'64"_s, true, true },
    { u"["_s, false, false },
    { u"[EOF]"_s, false, false },
    { u"a [b]"_s, true, true },
    { u"Parametros"_s, false, true },
    { u"Parametros especificos"_s, false, true },
    { u"Parametro"_s, true, true },
    { u"parametros"_s, true, true },
    { u"fin"_s, false, true },
    { u"Fin"_s, true, true },
    { u"fin "_s, true, true },
    { u"fin,\"fin\""_s, false, false },
    { u"GAME.ZIP,\"A game\""_s, false, false },
    { u"GAME.ZIP,NES,Nestopia,-p"_s, false, true },
    { u"a,b,c"_s, true, true },
    // Signs of the catalogue: a system's name stands behind one, and so does an emulator's.
    { u"-"_s, true, false },
    { u"-x"_s, true, false },
    { u"+"_s, true, false },
    { u"+x"_s, true, false },
    { u"a-b+c"_s, true, true },
    { u"*.ZIP"_s, true, true },
    { u"EXE=/bin/sh"_s, true, true },
    { u"WEB1="_s, true, true },
    { u"VACIO"_s, true, true },
};

} // namespace

TEST(Nombres, ServeWhereTheyComeBackAsTheyWereTyped)
{
    for (const Caso &caso : Casos) {
        EXPECT_EQ(core::SirveDeSistema(caso.nombre), caso.deSistema) << caso.nombre.toStdString();
        EXPECT_EQ(core::SirveDeEmulador(caso.nombre), caso.deEmulador) << caso.nombre.toStdString();
    }
}

TEST(Nombres, OfTheNotesOwnLinesAreKnown)
{
    for (const QString &nombre : { QString(), u"'"_s, u"'x"_s, u"[x"_s, u"Parametros"_s, u"Parametros2"_s,
             u"fin"_s, u"x,\"fin\""_s, u"K,S,E,p"_s })
        EXPECT_TRUE(core::EsLineaDeNotas(nombre)) << nombre.toStdString();
    for (const QString &nombre : { u"NES"_s, u"x'"_s, u"x["_s, u"Amiga \"AGA\", CD32"_s, u"final"_s, u" "_s })
        EXPECT_FALSE(core::EsLineaDeNotas(nombre)) << nombre.toStdString();
}

TEST(Nombres, OfARecordOfTheNotesAreFoundInTheFile)
{
    const QString texto =
        u"' top\r\nNES\r\nD,\"d\"\r\nLONE\r\nK,\"d\"\r\n'\r\n\r\nEmpty\r\n'\r\n[EOF]\r\nParametros "
        u"especificos\r\n"
        "one\r\nK,NES,E,p\r\n'\r\nclosing\r\nend\r\nBehind\r\nX,\"x\"\r\n'\r\n"_s;
    for (const QString &registro :
        { u"LONE"_s, u"K,\"d\""_s, u"one"_s, u"closing"_s, u"end"_s, u"X,\"x\""_s, u"K,NES,E,p"_s })
        EXPECT_TRUE(core::EsRegistroDeNotas(texto, registro)) << registro.toStdString();
    for (const QString &otro : { u"NES"_s, u"Empty"_s, u"Behind"_s, u"K"_s, u"lone"_s, QString() })
        EXPECT_FALSE(core::EsRegistroDeNotas(texto, otro)) << otro.toStdString();
}

TEST(Nombres, OfALineAheadOfTheFirstSystemAreFoundInTheFile)
{
    const QString delante = u"Notes of mine\r\n\r\n'---\r\n' more\r\nA, B\r\nlast of mine\r\n\r\n"_s;
    const QString fin = u"[EOF]\r\nBehind\r\n'\r\n"_s;
    for (const QString &texto : { delante + u"NES\r\nK,\"d\"\r\n'\r\nTwo\r\n'\r\n"_s + fin,
             delante + u"NES\r\n'\r\nTwo\r\n'\r\n"_s + fin }) {
        for (const QString &propia : { u"Notes of mine"_s, u"' more"_s, u"A, B"_s, u"last of mine"_s })
            EXPECT_TRUE(core::EsRegistroDeNotas(texto, propia)) << propia.toStdString();
        for (const QString &otro : { u"NES"_s, u"Two"_s, u"Behind"_s, u"mine"_s, QString() })
            EXPECT_FALSE(core::EsRegistroDeNotas(texto, otro)) << otro.toStdString();
    }
    // Of two lines in a row either may be the header, and neither is free.
    for (const QString &una : { u"NES"_s, u"LONE"_s })
        EXPECT_TRUE(core::EsRegistroDeNotas(u"NES\r\nLONE\r\nK,\"d\"\r\n'\r\n"_s + fin, una));
    EXPECT_TRUE(core::EsRegistroDeNotas(u"mine\r\n"_s + fin, u"mine"_s));
    EXPECT_FALSE(core::EsRegistroDeNotas(u"mine\r\n"_s + fin, u"Behind"_s));
    EXPECT_TRUE(core::EsRegistroDeNotas(u"mine"_s, u"mine"_s));
}

namespace {

constexpr int Intentos = 8000;

class NombresAlAzar : public DirectorioDePrograma {
protected:
    QString Nombre()
    {
        static const QString piezas[] = { u"'"_s, u"-"_s, u"+"_s, u"["_s, u"]"_s, u"\""_s, u","_s, u" "_s,
            u"*."_s, u"="_s, u"\n"_s, u"\r"_s, u"fin"_s, u"Parametros"_s, u"NES"_s, u"K,\"d\""_s, u"WEB1"_s,
            u"EXE"_s, u"ñ"_s, u"日"_s, u"\x81"_s, u"."_s };
        QString nombre;
        for (size_t i = m_azar() % 5; i > 0; --i)
            nombre += piezas[m_azar() % std::size(piezas)];
        return nombre;
    }

    void Lee(const QString &fichero)
    {
        M.VerBaseDeDatos = 1;
        Reescribe(u"Zembro.sye"_s, [&](const QString &) { return fichero; });
        core::LeeCatalogo(M);
    }

private:
    std::mt19937 m_azar { 7 };
};

} // namespace

TEST_F(NombresAlAzar, WhatServesComesBack_AndGoesWithoutATrace)
{
    const QString sye = u"' top\r\n-NES\r\nWEB1=\r\n*.ZIP\r\n'\r\n+E\r\nWEB2=\r\n'---\r\n[EOF]\r\n"_s;
    const QString rom =
        u"' top\r\nNES\r\nK,\"d\"\r\n'\r\n[EOF]\r\nParametros especificos\r\nK,NES,E,p\r\n'\r\nfin\r\n"
        "fin,\"fin\"\r\nBehind\r\nX,\"x\"\r\n'\r\n"_s;
    Pon(u"Zembro.sye"_s, "x");
    int sistemas = 0;
    int emuladores = 0;
    for (int i = 0; i < Intentos; ++i) {
        const QString nombre = Nombre();
        SCOPED_TRACE(nombre.toStdString());
        if (core::SirveDeSistema(nombre) && nombre != u"NES"_s && ++sistemas % 64 == 0) {
            const QString con = core::ConSistemaEnBase(sye, nombre);
            Lee(con);
            ASSERT_EQ(M.Indice_Sistema, 1);
            ASSERT_EQ(core::Valor(M.Cat_Nombre(1, 0), 1), nombre);
            ASSERT_EQ(core::SinSistema(con, nombre), sye);
            const QString notas = core::ConSistemaNuevo(rom, nombre);
            ASSERT_FALSE(core::EsRegistroDeNotas(rom, nombre));
            ASSERT_NE(core::ConDescripcionNueva(notas, nombre, u"N"_s, u"n"_s), notas);
            ASSERT_EQ(
                core::SinNotasDeSistema(core::ConDescripcionNueva(notas, nombre, u"N"_s, u"n"_s), nombre),
                rom);
        }
        if (core::SirveDeEmulador(nombre) && nombre != u"E"_s && ++emuladores % 64 == 0) {
            const QString con = core::ConEmuladorEnBase(sye, u"-NES"_s, nombre);
            Lee(con);
            ASSERT_EQ(core::Valor(M.Cat_Nombre(0, 2), 1), nombre);
            ASSERT_EQ(core::SinEmuladorEnBase(con, u"NES"_s, nombre), sye);
        }
    }
    EXPECT_GT(sistemas, 1000);
    EXPECT_GT(emuladores, 1000);
}
