// Matching the entries of a directory against the notes, by type, and the line over the list.
#include "directoriodeprograma.h"

#include "core/lista.h"

#include "host/lengths.h"

using namespace Qt::StringLiterals;

namespace {

class Lista : public DirectorioDePrograma {
protected:
    // The entries as the scan of a directory leaves them.
    void PonEntradas(const QStringList &nombres)
    {
        for (int i = 0; i < nombres.size(); ++i) {
            M.Arch_Nombre(i) = nombres[i];
            M.Arch_Mayus(i) = nombres[i].toUpper();
        }
        m_entradas = static_cast<int>(nombres.size());
    }

    void PonNotas(const QList<std::pair<QString, QString>> &notas)
    {
        for (int i = 0; i < notas.size(); ++i) {
            M.Nota_Clave(i) = notas[i].first;
            M.Nota_Texto(i) = notas[i].second;
        }
        m_notas = static_cast<int>(notas.size());
    }

    void PonExtensiones(const QStringList &extensiones)
    {
        for (int i = 0; i < extensiones.size(); ++i)
            M.ExtActivas(i) = extensiones[i];
        m_extensiones = static_cast<int>(extensiones.size());
    }

    core::Recuento Empareja(int tipo)
    {
        m_preguntados.clear();
        return core::Empareja(
            M, tipo, m_entradas, m_notas, m_extensiones, [this](const QStringList &nombres) {
                QList<qint64> largos;
                for (const QString &nombre : nombres) {
                    m_preguntados += nombre;
                    if (!m_largos.contains(nombre))
                        break;
                    largos += m_largos.value(nombre);
                }
                return largos;
            });
    }

    int m_entradas = 0;
    int m_notas = 0;
    int m_extensiones = 0;
    QHash<QString, qint64> m_largos;
    QStringList m_preguntados; // the files whose length was asked for
};

// So many entries and notes that fit one another crosswise, the last entry to the first note.
void llenaTablas(core::Modulo &M, const QString &cola)
{
    for (int i = 0; i < core::MaxROMs; ++i) {
        const QString clave = u"A RATHER LONG NAME OF A GAME %1"_s.arg(i, 4, 10, QChar(u'0'));
        M.Arch_Nombre(i) = clave.toLower() + cola.toLower();
        M.Arch_Mayus(i) = clave + cola;
        const int j = core::MaxROMs - 1 - i;
        M.Nota_Clave(j) = clave + (cola == u".ZIP" ? QString() : cola);
        M.Nota_Texto(j) = u"Description %1"_s.arg(i);
    }
}

} // namespace

TEST_F(Lista, PlainFilesGiveTheirDescriptionOrTheirName)
{
    PonEntradas({ u"a.bin"_s, u"B.bin"_s, u"c.txt"_s });
    PonNotas({ { u"B.BIN"_s, u"The second"_s }, { u"GONE.BIN"_s, u"Not on the disk"_s } });
    PonExtensiones({ u"BIN"_s });
    m_largos = { { u"a.bin"_s, 100 }, { u"B.BIN"_s, 20 } };
    for (const int tipo : { 0, 5 }) {
        const core::Recuento recuento = Empareja(tipo);
        EXPECT_EQ(recuento.entradas, (QStringList { u"a.bin"_s, u"The second"_s })) << tipo;
        EXPECT_EQ(recuento.bytes, 120) << tipo;
        EXPECT_EQ(recuento.exploradas, 3) << tipo;
        EXPECT_FALSE(recuento.interrumpido) << tipo;
        // The length is asked for by the note's key, or by the name as the disk spells it.
        EXPECT_EQ(m_preguntados, (QStringList { u"a.bin"_s, u"B.BIN"_s })) << tipo;
    }
}

TEST_F(Lista, KeepsTheOrderOfTheNames_WhateverTheDescriptions)
{
    PonEntradas({ u"A.BIN"_s, u"B.BIN"_s, u"C.BIN"_s });
    PonNotas({ { u"C.BIN"_s, u"Alpha"_s }, { u"A.BIN"_s, u"Zeta"_s } });
    PonExtensiones({ u"BIN"_s });
    m_largos = { { u"A.BIN"_s, 1 }, { u"B.BIN"_s, 1 }, { u"C.BIN"_s, 1 } };
    EXPECT_EQ(Empareja(0).entradas, (QStringList { u"Zeta"_s, u"B.BIN"_s, u"Alpha"_s }));
}

TEST_F(Lista, AFileThatFitsTwoExtensionsIsListedAndCountedTwice)
{
    PonEntradas({ u"a.zip"_s, u"b.zip"_s });
    PonNotas({ { u"B.ZIP"_s, u"Noted"_s } });
    PonExtensiones({ u"ZIP"_s, u"IP"_s });
    m_largos = { { u"a.zip"_s, 100 }, { u"B.ZIP"_s, 20 } };
    const core::Recuento recuento = Empareja(0);
    EXPECT_EQ(recuento.entradas, (QStringList { u"a.zip"_s, u"a.zip"_s, u"Noted"_s, u"Noted"_s }));
    EXPECT_EQ(recuento.bytes, 240);
    EXPECT_EQ(recuento.exploradas, 2);
}

TEST_F(Lista, PlainFilesThatFitNoExtensionAreNotListed_NotedOrNot)
{
    PonEntradas({ u"a.bin"_s, u"b.bin"_s });
    PonNotas({ { u"A.BIN"_s, u"Noted"_s } });
    for (const QStringList &extensiones : { QStringList(), QStringList { u"ZIP"_s } }) {
        PonExtensiones(extensiones);
        const core::Recuento recuento = Empareja(0);
        EXPECT_EQ(recuento.entradas, QStringList());
        EXPECT_EQ(recuento.exploradas, 2);
        EXPECT_EQ(m_preguntados, QStringList());
    }
}

TEST_F(Lista, AnExtensionFitsTheLastThreeCharacters_AlsoThoseThatAreKeptInTwoHalves)
{
    PonEntradas({ u"one.😀X😀"_s, u"two.😀"_s, u"four.😀😀😀😀"_s });
    PonExtensiones({ u"😀X😀"_s, u"😀"_s, u"😀😀😀😀"_s });
    m_largos = { { u"one.😀X😀"_s, 1 }, { u"two.😀"_s, 1 }, { u"four.😀😀😀😀"_s, 1 } };
    EXPECT_EQ(Empareja(0).entradas, (QStringList { u"one.😀X😀"_s, u"one.😀X😀"_s, u"two.😀"_s, u"four.😀😀😀😀"_s }));
}

TEST_F(Lista, AnEmptyDescriptionGivesAnEmptyLine_ForAFileOrAZip)
{
    PonEntradas({ u"A.ZIP"_s });
    PonExtensiones({ u"ZIP"_s });
    m_largos = { { u"A.ZIP"_s, 5 } };
    PonNotas({ { u"A.ZIP"_s, QString() } });
    EXPECT_EQ(Empareja(0).entradas, QStringList { QString() });
    PonNotas({ { u"A"_s, QString() } });
    EXPECT_EQ(Empareja(2).entradas, QStringList { QString() });
}

TEST_F(Lista, TheFirstOfTwoNotesWithOneKeyWins)
{
    PonEntradas({ u"A.BIN"_s });
    PonNotas({ { u"X.BIN"_s, u"x"_s }, { u"A.BIN"_s, u"First"_s }, { u"A.BIN"_s, u"Second"_s } });
    PonExtensiones({ u"BIN"_s });
    m_largos = { { u"A.BIN"_s, 1 } };
    EXPECT_EQ(Empareja(0).entradas, QStringList { u"First"_s });
}

TEST_F(Lista, DirectoriesGiveTheirDescriptionOrTheirName_AndNoSize)
{
    PonEntradas({ u"ALPHA"_s, QString(), u"BETA"_s, u"GAMMA"_s });
    PonNotas({ { u"BETA"_s, u"The second"_s }, { u"GAMMA"_s, QString() } });
    for (const int tipo : { 1, 6 }) {
        const core::Recuento recuento = Empareja(tipo);
        EXPECT_EQ(recuento.entradas, (QStringList { u"ALPHA"_s, u"The second"_s })) << tipo;
        EXPECT_EQ(recuento.bytes, 0) << tipo;
        EXPECT_EQ(recuento.exploradas, 4) << tipo;
        EXPECT_EQ(m_preguntados, QStringList()) << tipo;
    }
}

TEST_F(Lista, ADroppedDirectoryGivesTheDescriptionOfANoteWithoutAKey)
{
    PonEntradas({ QString(), u"GAME"_s });
    PonNotas({ { u"GAME"_s, u"A game"_s }, { QString(), u"Vacia"_s } });
    for (const int tipo : { 1, 6 }) {
        const core::Recuento recuento = Empareja(tipo);
        EXPECT_EQ(recuento.entradas, (QStringList { u"Vacia"_s, u"A game"_s })) << tipo;
        EXPECT_EQ(recuento.exploradas, 2) << tipo;
    }
}

TEST_F(Lista, ANoteWithoutAKeyIsThatOfAZipWithoutAName)
{
    PonEntradas({ u".zip"_s, u"unzip"_s });
    PonNotas({ { QString(), u"Vacia"_s } });
    m_largos = { { u".ZIP"_s, 1 }, { u"unzip"_s, 1 } };
    EXPECT_EQ(Empareja(2).entradas, (QStringList { u"Vacia"_s, u"unzip"_s }));
}

TEST_F(Lista, ZipsGiveTheirDescriptionByTheirNameWithoutItsEnding)
{
    PonEntradas({ u"game.zip"_s, u"Other.Zip"_s, u"pack7zip"_s, u"read.me"_s });
    PonNotas({ { u"GAME"_s, u"A game"_s }, { u"OTHER.ZIP"_s, u"Not by this key"_s },
        { u"PACK7"_s, u"Nor this"_s } });
    m_largos = { { u"GAME.ZIP"_s, 1000 }, { u"Other.Zip"_s, 200 }, { u"pack7zip"_s, 30 } };
    for (const int tipo : { 2, 3, 7, 8 }) {
        const core::Recuento recuento = Empareja(tipo);
        EXPECT_EQ(recuento.entradas, (QStringList { u"A game"_s, u"Other.Zip"_s, u"pack7zip"_s })) << tipo;
        EXPECT_EQ(recuento.bytes, 1230) << tipo;
        EXPECT_EQ(recuento.exploradas, 4) << tipo;
        EXPECT_EQ(m_preguntados, (QStringList { u"GAME.ZIP"_s, u"Other.Zip"_s, u"pack7zip"_s })) << tipo;
    }
}

TEST_F(Lista, ExtensionsDoNotMatter_ForZips)
{
    PonEntradas({ u"a.zip"_s });
    PonExtensiones({ u"BIN"_s });
    m_largos = { { u"a.zip"_s, 1 } };
    EXPECT_EQ(Empareja(3).entradas, QStringList { u"a.zip"_s });
}

TEST_F(Lista, AnyOtherTypeListsNothingAndLooksAtNothing)
{
    PonEntradas({ u"A.ZIP"_s, u"B.BIN"_s });
    PonNotas({ { u"A"_s, u"a"_s } });
    PonExtensiones({ u"ZIP"_s, u"BIN"_s });
    for (const int tipo : { 4, 9, -1 }) {
        const core::Recuento recuento = Empareja(tipo);
        EXPECT_EQ(recuento.entradas, QStringList()) << tipo;
        EXPECT_EQ(recuento.exploradas, 0) << tipo;
        EXPECT_FALSE(recuento.interrumpido) << tipo;
    }
}

TEST_F(Lista, StopsAtAFileWhoseLengthCannotBeHad_WithItsLineAdded)
{
    PonEntradas({ u"A.BIN"_s, u"B.BIN"_s, u"C.BIN"_s });
    PonExtensiones({ u"BIN"_s });
    m_largos = { { u"A.BIN"_s, 7 }, { u"C.BIN"_s, 9 } };
    const core::Recuento recuento = Empareja(0);
    EXPECT_EQ(recuento.entradas, (QStringList { u"A.BIN"_s, u"B.BIN"_s }));
    EXPECT_EQ(recuento.exploradas, 1);
    EXPECT_EQ(recuento.bytes, 7);
    EXPECT_TRUE(recuento.interrumpido);
}

TEST_F(Lista, HasScannedNothing_WhereTheFirstFileIsGone)
{
    PonEntradas({ u"A.ZIP"_s, u"B.ZIP"_s });
    m_largos = { { u"B.ZIP"_s, 9 } };
    const core::Recuento recuento = Empareja(2);
    EXPECT_EQ(recuento.exploradas, 0);
    EXPECT_TRUE(recuento.interrumpido);
}

TEST_F(Lista, StopsAtTheFirstEntryWithoutNote_WhereTheNotesFillTheirTable)
{
    for (int j = 0; j < core::MaxROMs; ++j)
        M.Nota_Clave(j) = u"K%1"_s.arg(j);
    M.Nota_Clave(core::MaxROMs - 1) = u"A"_s;
    m_notas = core::MaxROMs;
    PonEntradas({ u"A"_s, u"B"_s, u"C"_s });
    const core::Recuento recuento = Empareja(1);
    EXPECT_EQ(recuento.exploradas, 1);
    EXPECT_TRUE(recuento.interrumpido);
}

TEST_F(Lista, LeavesTheTablesAlone)
{
    PonEntradas({ u"a.zip"_s });
    PonNotas({ { u"A"_s, u"a"_s } });
    m_largos = { { u"A.ZIP"_s, 1 } };
    Empareja(2);
    EXPECT_EQ(M.Arch_Nombre(0), u"a.zip");
    EXPECT_EQ(M.Nota_Clave(0), u"A");
}

TEST_F(Lista, IsMatchedFast_WithFullTables)
{
    for (const auto &[tipo, cola] :
        { std::pair(0, u".BIN"_s), std::pair(1, QString()), std::pair(2, u".ZIP"_s) }) {
        llenaTablas(M, cola);
        M.ExtActivas(0) = u"BIN"_s;
        const qint64 antes = TiempoDeTrabajo();
        const core::Recuento recuento = core::Empareja(M, tipo, core::MaxROMs, core::MaxROMs, 1,
            [](const QStringList &nombres) { return QList<qint64>(nombres.size(), 1024); });
        EXPECT_LT(TiempoDeTrabajo() - antes, 500) << tipo;
        ASSERT_EQ(recuento.entradas.size(), core::MaxROMs) << tipo;
        EXPECT_EQ(recuento.entradas.first(), u"Description 0") << tipo;
        EXPECT_EQ(recuento.entradas.last(), u"Description 6666") << tipo;
    }
}

TEST_F(Lista, IsReadFromTheDiskFast_WithFullTables)
{
    QByteArray notas = "Console\r\n";
    for (int i = 0; i < core::MaxROMs; ++i) {
        const QByteArray nombre = "Game " + QByteArray::number(10000 + i);
        Pon(u"roms/"_s + QString::fromLatin1(nombre) + u".bin"_s, "12345");
        notas += nombre + ".BIN,\"Description " + QByteArray::number(i) + "\"\r\n";
    }
    Pon(u"Zembro.rom"_s, notas + "'\r\n");
    M.Cat_EXT(0, 0) = u"*.BIN"_s;

    const qint64 antes = TiempoDeTrabajo();
    const int entradas = core::ExploraDirectorio(M, 0, Ruta(u"roms/"_s));
    const int leidas = core::CargaNotasEnMayusculas(M, u"Console"_s);
    const host::LengthsIn largos(Ruta(u"roms/"_s));
    const core::Recuento recuento = core::Empareja(M, 0, entradas, leidas, core::CargaExtensiones(M, 0),
        [&largos](const QStringList &nombres) { return largos.ofAll(nombres); });
    EXPECT_LT(TiempoDeTrabajo() - antes, 1000);
    EXPECT_EQ(recuento.entradas.size(), core::MaxROMs);
    EXPECT_EQ(recuento.entradas.value(6666), u"Description 6666");
    EXPECT_EQ(recuento.bytes, 5.0 * core::MaxROMs);
}

struct CasoDeResumen {
    int tipo;
    int listadas;
    double bytes;
    int exploradas;
    QString resumen;
};

void PrintTo(const CasoDeResumen &caso, std::ostream *salida)
{
    *salida << caso.tipo << ", " << caso.listadas << " of " << caso.exploradas << ", " << caso.bytes
            << " bytes";
}

class Resumen : public testing::TestWithParam<CasoDeResumen> { };

TEST_P(Resumen, ShowsTheCountAndTheSizeAndAPad)
{
    const CasoDeResumen &caso = GetParam();
    core::Recuento recuento;
    recuento.bytes = caso.bytes;
    recuento.exploradas = caso.exploradas;
    EXPECT_EQ(core::Resumen(caso.tipo, caso.listadas, recuento, u"games"_s), caso.resumen);
}

constexpr double MB = 1024.0 * 1024.0;
INSTANTIATE_TEST_SUITE_P(Casos, Resumen,
    testing::Values(CasoDeResumen { 0, 3, 2.5 * MB, 9, u"3 ROMS - 2.5MB"_s },
        // The pad goes by the entries looked at, not by those listed.
        CasoDeResumen { 0, 3, 2.5 * MB, 10, u"3 ROMS - 2.5MB "_s },
        CasoDeResumen { 5, 3, 2.5 * MB, 99, u"3 ROMS - 2.5MB "_s },
        CasoDeResumen { 2, 3, 2.5 * MB, 100, u"3 ROMS - 2.5MB  "_s },
        CasoDeResumen { 3, 3, 2.5 * MB, 6667, u"3 ROMS - 2.5MB  "_s },
        CasoDeResumen { 1, 3, 2.5 * MB, 9, u"3 games"_s }, CasoDeResumen { 6, 12, 0, 12, u"12 games "_s },
        CasoDeResumen { 1, 150, 0, 152, u"150 games  "_s },
        // None accepted among some entries.
        CasoDeResumen { 0, 0, 0, 5, u"0 ROMS - 0.0MB"_s }, CasoDeResumen { 4, 0, 0, 0, u"0 ROMS - 0.0MB"_s },
        // One or two places, half away from zero.
        CasoDeResumen { 0, 1, 1 * MB, 1, u"1 ROMS - 1.0MB"_s },
        CasoDeResumen { 0, 1, 1.25 * MB, 1, u"1 ROMS - 1.25MB"_s },
        CasoDeResumen { 0, 1, 0.125 * MB, 1, u"1 ROMS - 0.13MB"_s },
        CasoDeResumen { 0, 1, 0.004 * MB, 1, u"1 ROMS - 0.0MB"_s },
        CasoDeResumen { 0, 1, 12345.678 * MB, 1, u"1 ROMS - 12345.68MB"_s },
        CasoDeResumen { 0, 1, 0.999 * MB, 1, u"1 ROMS - 1.0MB"_s }));

TEST(ResumenVacio, HasItsCommaInEveryLocale)
{
    EXPECT_EQ(core::ResumenVacio, u"0 ROMS - 0,00MB");
}
