// What zembro check and zembro command tell of programs for DOS and Windows, and of their drives.
#include "mesadepruebas.h"

#include "launch/apodado.h"

#include "host/process.h"

#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

const QByteArray ParaDOS = "MZ" + QByteArray(100, '\0');
const QByteArray ParaWindows = "MZ" + QByteArray(0x3a, '\0') + QByteArray("\x40\0\0\0PE\0\0", 8);

// An old catalogue, and no tool but those that a test puts there.
class OtroSistema : public MesaConJuegos {
protected:
    OtroSistema()
        : m_camino(qgetenv("PATH"))
    {
        PonDirectorio(u"bin"_s);
        qputenv("PATH", Ruta(u"bin"_s).toUtf8());
        qputenv("WINEPREFIX", Ruta(u"wine"_s).toUtf8());
        host::rememberEnvironment();
        const QByteArray uno = "EXE=" + Ruta(u"emu/uno.sh"_s).toUtf8();
        QByteArray catalogo = Bytes(u"Zembro.emu"_s);
        catalogo.replace(uno, "EXE=C:\\EMU\\UNO.EXE").replace("ROM=" + Ruta(u"roms/"_s).toUtf8(), "ROM=D:\\");
        Pon(u"Zembro.emu"_s, catalogo);
        Pon(u"emu/uno.exe"_s, ParaDOS);
        Pon(u"Zembro.uni"_s, "C=.\r\nD=roms\r\n");
        Pon(u"LNG/ZB-ENG.LNG"_s,
            "Zem_FaltaDOSBox...=\"Install DOSBox.\"\r\nZem_FaltaWine.....=\"Install Wine.\"\r\n");
    }
    ~OtroSistema() override
    {
        qputenv("PATH", m_camino);
        qunsetenv("WINEPREFIX");
        host::rememberEnvironment();
    }

    void PonHerramienta(const QString &nombre) const
    {
        Pon(u"bin/"_s + nombre, "#!/bin/sh\n");
        QFile::setPermissions(
            Ruta(u"bin/"_s + nombre), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    // The findings of the pair whose kind is this one, as texts.
    QStringList Hallazgos(const QString &clase) const
    {
        QStringList textos;
        const QJsonObject respuesta = Json({ u"check"_s, u"Sis"_s, u"Uno"_s }, companion::Hallazgos);
        for (const QJsonValue &uno : respuesta[u"findings"_s].toArray()) {
            if (uno[u"kind"_s] == clase)
                textos += uno[u"text"_s].toString();
        }
        return textos;
    }

private:
    QByteArray m_camino;
};

} // namespace

TEST_F(OtroSistema, CommandTellsWhatRunsIt_OnWhichDrives)
{
    PonHerramienta(u"dosbox"_s);
    const QJsonObject orden = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s });
    EXPECT_EQ(orden[u"program_for"_s], u"dos"_s);
    EXPECT_EQ(orden[u"runner"_s], Ruta(u"bin/dosbox"_s));
    EXPECT_EQ(orden[u"text"_s], u"c:\\emu\\uno.exe -a d:\\mario.nes  -fast"_s);
    EXPECT_EQ(orden[u"dos_line"_s], u"C:\\EMU\\UNO.EXE -a D:\\MARIO.NES  -fast"_s);
    const QJsonArray unidades = orden[u"drives"_s].toArray();
    ASSERT_EQ(unidades.size(), 2);
    EXPECT_EQ(unidades[0][u"letter"_s], u"C"_s);
    EXPECT_EQ(unidades[0][u"place"_s], Ruta(QString()).chopped(1));
    EXPECT_EQ(unidades[1][u"letter"_s], u"D"_s);
    EXPECT_EQ(unidades[1][u"place"_s], Ruta(u"roms"_s));
    const QByteArray dicho = Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s }).salida;
    EXPECT_TRUE(
        dicho.contains("A program for DOS, which runs in " + Ruta(u"bin/dosbox"_s).toUtf8() + ".\n    C: "))
        << dicho.toStdString();
    EXPECT_TRUE(dicho.contains("\nDOS gets: C:\\EMU\\UNO.EXE -a D:\\MARIO.NES  -fast\n"));
    const QByteArray enConsola =
        Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s, u"--lines"_s }).salida;
    EXPECT_TRUE(enConsola.startsWith(Ruta(u"bin/dosbox"_s).toUtf8() + "\n-c\nmount C "))
        << enConsola.toStdString();
}

TEST_F(OtroSistema, CommandSaysWhatIsMissing)
{
    const QJsonObject orden = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s }, companion::Hallazgos);
    EXPECT_EQ(orden[u"problem"_s], u"Install DOSBox."_s);
    Pon(u"emu/uno.exe"_s, ParaWindows);
    EXPECT_EQ(Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s }, companion::Hallazgos)[u"problem"_s],
        u"Install Wine."_s);
}

TEST_F(OtroSistema, WindowsGetsThePathsOfWine)
{
    PonHerramienta(u"wine"_s);
    Pon(u"emu/uno.exe"_s, ParaWindows);
    const QJsonObject orden = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s });
    EXPECT_EQ(orden[u"program_for"_s], u"windows"_s);
    EXPECT_FALSE(orden.contains(u"dos_line"_s));
    const QByteArray lineas = Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s, u"--lines"_s }).salida;
    const QString enZ = u"Z:"_s + Ruta(u"roms/Mario.nes"_s).replace(u'/', u'\\');
    EXPECT_TRUE(lineas.endsWith("\n-a\n" + enZ.toUtf8() + "\n-fast\n")) << lineas.toStdString();
}

TEST_F(OtroSistema, CheckTellsTheSameOfEachPair)
{
    PonHerramienta(u"dosbox"_s);
    const QJsonObject respuesta = Json({ u"check"_s, u"Sis"_s, u"Uno"_s }, companion::Hallazgos);
    const QJsonValue pareja = respuesta[u"pairs"_s].toArray().at(0);
    EXPECT_EQ(pareja[u"program_for"_s], u"dos"_s);
    EXPECT_EQ(pareja[u"runner"_s], Ruta(u"bin/dosbox"_s));
    for (const QJsonValue &hallazgo : respuesta[u"findings"_s].toArray())
        EXPECT_NE(hallazgo[u"file"_s], u"Zembro.emu"_s) << hallazgo[u"text"_s].toString().toStdString();
    EXPECT_TRUE(
        Zembro({ u"check"_s, u"Sis"_s, u"Uno"_s }).salida.contains("\nA program for DOS, which runs in "));
}

TEST_F(OtroSistema, CheckNamesADriveThatIsMissing)
{
    PonHerramienta(u"dosbox"_s);
    Pon(u"Zembro.uni"_s, "C=.\r\n");
    EXPECT_EQ(Hallazgos(u"no-drive"_s),
        QStringList { u"There is no drive D for D:\\: name its place in Zembro.uni."_s });
    Pon(u"Zembro.uni"_s, "C=.\r\nD=/none/at all\r\n");
    EXPECT_EQ(Hallazgos(u"no-drive"_s), QStringList());
    EXPECT_EQ(Hallazgos(u"drive-missing"_s),
        QStringList { u"The drive D leads to /none/at all, which is not there."_s });
    EXPECT_TRUE(Zembro({ u"check"_s, u"Sis"_s, u"Uno"_s })
                    .salida.contains("\nZembro.uni:2: Sis / Uno: The drive D leads to "))
        << Zembro({ u"check"_s, u"Sis"_s, u"Uno"_s }).salida.toStdString();
}

TEST_F(OtroSistema, CheckNamesAMissingToolAndADriveOnce)
{
    EXPECT_EQ(Hallazgos(u"foreign-program"_s), QStringList { u"Install DOSBox."_s });
    Pon(u"Zembro.uni"_s, "D=roms\r\n");
    const QByteArray todo = Zembro({ u"check"_s, u"Sis"_s, u"Uno"_s }).salida;
    EXPECT_TRUE(todo.contains("Zembro.emu:6: Sis / Uno: There is no drive C for C:\\EMU"))
        << todo.toStdString();
    EXPECT_EQ(Hallazgos(u"no-drive"_s),
        QStringList { u"There is no drive C for C:\\EMU\\UNO.EXE: name its place in Zembro.uni."_s });
}

TEST_F(OtroSistema, CheckTellsAllTheDrivesOfAPair)
{
    PonHerramienta(u"dosbox"_s);
    const QJsonObject respuesta = Json({ u"check"_s, u"Sis"_s, u"Uno"_s }, companion::Hallazgos);
    const QJsonArray unidades = respuesta[u"pairs"_s][0][u"drives"_s].toArray();
    ASSERT_EQ(unidades.size(), 2);
    EXPECT_EQ(unidades[1][u"letter"_s], u"D"_s);
    EXPECT_EQ(unidades[1][u"place"_s], Ruta(u"roms"_s));
}

TEST_F(OtroSistema, CommandShowsTheDriveOfTheGamesWhereTheLineNamesThemAlone)
{
    PonHerramienta(u"dosbox"_s);
    Cambia(u"Zembro.emu"_s, "XDI=NO.0", "XDI=NO.1");
    PonDirectorio(u"roms/Sonic"_s);
    const QJsonArray unidades = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Sonic"_s })[u"drives"_s].toArray();
    ASSERT_EQ(unidades.size(), 2);
    EXPECT_EQ(unidades[1][u"letter"_s], u"D"_s);
    EXPECT_EQ(
        unidades, Json({ u"check"_s, u"Sis"_s, u"Uno"_s }, companion::Hallazgos)[u"pairs"_s][0][u"drives"_s]);
}

TEST_F(OtroSistema, CommandShowsAFileUnderAnotherName)
{
    PonHerramienta(u"dosbox"_s);
    Pon(u"roms/ni\u00F1o.nes"_s, "a game");
    const QString apodo = QString::fromLatin1(launch::ApodoEnDOS("ni\xC3\xB1o.nes"));
    const QStringList orden { u"command"_s, u"Sis"_s, u"Uno"_s, u"ni\u00F1o.nes"_s };
    const QByteArray dicho = Zembro(orden).salida;
    EXPECT_TRUE(
        dicho.contains(Ruta(u"roms/ni\u00F1o.nes"_s).toUtf8() + ", shown as " + apodo.toUtf8() + "\n"))
        << dicho.toStdString();
    EXPECT_TRUE(dicho.contains("/ZB-DOS-*/files-")) << dicho.toStdString();
    EXPECT_TRUE(dicho.contains("mount D ")) << "where it may look for others " << dicho.toStdString();
    EXPECT_TRUE(dicho.contains("c:\\emu\\uno.exe -a e:\\" + apodo.toLower().toUtf8())) << dicho.toStdString();
    const QJsonArray unidades = Json(orden)[u"drives"_s].toArray();
    EXPECT_EQ(unidades.last()[u"shows"_s], u"ni\u00F1o.nes"_s);
    EXPECT_EQ(unidades.last()[u"as"_s], apodo);
}

TEST_F(OtroSistema, WithoutAToolCommandShowsNoEmptyProgram)
{
    const Respuesta respuesta = Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s });
    EXPECT_FALSE(respuesta.salida.contains("''")) << respuesta.salida.toStdString();
    EXPECT_TRUE(respuesta.salida.contains("Install DOSBox.")) << respuesta.salida.toStdString();
    EXPECT_TRUE(respuesta.salida.contains("DOS gets: C:\\EMU")) << respuesta.salida.toStdString();
    for (const QString &opcion : { u"--lines"_s, u"--shell"_s }) {
        const Respuesta una = Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s, opcion });
        EXPECT_EQ(una.salida, "") << opcion.toStdString();
        EXPECT_TRUE(una.error.contains("Install DOSBox.")) << opcion.toStdString();
    }
}

TEST_F(OtroSistema, CommandShowsNothingLikeACommandWhereTheLineIsRefused)
{
    const QStringList orden { u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s };
    Pon(u"emu/\u00F1.exe"_s, ParaDOS);
    const auto seNiega = [&](const QByteArray &razon) {
        const QJsonObject json = Json(orden, companion::Hallazgos);
        for (const QString &clave : { u"dos_line"_s, u"text"_s, u"arguments"_s })
            EXPECT_FALSE(json.contains(clave)) << clave.toStdString();
        EXPECT_EQ(json[u"program_for"_s], u"dos"_s);
        const QByteArray dicho = Zembro(orden).salida;
        EXPECT_TRUE(dicho.startsWith("Doesn't start: " + razon + '\n')) << dicho.toStdString();
        EXPECT_FALSE(
            dicho.contains("DOS gets") || dicho.contains("mount") || dicho.toLower().contains(".exe"))
            << dicho.toStdString();
        for (const QString &opcion : { u"--lines"_s, u"--shell"_s }) {
            const Respuesta una = Zembro(orden + QStringList { opcion });
            EXPECT_EQ(una.estado, companion::Hallazgos);
            EXPECT_EQ(una.salida, "") << opcion.toStdString();
            EXPECT_TRUE(una.error.contains(razon)) << una.error.toStdString();
        }
    };
    const QByteArray bueno = Bytes(u"Zembro.emu"_s);
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=-a <b");
    seNiega("Install DOSBox.");
    PonHerramienta(u"dosbox"_s);
    Pon(u"LNG/ZB-ENG.LNG"_s,
        "Zem_SignoDOS......=\"No such sign.\"\r\nZem_NombreDOS.....=\"No such name.\"\r\n");
    seNiega("No such sign.");
    Pon(u"Zembro.emu"_s, bueno);
    Cambia(u"Zembro.emu"_s, "UNO.EXE", "\u00F1.exe");
    seNiega("No such name.");
}

TEST_F(OtroSistema, GamesOfADriveThatIsMissingAreToldByTheDrive)
{
    Pon(u"Zembro.uni"_s, "C=.\r\n");
    EXPECT_TRUE(Zembro({ u"list"_s, u"Sis"_s, u"Uno"_s })
                    .salida.contains("There is no drive D for D:\\: name its place in Zembro.uni."));
}

TEST_F(OtroSistema, CheckTellsADriveThatIsMissingOnce)
{
    PonHerramienta(u"dosbox"_s);
    for (const auto &[unidades, dicho] : { std::pair { "C=.\r\n", "There is no drive D" },
             { "D=roms\r\n", "There is no drive C" }, { "C=/nowhere\r\nD=roms\r\n", "The drive C leads to" },
             { "C=.\r\nD=/nowhere\r\n", "The drive D leads to" } }) {
        Pon(u"Zembro.uni"_s, unidades);
        EXPECT_EQ(Zembro({ u"check"_s, u"Sis"_s, u"Uno"_s }).salida.count(dicho), 1) << unidades;
    }
}

TEST_F(OtroSistema, CheckTellsTheLinesOfDrivesThatDontCount)
{
    Pon(u"Zembro.uni"_s,
        "C=.\r\n c: = other\r\nsome words\r\n\r\n' a note\r\nd = roms \r\nE=\r\nF=/nowhere\r\nG=C:\\x\r\n");
    EXPECT_EQ(Hallazgos(u"drive-twice"_s),
        QStringList { u"The drive C has its place from an earlier line, 1: this one doesn't count."_s });
    EXPECT_EQ(Hallazgos(u"no-drive-line"_s).size(), 3);
    EXPECT_EQ(Hallazgos(u"drive-missing"_s),
        QStringList { u"The drive F leads to /nowhere, which is not there."_s });
    EXPECT_TRUE(Zembro({ u"check"_s }).salida.contains("\nZembro.uni:3: This line names no drive"));
}

TEST_F(OtroSistema, CheckTellsAMissingWineOf32Bits)
{
    PonHerramienta(u"wine"_s);
    Pon(u"emu/uno.exe"_s, ParaWindows + QByteArray("\x4c\x01", 2));
    EXPECT_EQ(Hallazgos(u"no-wine32"_s), QStringList()) << "nobody can tell";
    PonDirectorio(u"lib/x86_64-linux-gnu/wine/x86_64-unix"_s);
    ASSERT_EQ(Hallazgos(u"no-wine32"_s).size(), 1);
    EXPECT_TRUE(Hallazgos(u"no-wine32"_s)[0].contains(u"apt install wine32"_s));
    EXPECT_TRUE(Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Mario"_s }).salida.contains("wine32"));
    Pon(u"emu/uno.exe"_s, ParaWindows + QByteArray("\x64\x86", 2));
    EXPECT_EQ(Hallazgos(u"no-wine32"_s), QStringList());
    Pon(u"emu/uno.exe"_s, ParaWindows + QByteArray("\x4c\x01", 2));
    PonDirectorio(u"lib/i386-linux-gnu/wine/i386-unix"_s);
    EXPECT_EQ(Hallazgos(u"no-wine32"_s), QStringList());
}

TEST_F(OtroSistema, ParametersUnderTheNamesOfDosAreAlive)
{
    PonHerramienta(u"dosbox"_s);
    Pon(u"roms/Other Game.nes"_s, "a game");
    Pon(u"roms/Abcdefghij.nes"_s, "a game");
    Cambia(u"Zembro.rom"_s, "MARIO.NES,Sis,Uno,-fast\r\n",
        "MARIO.NES,Sis,Uno,-fast\r\nOTHERG~1.NES,Sis,Uno,-a\r\nABCDEFGHIJ.NES,Sis,Uno,-b\r\n"
        "OTHERG~2.NES,Sis,Uno,-c\r\n");
    EXPECT_EQ(Hallazgos(u"parameters-without-file"_s).size(), 1);
    EXPECT_TRUE(Hallazgos(u"parameters-without-file"_s).value(0).contains(u"OTHERG~2"_s));
    ASSERT_EQ(Hallazgos(u"lost-parameters"_s).size(), 1);
    EXPECT_TRUE(Hallazgos(u"lost-parameters"_s)[0].contains(u"ABCDEFGHIJ.NES"_s));
    EXPECT_TRUE(Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s, u"Other Game.nes"_s })
                    .salida.contains("DOS gets: C:\\EMU\\UNO.EXE -a D:\\OTHERG~1.NES  -a\n"));
}

TEST_F(OtroSistema, CheckBringsBackWhatAGameSaved_AndTellsWhatCantBe)
{
    const QByteArray temporal = qgetenv("TMPDIR");
    PonDirectorio(u"temporal"_s);
    QFile::setPermissions(Ruta(u"temporal"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("TMPDIR", Ruta(u"temporal"_s).toUtf8());
    const QString corrida = u"temporal/ZB-DOS-99999999-1/"_s; // no process has such a number
    Pon(u"roms/ni\u00F1o.nes"_s, "a game");
    Pon(corrida + u"files-E/NINO.SAV"_s, "saved");
    PonDirectorio(corrida + u"shown-E"_s);
    ASSERT_TRUE(QFile::link(Ruta(u"gone/ni\u00F1o.nes"_s), Ruta(corrida + u"shown-E/NINO.NES"_s)));
    const QString queda = Ruta(u"gone"_s) + u'|' + Ruta(corrida + u"files-E"_s);
    Pon(u"LNG/ZB-ENG.LNG"_s, "Zem_NoVuelve1.....=\"%1|%2\"\r\n");
    EXPECT_EQ(Hallazgos(u"left-behind"_s), QStringList { queda });
    QFile::remove(Ruta(corrida + u"shown-E/NINO.NES"_s));
    ASSERT_TRUE(QFile::link(Ruta(u"roms/ni\u00F1o.nes"_s), Ruta(corrida + u"shown-E/NINO.NES"_s)));
    EXPECT_TRUE(Zembro({ u"check"_s })
                    .salida.startsWith("What a game had saved is back in its place: "
                        + Ruta(u"roms/ni\u00F1o.nes - .SAV"_s).toUtf8() + "\n"));
    EXPECT_EQ(Bytes(u"roms/ni\u00F1o.nes - .SAV"_s), "saved");
    EXPECT_FALSE(QFile::exists(Ruta(corrida)));
    temporal.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporal);
}
