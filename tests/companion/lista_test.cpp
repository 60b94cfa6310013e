// zembro list.
#include "mesadepruebas.h"

#include "host/encoding.h"

#include <QJsonArray>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

class List : public MesaConJuegos { };

QStringList entradas(const QJsonObject &pareja)
{
    QStringList todas;
    for (const QJsonValue &juego : pareja[u"games"_s].toArray())
        todas += juego[u"entry"_s].toString();
    return todas;
}

} // namespace

TEST_F(List, TellsTheGamesOfEveryPairInTheOrderOfTheScreen)
{
    const QJsonArray parejas = Json({ u"list"_s })[u"pairs"_s].toArray();
    ASSERT_EQ(parejas.size(), 2);
    EXPECT_EQ(parejas[0][u"emulator"_s].toString(), u"Dos"_s);
    EXPECT_EQ(entradas(parejas[0].toObject()), QStringList({ u"SONIC"_s }));
    EXPECT_EQ(parejas[1][u"system"_s].toString(), u"Sis"_s);
    EXPECT_EQ(entradas(parejas[1].toObject()),
        QStringList({ u"Super Mario"_s, u"Zelda II.nes"_s, u"Zelda.nes"_s }));
    EXPECT_EQ(parejas[1][u"summary"_s].toString(), u"3 ROMS - 0.0MB"_s);
}

TEST_F(List, TellsOfAGameWhatTheScreenShowsOfIt)
{
    const QJsonObject mario =
        Json({ u"list"_s, u"Sis"_s, u"Uno"_s })[u"pairs"_s][0][u"games"_s][0].toObject();
    EXPECT_EQ(mario[u"file"_s].toString(), u"Mario.nes"_s);
    EXPECT_EQ(mario[u"bytes"_s].toInt(), 2048);
    EXPECT_EQ(mario[u"described"_s].toBool(), true);
    EXPECT_EQ(mario[u"facts"_s].toString(), u"MARIO.NES 2Kb  [NOR]"_s);
    EXPECT_EQ(mario[u"capture"_s].toString(), Ruta(u"img/mario.gif"_s));
}

TEST_F(List, TellsAGameALineWithTabsBetween)
{
    const Respuesta respuesta = Zembro({ u"list"_s, u"sis"_s, u"un"_s });
    EXPECT_EQ(respuesta.estado, companion::Bien);
    EXPECT_EQ(respuesta.salida,
        "[Sis / Uno]  3 ROMS - 0.0MB\n"
        "Super Mario\tMario.nes\tMARIO.NES 2Kb  [NOR]\t"
            + Ruta(u"img/mario.gif"_s).toUtf8()
            + "\nZelda II.nes\tZelda II.nes\tZelda II.nes 1Kb  [NOR]\t\n"
              "Zelda.nes\tZelda.nes\tZelda.nes 1Kb  [NOR]\t\n");
}

TEST_F(List, ADirectoryThatCannotBeReadIsSaid_AndTheOthersAreListed)
{
    Cambia(u"Zembro.emu"_s, "dirs/", "gone/");
    const QJsonArray parejas = Json({ u"list"_s }, companion::Hallazgos)[u"pairs"_s].toArray();
    EXPECT_TRUE(parejas[0][u"problem"_s].toString().contains(u"gone"_s));
    EXPECT_EQ(entradas(parejas[1].toObject()).size(), 3);
}

// A failed reading leaves its file open, and the next one would fail for that.
TEST_F(List, AListOfNotesWithoutItsEndDoesNotStopTheNextPair)
{
    Pon(u"Zembro.rom"_s, "Sis\r\nMARIO.NES,\"Super Mario\"\r\n");
    const QJsonArray parejas = Json({ u"list"_s }, companion::Hallazgos)[u"pairs"_s].toArray();
    EXPECT_EQ(parejas.size(), 2);
    EXPECT_EQ(parejas[0][u"problem"_s], parejas[1][u"problem"_s]);
}

TEST_F(List, NamesThatFitNothingOrSeveralAreSaid)
{
    EXPECT_EQ(Zembro({ u"list"_s, u"Nes"_s }).error, "zembro: No system fits Nes.\n");
    EXPECT_EQ(
        Zembro({ u"list"_s, u"Sis"_s, u"Tres"_s }).error, "zembro: No emulator of the system fits Tres.\n");
    const Respuesta varios = Zembro({ u"list"_s, u"Sis"_s, u"o"_s });
    EXPECT_EQ(varios.estado, companion::NoPudo);
    EXPECT_EQ(varios.error, "zembro: Several fit o:\n    Dos\n    Uno\n");
    EXPECT_EQ(Json({ u"list"_s, u"Sis"_s, u"o"_s }, companion::NoPudo)[u"candidates"_s].toArray().size(), 2);
}

TEST_F(List, ADirectoryWithoutACatalogueCouldNotBeListed)
{
    Borra(u"Zembro.emu"_s);
    const Respuesta respuesta = Zembro({ u"list"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_TRUE(respuesta.error.contains("Zembro.emu")) << respuesta.error.toStdString();
}

TEST_F(List, NamesThatATerminalWouldObeyShowTheirNumbers)
{
    Pon(u"roms/a\x1b[2J\tb.nes"_s, "x");
    const QByteArray salida = Zembro({ u"list"_s, u"Sis"_s, u"Uno"_s }).salida;
    EXPECT_TRUE(salida.contains("\na\\x1B[2J\\x09b.nes\t")) << salida.toStdString();
    EXPECT_FALSE(salida.contains('\x1b'));
}

TEST_F(List, AnEmptyCatalogueHasNothingToList)
{
    Pon(u"Zembro.emu"_s, "'------\r\n[EOF]\r\n");
    EXPECT_EQ(Json({ u"list"_s })[u"pairs"_s].toArray().size(), 0);
}

TEST_F(List, OfNamesThatDifferInCaseAloneTheOneThatIsPlayedIsTold)
{
    Pon(u"roms/ZELDA.NES"_s, "other");
    Pon(u"roms/zelda.nes"_s, "lower");
    const QJsonArray juegos = Json({ u"list"_s, u"Sis"_s, u"Uno"_s })[u"pairs"_s][0][u"games"_s].toArray();
    int iguales = 0;
    for (const QJsonValue &juego : juegos) {
        const QString entrada = juego[u"entry"_s].toString();
        if (entrada.compare(u"zelda.nes"_s, Qt::CaseInsensitive) != 0)
            continue;
        ++iguales;
        const QJsonObject dicho = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, entrada });
        EXPECT_EQ(dicho[u"entry"_s].toString(), entrada);
        EXPECT_EQ(dicho[u"arguments"_s].toArray().last().toString(),
            Ruta(u"roms/"_s) + juego[u"file"_s].toString());
    }
    EXPECT_EQ(iguales, 3);
}

TEST_F(List, NamesWithABackslashAndBytesThatAreNoTextAreToldWhole_AndTakenBack)
{
    Pon(u"roms/a\\b.nes"_s, "x");
    const QByteArray ruta = Ruta(u"roms/"_s).toUtf8() + "caf\xe9.nes";
    std::FILE *fichero = std::fopen(ruta.constData(), "w");
    ASSERT_NE(fichero, nullptr);
    std::fclose(fichero);
    const QJsonArray juegos = Json({ u"list"_s, u"Sis"_s, u"Uno"_s })[u"pairs"_s][0][u"games"_s].toArray();
    EXPECT_EQ(juegos[0][u"file"_s].toString(), u"a\\b.nes"_s);
    const QByteArray salida = Zembro({ u"list"_s, u"Sis"_s, u"Uno"_s }).salida;
    ASSERT_TRUE(salida.contains("caf\\xE9.nes\t")) << salida.toStdString();
    const QString deJson = juegos[1][u"entry"_s].toString();
    for (const QString &texto : { u"caf\\xE9.nes"_s, host::nameFromDisk("caf\xe9.nes"),
             host::nameFromDisk(deJson.toUtf8()), u"a\\b.nes"_s }) {
        const QJsonObject dicho = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, texto });
        EXPECT_EQ(dicho[u"entry"_s].toString(), texto.startsWith(u'a') ? texto : deJson);
    }
    std::remove(ruta.constData()); // which the directory's own removal doesn't see
}

TEST_F(List, ACaptureThatDoesNotShowIsNotTold)
{
    // Of two notes with one text the last one's shows, and only where both are there.
    Cambia(u"Zembro.rom"_s, "Super Mario\"\r\n", "Super Mario\"\r\nZELDA.NES,\"Super Mario\"\r\n");
    const auto captura = [&] {
        return Json({ u"list"_s, u"Sis"_s, u"Uno"_s })[u"pairs"_s][0][u"games"_s][0][u"capture"_s].toString();
    };
    EXPECT_EQ(captura(), QString());
    Pon(u"img/Zelda.gif"_s, UnGif());
    EXPECT_EQ(captura(), Ruta(u"img/Zelda.gif"_s));
    Borra(u"img/mario.gif"_s);
    EXPECT_EQ(captura(), QString());
}
