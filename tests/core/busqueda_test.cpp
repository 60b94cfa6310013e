// Finding an entry by a part of its name.
#include "core/busqueda.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using core::Sentido;

namespace {

const QStringList Juegos { u"Alex Kidd"_s, u"Legend of Zelda, The"_s, u"Pokémon Puzzle"_s, u"Zaxxon"_s,
    u"ZELDA II"_s, u"Pac-Man"_s, u"Çaça"_s };

} // namespace

TEST(Busqueda, TakesTheFirstThatBeginsSoElseTheFirstThatHoldsIt)
{
    struct Caso {
        QString texto;
        int entrada;
    };
    const Caso casos[] = {
        { u"z"_s, 3 },
        { u"zelda"_s, 4 },
        { u"zelda,"_s, 1 },
        { u"LEGEND"_s, 1 },
        { u"kid"_s, 0 },
        { u"pokemon"_s, 2 },
        { u"POKÉ"_s, 2 },
        { u"poke\u0301m"_s, 2 },
        { u"puzzle"_s, 2 },
        { u"p"_s, 2 },
        { u"pac"_s, 5 },
        { u"man"_s, 5 },
        { u"caca"_s, 6 },
        { u"of z"_s, 1 },
        { u"nothing"_s, -1 },
        { u""_s, -1 },
        { u"\u0301"_s, -1 },
    };
    for (const Caso &caso : casos)
        EXPECT_EQ(core::EntradaQueBusca(Juegos, caso.texto), caso.entrada) << qPrintable(caso.texto);
    EXPECT_EQ(core::EntradaQueBusca({}, u"z"_s), -1);
}

TEST(Busqueda, GoesOnToTheNextAndThePreviousRoundTheEnds)
{
    struct Caso {
        QString texto;
        int desde;
        int siguiente;
        int anterior;
    };
    const Caso casos[] = {
        { u"zelda"_s, 1, 4, 4 },
        { u"zelda"_s, 4, 1, 1 },
        { u"zelda"_s, 2, 4, 1 },
        { u"zelda"_s, -1, 1, 4 },
        { u"alex"_s, 0, 0, 0 },
        { u"alex"_s, 6, 0, 0 },
        { u"CACA"_s, 0, 6, 6 },
        { u"caça"_s, -1, 6, 6 },
        { u"nothing"_s, 1, -1, -1 },
        { QString(), 1, -1, -1 },
    };
    for (const Caso &caso : casos) {
        EXPECT_EQ(core::SiguienteEntrada(Juegos, caso.texto, caso.desde, Sentido::Adelante), caso.siguiente)
            << qPrintable(caso.texto) << caso.desde;
        EXPECT_EQ(core::SiguienteEntrada(Juegos, caso.texto, caso.desde, Sentido::Atras), caso.anterior)
            << qPrintable(caso.texto) << caso.desde;
    }
    EXPECT_EQ(core::SiguienteEntrada({}, u"z"_s, -1, Sentido::Adelante), -1);
}
