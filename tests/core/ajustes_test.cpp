// Reading the settings: the first-run mark, the values by line number, the filters.
#include "directoriodeprograma.h"

#include "core/ajustes.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray Cabecera = "'                +----------------------------------+\r\n"
                            "'                |            Zembrolix             |\r\n"
                            "'                |  =- Archivo de configuracion -=  |\r\n"
                            "'                |     =- Configuration file -=     |\r\n"
                            "'                +----------------------------------+\r\n"
                            "'\r\n"
                            "'          * Please don't manipulate this file manually\r\n"
                            "'          * Por favor no manipular este archivo manualmente\r\n"
                            "'\r\n"
                            "\r\n"
                            "[General]\r\n";
const QByteArray Valores = "LastSisUsed = 3\r\n"
                           "LastEmuUsed = 696969\r\n"
                           "SaveLastEmu&Sis = 1\r\n"
                           "TypeOfEditor = 0\r\n"
                           "MsgEndDOS = Finished\r\n"
                           "LanguageFile = ZB-ESP.LNG\r\n"
                           "DebugMode = 1\r\n";
const QByteArray HastaFiltros = "\r\n[Filters]\r\n";
const QByteArray Final = "\r\n[EOF]\r\n";

class Ajustes : public DirectorioDePrograma {
protected:
    void Lee(const QByteArray &bytes)
    {
        Pon(u"Zembro.cfg"_s, bytes);
        core::LeeAjustes(M);
    }

    int FalloAlLeer(const QByteArray &bytes)
    {
        return NumeroDeFallo([&] { Lee(bytes); });
    }

    bool PrimeraVez(const QByteArray &bytes)
    {
        Pon(u"Zembro.cfg"_s, bytes);
        return core::EsPrimeraVez(M);
    }

    // With this line in the place of the one that sets the language.
    static QByteArray ConLinea(const QByteArray &linea)
    {
        return QByteArray(Cabecera + Valores + HastaFiltros + "ROMS\r\n" + Final)
            .replace("LanguageFile = ZB-ESP.LNG", linea);
    }
};

QByteArray filtros(int cuantos)
{
    QByteArray bytes;
    for (int i = 0; i < cuantos; ++i)
        bytes += "F" + QByteArray::number(i) + "\r\n";
    return bytes;
}

} // namespace

TEST_F(Ajustes, HoldTheValuesBehindTheEqualSignAndTheBlank)
{
    Lee(Cabecera + Valores + HastaFiltros + "ARTWORK\r\nROMS\r\n" + Final);
    EXPECT_EQ(M.UltimoSistema, u"3");
    EXPECT_EQ(M.UltimoEmulador, u"696969");
    EXPECT_EQ(M.GuardarUltimo, u"1");
    EXPECT_EQ(M.TypeOfEditor, u"0");
    EXPECT_EQ(M.MsgEndDOS, u"Finished");
    EXPECT_EQ(M.LanguageFile, u"ZB-ESP.LNG");
    EXPECT_EQ(M.DebugMode, u"1");
    EXPECT_EQ(M.Filtros(0), u"ARTWORK");
    EXPECT_EQ(M.Filtros(1), u"ROMS");
    EXPECT_EQ(M.Filtros(2), QString());
    EXPECT_EQ(M.FiltrosTexto, u"ARTWORK,ROMS");
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Ajustes, FileAsFirstWrittenIsRead)
{
    Lee(core::AjustesPorDefecto(u"ZB-ENG.LNG"_s).toLatin1());
    EXPECT_EQ(M.UltimoSistema, u"0");
    EXPECT_EQ(M.UltimoEmulador, u"0");
    EXPECT_EQ(M.GuardarUltimo, u"1");
    EXPECT_EQ(M.TypeOfEditor, u"1");
    EXPECT_EQ(M.MsgEndDOS, u"Finalizado");
    EXPECT_EQ(M.LanguageFile, u"ZB-ENG.LNG");
    EXPECT_EQ(M.DebugMode, u"0");
    EXPECT_EQ(M.FiltrosTexto,
        u"ARTWORK,CABINETS,CFG,DATAS,FLYERS,HI,ICONS,IMAGES,INP,LOGS,MEMCARD,PCX,ROMS,SAMPLES,SAVES,SNAP,"
        u"TRACPLAY,"
        u"ZIPROMS,ZIPSAMPL");
}

TEST_F(Ajustes, GoByTheLineNumberAlone_WhateverTheKeys)
{
    QByteArray bytes;
    for (int n = 0; n < 20; ++n)
        bytes += "key = v" + QByteArray::number(n) + "\r\n";
    Lee(bytes + "A\r\n");
    EXPECT_EQ(M.UltimoSistema, u"v11");
    EXPECT_EQ(M.UltimoEmulador, u"v12");
    EXPECT_EQ(M.GuardarUltimo, u"v13");
    EXPECT_EQ(M.TypeOfEditor, u"v14");
    EXPECT_EQ(M.MsgEndDOS, u"v15");
    EXPECT_EQ(M.LanguageFile, u"v16");
    EXPECT_EQ(M.DebugMode, u"v17");
    EXPECT_EQ(M.FiltrosTexto, u"A");
}

TEST_F(Ajustes, AreReadWronglyWithoutAWord_WithALineTooMany)
{
    Lee("one line more\r\n" + Cabecera + Valores + HastaFiltros + "ROMS\r\n" + Final);
    EXPECT_EQ(M.UltimoSistema, u"General]");
    EXPECT_EQ(M.UltimoEmulador, u"3");
    EXPECT_EQ(M.DebugMode, u"ZB-ESP.LNG");
    EXPECT_EQ(M.FiltrosTexto, u"[Filters],ROMS");
}

struct Linea {
    QByteArray linea;
    QString valor;
};

void PrintTo(const Linea &caso, std::ostream *salida)
{
    *salida << '"' << caso.linea.constData() << '"';
}

class ValorDeAjuste : public Ajustes, public testing::WithParamInterface<Linea> { };

TEST_P(ValorDeAjuste, IsWhatFollowsTheLastEqualSignAndOneCharacterMore)
{
    Lee(ConLinea(GetParam().linea));
    EXPECT_EQ(M.LanguageFile, GetParam().valor);
}

INSTANTIATE_TEST_SUITE_P(Lineas, ValorDeAjuste,
    testing::Values(Linea { "LanguageFile = A.LNG", u"A.LNG"_s }, Linea { "LanguageFile = ", QString() },
        Linea { "LanguageFile =5", QString() }, Linea { "LanguageFile =56", u"6"_s },
        Linea { "LanguageFile =  A ", u" A "_s }, Linea { "a=b", QString() }, Linea { "x = a=b", QString() },
        Linea { "x = a=bc", u"c"_s }, Linea { "no sign", u"o sign"_s }, Linea { "x", QString() },
        Linea { "x = \xF1"
                "and\xFA",
            u"ñandú"_s },
        Linea { "x = a, \"b\"", u"a, \"b\""_s }, Linea { "x =😀b", u"b"_s }, Linea { "😀b", u"b"_s },
        Linea { "x =😀", QString() }, Linea { "x = 😀", u"😀"_s }));

TEST_F(Ajustes, ALineWithoutBlankReadsAsZero)
{
    EXPECT_EQ(core::NumeroDeAjuste(core::ValorDeAjuste(u"LastSisUsed =5"_s)), 0);
}

TEST_F(Ajustes, FailAsInvalid_WhereNothingFollowsTheEqualSign)
{
    EXPECT_EQ(FalloAlLeer(ConLinea("LanguageFile =")), host::InvalidArgument);
    EXPECT_EQ(FalloAlLeer(ConLinea("=")), host::InvalidArgument);
    EXPECT_EQ(FalloAlLeer(ConLinea("")), host::InvalidArgument);
}

TEST_F(Ajustes, FailAsInvalid_WhereTheFileEndsAheadOfTheLastSetting)
{
    QByteArray bytes = Cabecera + Valores;
    bytes.chop(qsizetype(strlen("DebugMode = 1\r\n")));
    EXPECT_EQ(FalloAlLeer(bytes), host::InvalidArgument);
    EXPECT_EQ(FalloAlLeer("x"), host::InvalidArgument);
    EXPECT_EQ(FalloAlLeer("\r\n"), host::InvalidArgument);
}

TEST_F(Ajustes, NoValueIsLeftFromAnEarlierReading)
{
    Lee(Cabecera + Valores + HastaFiltros + "ROMS\r\n" + Final);
    EXPECT_EQ(FalloAlLeer(Cabecera + "LastSisUsed = 5\r\n"), host::InvalidArgument);
}

TEST_F(Ajustes, FailAtTheEnd_OfAnEmptyFile)
{
    EXPECT_EQ(FalloAlLeer(""), host::PastEndOfFile);
}

TEST_F(Ajustes, FailAsNotFound_WithoutTheFile)
{
    EXPECT_EQ(NumeroDeFallo([this] { core::LeeAjustes(M); }), host::FileNotFound);
    EXPECT_EQ(NumeroDeFallo([this] { core::EsPrimeraVez(M); }), host::FileNotFound);
}

TEST_F(Ajustes, BlanksBehindAFilterAreCutAndThoseInFrontKept)
{
    Lee(Cabecera + Valores + HastaFiltros + "  ROMS  \r\nTAB\t\r\nlow case\r\n" + Final);
    EXPECT_EQ(M.Filtros(0), u"  ROMS");
    EXPECT_EQ(M.Filtros(1), u"TAB\t");
    EXPECT_EQ(M.Filtros(2), u"low case");
    EXPECT_EQ(M.FiltrosTexto, u"  ROMS,TAB\t,low case");
}

TEST_F(Ajustes, FiltersEndAtTheFirstEmptyLine)
{
    Lee(Cabecera + Valores + HastaFiltros + "A\r\n\r\nB\r\n");
    EXPECT_EQ(M.Filtros(0), u"A");
    EXPECT_EQ(M.Filtros(1), QString());
    EXPECT_EQ(M.FiltrosTexto, u"A");
}

TEST_F(Ajustes, FiltersEndWithTheFile)
{
    Lee(Cabecera + Valores + HastaFiltros + "A\r\nB");
    EXPECT_EQ(M.FiltrosTexto, u"A,B");
}

TEST_F(Ajustes, TheTextOfTheFiltersEndsAtOneOfBlanksAlone)
{
    Lee(Cabecera + Valores + HastaFiltros + "A\r\n  \r\nB\r\n" + Final);
    EXPECT_EQ(M.Filtros(1), QString());
    EXPECT_EQ(M.Filtros(2), u"B");
    EXPECT_EQ(M.FiltrosTexto, u"A");
}

TEST_F(Ajustes, FailAsInvalid_WithoutAnyFilter)
{
    EXPECT_EQ(FalloAlLeer(Cabecera + Valores + HastaFiltros + Final), host::InvalidArgument);
    EXPECT_EQ(FalloAlLeer(Cabecera + Valores + HastaFiltros), host::InvalidArgument);
    EXPECT_EQ(FalloAlLeer(Cabecera + Valores + HastaFiltros + "  \r\nA\r\n"), host::InvalidArgument);
}

TEST_F(Ajustes, TakeAHundredAndFiftyFilters)
{
    Lee(Cabecera + Valores + HastaFiltros + filtros(150) + Final);
    EXPECT_EQ(M.Filtros(149), u"F149");
    EXPECT_EQ(M.FiltrosTexto.count(u','), 149);
}

TEST_F(Ajustes, FailAsOutOfRange_WhenAllTheFiltersAreFilled)
{
    EXPECT_EQ(FalloAlLeer(Cabecera + Valores + HastaFiltros + filtros(151) + Final), host::OutOfRange);
    EXPECT_EQ(M.Filtros(150), u"F150");
}

TEST_F(Ajustes, FailAsOutOfRangeAndStayOpen_AtOneFilterMore)
{
    EXPECT_EQ(FalloAlLeer(Cabecera + Valores + HastaFiltros + filtros(152) + Final), host::OutOfRange);
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(Ajustes, LineFeedsAloneEndLinesToo)
{
    Lee(QByteArray(Cabecera + Valores + HastaFiltros + "ROMS\r\n" + Final).replace("\r\n", "\n"));
    EXPECT_EQ(M.UltimoSistema, u"3");
    EXPECT_EQ(M.LanguageFile, u"ZB-ESP.LNG");
    EXPECT_EQ(M.FiltrosTexto, u"ROMS");
}

struct Marca {
    QByteArray bytes;
    bool primeraVez;
};

void PrintTo(const Marca &caso, std::ostream *salida)
{
    *salida << '"' << caso.bytes.toPercentEncoding(" \",").constData() << '"';
}

class EsPrimeraVez : public Ajustes, public testing::WithParamInterface<Marca> { };

TEST_P(EsPrimeraVez, WhereAnyFieldIsTheMark)
{
    EXPECT_EQ(PrimeraVez(GetParam().bytes), GetParam().primeraVez);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

INSTANTIATE_TEST_SUITE_P(Ficheros, EsPrimeraVez,
    testing::Values(Marca { "VACIO\r\n", true }, Marca { "VACIO", true }, Marca { "VACIO\n", true },
        Marca { "\"VACIO\"\r\n", true }, Marca { "  VACIO  \r\n", true },
        Marca { "a\r\nb,VACIO,c\r\n", true }, Marca { Cabecera + Valores + "VACIO\r\n", true },
        Marca { "VACIO\x1A", true }, Marca { Cabecera + Valores, false }, Marca { "vacio\r\n", false },
        Marca { "VACIO x\r\n", false }, Marca { "MsgEndDOS = VACIO\r\n", false }, Marca { "\r\n", false },
        Marca { "VACIOVACIO", false }));

TEST_F(EsPrimeraVez, FailsAtTheEnd_OfAnEmptyFile)
{
    EXPECT_EQ(NumeroDeFallo([this] { PrimeraVez(""); }), host::PastEndOfFile);
    M.Ficheros.closeAll();
    EXPECT_EQ(NumeroDeFallo([this] { PrimeraVez("\x1A"); }), host::PastEndOfFile);
}
