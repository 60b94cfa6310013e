// Writing the settings: every change through a rewrite of the file, compared byte for byte.
#include "directoriodeprograma.h"

#include "core/ajustes.h"

#include "host/paths.h"

using namespace Qt::StringLiterals;
using core::Ajuste;

namespace {

const QByteArray PorDefecto =
    "'                +----------------------------------+\r\n"
    "'                |            Zembrolix             |\r\n"
    "'                |  =- Archivo de configuracion -=  |\r\n"
    "'                |     =- Configuration file -=     |\r\n"
    "'                +----------------------------------+\r\n"
    "'\r\n"
    "'          * Please don't manipulate this file manually\r\n"
    "'          * Por favor no manipular este archivo manualmente\r\n"
    "'\r\n"
    "\r\n"
    "[General]\r\n"
    "LastSisUsed = 0\r\n"
    "LastEmuUsed = 0\r\n"
    "SaveLastEmu&Sis = 1\r\n"
    "TypeOfEditor = 1\r\n"
    "MsgEndDOS = Finalizado\r\n"
    "LanguageFile = ZB-ESP.LNG\r\n"
    "DebugMode = 0\r\n"
    "\r\n"
    "[Filters]\r\n"
    "ARTWORK\r\nCABINETS\r\nCFG\r\nDATAS\r\nFLYERS\r\nHI\r\nICONS\r\nIMAGES\r\nINP\r\n"
    "LOGS\r\nMEMCARD\r\nPCX\r\nROMS\r\nSAMPLES\r\nSAVES\r\nSNAP\r\nTRACPLAY\r\n"
    "ZIPROMS\r\nZIPSAMPL\r\n"
    "\r\n"
    "[EOF]\r\n";

struct Cambio {
    Ajuste ajuste;
    QStringList lineas;
    QByteArray anterior; // the lines that go
    QByteArray nuevo; // what stands in their place
};

void PrintTo(const Cambio &caso, std::ostream *salida)
{
    *salida << caso.nuevo.toPercentEncoding(" =&").constData();
}

class AjustesEscritos : public DirectorioDePrograma, public testing::WithParamInterface<Cambio> {
protected:
    void Cambia(Ajuste ajuste, const QStringList &lineas)
    {
        Reescribe(
            u"Zembro.cfg"_s, [&](const QString &texto) { return core::ConAjuste(texto, ajuste, lineas); });
    }

    // The file's bytes after a change.
    QByteArray Cambiado(const QByteArray &bytes, Ajuste ajuste, const QStringList &lineas)
    {
        Pon(u"Zembro.cfg"_s, bytes);
        Cambia(ajuste, lineas);
        return Bytes(u"Zembro.cfg"_s);
    }

    QByteArray ConFiltros(const QByteArray &bytes, const QStringList &filtros)
    {
        Pon(u"Zembro.cfg"_s, bytes);
        Reescribe(u"Zembro.cfg"_s, [&](const QString &texto) { return core::ConFiltros(texto, filtros); });
        return Bytes(u"Zembro.cfg"_s);
    }
};

} // namespace

TEST_F(AjustesEscritos, FileAsFirstWritten)
{
    Pon(u"Zembro.cfg"_s, "VACIO\r\n");
    M.Ficheros.replace(
        host::programFile(u"Zembro.cfg"_s), u"Zembro.tmp"_s, core::AjustesPorDefecto(u"ZB-ESP.LNG"_s));
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), PorDefecto);
    EXPECT_EQ(Nombres(), QStringList { u"Zembro.cfg"_s });
}

TEST_F(AjustesEscritos, LanguageIsEmptyInTheFile_WhereNoneWasChosen)
{
    EXPECT_TRUE(core::AjustesPorDefecto(QString()).contains(u"\r\nLanguageFile = \r\nDebugMode = 0\r\n"));
}

TEST_P(AjustesEscritos, ReplaceTheLinesOfTheSettingAndKeepAllOthers)
{
    const Cambio &caso = GetParam();
    QByteArray esperado = PorDefecto;
    ASSERT_EQ(esperado.count(caso.anterior), 1);
    esperado.replace(caso.anterior, caso.nuevo);
    EXPECT_EQ(Cambiado(PorDefecto, caso.ajuste, caso.lineas), esperado);
}

TEST_P(AjustesEscritos, LinesKeepTheirOwnEnds_InAFileOfLineFeeds)
{
    const Cambio &caso = GetParam();
    const auto sinRetornos = [](QByteArray bytes) { return bytes.replace("\r\n", "\n"); };
    const QByteArray esperado =
        sinRetornos(PorDefecto)
            .replace(sinRetornos(caso.anterior), caso.nuevo); // new lines alone end in CR LF
    EXPECT_EQ(Cambiado(sinRetornos(PorDefecto), caso.ajuste, caso.lineas), esperado);
}

TEST_P(AjustesEscritos, SameChangeOnceMoreChangesNothing)
{
    const Cambio &caso = GetParam();
    const QByteArray unaVez = Cambiado(PorDefecto, caso.ajuste, caso.lineas);
    EXPECT_EQ(Cambiado(unaVez, caso.ajuste, caso.lineas), unaVez);
}

INSTANTIATE_TEST_SUITE_P(Cambios, AjustesEscritos,
    testing::Values(
        Cambio { Ajuste::UltimaSeleccion, core::LineasDeUltimaSeleccion(12, 696969),
            "LastSisUsed = 0\r\nLastEmuUsed = 0\r\n", "LastSisUsed = 12\r\nLastEmuUsed = 696969\r\n" },
        Cambio { Ajuste::GuardarUltimo, { u"SaveLastEmu&Sis = 0"_s }, "SaveLastEmu&Sis = 1\r\n",
            "SaveLastEmu&Sis = 0\r\n" },
        Cambio {
            Ajuste::TypeOfEditor, { u"TypeOfEditor = 0"_s }, "TypeOfEditor = 1\r\n", "TypeOfEditor = 0\r\n" },
        Cambio { Ajuste::MsgEndDOS, { u"MsgEndDOS = Beëindigd"_s }, "MsgEndDOS = Finalizado\r\n",
            "MsgEndDOS = Be\xEB"
            "indigd\r\n" },
        Cambio { Ajuste::LanguageFile, { u"LanguageFile = ZB-ENG.LNG"_s }, "LanguageFile = ZB-ESP.LNG\r\n",
            "LanguageFile = ZB-ENG.LNG\r\n" }));

TEST_F(AjustesEscritos, LinesOfTheLastSelectionAreWithoutLeadingBlanks)
{
    EXPECT_EQ(
        core::LineasDeUltimaSeleccion(0, 0), (QStringList { u"LastSisUsed = 0"_s, u"LastEmuUsed = 0"_s }));
    EXPECT_EQ(core::LineasDeUltimaSeleccion(150, 149),
        (QStringList { u"LastSisUsed = 150"_s, u"LastEmuUsed = 149"_s }));
}

TEST_F(AjustesEscritos, EverythingUpToTheClosingKeyGoes)
{
    EXPECT_EQ(Cambiado("[General]\r\na\r\n\r\nb\r\nSaveLastEmu&Sis = 1\r\nc\r\n", Ajuste::UltimaSeleccion,
                  { u"n"_s }),
        "[General]\r\nn\r\nSaveLastEmu&Sis = 1\r\nc\r\n");
}

TEST_F(AjustesEscritos, AllBehindTheChangeIsLost_WhereTheClosingKeyIsMissing)
{
    EXPECT_EQ(Cambiado("top\r\n[General]\r\nLastSisUsed = 0\r\nTypeOfEditor = 1\r\n[EOF]\r\n",
                  Ajuste::UltimaSeleccion, { u"LastSisUsed = 1"_s }),
        "top\r\n[General]\r\nLastSisUsed = 1\r\n");
}

TEST_F(AjustesEscritos, NothingChanges_WithoutTheKeyThatComesAhead)
{
    const QByteArray bytes = "SaveLastEmu&Sis = 1\nDebugMode = 0\r\n\r\nlast";
    EXPECT_EQ(Cambiado(bytes, Ajuste::UltimaSeleccion, { u"n"_s }), bytes);
    EXPECT_EQ(Cambiado(bytes, Ajuste::MsgEndDOS, { u"n"_s }), bytes);
}

TEST_F(AjustesEscritos, LineOfTheClosingKeyComesTwice_WhereNothingIsSkipped)
{
    const struct {
        Ajuste ajuste;
        QByteArray bytes;
        QByteArray esperado;
    } casos[] = {
        { Ajuste::TypeOfEditor, "MsgEndDOS = a\r\nSaveLastEmu&Sis = 1\r\nold\r\n",
            "MsgEndDOS = a\r\nMsgEndDOS = a\r\nSaveLastEmu&Sis = 1\r\nn\r\n" },
        { Ajuste::LanguageFile, "DebugMode = 0\nMsgEndDOS = a\r\nold\r\nDebugMode = 1\r\nDebugMode = 2",
            "DebugMode = 0\nDebugMode = 0\nMsgEndDOS = a\r\nn\r\nDebugMode = 1\r\nDebugMode = 2\r\n"
            "DebugMode = 2" },
        { Ajuste::GuardarUltimo, "TypeOfEditor = 1\r\n", "TypeOfEditor = 1\r\nTypeOfEditor = 1\r\n" },
        { Ajuste::MsgEndDOS, "LanguageFile = x\r\n", "LanguageFile = x\r\nLanguageFile = x\r\n" },
        { Ajuste::UltimaSeleccion, "SaveLastEmu&Sis = 1\r\n[General]\r\nold\r\n",
            "SaveLastEmu&Sis = 1\r\n[General]\r\nn\r\n" },
    };
    for (const auto &caso : casos)
        EXPECT_EQ(Cambiado(caso.bytes, caso.ajuste, { u"n"_s }), caso.esperado);
}

TEST_F(AjustesEscritos, NewLinesHoldTheValueBehindTheirKey)
{
    EXPECT_EQ(core::LineaDeGuardarUltimo(0), u"SaveLastEmu&Sis = 0");
    EXPECT_EQ(core::LineaDeEditor(1), u"TypeOfEditor = 1");
    EXPECT_EQ(core::LineaDeMsgEndDOS(u" Fin = x "_s), u"MsgEndDOS =  Fin = x ");
    EXPECT_EQ(core::LineaDeMsgEndDOS({}), u"MsgEndDOS = ");
    EXPECT_EQ(core::LineaDeIdioma(u"zb-españa.lng"_s), u"LanguageFile = ZB-ESPAÑA.LNG");
}

TEST_F(AjustesEscritos, KeysAreToldByTheirFirstNineCharacters)
{
    EXPECT_EQ(Cambiado("MsgEndDOSx\r\nold\r\nDebugModex\r\n", Ajuste::LanguageFile, { u"n"_s }),
        "MsgEndDOSx\r\nn\r\nDebugModex\r\n");
    EXPECT_EQ(Cambiado("MsgEndDOS\r\nold\r\ndebugmode\r\nDebugMode\r\n", Ajuste::LanguageFile, { u"n"_s }),
        "MsgEndDOS\r\nn\r\nDebugMode\r\n");
    const QByteArray otros = "msgenddos\r\n MsgEndDOS\r\nMsgEndDO\r\nold\r\n";
    EXPECT_EQ(Cambiado(otros, Ajuste::LanguageFile, { u"n"_s }), otros);
}

TEST_F(AjustesEscritos, ALastLineWithoutEndGetsOneOnlyWhereANewLineFollows)
{
    EXPECT_EQ(Cambiado("[General]", Ajuste::UltimaSeleccion, { u"n"_s }), "[General]\r\nn\r\n");
    EXPECT_EQ(Cambiado("[General]\r\nSaveLastE", Ajuste::UltimaSeleccion, { u"n"_s }),
        "[General]\r\nn\r\nSaveLastE");
}

TEST_F(AjustesEscritos, AccentsOfOtherLinesStayByteForByte)
{
    EXPECT_EQ(Cambiado("' a\xF1o \x81\r\nTypeOfEditor = 1\r\nMsgEndDOS = x\r\nLanguageFile = \xC9.LNG\r\n",
                  Ajuste::MsgEndDOS, { u"MsgEndDOS = fin"_s }),
        "' a\xF1o \x81\r\nTypeOfEditor = 1\r\nMsgEndDOS = fin\r\nLanguageFile = \xC9.LNG\r\n");
}

TEST_F(AjustesEscritos, AUtf8FileStaysOne)
{
    EXPECT_EQ(Cambiado("' a\xC3\xB1o\r\nTypeOfEditor = 1\r\nMsgEndDOS = x\r\nLanguageFile = a\r\n",
                  Ajuste::MsgEndDOS, { u"MsgEndDOS = ñ"_s }),
        "' a\xC3\xB1o\r\nTypeOfEditor = 1\r\nMsgEndDOS = \xC3\xB1\r\nLanguageFile = a\r\n");
}

TEST_F(AjustesEscritos, FiltersAreWrittenInUpperCaseAndTheFileEndsBehindThem)
{
    EXPECT_EQ(
        ConFiltros("top\r\n[Filters]\r\nOLD\r\n\r\n[EOF]\r\nmore\r\n", { u"roms"_s, u"Año"_s, u"straße"_s }),
        "top\r\n[Filters]\r\nROMS\r\nA\xD1O\r\nSTRA\xDF"
        "E\r\n\r\n[EOF]\r\n");
}

TEST_F(AjustesEscritos, FiltersOfATextAreSplitAtItsCommasBlanksAndAll)
{
    EXPECT_EQ(core::FiltrosDeTexto(u"CFG,roms"_s), (QStringList { u"CFG"_s, u"roms"_s }));
    EXPECT_EQ(core::FiltrosDeTexto(u"CFG, roms ,x y"_s), (QStringList { u"CFG"_s, u" roms "_s, u"x y"_s }));
    EXPECT_EQ(core::FiltrosDeTexto({}), QStringList { QString() });
}

TEST_F(AjustesEscritos, FiltersOfATextEndAtTheFirstEmptyOne)
{
    EXPECT_EQ(core::FiltrosDeTexto(u"CFG,,ROMS"_s), QStringList { u"CFG"_s });
    EXPECT_EQ(core::FiltrosDeTexto(u"CFG,"_s), QStringList { u"CFG"_s });
    EXPECT_EQ(core::FiltrosDeTexto(u",CFG,ROMS,,X"_s), (QStringList { QString(), u"CFG"_s, u"ROMS"_s }));
    EXPECT_EQ(core::FiltrosDeTexto(u","_s), QStringList { QString() });
}

TEST_F(AjustesEscritos, FiltersOfATextAreAtMostAHundredAndOne)
{
    QStringList nombres;
    for (int i = 0; i < 101; ++i)
        nombres << u"D%1"_s.arg(i);
    const QString texto = nombres.join(u',');
    EXPECT_EQ(core::FiltrosDeTexto(texto), nombres);
    EXPECT_EQ(core::FiltrosDeTexto(texto + u",,"_s), nombres);
    EXPECT_EQ(NumeroDeFallo([&] { core::FiltrosDeTexto(texto + u",x"_s); }), host::OutOfRange);
    EXPECT_EQ(NumeroDeFallo([&] { core::FiltrosDeTexto(QString(101, u',') + u'x'); }), host::OutOfRange);
}

TEST_F(AjustesEscritos, ReadBackWhatWasWritten)
{
    Pon(u"Zembro.cfg"_s, PorDefecto);
    Cambia(Ajuste::UltimaSeleccion, core::LineasDeUltimaSeleccion(2, 1));
    Cambia(Ajuste::MsgEndDOS, { u"MsgEndDOS = Terminé"_s });
    ConFiltros(Bytes(u"Zembro.cfg"_s), { u"roms"_s, u"snap"_s });
    core::LeeAjustes(M);
    EXPECT_EQ(M.UltimoSistema, u"2");
    EXPECT_EQ(M.UltimoEmulador, u"1");
    EXPECT_EQ(M.MsgEndDOS, u"Terminé");
    EXPECT_EQ(M.FiltrosTexto, u"ROMS,SNAP");
}

TEST_F(AjustesEscritos, AnEmptyListOfFiltersIsWritten_ThatTheNextStartFailsOn)
{
    EXPECT_EQ(ConFiltros(PorDefecto, {}), PorDefecto.left(PorDefecto.indexOf("ARTWORK")) + "\r\n[EOF]\r\n");
    EXPECT_EQ(NumeroDeFallo([this] { core::LeeAjustes(M); }), host::InvalidArgument);
}

TEST_F(AjustesEscritos, FileStaysAsItIs_WithoutASectionOfFilters)
{
    EXPECT_EQ(ConFiltros("a\r\n[filters]\r\nb", { u"x"_s }), "a\r\n[filters]\r\nb");
}

TEST_F(AjustesEscritos, FiltersFollow_ALastLineWithoutEnd)
{
    EXPECT_EQ(ConFiltros("[Filters]", { u"x"_s }), "[Filters]\r\nX\r\n\r\n[EOF]\r\n");
}

TEST_F(AjustesEscritos, AWordComesBackAtTheNextStart_OrIsRefused)
{
    for (const QString &palabra : { u""_s, u"Fin"_s, u"  "_s, u" Fin "_s, u"[Filters]"_s, u"Fin, VACIOS"_s,
             u"VACIO"_s, u"\"Fin\""_s, u"\tFin\x01\x1A"_s, u"ñ ゼルダ"_s, u"'"_s, u","_s }) {
        EXPECT_TRUE(core::VuelveMsgEndDOS(palabra)) << palabra.toStdString();
        Pon(u"Zembro.cfg"_s, PorDefecto);
        Cambia(Ajuste::MsgEndDOS, { core::LineaDeMsgEndDOS(palabra) });
        EXPECT_FALSE(core::EsPrimeraVez(M)) << palabra.toStdString();
        core::LeeAjustes(M);
        EXPECT_EQ(M.MsgEndDOS, palabra);
    }
    for (const QString &palabra : { u"Fin="_s, u"="_s, u"a=b"_s, u"= "_s, u"x,VACIO"_s, u", VACIO ,x"_s,
             u"x,\"VACIO\"y"_s, u"Fin\nx"_s, u"Fin\r"_s, QString(QChar(0xD800)) })
        EXPECT_FALSE(core::VuelveMsgEndDOS(palabra)) << palabra.toStdString();
}

TEST_F(AjustesEscritos, ALanguageComesBackAtTheNextStart_OrIsRefused)
{
    for (const QString &fichero :
        { u"ZB-ESP.LNG"_s, u" A .LNG"_s, u"'A'.LNG"_s, u"[EOF].LNG"_s, u"\"A\", B.LNG"_s, u"VACIO.LNG"_s,
            u"-+\t\x01.LNG"_s, u"Ñ\u2028\u00A0ゼ\U0001F47E\uE0FF.LNG"_s }) {
        EXPECT_TRUE(core::VuelveIdioma(fichero)) << fichero.toStdString();
        for (const bool elegido : { true, false }) {
            Pon(u"Zembro.cfg"_s, elegido ? PorDefecto : QByteArray("VACIO\r\n"));
            Reescribe(u"Zembro.cfg"_s, [&](const QString &texto) {
                return elegido
                    ? core::ConAjuste(texto, Ajuste::LanguageFile, { core::LineaDeIdioma(fichero) })
                    : core::AjustesPorDefecto(fichero);
            });
            EXPECT_FALSE(core::EsPrimeraVez(M)) << fichero.toStdString();
            core::LeeAjustes(M);
            EXPECT_EQ(M.LanguageFile, fichero);
        }
    }
    for (const QString &fichero : { u"A=B.LNG"_s, u"=.LNG"_s, u"A.LNG="_s, u"A\n.LNG"_s, u"A\r.LNG"_s,
             u"A,VACIO,B.LNG"_s, u"a,vacio ,b.lng"_s, u"A,\"VACIO\"B.LNG"_s })
        EXPECT_FALSE(core::VuelveIdioma(fichero)) << fichero.toStdString();
}

TEST_F(AjustesEscritos, FiltersComeBackAtTheNextStart_OrAreRefused)
{
    const std::pair<QString, QString> listas[] = { { u"roms,Snap"_s, u"ROMS,SNAP"_s },
        { u"CFG, roms ,x"_s, u"CFG, ROMS,X"_s }, { u"CFG,,VACIO"_s, u"CFG"_s }, { u"CFG,"_s, u"CFG"_s },
        { u"A, "_s, u"A"_s }, { u"A,  , ,"_s, u"A"_s }, { u"A, ,,B"_s, u"A"_s },
        { u"[EOF],[Filters],a=b"_s, u"[EOF],[FILTERS],A=B"_s }, { u"VACIO2,X VACIO"_s, u"VACIO2,X VACIO"_s },
        { u"\"x,ゼ\t"_s, u"\"X,ゼ\t"_s } };
    for (const auto &[texto, leidos] : listas) {
        EXPECT_TRUE(core::VuelvenFiltros(texto)) << texto.toStdString();
        ConFiltros(PorDefecto, core::FiltrosDeTexto(texto));
        EXPECT_FALSE(core::EsPrimeraVez(M)) << texto.toStdString();
        M.Filtros = core::Tabla<QString> { core::MaxSistemas };
        core::LeeAjustes(M);
        EXPECT_EQ(M.FiltrosTexto, leidos);
    }
    for (const QString &texto :
        { u"VACIO"_s, u"x, vacio "_s, u"x,\"VACIO\"y"_s, u",CFG"_s, u","_s, u" "_s, u"  ,x"_s, u"x,  ,y"_s,
            u" , "_s, u" ,"_s, u"x, ,y, "_s, u"a\nb"_s, u"a,b\r"_s, QString(QChar(0xDC00)) })
        EXPECT_FALSE(core::VuelvenFiltros(texto)) << texto.toStdString();
    EXPECT_TRUE(core::VuelvenFiltros({})); // ends the next start, as it always did
}
