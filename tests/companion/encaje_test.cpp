// Which picture fits which game.
#include "companion/encaje.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using companion::Nombrado;

namespace {

// The picture's name; empty if none fits.
QString encaja(const Nombrado &juego, const QStringList &imagenes)
{
    const auto encajadas = companion::Encajan({ juego }, imagenes);
    return encajadas.size() == 1 && encajadas[0] ? imagenes[*encajadas[0]] : QString();
}

} // namespace

TEST(Encajan, ByTheFilesNameInAnyCase)
{
    const Nombrado juego { u"Dr. Mario (USA).nes"_s, u"DR"_s, {} };
    EXPECT_EQ(encaja(juego, { u"dr. mario (usa).png"_s }), u"dr. mario (usa).png"_s);
    EXPECT_EQ(encaja(juego, { u"Dr. Mario (USA).nes.png"_s }), u"Dr. Mario (USA).nes.png"_s);
    EXPECT_EQ(encaja(juego, { u"Dr. Mario (USA)"_s }), u"Dr. Mario (USA)"_s);
    EXPECT_EQ(encaja(juego, { u"dr.jpg"_s }), u"dr.jpg"_s);
    EXPECT_EQ(encaja(juego, { u"Dr. Luigi (USA).png"_s }), QString());
}

TEST(Encajan, TheFilesNameGoesAheadOfTheCaptures_AndBothAheadOfTheRest)
{
    const Nombrado juego { u"Dr. Mario (USA).nes"_s, u"DR"_s, u"The Doctor"_s };
    EXPECT_EQ(
        encaja(juego, { u"DR.png"_s, u"Dr. Mario.png"_s, u"The Doctor.png"_s, u"Dr. Mario (USA).png"_s }),
        u"Dr. Mario (USA).png"_s);
    EXPECT_EQ(encaja(juego, { u"The Doctor.png"_s, u"Dr. Mario.png"_s, u"DR.png"_s }), u"DR.png"_s);
    EXPECT_EQ(encaja(juego, { u"The Doctor.png"_s, u"Dr. Mario.png"_s }), u"Dr. Mario.png"_s);
}

TEST(Encajan, WithoutWhatStandsInBrackets_AndWithoutSigns)
{
    const Nombrado juego { u"Legend of Zelda, The - Oracle (Europe) (Rev 1).gbc"_s, {}, {} };
    for (const QString &imagen :
        { u"The Legend of Zelda - Oracle.png"_s, u"the legend of zelda_ oracle (USA).bmp"_s,
            u"Legend of Zelda, The - Oracle [!].png"_s, u"The_Legend_of_Zelda_Oracle.png"_s })
        EXPECT_EQ(encaja(juego, { imagen }), imagen) << imagen.toStdString();
    EXPECT_EQ(encaja(juego, { u"The Legend of Zelda.png"_s }), QString());
    EXPECT_EQ(encaja({ u"Pokémon.gb"_s, {}, {} }, { u"Pokemon.png"_s }), u"Pokemon.png"_s);
    EXPECT_EQ(encaja({ u"ドラゴン.gb"_s, {}, {} }, { u"ドラゴン (Japan).png"_s }), u"ドラゴン (Japan).png"_s);
}

TEST(Encajan, ByTheDescription)
{
    const Nombrado juego { u"smb3.zip"_s, u"SMB3"_s, u"Super Mario Bros. 3 (USA)"_s };
    EXPECT_EQ(encaja(juego, { u"super mario bros 3.png"_s }), u"super mario bros 3.png"_s);
    EXPECT_EQ(
        encaja(juego, { u"Super Mario Bros. 3 (Europe).png"_s }), u"Super Mario Bros. 3 (Europe).png"_s);
    EXPECT_EQ(encaja(juego, { u"Super Mario Bros. 2.png"_s }), QString());
}

TEST(Encajan, OfSeveralTheFirstOne_AndOneForSeveralGames)
{
    const std::vector<Nombrado> juegos { { u"Tetris (Europe).gb"_s, {}, {} },
        { u"Tetris (USA).gb"_s, {}, {} }, { u"Tennis.gb"_s, {}, {} } };
    const QStringList imagenes { u"Golf.png"_s, u"Tetris (Japan).png"_s, u"Tetris (USA).png"_s };
    const auto encajadas = companion::Encajan(juegos, imagenes);
    ASSERT_EQ(encajadas.size(), 3U);
    EXPECT_EQ(encajadas[0], 1);
    EXPECT_EQ(encajadas[1], 2);
    EXPECT_EQ(encajadas[2], std::nullopt);
}

TEST(Encajan, NothingFitsANameWithoutLetters)
{
    EXPECT_EQ(encaja({ u"!!!.nes"_s, {}, u"?"_s }, { u"---.png"_s, u"().png"_s }), QString());
    EXPECT_EQ(encaja({ u"!!!.nes"_s, {}, {} }, { u"!!!.png"_s }), u"!!!.png"_s);
    EXPECT_EQ(encaja({ u".nes"_s, {}, {} }, {}), QString());
}
