// A system taken out of the notes: first its parameter records, then its block.
#include "directoriodeprograma.h"

#include "core/notas.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray Seccion = "Parametros especificos\r\n";
const QByteArray Cierre = "'\r\nfin\r\nfin,\"fin\"\r\n";

class NotasDeSistema : public DirectorioDePrograma {
protected:
    QByteArray SinParametros(const QByteArray &bytes, const QString &sistema)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::SinParametrosDeSistema(t, sistema); });
    }

    QByteArray SinNotas(const QByteArray &bytes, const QString &sistema)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::SinNotasDeSistema(t, sistema); });
    }

    QByteArray Cambiado(const QByteArray &bytes, const std::function<QString(const QString &)> &cambio)
    {
        Pon(u"Zembro.rom"_s, bytes);
        Reescribe(u"Zembro.rom"_s, cambio);
        return Bytes(u"Zembro.rom"_s);
    }
};

} // namespace

TEST_F(NotasDeSistema, RecordsOfTheSystemGo_WhateverTheirCaseAndTheirEmulator)
{
    EXPECT_EQ(
        SinParametros("' top\r\nOne\r\n'\r\n[EOF]\r\n" + Seccion
                + "A.BIN,One,E,-a\r\nB.BIN,Two,E,-b\r\nC.BIN,ONE,F,-c\r\nD.BIN,One more,E,-d\r\n" + Cierre,
            u"one"_s),
        "' top\r\nOne\r\n'\r\n[EOF]\r\n" + Seccion + "B.BIN,Two,E,-b\r\nD.BIN,One more,E,-d\r\n" + Cierre);
}

TEST_F(NotasDeSistema, TheKeyAndTheOtherFieldsDontCount)
{
    const QByteArray bytes = Seccion + "One,Two,One,One\r\n" + Cierre;
    EXPECT_EQ(SinParametros(bytes, u"One"_s), bytes);
}

TEST_F(NotasDeSistema, AnEmptyStoreComesOutAsItIs)
{
    const QByteArray vacio = "[EOF]\r\n" + Seccion + Cierre;
    EXPECT_EQ(SinParametros(vacio, u"One"_s), vacio);
    EXPECT_EQ(SinNotas(vacio, u"One"_s), vacio);
}

TEST_F(NotasDeSistema, QuotesAroundFieldsAreNotRestored_WhereTheyDoNothing)
{
    EXPECT_EQ(SinParametros(Seccion + "\"A.BIN\",\"Two\", \"E\" ,\"-b\"\r\n" + Cierre, u"One"_s),
        Seccion + "A.BIN,Two,E,-b\r\n" + Cierre);
}

TEST_F(NotasDeSistema, AKeyThatWouldSplitItsRecordKeepsItsQuotes)
{
    const QByteArray bytes = Seccion + "\"A, THE.BIN\",Two,E,-b\r\n\"'B\",Two,E,-b\r\n" + Cierre;
    EXPECT_EQ(SinParametros(bytes, u"One"_s), bytes);
}

TEST_F(NotasDeSistema, EmptyLinesOutsideTheSectionAreLost)
{
    EXPECT_EQ(SinParametros("\r\n' top\n\n\r\nOne\r\n'\n" + Seccion + Cierre + "\r\nlast", u"None"_s),
        "' top\nOne\r\n'\n" + Seccion + Cierre + "last");
}

TEST_F(NotasDeSistema, LinesOutsideTheSectionKeepTheirEndsAndBytes)
{
    EXPECT_EQ(SinParametros("\x81 \xF1\nOne\nA,\"a, \"b\"\"\n'\n[\nParametros especificos\nA,Two,e,-\xE9\n'\n"
                            "fin\nfin,\"fin\"\nlast\n",
                  u"One"_s),
        "\x81 \xF1\nOne\nA,\"a, \"b\"\"\n'\n[\nParametros especificos\nA,Two,e,-\xE9\r\n'\n"
        "fin\nfin,\"fin\"\nlast\n");
}

TEST_F(NotasDeSistema, ASystemBehindTheSectionKeepsItsFirstNote)
{
    const QByteArray detras = "'\r\nTwo\r\nA.BIN,\"a, b\"\r\nB.BIN,\"b\"\r\n'\r\n[EOF]\r\n";
    EXPECT_EQ(SinParametros(Seccion + "K,One,E,-k\r\n" + detras, u"One"_s), Seccion + detras);
}

TEST_F(NotasDeSistema, ASystemWithoutNotesBehindTheSectionKeepsItsApostropheAndTheNextHeader)
{
    const QByteArray detras = "'\r\nTwo\r\n'\r\nThree\r\nB.BIN,\"b\"\r\n'\r\n";
    EXPECT_EQ(SinParametros(Seccion + "K,One,E,-k\r\n" + detras, u"One"_s), Seccion + detras);
}

TEST_F(NotasDeSistema, BehindOneSectionAnotherIsReadAsWell)
{
    EXPECT_EQ(SinParametros(Seccion + "K,One,E,-k\r\n" + Cierre
                      + "One\r\n'\r\nParametros\r\nL,One,E,-l\r\nM,"
                        "Two,E,-m\r\n"
                      + Cierre,
                  u"One"_s),
        Seccion + Cierre + "One\r\n'\r\nParametros\r\nM,Two,E,-m\r\n" + Cierre);
}

TEST_F(NotasDeSistema, WithoutASectionOrItsEndNothingFails)
{
    for (const QByteArray bytes : { "", "One\r\n'\r\n", "parametros especificos\r\nK,One,E,-k\r\n",
             "Parametros especificos", "Parametros especificos\r\n" })
        EXPECT_EQ(SinParametros(bytes, u"One"_s), bytes) << bytes.constData();
    EXPECT_EQ(SinParametros(Seccion + "K,One,E,-k\r\nL,Two,E,-l", u"One"_s), Seccion + "L,Two,E,-l\r\n");
}

TEST_F(NotasDeSistema, FieldsMissingAtTheEndOfTheFileAreEmpty)
{
    EXPECT_EQ(SinParametros(Seccion + "'", u"One"_s), Seccion + "'\r\n\r\n,\"\"\r\n");
    EXPECT_EQ(SinParametros(Seccion + "K,Two", u"One"_s), Seccion + "K,Two,,\r\n");
}

TEST_F(NotasDeSistema, ItsBlockGoesFromTheHeaderToTheApostrophe)
{
    EXPECT_EQ(
        SinNotas("' top\nOne\r\n'\r\nTwo\r\nA.BIN,\"a\"\r\n\"'B\",\"b\"\r\n\r\n'\r\nThree\n'\n[", u"Two"_s),
        "' top\nOne\r\n'\r\nThree\n'\n[");
    EXPECT_EQ(SinNotas("Two\r\n'\r\n[EOF]\r\n" + Seccion + Cierre, u"Two"_s), "[EOF]\r\n" + Seccion + Cierre);
}

TEST_F(NotasDeSistema, AnyLineThatBeginsWithAnApostropheEndsItsBlock)
{
    EXPECT_EQ(SinNotas("Two\r\nA,\"a\"\r\n'- mine\r\nB,\"b\"\r\n'\r\n", u"Two"_s), "B,\"b\"\r\n'\r\n");
}

TEST_F(NotasDeSistema, ABlockWithoutItsApostropheEndsAheadOfAnotherSystemAndOfTheEnd)
{
    const QByteArray resto = "[Fin]\r\nParametros especificos\r\nK,AAA,E1,-x\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
    const QByteArray delante = "AAA\r\nK,\"a\"\r\nmine\r\nB, BB\r\nPRISMA.BIN,\"P\"\r\n";
    const auto sin = [&](const QByteArray &bytes, const QString &sistema) {
        return Cambiado(bytes, [&](const QString &t) {
            return core::SinNotasDeSistema(t, sistema, { u"AAA"_s, u"B, BB"_s, u"CCC"_s });
        });
    };
    EXPECT_EQ(sin(delante + "CCC\r\n" + resto, u"CCC"_s), delante + resto);
    EXPECT_EQ(
        sin(delante + "CCC\r\n'\r\n" + resto, u"AAA"_s), "B, BB\r\nPRISMA.BIN,\"P\"\r\nCCC\r\n'\r\n" + resto);
    EXPECT_EQ(sin(delante + "CCC\r\n" + resto, u"B, BB"_s), "AAA\r\nK,\"a\"\r\nmine\r\nCCC\r\n" + resto);
    EXPECT_EQ(sin("CCC\r\nK,\"a\"\r\n" + Seccion + Cierre, u"CCC"_s), Seccion + Cierre);
    EXPECT_EQ(sin("CCC\r\nK,\"a\"", u"CCC"_s), "");
}

TEST_F(NotasDeSistema, RecordsOfItsBlockGo_WhateverTheirQuotes)
{
    const QByteArray registros = "A,\"a\"\r\n\"B, b\",\"b\"\r\nC , \"c, \"d\" "
                                 "e\"\r\nD,\"[x]\"\r\n,\"none\"\r\n \"E\" x,\"e\r\n[F].NES,\"f\"\r\n";
    EXPECT_EQ(SinNotas("One\r\n'\r\nTwo\r\n" + registros + "'\r\n[\r\n", u"Two"_s), "One\r\n'\r\n[\r\n");
}

TEST_F(NotasDeSistema, ANoteThatLooksLikeTheEndOfABlockGoesWithIt)
{
    const QByteArray resto = "One\r\nA,\"a\"\r\n'\r\n[Fin]\r\n" + Seccion + Cierre;
    for (const QByteArray nota : { "[BIOS].ZIP,Neo BIOS", "[BIOS].ZIP\r\n\"Neo BIOS\"", "One\r\n\"A name\"",
             "[X],\"x\"\r\n[Y],y, z" }) {
        const QByteArray bloque = "Two\r\nB,\"b\"\r\n" + nota + "\r\nC,\"c\"\r\n'\r\n";
        EXPECT_EQ(Cambiado(bloque + resto,
                      [](const QString &t) { return core::SinNotasDeSistema(t, u"Two"_s, { u"One"_s }); }),
            resto)
            << nota.constData();
    }
}

TEST_F(NotasDeSistema, ABlockWithoutItsApostropheTakesNothingBehindIt_WhateverItsNotesLookLike)
{
    const QByteArray fin = "[Fin, at last]\r\n" + Seccion + Cierre;
    for (const QByteArray &resto : { "One\r\nK\r\n\"a\"\r\n'\r\n" + fin, "One\r\n\"K\",\"a\"\r\n'\r\n" + fin,
             "One\r\n\"K, L\",a\r\n'\r\n" + fin, "One\r\n\"K\r\n'\r\n" + fin, "One\r\n'\r\n" + fin, fin }) {
        EXPECT_EQ(Cambiado("Two\r\n[BIOS].ZIP,Neo BIOS\r\nC,\"c\"\r\n" + resto,
                      [](const QString &t) { return core::SinNotasDeSistema(t, u"Two"_s, { u"One"_s }); }),
            resto.startsWith("One") ? resto : "[BIOS].ZIP,Neo BIOS\r\nC,\"c\"\r\n" + resto);
    }
}

TEST_F(NotasDeSistema, OnlyTheVeryHeaderOpensABlock)
{
    const QByteArray bytes = "two\r\n'\r\nTwo \r\n'\r\n Two\r\n'\r\nTwo,\"Two\"\r\n'\r\n[\r\n\r\nlast";
    EXPECT_EQ(SinNotas(bytes, u"Two"_s), bytes);
}
