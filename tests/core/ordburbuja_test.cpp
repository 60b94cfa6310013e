#include "directoriodeprograma.h"

#include "core/ordburbuja.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

std::vector<QString> ordenada(std::vector<QString> tabla, int desde, int hasta)
{
    core::Ordenar(tabla, desde, hasta);
    return tabla;
}

} // namespace

TEST(Ordenar, SortsAscending_InATableUsedFromOneOn)
{
    EXPECT_THAT(
        ordenada({ u""_s, u"D"_s, u"C"_s, u"B"_s, u"A"_s }, 1, 4), ElementsAre(u"", u"A", u"B", u"C", u"D"));
    EXPECT_THAT(ordenada({ u""_s, u"B"_s, u"A"_s }, 1, 2), ElementsAre(u"", u"A", u"B"));
}

TEST(Ordenar, SortsAscending_WhenTheEmptyEntryAheadIsIncluded)
{
    EXPECT_THAT(ordenada({ u""_s, u"C"_s, u"B"_s, u"A"_s }, 0, 3), ElementsAre(u"", u"A", u"B", u"C"));
}

TEST(Ordenar, MakesOnePassTooFew_InATableUsedFromZeroOn)
{
    EXPECT_THAT(ordenada({ u"B"_s, u"A"_s }, 0, 1), ElementsAre(u"B", u"A"));
    EXPECT_THAT(ordenada({ u"C"_s, u"B"_s, u"A"_s }, 0, 2), ElementsAre(u"B", u"A", u"C"));
}

TEST(Ordenar, LeavesTheElementsOutsideTheBoundsAlone)
{
    EXPECT_THAT(ordenada({ u"Z"_s, u"C"_s, u"B"_s, u"A"_s, u"0"_s }, 1, 3),
        ElementsAre(u"Z", u"A", u"B", u"C", u"0"));
}

TEST(Ordenar, ComparesCodeByCode)
{
    // Upper case ahead of lower case, '_' behind the capitals, accented letters behind all of ASCII.
    EXPECT_THAT(ordenada({ u""_s, u"É"_s, u"a"_s, u"_"_s, u"Z"_s, u"-"_s, u"AB"_s, u"A"_s, u"A-"_s }, 1, 8),
        ElementsAre(u"", u"-", u"A", u"A-", u"AB", u"Z", u"_", u"a", u"É"));
}

TEST(Ordenar, LeavesEqualElementsStanding)
{
    EXPECT_THAT(
        ordenada({ u""_s, u"B"_s, u"A"_s, u"B"_s, u"A"_s }, 1, 4), ElementsAre(u"", u"A", u"A", u"B", u"B"));
}

TEST(Ordenar, DoesNothing_ForNoElementOrOne)
{
    EXPECT_THAT(ordenada({ u"B"_s }, 0, 0), ElementsAre(u"B"));
    EXPECT_THAT(ordenada({ u"B"_s, u"A"_s }, 1, 1), ElementsAre(u"B", u"A"));
    EXPECT_THAT(ordenada({ u"B"_s, u"A"_s }, 1, 0), ElementsAre(u"B", u"A"));
}

TEST(Ordenar, FailsAsOutOfRange_ForBoundsPastTheTable)
{
    std::vector<QString> tabla { u"C"_s, u"B"_s, u"A"_s };
    EXPECT_EQ(NumeroDeFallo([&] { core::Ordenar(tabla, 1, 3); }), host::OutOfRange);
    EXPECT_EQ(NumeroDeFallo([&] { core::Ordenar(tabla, -1, 2); }), host::OutOfRange);
    EXPECT_THAT(tabla, ElementsAre(u"C", u"B", u"A"));
}
