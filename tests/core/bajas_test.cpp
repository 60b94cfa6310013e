// Removals from the two catalogue files, and the place that is selected afterwards.
#include "catalogosdeprueba.h"

#include "core/altas.h"
#include "core/bajas.h"
#include "core/catalogo.h"

using namespace Qt::StringLiterals;

namespace {

class Bajas : public CatalogosDePrueba {
protected:
    QByteArray SinSistema(const QByteArray &bytes, const QString &sistema)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::SinSistema(t, sistema); });
    }

    QByteArray SinEmuladorEnBase(const QByteArray &bytes, const QString &sistema, const QString &emulador)
    {
        return Cambiado(
            bytes, [&](const QString &t) { return core::SinEmuladorEnBase(t, sistema, emulador); });
    }

    QByteArray SinUnico(const QByteArray &bytes, const QString &sistema)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::SinUnicoEmulador(t, sistema); });
    }

    QByteArray SinEmulador(const QByteArray &bytes, const QString &emulador)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::SinEmulador(t, emulador); });
    }

    QByteArray SinUltimo(const QByteArray &bytes, const QString &sistema, int total)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::SinUltimoEmulador(t, sistema, total); });
    }

    void LeeSistemas(const QStringList &nombres)
    {
        core::LectorDeCatalogo lector(M);
        for (const QString &nombre : nombres)
            lector.Linea(u'-' + nombre);
        M.TotalSistemas = static_cast<int>(nombres.size());
    }
};

} // namespace

TEST_F(Bajas, ASystemGoesWithItsClosingLine_FromBothFiles)
{
    EXPECT_EQ(SinSistema(Cabecera + Alfa + Beta + Gamma + Fin, u"Beta"_s), Cabecera + Alfa + Gamma + Fin);
    EXPECT_EQ(SinSistema(Cabecera + Alfa + Beta + Gamma + Fin, u"Alfa"_s), Cabecera + Beta + Gamma + Fin);
    EXPECT_EQ(SinSistema(Cabecera + Gamma + Fin, u"Gamma"_s), Cabecera + Fin);
    const QByteArray alfa = SistemaDe(CabezaAlfa, { "A1", "A2" });
    const QByteArray beta = SistemaDe(CabezaBeta, { "B1" });
    EXPECT_EQ(SinSistema(Cabecera + alfa + "\r\nmine\n" + beta + Fin, u"Alfa"_s),
        Cabecera + "\r\nmine\n" + beta + Fin);
}

TEST_F(Bajas, ASystemThatTheFileLacksTakesNothingAlong)
{
    const QByteArray bytes = Cabecera + Alfa + Beta + Fin;
    for (const QString &sistema : { u"ALFA"_s, u"Alf"_s, u"Alfa "_s, u"A1"_s, QString() })
        EXPECT_EQ(SinSistema(bytes, sistema), bytes) << sistema.toStdString();
}

TEST_F(Bajas, AnEmulatorOfTheDatabaseGoesUpToItsAddress)
{
    const QByteArray bytes = Cabecera + Alfa + Gamma + Fin;
    const struct {
        QString sistema;
        QString emulador;
        QByteArray lineas;
    } casos[] = { { u"Alfa"_s, u"A1"_s, "+A1\r\nWEB2=http://a1\r\n" },
        { u"Alfa"_s, u"A2"_s, "+A2\r\nWEB2=\r\n" }, { u"Gamma"_s, u"G3"_s, "+G3\r\nWEB2=3\r\n" } };
    for (const auto &caso : casos)
        EXPECT_EQ(SinEmuladorEnBase(bytes, caso.sistema, caso.emulador),
            QByteArray(bytes).replace(caso.lineas, QByteArray()))
            << caso.emulador.toStdString();
}

TEST_F(Bajas, LinesBetweenAnEmulatorAndItsAddressGoAlong)
{
    EXPECT_EQ(SinEmuladorEnBase("-S\n+E\nmine\nWEB2=\nmine\n+F\nWEB2=f\n'-\n", u"S"_s, u"E"_s),
        "-S\nmine\n+F\nWEB2=f\n'-\n");
}

TEST_F(Bajas, AnEmulatorOfTheSameNameAheadOfTheSystemStays)
{
    EXPECT_EQ(SinEmuladorEnBase("-R\n+E\nWEB2=1\n'-\n-S\n+E\nWEB2=2\n'-\n", u"S"_s, u"E"_s),
        "-R\n+E\nWEB2=1\n'-\n-S\n'-\n");
}

TEST_F(Bajas, AnEmulatorThatTheSystemLacksTakesNothingAlong)
{
    const QByteArray bytes = Cabecera + Alfa + Gamma + Fin;
    EXPECT_EQ(SinEmuladorEnBase(bytes, u"Alfa"_s, u"a1"_s), bytes);
    EXPECT_EQ(SinEmuladorEnBase(bytes, u"Gamma"_s, u"A1"_s), bytes);
    EXPECT_EQ(SinEmuladorEnBase(bytes, u"Delta"_s, u"A1"_s), bytes);
}

TEST_F(Bajas, ASystemStaysEmptyWhenItsOnlyEmulatorGoes)
{
    const QByteArray alfa = SistemaDe(CabezaAlfa, { "A1" });
    const QByteArray beta = SistemaDe(CabezaBeta, { "B1" });
    EXPECT_EQ(SinUnico(Cabecera + alfa + beta + Fin, u"Alfa"_s), Cabecera + CabezaAlfa + Cierre + beta + Fin);
    EXPECT_EQ(SinUnico(Cabecera + alfa + beta + Fin, u"Beta"_s), Cabecera + alfa + CabezaBeta + Cierre + Fin);
}

TEST_F(Bajas, ASystemThatIsClosedAtOnceStaysAsItIs)
{
    EXPECT_EQ(SinUnico(CabezaAlfa + Cierre + "mine\n", u"Alfa"_s), CabezaAlfa + Cierre + "mine\n");
    EXPECT_EQ(SinUnico(CabezaAlfa + Cierre + "mine\n", u"alfa"_s), CabezaAlfa + Cierre + "mine\n");
}

TEST_F(Bajas, BehindASystemWithoutEmulatorsTheNextOneReadsAsHavingNoExtensions)
{
    const QByteArray bytes =
        SinUnico(SistemaDe(CabezaAlfa, { "A1" }) + SistemaDe(CabezaBeta, { "B1" }), u"Alfa"_s);
    Pon(u"Zembro.emu"_s, bytes);
    core::LeeCatalogo(M);
    EXPECT_EQ(M.Cat_EXT(0, 1), u"*.BIN"_s);
    EXPECT_EQ(M.Cat_EXT(1, 0), QString());
    EXPECT_EQ(M.Cat_EXT(1, 2), u"*.ROM"_s);
}

TEST_F(Bajas, AnEmulatorThatOthersFollowGoesWithTheLineThatEndsIt)
{
    const QByteArray bytes =
        Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2", "A3" }) + SistemaDe(CabezaBeta, { "B1" }) + Fin;
    for (const QByteArray emulador : { "A1", "A2" })
        EXPECT_EQ(SinEmulador(bytes, QString::fromLatin1(emulador)),
            QByteArray(bytes).replace(BloqueDe(emulador) + "'\r\n", QByteArray()));
    EXPECT_EQ(SinEmulador(bytes, u"a1"_s), bytes);
}

TEST_F(Bajas, OfTwoEmulatorsOfOneNameTheFirstInTheFileGoes_EvenFromAnotherSystem)
{
    const QByteArray bytes =
        SistemaDe(CabezaAlfa, { "E", "A2" }) + SistemaDe(CabezaBeta, { "E", "B2" }) + Fin;
    EXPECT_EQ(SinEmulador(bytes, u"E"_s),
        SistemaDe(CabezaAlfa, { "A2" }) + SistemaDe(CabezaBeta, { "E", "B2" }) + Fin);
    // The closing line of the other system stays.
    EXPECT_EQ(SinEmulador(SistemaDe(CabezaAlfa, { "E" }) + SistemaDe(CabezaBeta, { "E", "B2" }), u"E"_s),
        CabezaAlfa + "'\r\n" + Cierre + SistemaDe(CabezaBeta, { "E", "B2" }));
}

TEST_F(Bajas, TheLastEmulatorGoesWithTheApostropheAheadOfIt_AndTheClosingLineStays)
{
    const QByteArray gamma = SistemaDe(CabezaGamma, { "G1", "G2" });
    const QByteArray tres = Cabecera + gamma + SistemaDe(CabezaAlfa, { "A1", "A2", "A3" }) + gamma + Fin;
    EXPECT_EQ(SinUltimo(tres, u"Alfa"_s, 3),
        Cabecera + gamma + SistemaDe(CabezaAlfa, { "A1", "A2" }) + gamma + Fin);
    const QByteArray dos = Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2" }) + gamma + Fin;
    EXPECT_EQ(SinUltimo(dos, u"Alfa"_s, 2), Cabecera + SistemaDe(CabezaAlfa, { "A1" }) + gamma + Fin);
}

TEST_F(Bajas, AnApostropheOfTheUsersOwnTakesNoOtherEmulatorAlong)
{
    const struct {
        QByteArray antes;
        QByteArray despues;
    } casos[] = {
        { "-S\n' mine\n'\n+E\n'\n+F\n'-\nx\n", "-S\n' mine\n'\n+E\n'-\nx\n" },
        { "-S\n'\n'\n+E\nEXE=e\n'\n+F\n'-\n", "-S\n'\n'\n+E\nEXE=e\n'-\n" },
        { "-S\n'\n+E\n' mine\nEXE=e\n'\n+F\n'-\n", "-S\n'\n+E\n' mine\nEXE=e\n'-\n" },
        { "-S\n'\n+E\nEXE=e\n' mine\nmine\n'\n+F\n'-\n", "-S\n'\n+E\nEXE=e\n'-\n" },
        { "-S\n+E\n'\n+F\nEXE=f\n' mine\nROM=f\n'-\n", "-S\n+E\n'-\n" },
        { "-S\n'\n+E\n+F\n' mine\n'-\n", "-S\n'\n+E\n'-\n" },
    };
    for (const auto &caso : casos)
        EXPECT_EQ(SinUltimo(caso.antes, u"S"_s, 2), caso.despues) << caso.antes.toStdString();
}

TEST_F(Bajas, AnApostropheOfTheUsersOwnGivesNoValuesToTheEmulatorAhead)
{
    EXPECT_EQ(SinEmulador("-S\n'\n+E\nEXE=e\n'\n+F\nEXE=f\n' mine\nROM=f\nmine\n'\n+G\nROM=g\n'-\n", u"F"_s),
        "-S\n'\n+E\nEXE=e\n'\nmine\n'\n+G\nROM=g\n'-\n");
}

TEST_F(Bajas, WithoutAClosingLineNothingOfTheNextSystemGoes)
{
    const QByteArray resto = "-T\nWEB1=t\n'\n+F\nWEB2=f\nEXE=f\n'-\n[EOF]\nlast";
    const QByteArray sistema = "-S\nWEB1=s\n'\n+E\nEXE=e\n'\n+F\nEXE=f\n";
    EXPECT_EQ(SinSistema(sistema + resto, u"S"_s), resto);
    EXPECT_EQ(SinSistema(sistema + "[EOF]\nlast", u"S"_s), "[EOF]\nlast");
    EXPECT_EQ(SinSistema(sistema, u"S"_s), "");
    EXPECT_EQ(SinUltimo(sistema + resto, u"S"_s, 2), "-S\nWEB1=s\n'\n+E\nEXE=e\n" + resto);
    EXPECT_EQ(SinEmulador(sistema + resto, u"F"_s), "-S\nWEB1=s\n'\n+E\nEXE=e\n'\n" + resto);
    EXPECT_EQ(SinUnico("-S\nWEB1=s\n'\n+E\nEXE=e\n" + resto, u"S"_s), "-S\nWEB1=s\n" + Cierre + resto);
    EXPECT_EQ(SinUnico("-S\nWEB1=s\n" + resto, u"S"_s), "-S\nWEB1=s\n" + resto);
}

TEST_F(Bajas, AnEmulatorOfTheDatabaseWithoutAnAddressTakesNoOtherAlong)
{
    for (const QByteArray resto : { "+F\nWEB2=f\n'-\n-T\n+E\nWEB2=t\n'-\n[", "'-\n-T\n+E\nWEB2=t\n'-\n[",
             "-T\n+E\nWEB2=t\n", "[\n", "" })
        EXPECT_EQ(SinEmuladorEnBase("-S\n'\n+E\n" + resto, u"S"_s, u"E"_s), "-S\n'\n" + resto);
}

TEST_F(Bajas, AnEmulatorOfTheDatabaseIsLookedForInItsSystemAlone)
{
    const QByteArray bytes = Cabecera + Alfa + Gamma + Fin;
    EXPECT_EQ(SinEmuladorEnBase(bytes, u"Alfa"_s, u"G1"_s), bytes);
}

TEST_F(Bajas, NothingGoes_WhereTheBlocksAreFewerThanTold)
{
    const QByteArray bytes = "-S\n*.A\n+E\n'\n+F\n'-\nx\n[\nlast";
    EXPECT_EQ(SinUltimo(bytes, u"S"_s, 2), bytes);
    EXPECT_EQ(SinUltimo(bytes, u"s"_s, 1), bytes);
}

TEST_F(Bajas, RemovedInTurnASystemsEmulatorsLeaveItEmpty)
{
    const QByteArray beta = SistemaDe(CabezaBeta, { "B1" });
    QByteArray bytes = Cabecera + SistemaDe(CabezaGamma, { "G1", "G2", "G3" }) + beta + Fin;
    bytes = SinEmulador(bytes, u"G2"_s);
    bytes = SinUltimo(bytes, u"Gamma"_s, 2);
    bytes = SinUnico(bytes, u"Gamma"_s);
    EXPECT_EQ(bytes, Cabecera + CabezaGamma + Cierre + beta + Fin);
}

// What the tables of an earlier moment take out of the file as it is now.
class BajasDeLaFila : public CatalogosDePrueba {
protected:
    void Lee(const QByteArray &bytes)
    {
        Pon(u"Zembro.emu"_s, bytes);
        core::LeeCatalogo(M);
    }
    static QString Texto(const QByteArray &bytes) { return QString::fromLatin1(bytes); }
    std::optional<QString> SinEmulador(int fila, int columna, const QByteArray &bytes) const
    {
        return core::SinEmuladorDeLaFila(M, fila, columna, Texto(bytes));
    }
    std::optional<QString> SinSistema(int fila, const QByteArray &bytes) const
    {
        return core::SinSistemaDeLaFila(M, fila, Texto(bytes));
    }

    const QByteArray alfa = SistemaDe(CabezaAlfa, { "A1", "A2", "A3" });
    const QByteArray beta = SistemaDe(CabezaBeta, { "B1" });
    const QByteArray gamma = SistemaDe(CabezaGamma, { "G1", "G2" });
};

TEST_F(BajasDeLaFila, TheFileAsTheTablesHaveItLosesWhatWasNamed)
{
    const QByteArray bytes = Cabecera + alfa + beta + gamma + Fin;
    Lee(bytes);
    EXPECT_EQ(SinSistema(1, bytes), Texto(Cabecera + alfa + gamma + Fin));
    EXPECT_EQ(SinEmulador(0, 2, bytes),
        Texto(Cabecera + SistemaDe(CabezaAlfa, { "A1", "A3" }) + beta + gamma + Fin));
    EXPECT_EQ(SinEmulador(0, 3, bytes),
        Texto(Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2" }) + beta + gamma + Fin));
    EXPECT_EQ(SinEmulador(1, 1, bytes), Texto(Cabecera + alfa + CabezaBeta + Cierre + gamma + Fin));
}

TEST_F(BajasDeLaFila, NothingIsTakenOutOfASystemThatHasChanged)
{
    Lee(Cabecera + alfa + beta + gamma + Fin);
    const QByteArray cambiados[] = { SistemaDe(CabezaAlfa, { "A1", "A2", "A3", "A4" }),
        SistemaDe(CabezaAlfa, { "A1", "A2" }), SistemaDe(CabezaAlfa, { "A2", "A1", "A3" }),
        SistemaDe(CabezaAlfa, { "A0", "A1", "A2", "A3" }), CabezaAlfa + Cierre, "",
        QByteArray(alfa).replace("EXE=/bin/A2", "EXE=/bin/other"),
        QByteArray(alfa).replace("PAR2=\r\n'-", "PAR2=x\r\n'-"), QByteArray(alfa).replace("*.BIN", "*.C"),
        QByteArray(alfa).replace("WEB1=", "WEB1=x"), QByteArray(alfa).replace("-Alfa", "-ALFA") };
    for (const QByteArray &cambiado : cambiados) {
        const QByteArray bytes = Cabecera + cambiado + beta + gamma + Fin;
        for (int columna = 1; columna <= 3; ++columna)
            EXPECT_EQ(SinEmulador(0, columna, bytes), std::nullopt) << cambiado.toStdString();
        EXPECT_EQ(SinSistema(0, bytes), std::nullopt) << cambiado.toStdString();
    }
}

TEST_F(BajasDeLaFila, OtherSystemsMayHaveChanged)
{
    Lee(Cabecera + alfa + beta + gamma + Fin);
    EXPECT_EQ(SinEmulador(2, 2, Cabecera + gamma + SistemaDe(CabezaAlfa, { "A9" }) + Fin),
        Texto(Cabecera + SistemaDe(CabezaGamma, { "G1" }) + SistemaDe(CabezaAlfa, { "A9" }) + Fin));
    EXPECT_EQ(SinSistema(2, Cabecera + gamma + Fin), Texto(Cabecera + Fin));
}

TEST_F(BajasDeLaFila, OfTwoSystemsOfOneNameTheOneOfTheTablesLosesItsEmulator)
{
    const QByteArray otra = SistemaDe(CabezaAlfa, { "B1" });
    Lee(alfa + otra + Fin);
    EXPECT_EQ(SinEmulador(1, 1, alfa + otra + Fin), Texto(alfa + CabezaAlfa + Cierre + Fin));
    EXPECT_EQ(
        SinEmulador(0, 3, alfa + otra + Fin), Texto(SistemaDe(CabezaAlfa, { "A1", "A2" }) + otra + Fin));
}

TEST_F(BajasDeLaFila, ABlockOfTheSystemsNameAddedMeanwhileStays)
{
    const QByteArray nueva = SistemaDe(CabezaAlfa, { "A4" });
    Lee(Cabecera + alfa + beta + Fin);
    for (const QByteArray &bytes : { QByteArray(Cabecera + alfa + beta + nueva + Fin),
             QByteArray(Cabecera + nueva + alfa + beta + Fin), QByteArray(alfa + alfa + beta + Fin) }) {
        EXPECT_EQ(SinSistema(0, bytes), std::nullopt) << bytes.toStdString();
        for (int columna = 1; columna <= 3; ++columna)
            EXPECT_EQ(SinEmulador(0, columna, bytes), std::nullopt) << bytes.toStdString();
    }
    Lee(Cabecera + alfa + nueva + Fin);
    EXPECT_EQ(SinSistema(0, Cabecera + alfa + Fin), std::nullopt);
    EXPECT_EQ(SinSistema(0, Cabecera + alfa + SistemaDe(CabezaAlfa, { "A5" }) + Fin), std::nullopt);
    EXPECT_EQ(SinSistema(0, Cabecera + alfa + nueva + Fin), Texto(Cabecera + Fin));
}

TEST_F(BajasDeLaFila, AnEmulatorOfTheSameNameAddedMeanwhileFurtherUpStays)
{
    Lee(Cabecera + beta + alfa + Fin);
    const QByteArray con = SistemaDe(CabezaBeta, { "B1", "A1" });
    EXPECT_EQ(SinEmulador(1, 1, Cabecera + con + alfa + Fin), std::nullopt);
    EXPECT_EQ(SinEmulador(1, 1, Cabecera + SistemaDe(CabezaGamma, { "A1", "G1" }) + beta + alfa + Fin),
        std::nullopt);
    // Others don't go by the first of the name, or don't stand further up.
    EXPECT_EQ(SinEmulador(1, 3, Cabecera + con + alfa + Fin),
        Texto(Cabecera + con + SistemaDe(CabezaAlfa, { "A1", "A2" }) + Fin));
    EXPECT_EQ(SinEmulador(1, 2, Cabecera + con + alfa + Fin),
        Texto(Cabecera + con + SistemaDe(CabezaAlfa, { "A1", "A3" }) + Fin));
    EXPECT_EQ(SinEmulador(1, 1, Cabecera + alfa + con + Fin),
        Texto(Cabecera + SistemaDe(CabezaAlfa, { "A2", "A3" }) + con + Fin));
}

TEST_F(BajasDeLaFila, OfAnEmulatorThatStoodTwiceTheFirstGoes_WhereItsSystemIsAsItWas)
{
    const QByteArray doble = SistemaDe(CabezaBeta, { "A1", "B1" });
    Lee(doble + alfa + Fin);
    EXPECT_EQ(SinEmulador(1, 1, doble + alfa + Fin), Texto(SistemaDe(CabezaBeta, { "B1" }) + alfa + Fin));
    EXPECT_EQ(SinEmulador(1, 1, SistemaDe(CabezaBeta, { "A1", "B1", "B2" }) + alfa + Fin), std::nullopt);
    EXPECT_EQ(
        SinEmulador(1, 1, beta + alfa + Fin), Texto(beta + SistemaDe(CabezaAlfa, { "A2", "A3" }) + Fin));
    Lee(alfa + doble + Fin);
    EXPECT_EQ(SinEmulador(0, 1, doble + alfa + Fin), std::nullopt);
}

TEST_F(BajasDeLaFila, OfAFileThatNoLongerFitsTheTablesWhatFitsCounts)
{
    Lee(alfa + Fin);
    QByteArray otros;
    for (int i = 0; i < 151; ++i)
        otros += "-S\r\n'-\r\n";
    EXPECT_EQ(SinEmulador(0, 1, alfa + otros), Texto(SistemaDe(CabezaAlfa, { "A2", "A3" }) + otros));
    EXPECT_EQ(SinEmulador(0, 1, otros + alfa), std::nullopt);
    EXPECT_EQ(SinEmulador(0, 1, "EXE=\r\n" + alfa), std::nullopt);
}

TEST_F(Bajas, ThePlaceOfASystemIsTheOneAmongTheSortedNames)
{
    LeeSistemas({ u"delta"_s, u"Alfa"_s, u"_x"_s, u"Beta"_s, u"Ñu"_s });
    const QStringList ordenados { u"Alfa"_s, u"Beta"_s, u"delta"_s, u"_x"_s, u"Ñu"_s };
    for (int i = 0; i < ordenados.size(); ++i)
        EXPECT_EQ(core::PosicionParaBorrar(M, ordenados[i]), i) << ordenados[i].toStdString();
}

TEST_F(Bajas, AFullTableOfSystemsFails)
{
    QStringList nombres;
    for (int i = 0; i < 150; ++i)
        nombres += u"S%1"_s.arg(i, 3, 10, QChar(u'0'));
    LeeSistemas(nombres);
    EXPECT_EQ(core::PosicionParaBorrar(M, u"S149"_s), 149);
    LeeSistemas(nombres + QStringList { u"T"_s });
    EXPECT_EQ(NumeroDeFallo([this] { core::PosicionParaBorrar(M, u"S000"_s); }), host::OutOfRange);
}

TEST_F(Bajas, ThePlaceStays_OrMovesOneUpFromTheEnd)
{
    const struct {
        int posicion;
        int total;
        int despues;
    } casos[] = { { 0, 1, 0 }, { 0, 2, 0 }, { 1, 2, 0 }, { 0, 3, 0 }, { 1, 3, 1 }, { 2, 3, 1 },
        { 148, 150, 148 }, { 149, 150, 148 } };
    for (const auto &caso : casos)
        EXPECT_EQ(core::PosicionTrasBorrar(caso.posicion, caso.total), caso.despues)
            << caso.posicion << " of " << caso.total;
}
