// zembro command: what a launch would do.
#include "mesadepruebas.h"

#include "tests/launch/zipdeprueba.h"

#include "launch/temporal.h"

#include "host/paths.h"

#include <QDir>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

class Command : public MesaConJuegos {
protected:
    Command()
    {
        qputenv("TMPDIR", Ruta(u"tmp"_s).toUtf8());
        PonDirectorio(u"tmp"_s);
        QFile::setPermissions(Ruta(u"tmp"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    ~Command() override
    {
        qunsetenv("TMPDIR");
        host::changeDirectory(u"/"_s);
    }

    QStringList argumentos(const QJsonObject &respuesta) const
    {
        QStringList todos;
        for (const QJsonValue &uno : respuesta[u"arguments"_s].toArray())
            todos += uno.toString();
        return todos;
    }
};

} // namespace

TEST_F(Command, TellsTheArgumentsTheDirectoryAndTheTextOfTheDebugMode)
{
    const QJsonObject mario = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Super Mario"_s });
    EXPECT_EQ(argumentos(mario),
        QStringList({ Ruta(u"emu/uno.sh"_s), u"-a"_s, Ruta(u"roms/Mario.nes"_s), u"-fast"_s }));
    EXPECT_EQ(mario[u"directory"_s].toString(), Ruta(u"emu"_s));
    EXPECT_TRUE(mario[u"text"_s].toString().contains(u"/roms/mario.nes"_s))
        << mario[u"text"_s].toString().toStdString();
    EXPECT_EQ(mario[u"starts"_s].toBool(), true);
    EXPECT_EQ(mario[u"debug"_s].toBool(), false);
    EXPECT_FALSE(mario.contains(u"unpacks"_s));
}

TEST_F(Command, TellsThemOneALineOrQuotedForAShell)
{
    EXPECT_EQ(Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"zelda ii"_s, u"--lines"_s }).salida,
        Ruta(u"emu/uno.sh"_s).toUtf8() + "\n-a\n" + Ruta(u"roms/Zelda II.nes"_s).toUtf8() + '\n');
    EXPECT_EQ(Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"zelda ii"_s, u"--shell"_s }).salida,
        Ruta(u"emu/uno.sh"_s).toUtf8() + " -a '" + Ruta(u"roms/Zelda II.nes"_s).toUtf8() + "'\n");
    const QByteArray todo = Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"zelda ii"_s }).salida;
    EXPECT_TRUE(todo.startsWith("Command: " + Ruta(u"emu/uno.sh"_s).toUtf8()));
    EXPECT_TRUE(todo.contains("\nIn the directory: " + Ruta(u"emu"_s).toUtf8() + '\n'));
}

TEST_F(Command, AGameIsFoundByItsFileToo)
{
    EXPECT_EQ(
        Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"mario.nes"_s })[u"entry"_s].toString(), u"Super Mario"_s);
}

TEST_F(Command, SeveralGamesThatFitAreListed)
{
    const Respuesta respuesta = Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"zelda"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_EQ(respuesta.error, "zembro: Several fit zelda:\n    Zelda II.nes\n    Zelda.nes\n");
}

TEST_F(Command, AnExecutableThatIsNotThereIsSaid)
{
    Borra(u"emu/uno.sh"_s);
    const QJsonObject mario = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s }, companion::Hallazgos);
    EXPECT_EQ(mario[u"starts"_s].toBool(), false);
    EXPECT_EQ(mario[u"problem"_s].toString(),
        u"There is no program "_s + Ruta(u"emu/uno.sh"_s) + u"; correct its path in the configuration."_s);
    EXPECT_FALSE(mario.contains(u"similar"_s));
    EXPECT_FALSE(mario.contains(u"arguments"_s));
}

TEST_F(Command, AnExecutableThatIsMistypedIsSaidWithTheOneThatMayBeMeant)
{
    QFile::rename(Ruta(u"emu/uno.sh"_s), Ruta(u"emu/unos.sh"_s));
    const QStringList orden { u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s };
    EXPECT_EQ(Json(orden, companion::Hallazgos)[u"similar"_s].toString(), Ruta(u"emu/unos.sh"_s));
    const Respuesta respuesta = Zembro(orden);
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_EQ(respuesta.salida,
        "Doesn't start: There is no program " + Ruta(u"emu/uno.sh"_s).toUtf8()
            + "; correct its path in the configuration.\nPerhaps this one is meant: "
            + Ruta(u"emu/unos.sh"_s).toUtf8() + '\n');
    // Nothing that a script would take for a command.
    for (const QString &opcion : { u"--lines"_s, u"--shell"_s }) {
        const Respuesta lineas = Zembro(orden + QStringList { opcion });
        EXPECT_EQ(lineas.estado, companion::Hallazgos);
        EXPECT_EQ(lineas.salida, "");
        EXPECT_TRUE(lineas.error.startsWith("zembro: Doesn't start: There is no program ")
            && lineas.error.contains(Ruta(u"emu/unos.sh"_s).toUtf8()))
            << lineas.error.toStdString();
    }
    // In other case it is found.
    QFile::rename(Ruta(u"emu/unos.sh"_s), Ruta(u"emu/UNO.SH"_s));
    EXPECT_EQ(argumentos(Json(orden)).value(0), Ruta(u"emu/UNO.SH"_s));
}

TEST_F(Command, OfAnExecutableWithoutAPathIsSaidSo)
{
    Cambia(u"Zembro.emu"_s, "EXE=" + Ruta(u"emu/uno.sh"_s).toUtf8() + "\r\nXDI=NO.0", "EXE=\r\nXDI=NO.0");
    EXPECT_EQ(Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s }).salida,
        "Doesn't start: The path of the program is empty; name the program in the configuration.\n");
}

TEST_F(Command, AnExecutableWithoutTheRightToRunIsSaid)
{
    Pon(u"emu/uno.sh"_s, "no program");
    QFile::setPermissions(Ruta(u"emu/uno.sh"_s), QFile::ReadOwner);
    const QJsonObject mario = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s }, companion::Hallazgos);
    EXPECT_TRUE(mario[u"problem"_s].toString().contains(u"lacks the right"_s));
}

TEST_F(Command, AZipIsToldWithWhatIsInIt_AndStaysPacked)
{
    Pon(u"roms/pack.zip"_s, Zip({ { "Read Me.txt" }, { "Castle.NES", "the castle" } }));
    Cambia(u"Zembro.emu"_s, "*.NES", "*.ZIP\r\n*.NES");
    const QJsonObject pack = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"pack"_s });
    const QString carpeta = launch::RutaZBTMP();
    EXPECT_EQ(argumentos(pack).value(2), carpeta + u"/Castle.NES"_s);
    const QJsonObject zip = pack[u"unpacks"_s].toObject();
    EXPECT_EQ(zip[u"archive"_s].toString(), Ruta(u"roms/pack.zip"_s));
    EXPECT_EQ(zip[u"into"_s].toString(), carpeta);
    EXPECT_EQ(zip[u"files"_s].toArray(), QJsonArray({ u"Read Me.txt"_s, u"Castle.NES"_s }));
    EXPECT_EQ(zip[u"removed"_s].toString(), u"directory"_s);
    EXPECT_EQ(QDir(Ruta(u"tmp"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(Command, WhatAZipHoldsInSubdirectoriesIsUnpackedToo_AndStays)
{
    Pon(u"roms/pack.zip"_s, Zip({ { "Castle.NES" }, { "sub/dir/in.a26" }, { "empty/" } }));
    Cambia(u"Zembro.emu"_s, "*.NES", "*.ZIP\r\n*.NES");
    const QStringList pedido { u"command"_s, u"Sis"_s, u"Uno"_s, u"pack"_s };
    const QJsonObject zip = Json(pedido)[u"unpacks"_s].toObject();
    EXPECT_EQ(zip[u"files"_s].toArray(), QJsonArray({ u"Castle.NES"_s, u"sub/dir/in.a26"_s }));
    EXPECT_EQ(zip[u"removed"_s].toString(), u"files"_s);
    EXPECT_EQ(zip[u"stays"_s].toArray(), QJsonArray({ u"sub"_s, u"empty"_s }));
    const QString carpeta = launch::RutaZBTMP();
    const QByteArray dicho = Zembro(pedido).salida;
    EXPECT_TRUE(dicho.contains("\n    sub/dir/in.a26\nAfterwards the unpacked files are removed.\n"
                               "Stays there afterwards: "
        + carpeta.toUtf8() + "/sub/\n"))
        << dicho.toStdString();
    EXPECT_EQ(zip[u"replaced"_s].toArray(), QJsonArray());
    EXPECT_FALSE(QFileInfo::exists(carpeta));

    // As the launch itself leaves it, and the next one finds it.
    EXPECT_EQ(Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"pack"_s }).estado, companion::Bien);
    EXPECT_EQ(QDir(carpeta).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList({ u"empty"_s, u"sub"_s }));
    EXPECT_TRUE(QFileInfo::exists(carpeta + u"/sub/dir/in.a26"_s));
    EXPECT_EQ(Json(pedido)[u"unpacks"_s][u"replaced"_s].toArray(), QJsonArray({ u"sub/dir/in.a26"_s }));
    Pon(u"roms/pack.zip"_s, Zip({ { "Castle.NES" } }));
    EXPECT_EQ(Json(pedido)[u"unpacks"_s][u"removed"_s].toString(), u"files"_s);
    QDir(carpeta).removeRecursively();
    EXPECT_EQ(Json(pedido)[u"unpacks"_s][u"removed"_s].toString(), u"directory"_s);
}

TEST_F(Command, AZipWithoutAGameIsSaidInTheWordsOfTheScreen)
{
    Pon(u"roms/pack.zip"_s, Zip({ { "Read Me.txt" } }));
    Cambia(u"Zembro.emu"_s, "*.NES", "*.ZIP\r\n*.NES");
    Pon(u"LNG/ZB-ENG.LNG"_s, "Msg_ZipSinRoms1...=\"No ROM in there.\"\r\n");
    const QJsonObject pack = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"pack"_s }, companion::Hallazgos);
    EXPECT_EQ(pack[u"problem"_s].toString(), u"No ROM in there."_s);
    EXPECT_FALSE(pack.contains(u"arguments"_s));
}

TEST_F(Command, AGameThatIsUnpackedBesideItsEmulatorTellsWhatIsThereAlready)
{
    Cambia(u"Zembro.emu"_s, "NO.0", "NO.2");
    Pon(u"roms/pack.zip"_s, Zip({ { "one.bin" }, { "two.bin" } }));
    const QJsonObject nuevo = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"pack"_s })[u"unpacks"_s].toObject();
    EXPECT_EQ(nuevo[u"into"_s].toString(), Ruta(u"emu/pack"_s));
    EXPECT_EQ(nuevo[u"removed"_s].toString(), u"directory"_s);
    EXPECT_FALSE(QFileInfo::exists(Ruta(u"emu/pack"_s)));
    Pon(u"emu/pack/two.bin"_s, "mine");
    const QJsonObject viejo = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"pack"_s })[u"unpacks"_s].toObject();
    EXPECT_EQ(viejo[u"replaced"_s].toArray(), QJsonArray({ u"two.bin"_s }));
    EXPECT_EQ(viejo[u"removed"_s].toString(), u"files"_s);
    EXPECT_EQ(Bytes(u"emu/pack/two.bin"_s), "mine");
    EXPECT_FALSE(QFileInfo::exists(Ruta(u"emu/pack/one.bin"_s)));
}

TEST_F(Command, AnEmulatorThatIsStartedAloneNeedsNoGame)
{
    Cambia(u"Zembro.emu"_s, "NO.0", "NO.5");
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1= -a");
    EXPECT_EQ(argumentos(Json({ u"command"_s, u"Sis"_s, u"Uno"_s })), QStringList({ u"uno.sh"_s, u"-a"_s }));
    EXPECT_EQ(Zembro({ u"command"_s, u"Sis"_s, u"Dos"_s }).estado, companion::Bien); // one game alone
}
