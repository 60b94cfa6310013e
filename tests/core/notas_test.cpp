// Loading a system's notes: the block, the fields of its records, what ends it.
#include "directoriodeprograma.h"

#include "core/lista.h"
#include "core/notas.h"

using namespace Qt::StringLiterals;

namespace {

class Notas : public DirectorioDePrograma {
protected:
    int Carga(const QByteArray &bytes, const QString &sistema = u"Console"_s)
    {
        Pon(u"Zembro.rom"_s, bytes);
        return core::CargaNotas(M, sistema);
    }

    int FalloAlCargar(const QByteArray &bytes, const QString &sistema = u"Console"_s)
    {
        return NumeroDeFallo([&] { Carga(bytes, sistema); });
    }

    int Recarga(const QByteArray &bytes, const QString &sistema = u"Console"_s)
    {
        Pon(u"Zembro.rom"_s, bytes);
        return core::RecargaNotas(M, sistema);
    }

    // The first notes as "KEY=text".
    QStringList Primeras(int cuantas) const
    {
        QStringList notas;
        for (int i = 0; i < cuantas; ++i)
            notas += M.Nota_Clave(i) + u'=' + M.Nota_Texto(i);
        return notas;
    }

    // A block whose notes are the lines.
    static QByteArray Bloque(const QByteArray &lineas) { return "Console\r\n" + lineas + "'\r\n"; }
};

QByteArray registros(int cuantos)
{
    QByteArray bytes;
    for (int i = 0; i < cuantos; ++i)
        bytes += "GAME" + QByteArray::number(i) + ".BIN,\"Game " + QByteArray::number(i) + "\"\r\n";
    return bytes;
}

} // namespace

TEST_F(Notas, AreTheRecordsOfTheSystemsOwnBlock)
{
    EXPECT_EQ(
        Carga(
            "' notes\r\nOther\r\nA.BIN,\"Not this\"\r\n'\r\n"
            "Console\r\nGAME.BIN,\"A game\"\r\nTWO.BIN,\"Another\"\r\n'\r\n"
            "Third\r\nB.BIN,\"Nor this\"\r\n'\r\n[\r\nParametros especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n"),
        2);
    EXPECT_EQ(Primeras(3), (QStringList { u"GAME.BIN=A game"_s, u"TWO.BIN=Another"_s, u"="_s }));
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Notas, AreNone_InAnEmptyBlock)
{
    EXPECT_EQ(Carga("Console\r\n'\r\n"), 0);
    EXPECT_EQ(Primeras(1), QStringList { u"="_s });
}

TEST_F(Notas, AreFoundByTheNameExactInCase)
{
    EXPECT_EQ(Carga("CONSOLE\r\nA,\"a\"\r\n'\r\nConsole \r\nB,\"b\"\r\n'\r\n Console\r\nC,\"c\"\r\n'\r\n"
                    "Console\r\nD,\"d\"\r\n'\r\n"),
        1);
    EXPECT_EQ(Primeras(1), QStringList { u"D=d"_s });
}

TEST_F(Notas, AreThoseOfTheFirstOfTwoBlocks)
{
    EXPECT_EQ(Carga("Console\r\nA,\"a\"\r\n'\r\nConsole\r\nB,\"b\"\r\n'\r\n"), 1);
    EXPECT_EQ(Primeras(2), (QStringList { u"A=a"_s, u"="_s }));
}

struct Registro {
    QByteArray bytes;
    QStringList notas;
};

void PrintTo(const Registro &caso, std::ostream *salida)
{
    *salida << caso.bytes.toPercentEncoding(" \",'").constData();
}

class RegistroDeNota : public Notas, public testing::WithParamInterface<Registro> { };

TEST_P(RegistroDeNota, IsReadFieldByField)
{
    const auto total = Carga(Bloque(GetParam().bytes));
    EXPECT_EQ(total, GetParam().notas.size());
    EXPECT_EQ(Primeras(total), GetParam().notas);
}

INSTANTIATE_TEST_SUITE_P(Registros, RegistroDeNota,
    testing::Values(Registro { "K.BIN,\"a, b\"\r\n", { u"K.BIN=a, b"_s } },
        Registro { "K.BIN,\"\"\r\n", { u"K.BIN="_s } }, Registro { "K.BIN,\r\n", { u"K.BIN="_s } },
        Registro { "K.BIN,\"'quoted'\"\r\n", { u"K.BIN='quoted'"_s } },
        // Ends at the next double quote, and the rest is dropped up to the comma or the line end.
        Registro { "K.BIN,\"a \"b\" c\"\r\n", { u"K.BIN=a "_s } },
        Registro {
            "K.BIN,\"a \"b, c\"\r\nL.BIN,\"l\"\r\nM\r\n", { u"K.BIN=a "_s, u"c\"=L.BIN"_s, u"l=M"_s } },
        Registro { "  K.BIN  ,  plain text  \r\n", { u"K.BIN=plain text"_s } },
        Registro { "K.BIN  ,  \"  a  \"  \r\n", { u"K.BIN=  a  "_s } },
        // A line end separates fields like a comma.
        Registro { "K.BIN\r\n\"a\"\r\nL.BIN\r\nl\r\n", { u"K.BIN=a"_s, u"L.BIN=l"_s } },
        Registro { "A,\"a\"\n"
                   "B,\"b\"\n",
            { u"A=a"_s, u"B=b"_s } },
        // A key in double quotes.
        Registro {
            "\"ADDAMS FAMILY, THE.NES\",\"The family\"\r\n", { u"ADDAMS FAMILY, THE.NES=The family"_s } },
        Registro { "\"'N.NES\",\"n\"\r\n\"[A].NES\",\"a\"\r\n", { u"'N.NES=n"_s, u"[A].NES=a"_s } },
        // Ends nothing.
        Registro { "'-----\r\nx\r\nK,\"k\"\r\n", { u"'-----=x"_s, u"K=k"_s } },
        Registro { "'x,\"y\"\r\n", { u"'x=y"_s } }, Registro { "K,'\r\nL,\"l\"\r\n", { u"K='"_s, u"L=l"_s } },
        Registro { "K,\"a\xF1o\"\r\n", { u"K=año"_s } },
        Registro { "k.bin,\"lower\"\r\n", { u"k.bin=lower"_s } },
        // An empty line is an empty field.
        Registro { "\r\nx\r\n", { u"=x"_s } }));

TEST_F(Notas, EndAtALoneApostrophe_AlsoWithBlanksOrAtTheEndOfTheFile)
{
    for (const QByteArray cierre : { "'\r\n", "'\n", "'", "  '  \r\n", "\"'\"\r\n", "',x\r\n" })
        EXPECT_EQ(Carga("Console\r\nA,\"a\"\r\n" + cierre), 1) << cierre.constData();
}

TEST_F(Notas, FailAtTheEndAndStayOpen_WhereTheSystemHasNoBlock)
{
    EXPECT_EQ(FalloAlCargar("Other\r\n'\r\n[\r\n"), host::PastEndOfFile);
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(Notas, FailAtTheEndAndStayOpen_WhereTheBlockIsNotClosed)
{
    for (const QByteArray bloque : { "Console", "Console\r\n", "Console\r\nA,\"a\"\r\n", "Console\r\nA,\"a\"",
             "Console\r\nA", "Console\r\n'----\r\n" }) {
        EXPECT_EQ(FalloAlCargar(bloque), host::PastEndOfFile) << bloque.constData();
        EXPECT_TRUE(M.Ficheros.isOpen(1));
        M.Ficheros.closeAll();
    }
}

// A description with a quote and a comma in it shifts the fields, here so that the apostrophe is one of them.
TEST_F(Notas, FailAtTheEnd_WhereAShiftedFieldSwallowsTheClosing)
{
    EXPECT_EQ(FalloAlCargar("Console\r\nK,\"a \"b, c\"\r\nL,\"l\"\r\n'\r\n"), host::PastEndOfFile);
}

TEST_F(Notas, FailAtTheEnd_OfAnEmptyFile)
{
    EXPECT_EQ(FalloAlCargar(""), host::PastEndOfFile);
}

TEST_F(Notas, FailAsNotFound_WithoutTheFile)
{
    EXPECT_EQ(NumeroDeFallo([this] { core::CargaNotas(M, u"Console"_s); }), host::FileNotFound);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Notas, FillTheTable)
{
    EXPECT_EQ(Carga(Bloque(registros(6667))), 6667);
    EXPECT_EQ(M.Nota_Clave(6666), u"GAME6666.BIN");
    EXPECT_EQ(M.Nota_Texto(6666), u"Game 6666");
}

TEST_F(Notas, FailAsOutOfRangeAndStayOpen_AtOneMore)
{
    EXPECT_EQ(FalloAlCargar(Bloque(registros(6668))), host::OutOfRange);
    EXPECT_EQ(M.Nota_Clave(6666), u"GAME6666.BIN");
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(Notas, KeepWhatTheTablesHeldBehindTheLastRecord)
{
    Carga(Bloque("A,\"a\"\r\nB,\"b\"\r\nC,\"c\"\r\n"));
    EXPECT_EQ(Carga(Bloque("D,\"d\"\r\n")), 1);
    EXPECT_EQ(Primeras(3), (QStringList { u"D=d"_s, u"B=b"_s, u"C=c"_s }));
}

TEST_F(Notas, KeysAreInUpperCaseForTheList)
{
    Pon(u"Zembro.rom"_s, "Console\r\ngame,\"A game\"\r\nAntol\xF3n\xDF,\"x\"\r\n'\r\n");
    EXPECT_EQ(core::CargaNotasEnMayusculas(M, u"Console"_s), 2);
    EXPECT_EQ(Primeras(2), (QStringList { u"GAME=A game"_s, u"ANTOLÓNß=x"_s }));
}

TEST_F(Notas, ReloadTakesTheKeysAsTheFileHasThemAndKeepsTheRestOfTheTables)
{
    Carga(Bloque("A,\"a\"\r\nB,\"b\"\r\n"));
    EXPECT_EQ(Recarga(Bloque("game,\"A game\"\r\n")), 1);
    EXPECT_EQ(Primeras(2), (QStringList { u"game=A game"_s, u"B=b"_s }));
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Notas, ReloadEndsInSilence_WhereverTheFileEnds)
{
    const std::pair<QByteArray, QStringList> casos[] = { { "", {} }, { "Other\r\n'\r\n", {} },
        { "Console", {} }, { "Console\r\n", {} },
        { "Console\r\nA,\"a\"\r\nB,\"b\"\r\n", { u"A=a"_s, u"B=b"_s } },
        { "Console\r\nA,\"a\"\r\nB", { u"A=a"_s, u"B="_s } } };
    for (const auto &[bytes, notas] : casos) {
        EXPECT_EQ(Recarga(bytes), notas.size()) << bytes.constData();
        EXPECT_EQ(Primeras(static_cast<int>(notas.size())), notas) << bytes.constData();
        EXPECT_FALSE(M.Ficheros.isOpen(1)) << bytes.constData();
    }
}

TEST_F(Notas, ReloadFails_WithoutTheFileAndWithTooManyRecords)
{
    EXPECT_EQ(NumeroDeFallo([this] { core::RecargaNotas(M, u"Console"_s); }), host::FileNotFound);
    EXPECT_EQ(NumeroDeFallo([this] { Recarga(Bloque(registros(6668))); }), host::OutOfRange);
}

TEST_F(Notas, NoteOfATextIsTheFirst)
{
    Carga(Bloque("A,\"one\"\r\nB,\"two\"\r\nC,\"two\"\r\n"));
    EXPECT_EQ(core::NotaConTexto(M, u"one"_s), 0);
    EXPECT_EQ(core::NotaConTexto(M, u"two"_s), 1);
    EXPECT_EQ(core::NotaConTexto(M, u"Two"_s), -1);
    EXPECT_EQ(core::NotaConTexto(M, QString()), -1);
}

TEST_F(Notas, NoteOfATextIsLookedForUpToTheFirstEmptyKey)
{
    Carga(Bloque("A,\"one\"\r\n\"\",\"two\"\r\nC,\"three\"\r\n"));
    EXPECT_EQ(core::NotaConTexto(M, u"two"_s), -1);
    EXPECT_EQ(core::NotaConTexto(M, u"three"_s), -1);
}

TEST_F(Notas, NoteOfATextIsLookedForInAFullTable)
{
    Carga(Bloque(registros(6667)));
    EXPECT_EQ(core::NotaConTexto(M, u"Game 6666"_s), 6666);
    EXPECT_EQ(core::NotaConTexto(M, u"none"_s), -1);
}

// A record without a key at the top of a block is a note, and hides none behind it.
TEST_F(Notas, FirstNoteIsAlwaysTried_AlsoWithoutAKey)
{
    Carga(Bloque(",\"x\"\r\nMARIO.NES,\"Super Mario\"\r\n,\"y\"\r\nZELDA.NES,\"Zelda\"\r\n"));
    EXPECT_EQ(core::NotaConTexto(M, u"x"_s), 0);
    EXPECT_EQ(core::NotaConTexto(M, u"Super Mario"_s), 1);
    EXPECT_EQ(core::NotaConTexto(M, u"y"_s), -1);
    EXPECT_EQ(core::NotaConTexto(M, u"Zelda"_s), -1);
}

TEST_F(Notas, WithoutAnyNoteAnEmptyTextIsTheEmptyFirstOnes)
{
    EXPECT_EQ(core::NotaConTexto(M, QString()), 0);
    EXPECT_EQ(core::NotaConTexto(M, u"x"_s), -1);
    Carga(Bloque("A,\"one\"\r\n"));
    EXPECT_EQ(core::NotaConTexto(M, QString()), -1);
}
