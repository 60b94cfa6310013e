// zembro from its command line to its status, and the program itself.
#include "mesadepruebas.h"

#include "companion/ordenes.h"

#include "host/paths.h"

#include <QJsonArray>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

class Zembro_ : public MesaDePruebas { };

QByteArray lineaDe(const QByteArray &texto, const QByteArray &principio)
{
    for (const QByteArray &linea : texto.split('\n')) {
        if (linea.startsWith(principio))
            return linea;
    }
    return {};
}

struct Programa {
    int estado = -1;
    QByteArray salida;
    QByteArray error;
};

Programa corre(const QString &directorio, const QStringList &argumentos)
{
    QProcess proceso;
    proceso.setWorkingDirectory(directorio);
    proceso.start(QStringLiteral(ZEMBRO), argumentos);
    EXPECT_TRUE(proceso.waitForFinished());
    EXPECT_EQ(proceso.exitStatus(), QProcess::NormalExit);
    return { proceso.exitCode(), proceso.readAllStandardOutput(), proceso.readAllStandardError() };
}

} // namespace

TEST_F(Zembro_, WithoutACommandItTellsOfThem_AndCouldNotRun)
{
    const Respuesta respuesta = Zembro({});
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_TRUE(respuesta.salida.startsWith("Usage: zembro COMMAND"));
    EXPECT_EQ(Zembro({ u"--help"_s }).salida, respuesta.salida);
    EXPECT_EQ(Zembro({ u"--help"_s }).estado, companion::Bien);
    EXPECT_EQ(Zembro({ u"help"_s }).salida, respuesta.salida);
    EXPECT_EQ(Zembro({ u"help"_s }).estado, companion::Bien);
}

TEST_F(Zembro_, TellsOfOneCommandInTwoWays)
{
    const Respuesta respuesta = Zembro({ u"help"_s, u"help"_s });
    EXPECT_TRUE(
        respuesta.salida.startsWith("Usage: zembro help [COMMAND] [--completion KIND] [--directory DIR]"));
    EXPECT_EQ(Zembro({ u"help"_s, u"--help"_s }).salida, respuesta.salida);
    EXPECT_EQ(respuesta.estado, companion::Bien);
}

TEST_F(Zembro_, TellsOfItsCommandsInJson)
{
    const QJsonObject todo = Json({ u"help"_s });
    EXPECT_GE(todo[u"commands"_s].toArray().size(), 1);
    const QJsonObject una = Json({ u"help"_s, u"help"_s });
    EXPECT_EQ(una[u"commands"_s].toArray().size(), 1);
    EXPECT_EQ(una[u"commands"_s][0][u"name"_s].toString(), u"help"_s);
}

TEST_F(Zembro_, TellsItsVersion)
{
    EXPECT_EQ(Zembro({ u"--version"_s }).salida, "zembro " ZEMBRO_VERSION "\n");
}

TEST_F(Zembro_, WhatItDoesNotKnowIsSaid_AndNothingIsDone)
{
    const struct {
        QStringList argumentos;
        QByteArray dicho;
    } filas[] = {
        { { u"nada"_s }, "There is no command nada." },
        { { u"help"_s, u"nada"_s }, "There is no command nada." },
        { { u"--nada"_s, u"help"_s }, "There is no option --nada." },
        { { u"help"_s, u"--nada"_s }, "There is no option --nada." },
        { { u"help"_s, u"-n"_s }, "There is no option -n." },
        { { u"help"_s, u"--directory"_s }, "An option lacks its value." },
        { { u"help"_s, u"--help=yes"_s }, "An option has a value that it doesn't take." },
        { { u"help"_s, u"a"_s, u"b"_s },
            "Usage: zembro help [COMMAND] [--completion KIND] [--directory DIR] [--json] [--help]" },
        { { u"a\x1b[2J%1"_s }, "There is no command a\\x1B[2J%1." },
    };
    for (const auto &fila : filas) {
        const Respuesta respuesta = Zembro(fila.argumentos);
        EXPECT_EQ(respuesta.estado, companion::NoPudo) << fila.dicho.toStdString();
        EXPECT_EQ(respuesta.error, "zembro: " + fila.dicho + '\n');
        EXPECT_EQ(respuesta.salida, "");
    }
}

TEST_F(Zembro_, SaysInJsonToo_ThatItCouldNotRun)
{
    EXPECT_EQ(Json({ u"help"_s, u"nada"_s }, companion::NoPudo)[u"error"_s].toString(),
        u"There is no command nada."_s);
    EXPECT_EQ(Json({ u"help"_s, u"help"_s, u"--directory"_s, u"/nowhere"_s }, companion::NoPudo)[u"error"_s]
                  .toString(),
        u"/nowhere is no directory of the program."_s);
}

TEST_F(Zembro_, WhereNothingOfTheProgramLies_EachCommandSaysWhatToDo)
{
    const QByteArray dicho = "zembro: " + host::programDirectory().toUtf8()
        + " is no directory of the program. Start Zembrolix once, which makes its directory, or name that "
          "one with --directory.\n";
    const QStringList dados { u"algo"_s, u"algo"_s, u"algo"_s };
    for (const companion::Orden *orden : companion::Ordenes()) {
        const QStringList argumentos = dados.first(companion::CabidaDe(orden->argumentos).minimo);
        const Respuesta respuesta = Zembro(QStringList { orden->nombre } + argumentos);
        const bool necesita = orden->nombre != u"help" && orden->nombre != u"why";
        EXPECT_EQ(respuesta.error == dicho, necesita)
            << orden->nombre.toStdString() << respuesta.error.toStdString();
        EXPECT_EQ(respuesta.estado, orden->nombre == u"help" ? companion::Bien : companion::NoPudo);
    }
    EXPECT_FALSE(host::exists(host::programFile(u"copias"_s)));
    Pon(u"copias/2026-01-01_00-00-00/Zembro.emu"_s, "[EOF]\r\n");
    EXPECT_NE(Zembro({ u"restore"_s }).error, dicho);
}

TEST_F(Zembro_, OptionsOfAllCommandsStandAheadOfTheCommandOrBehindIt)
{
    const QByteArray antes = Zembro({ u"--json"_s, u"help"_s }).salida;
    EXPECT_TRUE(antes.startsWith("{"));
    EXPECT_EQ(Zembro({ u"help"_s, u"--json"_s }).salida, antes);
}

TEST_F(Zembro_, BehindTwoDashesNothingIsAnOption)
{
    EXPECT_EQ(Zembro({ u"help"_s, u"--"_s, u"--json"_s }).error, "zembro: There is no command --json.\n");
}

TEST_F(Zembro_, SpeaksTheLanguageOfTheSettings)
{
    PonAjustes(u"ZB-XXX.LNG"_s);
    Pon(u"LNG/ZB-XXX.LNG"_s,
        "' a language\r\nZbo_OpVersion.....=\"de versie\"\r\nshort\r\nZbo_Help..........=\"helpt\"\r\n");
    const QByteArray ayuda = Zembro({ u"help"_s }).salida;
    EXPECT_TRUE(lineaDe(ayuda, "  --version").endsWith("de versie")) << ayuda.toStdString();
    EXPECT_TRUE(lineaDe(ayuda, "  help").endsWith("helpt")) << ayuda.toStdString();
    EXPECT_TRUE(lineaDe(ayuda, "  --help").endsWith("this help")) << ayuda.toStdString();
}

TEST_F(Zembro_, SpeaksEnglishWhereThereIsNoLanguage)
{
    const QByteArray sinNada = Zembro({ u"help"_s }).salida;
    EXPECT_TRUE(lineaDe(sinNada, "  --version").endsWith("the version"));
    Pon(u"Zembro.cfg"_s, "VACIO\r\n");
    EXPECT_EQ(Zembro({ u"help"_s }).salida, sinNada);
    PonAjustes(u"ZB-XXX.LNG"_s);
    EXPECT_EQ(Zembro({ u"help"_s }).salida, sinNada);
}

TEST_F(Zembro_, ReadsTheSettingsOfTheDirectoryThatItIsGiven)
{
    PonAjustes(u"ZB-XXX.LNG"_s);
    Pon(u"LNG/ZB-XXX.LNG"_s, "Zbo_OpVersion.....=\"de versie\"\r\n");
    const QString suyo = host::programDirectory();
    host::setProgramDirectory(u"/"_s);
    const QByteArray ayuda = Zembro({ u"help"_s, u"--directory"_s, suyo }).salida;
    EXPECT_TRUE(lineaDe(ayuda, "  --version").endsWith("de versie")) << ayuda.toStdString();
    EXPECT_EQ(host::programDirectory(), suyo);
}

TEST_F(Zembro_, TheProgramItselfAnswersOnItsStreams)
{
    const QString directorio = host::programDirectory();
    const Programa bien = corre(directorio, { u"--version"_s });
    EXPECT_EQ(bien.estado, 0);
    EXPECT_EQ(bien.salida, "zembro " ZEMBRO_VERSION "\n");
    const Programa mal = corre(directorio, { u"nada"_s });
    EXPECT_EQ(mal.estado, 2);
    EXPECT_EQ(mal.error, "zembro: There is no command nada.\n");
    EXPECT_EQ(mal.salida, "");
}

TEST_F(Zembro_, TheProgramTakesTheRelativeDirectoryFromWhereItIsCalled)
{
    PonAjustes(u"ZB-XXX.LNG"_s);
    Pon(u"LNG/ZB-XXX.LNG"_s, "Zbo_OpVersion.....=\"de versie\"\r\n");
    const Programa bien = corre(host::programDirectory(), { u"help"_s, u"--directory"_s, u"."_s });
    EXPECT_TRUE(lineaDe(bien.salida, "  --version").endsWith("de versie"));
}

// What draws would take far longer to load than all the rest.
TEST_F(Zembro_, TheProgramLoadsNothingThatDraws)
{
    QProcess ldd;
    ldd.start(u"ldd"_s, { QStringLiteral(ZEMBRO) });
    ASSERT_TRUE(ldd.waitForFinished());
    const QByteArray bibliotecas = ldd.readAllStandardOutput();
    EXPECT_TRUE(bibliotecas.contains("libQt6Core"));
    for (const char *dibuja : { "libQt6Gui", "libQt6Widgets", "libxcb", "libX11", "libGL" })
        EXPECT_FALSE(bibliotecas.contains(dibuja)) << dibuja;
}

TEST_F(Zembro_, WithoutACommandJsonSaysSo_AndOfHelpAndVersionItIsJsonToo)
{
    EXPECT_EQ(
        Json({}, companion::NoPudo)[u"error"_s].toString(), u"Name a command; zembro help lists them."_s);
    EXPECT_EQ(Json({ u"--version"_s })[u"version"_s].toString(), QStringLiteral(ZEMBRO_VERSION));
    EXPECT_GT(Json({ u"--help"_s })[u"commands"_s].toArray().size(), 5);
    EXPECT_EQ(Json({ u"list"_s, u"--help"_s })[u"commands"_s].toArray().size(), 1);
}

TEST_F(Zembro_, HelpTellsOfTheEndOfTheOptions)
{
    EXPECT_TRUE(Zembro({ u"play"_s, u"--help"_s }).salida.contains("\n  --  "));
}

TEST_F(Zembro_, AnAnswerThatCannotBeWrittenIsSaid_OfEveryCommand)
{
    for (const companion::Orden *orden : companion::Ordenes()) {
        QProcess zembro;
        zembro.setStandardInputFile(QProcess::nullDevice());
        zembro.setStandardOutputFile(u"/dev/full"_s);
        zembro.start(QStringLiteral(ZEMBRO), { orden->nombre, u"--help"_s });
        ASSERT_TRUE(zembro.waitForFinished());
        EXPECT_EQ(zembro.exitCode(), companion::NoPudo) << orden->nombre.toStdString();
        EXPECT_EQ(
            zembro.readAllStandardError(), "zembro: The answer can't be written: No space left on device\n");
    }
}
