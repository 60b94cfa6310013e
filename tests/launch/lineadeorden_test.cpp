// One composition, two results: the text with every blank, and arguments that stay whole.
#include "launch/lineadeorden.h"

#include "tests/host/disktest.h"

using namespace Qt::StringLiterals;
using launch::LineaDeOrden;

namespace {

TEST(LineaDeOrden, TheTextIsThePiecesAsTheyAre_BlanksIncluded)
{
    LineaDeOrden orden;
    orden.Ruta(u"/e/x.sh"_s, u"/E/X.sh"_s).Texto(u"  "_s).Ruta(u""_s, u""_s).Texto(u"  -a "_s);
    EXPECT_EQ(orden.EnTexto(), u"/e/x.sh    -a "_s);
    EXPECT_EQ(orden.Argumentos(), QStringList({ u"/E/X.sh"_s, u"-a"_s }));
}

TEST(LineaDeOrden, APathIsOneArgumentInItsTrueSpelling_WhateverItsNameHolds)
{
    const QString mala = u"/r/A \"b' `c` $d;e\nf\uf7ff.nes"_s;
    LineaDeOrden orden;
    orden.Ruta(u"x"_s, u"X y"_s).Texto(u" -f "_s).Ruta(u"/r/short"_s, mala).Texto(u" -g"_s);
    EXPECT_EQ(orden.EnTexto(), u"x -f /r/short -g"_s);
    EXPECT_EQ(orden.Argumentos(), QStringList({ u"X y"_s, u"-f"_s, mala, u"-g"_s }));
}

TEST(LineaDeOrden, ParametersAreSplitAtBlanks_AndDoubleQuotesGroup)
{
    LineaDeOrden orden;
    orden.Ruta(u"x"_s, u"x"_s).Texto(u" -a  \"b c\" d=\"e f\"g "_s);
    EXPECT_EQ(orden.Argumentos(), QStringList({ u"x"_s, u"-a"_s, u"b c"_s, u"d=e fg"_s }));
}

TEST(LineaDeOrden, PiecesWithNoBlankBetweenThemJoin)
{
    LineaDeOrden orden;
    orden.Ruta(u"x"_s, u"x"_s).Texto(u" -rom="_s).Ruta(u"a"_s, u"A b"_s).Texto(u"!"_s).Texto(u"? -z"_s);
    EXPECT_EQ(orden.EnTexto(), u"x -rom=a!? -z"_s);
    EXPECT_EQ(orden.Argumentos(), QStringList({ u"x"_s, u"-rom=A b!?"_s, u"-z"_s }));
}

TEST(LineaDeOrden, QuotesAroundAPathGroupItWithItsNeighbours)
{
    LineaDeOrden orden;
    orden.Ruta(u"x"_s, u"x"_s).Texto(u" \"load "_s).Ruta(u"a"_s, u"A b"_s).Texto(u"\" z"_s);
    EXPECT_EQ(orden.Argumentos(), QStringList({ u"x"_s, u"load A b"_s, u"z"_s }));
}

TEST(LineaDeOrden, TheProgramJoinsParametersThatBringNoBlank)
{
    LineaDeOrden orden;
    orden.Ruta(u"emu"_s, u"Emu"_s).Texto(u"-x"_s);
    EXPECT_EQ(orden.Argumentos(), QStringList({ u"Emu-x"_s }));
}

TEST(LineaDeOrden, AnEmptyProgramGivesNoArguments_SoThatParametersAreNeverRun)
{
    EXPECT_EQ(LineaDeOrden().Argumentos(), QStringList());
    EXPECT_EQ(LineaDeOrden().EnTexto(), QString());
    LineaDeOrden conRuta;
    conRuta.Ruta(u""_s, u""_s).Texto(u" rm -rf x"_s);
    EXPECT_EQ(conRuta.EnTexto(), u" rm -rf x"_s);
    EXPECT_EQ(conRuta.Argumentos(), QStringList());
    LineaDeOrden perdido;
    perdido.Ruta(u"/gone/meanwhile"_s, u""_s).Texto(u" rm"_s);
    EXPECT_EQ(perdido.Argumentos(), QStringList());
    LineaDeOrden conTexto;
    conTexto.Texto(u"  "_s).Texto(u"rm"_s);
    EXPECT_EQ(conTexto.Argumentos(), QStringList());
}

TEST(LineaDeOrden, AProgramMayBeGivenAsText)
{
    LineaDeOrden orden;
    orden.Texto(u"vi -R"_s).Texto(u" "_s).Ruta(u"a"_s, u"A b"_s);
    EXPECT_EQ(orden.Argumentos(), QStringList({ u"vi"_s, u"-R"_s, u"A b"_s }));
}

} // namespace
