// What zembro check finds of the pairs: programs, types, lists, captures.
#include "mesaderevision.h"

#include "companion/impedimento.h"

#include "tests/launch/zipdeprueba.h"

#include "host/process.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char SinNotas[] = "Sis\r\n'\r\n[EOF]\r\nParametros especificos\r\n'\r\n";

class CheckPair : public Check {
protected:
    void PonPrograma(const QByteArray &bytes) const
    {
        Pon(u"emu/uno.sh"_s, bytes);
        QFile::setPermissions(Ruta(u"emu/uno.sh"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

} // namespace

TEST_F(CheckPair, WhatAScriptLacksIsSaid)
{
    PonPrograma("#!/no/such/interpreter -x\n");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"no-interpreter"_s));
    EXPECT_TRUE(dicho().contains("Zembro.emu:6: Sis / Uno: " + Ruta(u"emu/uno.sh"_s).toUtf8()
        + " needs /no/such/interpreter, which isn't there"))
        << dicho().toStdString();
    // With the line ends of another system the interpreter's name is another one.
    PonPrograma("#!/bin/sh\r\nexit 0\r\n");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"no-interpreter"_s));
    EXPECT_TRUE(dicho().contains("needs /bin/sh\\x0D, which")) << dicho().toStdString();
    PonPrograma("#! /usr/bin/env no-such-program-anywhere\n");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"no-interpreter"_s));
    PonPrograma("#!/usr/bin/env sh\n");
    EXPECT_THAT(clases(SisUno), IsEmpty());
    PonPrograma("#!");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"no-interpreter"_s));
}

// A directory that goes from machine to machine starts its emulators so.
TEST_F(CheckPair, WhatAScriptStandsForHasToBeOnTheMachine)
{
    PonPrograma("#!/bin/sh\n# Stands for No Such: no-such-emulator org.nowhere.NoSuch\nexit 0\n");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"not-installed"_s));
    EXPECT_TRUE(dicho().contains(
        "Zembro.emu:6: Sis / Uno: No Such isn't on this machine. Install it from your system's store of "
        "programs, or in a terminal, by one of these: sudo apt install no-such-emulator, flatpak install "
        "flathub org.nowhere.NoSuch\n"))
        << dicho().toStdString();
    const QJsonObject dicha = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"mario"_s }, companion::Hallazgos);
    EXPECT_TRUE(dicha[u"problem"_s].toString().startsWith(u"No Such isn't on this machine"));
    // Under any of its names, but as a program.
    PonPrograma("#!/bin/sh\n# Stands for the shell: no-such-emulator sh\n");
    EXPECT_THAT(clases(SisUno), IsEmpty());
    // Only as a line of its own that is whole, with names.
    for (const char *otra : { "#!/bin/sh\necho # Stands for No Such: no-such\n",
             "#!/bin/sh\n# Stands for No Such: no-such", "#!/bin/sh\n# Stands for No Such:\n",
             "#!/bin/sh\n# Stands for No Such\n", "#!/bin/sh # Stands for No Such: no-such\n" }) {
        PonPrograma(otra);
        EXPECT_THAT(clases(SisUno), IsEmpty()) << otra;
    }
}

TEST_F(CheckPair, ADirectoryIsNoProgram)
{
    Cambia(u"Zembro.emu"_s, "emu/uno.sh\r\nXDI=NO.0", "emu\r\nXDI=NO.0");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"is-directory"_s));
}

TEST_F(CheckPair, APipeIsNoProgram)
{
    Borra(u"emu/uno.sh"_s);
    ASSERT_EQ(mkfifo(Ruta(u"emu/uno.sh"_s).toUtf8().constData(), 0700), 0);
    EXPECT_THAT(clases(SisUno), ElementsAre(u"is-no-file"_s));
    EXPECT_TRUE(
        Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"mario"_s }).error.contains("uno.sh is no file, but a pipe"))
        << Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"mario"_s }).error.toStdString();
    Cambia(u"Zembro.emu"_s, Ruta(u"emu/uno.sh"_s).toUtf8() + "\r\nXDI=NO.0", "/dev/null\r\nXDI=NO.0");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"is-no-file"_s));
}

TEST_F(CheckPair, AProgramThatIsCutIsSaid)
{
    QFile propio(QStringLiteral(ZEMBRO));
    ASSERT_TRUE(propio.open(QIODevice::ReadOnly));
    const QByteArray entero = propio.readAll();
    for (const qsizetype largo :
        { qsizetype(5), qsizetype(18), qsizetype(64), qsizetype(4096), entero.size() / 3 }) {
        PonPrograma(entero.first(largo));
        EXPECT_THAT(clases(SisUno), ElementsAre(u"cut-program"_s)) << largo;
    }
    EXPECT_TRUE(dicho().contains("uno.sh is cut or damaged; install it anew.\n")) << dicho().toStdString();
    PonPrograma(entero);
    EXPECT_THAT(clases(SisUno), IsEmpty());
}

TEST_F(CheckPair, ParametersThatJoinTheProgramsNameAreSaid)
{
    Cambia(u"Zembro.emu"_s, "XDI=NO.0", "XDI=NO.5");
    for (const auto &[par, seDice] : { std::pair(" -Full", false), { "", false }, { "-Full", true } }) {
        const QByteArray linea = QByteArray("PAR1=") + par;
        QByteArray catalogo = Bytes(u"Zembro.emu"_s);
        const qsizetype principio = catalogo.indexOf("PAR1=");
        catalogo.replace(principio, catalogo.indexOf("\r\n", principio) - principio, linea);
        Pon(u"Zembro.emu"_s, catalogo);
        EXPECT_EQ(clases(SisUno).contains(u"parameters-joined"_s), seDice) << par;
        EXPECT_EQ(dicho().contains("there is no program uno.sh-full; put a blank ahead"), seDice);
        EXPECT_EQ(
            Zembro({ u"command"_s, u"Sis"_s, u"Uno"_s }).salida.contains("put a blank ahead of"), seDice);
    }
}

TEST_F(CheckPair, ParametersInTheLineOfTheProgramAreSaid)
{
    const QByteArray exe = Ruta(u"emu/uno.sh"_s).toUtf8();
    for (const QByteArray &linea : { exe + " -full screen", '"' + exe + '"', '"' + exe + "\" -x" }) {
        Cambia(u"Zembro.emu"_s, "EXE=" + exe + "\r\nXDI=NO.0", "EXE=" + linea + "\r\nXDI=NO.0");
        EXPECT_THAT(clases(SisUno), ElementsAre(u"no-program"_s)) << linea.toStdString();
        EXPECT_TRUE(dicho().contains("EXE takes the path of a program alone, without quotes and without "
                                     "parameters, which have lines of their own (PAR1, PAR2). It should be: "
            + exe + '\n'))
            << dicho().toStdString();
        Cambia(u"Zembro.emu"_s, "EXE=" + linea + "\r\nXDI=NO.0", "EXE=" + exe + "\r\nXDI=NO.0");
    }
    PonGuion(u"emu/with blank"_s, "exit 0\n");
    Cambia(u"Zembro.emu"_s, "uno.sh\r\nXDI=NO.0", "with blank\r\nXDI=NO.0");
    EXPECT_THAT(clases(SisUno), IsEmpty());
}

TEST_F(CheckPair, QuotesThatParametersDontCloseAreSaid)
{
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=-a \"b c");
    Cambia(u"Zembro.rom"_s, "-fast", "-f \"ast");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"open-quotes"_s, u"open-quotes"_s));
    Cambia(u"Zembro.emu"_s, "PAR1=-a \"b c", "PAR1=-a \"b c\"");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"open-quotes"_s));
}

TEST_F(CheckPair, ALibraryThatIsMissingIsSaid_AlsoByCommand)
{
    // A program of ours whose library is called otherwise.
    QFile propio(QStringLiteral(ZEMBRO));
    ASSERT_TRUE(propio.open(QIODevice::ReadOnly));
    QByteArray bytes = propio.readAll();
    ASSERT_TRUE(bytes.contains("libQt6Core.so.6"));
    PonPrograma(bytes.replace("libQt6Core.so.6", "libQt6Gone.so.6"));
    EXPECT_THAT(clases(SisUno), ElementsAre(u"no-library"_s));
    EXPECT_TRUE(dicho().contains("needs the library libQt6Gone.so.6, which isn't there"))
        << dicho().toStdString();
    const QJsonObject dicha = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"mario"_s }, companion::Hallazgos);
    EXPECT_TRUE(dicha[u"problem"_s].toString().contains(u"libQt6Gone.so.6"));
    EXPECT_FALSE(dicha[u"starts"_s].toBool());
}

TEST_F(CheckPair, BeginningsOfProgramsOfAnyBytesAreLookedAt)
{
    QFile propio(QStringLiteral(ZEMBRO));
    ASSERT_TRUE(propio.open(QIODevice::ReadOnly));
    const QByteArray entero = propio.read(4096);
    for (const qsizetype largo : { 5, 20, 60, 64, 70, 100, 200, 1000 }) {
        PonPrograma(entero.first(largo));
        clases(SisUno);
    }
    // The table of parts, and the loader's name, beyond the end.
    for (const int donde : { 32, 39, 56, 57, 0x40 + 0x38 + 8, 0x40 + 0x38 + 15, 0x40 + 0x38 + 32 }) {
        QByteArray roto = entero;
        roto[donde] = '\xff';
        PonPrograma(roto);
        clases(SisUno);
    }
}

TEST_F(CheckPair, AnEmptyPathOfTheProgramIsSaidAsThat)
{
    Cambia(u"Zembro.emu"_s, "EXE=" + Ruta(u"emu/uno.sh"_s).toUtf8() + "\r\nXDI=NO.0", "EXE=\r\nXDI=NO.0");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"no-program"_s));
    const QByteArray vacia = "The path of the program is empty; name the program in the configuration.\n";
    EXPECT_TRUE(dicho().contains("Zembro.emu:6: Sis / Uno: " + vacia)) << dicho().toStdString();
    const Respuesta jugado = Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"mario"_s });
    EXPECT_EQ(jugado.estado, companion::NoPudo);
    EXPECT_TRUE(jugado.error.contains("Doesn't start: " + vacia)) << jugado.error.toStdString();
}

TEST_F(CheckPair, AProgramForAnotherProcessorIsSaid_WithWhich)
{
    QFile propio(QStringLiteral(ZEMBRO));
    ASSERT_TRUE(propio.open(QIODevice::ReadOnly));
    QByteArray bytes = propio.readAll();
    bytes[18] = '\x08';
    bytes[19] = '\x00';
    PonPrograma(bytes);
    EXPECT_THAT(clases(SisUno), ElementsAre(u"foreign-program"_s));
    const QByteArray texto = "The program " + Ruta(u"emu/uno.sh"_s).toUtf8() + " is for another processor: ";
    EXPECT_TRUE(
        dicho().contains("Zembro.emu:6: Sis / Uno: " + texto + "MIPS; install one for this machine.\n"))
        << dicho().toStdString();
    const QJsonObject dicha = Json({ u"command"_s, u"Sis"_s, u"Uno"_s, u"mario"_s }, companion::Hallazgos);
    EXPECT_EQ(dicha[u"problem"_s].toString().toUtf8(), texto + "MIPS; install one for this machine.");
    bytes[18] = '\x34';
    bytes[19] = '\x12';
    PonPrograma(bytes);
    EXPECT_TRUE(dicho().contains(texto + "ELF 4660; install one for this machine.\n"))
        << dicho().toStdString();
}

TEST_F(CheckPair, AMistypedProgramIsLookedForInThePathToo)
{
    PonGuion(u"bin/stellarium-emu"_s, "");
    const QByteArray antes = qgetenv("PATH");
    qputenv("PATH", Ruta(u"bin"_s).toUtf8());
    host::rememberEnvironment();
    const QByteArray entero = Bytes(u"Zembro.emu"_s);
    const auto dichoDe = [&](const QByteArray &programa) {
        Pon(u"Zembro.emu"_s,
            QByteArray(entero).replace(
                Ruta(u"emu/uno.sh"_s).toUtf8() + "\r\nXDI=NO.0", programa + "\r\nXDI=NO.0"));
        return Zembro(SisUno).salida;
    };
    const QByteArray suya = "Zembro.emu:6: Sis / Uno: Perhaps this one is meant: "
        + Ruta(u"bin/stellarium-emu"_s).toUtf8() + '\n';
    for (const QByteArray &programa :
        QByteArrayList { "/usr/games/stellarium-emu", "/gone/stelarium-emu", "/gone/Setllarium-emu" })
        EXPECT_TRUE(dichoDe(programa).contains(suya)) << programa.toStdString();
    for (const QByteArray &programa : QByteArrayList { "/gone/stellarium", "/gone/emu", "/gone/" })
        EXPECT_FALSE(dichoDe(programa).contains("Perhaps")) << programa.toStdString();
    qputenv("PATH", antes);
    host::rememberEnvironment();
}

TEST_F(CheckPair, ATypeThatCannotMeetWhatLiesThereIsSaid)
{
    Borra(u"img/mario.gif"_s);
    Pon(u"Zembro.rom"_s, SinNotas);
    Cambia(u"Zembro.emu"_s, "XDI=NO.0", "XDI=NO.1");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"type-and-content"_s));
    EXPECT_TRUE(dicho().contains(
        "Zembro.emu:7: Sis / Uno: The type takes each game in a directory of its own, but in "
        + Ruta(u"roms/"_s).toUtf8() + " there are only files: 4."))
        << dicho().toStdString();
    Cambia(u"Zembro.emu"_s, "XDI=NO.1\r\nROM=" + Ruta(u"roms/"_s).toUtf8(),
        "XDI=NO.0\r\nROM=" + Ruta(u"dirs/"_s).toUtf8());
    EXPECT_THAT(clases(SisUno), ElementsAre(u"type-and-content"_s));
    Cambia(u"Zembro.emu"_s, "XDI=NO.0\r\nROM=" + Ruta(u"dirs/"_s).toUtf8(),
        "XDI=NO.0\r\nROM=" + Ruta(u"roms/"_s).toUtf8());
    Cambia(u"Zembro.emu"_s, "*.NES\r\n", "");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"no-extension"_s, u"nothing-listed"_s));
}

TEST_F(CheckPair, CapturesAreNotSaidToFitNothing_WhereNothingIsListed)
{
    Cambia(u"Zembro.emu"_s, "*.NES\r\n", "");
    Borra(u"img/Sonic.gif"_s);
    QDir(Ruta(u"dirs/Sonic"_s)).removeRecursively();
    EXPECT_THAT(clases(), testing::Not(testing::Contains(u"capture-without-game"_s)));
}

TEST_F(CheckPair, ADirectoryThatTheProgramMadeReadyIsNoFinding)
{
    Borra(u"img/mario.gif"_s);
    Pon(u"Zembro.rom"_s, SinNotas);
    Pon(u"ready/LEEME.txt"_s, "games go here");
    Cambia(u"Zembro.emu"_s, "roms/\r\nIMG", "ready/\r\nIMG");
    const QByteArray entero = Bytes(u"Zembro.emu"_s);
    for (const QByteArray &tipo : QList<QByteArray> { "0", "1", "2", "3" }) {
        Pon(u"Zembro.emu"_s, QByteArray(entero).replace("XDI=NO.0", "XDI=NO." + tipo));
        EXPECT_THAT(clases(SisUno), IsEmpty()) << tipo.toStdString();
    }
}

TEST_F(CheckPair, OfManyGamesWithoutACaptureAFewAreNamed_AndAllOfAPairThatIsAskedFor)
{
    for (const QString &nombre : { u"roms/A.nes"_s, u"roms/B.nes"_s, u"roms/C.nes"_s })
        Pon(nombre, "x");
    EXPECT_EQ(dicho().count(" has no capture; "), 3);
    EXPECT_TRUE(dicho().endsWith("    and more: 2; check SYSTEM EMULATOR names them all\n"))
        << dicho().toStdString();
    EXPECT_EQ(Zembro({ u"check"_s, u"sis"_s, u"uno"_s }).salida.count(" has no capture; "), 5);
    const QJsonObject pareja = Json({ u"check"_s })[u"pairs"_s][1].toObject();
    EXPECT_EQ(pareja[u"missing_captures"_s].toArray().size(), 5);
    EXPECT_EQ(pareja[u"missing_captures"_s][0][u"looked_for"_s].toString(), Ruta(u"img/A.GIF"_s));
}

TEST_F(CheckPair, EveryFindingNamesItsFile)
{
    PonPrograma("#!/no/such\n");
    Pon(u"img/Luigi.gif"_s, UnGif());
    Cambia(u"Zembro.emu"_s, "*.NES", "*.NES\r\n*.ES");
    Cambia(u"Zembro.emu"_s, "XDI=NO.1", "XDI=NO.9");
    Cambia(u"Zembro.rom"_s, "Mario\"\r\n", "Mario\"\r\nZELDA.NES,\"Super Mario\"\r\n");
    const QJsonArray hallazgos = Json({ u"check"_s }, companion::Hallazgos)[u"findings"_s].toArray();
    QStringList clasesVistas;
    for (const QJsonValue &uno : hallazgos) {
        clasesVistas += uno[u"kind"_s].toString();
        EXPECT_FALSE(uno[u"file"_s].toString().isEmpty()) << uno[u"kind"_s].toString().toStdString();
    }
    for (const QString &clase : { u"no-interpreter"_s, u"capture-without-game"_s, u"listed-twice"_s,
             u"no-type"_s, u"description-twice"_s })
        EXPECT_TRUE(clasesVistas.contains(clase)) << clase.toStdString();
    EXPECT_TRUE(dicho().contains("Zembro.rom:3: Sis / Uno: Several games have the description Super Mario"))
        << dicho().toStdString();
}

TEST_F(CheckPair, ADirectoryThatCannotBeReadIsToldFromOneThatIsNotThere)
{
    PonDirectorio(u"closed/inner"_s);
    PonDirectorio(u"listed"_s);
    Pon(u"afile"_s, "x");
    // The administrator may read all.
    const bool administrador = geteuid() == 0;
    ASSERT_EQ(chmod(Ruta(QString()).toUtf8().constData(), 0755), 0);
    ASSERT_EQ(chmod(Ruta(u"closed"_s).toUtf8().constData(), 0), 0);
    ASSERT_EQ(chmod(Ruta(u"listed"_s).toUtf8().constData(), 0311), 0);
    const QByteArray entero = Bytes(u"Zembro.emu"_s);
    const auto dichos = [&](const QByteArray &directorio) {
        Pon(u"Zembro.emu"_s,
            QByteArray(entero).replace("ROM=" + Ruta(u"roms/"_s).toUtf8(), "ROM=" + directorio));
        constexpr uid_t nadie = 65534;
        EXPECT_TRUE(!administrador || seteuid(nadie) == 0);
        const QByteArray todo = dicho() + Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"x"_s }).error;
        EXPECT_TRUE(!administrador || seteuid(0) == 0);
        return todo;
    };
    const QByteArray base = Ruta(QString()).toUtf8();
    const QByteArray sinDerecho =
        "This directory can't be read; the right to may be missing (chmod u+rx): " + base;
    for (const QByteArray &cual : QByteArrayList { "listed/", "closed/" })
        EXPECT_EQ(dichos(base + cual).count(sinDerecho + cual + '\n'), 2)
            << cual.toStdString() << dichos(base + cual).toStdString();
    EXPECT_EQ(dichos(base + "closed/inner/").count(sinDerecho + "closed\n"), 2);
    EXPECT_EQ(dichos(base + "afile/").count("This is no directory: " + base + "afile/\n"), 2);
    EXPECT_EQ(dichos(base + "gone/a/").count("There is no such directory: " + base + "gone/a/"), 2);
    chmod(Ruta(u"closed"_s).toUtf8().constData(), 0700);
}

TEST_F(CheckPair, WhatFailsIsSaidInTheLanguageOfTheSettings)
{
    Pon(u"LNG/ZB-ESP.LNG"_s,
        Bytes(u"LNG/ZB-ENG.LNG"_s).replace("There is no such directory", "No existe este directorio"));
    PonAjustes(u"ZB-ESP.LNG"_s);
    Cambia(u"Zembro.emu"_s, "roms/\r\n", "gone/\r\n");
    EXPECT_TRUE(dicho().contains("No existe este directorio: " + Ruta(u"gone/"_s).toUtf8()))
        << dicho().toStdString();
}

TEST_F(CheckPair, ZIPsThatNoLaunchCanUseAreSaid)
{
    Cambia(u"Zembro.emu"_s, "*.NES", "*.ZIP\r\n*.NES");
    const QByteArray bueno = Zip({ { .nombre = "readme.txt" }, { .nombre = "Good.nes" } });
    Pon(u"roms/Good.zip"_s, bueno);
    EXPECT_THAT(clases(SisUno), IsEmpty());
    Pon(u"roms/Cut.zip"_s, bueno.first(bueno.size() / 2));
    Pon(u"roms/Empty.zip"_s, "");
    Pon(u"roms/Locked.zip"_s, ZipCifrado({ { .nombre = "Locked.nes" } }, "secret"));
    Pon(u"roms/Other.zip"_s, Zip({ { .nombre = "Other.smc" }, { .nombre = "deep/Other.nes" } }));
    EXPECT_THAT(clases(SisUno),
        ElementsAre(u"zip-damaged"_s, u"zip-damaged"_s, u"zip-encrypted"_s, u"zip-without-game"_s));
    const QByteArray todo = dicho();
    EXPECT_TRUE(todo.contains(Ruta(u"roms/Cut.zip"_s).toUtf8() + ": Sis / Uno: The ZIP Cut.zip is cut or"))
        << todo.toStdString();
    EXPECT_TRUE(todo.contains("The ZIP Locked.zip asks for a password;"));
    EXPECT_TRUE(todo.contains("add the extension: *.SMC\n")) << todo.toStdString();
}

TEST_F(CheckPair, OfAZIPWithoutAGameWhatHelpsIsSaid)
{
    const QByteArray primera = "In the ZIP Read.zip no game is found: the first extension of the system is "
                               "tried with the first file alone; put *.ZIP ahead of it: *.NES\n";
    Cambia(u"Zembro.emu"_s, "*.NES", "*.NES\r\n*.ZIP");
    Pon(u"roms/Read.zip"_s, Zip({ { .nombre = "readme.txt" }, { .nombre = "Read.nes" } }));
    EXPECT_TRUE(dicho().contains(primera)) << dicho().toStdString();
    Cambia(u"Zembro.emu"_s, "*.NES\r\n*.ZIP", "*.ZIP\r\n*.NES");
    EXPECT_THAT(clases(SisUno), IsEmpty()) << "as it said";
    Pon(u"roms/Read.zip"_s, Zip({ { .nombre = "readme.txt" }, { .nombre = "Other.smc" } }));
    EXPECT_TRUE(dicho().contains("add the extension: *.SMC\n")) << dicho().toStdString();
    Pon(u"roms/Read.zip"_s, Zip({ { .nombre = "readme.txt" } }));
    EXPECT_TRUE(dicho().contains("so no game is found in it.\n")) << dicho().toStdString();
    // The emulator alone is started there, and nothing is unpacked.
    Pon(u"roms/Locked.zip"_s, ZipCifrado({ { .nombre = "Locked.nes" } }, "secret"));
    EXPECT_THAT(clases(SisUno), ElementsAre(u"zip-encrypted"_s, u"zip-without-game"_s));
    Cambia(u"Zembro.emu"_s, "NO.0", "NO.5");
    EXPECT_THAT(clases(SisUno), ElementsAre(u"parameters-joined"_s));
}

// Where the advice is followed, the finding is gone; where none helps, none is given.
TEST_F(CheckPair, WhatIsSaidOfAZIPWithoutAGameIsTrue)
{
    struct Caso {
        QByteArrayList miembros;
        QByteArray dice;
        QByteArray extensiones; // with what it says
    };
    const QByteArray antes = "*.ZIP\r\n*.NES";
    Cambia(u"Zembro.emu"_s, "*.NES", antes);
    for (const Caso &caso : std::initializer_list<Caso> {
             { { "LEEME", "Other.smc" }, "add the extension: *.SMC\n", antes + "\r\n*.SMC" },
             { { "cover.jpg", "Other.smc" }, "add the extension: *.SMC\n", antes + "\r\n*.SMC" },
             { { "readme.txt", "cover.PNG", "a.html", "Other.jag" }, "add the extension: *.JAG\n",
                 antes + "\r\n*.JAG" },
             { { "Other.jaguar" }, "so no game is found in it.\n", {} },
             { { "LEEME" }, "so no game is found in it.\n", {} },
             { { "cover.jpg", "inner.zip" }, "so no game is found in it.\n", {} },

             { { "Game/LEEME", "Game/Read.nes" }, "pack it anew without folders.\n", {} },
             { { "readme.txt", "Game/Read.nes" }, "pack it anew without folders.\n", {} } }) {
        QList<MiembroZip> miembros;
        for (const QByteArray &miembro : caso.miembros)
            miembros.push_back({ .nombre = miembro });
        Pon(u"roms/Read.zip"_s, Zip(miembros));
        EXPECT_TRUE(dicho().contains(caso.dice)) << dicho().toStdString();
        if (caso.extensiones.isEmpty())
            continue;
        Cambia(u"Zembro.emu"_s, antes, caso.extensiones);
        EXPECT_THAT(clases(SisUno), IsEmpty()) << caso.dice.constData();
        Cambia(u"Zembro.emu"_s, caso.extensiones, antes);
    }
}

TEST_F(CheckPair, GamesThatCannotBeReadAreSaid)
{
    const bool administrador = geteuid() == 0;
    constexpr uid_t nadie = 65534;
    ASSERT_EQ(chmod(Ruta(QString()).toUtf8().constData(), 0755), 0);
    ASSERT_EQ(chmod(Ruta(u"roms/Zelda.nes"_s).toUtf8().constData(), 0), 0);
    ASSERT_TRUE(!administrador || seteuid(nadie) == 0);
    const QStringList suyas = clases(SisUno);
    const QByteArray todo = dicho();
    EXPECT_TRUE(!administrador || seteuid(0) == 0);
    EXPECT_TRUE(suyas.contains(u"game-unreadable"_s)) << todo.toStdString();
    EXPECT_TRUE(todo.contains("Zelda.nes can't be read; give its owner the right to (chmod u+r).\n"))
        << todo.toStdString();
}
