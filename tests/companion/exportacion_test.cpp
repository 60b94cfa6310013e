// zembro export.
#include "mesadepruebas.h"

#include "companion/documento.h"

#include "host/paths.h"

#include <QDir>
#include <QJsonArray>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace companion;

namespace {

class Export : public MesaConJuegos { };

} // namespace

TEST(Gamelist, GivesHostileNamesBackToItsReader)
{
    const QString nombre = u"./a & b <c> \"d\" 'e', ]]> \t\r\n日本 \u202e.nes"_s;
    const QString xml = Gamelist({ { u"S"_s, {}, { { nombre, u"<b>&amp;</b>"_s, u"/x\u2028y.gif"_s } } } });
    QXmlStreamReader lector(xml);
    QStringList textos;
    while (!lector.atEnd()) {
        if (lector.readNext() == QXmlStreamReader::Characters && !lector.isWhitespace())
            textos += lector.text().toString();
    }
    EXPECT_FALSE(lector.hasError()) << lector.errorString().toStdString();
    EXPECT_EQ(textos.join(QString()), nombre + u"<b>&amp;</b>"_s + u"/x\u2028y.gif"_s);
    EXPECT_EQ(xml.count(u'\n'), 8);
    EXPECT_FALSE(xml.contains(u'\u202e'));
}

TEST(Gamelist, LeavesOutWhatNoXmlCanHold)
{
    for (const QString &malo :
        { u"a\x1b"_s, QString(QChar(0xFFFF)), QString(QChar(0xD800)), QString(QChar(0xF780)), u""_s }) {
        EXPECT_FALSE(CabeEnXml(malo));
        EXPECT_FALSE(Gamelist({ { u"S"_s, {}, { { malo, u"T"_s, {} }, { u"f"_s, malo, {} } } } })
                         .contains(u"<game>"_s));
    }
}

TEST(Pegasus, IsAKeyALine)
{
    EXPECT_EQ(Pegasus({ { u"Sis"_s, { u"/z/zembro"_s, u"play"_s },
                            { { u"a.nes"_s, u"A: one"_s, u"/i/a.gif"_s }, { u"b"_s, u"B"_s, {} } } },
                  { u"Two"_s, { u"/z\"/zembro"_s }, {} } }),
        u"collection: Sis\nlaunch: \"/z/zembro\" \"play\" \"{file.name}\"\nfiles:\n  a.nes\n  b\n"
        "\ngame: A: one\nfile: a.nes\nassets.screenshot: /i/a.gif\n\ngame: B\nfile: b\n\ncollection: Two\n"_s);
}

TEST(Pegasus, LeavesOutWhatNoLineCanHold)
{
    for (const QString &malo :
        { u"a\nlaunch: rm"_s, u" a"_s, u"a "_s, u"a\x1b"_s, u"a\u0085b"_s, QString(QChar(0xF780)), u""_s }) {
        EXPECT_FALSE(CabeEnPegasus(malo));
        EXPECT_FALSE(
            Pegasus({ { u"S"_s, {}, { { malo, u"T"_s, {} }, { u"f"_s, malo, {} } } } }).contains(u"game:"_s));
        EXPECT_EQ(Pegasus({ { malo, {}, {} } }), QString());
    }
}

TEST_F(Export, ShowsTheGamesOfAnEmulator_ByNamesInItsDirectory)
{
    const Respuesta respuesta = Zembro({ u"export"_s, u"Sis"_s, u"Uno"_s });
    EXPECT_EQ(respuesta.estado, companion::Bien) << respuesta.error.toStdString();
    EXPECT_EQ(respuesta.salida,
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<gameList>\n"
        "  <game>\n    <path>./Mario.nes</path>\n    <name>Super Mario</name>\n    <image>"
            + Ruta(u"img/mario.gif"_s).toUtf8()
            + "</image>\n  </game>\n"
              "  <game>\n    <path>./Zelda II.nes</path>\n    <name>Zelda II.nes</name>\n  </game>\n"
              "  <game>\n    <path>./Zelda.nes</path>\n    <name>Zelda.nes</name>\n  </game>\n</gameList>\n");
}

TEST_F(Export, OfSeveralDirectoriesByPaths)
{
    const QString texto = Json({ u"export"_s, u"Sis"_s })[u"text"_s].toString();
    EXPECT_TRUE(texto.contains(u"<path>"_s + Ruta(u"roms/Mario.nes"_s) + u"</path>"_s))
        << texto.toStdString();
    EXPECT_TRUE(texto.contains(u"<path>"_s + Ruta(u"dirs/Sonic"_s) + u"</path>"_s));
    const QString pegasus = Json({ u"export"_s, u"Sis"_s, u"--pegasus"_s })[u"text"_s].toString();
    EXPECT_EQ(pegasus.count(u"collection: "_s), 2);
    EXPECT_TRUE(pegasus.contains(u"\nfile: "_s + Ruta(u"roms/Zelda II.nes"_s) + u'\n'));
    EXPECT_TRUE(pegasus.contains(u"\" \"play\" \"--directory\" \""_s)) << pegasus.toStdString();
    EXPECT_TRUE(pegasus.contains(u"\" \"--\" \"Sis\" \"Uno\" \"{file.name}\"\n"_s)) << pegasus.toStdString();
}

TEST_F(Export, TheCommandForPegasusPlaysAGameWhoseNameLooksAsAnOptionOrAPartOfAnother)
{
    Pon(u"roms/-json.nes"_s, "x");
    Pon(u"roms/AMario.nes"_s, "x");
    PonGuion(u"emu/uno.sh"_s, "printf '%s' \"$2\" >out\n");
    for (const QString &fichero : { u"-json.nes"_s, u"Mario.nes"_s }) {
        const QStringList orden { u"play"_s, u"--directory"_s, Ruta(QString()), u"--"_s, u"Sis"_s, u"Uno"_s,
            fichero };
        EXPECT_EQ(Zembro(orden).estado, 0) << fichero.toStdString();
        EXPECT_TRUE(Bytes(u"emu/out"_s).endsWith("/roms/" + fichero.toUtf8()))
            << Bytes(u"emu/out"_s).toStdString();
        host::changeDirectory(u"/"_s);
    }
}

TEST_F(Export, ADocumentElsewhereNamesPathsAsTheDiskSpellsThem)
{
    Cambia(u"Zembro.emu"_s, "roms/\r\n", "ROMS/\r\n");
    const auto camino = [&](const QString &fichero) {
        return Json(
            { u"export"_s, u"Sis"_s, u"Uno"_s, u"--to"_s, Ruta(fichero) }, companion::Hallazgos)[u"diff"_s]
            .toArray()[6]
            .toString();
    };
    EXPECT_EQ(camino(u"gamelist.xml"_s), u"+    <path>"_s + Ruta(u"roms/Mario.nes"_s) + u"</path>"_s);
    EXPECT_EQ(camino(u"roms/gamelist.xml"_s), u"+    <path>./Mario.nes</path>"_s);
}

TEST_F(Export, WritesNothingWithoutAFile)
{
    const Respuesta respuesta = Zembro({ u"export"_s, u"Sis"_s, u"--write"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_EQ(respuesta.error, "zembro: Of export, --write goes with --to alone.\n");
}

TEST_F(Export, WritesOverNothingButAListOfItsKind)
{
    QFile::link(Ruta(u"roms/Mario.nes"_s), Ruta(u"link.xml"_s));
    for (const QString &otro : { u"Zembro.rom"_s, u"roms/Mario.nes"_s, u"link.xml"_s, u"emu/uno.sh"_s }) {
        const QByteArray antes = Bytes(otro);
        for (const QString &clase : { u"--write"_s, u"--pegasus"_s }) {
            const Respuesta respuesta =
                Zembro({ u"export"_s, u"Sis"_s, u"--to"_s, Ruta(otro), u"--write"_s, clase });
            EXPECT_EQ(respuesta.estado, companion::NoPudo) << otro.toStdString();
            EXPECT_EQ(respuesta.error,
                "zembro: " + Ruta(otro).toUtf8()
                    + " is there and no list of games of this kind; name another file.\n");
        }
        EXPECT_EQ(Bytes(otro), antes);
    }
    const QString lista = Ruta(u"list"_s);
    Pon(u"list"_s, "");
    const QStringList orden { u"export"_s, u"Sis"_s, u"--to"_s, lista, u"--write"_s };
    EXPECT_EQ(Zembro(orden).estado, companion::Bien);
    EXPECT_EQ(Zembro(orden).estado, companion::Bien);
    EXPECT_EQ(Zembro(orden + QStringList { u"--pegasus"_s }).estado, companion::NoPudo);
}

TEST_F(Export, WritesAFileOnlyWithWrite)
{
    const QString fichero = Ruta(u"roms/gamelist.xml"_s);
    const Respuesta vista = Zembro({ u"export"_s, u"Sis"_s, u"Uno"_s, u"--to"_s, fichero });
    EXPECT_EQ(vista.estado, companion::Hallazgos);
    EXPECT_TRUE(vista.salida.contains("\n+<gameList>\n"));
    EXPECT_FALSE(QFile::exists(fichero));
    Pon(u"roms/Pequeño.nes"_s, "x");
    EXPECT_TRUE(
        Json({ u"export"_s, u"Sis"_s, u"Uno"_s, u"--to"_s, fichero, u"--write"_s })[u"written"_s].toBool());
    EXPECT_TRUE(Bytes(u"roms/gamelist.xml"_s).contains("<path>./Pequeño.nes</path>"));
    EXPECT_FALSE(Json({ u"export"_s, u"Sis"_s, u"Uno"_s, u"--to"_s, fichero })[u"changed"_s].toBool());
    EXPECT_EQ(
        Zembro({ u"export"_s, u"Sis"_s, u"--to"_s, u"/gone/x"_s, u"--write"_s }).estado, companion::NoPudo);
}

TEST_F(Export, SaysWhatItLeavesOut)
{
    Pon(u"roms/a\x1b.nes"_s, "x");
    const Respuesta respuesta = Zembro({ u"export"_s, u"Sis"_s, u"Uno"_s });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_EQ(respuesta.error, "zembro: a\\x1B.nes: left out, as its name can't stand in such a file\n");
}

TEST_F(Export, CarriesNamesAsTheyAre_AndMakesThemSafeForATerminalAlone)
{
    const QString nombre = u"Abc\u202etxt.nes"_s;
    Pon(u"roms/"_s + nombre, "x");
    const QStringList argumentos { u"export"_s, u"Sis"_s, u"Uno"_s, u"--pegasus"_s };
    EXPECT_TRUE(Zembro(argumentos).salida.contains("\nfile: " + nombre.toUtf8() + '\n'))
        << Zembro(argumentos).salida.toStdString();
    QByteArray enTerminal;
    companion::Zembro(argumentos,
        { [&](const QByteArray &bytes) { enTerminal += bytes; }, [](const QByteArray &) {}, {},
            [] { return true; } });
    EXPECT_FALSE(enTerminal.contains(nombre.toUtf8()));
    EXPECT_TRUE(enTerminal.contains("\nfile: Abc\\u{202E}txt.nes\n")) << enTerminal.toStdString();
    EXPECT_EQ(enTerminal.count('\n'), Zembro(argumentos).salida.count('\n'));
}
