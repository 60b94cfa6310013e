// What is started for a program of another system, by a DOSBox and a Wine that only record what they get.
#include "escenario.h"

#include "launch/apodado.h"
#include "launch/cronica.h"
#include "launch/destino.h"
#include "launch/dosbox.h"
#include "launch/encargo.h"
#include "launch/ensayo.h"
#include "launch/jugar.h"
#include "launch/nombresdos.h"
#include "launch/shell.h"
#include "launch/wine.h"

#include "host/encoding.h"
#include "host/paths.h"
#include "host/process.h"

#include <QSet>

using namespace Qt::StringLiterals;
using launch::Corredor;
using launch::Encargo;
using launch::LineaDeOrden;
using launch::Traba;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const QByteArray ParaDOS = "MZ" + QByteArray(100, '\0');
const QByteArray ParaWindows = "MZ" + QByteArray(0x3a, '\0') + QByteArray("\x40\0\0\0PE\0\0", 8);

// Neither of them is there but where a test puts it.
class EncargoTest : public Escenario {
protected:
    EncargoTest()
        : m_camino(qgetenv("PATH"))
    {
        makeDirectory("bin");
        qputenv("PATH", place("bin"));
        qputenv("WINEPREFIX", place("wine"));
        host::rememberEnvironment();
        PonPalabrasDeEncargo();
        PonEmulador(0);
        M.Cat_EXE(3, 2) = u"EXE="_s + path(u"emu/nes.exe"_s);
        PonROM("mario.nes");
    }
    ~EncargoTest() override
    {
        qputenv("PATH", m_camino);
        qunsetenv("WINEPREFIX");
        host::rememberEnvironment();
    }

    void Pon(const QByteArray &bytes) const { makeFile("emu/nes.exe", bytes); }

    // Keeps its arguments, and a copy of the configuration that they name.
    void PonHerramienta(const QByteArray &nombre) const
    {
        makeFile("bin/" + nombre,
            "#!/bin/sh\nprintf '%s\\0' \"$0\" \"$@\" > '" + place("out/arguments")
                + "'\nfor a in \"$@\"; do case $a in *.conf) /bin/cat \"$a\" > '" + place("out/conf")
                + "';; esac; done\n");
        setMode("bin/" + nombre, 0755);
    }
    QStringList Avisos() const
    {
        QStringList avisos;
        for (const QString &llamada : pantalla.llamadas) {
            if (llamada.startsWith(u"Aviso "))
                avisos << llamada.sliced(6);
        }
        return avisos;
    }
    QByteArrayList Configuracion() const { return bytes("out/conf").value_or("none").split('\n'); }

    Encargo De(const QString &parametros) const
    {
        LineaDeOrden orden;
        const QString exe = path(u"emu/nes.exe"_s);
        orden.Ruta(exe, exe).Texto(parametros);
        return launch::EncargoDe(orden);
    }

private:
    QByteArray m_camino;
};

} // namespace

TEST_F(EncargoTest, ProgramsOfThisSystemAreStartedThemselves)
{
    for (const QByteArray &bytes : { QByteArray("#!/bin/sh\n"), QByteArray("no program"), QByteArray() }) {
        Pon(bytes);
        const Encargo encargo = De(u" -x 'a b'"_s);
        EXPECT_EQ(encargo.corredor, Corredor::Ninguno);
        EXPECT_EQ(encargo.traba, Traba::Ninguna);
        EXPECT_EQ(encargo.argumentos, QStringList({ path(u"emu/nes.exe"_s), u"-x"_s, u"'a"_s, u"b'"_s }));
    }
    EXPECT_EQ(launch::EncargoDe(LineaDeOrden()).argumentos, QStringList());
    EXPECT_EQ(launch::EncargoDe(LineaDeOrden().Texto(u"nowhere -x"_s)).argumentos,
        QStringList({ u"nowhere"_s, u"-x"_s }));
}

TEST_F(EncargoTest, WhereDosBoxIsMissingTheUserIsTold)
{
    Pon(ParaDOS);
    Juega();
    EXPECT_EQ(Avisos(), QStringList { u"Missing: DOSBox"_s });
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(EncargoTest, WhereWineIsMissingTheUserIsTold)
{
    Pon(ParaWindows);
    Juega();
    EXPECT_EQ(Avisos(), QStringList { u"Missing: Wine"_s });
}

TEST_F(EncargoTest, WhereTheTemporaryDirectoryCantBeUsedTheUserIsTold)
{
    PonHerramienta("dosbox");
    PonHerramienta("wine");
    PonROM("ni\xC3\xB1o.nes"); // a name that DOS doesn't open
    PonROM("what?.nes"); // nor Windows
    makeDirectory("shared");
    setMode("shared", 0777);
    makeFile("shared/zembrolix-" + QByteArray::number(geteuid()), "in the way");
    qputenv("TMPDIR", place("shared"));
    for (const auto &[bytes, juego] : { std::pair { ParaDOS, u"mario.nes"_s }, { ParaDOS, u"niño.nes"_s },
             { ParaWindows, u"what?.nes"_s } }) {
        Pon(bytes);
        pantalla.lista1 = juego;
        pantalla.llamadas.clear();
        QStringList dicho;
        const launch::Partida partida =
            launch::Jugar(M, pantalla, [&dicho](const QString &linea) { dicho += linea; });
        EXPECT_FALSE(HuboJuego());
        EXPECT_EQ(Avisos(), QStringList { u"Not started: Full"_s }) << juego.toStdString();
        EXPECT_EQ(partida.fallo, u"Failed to write the files of a run into the temporary directory");
        EXPECT_TRUE(dicho.last().endsWith(launch::EnShell({ u"failed"_s, partida.fallo })));
    }
}

TEST_F(EncargoTest, WhereNothingIsLeftOfItsDiskTheUserIsTold)
{
    PonHerramienta("dosbox");
    Pon(ParaDOS);
    launch::PonEspacioLibre([](int) { return 0; });
    Juega();
    launch::PonEspacioLibre({});
    EXPECT_FALSE(HuboJuego());
    EXPECT_EQ(Avisos(), QStringList { u"Not started: Full"_s });
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(EncargoTest, WhereADriveIsMissingTheUserIsToldItsLetter)
{
    makeFile("program/Zembro.uni", "C=" + place("emu") + "\nD=/nowhere\n");
    for (const QString &exe : { u"D:\\nes.exe"_s, u"e:/nes.exe"_s }) {
        M.Cat_EXE(3, 2) = u"EXE="_s + exe;
        Juega();
    }
    M.Cat_EXE(3, 2) = u"EXE=C:\\other.exe"_s;
    Juega();
    EXPECT_EQ(Avisos(), QStringList({ u"Drives: No D:"_s, u"Drives: No E:"_s }));
}

TEST_F(EncargoTest, DosBoxGetsAConfigurationThatGoesWithTheRun)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    Juega();
    EXPECT_THAT(Avisos(), IsEmpty());
    EXPECT_EQ(Programa(), place("bin/dosbox"));
    const QByteArrayList argumentos = Argumentos();
    ASSERT_EQ(argumentos.size(), 3);
    EXPECT_EQ(argumentos[0], "-userconf");
    EXPECT_EQ(argumentos[1], "-conf");
    EXPECT_TRUE(argumentos[2].startsWith(place("tmp/ZB-DOS-")));
    EXPECT_THAT(Configuracion(),
        ElementsAre("[autoexec]\r", "@echo off\r", "mount -u C >nul\r", "mount -u D >nul\r",
            "mount C \"" + place("emu") + "\" >nul\r", "mount D \"" + place("roms") + "\" >nul\r", "C:\r",
            "cd \\\r", "C:\\NES.EXE  D:\\MARIO.NES\r", "exit\r", ""));
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(EncargoTest, TheOthersOfDosBoxServeToo)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox-staging");
    Juega();
    EXPECT_EQ(Programa(), place("bin/dosbox-staging"));
    EXPECT_EQ(Argumentos().value(0), "-conf") << "it reads the user's own configuration always";
    PonHerramienta("dosbox-x");
    Juega();
    EXPECT_EQ(Programa(), place("bin/dosbox-x"));
    EXPECT_EQ(Argumentos().value(0), "-userconf");
}

TEST_F(EncargoTest, AFileCalledDosBoxBesideTheEmulatorIsNotTakenForIt)
{
    Pon(ParaDOS);
    makeFile("emu/DOSBOX", "notes");
    PonHerramienta("dosbox");
    Juega();
    EXPECT_EQ(Programa(), place("bin/dosbox"));
}

TEST_F(EncargoTest, WhatAKilledRunLeftGoes_ThatOfALivingOneStays)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    const pid_t muerto = startChild([] { return 0; });
    endOf(muerto);
    const QByteArray viejo = "tmp/ZB-DOS-" + QByteArray::number(muerto) + "-1";
    makeDirectory(viejo);
    makeFile(viejo + "/dosbox.conf");
    makeLink(place("roms"), viejo + "/D");
    makeDirectory("tmp/ZB-DOS-1-1");
    makeDirectory("tmp/ZB-DOS-other");
    Juega();
    EXPECT_FALSE(exists(viejo));
    EXPECT_TRUE(exists("roms/mario.nes"));
    EXPECT_TRUE(exists("tmp/ZB-DOS-1-1"));
    EXPECT_TRUE(exists("tmp/ZB-DOS-other"));
}

TEST_F(EncargoTest, NoLettersSignsOrNamesBreakOut)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    for (const QString &parametros :
        { u" > c:\\x"_s, u" a<b"_s, u" a|b"_s, u" a\nexit"_s, u" a\rb"_s, u" \u0001"_s, u" \u4e00"_s }) {
        const Encargo encargo = De(parametros);
        EXPECT_EQ(encargo.traba, Traba::Signo) << parametros.toStdString();
        EXPECT_EQ(encargo.trabadoEn, parametros);
    }
    const Encargo encargo = De(u" 100% %path%"_s);
    EXPECT_EQ(encargo.traba, Traba::Ninguna);
    EXPECT_THAT(launch::ConfiguracionDOS(encargo).toStdString(), HasSubstr("C:\\NES.EXE 100%% %%path%%\r\n"));
}

TEST_F(EncargoTest, AGameThatDosCantOpenByItsNameGetsAnotherOne)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    const auto con = [](const QByteArray &letras, const QByteArray &terminacion = QByteArray()) {
        return letras + "[0-9A-Z]{" + QByteArray::number(8 - letras.size()) + '}'
            + (terminacion.isEmpty() ? terminacion : "[.]" + terminacion);
    };
    for (const auto &[nombre, apodo] : std::initializer_list<std::pair<QByteArray, QByteArray>> {
             { "ni\xC3\xB1o.nes", con("NI", "NES") }, { "a.b.c", con("AB", "C") },
             { "a=b.nes", con("AB", "NES") }, { "\xE4\xB8\x80.nes", con("", "NES") },
             { "ni\xA4os\n.nes", con("NI", "NES") }, { "Con.nes", con("CO", "NES") }, { "aux", con("AU") },
             { "x,.\xC3\xB1\xE4\xB8\x80zes", con("X", "NZE") }, { "=.\xE4\xB8\x80", con("") } }) {
        PonROM(nombre);
        pantalla.lista1 = host::nameFromDisk(nombre);
        Juega();
        EXPECT_THAT(Configuracion().join('\n').toStdString(),
            testing::ContainsRegex(("C:.NES[.]EXE  D:." + apodo + "\r").toStdString()))
            << nombre.toPercentEncoding().constData();
    }
    EXPECT_THAT(Avisos(), IsEmpty());
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

// Also an emulator that keeps what its games save in a directory of its own finds each one's again.
TEST_F(EncargoTest, TheNameOfAGameDependsOnNoOther)
{
    QSet<QByteArray> apodos;
    int cuantos = 0;
    for (const QByteArray &forma : { QByteArray("Pok\xC3\xA9mon %.gbc"), QByteArray("\xE3\x82\xBD%.gbc"),
             QByteArray("\xD0\xA1\xD1\x83%.gbc"), QByteArray("%\xC3\xB1.gbc"), QByteArray("a.b%.gbc") }) {
        for (int i = 0; i < 1000; ++i, ++cuantos) {
            const QByteArray apodo =
                launch::ApodoEnDOS(QByteArray(forma).replace("%", QByteArray::number(i)));
            EXPECT_TRUE(launch::SeAbreEnDOS(apodo)) << apodo.constData();
            apodos.insert(apodo);
        }
    }
    EXPECT_EQ(apodos.size(), cuantos);
    EXPECT_EQ(launch::ApodoEnDOS("Pok\xC3\xA9mon Plata.gbc"), "POZDH92A.GBC");
    EXPECT_NE(launch::ApodoEnDOS("Pok\xC3\xA9mon Plata.gbc").first(8),
        launch::ApodoEnDOS("Pok\xC3\xA9mon Plata.gb").first(8));
    EXPECT_NE(launch::ApodoEnDOS("Ni\xC3\xB1o.nes"), launch::ApodoEnDOS("ni\xC3\xB1o.nes"));
}

// The command that is shown and the line that DOS gets are made one after the other.
TEST_F(EncargoTest, TheCommandNamesTheDrivesThatDosGets)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    makeDirectory("other");
    makeDirectory("roms/Deep Ones");
    for (const QByteArray &lugar : { QByteArray("roms/"), QByteArray("roms/Deep Ones/") }) {
        for (const QByteArray &nombre :
            { QByteArray("ni\xC3\xB1o"), QByteArray("Super Mario"), QByteArray("Luigi") }) {
            makeFile(lugar + nombre + ".nes", "a game");
            makeFile(lugar + nombre + ".zip", "a game");
        }
    }
    PonNota(0, u"NIÑO.NES"_s, u"The child"_s);
    for (const QByteArray &unidades : { QByteArray(), "C=" + place("emu") + "\n",
             "D=" + place("other") + "\n", "E=" + place("roms") + "\n" }) {
        makeFile("program/Zembro.uni", unidades);
        for (const auto &[tipo, emulador, entrada] :
            std::initializer_list<std::tuple<int, QString, QString>> { { 0, u"Emu"_s, u"niño.nes"_s },
                { 0, u"Emu"_s, u"The child"_s }, { 0, u"Emu"_s, u"Luigi.nes"_s },
                { 0, u"Emu"_s, u"Super Mario.nes"_s }, { 0, u"Emu"_s, u"gone.nes"_s },
                { 3, u"NeoRage"_s, u"niño.zip"_s }, { 3, u"NeoRage"_s, u"Luigi.zip"_s },
                { 3, u"Emu"_s, u"Luigi.zip"_s }, { 5, u"Emu"_s, QString() } }) {
            for (const QString &rom : { u"roms/"_s, u"roms/Deep Ones/"_s }) {
                M.Cat_ROM(3, 2) = u"ROM="_s + path(rom);
                M.Cat_XDI(3, 2) = u"XDI="_s + QString::number(tipo);
                pantalla.combo2 = emulador;
                pantalla.lista1 = entrada;
                const launch::Ensayo ensayo = launch::Ensaya(M, pantalla);
                ASSERT_TRUE(ensayo.orden);
                const QByteArray enDOS = ensayo.encargo.programaDOS + ensayo.encargo.colaDOS;
                QString dicho = ensayo.orden->EnTexto();
                if (tipo == 5) // the program alone stands there
                    dicho.prepend(QString::fromLatin1(enDOS).first(enDOS.lastIndexOf('\\') + 1));
                EXPECT_EQ(dicho.toUpper().trimmed().toStdString(), QByteArray(enDOS).toUpper().toStdString())
                    << unidades.constData() << entrada.toStdString();
            }
        }
    }
}

// Its own settings may name that drive.
TEST_F(EncargoTest, OfDrivesWithinOneAnotherTheOneThatTheCatalogueNamesCounts)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    makeFile("program/Zembro.uni", "C=" + place() + "\nD=" + place("roms") + "\nE=" + place("emu") + "\n");
    makeFile("emu/mario.nes");
    makeDirectory("emu/rr");
    makeFile("emu/rr/mario.nes");
    struct Caso {
        QString exe;
        QString rom;
        QByteArray enDOS;
        QString letras;
    };
    for (const Caso &caso :
        std::initializer_list<Caso> {
            { u"C:\\emu\\nes.exe"_s, u"C:\\roms\\"_s, "C:\\EMU\\NES.EXE  C:\\ROMS\\MARIO.NES", u"C"_s },
            { u"c:\\emu\\nes.exe"_s, u"D:\\"_s, "C:\\EMU\\NES.EXE  D:\\MARIO.NES", u"CD"_s },
            { u"E:\\nes.exe"_s, u"C:\\roms\\"_s, "E:\\NES.EXE  C:\\ROMS\\MARIO.NES", u"CE"_s },
            { u"C:\\emu\\nes.exe"_s, u"E:\\rr\\"_s, "C:\\EMU\\NES.EXE  E:\\RR\\MARIO.NES", u"CE"_s },
            { u"E:\\nes.exe"_s, u"C:\\emu\\rr\\"_s, "E:\\NES.EXE  C:\\EMU\\RR\\MARIO.NES", u"CE"_s },
            { u"C:\\emu\\nes.exe"_s, u"E:\\"_s, "C:\\EMU\\NES.EXE  E:\\MARIO.NES", u"CE"_s },
            { u"E:\\nes.exe"_s, u"C:\\emu\\"_s, "E:\\NES.EXE  C:\\EMU\\MARIO.NES", u"CE"_s },
            { u"C:\\emu\\nes.exe"_s, path(u"emu/rr/"_s), "C:\\EMU\\NES.EXE  C:\\EMU\\RR\\MARIO.NES", u"C"_s },
            { u"E:\\nes.exe"_s, path(u"roms/"_s), "E:\\NES.EXE  D:\\MARIO.NES", u"DE"_s },
            { path(u"emu/nes.exe"_s), path(u"roms/"_s), "E:\\NES.EXE  D:\\MARIO.NES", u"DE"_s } }) {
        M.Cat_EXE(3, 2) = u"EXE="_s + caso.exe;
        M.Cat_ROM(3, 2) = u"ROM="_s + caso.rom;
        M.Cat_XDI(3, 2) = u"XDI=0"_s;
        pantalla.lista1 = u"mario.nes"_s;
        const launch::Ensayo ensayo = launch::Ensaya(M, pantalla);
        EXPECT_EQ(ensayo.encargo.programaDOS + ensayo.encargo.colaDOS, caso.enDOS);
        EXPECT_EQ(ensayo.orden.value_or(LineaDeOrden()).EnTexto().toUpper().trimmed(),
            QString::fromLatin1(caso.enDOS));
        QString letras;
        for (const auto &montaje : ensayo.encargo.montajes)
            letras += QLatin1Char(montaje.letra);
        EXPECT_EQ(letras, caso.letras) << caso.enDOS.constData();
    }
}

TEST_F(EncargoTest, AnEmulatorThatDosCantOpenByItsNameIsRefused)
{
    makeFile("emu/n\xC3\xA9s.exe", ParaDOS);
    M.Cat_EXE(3, 2) = u"EXE="_s + path(u"emu/nés.exe"_s);
    PonHerramienta("dosbox");
    Juega();
    EXPECT_EQ(Avisos(), QStringList { u"No: Name"_s });
    EXPECT_FALSE(HuboJuego());
}

TEST_F(EncargoTest, ALineOf126CharactersGoes_OneOf127Doesnt)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    EXPECT_EQ(De(u" "_s + QString(125, u'x')).traba, Traba::Ninguna);
    EXPECT_EQ(De(u" "_s + QString(125, u'x') + u"   "_s).traba, Traba::Ninguna) << "blanks at the end go";
    EXPECT_EQ(De(u" "_s + QString(126, u'x')).traba, Traba::Largo);
    EXPECT_EQ(De(u" "_s + QString(125, u'%')).traba, Traba::Ninguna) << "each is one for DOS";
}

TEST_F(EncargoTest, TheDrivesThatAnEmulatorMayGoToAreThere)
{
    Pon(ParaDOS);
    makeDirectory("media");
    makeDirectory("media/ROMS");
    makeDirectory("bios");
    makeFile(
        "program/Zembro.uni", "C=" + place("emu") + "\nD=" + place("media") + "\nF=" + place("bios") + "\n");
    LineaDeOrden orden;
    orden.Ruta(u"nes"_s, path(u"emu/nes.exe"_s)).Texto(u" -x"_s);
    struct Caso {
        QString rom;
        QString par2;
        QString letras;
    };
    for (const Caso &caso :
        std::initializer_list<Caso> { { {}, {}, u"C"_s }, { u"D:\\ROMS\\"_s, {}, u"CD"_s },
            { u"d:\\roms"_s, {}, u"CD"_s }, { path(u"media/ROMS/"_s), {}, u"CD"_s },
            { path(u"media/"_s), {}, u"CD"_s }, { path(u"media"_s), {}, u"CD"_s },
            { path(u"roms/"_s), {}, u"C"_s }, { u"G:\\ROMS"_s, {}, u"C"_s }, { u"roms"_s, {}, u"C"_s },
            { {}, u"-b f:\\bios.rom"_s, u"CF"_s }, { u"D:\\"_s, u"f:\\"_s, u"CDF"_s } }) {
        M.Cat_ROM(3, 2) = u"ROM="_s + caso.rom;
        M.Cat_PAR1(3, 2) = u"PAR1="_s;
        M.Cat_PAR2(3, 2) = u"PAR2="_s + caso.par2;
        QString letras;
        for (const auto &montaje : launch::EncargoDe(orden, launch::LugaresDe(M, 3, 2)).montajes)
            letras += QLatin1Char(montaje.letra);
        EXPECT_EQ(letras, caso.letras) << caso.rom.toStdString() << ' ' << caso.par2.toStdString();
    }
}

// Directories in it may be written to all the same.
TEST_F(EncargoTest, ADriveWhoseTopCantBeWrittenIsNoCd)
{
    Pon(ParaDOS);
    setMode("emu", 0555);
    EXPECT_EQ(inChildOfOrdinaryUser([this] {
        const Encargo encargo = De(u" -x"_s);
        return encargo.montajes.size() == 1 && !encargo.montajes[0].esCD ? 0 : 1;
    }),
        0);
    setMode("emu", 0755);
}

// The emulator looks for the name in a place of its own, where no other name is shown.
TEST_F(EncargoTest, OfAGameHandedOverByItsNameAloneDosHasToKnowTheName)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    for (const int tipo : { 1, 3 }) {
        M.Cat_XDI(3, 2) = u"XDI="_s + QString::number(tipo);
        for (const QByteArray &nombre :
            { QByteArray("ni\xC3\xB1o.zip"), QByteArray("Mario.zip"), QByteArray("Super Mario.zip") }) {
            if (tipo == 1)
                makeDirectory("roms/" + nombre.chopped(4));
            else
                PonROM(nombre);
            pantalla.lista1 = host::nameFromDisk(tipo == 1 ? nombre.chopped(4) : nombre);
            Juega();
        }
        EXPECT_EQ(Avisos(), QStringList { u"No: Name"_s }) << tipo;
        EXPECT_TRUE(Configuracion().join('\n').contains("\nC:\\NES.EXE  superm~1")) << tipo;
        pantalla.llamadas.clear();
    }
    M.Cat_XDI(3, 2) = u"XDI=3"_s;
    pantalla.combo2 = u"NeoRage"_s;
    pantalla.lista1 = u"ni\u00F1o.zip"_s;
    Juega();
    EXPECT_THAT(Avisos(), IsEmpty()) << "this one gets the whole path";
    EXPECT_TRUE(Configuracion().join('\n').contains('\\' + launch::ApodoEnDOS("ni\xC3\xB1o.zip")))
        << Configuracion().join('\n').constData();
}

TEST_F(EncargoTest, DrivesForCdsStandInARow)
{
    Encargo encargo;
    encargo.programaDOS = "C:\\A.EXE";
    for (const char letra : { 'C', 'D', 'E', 'G' })
        encargo.montajes.push_back({ letra, QByteArray("/") + letra, letra != 'C' });
    const std::string texto = launch::ConfiguracionDOS(encargo).toStdString();
    EXPECT_THAT(texto, HasSubstr("mount C \"/C\" >nul"));
    EXPECT_THAT(texto, HasSubstr("mount D \"/D\" -t cdrom >nul"));
    EXPECT_THAT(texto, HasSubstr("mount E \"/E\" -t cdrom >nul"));
    EXPECT_THAT(texto, HasSubstr("mount G \"/G\" >nul"));
}

TEST_F(EncargoTest, WineGetsPathsOfItsPrefix)
{
    Pon(ParaWindows);
    PonHerramienta("wine");
    makeDirectory("wine");
    makeDirectory("wine/dosdevices");
    makeLink(place("roms"), "wine/dosdevices/d:");
    makeLink("/", "wine/dosdevices/z:");
    PonROM("Super Mario.nes");
    pantalla.lista1 = u"Super Mario.nes"_s;
    M.Cat_PAR1(3, 2) = u"PAR1=-x \"a b\""_s;
    Juega();
    EXPECT_EQ(Programa(), place("bin/wine"));
    EXPECT_THAT(Argumentos(),
        ElementsAre("Z:" + (place("emu/nes.exe")).replace('/', '\\'), "-x", "a b", "D:\\Super Mario.nes"));
    EXPECT_EQ(DirectorioDelJuego(), "no game");
}

TEST_F(EncargoTest, AGameThatWindowsCantOpenByItsNameGetsAnotherOne)
{
    Pon(ParaWindows);
    PonHerramienta("wine");
    for (const auto &[nombre, apodo] : std::initializer_list<std::pair<QByteArray, QByteArray>> {
             { "what?.nes", "what_-*.nes" }, { "a\\b*.nes", "a_b_-*.nes" }, { "ends. ", "ends-*" },
             { " .. ", "-*" }, { "Con.nes", "Con-*.nes" }, { "com1", "com1-*" }, { "a.b?", "a-*.b_" } }) {
        PonROM(nombre, nombre);
        pantalla.lista1 = host::nameFromDisk(nombre);
        Juega();
        const QByteArray dicho = Argumentos().value(1);
        EXPECT_TRUE(dicho.startsWith("Z:" + place("tmp/ZB-DOS-").replace('/', '\\'))) << dicho.constData();
        const QByteArray mostrado = dicho.sliced(dicho.indexOf("\\files-A\\") + 9);
        EXPECT_THAT(mostrado.toStdString(),
            testing::MatchesRegex(
                QByteArray(apodo).replace(".", "[.]").replace("*", "[0-9A-Z]{8}").toStdString()));
        EXPECT_EQ(mostrado, launch::ApodoEnWindows(nombre));
        EXPECT_TRUE(launch::SeDiceEnWindows(host::nameFromDisk(mostrado)));
    }
    EXPECT_THAT(Avisos(), IsEmpty());
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(EncargoTest, WhatSuchAGameSavesStaysBesideIt)
{
    Pon(ParaWindows);
    makeFile("bin/wine",
        "#!/bin/sh\ncd '" + place("tmp")
            + "'/ZB-DOS-*/files-A && for f in what_-*.nes; do echo saved > ${f%.nes}.sav; cat $f > '"
            + place("out/read") + "'; done\n");
    setMode("bin/wine", 0755);
    qputenv("PATH", place("bin") + ":/usr/bin:/bin");
    host::rememberEnvironment();
    PonROM("what?.nes", "the game");
    pantalla.lista1 = u"what?.nes"_s;
    Juega();
    EXPECT_EQ(bytes("out/read"), "the game");
    EXPECT_EQ(bytes("roms/what?.nes - .sav"), "saved\n");
    EXPECT_EQ(bytes("roms/what?.nes"), "the game");
}

TEST_F(EncargoTest, AnEmulatorThatWindowsCantOpenByItsNameIsRefused)
{
    PonHerramienta("wine");
    for (const QByteArray &directorio : { QByteArray("a?b"), QByteArray("a\\b"), QByteArray("ends.") }) {
        makeDirectory(directorio);
        makeFile(directorio + "/nes.exe", ParaWindows);
        M.Cat_EXE(3, 2) = u"EXE="_s + host::nameFromDisk(place(directorio)) + u"/nes.exe"_s;
        pantalla.llamadas.clear();
        Juega();
        EXPECT_EQ(Avisos(), QStringList { u"No Windows: Name of Windows"_s }) << directorio.constData();
    }
    EXPECT_FALSE(HuboJuego());
}

TEST_F(EncargoTest, TheSameRunCanBeToldWithoutAFile)
{
    Pon(ParaDOS);
    PonHerramienta("dosbox");
    EXPECT_EQ(launch::ArgumentosDeDOSBox(De(u" -x 5%"_s)),
        QStringList({ path(u"bin/dosbox"_s), u"-c"_s, u"mount C \""_s + path(u"emu"_s) + u"\" >nul"_s,
            u"-c"_s, u"C:"_s, u"-c"_s, u"cd \\"_s, u"-c"_s, u"C:\\NES.EXE -x 5%%"_s, u"-c"_s, u"exit"_s }));
}
