// Which names a text means.
#include "mesadepruebas.h"

#include "companion/eleccion.h"

using namespace Qt::StringLiterals;
using companion::Candidatos;
using testing::ElementsAre;

TEST(Candidatos, TheWholeNameGoesAheadOfOtherCase_ThatOfABeginning_ThatOfAPart)
{
    const QStringList nombres { u"Mario 2"_s, u"mario"_s, u"MARIO"_s, u"Super Mario"_s };
    EXPECT_THAT(Candidatos(nombres, u"MARIO"_s), ElementsAre(2));
    EXPECT_THAT(Candidatos(nombres, u"Mario"_s), ElementsAre(1, 2));
    EXPECT_THAT(Candidatos(nombres, u"mari"_s), ElementsAre(0, 1, 2));
    EXPECT_THAT(Candidatos(nombres, u"per m"_s), ElementsAre(3));
    EXPECT_THAT(Candidatos(nombres, u"Luigi"_s), ElementsAre());
    EXPECT_THAT(Candidatos({}, u"a"_s), ElementsAre());
}

TEST(Candidatos, EqualNamesAreOne)
{
    EXPECT_THAT(Candidatos({ u"a"_s, u"b"_s, u"b"_s }, u"B"_s), ElementsAre(1));
}
