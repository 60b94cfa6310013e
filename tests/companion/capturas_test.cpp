// zembro captures.
#include "mesadepruebas.h"

#include "companion/fotos.h"

#include "converter/wholeness.h"

#include "host/aside.h"
#include "host/paths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <utime.h>

using namespace Qt::StringLiterals;

namespace {

// A picture of one pixel, of a kind, as a file of it.
QByteArray imagen()
{
    return QByteArray::fromBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQDJ/pLvAAAAAElFTkSuQmCC");
}

class Captures : public MesaConJuegos {
protected:
    Captures()
    {
        qputenv(host::AsideFileVariable, Ruta(u"log"_s).toUtf8());
        qputenv("HOME", Ruta(u"home"_s).toUtf8());
        PonDirectorio(u"pics"_s);
        EXPECT_TRUE(QFile::link(QStringLiteral(CAPTURE_CONVERTER), Ruta(u"Cvtcap.exe"_s)));
    }
    ~Captures() override
    {
        qunsetenv(host::AsideFileVariable);
        qputenv("HOME", m_casa);
    }

    // Seconds after the beginning of the last game.
    void PonFoto(const QString &nombre, int segundos) const
    {
        Pon(nombre, imagen());
        const time_t momento =
            QDateTime::fromString(u"2026-05-01T20:15:02"_s, Qt::ISODate).toSecsSinceEpoch() + segundos;
        const utimbuf tiempos { momento, momento };
        ASSERT_EQ(utime(Ruta(nombre).toUtf8().constData(), &tiempos), 0);
    }

    void PonUltima(const QByteArray &pareja = "Sis Uno", const QByteArray &entrada = "Zelda.nes") const
    {
        Pon(u"log"_s,
            "zembrolix 2026-05-01T20:15:02 1.1 game " + pareja + ' ' + entrada
                + "\nzembrolix 2026-05-01T20:15:02 1.1 start x\nzembrolix 2026-05-01T20:15:02 1.1 directory "
                + Ruta(u"emu"_s).toUtf8() + "\nzembrolix 2026-05-01T20:16:02 1.1 status 0 after 60.0\n");
    }

    bool EsGif(const QString &nombre) const
    {
        return Bytes(nombre).startsWith("GIF8") && Bytes(nombre).size() > 20;
    }

private:
    const QByteArray m_casa = qgetenv("HOME");
};

} // namespace

TEST_F(Captures, ShowsWhatItWouldMake_AndMakesNothing)
{
    Pon(u"pics/Zelda.png"_s, imagen());
    Pon(u"pics/Zelda II (Japan).jpg"_s, imagen());
    Pon(u"pics/Golf.png"_s, imagen());
    Pon(u"pics/notes.txt"_s, "no picture");
    const Respuesta respuesta = Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_EQ(respuesta.error, "");
    EXPECT_EQ(respuesta.salida,
        "Zelda II.nes\tZelda II (Japan).jpg\tZelda II.GIF\n"
        "Zelda.nes\tZelda.png\tZelda.GIF\n"
        "Sis / Uno: to be made: 2, there already: 1, games without a picture: 0; --write makes them.\n"
        "Pictures that fit no game: 1.\n"
        "    Golf.png\n");
    EXPECT_FALSE(host::exists(Ruta(u"img/Zelda.GIF"_s)));
}

TEST_F(Captures, MakesThem_AndLeavesTheSourcesAndWhatWasThere)
{
    Pon(u"pics/Zelda.png"_s, imagen());
    Pon(u"pics/mario.png"_s, imagen());
    const Respuesta respuesta =
        Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s), u"--write"_s });
    EXPECT_EQ(respuesta.estado, companion::Bien) << respuesta.error.toStdString();
    EXPECT_EQ(respuesta.salida,
        "Zelda.nes\tZelda.png\tZelda.GIF\n"
        "Sis / Uno: made: 1, there already: 1, games without a picture: 1.\n");
    EXPECT_TRUE(EsGif(u"img/Zelda.GIF"_s));
    EXPECT_EQ(Bytes(u"img/mario.gif"_s), UnGif());
    EXPECT_EQ(Bytes(u"pics/Zelda.png"_s), imagen());
    EXPECT_EQ(
        Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) }).estado, companion::Bien);
}

TEST_F(Captures, OfOnesThatAreThereAreMadeAnewWhereThatIsAskedFor)
{
    Pon(u"pics/super mario.png"_s, imagen());
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s), u"--replace"_s,
                         u"--write"_s })
                  .salida,
        "Super Mario\tsuper mario.png\tMARIO.GIF\n"
        "Sis / Uno: made: 1, there already: 0, games without a picture: 2.\n");
    EXPECT_TRUE(EsGif(u"img/mario.gif"_s));
    EXPECT_FALSE(host::listFiles(Ruta(u"img"_s)).contains(u"MARIO.GIF"_s));
}

TEST_F(Captures, SaysWhyOneCouldNotBeMade_AndMakesTheOthers)
{
    Pon(u"pics/Zelda.png"_s, imagen().chopped(10));
    Pon(u"pics/Zelda II.png"_s, "no picture");
    Pon(u"pics/Mario.png"_s, imagen());
    Borra(u"img/mario.gif"_s);
    const QStringList pedido { u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s),
        u"--write"_s };
    const QJsonObject objeto = Json(pedido, companion::Hallazgos);
    const QJsonArray capturas = objeto[u"pairs"_s][0][u"captures"_s].toArray();
    ASSERT_EQ(capturas.size(), 3);
    EXPECT_EQ(capturas[0][u"written"_s], true);
    EXPECT_EQ(capturas[0][u"capture"_s], Ruta(u"img/MARIO.GIF"_s));
    EXPECT_EQ(capturas[1][u"problem"_s], u"no-picture"_s);
    EXPECT_EQ(capturas[2][u"problem"_s], u"damaged"_s);
    EXPECT_TRUE(EsGif(u"img/MARIO.GIF"_s));
    EXPECT_EQ(host::listFilesAndDirectories(Ruta(u"img"_s)), QStringList { u"MARIO.GIF"_s });
    const QByteArray salida = Zembro(pedido).salida;
    EXPECT_TRUE(salida.contains(
        "Zelda II.nes\tZelda II.png\tZelda II.GIF\tit is no picture of a kind that can be read\n"))
        << salida.toStdString();
    EXPECT_TRUE(salida.contains("Sis / Uno: made: 0, there already: 1, games without a picture: 2.\n"));
}

TEST_F(Captures, WithoutADirectoryTakesWhatLiesAmongTheCaptures)
{
    Pon(u"img/Zelda.png"_s, imagen());
    Pon(u"img/Zelda II.gif"_s, UnGif());
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--write"_s }).salida,
        "Zelda.nes\tZelda.png\tZelda.GIF\n"
        "Sis / Uno: made: 1, there already: 2, games without a picture: 0.\n");
    // GIFs of the directory itself are captures, however it is named; one that is no game's fits none.
    Pon(u"img/Sonic the Hedgehog.gif"_s, UnGif());
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"Dos"_s, u"--from"_s, Ruta(u"img/../img/"_s) }).salida,
        "Sis / Dos: to be made: 0, there already: 0, games without a picture: 1; --write makes them.\n"
        "Pictures that fit no game: 2.\n"
        "    Sonic the Hedgehog.gif\n"
        "    Zelda.png\n");
}

TEST_F(Captures, NamesTheFirstPicturesThatFitNoGame_AndAllOfThemInJson)
{
    for (int i = 10; i < 35; ++i)
        Pon(u"pics/Golf %1.png"_s.arg(i), imagen());
    const QStringList pedido { u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) };
    const QByteArray salida = Zembro(pedido).salida;
    EXPECT_TRUE(salida.contains("Pictures that fit no game: 25.\n    Golf 10.png\n    Golf 11.png\n"));
    EXPECT_TRUE(salida.endsWith("    Golf 29.png\n    and more: 5; --json names them all\n"))
        << salida.toStdString();
    EXPECT_EQ(Json(pedido)[u"unused"_s].toArray().size(), 25);
}

// In the place of Zelda's capture stands what isn't one.
TEST_F(Captures, WhatIsNoPictureIsNoCapture_AndAPictureTakesItsPlace)
{
    Pon(u"pics/Zelda.png"_s, imagen());
    const QStringList pedido { u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) };
    const QByteArrayList contenidos { "", "no picture but a text of some length", "GIF89a",
        "\x0a\x05\x01\x08 a PCX, which no screen shows" };
    for (const QByteArray &contenido : contenidos) {
        Pon(u"img/zelda.gif"_s, contenido);
        EXPECT_EQ(Zembro(pedido).salida,
            "Zelda.nes\tZelda.png\tZelda.GIF\tin the place of what is no picture\n"
            "Sis / Uno: to be made: 1, there already: 1, games without a picture: 1; --write makes them.\n");
        EXPECT_EQ(Bytes(u"img/zelda.gif"_s), contenido);
        EXPECT_EQ(Json(pedido, companion::Hallazgos)[u"pairs"_s][0][u"captures"_s][0][u"replaces"_s], true);
        EXPECT_EQ(Zembro(pedido + QStringList { u"--write"_s }).estado, companion::Bien);
        EXPECT_TRUE(EsGif(u"img/zelda.gif"_s));
        EXPECT_EQ(host::listFiles(Ruta(u"img"_s)).size(), 2);
    }
}

TEST_F(Captures, WhatIsNoPictureIsTold_WhereThereIsNoPictureForIt)
{
    Pon(u"img/Zelda.gif"_s, "");
    const QStringList pedido { u"captures"_s, u"Sis"_s, u"Uno"_s };
    const Respuesta respuesta = Zembro(pedido);
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_EQ(respuesta.salida,
        Ruta(u"img/Zelda.GIF"_s).toUtf8()
            + " is no picture that the screen shows; remove it, or let captures make it anew.\n"
              "Sis / Uno: to be made: 0, there already: 1, games without a picture: 2; --write makes "
              "them.\n");
    EXPECT_EQ(Json(pedido, companion::Hallazgos)[u"pairs"_s][0][u"no_pictures"_s][0][u"kind"_s],
        u"capture-no-picture"_s);
}

TEST_F(Captures, ALinkThatLeadsNowhereGivesItsPlace_ADirectoryNever)
{
    Pon(u"pics/Zelda.png"_s, imagen());
    Pon(u"pics/Zelda II.png"_s, imagen());
    ASSERT_TRUE(QFile::link(Ruta(u"gone.gif"_s), Ruta(u"img/Zelda.gif"_s)));
    PonDirectorio(u"img/Zelda II.gif"_s);
    for (const QStringList &mas :
        { QStringList {}, { u"--replace"_s }, { u"--write"_s }, { u"--replace"_s, u"--write"_s } }) {
        const Respuesta respuesta =
            Zembro(QStringList { u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) } + mas);
        EXPECT_EQ(respuesta.estado, companion::Hallazgos);
        EXPECT_TRUE(respuesta.salida.contains(
            Ruta(u"img/Zelda II.GIF"_s).toUtf8() + " is no file, but a directory or the like"))
            << respuesta.salida.toStdString();
        EXPECT_EQ(respuesta.salida.contains("Zelda.GIF\tin the place"),
            mas.value(0) != u"--replace" || mas.size() == 1);
    }
    EXPECT_TRUE(EsGif(u"img/Zelda.gif"_s));
    EXPECT_FALSE(host::exists(Ruta(u"gone.gif"_s)));
    EXPECT_TRUE(host::listFiles(Ruta(u"img/Zelda II.gif"_s)).isEmpty());
}

// What check says of a GIF of another spelling is what captures does with it.
TEST_F(Captures, AGIFOfAnotherSpellingBecomesTheCapture_AsCheckSays)
{
    Pon(u"img/ZELDA - ii [a].gif"_s, UnGif());
    Pon(u"img/mario (Europe).gif"_s, UnGif());
    const QStringList pedido { u"captures"_s, u"Sis"_s, u"Uno"_s };
    EXPECT_EQ(Zembro(pedido).salida,
        "Zelda II.nes\tZELDA - ii [a].gif\tZelda II.GIF\n"
        "Sis / Uno: to be made: 1, there already: 1, games without a picture: 1; --write makes them.\n");
    const auto revisado = [&] {
        QStringList clases;
        for (const QJsonValue &uno :
            Json({ u"check"_s, u"Sis"_s, u"Uno"_s }, companion::Hallazgos)[u"findings"_s].toArray())
            clases += uno[u"kind"_s].toString() + u' ' + uno[u"text"_s].toString();
        return clases.filter(u"capture"_s);
    };
    EXPECT_EQ(revisado(),
        (QStringList {
            u"capture-unused The capture mario (Europe).gif never shows, as its game has MARIO.GIF; remove it."_s,
            u"capture-spelling The capture ZELDA - ii [a].gif would be found as Zelda II.GIF; rename it, or let captures make one of it."_s }));
    EXPECT_EQ(Zembro(pedido + QStringList { u"--write"_s }).estado, companion::Bien);
    EXPECT_TRUE(EsGif(u"img/Zelda II.GIF"_s));
    EXPECT_EQ(Bytes(u"img/ZELDA - ii [a].gif"_s), UnGif());
    EXPECT_TRUE(
        revisado().join(u'\n').contains(u"ZELDA - ii [a].gif never shows, as its game has Zelda II.GIF"));
}

TEST_F(Captures, OfAllEmulatorsOfASystem_EachCaptureOnce)
{
    Pon(u"dirs/Zelda/x"_s, "x");
    Pon(u"pics/Zelda.png"_s, imagen());
    Pon(u"pics/Sonic.gif"_s, "GIF89a no whole one");
    EXPECT_EQ(Zembro({ u"captures"_s, u"sis"_s, u"--from"_s, Ruta(u"pics"_s) }).salida,
        "SONIC\tSonic.gif\tSONIC.GIF\n"
        "ZELDA\tZelda.png\tZELDA.GIF\n"
        "Sis / Dos: to be made: 2, there already: 0, games without a picture: 0; --write makes them.\n"
        "Sis / Uno: to be made: 1, there already: 1, games without a picture: 1; --write makes them.\n");
}

TEST_F(Captures, MakesTheDirectoryOfAnEmulatorThatHasNoneYet)
{
    Cambia(u"Zembro.emu"_s, "img/", "new/");
    Pon(u"pics/Zelda.png"_s, imagen());
    EXPECT_EQ(
        Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s), u"--write"_s }).estado,
        companion::Bien);
    EXPECT_TRUE(EsGif(u"new/Zelda.GIF"_s));
}

TEST_F(Captures, WithoutADirectoryInTheConfigurationIsToldSo)
{
    Cambia(u"Zembro.emu"_s, "IMG=" + Ruta(u"img/"_s).toUtf8(), "IMG=");
    const Respuesta respuesta = Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_EQ(respuesta.error,
        "zembro: [Sis / Uno]  It has no directory of captures; its configuration gives it one.\n");
}

TEST_F(Captures, FailsWithoutTheDirectoryOrTheConverter)
{
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"--from"_s, Ruta(u"none"_s) }).estado, companion::NoPudo);
    EXPECT_EQ(Zembro({ u"captures"_s, u"Nada"_s }).estado, companion::NoPudo);
    QFile::remove(Ruta(u"Cvtcap.exe"_s));
    Pon(u"pics/Zelda.png"_s, imagen());
    const Respuesta respuesta =
        Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s), u"--write"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_TRUE(respuesta.error.contains("Cvtcap.exe")) << respuesta.error.toStdString();
}

TEST_F(Captures, OfTheGamePlayedLastIsTheNewestPictureOfTheEmulator)
{
    PonUltima();
    PonFoto(u"emu/shot1.png"_s, 20);
    PonFoto(u"emu/shot2.png"_s, 30);
    PonFoto(u"emu/before.png"_s, -20);
    PonFoto(u"emu/after.png"_s, 4000);
    Pon(u"emu/newest.txt"_s, "no picture");
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s }).salida,
        "Zelda.nes\tshot2.png\tZelda.GIF\n"
        "Sis / Uno: to be made: 1, there already: 1, games without a picture: 1; --write makes them.\n");
    const Respuesta respuesta = Zembro({ u"captures"_s, u"Sis"_s, u"--last"_s, u"--write"_s });
    EXPECT_EQ(respuesta.estado, companion::Bien);
    EXPECT_TRUE(EsGif(u"img/Zelda.GIF"_s));
    EXPECT_EQ(Bytes(u"emu/shot2.png"_s), imagen());
    const Respuesta otraVez = Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--last"_s });
    EXPECT_EQ(otraVez.estado, companion::Hallazgos);
    EXPECT_TRUE(otraVez.salida.endsWith("Zelda.nes has a capture already; --replace makes it anew from "
        + Ruta(u"emu/shot2.png"_s).toUtf8() + "\n"));
}

TEST_F(Captures, OfTheGamePlayedLastAreLookedForWhereItIsSaid)
{
    PonUltima();
    PonFoto(u"pics/whatever.bmp"_s, 10);
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--last"_s, u"--from"_s, Ruta(u"pics"_s) }).salida,
        "Zelda.nes\twhatever.bmp\tZelda.GIF\n"
        "Sis / Uno: to be made: 1, there already: 1, games without a picture: 1; --write makes them.\n");
    // Without that, a directory's pictures go by their names alone.
    EXPECT_EQ(
        Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) }).estado, companion::Bien);
}

TEST_F(Captures, OfTheGamePlayedLastAreNotThoseThatItMadeItself)
{
    Cambia(u"Zembro.emu"_s, "img/\r\nPAR1=-a", "roms/\r\nPAR1=-a");
    PonUltima("Sis Uno", "Zelda.nes");
    PonFoto(u"roms/Zelda.GIF"_s, 30);
    PonFoto(u"roms/a.png"_s, 20);
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--last"_s, u"--replace"_s }).salida,
        "Zelda.nes\ta.png\tZelda.GIF\n"
        "Sis / Uno: to be made: 1, there already: 0, games without a picture: 2; --write makes them.\n");
}

TEST_F(Captures, SaysWhyThereIsNoneOfTheGamePlayedLast)
{
    const auto dicho = [&] {
        const Respuesta respuesta = Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--last"_s });
        EXPECT_EQ(respuesta.estado, companion::Hallazgos);
        return respuesta.salida;
    };
    EXPECT_TRUE(dicho().contains("No launch of a game is known: " + Ruta(u"log"_s).toUtf8()));
    PonUltima("Sis Dos", "SONIC");
    EXPECT_TRUE(dicho().contains("The game played last is one of Sis / Dos: SONIC"));
    PonUltima();
    const QByteArray sinFoto = dicho();
    EXPECT_TRUE(sinFoto.contains("No picture was taken while Zelda.nes was played; looked in:\n    "
        + Ruta(u"emu"_s).toUtf8() + "\n    " + Ruta(u"roms/"_s).toUtf8() + "\n"))
        << sinFoto.toStdString();
    EXPECT_EQ(Zembro({ u"captures"_s, u"Sis"_s, u"Uno"_s }).estado, companion::Bien);
}

TEST_F(Captures, OfHundredsOfGamesTakeLittleTime)
{
    for (int i = 0; i < 2000; ++i) {
        Pon(u"roms/Game %1 (Europe).nes"_s.arg(i), "x");
        Pon(u"pics/game %1.png"_s.arg(i), "\x89PNG\r\n\x1A\n");
    }
    const QJsonObject objeto =
        Json({ u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) }, companion::Hallazgos);
    EXPECT_EQ(objeto[u"pairs"_s][0][u"captures"_s].toArray().size(), 2000);
}

TEST(Fotos, AreLookedForWhereTheEmulatorKeepsThem)
{
    qputenv("XDG_DATA_HOME", "/data");
    const companion::Entorno entorno { u"/usr/games/mupen64plus"_s, u"/work"_s, u"/games/"_s };
    EXPECT_EQ(companion::LugaresDeFotos(entorno),
        (QStringList { u"/data/mupen64plus/screenshot"_s, u"/work"_s, u"/games/"_s }));
    qunsetenv("XDG_DATA_HOME");
    const QByteArray casa = qgetenv("HOME");
    qputenv("HOME", "/h");
    EXPECT_EQ(companion::LugaresDeFotos({ u"org.DolphinEmu.dolphin-emu"_s, {}, {} }),
        QStringList { u"/h/.var/app/org.DolphinEmu.dolphin-emu/data/dolphin-emu/ScreenShots/*"_s });
    EXPECT_EQ(companion::LugaresDeFotos({ u"/usr/games/mame"_s, u"/w"_s, {} }),
        (QStringList { u"/h/.mame/snap/*"_s, u"/w/snap/*"_s, u"/h/.local/share/mame/snap/*"_s, u"/w"_s }));
    qputenv("HOME", casa);
}

TEST(WholePictures, OfWhichTheEndIsMissingAreToldFromWholeOnes)
{
    const QString directorio = QStringLiteral(PROJECT_SOURCES) + u"/tests/converter/fixtures/others"_s;
    int vistas = 0;
    for (const QString &nombre : QDir(directorio).entryList(QDir::Files)) {
        QFile fichero(directorio + u'/' + nombre);
        ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
        const QByteArray bytes = fichero.readAll();
        const auto vista = [&](qsizetype largo) {
            return std::span(reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(largo));
        };
        const converter::Kind clase = converter::kindOf(vista(bytes.size()));
        using converter::Kind;
        if (clase == Kind::None || clase == Kind::Tiff || clase == Kind::Pcx)
            continue; // not shown
        if (nombre.startsWith(u"several"_s))
            continue; // the first of several pictures is whole long ahead of the file's end
        const bool entera = converter::isWhole(vista(bytes.size()), clase);
        EXPECT_EQ(entera, !nombre.contains(u"cut"_s) && !nombre.contains(u"trunc"_s)) << nombre.toStdString();
        ++vistas;
        for (qsizetype largo = 0; entera && largo < bytes.size() / 2; largo += 1 + bytes.size() / 500)
            EXPECT_FALSE(converter::isWhole(vista(largo), clase)) << nombre.toStdString() << ' ' << largo;
    }
    EXPECT_GT(vistas, 5);
}

TEST_F(Captures, APictureThatIsCutIsMadeAnew_AndIsNoneOfThoseThere)
{
    const QByteArray cortada = UnGif().chopped(4);
    Pon(u"img/mario.gif"_s, cortada);
    Pon(u"img/Zelda II.gif"_s, imagen().chopped(20));
    Pon(u"pics/mario.png"_s, imagen());
    const Respuesta revisado = Zembro({ u"check"_s, u"Sis"_s, u"Uno"_s });
    EXPECT_TRUE(revisado.salida.contains("mario.gif is cut, so only a part of it shows;"))
        << revisado.salida.toStdString();
    EXPECT_TRUE(revisado.salida.contains("Zelda II.gif is no picture that the screen shows;"));
    const QStringList argumentos { u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) };
    const QJsonObject plan = Json(argumentos, companion::Hallazgos)[u"pairs"_s][0].toObject();
    EXPECT_EQ(plan[u"kept"_s].toInt(), 0);
    EXPECT_EQ(plan[u"captures"_s].toArray().size(), 1);
    EXPECT_TRUE(plan[u"captures"_s][0][u"replaces"_s].toBool());
    EXPECT_EQ(plan[u"no_pictures"_s][0][u"kind"_s].toString(), u"capture-no-picture"_s);
    // What shows in part is shown by the screen.
    const QJsonArray juegos = Json({ u"list"_s, u"Sis"_s, u"Uno"_s })[u"pairs"_s][0][u"games"_s].toArray();
    ASSERT_EQ(juegos.size(), 3);
    EXPECT_EQ(juegos[0][u"capture"_s].toString(), Ruta(u"img/mario.gif"_s));
    EXPECT_EQ(juegos[1][u"capture"_s].toString(), QString());
}

TEST_F(Captures, TheirDirectoryIsMadeWhereItIsNotThere)
{
    Pon(u"pics/Zelda.png"_s, imagen());
    Cambia(u"Zembro.emu"_s, "roms/\r\nIMG=" + Ruta(u"img/"_s).toUtf8(),
        "roms/\r\nIMG=" + Ruta(u"new/deep/"_s).toUtf8());
    const QStringList pedido { u"captures"_s, u"Sis"_s, u"Uno"_s, u"--from"_s, Ruta(u"pics"_s) };
    EXPECT_EQ(Zembro(pedido).estado, companion::Hallazgos);
    EXPECT_FALSE(QFile::exists(Ruta(u"new"_s)));
    EXPECT_EQ(Zembro(pedido + QStringList { u"--write"_s }).estado, companion::Bien);
    EXPECT_TRUE(QFile::exists(Ruta(u"new/deep/Zelda.GIF"_s)));
    // Where it can't be made, what to do is said.
    Pon(u"afile"_s, "x");
    Cambia(u"Zembro.emu"_s, "new/deep/", "afile/deep/");
    EXPECT_EQ(Zembro(pedido + QStringList { u"--write"_s }).estado, companion::Hallazgos);
}
