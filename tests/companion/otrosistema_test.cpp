// What zembro check and zembro command tell of programs for DOS and Windows, and of their drives.
#include "mesadepruebas.h"

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
