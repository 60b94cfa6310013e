// What games are called by their files' names.
#include "mesadepruebas.h"

#include "companion/rotulos.h"

using namespace Qt::StringLiterals;
using namespace companion;

namespace {

struct Caso {
    QString nombre;
    QString titulo;
    QString marcas;
};

using Pares = std::vector<std::pair<QString, QString>>;

} // namespace

TEST(RotuloDe, PutsTheArticleAhead_AndTheMarksAside)
{
    const Caso casos[] = {
        { u"Legend of Zelda, The (Europe) (Rev 1)"_s, u"The Legend of Zelda"_s, u"(Europe) (Rev 1)"_s },
        { u"Legend of Zelda, The - A Link to the Past (USA)"_s, u"The Legend of Zelda - A Link to the Past"_s,
            u"(USA)"_s },
        { u"Adventures of X - Return, The [!]"_s, u"Adventures of X - The Return"_s, u"[!]"_s },
        { u"Aigle d'Or, L' (France)"_s, u"L'Aigle d'Or"_s, u"(France)"_s },
        { u"Abadia del Crimen, La"_s, u"La Abadia del Crimen"_s, u""_s },
        { u"Game(1990)(Maker)[a]"_s, u"Game"_s, u"(1990) (Maker) [a]"_s },
        { u"Game (Disk 1 (of 2))"_s, u"Game"_s, u"(Disk 1 (of 2))"_s },
        { u"Foo (Bar) Baz"_s, u"Foo (Bar) Baz"_s, u""_s },
        { u"(USA)"_s, u"(USA)"_s, u""_s },
        { u"Broken) (x)"_s, u"Broken)"_s, u"(x)"_s },
        { u"super_mario_bros_(u)"_s, u"super mario bros"_s, u"(u)"_s },
        { u"snake_case and blank"_s, u"snake_case and blank"_s, u""_s },
        { u"Me, Myself"_s, u"Me, Myself"_s, u""_s },
        { u", The"_s, u", The"_s, u""_s },
        { u"  a   b  "_s, u"a b"_s, u""_s },
        { u""_s, u""_s, u""_s },
    };
    for (const Caso &caso : casos) {
        const Rotulo rotulo = RotuloDe(caso.nombre);
        EXPECT_EQ(rotulo.titulo, caso.titulo) << caso.nombre.toStdString();
        EXPECT_EQ(rotulo.marcas, caso.marcas) << caso.nombre.toStdString();
    }
    EXPECT_EQ(RotuloDe(u"A, The (B) [c]"_s).Entero(), u"The A (B) [c]"_s);
}

TEST(SinTerminacion, TakesAShortOneAway)
{
    const std::pair<QString, QString> casos[] = { { u"a.zip"_s, u"a"_s }, { u"a.b.7z"_s, u"a.b"_s },
        { u"a"_s, u"a"_s }, { u".nes"_s, u".nes"_s }, { u"Dr. Mario"_s, u"Dr. Mario"_s },
        { u"v1.0 (x)"_s, u"v1.0 (x)"_s }, { u"a.nesfile"_s, u"a.nesfile"_s }, { u"a."_s, u"a."_s } };
    for (const auto &[nombre, sin] : casos)
        EXPECT_EQ(SinTerminacion(nombre), sin);
}

TEST(Anotable, IsWhatARecordGivesBack)
{
    EXPECT_EQ(Anotable(u" a,\tb\r\nc 'd' <e> & 日本 "_s), u"a, b c 'd' <e> & 日本"_s);
    EXPECT_EQ(Anotable(u"say \"hello\", now"_s), u"say 'hello', now"_s);
    EXPECT_EQ(Anotable(u"\x1b[2J"_s), u"[2J"_s);
    EXPECT_EQ(Anotable(u"   "_s), QString());
    EXPECT_EQ(Anotable(QString(QChar(0xD800))), QString());
}

TEST(Bautiza, KeepsTheMarksWhereTwoWouldBeEqual)
{
    const Bautizados bautizados = Bautiza(
        { { u"A"_s, u"a.nes"_s, u"One"_s, u"One (X)"_s }, { u"B"_s, u"b.nes"_s, u"Two"_s, u"Two (X)"_s },
            { u"C"_s, u"c.nes"_s, u"Two"_s, u"Two (Y)"_s },
            { u"D"_s, u"d.nes"_s, u"Three"_s, u"Three (X)"_s } },
        { u"Three"_s });
    EXPECT_EQ(bautizados.descripciones,
        Pares({ { u"A"_s, u"One"_s }, { u"B"_s, u"Two (X)"_s }, { u"C"_s, u"Two (Y)"_s },
            { u"D"_s, u"Three (X)"_s } }));
    EXPECT_TRUE(bautizados.rechazados.empty());
}

TEST(Bautiza, WhatCannotBeToldApartOrKeptIsRefused_AndWhatIsCalledSoStays)
{
    const Bautizados bautizados = Bautiza(
        { { u"A"_s, u"a.nes"_s, u"One"_s, u"One"_s }, { u"B"_s, u"b.nes"_s, u"One"_s, u"One"_s },
            { u"C\n"_s, u"c.nes"_s, u"Two"_s, u"Two"_s }, { u""_s, u"d.nes"_s, u"Three"_s, u"Three"_s },
            { u"E"_s, u"Four"_s, u"Four"_s, u"Four (X)"_s }, { u"F"_s, u"f.nes"_s, u""_s, u""_s } },
        { u"Four"_s });
    EXPECT_EQ(bautizados.descripciones, Pares({ { u"A"_s, u"One"_s } }));
    ASSERT_EQ(bautizados.rechazados.size(), 3u);
    EXPECT_EQ(bautizados.rechazados[0].motivo, Motivo::Repetida);
    EXPECT_EQ(bautizados.rechazados[1].motivo, Motivo::SinClave);
    EXPECT_EQ(bautizados.rechazados[2].entrada, u"d.nes"_s);
}
