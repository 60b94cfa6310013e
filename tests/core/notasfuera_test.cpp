// Notes outside of the block of the system that has their games.
#include "core/notasfuera.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QStringList Configurados { u"Alfa"_s, u"Beta"_s };
const QStringList Conocidos { u"Alfa"_s, u"Beta"_s, u"Gamma"_s };

bool hayJuego(const QString &sistema, const QString &clave)
{
    const bool deAlfa = sistema == u"Alfa" && (clave == u"A1" || clave == u"A2");
    return deAlfa || (sistema == u"Beta" && (clave == u"B1" || clave == u"B2"))
        || (clave == u"AB" && sistema != u"Gamma");
}

QStringList fuera(const QString &lineas)
{
    QStringList dichas;
    const QString texto = QString(lineas).replace(u'|', u"\r\n"_s);
    for (const core::NotasFuera &tramo : core::NotasFueraDeSitio(texto, Configurados, Conocidos, hayJuego))
        dichas += u"%1 %2-%3"_s.arg(tramo.sistema).arg(tramo.inicio).arg(tramo.fin);
    return dichas;
}

} // namespace

TEST(NotesOutOfPlace, AreThoseWhoseGamesAnotherSystemHas)
{
    EXPECT_THAT(fuera(u"Beta|B1,\"b\"|A1,\"a\"|a2,\"a\"|AB,\"ab\"|X,\"x\"|'|"_s), ElementsAre(u"Alfa 2-4"_s));
    // Of one that isn't configured, of nobody, and behind what ends the systems.
    EXPECT_THAT(fuera(u"Alfa|A1,\"a\"|Gamma|A2,\"a\"|'|"_s), ElementsAre(u"Alfa 3-4"_s));
    EXPECT_THAT(fuera(u"Alfas|A1,\"a\"|'|A2,\"a\"|"_s), ElementsAre(u"Alfa 1-2"_s, u"Alfa 3-4"_s));
    EXPECT_THAT(fuera(u"Alfa|A1,\"a\"|[x]|A2,\"a\"|'|Beta|B1,\"b\"|'|"_s), ElementsAre(u"Alfa 3-4"_s));
    EXPECT_EQ(
        core::SistemasConNotasFuera(u"A1,\"a\"\nB1,\"b\"\nA2,\"a\"\n"_s, Configurados, Conocidos, hayJuego),
        Configurados);
}

TEST(NotesOutOfPlace, AreNone_WhereTheirOwnersHaveTheGamesOrTheGamesHaveNotes)
{
    EXPECT_THAT(fuera(u"Alfa|A1,\"a\"|AB,\"a\"|Beta|AB,\"b\"|'|"_s), IsEmpty());
    EXPECT_THAT(fuera(u"Alfa|A1,\"a\"|'|Beta|A1,\"a\"|'|"_s), IsEmpty());
    EXPECT_THAT(fuera(u"Gamma|G1,\"g\"|'|[EOF]|Parametros especificos|A1,\"a\"|"_s), IsEmpty());
}
