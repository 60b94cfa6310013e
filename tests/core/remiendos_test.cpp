// Repairs of the text files: what has one answer, and what is left as it is because it has several.
#include "core/remiendos.h"

#include "core/ajustes.h"
#include "core/lineas.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList Sistemas { u"Alfa"_s, u"Beta"_s };
const QString Notas = u"' head\r\nAlfa\r\nGAME.BIN,\"A game\"\r\n'\r\nBeta\r\n'\r\n"_s;
const QString Resto = u"Parametros especificos\r\nGAME.BIN,Alfa,One,-a\r\n'\r\nfin\r\nfin,\"fin\"\r\n"_s;

QString entero(const QString &texto)
{
    return core::ConParametrosCerrados(core::ConCabeceraDeParametros(
        core::ConNotasCerradas(core::ConMarcaDeNotas(texto, Sistemas), Sistemas), Sistemas));
}

} // namespace

TEST(MendedNotes, AreAsTheyWere_WhicheverOfTheirAnchorsIsMissing)
{
    const QString todo = Notas + u"[EOF]\r\n"_s + Resto;
    EXPECT_EQ(entero(todo), todo);
    EXPECT_EQ(entero(Notas + Resto), todo);
    EXPECT_EQ(entero(QString(todo).replace(u"Parametros especificos\r\n"_s, QString())), todo);
    EXPECT_EQ(entero(QString(todo).replace(u"-a\r\n'\r\n"_s, u"-a\r\n"_s)), todo);
    EXPECT_EQ(entero(QString(todo).replace(u"A game\"\r\n'\r\n"_s, u"A game\"\r\n"_s)), todo);
    EXPECT_EQ(entero(QString(todo).replace(u"Beta\r\n'\r\n[EOF]\r\n"_s, u"Beta\r\n"_s)), todo);
    EXPECT_EQ(
        entero(QString(todo).replace(u"[EOF]\r\n"_s, u"\r\n\r\n"_s)), Notas + u"[EOF]\r\n\r\n\r\n"_s + Resto);
}

TEST(MendedNotes, OfAFileThatIsEmptyOrCutAreWhole)
{
    const QString fin = u"[EOF]\r\nParametros especificos\r\n'\r\n"_s;
    EXPECT_EQ(entero(QString()), fin);
    EXPECT_EQ(entero(Notas), Notas + fin);
    EXPECT_EQ(entero(u"Alfa\r\nGAME.BIN,\"A game\""_s), u"Alfa\r\nGAME.BIN,\"A game\"\r\n'\r\n"_s + fin);
}

TEST(MendedNotes, StayAsTheyAreWhereTheirPlaceIsNotSure)
{
    for (const QString &texto : { Notas + u"GAME.BIN,Alfa,One,-a\r\n'\r\n"_s, Notas + u"what is this\r\n"_s,
             u"Alfa\r\nGAME.BIN,Alfa,One,-a\r\n"_s, Notas + u"[EOF]\r\nwhat is this\r\n'\r\n"_s,
             Notas + u"[EOF]\r\nGAME.BIN,Alfa,One,-a\r\n'\r\nGAME.BIN,Alfa,One,-b\r\n"_s })
        EXPECT_EQ(entero(texto), texto);
}

TEST(MendedNotes, DoNotTakeAGameInBracketsForTheMark)
{
    EXPECT_FALSE(core::TieneMarcaDeNotas(u"Alfa\r\n[B] GAME.BIN,\"A game\"\r\n'\r\n"_s, Sistemas));
    EXPECT_TRUE(core::TieneMarcaDeNotas(u"Alfa\r\n'\r\n[\r\n"_s, Sistemas));
}

TEST(CarriageReturns, AreEndsOfLinesWhereThereAreNoOthers)
{
    EXPECT_EQ(core::SinRetornosSueltos(u"one\rtwo\r\rthree"_s), u"one\r\ntwo\r\n\r\nthree"_s);
    EXPECT_EQ(core::LineasConRetorno(u"one\rtwo"_s), std::vector<size_t>({ 0 }));
    EXPECT_EQ(core::SinRetornosSueltos(u"one\rtwo\r\r\nthree\n"_s), u"one\rtwo\r\nthree\n"_s);
    EXPECT_EQ(core::LineasConRetorno(u"one\rtwo\nthree\n"_s), std::vector<size_t>());
}

TEST(ClosingSeparators, AreAddedToDirectories_AndNotToFiles)
{
    const auto hay = [](const QString &ruta) {
        return ruta == u"/games/one.bin" ? core::EnDisco::Fichero : core::EnDisco::Nada;
    };
    EXPECT_EQ(
        core::ConSeparadoresFinales(u"ROM=/games/one.bin\r\nROM=/games/two\nIMG=C:\\x\nEXE=/a\nROM="_s, hay),
        u"ROM=/games/one.bin\r\nROM=/games/two/\nIMG=C:\\x\\\nEXE=/a\nROM="_s);
}

TEST(ClosingSeparators, AreAddedBehindNoBlanks_WhichGoWhereADirectoryComesOfIt)
{
    const QStringList directorios { u"/nes/"_s, u"/snes"_s, u"/with "_s };
    const auto hay = [&](const QString &ruta) {
        return directorios.contains(ruta) ? core::EnDisco::Directorio : core::EnDisco::Nada;
    };
    EXPECT_EQ(core::ConSeparadoresFinales(
                  u"ROM=/nes/ \r\nIMG=/snes \t\nROM=/with \nROM=/gone/ \nIMG=  \nEXE=/nes/ "_s, hay),
        u"ROM=/nes/\r\nIMG=/snes/\nROM=/with /\nROM=/gone/ \nIMG=  \nEXE=/nes/ "_s);
    EXPECT_TRUE(core::SobranBlancos(u"/nes/ "_s, hay));
    EXPECT_TRUE(core::SobranBlancos(u"/gone/ "_s, hay));
    EXPECT_FALSE(core::SobranBlancos(u"/with "_s, hay));
    EXPECT_FALSE(core::SobranBlancos(u"/gone/"_s, hay));
}

TEST(MendedSettings, AreAsTheyWere_WhicheverLineIsMissingAroundThem)
{
    const QString entero =
        core::AjustesPorDefecto(u"ZB-ENG.LNG"_s).replace(u"DebugMode = 0"_s, u"DebugMode = 1"_s);
    const std::vector<core::LineaConFin> lineas = core::EnLineas(entero);
    for (size_t i = 0; i < lineas.size(); ++i) {
        core::Copia copia;
        copia.Copiar(lineas, 0, i);
        copia.Copiar(lineas, i + 1, lineas.size());
        const QStringView linea = lineas[i].linea;
        const bool hayUna = i < 11 || linea.isEmpty() || linea == u"[Filters]";
        EXPECT_EQ(core::ConAjustesEnSuSitio(copia.Texto()), hayUna ? entero : copia.Texto()) << i;
    }
    EXPECT_EQ(core::ConAjustesEnSuSitio(entero), entero);
    const QString conOtra = QString(entero).replace(u"[General]\r\n"_s, u"[General]\r\n\r\n"_s);
    EXPECT_EQ(core::ConAjustesEnSuSitio(conOtra), entero);
}

TEST(MendedSettings, StayAsTheyAreWhereTheyHaveNoOneAnswer)
{
    const QString entero = core::AjustesPorDefecto(u"ZB-ENG.LNG"_s);
    const auto con = [&](const QString &antes, const QString &despues) {
        return QString(entero).replace(antes, despues);
    };
    const QString filtros = entero.sliced(entero.indexOf(u"ARTWORK"_s));
    for (const QString &texto : { QString(), u"VACIO"_s, con(u"TypeOfEditor"_s, u"TypeOfEdotor"_s),
             con(u"[General]\r\n"_s, u"what is this\r\n"_s), con(u"LastEmuUsed"_s, u"LastSisUsed"_s),
             con(u"[Filters]\r\n"_s + filtros, QString()) })
        EXPECT_EQ(core::ConAjustesEnSuSitio(texto), texto);
}
