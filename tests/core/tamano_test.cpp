// The size of the screen: its steps, its line, and what a start takes.
#include "directoriodeprograma.h"

#include "core/tamano.h"

#include "host/failure.h"

using namespace Qt::StringLiterals;
using testing::Eq;
using testing::Optional;

TEST(Tamano, GoesByQuartersFromOneToFour)
{
    struct Paso {
        double actual, mayor, menor;
    };
    for (const auto &[actual, mayor, menor] :
        { Paso { 1, 1.25, 1 }, { 1.25, 1.5, 1 }, { 2, 2.25, 1.75 }, { 4, 4, 3.75 }, { 1.1, 1.25, 1 },
            { 1.33, 1.5, 1.25 }, { 0.5, 1, 1 }, { 6, 4, 4 }, { 1.2499999, 1.5, 1 }, { 1.2500001, 1.5, 1 } }) {
        EXPECT_EQ(core::OtroTamano(actual, true), mayor) << actual;
        EXPECT_EQ(core::OtroTamano(actual, false), menor) << actual;
    }
}

TEST(Tamano, ComesUpAsItWasSeen_OnAnyDesktop)
{
    for (const double escritorio : { 1.0, 1.25, 1.5, 2.0, 3.0 }) {
        for (const double tamano : { 1.0, 1.25, 2.0, 3.75, 4.0 })
            EXPECT_DOUBLE_EQ(core::FactorParaTamano(tamano, escritorio) * escritorio, tamano) << escritorio;
    }
}

TEST(Tamano, OfAnEarlierVersionWasAPartOfTheDesktops)
{
    EXPECT_EQ(core::FactorParaTamano(0.625, 2), 0.625);
    EXPECT_EQ(core::FactorParaTamano(0.5, 2), 0.5);
}

TEST(Tamano, IsNeverLessThanOne_NorMoreThanFour)
{
    EXPECT_EQ(core::FactorParaTamano(0.625, 1), 1);
    EXPECT_EQ(core::FactorParaTamano(0.25, 2), 0.5);
    EXPECT_EQ(core::FactorParaTamano(0.99, 8), 0.5);
    EXPECT_EQ(core::FactorParaTamano(5, 1), 4);
    EXPECT_EQ(core::FactorParaTamano(5, 2), 2);
}

TEST(Tamano, IsOneLine_AndComesBack)
{
    EXPECT_EQ(core::LineaDeTamano(1.5), u"Size = 1.5\r\n");
    for (const double tamano : { 1.0, 1.25, 2.0, 4.0, 0.5 })
        EXPECT_THAT(core::TamanoDeTexto(core::LineaDeTamano(tamano)), Optional(Eq(tamano)));
    EXPECT_THAT(core::TamanoDeTexto(u"Size = 1.1"_s), Optional(Eq(1.1)));
    EXPECT_THAT(core::TamanoDeTexto(u"Size = 2"_s), Optional(Eq(2.0)));
}

TEST(Tamano, IsNoneWhereTheTextHoldsNoneThatCanBeUsed)
{
    for (const QString &texto : { u""_s, u"Size = "_s, u"Size = x"_s, u"Size = nan"_s, u"Size = inf"_s,
             u"Size = 0"_s, u"Size = 0.2"_s, u"Size = 4.1"_s, u"Size = -2"_s, u"Size = 1e99"_s, u"size=2"_s,
             u"\nSize = 2"_s, u"Size = 2 3"_s })
        EXPECT_EQ(core::TamanoDeTexto(texto), std::nullopt) << texto.toStdString();
}

TEST(Tamano, OfAHighScreenIsTwoOrThree)
{
    for (const auto &[lineas, factor] : { std::pair(0, 1), { 1080, 1 }, { 1999, 1 }, { 2000, 2 }, { 2160, 2 },
             { 3999, 2 }, { 4000, 3 }, { 4320, 3 } })
        EXPECT_EQ(core::FactorDePantalla(lineas), factor) << lineas;
}

using TamanoEnElDisco = DirectorioDePrograma;

TEST_F(TamanoEnElDisco, StandsBesideTheProgram)
{
    EXPECT_EQ(core::TamanoGuardado(), std::nullopt);
    core::GuardaTamano(1.75);
    EXPECT_THAT(core::TamanoGuardado(), Optional(Eq(1.75)));
    core::GuardaTamano(2);
    EXPECT_EQ(Bytes(u"Zembro.tam"_s), "Size = 2\r\n");
    Pon(u"Zembro.tam"_s, "Size = 1." + QByteArray(1000, '5'));
    EXPECT_THAT(core::TamanoGuardado(), Optional(testing::DoubleNear(1.5555, 1e-3)));
}

TEST_F(TamanoEnElDisco, IsNoneWhereADirectoryLies_AndSavingFails)
{
    PonDirectorio(u"Zembro.tam"_s);
    EXPECT_EQ(core::TamanoGuardado(), std::nullopt);
    EXPECT_THROW(core::GuardaTamano(2), host::Failure);
}
