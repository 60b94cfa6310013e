// The section of parameters: its changes, through rewrites of the file, and the search of one game's.
#include "directoriodeprograma.h"

#include "core/notas.h"
#include "core/parrom.h"
#include "core/romelegida.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray Cierre = "'\r\nfin\r\nfin,\"fin\"\r\n";
const QByteArray Cabecera = "Parametros especificos\r\n";

class Parametros : public DirectorioDePrograma {
protected:
    QByteArray Cambiado(const QByteArray &bytes, const std::function<QString(const QString &)> &cambio)
    {
        Pon(u"Zembro.rom"_s, bytes);
        Reescribe(u"Zembro.rom"_s, cambio);
        EXPECT_EQ(Nombres(), QStringList { u"Zembro.rom"_s });
        return Bytes(u"Zembro.rom"_s);
    }

    QByteArray ConNuevos(const QByteArray &bytes, const core::Parametros &parametros)
    {
        return Cambiado(
            bytes, [&](const QString &texto) { return core::ConParametrosNuevos(texto, parametros); });
    }

    QByteArray ConCambiados(const QByteArray &bytes, const core::Parametros &parametros)
    {
        return Cambiado(
            bytes, [&](const QString &texto) { return core::ConParametrosCambiados(texto, parametros); });
    }

    static QString De(const QString &clave, const QString &texto)
    {
        host::TextSource fuente(texto);
        return core::ParametrosDe(fuente, clave);
    }
};

} // namespace

TEST_F(Parametros, NewOnesStandDirectlyBehindTheHeader)
{
    EXPECT_EQ(ConNuevos("Console\r\n'\r\n[\r\n" + Cabecera + "OLD,s,e,-x\r\n" + Cierre,
                  { u"New.bin"_s, u"Console"_s, u"Emulator"_s, u"-full -q"_s }),
        "Console\r\n'\r\n[\r\n" + Cabecera + "New.bin,Console,Emulator,-full -q\r\nOLD,s,e,-x\r\n" + Cierre);
}

TEST_F(Parametros, NewOnesGoByTheTwentyTwoCharactersOfTheHeader)
{
    EXPECT_EQ(ConNuevos("Parametros\r\nParametros especificos de cada ROM\r\n" + Cierre,
                  { u"A"_s, u"s"_s, u"e"_s, u"p"_s }),
        "Parametros\r\nParametros especificos de cada ROM\r\nA,s,e,p\r\n" + Cierre);
    const QByteArray sinCabecera = "Parametros\r\n parametros especificos\r\nPARAMETROS ESPECIFICOS\r\n";
    EXPECT_EQ(ConNuevos(sinCabecera, { u"A"_s, u"s"_s, u"e"_s, u"p"_s }), sinCabecera);
}

TEST_F(Parametros, NewOnesLeaveAllOtherLinesByteForByte)
{
    EXPECT_EQ(
        ConNuevos("\xE9\n\n\nParametros especificos\nA , b\n\n'\nlast", { u"ñ"_s, u"s"_s, u"e"_s, u"p"_s }),
        "\xE9\n\n\nParametros especificos\n\xF1,s,e,p\r\nA , b\n\n'\nlast");
}

TEST_F(Parametros, KeysThatWouldSplitARecordOrPassForAnAnchorStandInDoubleQuotes)
{
    const std::pair<QString, QByteArray> claves[] = { { u"Addams Family, The.nes"_s,
                                                          "\"Addams Family, The.nes\"" },
        { u"'Twas.nes"_s, "\"'Twas.nes\"" }, { u"[a].nes"_s, "\"[a].nes\"" }, { u"It's.nes"_s, "It's.nes" } };
    for (const auto &[clave, escrita] : claves) {
        const QByteArray bytes = ConNuevos(Cabecera + Cierre, { clave, u"s"_s, u"e"_s, u"-p"_s });
        EXPECT_EQ(bytes, Cabecera + escrita + ",s,e,-p\r\n" + Cierre);
        EXPECT_EQ(De(clave, QString::fromLatin1(bytes)), u"-p");
        // Neither a change of this record nor one of another splits it.
        EXPECT_EQ(ConCambiados(bytes, { clave, u"s"_s, u"e"_s, u"-q"_s }),
            Cabecera + escrita + ",s,e,-q\r\n" + Cierre);
        EXPECT_EQ(ConCambiados(bytes, { u"OTHER"_s, u"s"_s, u"e"_s, u"-q"_s }), bytes);
        EXPECT_EQ(ConCambiados(bytes, { clave, u"s"_s, u"e"_s, QString() }), Cabecera + Cierre);
    }
}

TEST_F(Parametros, ChangedOnesTakeThePlaceOfTheOld)
{
    EXPECT_EQ(
        ConCambiados("Console\r\n'\r\n[\r\n" + Cabecera + "A,s,e,-a\r\nB,s,e,-b\r\nC,s,e,-c\r\n" + Cierre,
            { u"B"_s, u"Console"_s, u"Emulator"_s, u"-new"_s }),
        "Console\r\n'\r\n[\r\n" + Cabecera + "A,s,e,-a\r\nB,Console,Emulator,-new\r\nC,s,e,-c\r\n" + Cierre);
}

TEST_F(Parametros, EveryRecordOfTheKeyIsChanged_WhateverItsCaseItsSystemAndItsEmulator)
{
    EXPECT_EQ(ConCambiados(Cabecera + "game.Bin,one,x,-a\r\nOTHER,s,e,-o\r\nGAME.BIN,two,y,-b\r\n" + Cierre,
                  { u"Game.bin"_s, u"s"_s, u"e"_s, u"-n"_s }),
        Cabecera + "Game.bin,s,e,-n\r\nOTHER,s,e,-o\r\nGame.bin,s,e,-n\r\n" + Cierre);
}

TEST_F(Parametros, EveryRecordOfTheKeyGoes_WhereTheNewOnesAreEmpty)
{
    EXPECT_EQ(ConCambiados(Cabecera + "game.Bin,one,x,-a\r\nOTHER,s,e,-o\r\nGAME.BIN,two,y,-b\r\n" + Cierre,
                  { u"Game.bin"_s, u"s"_s, u"e"_s, QString() }),
        Cabecera + "OTHER,s,e,-o\r\n" + Cierre);
}

TEST_F(Parametros, NothingIsAdded_WithoutARecordOfTheKey)
{
    const QByteArray bytes = Cabecera + "A,s,e,-a\r\n" + Cierre;
    EXPECT_EQ(ConCambiados(bytes, { u"B"_s, u"s"_s, u"e"_s, u"-b"_s }), bytes);
}

TEST_F(Parametros, EmptyLinesAreDroppedAheadOfTheSectionAndBehindIt)
{
    EXPECT_EQ(ConCambiados("top\n\r\n\nConsole\r\n'\r\n\r\n" + Cabecera + Cierre + "\r\nbehind\n\n \nlast",
                  { u"B"_s, u"s"_s, u"e"_s, u"-b"_s }),
        "top\nConsole\r\n'\r\n" + Cabecera + Cierre + "behind\n \nlast");
}

TEST_F(Parametros, SectionIsFoundByTheFirstTenCharacters)
{
    EXPECT_EQ(
        ConCambiados("Parametros de siempre\r\nA,s,e,-a\r\n" + Cierre, { u"A"_s, u"s"_s, u"e"_s, u"-n"_s }),
        "Parametros de siempre\r\nA,s,e,-n\r\n" + Cierre);
}

TEST_F(Parametros, RecordsComeOutOneToALineWithBareFields)
{
    EXPECT_EQ(ConCambiados(
                  Cabecera + "  A , s ,\"e\" , -a \r\nB\r\ns\r\ne\r\n-b\r\n\"C\",s,e\r\n\"-c\"\r\n" + Cierre,
                  { u"X"_s, u"s"_s, u"e"_s, u"-x"_s }),
        Cabecera + "A,s,e,-a\r\nB,s,e,-b\r\nC,s,e,-c\r\n" + Cierre);
}

TEST_F(Parametros, ANameWithACommaStaysOneField)
{
    const QByteArray uno = ConCambiados(
        Cabecera + "X,s,e,-a\r\nB,s,e,-b\r\n" + Cierre, { u"X"_s, u"Uno, dos"_s, u"Emu, tres"_s, u"-x"_s });
    EXPECT_EQ(uno, Cabecera + "X,\"Uno, dos\",\"Emu, tres\",-x\r\nB,s,e,-b\r\n" + Cierre);
    EXPECT_EQ(ConCambiados(uno, { u"B"_s, u"s"_s, u"e"_s, u"-c"_s }),
        Cabecera + "X,\"Uno, dos\",\"Emu, tres\",-x\r\nB,s,e,-c\r\n" + Cierre);
}

TEST_F(Parametros, ANameWithQuotesOrABlankAtAnEndFindsItsRecordAgain)
{
    const std::pair<QString, QByteArray> nombres[] = { { u"Amiga \"AGA\""_s, "Amiga \"AGA\"" },
        { u" Amiga"_s, "\" Amiga\"" }, { u"Amiga "_s, "\"Amiga \"" },
        { u" Amiga, CD32 "_s, "\" Amiga, CD32 \"" }, { u"'"_s, "'" } };
    for (const auto &[nombre, escrito] : nombres) {
        const QByteArray bytes =
            ConNuevos(Cabecera + "B,s,e,-b\r\n" + Cierre, { u"A"_s, nombre, nombre, u"-a"_s });
        EXPECT_EQ(bytes, Cabecera + "A," + escrito + ',' + escrito + ",-a\r\nB,s,e,-b\r\n" + Cierre);
        host::TextSource fuente(QString::fromLatin1(bytes));
        EXPECT_EQ(core::ParametrosEscritos(fuente, u"A"_s, nombre, nombre), u"-a"_s);
        EXPECT_EQ(ConCambiados(bytes, { u"B"_s, u"s"_s, u"e"_s, u"-b"_s }), bytes);
    }
}

TEST_F(Parametros, ACommaInTheParametersMovesTheirRestIntoTheNextField)
{
    EXPECT_EQ(
        ConCambiados(Cabecera + "A,s,e,-a,b\r\nB,s,e\r\n" + Cierre, { u"X"_s, u"s"_s, u"e"_s, u"-x"_s }),
        Cabecera + "A,s,e,-a\r\nb,B,s,e\r\n" + Cierre);
}

struct CierreLeido {
    QByteArray leido;
    QByteArray escrito;
};

void PrintTo(const CierreLeido &caso, std::ostream *salida)
{
    *salida << caso.leido.toPercentEncoding(" \",'").constData();
}

class CierreDeParametros : public Parametros, public testing::WithParamInterface<CierreLeido> { };

TEST_P(CierreDeParametros, IsWrittenOnThreeLinesAndComesOutTheSameTheNextTime)
{
    const core::Parametros otros { u"X"_s, u"s"_s, u"e"_s, u"-x"_s };
    const QByteArray unaVez = ConCambiados(Cabecera + "A,s,e,-a\r\n" + GetParam().leido, otros);
    EXPECT_EQ(unaVez, Cabecera + "A,s,e,-a\r\n" + GetParam().escrito);
    EXPECT_EQ(ConCambiados(unaVez, otros), unaVez);
}

INSTANTIATE_TEST_SUITE_P(Cierres, CierreDeParametros,
    testing::Values(CierreLeido { Cierre, Cierre }, CierreLeido { "',fin,fin,fin\r\n", Cierre },
        CierreLeido { "',\"fin\",\"fin\",\"fin\"", Cierre }, CierreLeido { "'\nfin\nfin\nfin\n", Cierre },
        // Fields that are missing at the end of the file are empty.
        CierreLeido { "'\r\nfin\r\n", "'\r\nfin\r\n,\"\"\r\n" }, CierreLeido { "'", "'\r\n\r\n,\"\"\r\n" }));

TEST_F(Parametros, ChangeFailsAtTheEndAndLeavesTheFileAsItWas_WithoutASectionOrItsClosing)
{
    for (const QByteArray bytes :
        { "Console\r\n'\r\n", "", "Parametros especificos", "Parametros especificos\r\nA,s,e,-a\r\n",
            "Parametros especificos\r\nA,s", "Parametros especificos\r\n'-\r\n" }) {
        Pon(u"Zembro.rom"_s, bytes);
        EXPECT_EQ(NumeroDeFallo([this] {
            Reescribe(u"Zembro.rom"_s, [](const QString &texto) {
                return core::ConParametrosCambiados(texto, { u"A"_s, u"s"_s, u"e"_s, u"-n"_s });
            });
        }),
            host::PastEndOfFile)
            << bytes.constData();
        EXPECT_EQ(Bytes(u"Zembro.rom"_s), bytes);
        EXPECT_EQ(Nombres(), QStringList { u"Zembro.rom"_s });
        M.Ficheros.closeAll();
    }
}

TEST_F(Parametros, FailureOfAChangeNamesTheFile)
{
    try {
        core::ConParametrosCambiados(
            u"Parametros especificos\r\nA,s,e,-a\r\n"_s, { u"A"_s, u"s"_s, u"e"_s, u"-n"_s });
        FAIL();
    } catch (const host::Failure &fallo) {
        EXPECT_EQ(fallo.about(), u"Zembro.rom");
    }
}

TEST_F(Parametros, SystemBlocksBehindTheSectionStayAsTheyAre)
{
    EXPECT_EQ(ConCambiados(Cabecera + "A,s,e,-a\r\n" + Cierre + "Console\r\n\"A, B\",\"a , b\"\r\n'\r\n[\r\n",
                  { u"A"_s, u"s"_s, u"e"_s, u"-n"_s }),
        Cabecera + "A,s,e,-n\r\n" + Cierre + "Console\r\n\"A, B\",\"a , b\"\r\n'\r\n[\r\n");
}

TEST_F(Parametros, AccentsSurviveAChange)
{
    EXPECT_EQ(ConCambiados("\x81\xE9\r\n" + Cabecera + "\xD1,\xE9,e,-\xFC\r\nA,s,e,-a\r\n" + Cierre,
                  { u"A"_s, u"s"_s, u"e"_s, u"-ó"_s }),
        "\x81\xE9\r\n" + Cabecera + "\xD1,\xE9,e,-\xFC\r\nA,s,e,-\xF3\r\n" + Cierre);
}

TEST_F(Parametros, OfAGameAreThoseOfTheFirstRecordWithItsKey_WhateverItsSystemAndItsEmulator)
{
    const QString texto =
        u"Console\r\nGAME,\"x\"\r\n'\r\nParametros especificos\r\nOTHER,s,e,-o\r\ngame,s1,e1,-one\r\n"
        u"GAME,s2,e2,-two\r\n'\r\nfin\r\nfin,\"fin\"\r\nGAME2,s,e,-late\r\n"_s;
    EXPECT_EQ(De(u"GAME"_s, texto), u"-one");
    EXPECT_EQ(De(u"Game"_s, texto), u"-one");
    EXPECT_EQ(De(u"Other"_s, texto), u"-o");
    EXPECT_EQ(De(u"none"_s, texto), QString());
    EXPECT_EQ(De(u"GAME2"_s, texto), QString());
}

TEST_F(Parametros, OfAGameAreCutAtAComma)
{
    EXPECT_EQ(De(u"A"_s, u"Parametros especificos\r\nA,s,e,-a,b\r\n'\r\n"_s), u"-a");
}

TEST_F(Parametros, OnlyTheFirstOfTwoHeadersTakesNewOnes)
{
    EXPECT_EQ(ConNuevos(Cabecera + Cierre + Cabecera + Cierre, { u"A"_s, u"s"_s, u"e"_s, u"-x"_s }),
        Cabecera + "A,s,e,-x\r\n" + Cierre + Cabecera + Cierre);
}

TEST_F(Parametros, OfAKeyThatWouldNotComeBackAsItIsAreNotWritten)
{
    const QByteArray antes = Cabecera + "OLD,s,e,-x\r\n" + Cierre;
    for (const QString &clave : { u"'"_s, u"\"X\" GAME"_s, u"A \"X\", B"_s, u"TWO\nLINES"_s }) {
        EXPECT_EQ(ConNuevos(antes, { clave, u"s"_s, u"e"_s, u"-y"_s }), antes) << clave.toStdString();
        EXPECT_EQ(ConCambiados(antes, { clave, u"s"_s, u"e"_s, u"-y"_s }), antes) << clave.toStdString();
    }
}

TEST_F(Parametros, ThatWouldNotComeBackAreNotWritten)
{
    const QByteArray antes = Cabecera + "OLD,s,e,-x\r\n" + Cierre;
    for (const QString &texto : { u"-x\n-y"_s, u"\"-x\" y"_s, u" \"x"_s }) {
        EXPECT_FALSE(core::SonParametrosEnteros(texto)) << texto.toStdString();
        EXPECT_EQ(ConNuevos(antes, { u"A"_s, u"s"_s, u"e"_s, texto }), antes) << texto.toStdString();
        EXPECT_EQ(ConCambiados(antes, { u"OLD"_s, u"s"_s, u"e"_s, texto }), antes) << texto.toStdString();
    }
    EXPECT_FALSE(core::SonParametrosEnteros(u"-a,-b"_s));
}

TEST_F(Parametros, BlanksAtTheirEndsComeBack_ButNotAroundDoubleQuotes)
{
    const std::pair<QString, QByteArray> textos[] = { { u" -x "_s, "\" -x \"" }, { u"  "_s, "\"  \"" },
        { u" -a \"b c\" "_s, "-a \"b c\"" } };
    for (const auto &[texto, escrito] : textos) {
        EXPECT_TRUE(core::SonParametrosEnteros(texto));
        EXPECT_EQ(ConNuevos(Cabecera + Cierre, { u"A"_s, u"s"_s, u"e"_s, texto }),
            Cabecera + "A,s,e," + escrito + "\r\n" + Cierre);
    }
}

TEST_F(Parametros, OfANameThatWouldNotComeBackAreNotWritten)
{
    const QByteArray antes = Cabecera + "OLD,s,e,-x\r\n" + Cierre;
    for (const QString &nombre : { u"Amiga \"AGA\", CD32"_s, u"\"Amiga"_s, u" \"x\""_s, u"A\rB"_s }) {
        EXPECT_EQ(ConNuevos(antes, { u"A"_s, nombre, u"e"_s, u"-y"_s }), antes) << nombre.toStdString();
        EXPECT_EQ(ConNuevos(antes, { u"A"_s, u"s"_s, nombre, u"-y"_s }), antes) << nombre.toStdString();
        EXPECT_EQ(ConCambiados(antes, { u"OLD"_s, nombre, u"e"_s, u"-y"_s }), antes) << nombre.toStdString();
        EXPECT_EQ(ConCambiados(antes, { u"OLD"_s, u"s"_s, nombre, {} }), antes) << nombre.toStdString();
    }
}
