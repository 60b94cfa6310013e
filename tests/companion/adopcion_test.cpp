// zembro adopt.
#include "mesadepruebas.h"

#include "host/process.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

// An old directory beside one's own: a system that both have, with an emulator of one's own and one of its
// own, and a system of its own.
class Adopt : public MesaConJuegos {
protected:
    Adopt()
        : m_camino(qgetenv("PATH"))
    {
        PonDirectorio(u"bin"_s);
        qputenv("PATH", Ruta(u"bin"_s).toUtf8());
        qputenv("WINEPREFIX", Ruta(u"wine"_s).toUtf8());
        host::rememberEnvironment();
        Pon(u"old/Zembro.emu"_s,
            "-Sis\r\nWEB1=\r\n*.NES\r\n'\r\n+Uno\r\nWEB2=\r\nEXE=C:\\OTHER.EXE\r\nXDI=0\r\nROM=C:"
            "\\ROMS\\\r\nIMG=\r\nPAR1="
            "\r\nPAR2=\r\n'\r\n+Viejo\r\nWEB2=http://"
            "viejo\r\nEXE=C:\\EMUS\\VIEJO.EXE\r\nXDI=3\r\nROM=C:\\ROMS\\\r\nIMG="
            "IMG\\Old\\\r\nPAR1=-Old\r\nPAR2=/x\r\n'------\r\n-Otro\r\nWEB1=http://"
            "otro\r\n*.SMC\r\n*.ZIP\r\n'\r\n+Lejos\r\n"
            "WEB2=\r\nEXE=E:\\L.EXE\r\nXDI=0\r\nROM=\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n'------\r\n[EOF]\r\n");
        Pon(u"old/Zembro.rom"_s,
            "Sis\r\nMARIO.NES,\"Another Mario\"\r\nOLD.NES,\"An old "
            "one\"\r\n'\r\nOtro\r\nNEW.SMC,\"Ni\xF1o\"\r\n'\r\n"
            "[EOF]\r\n\r\nParametros "
            "especificos\r\nMARIO.NES,Sis,Viejo,-no\r\nOLD.NES,Sis,Viejo,-yes\r\n'\r\n,\r\n,\"\"\r\n");
        Pon(u"old/Zembro.uni"_s, "C=disk\r\n");
        Pon(u"old/disk/EMUS/Viejo.exe"_s, "MZ" + QByteArray(100, '\0'));
        Pon(u"old/disk/ROMS/A.ZIP"_s, "zip");
        Pon(u"old/IMG/OLD/a.gif"_s, "GIF89a old");
        Pon(u"old/IMG/OLD/b.PCX"_s, "pcx");
        Pon(u"old/IMG/OLD/readme.txt"_s, "text");
    }
    ~Adopt() override
    {
        qputenv("PATH", m_camino);
        qunsetenv("WINEPREFIX");
        host::rememberEnvironment();
    }

    QJsonObject Adopta(const QStringList &opciones, int estado) const
    {
        return Json(QStringList { u"adopt"_s, Ruta(u"old"_s) } + opciones, estado);
    }
    static QStringList Estados(const QJsonObject &respuesta)
    {
        QStringList estados;
        for (const QJsonValue &uno : respuesta[u"pairs"_s].toArray())
            estados += uno[u"emulator"_s].toString() + u' ' + uno[u"state"_s].toString();
        return estados;
    }

private:
    QByteArray m_camino;
};

} // namespace

TEST_F(Adopt, ShowsWhatWorksAndWhatIsMissing_AndWritesNothing)
{
    const QByteArray emu = Bytes(u"Zembro.emu"_s);
    const QByteArray rom = Bytes(u"Zembro.rom"_s);
    const QJsonObject respuesta = Adopta({}, companion::Hallazgos);
    EXPECT_EQ(Estados(respuesta), QStringList({ u"Uno kept"_s, u"Viejo no-tool"_s, u"Lejos no-drive"_s }));
    EXPECT_EQ(respuesta[u"emulators"_s], 2);
    EXPECT_EQ(respuesta[u"descriptions"_s], 2);
    EXPECT_EQ(respuesta[u"parameters"_s], 1);
    EXPECT_EQ(respuesta[u"captures"_s], 2);
    EXPECT_EQ(respuesta[u"drives"_s], 1);
    EXPECT_EQ(respuesta[u"written"_s], false);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), emu);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), rom);
    EXPECT_FALSE(QFile::exists(Ruta(u"Zembro.uni"_s)));
    EXPECT_FALSE(QFile::exists(Ruta(u"img/OLD"_s)));
    const QByteArray dicho = Zembro({ u"adopt"_s, Ruta(u"old"_s) }).salida;
    EXPECT_TRUE(
        dicho.contains("\nOtro / Lejos: There is no drive E for E:\\L.EXE: name its place in Zembro.uni.\n"))
        << dicho.toStdString();
    EXPECT_TRUE(dicho.endsWith("With --write it takes over: emulators: 2, descriptions: 2, parameters: 1, "
                               "captures: 2, drives: 1.\n"));
}

TEST_F(Adopt, WritesAllOfItBehindWhatIsThere)
{
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    const QJsonObject respuesta = Adopta({ u"--write"_s }, companion::Bien);
    EXPECT_EQ(respuesta[u"written"_s], true);
    QByteArray esperado = antes;
    esperado.replace("'------\r\n[EOF]",
        "'\r\n+Viejo\r\nWEB2=http://viejo\r\nEXE=C:\\EMUS\\VIEJO.EXE\r\nXDI=3\r\nROM=C:\\ROMS\\\r\nIMG=IMG/"
        "OLD/\r\nPAR1="
        "-Old\r\nPAR2=/x\r\n'------\r\n-Otro\r\nWEB1=http://"
        "otro\r\n*.SMC\r\n*.ZIP\r\n'\r\n+Lejos\r\nWEB2=\r\nEXE=E:\\L.EXE\r\n"
        "XDI=0\r\nROM=\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n'"
            + QByteArray(70, '-') + "\r\n[EOF]");
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), esperado);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s),
        "Sis\r\nOLD.NES,\"An old one\"\r\nMARIO.NES,\"Super "
        "Mario\"\r\n'\r\n'------\r\nOtro\r\nNEW.SMC,\"Ni\xF1o\"\r\n'\r\n"
        "[EOF]\r\n\r\nParametros especificos\r\nOLD.NES,Sis,Viejo,-yes\r\nMARIO.NES,Sis,Uno,-fast\r\n'\r\n");
    EXPECT_EQ(Bytes(u"Zembro.uni"_s), "C=" + Ruta(u"old/disk"_s).toUtf8() + "\r\n");
    // Below the directory of captures that is there, whatever its case.
    EXPECT_EQ(Bytes(u"img/OLD/a.gif"_s), "GIF89a old");
    EXPECT_EQ(Bytes(u"img/OLD/b.PCX"_s), "pcx");
    EXPECT_FALSE(QFile::exists(Ruta(u"img/OLD/readme.txt"_s)));
}

TEST_F(Adopt, ASystemWithoutNotesGetsItsBlock)
{
    Pon(u"old/Zembro.rom"_s, "[EOF]\r\n");
    Adopta({ u"--write"_s }, companion::Bien);
    EXPECT_TRUE(Bytes(u"Zembro.rom"_s).contains("\r\nOtro\r\n'\r\n[EOF]"))
        << Bytes(u"Zembro.rom"_s).toStdString();
}

TEST_F(Adopt, ASecondTimeNothingIsLeftToDo)
{
    Adopta({ u"--write"_s }, companion::Bien);
    const QByteArray emu = Bytes(u"Zembro.emu"_s);
    const QByteArray rom = Bytes(u"Zembro.rom"_s);
    const QJsonObject respuesta = Adopta({}, companion::Bien);
    EXPECT_EQ(Estados(respuesta), QStringList({ u"Uno kept"_s, u"Viejo kept"_s, u"Lejos kept"_s }));
    EXPECT_EQ(respuesta[u"changes"_s].toArray(), QJsonArray());
    Adopta({ u"--write"_s }, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), emu);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), rom);
}

TEST_F(Adopt, OnesOwnDrivesAndCapturesStay)
{
    Pon(u"Zembro.uni"_s, "E=" + Ruta(u"emu"_s).toUtf8());
    Pon(u"emu/l.exe"_s, "MZ" + QByteArray(100, '\0'));
    Pon(u"bin/dosbox"_s, "#!/bin/sh\n");
    QFile::setPermissions(Ruta(u"bin/dosbox"_s), QFile::ReadOwner | QFile::ExeOwner);
    Pon(u"img/Old/A.GIF"_s, "my own");
    const QJsonObject respuesta = Adopta({ u"--write"_s }, companion::Bien);
    EXPECT_EQ(Estados(respuesta), QStringList({ u"Uno kept"_s, u"Viejo works"_s, u"Lejos no-games"_s }));
    EXPECT_EQ(respuesta[u"captures"_s], 1);
    EXPECT_EQ(Bytes(u"img/Old/A.GIF"_s), "my own");
    EXPECT_EQ(Bytes(u"Zembro.uni"_s),
        "E=" + Ruta(u"emu"_s).toUtf8() + "\r\nC=" + Ruta(u"old/disk"_s).toUtf8() + "\r\n");
}

TEST_F(Adopt, ADriveWhosePlaceEndsInABlankIsTakenOverWhole)
{
    PonDirectorio(u"old/disk "_s);
    Pon(u"old/Zembro.uni"_s, "C=disk /\r\n");
    Adopta({ u"--write"_s }, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.uni"_s), "C=" + Ruta(u"old/disk"_s).toUtf8() + " /\r\n");
}

TEST_F(Adopt, DrivesOfWineStayInUseWhereTheFileIsNew)
{
    PonDirectorio(u"wine/dosdevices"_s);
    ASSERT_TRUE(QFile::link(Ruta(u"emu"_s), Ruta(u"wine/dosdevices/e:"_s)));
    Adopta({ u"--write"_s }, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.uni"_s),
        "E=" + Ruta(u"emu"_s).toUtf8() + "\r\nC=" + Ruta(u"old/disk"_s).toUtf8() + "\r\n");
}

TEST_F(Adopt, WhatIsNoOtherProgramDirectoryIsRefused)
{
    for (const QString &ruta : { Ruta(u"roms"_s), Ruta(u"none"_s), Ruta(QString()), QString() })
        EXPECT_EQ(Zembro({ u"adopt"_s, ruta }).estado, companion::NoPudo) << ruta.toStdString();
}

TEST_F(Adopt, WhatWouldListNoGamesIsToldSo)
{
    Pon(u"bin/dosbox"_s, "#!/bin/sh\n");
    QFile::setPermissions(Ruta(u"bin/dosbox"_s), QFile::ReadOwner | QFile::ExeOwner);
    QFile::remove(Ruta(u"old/disk/ROMS/A.ZIP"_s));
    EXPECT_EQ(Estados(Adopta({}, companion::Hallazgos)).value(1), u"Viejo no-games"_s) << "it is empty";
    QDir().rmdir(Ruta(u"old/disk/ROMS"_s));
    EXPECT_EQ(Estados(Adopta({}, companion::Hallazgos)).value(1), u"Viejo no-games"_s);
    EXPECT_TRUE(Zembro({ u"adopt"_s, Ruta(u"old"_s) })
                    .salida.contains("\nSis / Viejo: It starts, but no games can be listed: "));
}

TEST_F(Adopt, OldLinesThatNameNoDriveAreTold)
{
    Pon(u"old/Zembro.uni"_s, "C=disk\r\n' a note\r\nthe CD\r\nc=other\r\nD=E:\\X\r\n");
    const QByteArray fichero = Ruta(u"old/Zembro.uni"_s).toUtf8();
    const QByteArray dicho = Zembro({ u"adopt"_s, Ruta(u"old"_s) }).salida;
    EXPECT_TRUE(dicho.contains('\n' + fichero + ":3: This line names no drive")) << dicho.toStdString();
    EXPECT_TRUE(dicho.contains('\n' + fichero + ":4: The drive C has its place from an earlier line, 1"));
    EXPECT_TRUE(dicho.contains('\n' + fichero + ":5: This line names no drive"));
    EXPECT_EQ(Adopta({}, companion::Hallazgos)[u"drive_lines"_s].toArray().size(), 3);
}

TEST_F(Adopt, ADriveThatLeadsElsewhereHereIsTold_AndStays)
{
    Pon(u"Zembro.uni"_s, "C=emu\r\n");
    const QByteArray dicho = Zembro({ u"adopt"_s, Ruta(u"old"_s), u"--write"_s }).salida;
    EXPECT_TRUE(dicho.contains("The drive C leads to " + Ruta(u"emu"_s).toUtf8() + " here and led to "
        + Ruta(u"old/disk"_s).toUtf8() + " there."))
        << dicho.toStdString();
    EXPECT_EQ(Bytes(u"Zembro.uni"_s), "C=emu\r\n");
    EXPECT_EQ(Adopta({}, companion::Bien)[u"drives_that_differ"_s].toArray().size(), 1);
    Pon(u"Zembro.uni"_s, "C=./old/../old/disk/\r\n");
    EXPECT_EQ(Adopta({}, companion::Bien)[u"drives_that_differ"_s].toArray().size(), 0) << "the same place";
}

TEST_F(Adopt, PathsThatLeadUpAndGamesBelowTheOldDirectoryAreFoundFromHere)
{
    Pon(u"bin/dosbox"_s, "#!/bin/sh\n");
    QFile::setPermissions(Ruta(u"bin/dosbox"_s), QFile::ReadOwner | QFile::ExeOwner);
    QByteArray catalogo = Bytes(u"old/Zembro.emu"_s);
    catalogo.replace("EXE=C:\\EMUS\\VIEJO.EXE", "EXE=..\\EMU\\VIEJO.EXE")
        .replace("XDI=3\r\nROM=C:\\ROMS\\", "XDI=3\r\nROM=Games\\Zips\\");
    Pon(u"old/Zembro.emu"_s, catalogo);
    Pon(u"old/GAMES/ZIPS/A.ZIP"_s, "zip");
    Pon(u"emu/viejo.exe"_s, "MZ" + QByteArray(100, '\0'));
    EXPECT_EQ(Estados(Adopta({ u"--write"_s }, companion::Bien)).value(1), u"Viejo works"_s);
    EXPECT_TRUE(Bytes(u"Zembro.emu"_s).contains("EXE=" + Ruta(u"EMU/VIEJO.EXE"_s).toUtf8() + "\r\n"))
        << Bytes(u"Zembro.emu"_s).toStdString();
    EXPECT_TRUE(Bytes(u"Zembro.emu"_s).contains("ROM=" + Ruta(u"old/Games/Zips/"_s).toUtf8() + "\r\n"));
}

TEST_F(Adopt, AProgramThatNobodyCanRunIsToldSo)
{
    Pon(u"old/disk/EMUS/Viejo.exe"_s, "no program");
    EXPECT_EQ(Estados(Adopta({}, companion::Hallazgos)).value(1), u"Viejo refused"_s);
}
