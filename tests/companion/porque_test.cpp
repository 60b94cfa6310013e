// zembro why, and zembro play.
#include "mesadepruebas.h"

#include "tests/launch/zipdeprueba.h"

#include "host/aside.h"
#include "host/paths.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <functional>
#include <memory>

#include <signal.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class Why : public MesaConJuegos {
protected:
    Why() { qputenv(host::AsideFileVariable, Ruta(u"log"_s).toUtf8()); }
    ~Why() override { qunsetenv(host::AsideFileVariable); }
};

class Play : public MesaConJuegos {
protected:
    Play() { qputenv(host::AsideFileVariable, Ruta(u"log"_s).toUtf8()); }
    ~Play() override
    {
        qunsetenv(host::AsideFileVariable);
        host::changeDirectory(u"/"_s);
    }
};

const QByteArray Empieza = "zembrolix 2026-01-02T03:04:05 7.1 game Sis Uno 'Super Mario'\n"
                           "zembrolix 2026-01-02T03:04:05 7.1 start /emu/uno.sh '/roms/a b.nes'\n"
                           "zembrolix 2026-01-02T03:04:05 7.1 directory /emu\n";

bool EsperaA(const std::function<bool()> &llega)
{
    for (int pasos = 0; pasos < 1000 && !llega(); ++pasos)
        usleep(10'000);
    return llega();
}

} // namespace

TEST_F(Why, TellsOfTheLastLaunch)
{
    Pon(u"log"_s, Empieza + "zembrolix 2026-01-02T03:04:06 7.1 signal 11 after 0.4\n");
    const Respuesta respuesta = Zembro({ u"why"_s });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_EQ(respuesta.salida,
        "Game: Sis / Uno / Super Mario, at 2026-01-02T03:04:05\n"
        "Command: /emu/uno.sh '/roms/a b.nes'\n"
        "In the directory: /emu\n"
        "The emulator was ended by the signal SIGSEGV after 0.4 seconds.\n");
    const QJsonObject json = Json({ u"why"_s }, companion::Hallazgos);
    EXPECT_EQ(json[u"signal"_s].toInt(), 11);
    EXPECT_EQ(json[u"seconds"_s].toDouble(), 0.4);
    EXPECT_EQ(json[u"arguments"_s].toArray(), QJsonArray({ u"/emu/uno.sh"_s, u"/roms/a b.nes"_s }));
}

TEST_F(Why, AGoodEndIsNoFinding_NorIsAnEmulatorThatStillRuns)
{
    Pon(u"log"_s, Empieza + "zembrolix 2026-01-02T03:04:06 7.1 status 0 after 60.0\n");
    EXPECT_EQ(Zembro({ u"why"_s }).estado, companion::Bien);
    EXPECT_TRUE(
        Zembro({ u"why"_s }).salida.endsWith("The emulator ended with the status 0 after 60.0 seconds.\n"));
    Pon(u"log"_s, Empieza);
    EXPECT_EQ(Zembro({ u"why"_s }).estado, companion::Bien);
    EXPECT_TRUE(
        Zembro({ u"why"_s }).salida.endsWith("It still runs, or the program was ended ahead of it.\n"));
}

TEST_F(Why, AStartThatFailedIsSaid)
{
    Pon(u"log"_s, Empieza + "zembrolix 2026-01-02T03:04:06 7.1 failed 'There is no executable /x'\n");
    const Respuesta respuesta = Zembro({ u"why"_s });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_TRUE(respuesta.salida.endsWith(
        "Doesn't start: There is no program /x; correct its path in the configuration.\n"));
}

TEST_F(Why, ANoticeAheadOfAGoodEndIsSaid_AndIsNoFinding)
{
    Pon(u"log"_s,
        Empieza + "zembrolix T 7.1 notice 'Nothing can be written.'\nzembrolix T 7.1 status 0 after 60.0\n");
    const Respuesta respuesta = Zembro({ u"why"_s });
    EXPECT_EQ(respuesta.estado, companion::Bien);
    EXPECT_TRUE(respuesta.salida.endsWith(
        "Nothing can be written.\nThe emulator ended with the status 0 after 60.0 seconds.\n"))
        << respuesta.salida.toStdString();
    const QJsonObject json = Json({ u"why"_s });
    EXPECT_EQ(json[u"notice"_s], u"Nothing can be written."_s);
    EXPECT_FALSE(json.contains(u"problem"_s));
}

TEST_F(Why, AnEndThatNobodySawHowIsNoRunThatGoesOn)
{
    Pon(u"log"_s, Empieza + "zembrolix 2026-01-02T03:04:06 7.1 status unknown after 60.0\n");
    EXPECT_TRUE(
        Zembro({ u"why"_s }).salida.endsWith("The emulator ended after 60.0 seconds; how isn't known.\n"));
    EXPECT_EQ(Json({ u"why"_s })[u"seconds"_s].toDouble(), 60);
}

TEST_F(Why, WhatTheProgramLacksIsSaidBehindAStartThatFailed_AndBehindItsLoadersStatus)
{
    PonGuion(u"emu/uno.sh"_s, "");
    Pon(u"emu/uno.sh"_s, "#!/no/such/shell\n");
    const QByteArray programa = Ruta(u"emu/uno.sh"_s).toUtf8();
    const QByteArray empieza = "zembrolix T 7.1 game a b c\nzembrolix T 7.1 start " + programa + "\n";
    for (const QByteArray &final : { "failed 'Failed to start a program: " + programa + "'\n",
             QByteArray("status 127 after 0.0\n"), QByteArray("status 126 after 0.0\n") }) {
        Pon(u"log"_s, empieza + "zembrolix T 7.1 " + final);
        EXPECT_TRUE(
            Zembro({ u"why"_s }).salida.contains(programa + " needs /no/such/shell, which isn't there"))
            << Zembro({ u"why"_s }).salida.toStdString();
    }
    Pon(u"log"_s, empieza + "zembrolix T 7.1 status 1 after 0.0\n");
    EXPECT_FALSE(Zembro({ u"why"_s }).salida.contains("/no/such/shell"));
}

TEST_F(Why, AFileThatNothingIsWrittenToIsNotRead)
{
    Pon(u"true"_s, Empieza);
    for (const auto enlaza : { ::symlink, ::link }) {
        QFile::remove(Ruta(u"log"_s));
        ASSERT_EQ(enlaza(Ruta(u"true"_s).toUtf8().constData(), Ruta(u"log"_s).toUtf8().constData()), 0);
        const Respuesta respuesta = Zembro({ u"why"_s });
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_TRUE(respuesta.error.startsWith("zembro: Nothing is kept in " + Ruta(u"log"_s).toUtf8()))
            << respuesta.error.toStdString();
    }
    QFile::remove(Ruta(u"log"_s));
    ASSERT_EQ(mkfifo(Ruta(u"log"_s).toUtf8().constData(), 0600), 0);
    EXPECT_EQ(Zembro({ u"why"_s }).estado, companion::NoPudo);
}

TEST_F(Why, WithoutLinesItCouldNotTell)
{
    EXPECT_EQ(Zembro({ u"why"_s }).estado, companion::NoPudo);
    EXPECT_TRUE(Zembro({ u"why"_s }).error.contains(Ruta(u"log"_s).toUtf8()));
    Pon(u"log"_s, "noise \x1b[2J \xff\n");
    EXPECT_EQ(Zembro({ u"why"_s }).error, "zembro: " + Ruta(u"log"_s).toUtf8() + " tells of no launch.\n");
}

TEST_F(Why, WithoutLinesTooWhatAGameSavedComesBack)
{
    const QByteArray temporal = qgetenv("TMPDIR");
    PonDirectorio(u"temporal"_s);
    ASSERT_EQ(chmod(Ruta(u"temporal"_s).toUtf8().constData(), 0700), 0);
    qputenv("TMPDIR", Ruta(u"temporal"_s).toUtf8());
    const QString corrida = u"temporal/ZB-DOS-99999999-1/"_s; // no process has such a number
    Pon(u"roms/ni\u00F1o.nes"_s, "a game");
    const auto deja = [&](const QString &casa) {
        Pon(corrida + u"files-E/NINO.SAV"_s, "saved");
        PonDirectorio(corrida + u"shown-E"_s);
        ASSERT_TRUE(QFile::link(Ruta(casa + u"/ni\u00F1o.nes"_s), Ruta(corrida + u"shown-E/NINO.NES"_s)));
    };
    const std::initializer_list<std::function<void()>> sinLineas { [&] { QFile::remove(Ruta(u"log"_s)); },
        [&] { Pon(u"log"_s, "none of a launch\n"); },
        [&] {
            QFile::remove(Ruta(u"log"_s));
            ASSERT_EQ(mkfifo(Ruta(u"log"_s).toUtf8().constData(), 0600), 0);
        } };
    for (const auto &faltan : sinLineas) {
        faltan();
        deja(u"roms"_s);
        const Respuesta respuesta = Zembro({ u"why"_s });
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_EQ(Bytes(u"roms/ni\u00F1o.nes - .SAV"_s), "saved");
        EXPECT_TRUE(respuesta.error.startsWith("zembro: What a game had saved is back in its place: "
            + Ruta(u"roms/ni\u00F1o.nes - .SAV"_s).toUtf8() + "\nzembro: "))
            << respuesta.error.toStdString();
        EXPECT_FALSE(QFile::exists(Ruta(corrida)));
        QFile::remove(Ruta(u"roms/ni\u00F1o.nes - .SAV"_s));
    }
    deja(u"gone"_s);
    EXPECT_TRUE(Zembro({ u"why"_s }).error.contains(Ruta(corrida + u"files-E"_s).toUtf8()));
    temporal.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporal);
}

TEST_F(Why, WithoutTheVariableTheFileOfTheStartersIsRead)
{
    qunsetenv(host::AsideFileVariable);
    qputenv("XDG_STATE_HOME", Ruta(u"state"_s).toUtf8());
    Pon(u"state/zembrolix/log"_s, Empieza);
    EXPECT_EQ(Json({ u"why"_s })[u"entry"_s].toString(), u"Super Mario"_s);
    qunsetenv("XDG_STATE_HOME");
}

TEST_F(Play, StartsTheGame_AndEndsWithItsStatus)
{
    PonGuion(u"emu/uno.sh"_s, "printf '%s\\n' \"$PWD\" \"$@\" >out; exit 7\n");
    const Respuesta respuesta = Zembro({ u"play"_s, u"sis"_s, u"uno"_s, u"super"_s });
    EXPECT_EQ(respuesta.estado, 7);
    EXPECT_EQ(Bytes(u"emu/out"_s),
        Ruta(u"emu"_s).toUtf8() + "\n-a\n" + Ruta(u"roms/Mario.nes"_s).toUtf8() + "\n-fast\n");
    EXPECT_TRUE(respuesta.error.contains("zembro: The emulator ended with the status 7 after 0."));
    EXPECT_EQ(respuesta.salida, "");
    EXPECT_FALSE(QFile::exists(Ruta(u"log"_s))); // which tells of the main program
}

TEST_F(Play, AGoodEndIsSaidInOneLine)
{
    const Respuesta respuesta = Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"Zelda.nes"_s });
    EXPECT_EQ(respuesta.estado, 0);
    EXPECT_EQ(respuesta.salida, "");
    EXPECT_TRUE(respuesta.error.startsWith("zembro: The emulator ended with the status 0 after 0."));
    EXPECT_EQ(respuesta.error.count('\n'), 1) << respuesta.error.toStdString();
}

// Of the program itself, whose emulator is asked to end with it.
TEST_F(Play, ASignalIsHandedOn_AndWhatWasUnpackedIsRemoved)
{
    PonDirectorio(u"tmp"_s);
    ASSERT_EQ(chmod(Ruta(u"tmp"_s).toUtf8().constData(), 0700), 0);
    Pon(u"roms/Packed.zip"_s, Zip({ { .nombre = "Packed.nes" } }));
    // A starter that doesn't make way for the emulator.
    PonGuion(u"emu/uno.sh"_s,
        "echo \"$2\" >\"$0.file\"\nsh -c 'echo $$ >\"$0\"; exec sleep 60' \"$0.pid\"\nexit 3\n");
    Cambia(u"Zembro.emu"_s, "*.NES", "*.ZIP\r\n*.NES");
    for (const int senal : { SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGUSR1, SIGUSR2 }) {
        QFile::remove(Ruta(u"emu/uno.sh.pid"_s));
        QProcess proceso;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(u"TMPDIR"_s, Ruta(u"tmp"_s));
        proceso.setProcessEnvironment(entorno);
        proceso.start(QStringLiteral(ZEMBRO),
            { u"play"_s, u"Sis"_s, u"Uno"_s, u"Packed"_s, u"--directory"_s, Ruta(QString()) });
        ASSERT_TRUE(EsperaA([&] {
            return QFile::exists(Ruta(u"emu/uno.sh.pid"_s)) && Bytes(u"emu/uno.sh.pid"_s).endsWith('\n');
        }));
        const QString desempaquetado = QString::fromUtf8(Bytes(u"emu/uno.sh.file"_s).trimmed());
        EXPECT_TRUE(QFile::exists(desempaquetado)) << desempaquetado.toStdString();
        const pid_t emulador = Bytes(u"emu/uno.sh.pid"_s).trimmed().toInt();
        ASSERT_GT(emulador, 1);
        ASSERT_GT(proceso.processId(), 1);
        ASSERT_EQ(kill(pid_t(proceso.processId()), senal), 0);
        ASSERT_TRUE(proceso.waitForFinished());
        EXPECT_EQ(proceso.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(proceso.exitCode(), 128 + senal);
        EXPECT_TRUE(EsperaA([&] { return kill(emulador, 0) != 0; }));
        EXPECT_FALSE(QFile::exists(desempaquetado));
        EXPECT_TRUE(proceso.readAllStandardError().contains("The emulator was ended by the signal SIG"));
    }
}

TEST_F(Play, ASignalIsSaid_AndCountedAsAShellDoes)
{
    PonGuion(u"emu/uno.sh"_s, "kill -KILL $$\n");
    const QJsonObject json = Json({ u"play"_s, u"Sis"_s, u"Uno"_s, u"Zelda.nes"_s }, 128 + 9);
    EXPECT_EQ(json[u"signal"_s].toInt(), 9);
}

// Of the program itself: the emulator has the same outputs.
TEST_F(Play, WithJsonTheAnswerStandsAloneOnTheStandardOutput)
{
    PonGuion(u"emu/uno.sh"_s, "echo of the emulator; echo beside >&2\n");
    const auto juega = [&](const QStringList &opciones) {
        auto proceso = std::make_unique<QProcess>();
        proceso->start(QStringLiteral(ZEMBRO),
            QStringList { u"play"_s, u"Sis"_s, u"Uno"_s, u"Zelda.nes"_s, u"--directory"_s, Ruta(QString()) }
                + opciones);
        EXPECT_TRUE(proceso->waitForFinished());
        EXPECT_EQ(proceso->exitCode(), 0);
        return proceso;
    };
    const auto json = juega({ u"--json"_s });
    const QByteArray salida = json->readAllStandardOutput();
    EXPECT_EQ(QJsonDocument::fromJson(salida)[u"status"_s].toInt(-1), 0) << salida.toStdString();
    EXPECT_EQ(json->readAllStandardError(), "of the emulator\nbeside\n");
    EXPECT_EQ(juega({})->readAllStandardOutput(), "of the emulator\n");
}

TEST_F(Play, BeforeTheFirstRunTheWordsAreEnglish)
{
    Pon(u"roms/pack.zip"_s, "no archive");
    Cambia(u"Zembro.emu"_s, "*.NES", "*.ZIP\r\n*.NES");
    Cambia(u"Zembro.cfg"_s, "ZB-ENG.LNG", "VACIO");
    Pon(u"LNG/ZB-ENG.LNG"_s, "Msg_ZipSinRoms1...=\"No ROM in there.\"\r\n");
    const Respuesta respuesta = Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"pack"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_TRUE(respuesta.error.contains("No ROM in there.")) << respuesta.error.toStdString();
    Cambia(u"Zembro.cfg"_s, "VACIO", "ZB-ESP.LNG");
    Pon(u"LNG/ZB-ESP.LNG"_s, "Msg_ZipSinRoms1...=\"Sin ROMs.\"\r\n");
    EXPECT_TRUE(Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"pack"_s }).error.contains("Sin ROMs."));
}

TEST_F(Play, ANameThatIsLeftEmptyIsNoName)
{
    PonGuion(u"emu/uno.sh"_s, "touch out\n");
    Cambia(u"Zembro.emu"_s, "'------\r\n[EOF]",
        "'------\r\n-Otro\r\nWEB1=\r\n'\r\n+Tres\r\nEXE=/x\r\nXDI=NO.0\r\nROM=/x/\r\nIMG=/x/\r\n"
        "PAR1=\r\nPAR2=\r\nWEB2=\r\n'------\r\n[EOF]");
    for (const QString &orden : { u"play"_s, u"command"_s }) {
        EXPECT_EQ(Zembro({ orden, {}, {}, u"super"_s }).error,
            "zembro: Several fit; name one of them:\n    Otro\n    Sis\n");
        EXPECT_EQ(Zembro({ orden, u"Sis"_s, {} }).error,
            "zembro: Several fit; name one of them:\n    Dos\n    Uno\n");
        EXPECT_EQ(Zembro({ orden, u"Sis"_s, u"Uno"_s }).error,
            "zembro: Several fit; name one of them:\n    Super Mario\n    Zelda II.nes\n    Zelda.nes\n");
        EXPECT_EQ(Zembro({ orden, {}, {}, u"super"_s }).estado, companion::NoPudo);
    }
    for (const QString &orden : { u"describe"_s, u"export"_s }) {
        const Respuesta respuesta = Zembro({ orden, {} });
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_TRUE(respuesta.error.startsWith("zembro: Several fit; name one of them:\n    Otro\n"));
    }
    EXPECT_EQ(Zembro({ u"list"_s, {}, u"nada"_s }).estado, companion::NoPudo);
    EXPECT_EQ(Zembro({ u"check"_s, {}, u"nada"_s }).estado, companion::NoPudo);
    EXPECT_FALSE(QFile::exists(Ruta(u"emu/out"_s)));
    const Respuesta json = Zembro({ u"play"_s, {}, {}, u"super"_s, u"--json"_s });
    EXPECT_EQ(QJsonDocument::fromJson(json.salida)[u"candidates"_s].toArray().size(), 2);
}

TEST_F(Play, TheOnlySystemAndEmulatorNeedNoName)
{
    const QByteArray catalogo = Bytes(u"Zembro.emu"_s);
    Pon(u"Zembro.emu"_s,
        catalogo.first(catalogo.indexOf("+Dos")) + catalogo.sliced(catalogo.indexOf("'------")));
    EXPECT_EQ(Zembro({ u"play"_s, {}, {}, u"super"_s }).estado, companion::Bien);
}

TEST_F(Play, AStartThatFailsIsSaid_WithTheProgramThatIsMeant)
{
    Cambia(u"Zembro.emu"_s, "emu/uno.sh", "emu/one.sh");
    const Respuesta respuesta = Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"Zelda.nes"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_TRUE(respuesta.error.endsWith("zembro: Doesn't start: There is no program "
        + Ruta(u"emu/one.sh"_s).toUtf8()
        + "; correct its path in the configuration.\nzembro: Perhaps this one is meant: "
        + Ruta(u"emu/uno.sh"_s).toUtf8() + '\n'))
        << respuesta.error.toStdString();
}

TEST_F(Play, WhatFitsNothingOrSeveralStartsNothing)
{
    PonGuion(u"emu/uno.sh"_s, "touch out\n");
    EXPECT_EQ(Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"zel"_s }).error,
        "zembro: Several fit zel:\n    Zelda II.nes\n    Zelda.nes\n");
    EXPECT_EQ(
        Zembro({ u"play"_s, u"Sis"_s, u"Uno"_s, u"luigi"_s }).error, "zembro: No listed game fits luigi.\n");
    EXPECT_FALSE(QFile::exists(Ruta(u"emu/out"_s)));
}
