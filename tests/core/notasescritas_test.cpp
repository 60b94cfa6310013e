// Changes of the notes: every one through a rewrite of the file, compared byte for byte.
#include "directoriodeprograma.h"

#include "core/notas.h"

using namespace Qt::StringLiterals;

namespace {

// What an empty store is delivered as.
const QByteArray Vacio = "[EOF]\r\nParametros especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n";

class NotasEscritas : public DirectorioDePrograma {
protected:
    QByteArray Cambiado(const QByteArray &bytes, const std::function<QString(const QString &)> &cambio)
    {
        Pon(u"Zembro.rom"_s, bytes);
        Reescribe(u"Zembro.rom"_s, cambio);
        EXPECT_EQ(Nombres(), QStringList { u"Zembro.rom"_s });
        return Bytes(u"Zembro.rom"_s);
    }

    QByteArray ConNueva(const QByteArray &bytes, const QString &clave, const QString &descripcion)
    {
        return Cambiado(bytes, [&](const QString &texto) {
            return core::ConDescripcionNueva(texto, u"Console"_s, clave, descripcion);
        });
    }

    QByteArray ConCambiada(
        const QByteArray &bytes, const QString &anterior, const QString &clave, const QString &nueva)
    {
        return Cambiado(bytes, [&](const QString &texto) {
            return core::ConDescripcionCambiada(texto, anterior, clave, nueva);
        });
    }

    QByteArray ConSistema(const QByteArray &bytes, const QString &sistema)
    {
        return Cambiado(bytes, [&](const QString &texto) { return core::ConSistemaNuevo(texto, sistema); });
    }
};

} // namespace

TEST_F(NotasEscritas, NewRecordStandsFirstInTheBlock)
{
    EXPECT_EQ(ConNueva("' top\r\nOther\r\nX,\"x\"\r\n'\r\nConsole\r\nOLD.BIN,\"Old\"\r\n'\r\n[\r\n",
                  u"NEW.BIN"_s, u"A new one"_s),
        "' top\r\nOther\r\nX,\"x\"\r\n'\r\nConsole\r\nNEW.BIN,\"A new "
        "one\"\r\nOLD.BIN,\"Old\"\r\n'\r\n[\r\n");
}

TEST_F(NotasEscritas, KeyOfANewRecordIsInUpperCase)
{
    EXPECT_EQ(ConNueva("Console\r\n'\r\n", u"Pingüino.bin"_s, u"mixed Case"_s),
        "Console\r\nPING\xDCINO.BIN,\"mixed Case\"\r\n'\r\n");
}

TEST_F(NotasEscritas, FileComesOutUnchanged_WithoutABlockOfTheSystem)
{
    for (const QByteArray bytes :
        { "Other\nX,\"x\"\r\n'\r\n\r\nCONSOLE\r\n'\r\nConsole 2\r\n'\r\n[\r\nlast", "\xF1\n\r\n", "" })
        EXPECT_EQ(ConNueva(bytes, u"A"_s, u"a"_s), bytes) << bytes.constData();
}

TEST_F(NotasEscritas, DescriptionIsWrittenAsTyped)
{
    EXPECT_EQ(ConNueva("Console\r\n'\r\n", u"A"_s, u"a, \"b\" 'c'  "_s),
        "Console\r\nA,\"a, \"b\" 'c'  \"\r\n'\r\n");
    EXPECT_EQ(ConNueva("Console\r\n'\r\n", u"A"_s, QString()), "Console\r\nA,\"\"\r\n'\r\n");
}

TEST_F(NotasEscritas, KeysThatWouldSplitARecordOrPassForAnAnchorStandInDoubleQuotes)
{
    const std::pair<QString, QByteArray> claves[] = {
        { u"ADDAMS FAMILY, THE.NES"_s, "\"ADDAMS FAMILY, THE.NES\"" }, { u"'TWAS.NES"_s, "\"'TWAS.NES\"" },
        { u"[A].NES"_s, "\"[A].NES\"" }, { u"IT'S [A].NES"_s, "IT'S [A].NES" }, { u"A B.NES"_s, "A B.NES" }
    };
    for (const auto &[clave, escrita] : claves) {
        EXPECT_EQ(
            ConNueva("Console\r\n'\r\n", clave, u"text"_s), "Console\r\n" + escrita + ",\"text\"\r\n'\r\n");
        EXPECT_EQ(core::CargaNotas(M, u"Console"_s), 1);
        EXPECT_EQ(M.Nota_Clave(0), clave);
        EXPECT_EQ(M.Nota_Texto(0), u"text");
    }
}

TEST_F(NotasEscritas, ANoteCanBeChanged_WhateverItsKeyBeginsWith)
{
    for (const QString &principio :
        { u"!"_s, u"#"_s, u"$"_s, u"%"_s, u"&"_s, u" "_s, u"'"_s, u"("_s, u"\1"_s }) {
        const QString clave = principio + u"1 A.NES"_s;
        const QByteArray escrita = ConNueva("Console\r\n'\r\n", clave, u"one"_s);
        EXPECT_EQ(ConCambiada(escrita, u"one"_s, clave, u"two"_s), QByteArray(escrita).replace("one", "two"));
        EXPECT_EQ(core::CargaNotas(M, u"Console"_s), 1);
        EXPECT_EQ(M.Nota_Clave(0), clave);
        EXPECT_EQ(M.Nota_Texto(0), u"two");
    }
}

TEST_F(NotasEscritas, AKeyThatCanHaveNoQuotesAroundItIsWrittenAsItIs)
{
    EXPECT_EQ(ConNueva("Console\r\n'\r\n", u"#1 \"A\".NES"_s, u"one"_s),
        "Console\r\n#1 \"A\".NES,\"one\"\r\n'\r\n");
}

TEST_F(NotasEscritas, OtherLinesStayByteForByte_InAFileOfLineFeeds)
{
    EXPECT_EQ(ConNueva("' caf\xE9\nConsole\nOLD,\"old\"\n'\n[\nlast", u"NEW"_s, u"ñ"_s),
        "' caf\xE9\nConsole\nNEW,\"\xF1\"\r\nOLD,\"old\"\n'\n[\nlast");
}

TEST_F(NotasEscritas, ANewRecordBehindALastLineWithoutEndStandsOnALineOfItsOwn)
{
    EXPECT_EQ(ConNueva("Console", u"NEW"_s, u"new"_s), "Console\r\nNEW,\"new\"\r\n");
}

TEST_F(NotasEscritas, FileMovesToUtf8_OnlyForATextThatTheCodePageLacks)
{
    EXPECT_EQ(ConNueva("Console\r\nOLD,\"a\xF1o\"\r\n'\r\n", u"NEW"_s, u"5 €"_s),
        "Console\r\nNEW,\"5 \x80\"\r\nOLD,\"a\xF1o\"\r\n'\r\n");
    EXPECT_EQ(ConNueva("Console\r\nOLD,\"a\xF1o\"\r\n'\r\n", u"NEW"_s, u"ゼルダ"_s),
        "Console\r\nNEW,\"\xE3\x82\xBC\xE3\x83\xAB\xE3\x83\x80\"\r\nOLD,\"a\xC3\xB1o\"\r\n'\r\n");
}

TEST_F(NotasEscritas, ChangedRecordTakesThePlaceOfTheOldOne)
{
    EXPECT_EQ(
        ConCambiada("' top\r\nConsole\r\nA.BIN,\"one\"\r\nB.BIN,\"two\"\r\nC.BIN,\"three\"\r\n'\r\n[\r\n",
            u"two"_s, u"b.bin"_s, u"2"_s),
        "' top\r\nConsole\r\nA.BIN,\"one\"\r\nB.BIN,\"2\"\r\nC.BIN,\"three\"\r\n'\r\n[\r\n");
}

TEST_F(NotasEscritas, ChangeGoesToTheFirstRecordOfTheWholeFileWithTheDescription)
{
    EXPECT_EQ(ConCambiada("One\r\nA.BIN,\"same\"\r\n'\r\nConsole\r\nB.BIN,\"same\"\r\n'\r\n", u"same"_s,
                  u"B.BIN"_s, u"new"_s),
        "One\r\nB.BIN,\"new\"\r\n'\r\nConsole\r\nB.BIN,\"same\"\r\n'\r\n");
}

TEST_F(NotasEscritas, ChangeReachesTheSectionOfParametersToo)
{
    EXPECT_EQ(ConCambiada("Parametros especificos\r\nA.BIN,Console,Emulator,-x\r\n'\r\n",
                  u"onsole,Emulator,-"_s, u"A.BIN"_s, u"new"_s),
        "Parametros especificos\r\nA.BIN,\"new\"\r\n'\r\n");
}

TEST_F(NotasEscritas, LinesThatBeginAtOrAheadOfTheApostropheAreNoCandidates)
{
    for (const QByteArray principio : { "'", " ", "!", "#", "$", "%", "&" }) {
        const QByteArray bytes = principio + "A,\"one\"\r\n";
        EXPECT_EQ(ConCambiada(bytes, u"one"_s, u"A"_s, u"new"_s), bytes) << principio.constData();
    }
    for (const QByteArray principio : { "(", "+", "-", "0", "A", "[", "_", "~", "\xF1" })
        EXPECT_EQ(ConCambiada(principio + "A,\"one\"\r\n", u"one"_s, u"a"_s, u"new"_s), "A,\"new\"\r\n")
            << principio.constData();
}

struct Candidata {
    QByteArray linea;
    QString descripcion;
    bool cambia;
};

void PrintTo(const Candidata &caso, std::ostream *salida)
{
    *salida << caso.linea.constData() << " / " << caso.descripcion.toStdString();
}

class LineaCandidata : public NotasEscritas, public testing::WithParamInterface<Candidata> { };

TEST_P(LineaCandidata, ChangesWhereItsDescriptionIsTheText)
{
    const Candidata &caso = GetParam();
    EXPECT_EQ(ConCambiada("top\r\n" + caso.linea + "\r\n", caso.descripcion, u"K"_s, u"new"_s),
        "top\r\n" + (caso.cambia ? QByteArray("K,\"new\"") : caso.linea) + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(Lineas, LineaCandidata,
    testing::Values(Candidata { "A,\"one\"", u"one"_s, true }, Candidata { "A,\"one\"", u"One"_s, false },
        Candidata { "A,\"one\"", u"on"_s, false }, Candidata { "A,\"one\"", u"\"one\""_s, false },
        Candidata { "A,\"a, b\"", u"a, b"_s, true }, Candidata { "A,\"a \"b\" c\"", u"a \"b\" c"_s, true },
        // As such a text loads, it isn't found again.
        Candidata { "A,\"a \"b\" c\"", u"a "_s, false },
        // By place, whatever the characters around the text are.
        Candidata { "A,xonex", u"one"_s, true }, Candidata { "A, one ", u"one"_s, true },
        Candidata { "A,\"\"", QString(), true }, Candidata { "A,", QString(), true },
        Candidata { "A,\"", QString(), true }, Candidata { "A", QString(), false },
        Candidata { "A", u"A"_s, false }, Candidata { "A,\"\"", u"\""_s, false },
        // A key in double quotes: behind the comma that follows the closing quote.
        Candidata { "\"A, B\",\"one\"", u"one"_s, true },
        Candidata { "\"A, B\",\"one\"", u"B\",\"one"_s, false }, Candidata { "\"A, B", QString(), false },
        Candidata { "\"A,", QString(), false }, Candidata { "\"A\"", QString(), false },
        Candidata { ",\"one\"", u"one"_s, true }));

TEST_F(NotasEscritas, ARecordOfTheNotesKeyIsChangedByWhatIsReadOfIt)
{
    for (const QByteArray linea :
        { "PRISMA.BIN,\"abc\"\"", "prisma.bin , \"abc\" x", "PRISMA.BIN,abc", "\"PRISMA.BIN\",\"abc\"d\"" }) {
        const QByteArray antes = "Console\r\nA.BIN,\"abc\"d\"\r\n" + linea + "\r\n'\r\n";
        EXPECT_TRUE(core::HayDescripcion(QString::fromLatin1(antes), u"abc"_s, u"PRISMA.BIN"_s));
        EXPECT_EQ(ConCambiada(antes, u"abc"_s, u"PRISMA.BIN"_s, u"new"_s),
            "Console\r\nA.BIN,\"abc\"d\"\r\nPRISMA.BIN,\"new\"\r\n'\r\n")
            << linea.constData();
    }
}

TEST_F(NotasEscritas, ARecordThatIsNotAllOnItsLineIsNoneToChange)
{
    for (const QByteArray linea : { "PRISMA.BIN\r\n\"abc\"", "PRISMA.BIN,\"abc\"\"d\",x",
             "PRISMA.BIN,\"abc\r\n\"", "!PRISMA.BIN,\"abc\"\"", "PRISMA.BIN" }) {
        const QByteArray antes = "Console\r\n" + linea + "\r\n'\r\n";
        EXPECT_FALSE(core::HayDescripcion(QString::fromLatin1(antes), u"abc"_s, u"PRISMA.BIN"_s));
        EXPECT_EQ(ConCambiada(antes, u"abc"_s, u"PRISMA.BIN"_s, u"new"_s), antes) << linea.constData();
    }
}

TEST_F(NotasEscritas, NothingChanges_WithoutARecordOfTheDescription)
{
    const QByteArray bytes = "Console\nA,\"one\"\r\n\r\n'\r\n[\r\nlast\xF1";
    EXPECT_EQ(ConCambiada(bytes, u"none"_s, u"A"_s, u"new"_s), bytes);
}

TEST_F(NotasEscritas, AChangedRecordKeepsAKeyWithACommaWhole)
{
    EXPECT_EQ(ConCambiada("Console\r\n\"A, B\",\"one\"\r\n'\r\n", u"one"_s, u"a, b"_s, u"new"_s),
        "Console\r\n\"A, B\",\"new\"\r\n'\r\n");
}

TEST_F(NotasEscritas, OnlyTheChangedLineTakesCarriageReturnAndLineFeed)
{
    EXPECT_EQ(ConCambiada("Console\n\xE9,\"\xF1\"\nA,\"one\"\nB,\"b\"\n'", u"one"_s, u"A"_s, u"é"_s),
        "Console\n\xE9,\"\xF1\"\nA,\"\xE9\"\r\nB,\"b\"\n'");
    EXPECT_EQ(ConCambiada("Console\nA,\"one\"", u"one"_s, u"A"_s, u"new"_s), "Console\nA,\"new\"\r\n");
}

TEST_F(NotasEscritas, NewSystemStandsInFrontOfTheFirstBracket)
{
    EXPECT_EQ(ConSistema("Console\r\nA,\"a\"\r\n'\r\n[ one\r\n[ two\r\n", u"Consola ñ"_s),
        "Console\r\nA,\"a\"\r\n'\r\nConsola \xF1\r\n'\r\n[ one\r\n[ two\r\n");
    EXPECT_EQ(ConSistema("[", u"Console"_s), "Console\r\n'\r\n[");
}

TEST_F(NotasEscritas, FileComesOutUnchanged_WithoutALineThatBeginsWithABracket)
{
    for (const QByteArray bytes : { "Console\r\n'\r\n [\r\n", "" })
        EXPECT_EQ(ConSistema(bytes, u"New"_s), bytes);
}

TEST_F(NotasEscritas, AKeyWithABracketIsNoPlaceForANewSystem)
{
    const QByteArray conNota = ConNueva("Console\r\n'\r\n" + Vacio, u"[a].nes"_s, u"text"_s);
    EXPECT_EQ(ConSistema(conNota, u"New"_s), "Console\r\n\"[A].NES\",\"text\"\r\n'\r\nNew\r\n'\r\n" + Vacio);
}

TEST_F(NotasEscritas, ABareKeyWithABracketIsNoPlaceForANewSystemEither)
{
    for (const QByteArray nota :
        { "[A] X.BIN,\"Bare bracket\"", "[A] X.BIN,Bare", "[A] X.BIN\r\n\"On the next line\"" }) {
        const QByteArray bloque = "Console\r\n" + nota + "\r\nB.BIN,\"b\"\r\n'\r\n";
        EXPECT_EQ(ConSistema(bloque + Vacio, u"New"_s), bloque + "New\r\n'\r\n" + Vacio) << nota.constData();
        EXPECT_EQ(ConSistema(bloque, u"New"_s), bloque) << nota.constData();
    }
    const QByteArray conComa = "[the end, at last]\r\nParametros especificos\r\n'\r\n";
    EXPECT_EQ(ConSistema(conComa, u"New"_s), "New\r\n'\r\n" + conComa);
}

TEST_F(NotasEscritas, AnEmptyStoreTakesSystemsAndNotesOneAfterTheOther)
{
    QByteArray bytes = ConSistema(Vacio, u"Arcade"_s);
    bytes = ConSistema(bytes, u"Console"_s);
    bytes = ConNueva(bytes, u"A.BIN"_s, u"first"_s);
    bytes = ConNueva(bytes, u"B.BIN"_s, u"second"_s);
    bytes = ConCambiada(bytes, u"first"_s, u"A.BIN"_s, u"third"_s);
    EXPECT_EQ(bytes, "Arcade\r\n'\r\nConsole\r\nB.BIN,\"second\"\r\nA.BIN,\"third\"\r\n'\r\n" + Vacio);
    EXPECT_EQ(core::CargaNotas(M, u"Console"_s), 2);
    EXPECT_EQ(core::CargaNotas(M, u"Arcade"_s), 0);
}

TEST_F(NotasEscritas, OnlyTheFirstOfTwoBlocksTakesTheRecord)
{
    EXPECT_EQ(ConNueva("Console\r\n'\r\nConsole\r\n'\r\n", u"A.BIN"_s, u"a"_s),
        "Console\r\nA.BIN,\"a\"\r\n'\r\nConsole\r\n'\r\n");
}

TEST_F(NotasEscritas, KeysThatWouldNotComeBackAsTheyAreWriteNothing)
{
    const QByteArray antes = "Console\r\nOLD.BIN,\"Old\"\r\n'\r\n[\r\n";
    for (const QString &clave : { u"'"_s, u"\"X\" GAME.BIN"_s, u"A \"X\", B.BIN"_s, u"TWO\nLINES.BIN"_s,
             u"TWO\rLINES.BIN"_s, u"[\"X\"].BIN"_s }) {
        EXPECT_EQ(ConNueva(antes, clave, u"d"_s), antes) << clave.toStdString();
        EXPECT_EQ(ConCambiada(antes, u"Old"_s, clave, u"d"_s), antes) << clave.toStdString();
    }
}

TEST_F(NotasEscritas, KeysWithABlankAtEitherEndStandInDoubleQuotes)
{
    EXPECT_EQ(ConNueva("Console\r\n'\r\n", u" A "_s, u"d"_s), "Console\r\n\" A \",\"d\"\r\n'\r\n");
}

TEST_F(NotasEscritas, ALineBreakInADescriptionBecomesABlank)
{
    EXPECT_EQ(
        ConNueva("Console\r\n'\r\n", u"A.BIN"_s, u"one\r\ntwo"_s), "Console\r\nA.BIN,\"one  two\"\r\n'\r\n");
}

TEST_F(NotasEscritas, NoDescriptionIsWrittenWithoutAKey)
{
    const QByteArray antes = "Console\r\n,\"Old\"\r\n'\r\n[\r\n";
    EXPECT_FALSE(core::SePuedeDescribir(QString()));
    EXPECT_EQ(ConNueva(antes, QString(), u"d"_s), antes);
    EXPECT_EQ(ConCambiada(antes, u"Old"_s, QString(), u"d"_s), antes);
}

TEST_F(NotasEscritas, ADescriptionTakesNoPartInTheRecordsBehind_OrIsRefused)
{
    const QByteArray antes = "Console\r\nOLD,\"Old\"\r\n'\r\nTwo\r\n'\r\n";
    for (const QString &texto :
        { u"a \"b\", c"_s, u"\",\""_s, u"\"x\" ,"_s, u"x\",y,\"z"_s, u"x\"\n,y"_s, QString(QChar(0xD800)) }) {
        EXPECT_FALSE(core::EsDescripcionEntera(texto)) << texto.toStdString();
        EXPECT_EQ(ConNueva(antes, u"A"_s, texto), antes) << texto.toStdString();
        EXPECT_EQ(ConCambiada(antes, u"Old"_s, u"OLD"_s, texto), antes) << texto.toStdString();
    }
    for (const QString &texto : { u""_s, u"  "_s, u"a, b"_s, u"a \"b\" c"_s, u"\""_s, u"a, \"b\""_s, u"'"_s,
             u"[x]"_s, u"ñ\u2028\t\U0001F47E"_s, QString(u"a\0b"_s) }) {
        EXPECT_TRUE(core::EsDescripcionEntera(texto)) << texto.toStdString();
        ConNueva(antes, u"A"_s, texto);
        ASSERT_EQ(core::CargaNotas(M, u"Console"_s), 2) << texto.toStdString();
        EXPECT_EQ(M.Nota_Texto(0), texto.contains(u'"') ? texto.first(texto.indexOf(u'"')) : texto);
        EXPECT_EQ(core::DescripcionLeida(texto), M.Nota_Texto(0));
        EXPECT_EQ(M.Nota_Clave(1), u"OLD");
        EXPECT_EQ(M.Nota_Texto(1), u"Old");
    }
}
