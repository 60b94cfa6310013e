// Where the selected entry leads, and which file out of a ZIP is the game.
#include "launch/busquedarom.h"

#include "tests/host/disktest.h"

using namespace Qt::StringLiterals;
using launch::Busqueda;
using launch::EligeFichero;
using launch::Via;
using testing::Eq;
using testing::Optional;

namespace {

class BusquedaTest : public testing::Test {
protected:
    core::Modulo M;

    void nota(int indice, const QString &clave, const QString &texto)
    {
        M.Nota_Clave(indice) = clave;
        M.Nota_Texto(indice) = texto;
    }
};

TEST_F(BusquedaTest, AnEntryThatIsNoDescriptionIsAFileName)
{
    nota(0, u"MARIO.NES"_s, u"The plumber"_s);
    const Busqueda busqueda = launch::BuscaROM(M, 0, u"Zelda.nes"_s);
    EXPECT_EQ(busqueda.via, Via::Fichero);
    EXPECT_EQ(busqueda.nombre, u"Zelda.nes"_s);
}

TEST_F(BusquedaTest, ADescriptionLeadsToItsKey)
{
    nota(0, u"ZELDA.NES"_s, u"The sword"_s);
    nota(1, u"MARIO.NES"_s, u"The plumber"_s);
    const Busqueda busqueda = launch::BuscaROM(M, 0, u"The plumber"_s);
    EXPECT_EQ(busqueda.via, Via::Nota);
    EXPECT_EQ(busqueda.nota, 1);
    EXPECT_EQ(busqueda.clave, u"MARIO.NES"_s);
    EXPECT_EQ(busqueda.nombre, u"MARIO.NES"_s);
}

TEST_F(BusquedaTest, DescriptionsAreComparedWithTheirCase)
{
    nota(0, u"MARIO.NES"_s, u"The plumber"_s);
    EXPECT_EQ(launch::BuscaROM(M, 0, u"the plumber"_s).via, Via::Fichero);
}

TEST_F(BusquedaTest, OfTwoNotesWithOneDescriptionTheFirstWins)
{
    nota(0, u"A.NES"_s, u"The plumber"_s);
    nota(1, u"B.NES"_s, u"The plumber"_s);
    EXPECT_EQ(launch::BuscaROM(M, 0, u"The plumber"_s).clave, u"A.NES"_s);
}

TEST_F(BusquedaTest, TheNotesEndAtTheFirstEmptyKey)
{
    nota(0, u"A.NES"_s, u"one"_s);
    nota(2, u"B.NES"_s, u"left from another system"_s);
    EXPECT_EQ(launch::BuscaROM(M, 0, u"left from another system"_s).via, Via::Fichero);
}

TEST_F(BusquedaTest, TheFirstNoteIsTriedAlsoWithoutAKey_AndHidesNoneBehindIt)
{
    nota(0, QString(), u"x"_s);
    nota(1, u"MARIO.NES"_s, u"Super Mario"_s);
    EXPECT_EQ(launch::BuscaROM(M, 0, u"Super Mario"_s).nombre, u"MARIO.NES"_s);
    const Busqueda primera = launch::BuscaROM(M, 0, u"x"_s);
    EXPECT_EQ(primera.via, Via::Nota);
    EXPECT_EQ(primera.nota, 0);
    EXPECT_EQ(primera.nombre, QString());
}

TEST_F(BusquedaTest, NothingSelectedIsTheEmptyNoteOfASystemWithoutNotes)
{
    const QString nombres[] = { {}, {}, u".ZIP"_s, u".ZIP"_s };
    for (int tipo = 0; tipo < 4; ++tipo) {
        const Busqueda busqueda = launch::BuscaROM(M, tipo, {});
        EXPECT_EQ(busqueda.via, Via::Nota) << tipo;
        EXPECT_EQ(busqueda.nota, 0) << tipo;
        EXPECT_EQ(busqueda.clave, QString()) << tipo;
        EXPECT_EQ(busqueda.nombre, nombres[tipo]) << tipo;
    }
    nota(0, u"MARIO.NES"_s, u"The plumber"_s);
    EXPECT_EQ(launch::BuscaROM(M, 0, {}).via, Via::Fichero);
}

TEST_F(BusquedaTest, AFullTableWithoutAMatchFallsBackToTheFileName)
{
    for (int i = 0; i < core::MaxROMs; ++i)
        nota(i, u"K"_s, u"T"_s);
    EXPECT_EQ(launch::BuscaROM(M, 0, u"other"_s).via, Via::Fichero);
}

TEST_F(BusquedaTest, Type2AlwaysGetsAZip_EvenAKeyThatEndsSo)
{
    nota(0, u"MARIO"_s, u"one"_s);
    nota(1, u"ZELDA.ZIP"_s, u"two"_s);
    EXPECT_EQ(launch::BuscaROM(M, 2, u"one"_s).nombre, u"MARIO.ZIP"_s);
    EXPECT_EQ(launch::BuscaROM(M, 2, u"two"_s).nombre, u"ZELDA.ZIP.ZIP"_s);
    EXPECT_EQ(launch::BuscaROM(M, 2, u"two"_s).clave, u"ZELDA.ZIP"_s);
}

TEST_F(BusquedaTest, Type3GetsAZip_UnlessTheKeyEndsExactlySo)
{
    nota(0, u"MARIO"_s, u"one"_s);
    nota(1, u"ZELDA.ZIP"_s, u"two"_s);
    nota(2, u"metroid.zip"_s, u"three"_s);
    EXPECT_EQ(launch::BuscaROM(M, 3, u"one"_s).nombre, u"MARIO.ZIP"_s);
    EXPECT_EQ(launch::BuscaROM(M, 3, u"two"_s).nombre, u"ZELDA.ZIP"_s);
    EXPECT_EQ(launch::BuscaROM(M, 3, u"three"_s).nombre, u"metroid.zip.ZIP"_s);
}

TEST_F(BusquedaTest, Types0And1TakeTheKeyAsItStands)
{
    nota(0, u"MARIO"_s, u"one"_s);
    EXPECT_EQ(launch::BuscaROM(M, 0, u"one"_s).nombre, u"MARIO"_s);
    EXPECT_EQ(launch::BuscaROM(M, 1, u"one"_s).nombre, u"MARIO"_s);
}

TEST(Candidatos, LeftoversComeFirst_ThenTheMembersInTheArchivesOrder)
{
    EXPECT_EQ(launch::Candidatos({ u"a"_s, u"b"_s, u"c"_s, u"d"_s }, { u"d"_s, u"b"_s }),
        QStringList({ u"a"_s, u"c"_s, u"d"_s, u"b"_s }));
}

TEST(Candidatos, AMemberThatIsNotThereAnyMoreIsNone_AndOneThatCameTwiceCountsOnce)
{
    EXPECT_EQ(launch::Candidatos({ u"a"_s }, { u"gone"_s, u"a"_s, u"a"_s }), QStringList({ u"a"_s }));
}

TEST(Candidatos, NamesBeyondTheTablesEndAreDropped)
{
    QStringList nombres;
    for (int i = 0; i < 160; ++i)
        nombres << QString::number(i);
    const QStringList candidatos = launch::Candidatos(nombres, nombres);
    EXPECT_EQ(candidatos.size(), 151);
    EXPECT_EQ(candidatos.last(), u"150"_s);
}

const QStringList Nes { u"*.NES"_s, u"*.FDS"_s };

TEST(EligeFichero, TheFirstFileIsTriedWithEveryExtension)
{
    EXPECT_THAT(EligeFichero({ u"a.nes"_s }, Nes), Optional(Eq(u"a.nes"_s)));
    EXPECT_THAT(EligeFichero({ u"a.FDS"_s }, Nes), Optional(Eq(u"a.FDS"_s)));
}

TEST(EligeFichero, FromTheSecondFileOnTheFirstExtensionIsNotTried)
{
    EXPECT_EQ(EligeFichero({ u"read.me"_s, u"a.nes"_s }, Nes), std::nullopt);
    EXPECT_THAT(EligeFichero({ u"read.me"_s, u"a.fds"_s }, Nes), Optional(Eq(u"a.fds"_s)));
}

TEST(EligeFichero, ASecondFileIsFound_WhereTheSystemHasTheExtensionASecondTime)
{
    EXPECT_THAT(EligeFichero({ u"read.me"_s, u"a.nes"_s }, { u"*.NES"_s, u"*.FDS"_s, u"*.NES"_s }),
        Optional(Eq(u"a.nes"_s)));
}

TEST(EligeFichero, TheFirstFileThatFitsWins)
{
    EXPECT_THAT(EligeFichero({ u"a.fds"_s, u"b.nes"_s }, Nes), Optional(Eq(u"a.fds"_s)));
}

TEST(EligeFichero, NothingFits)
{
    EXPECT_EQ(EligeFichero({}, Nes), std::nullopt);
    EXPECT_EQ(EligeFichero({ u"a.txt"_s, u"b.txt"_s, u"c"_s }, Nes), std::nullopt);
    EXPECT_EQ(EligeFichero({ u"a.nes"_s, u"b.nes"_s }, {}), std::nullopt);
}

TEST(EligeFichero, ExtensionsPastTheFirstEmptyOneAreNotTried)
{
    const QStringList conHueco { u"*.NES"_s, QString(), u"*.FDS"_s };
    EXPECT_EQ(EligeFichero({ u"a.fds"_s }, conHueco), std::nullopt);
    EXPECT_EQ(EligeFichero({ u"read.me"_s, u"a.fds"_s }, conHueco), std::nullopt);
    EXPECT_THAT(EligeFichero({ u"a.nes"_s }, conHueco), Optional(Eq(u"a.nes"_s)));
}

TEST(EligeFichero, AnInnerArchiveNamedInUpperCaseIsSkipped)
{
    EXPECT_THAT(EligeFichero({ u"INNER.ZIP"_s, u"a.nes"_s }, Nes), Optional(Eq(u"a.nes"_s)));
    EXPECT_EQ(EligeFichero({ u"INNER.ZIP"_s }, { u"*.ZIP"_s }), std::nullopt);
}

TEST(EligeFichero, ANameThatMerelyEndsInTheThreeLettersIsSkippedToo)
{
    EXPECT_THAT(EligeFichero({ u"MYZIP"_s, u"a.nes"_s }, Nes), Optional(Eq(u"a.nes"_s)));
}

TEST(EligeFichero, AnInnerArchiveWithALowerCaseExtensionIsACandidate)
{
    EXPECT_THAT(EligeFichero({ u"inner.zip"_s }, { u"*.ZIP"_s }), Optional(Eq(u"inner.zip"_s)));
    EXPECT_THAT(EligeFichero({ u"inner.Zip"_s }, { u"*.ZIP"_s }), Optional(Eq(u"inner.Zip"_s)));
}

TEST(EligeFichero, OnlyOneUpperCaseArchiveIsSkippedInAPass)
{
    // The second one is compared in the first pass, by its extension.
    EXPECT_THAT(
        EligeFichero({ u"A.ZIP"_s, u"B.ZIP"_s, u"c.nes"_s }, { u"*.ZIP"_s }), Optional(Eq(u"B.ZIP"_s)));
    // Skipped in the second pass: its neighbour has lost the first extension.
    EXPECT_EQ(EligeFichero({ u"A.ZIP"_s, u"B.ZIP"_s, u"c.nes"_s }, { u"*.NES"_s }), std::nullopt);
    EXPECT_THAT(EligeFichero({ u"A.ZIP"_s, u"B.ZIP"_s, u"c.fds"_s }, Nes), Optional(Eq(u"c.fds"_s)));
}

TEST(EligeFichero, ANameWithoutAPointKeepsTheExtensionOfTheFileBefore)
{
    EXPECT_THAT(EligeFichero({ u"A.ZIP"_s, u"README"_s }, Nes), Eq(std::nullopt));
    EXPECT_THAT(EligeFichero({ u"B.FDSZIP"_s, u"C.ZIP"_s, u"README"_s }, { u"*.NES"_s, u"*.ZIP"_s }),
        Optional(Eq(u"README"_s)));
}

TEST(EligeFichero, AFirstNameWithoutAPointHasAnEmptyExtension)
{
    EXPECT_EQ(EligeFichero({ u"README"_s }, Nes), std::nullopt);
    EXPECT_THAT(EligeFichero({ u"README"_s }, { u"*."_s }), Optional(Eq(u"README"_s)));
}

TEST(EligeFichero, TheLastPointCounts)
{
    EXPECT_THAT(EligeFichero({ u"a.b.nes"_s }, Nes), Optional(Eq(u"a.b.nes"_s)));
    EXPECT_EQ(EligeFichero({ u"a.nes."_s }, Nes), std::nullopt);
}

TEST(EligeFichero, AnExtensionWithABlankBehindItNeverFits)
{
    EXPECT_EQ(EligeFichero({ u"a.nes"_s }, { u"*.NES "_s }), std::nullopt);
}

TEST(EligeFichero, SkippingPastTheLastFileFindsAnEmptyName_WhereTheExtensionStillStands)
{
    EXPECT_THAT(
        EligeFichero({ u"A.ZIP"_s, u"B.ZIP"_s }, { u"*.NES"_s, u"*.ZIP"_s }), Optional(Eq(QString())));
}

} // namespace
