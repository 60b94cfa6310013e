// The positions that the exit saves: those of the sorted, upper-cased names, not of the tables.
#include "directoriodeprograma.h"

#include "core/catalogo.h"

using namespace Qt::StringLiterals;

namespace {

struct Caso {
    QString sistema;
    QString emulador;
    int posicionDelSistema;
    int posicionDelEmulador;
};

void PrintTo(const Caso &caso, std::ostream *salida)
{
    *salida << caso.sistema.toStdString() << " / " << caso.emulador.toStdString();
}

class PosicionesDe : public DirectorioDePrograma, public testing::WithParamInterface<Caso> {
protected:
    void Lee(const QByteArray &bytes)
    {
        Pon(u"Zembro.emu"_s, bytes);
        core::LeeCatalogo(M);
        M.TotalSistemas = M.Indice_Sistema + 1;
    }
};

} // namespace

// In order: ARCADE (entry 3), CONSOLE (1), CONSOLE_2 (2), ZX (0).
TEST_P(PosicionesDe, ArePlacesInTheSortedNames)
{
    Lee("-zx\r\n+only\r\n"
        "-Console\r\n+gamma\r\n+Alpha\r\n+BETA\r\n"
        "-console_2\r\n"
        "-Arcade\r\n+b\r\n+A\r\n");
    const core::Posiciones posiciones = core::PosicionesDe(M, GetParam().sistema, GetParam().emulador);
    EXPECT_EQ(posiciones.sistema, GetParam().posicionDelSistema);
    EXPECT_EQ(posiciones.emulador, GetParam().posicionDelEmulador);
}

INSTANTIATE_TEST_SUITE_P(Selecciones, PosicionesDe,
    testing::Values(Caso { u"Arcade"_s, u"A"_s, 0, 0 }, Caso { u"Arcade"_s, u"b"_s, 0, 1 },
        Caso { u"Console"_s, u"Alpha"_s, 1, 0 }, Caso { u"Console"_s, u"BETA"_s, 1, 1 },
        Caso { u"Console"_s, u"gamma"_s, 1, 2 }, Caso { u"zx"_s, u"only"_s, 3, 0 },
        // A system stands without an emulator.
        Caso { u"Console"_s, QString(), 1, 696969 }, Caso { u"console_2"_s, QString(), 2, 696969 },
        // Nothing is selected.
        Caso { QString(), QString(), 0, 0 },
        // Names that aren't there.
        Caso { u"None"_s, u"A"_s, 0, 0 }, Caso { u"Arcade"_s, u"none"_s, 0, 0 }));

TEST_F(PosicionesDe, IsTheFirst_OfANameThatOccursTwice)
{
    Lee("-Twice\r\n+x\r\n-Ahead\r\n-TWICE\r\n-Last\r\n");
    EXPECT_EQ(core::PosicionesDe(M, u"Twice"_s, QString()).sistema, 2);
    EXPECT_EQ(core::PosicionesDe(M, u"TWICE"_s, QString()).sistema, 2);
}

TEST_F(PosicionesDe, EmulatorIsLookedUp_AlsoInASystemWithAnEmptyName)
{
    Lee("-Other\r\n+C\r\n-\r\n+B\r\n+A\r\n");
    const core::Posiciones posiciones = core::PosicionesDe(M, QString(), u"B"_s);
    EXPECT_EQ(posiciones.sistema, 0);
    EXPECT_EQ(posiciones.emulador, 1);
}

TEST_F(PosicionesDe, AgreeWithTheOrderOfTheControls_WhateverTheCase)
{
    // '_' stands behind the capitals, accents behind all of ASCII.
    Lee("-b\r\n-_a\r\n-É\r\n-éa\r\n-a-b\r\n-A B\r\n");
    const QStringList enOrden { u"A B"_s, u"a-b"_s, u"b"_s, u"_a"_s, u"É"_s, u"éa"_s };
    for (int i = 0; i < enOrden.size(); ++i)
        EXPECT_EQ(core::PosicionesDe(M, enOrden[i], QString()).sistema, i) << enOrden[i].toStdString();
}

TEST_F(PosicionesDe, AreRight_InAFullCatalogue)
{
    QByteArray bytes;
    for (int s = 150; s >= 0; --s)
        bytes += "-S" + QByteArray::number(1000 + s) + "\r\n";
    for (int e = 149; e >= 0; --e)
        bytes += "+E" + QByteArray::number(1000 + e) + "\r\n"; // of S1000, the last
    Lee(bytes);
    const core::Posiciones posiciones = core::PosicionesDe(M, u"S1000"_s, u"E1149"_s);
    EXPECT_EQ(posiciones.sistema, 0);
    EXPECT_EQ(posiciones.emulador, 149);
    EXPECT_EQ(core::PosicionesDe(M, u"S1150"_s, QString()).sistema, 150);
}

// By the names, wherever the text has them by now.
TEST_F(PosicionesDe, InATextThatHasChanged_AreThoseOfTheText)
{
    Lee("-B\r\n+y\r\n+z\r\n-C\r\n+w\r\n");
    const struct {
        QString texto;
        Caso caso;
    } casos[] = {
        { u"-B\n+y\n+z\n-C\n+w\n"_s, { u"B"_s, u"z"_s, 0, 1 } },
        { u"-B\n+z\n+a\n+y\n-A\n+q\n"_s, { u"B"_s, u"z"_s, 1, 2 } },
        { u"-A\n-B\n+x\n"_s, { u"B"_s, QString(), 1, 696969 } },
        // It lacks the emulator.
        { u"-A\n-B\n+y\n+x\n"_s, { u"B"_s, u"z"_s, 1, 696969 } },
        // It lacks the system: the tables count.
        { u"-A\n+z\n-b\n+z\n"_s, { u"B"_s, u"z"_s, 0, 1 } },
        { QString(), { u"C"_s, u"w"_s, 1, 0 } },
        { u"-A\n"_s, { QString(), QString(), 0, 0 } },
    };
    for (const auto &[texto, caso] : casos) {
        const core::Posiciones posiciones = core::PosicionesEnTexto(M, texto, caso.sistema, caso.emulador);
        EXPECT_EQ(posiciones.sistema, caso.posicionDelSistema) << texto.toStdString();
        EXPECT_EQ(posiciones.emulador, caso.posicionDelEmulador) << texto.toStdString();
    }
}

TEST_F(PosicionesDe, InATextThatNoTableHolds_AreThoseOfWhatFits)
{
    QString texto;
    for (int s = 0; s < 200; ++s)
        texto += u"-S%1\n+E\n"_s.arg(1000 + s);
    Lee("-S1003\r\n+E\r\n");
    EXPECT_EQ(core::PosicionesEnTexto(M, texto, u"S1150"_s, u"E"_s).sistema, 150);
    EXPECT_EQ(core::PosicionesEnTexto(M, texto, u"S1160"_s, u"E"_s).sistema, 0);
}

namespace {

core::Posiciones EnOtro(const QString &despues, const QString &antes, const core::Posiciones &posiciones)
{
    return core::PosicionesEn(*core::CatalogoDe(despues), *core::CatalogoDe(antes), posiciones);
}

} // namespace

TEST(PosicionesEn, LeadToTheSameNames)
{
    const QString antes = u"-NES\n+b\n+D\n-Arcade\n+z\n"_s;
    const QString despues = u"-NES\n+b\n+D\n+A\n+c\n-Arcade\n+z\n-Oric\n+o\n-Ahead\n+h\n"_s;
    // In order: ARCADE, NES. Then: AHEAD, ARCADE, NES, ORIC.
    const core::Posiciones uno = EnOtro(despues, antes, { 1, 0 });
    EXPECT_EQ(uno.sistema, 2);
    EXPECT_EQ(uno.emulador, 1); // A, B, C, D
    EXPECT_EQ(EnOtro(despues, antes, { 1, 1 }).emulador, 3);
    EXPECT_EQ(EnOtro(despues, antes, { 0, 0 }).sistema, 1);
    EXPECT_EQ(EnOtro(antes, antes, { 1, 1 }).sistema, 1);
    EXPECT_EQ(EnOtro(antes, antes, { 1, 1 }).emulador, 1);
}

TEST(PosicionesEn, StayWhereNothingStands)
{
    const QString antes = u"-NES\n+b\n"_s;
    const QString despues = u"-Ahead\n+a\n-NES\n+a\n+b\n"_s;
    EXPECT_EQ(EnOtro(despues, antes, { 7, 0 }).sistema, 7);
    EXPECT_EQ(EnOtro(despues, antes, { -1, 0 }).sistema, -1);
    const core::Posiciones sinEmulador = EnOtro(despues, antes, { 0, core::NingunEmulador });
    EXPECT_EQ(sinEmulador.sistema, 1);
    EXPECT_EQ(sinEmulador.emulador, core::NingunEmulador);
    EXPECT_EQ(EnOtro(u"-Ahead\n"_s, antes, { 0, 0 }).sistema, 0);
    EXPECT_EQ(EnOtro(QString(), QString(), { 0, 0 }).sistema, 0);
}

TEST(PosicionesEn, TellSystemsOfOneNameApart)
{
    // In order of insertion: the second Twice is the one that stands at position 1.
    const core::Posiciones segundo =
        EnOtro(u"-Twice\n+a\n-TWICE\n+c\n-Twice\n+b\n"_s, u"-Twice\n+a\n-Twice\n+b\n"_s, { 1, 0 });
    EXPECT_EQ(segundo.sistema, 2);
}
