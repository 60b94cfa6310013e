// A whole launch, from the selection to the emulator's end: the checks, the screen, the names, the types
// without a ZIP.
#include "escenario.h"

#include "host/paths.h"
#include "launch/jugar.h"

#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class JugarTest : public Escenario {
protected:
    // What the debug mode showed, the title included.
    QString ordenMostrada() const { return respuestas.dichos.value(0); }
};

const QStringList FinalDeSiempre { u"MuestraCargando"_s, u"InfoEnColorDelSistema"_s,
    u"SeleccionaEnLista1 mario.nes"_s, u"EnfocaLista1"_s };

TEST_F(JugarTest, NothingAtAllHappens_WithoutAnEmulator)
{
    for (int tipo = 0; tipo < 10; ++tipo) {
        PonEmulador(tipo);
        pantalla.combo2.clear();
        Juega();
    }
    EXPECT_EQ(pantalla.llamadas, QStringList());
    EXPECT_EQ(M.TipoEmu, QString());
    EXPECT_FALSE(HuboJuego());
}

TEST_F(JugarTest, NothingHappensWithAnEmptyList_BelowType5)
{
    for (int tipo = 0; tipo < 5; ++tipo) {
        PonEmulador(tipo);
        pantalla.entradas = 0;
        pantalla.lista1.clear();
        Juega();
        EXPECT_EQ(M.TipoEmu, QString::number(tipo));
    }
    EXPECT_EQ(pantalla.llamadas, QStringList());
    EXPECT_FALSE(HuboJuego());
}

TEST_F(JugarTest, Type5StartsTheEmulatorWithAnEmptyList)
{
    PonEmulador(5);
    pantalla.entradas = 0;
    pantalla.lista1.clear();
    Juega();
    EXPECT_TRUE(HuboJuego());
    EXPECT_EQ(pantalla.llamadas.last(4),
        QStringList({ u"InfoEnColorDelSistema"_s, u"SeleccionaEnLista1 "_s, u"EnfocaLista1"_s,
            u"MuestraNingunaROM"_s }));
}

TEST_F(JugarTest, TheScreenShowsTheStart_AndIsPutBackAtTheEnd)
{
    PonEmulador(0);
    PonROM("mario.nes");
    Juega();
    EXPECT_EQ(pantalla.llamadas.first(), u"MuestraCargando"_s);
    EXPECT_EQ(pantalla.llamadasFueraDeLaEspera(), FinalDeSiempre);
    EXPECT_TRUE(pantalla.llamadas.contains(u"LLena_INFO"_s));
}

TEST_F(JugarTest, TheEntrySelectedAtTheStartIsSelectedAgain)
{
    PonEmulador(0);
    PonROM("mario.nes");
    pantalla.enLlamada = [this](const QString &llamada) {
        if (llamada == u"LLena_INFO")
            pantalla.lista1 = u"another"_s;
    };
    Juega();
    EXPECT_TRUE(pantalla.llamadas.contains(u"SeleccionaEnLista1 mario.nes"_s));
}

class SinRama : public JugarTest, public testing::WithParamInterface<QString> { };

TEST_P(SinRama, ATypeWithoutABranchShowsTheStart_AndStartsNothing)
{
    PonEmulador(0);
    M.Cat_XDI(3, 2) = GetParam();
    PonROM("mario.nes");
    Juega();
    EXPECT_EQ(pantalla.llamadas, FinalDeSiempre);
    EXPECT_EQ(M.TituloDOS, u"emu"_s);
    EXPECT_FALSE(HuboJuego());
}

TEST_P(SinRama, ByNoteToo_WithTheKeyLeftInLowerCaseAndTheRestOfTheNotesAsTheyWere)
{
    PonEmulador(0);
    M.Cat_XDI(3, 2) = GetParam();
    PonROM("mario.nes");
    PonNota(0, u"OTHER.NES"_s, u"other"_s);
    PonNota(1, u"MARIO.NES"_s, u"mario.nes"_s);
    PonNota(2, u"MARIO.NES"_s, u"mario.nes"_s);
    Juega();
    EXPECT_EQ(pantalla.llamadas, FinalDeSiempre);
    EXPECT_EQ(M.Nota_Clave(0), u"OTHER.NES"_s);
    EXPECT_EQ(M.Nota_Clave(1), u"mario.nes"_s);
    EXPECT_EQ(M.TituloDOS, u"emu"_s);
    EXPECT_FALSE(HuboJuego());
}

INSTANTIATE_TEST_SUITE_P(
    Tipos, SinRama, testing::Values(u"XDI=4"_s, u"XDI=9"_s, u"XDI="_s, u"XDI=0 "_s, u""_s));

class SoloExe : public JugarTest, public testing::WithParamInterface<int> { };

TEST_P(SoloExe, RunsTheExecutableAloneInItsDirectory)
{
    PonEmulador(GetParam(), u" -Fast \"Two Words\""_s, u"-second"_s);
    PonROM("mario.nes");
    PonParametros("MARIO.NES,s,e,-rom\r\n");
    M.TituloDOS = u"last"_s;
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(), u"Zembrolix: emu.sh -fast \"two words\""_s);
    EXPECT_EQ(Programa(), "./emu.sh");
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-fast", "two words" }));
    EXPECT_EQ(DirectorioDelJuego(), place("emu"));
    EXPECT_EQ(M.TituloDOS, u"last"_s);
}

INSTANTIATE_TEST_SUITE_P(Tipos, SoloExe, testing::Range(5, 9));

TEST_F(JugarTest, Type5WithParametersThatBringNoBlankJoinsThemToTheName_AndFindsNoSuchProgram)
{
    PonEmulador(5, u"-fast"_s);
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(), u"Zembrolix: emu.sh-fast"_s);
    EXPECT_FALSE(HuboJuego());
    EXPECT_EQ(pantalla.llamadas, FinalDeSiempre);
}

TEST_F(JugarTest, Type0HandsTheRomsPathOver)
{
    PonEmulador(0, u"-One"_s, u"-Two"_s);
    PonROM("mario.nes", "the game");
    PonParametros("mario.nes,s,e,-Rom X\r\n");
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(),
        u"Zembrolix: "_s + Corta(u"emu/emu.sh -one "_s) + Corta(u"roms/mario.nes -two -Rom X"_s));
    EXPECT_EQ(Programa(), place("emu/emu.sh"));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-one", place("roms/mario.nes"), "-two", "-Rom", "X" }));
    EXPECT_EQ(Abierto(), "the game");
    EXPECT_EQ(DirectorioDelJuego(), place("emu"));
    EXPECT_EQ(M.TituloDOS, u"emu"_s);
}

TEST_F(JugarTest, Type0ByNoteHandsTheSamePathOver_AndLeavesItsKeyInLowerCase)
{
    PonEmulador(0, u"-One"_s, u"-Two"_s);
    PonROM("Mario.nes", "the game");
    PonNota(0, u"MARIO.NES"_s, u"The Plumber"_s);
    PonParametros("MARIO.NES,s,e,-Rom X\r\n");
    pantalla.lista1 = u"The Plumber"_s;
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(),
        u"Zembrolix: "_s + Corta(u"emu/emu.sh -one "_s) + Corta(u"roms/mario.nes -two -Rom X"_s));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-one", place("roms/Mario.nes"), "-two", "-Rom", "X" }));
    EXPECT_EQ(Abierto(), "the game");
    EXPECT_EQ(M.Nota_Clave(0), u"mario.nes"_s);
}

TEST_F(JugarTest, Type0MakesNoTemporaryDirectory_ForAPlainFile)
{
    PonEmulador(0);
    PonROM("mario.nes");
    HazDuranteElJuego("ls -A '" + place("tmp") + "' > \"$OUT/tmp\"\n");
    Juega();
    EXPECT_EQ(Anotado("tmp"), "");
}

TEST_F(JugarTest, AShortNameStandsInTheText_TheTrueOneAmongTheArguments)
{
    PonEmulador(0);
    PonROM("The Game. Part 2.NES");
    pantalla.lista1 = u"The Game. Part 2.NES"_s;
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(),
        u"Zembrolix: "_s + Corta(u"emu/emu.sh  "_s) + Corta(u"roms/the_game__part_2.nes  "_s));
    EXPECT_EQ(Argumentos(), QByteArrayList({ place("roms/The Game. Part 2.NES") }));
}

TEST_F(JugarTest, Type1HandsTheNameAlone_AndTwoBlanksStandBehindTheProgramWithoutParameters)
{
    PonEmulador(1);
    makeDirectory("roms/Super Mario");
    pantalla.lista1 = u"Super Mario"_s;
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(), u"Zembrolix: "_s + Corta(u"emu/emu.sh  super_mario  "_s));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "super_mario" }));
    EXPECT_EQ(DirectorioDelJuego(), place("emu"));
}

TEST_F(JugarTest, Type1ByNote)
{
    PonEmulador(1, u"-1"_s, u"-2"_s);
    makeDirectory("roms/Mario");
    PonNota(0, u"MARIO"_s, u"The Plumber"_s);
    PonParametros("MARIO,s,e,-R\r\n");
    pantalla.lista1 = u"The Plumber"_s;
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(), u"Zembrolix: "_s + Corta(u"emu/emu.sh -1 mario -2 -R"_s));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2", "-R" }));
}

TEST_F(JugarTest, Type3ByFileNameHandsTheNameWithoutExtension)
{
    PonEmulador(3, u"-1"_s, u"-2"_s);
    PonROM("Mario.zip");
    PonParametros("mario.zip,s,e,-R\r\n");
    pantalla.lista1 = u"Mario.zip"_s;
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(), u"Zembrolix: "_s + Corta(u"emu/emu.sh -1 mario -2 -R"_s));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2", "-R" }));
    EXPECT_EQ(DirectorioDelJuego(), place("emu"));
}

TEST_F(JugarTest, Type3ByNoteGluesTheSecondParametersToTheName)
{
    PonEmulador(3, u"-1"_s, u" -2"_s);
    PonROM("Mario.zip");
    PonNota(0, u"MARIO"_s, u"The Plumber"_s);
    PonParametros("MARIO,s,e,-R\r\n");
    pantalla.lista1 = u"The Plumber"_s;
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_EQ(ordenMostrada(), u"Zembrolix: "_s + Corta(u"emu/emu.sh -1 mario -2 -R"_s));
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", "mario", "-2", "-R" }));
    EXPECT_EQ(M.Nota_Clave(0), u"mario"_s);
}

class NeoRage : public JugarTest, public testing::WithParamInterface<QString> { };

TEST_P(NeoRage, GetsTheWholePathByBothRoutes)
{
    PonEmulador(3, u"-1"_s, u"-2"_s);
    PonROM("My Game.ZIP", "the game");
    PonNota(0, u"MY GAME"_s, u"described"_s);
    pantalla.combo2 = GetParam();
    M.DebugMode = u"1"_s;
    for (const QString &entrada : { u"My Game.ZIP"_s, u"described"_s }) {
        pantalla.lista1 = entrada;
        Juega();
        EXPECT_EQ(respuestas.dichos.takeFirst(),
            u"Zembrolix: "_s + Corta(u"emu/emu.sh -1 "_s) + Corta(u"roms/my_game.zip -2 "_s));
        EXPECT_EQ(Argumentos(), QByteArrayList({ "-1", place("roms/My Game.ZIP"), "-2" }));
        EXPECT_EQ(Abierto(), "the game");
    }
}

INSTANTIATE_TEST_SUITE_P(EnCualquierCaso, NeoRage, testing::Values(u"NEORAGE"_s, u"NeoRage"_s));

TEST_F(JugarTest, OfTwoRomsWithOneDescriptionTheFirstIsPlayed)
{
    PonEmulador(0);
    PonROM("a.nes");
    PonROM("b.nes");
    PonNota(0, u"B.NES"_s, u"same"_s);
    PonNota(1, u"A.NES"_s, u"same"_s);
    pantalla.lista1 = u"same"_s;
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ place("roms/b.nes") }));
    EXPECT_EQ(M.Nota_Clave(1), u"A.NES"_s);
}

TEST_F(JugarTest, ParametersOfTheEmulatorComeInLowerCase_ThoseOfTheRomAsStored)
{
    PonEmulador(1, u"-Load=X"_s, u"-MODE"_s);
    PonROM("mario.nes");
    PonParametros("MARIO.NES,s,e,-KeepThis\r\n");
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-load=x", "mario.nes", "-mode", "-KeepThis" }));
}

TEST_F(JugarTest, ByFileNameTheRomsParametersAreKeptUnderTheShortName)
{
    PonEmulador(1);
    PonROM("Two Words.nes");
    PonParametros("Two Words.nes,s,e,-long\r\nTWO_WORDS.NES,s,e,-short\r\n");
    pantalla.lista1 = u"Two Words.nes"_s;
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "two_words.nes", "-short" }));
}

TEST_F(JugarTest, WithoutTheNotesFileARomHasNoParametersOfItsOwn)
{
    PonEmulador(1);
    PonROM("mario.nes");
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "mario.nes" }));
}

TEST_F(JugarTest, ANotesFileThatCanNotBeReadGivesNoParameters_AndTheGameIsPlayed)
{
    PonEmulador(1);
    PonROM("mario.nes");
    PonParametros("MARIO.NES,s,e,-x\r\n");
    setMode("program/Zembro.rom", 0);
    setMode("out", 0777);
    const int status = inChildOfOrdinaryUser([this] {
        Juega();
        return 0;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Argumentos(), QByteArrayList({ "mario.nes" }));
    ASSERT_EQ(unlink(place("out/arguments").constData()), 0);

    ASSERT_EQ(unlink(place("program/Zembro.rom").constData()), 0);
    makeDirectory("program/Zembro.rom");
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "mario.nes" }));
}

TEST_F(JugarTest, ABinaryNotesFileGivesNoParameters_AndTheGameIsPlayed)
{
    PonEmulador(1);
    PonROM("mario.nes");
    QByteArray todos;
    for (int i = 0; i < 256; ++i)
        todos += char(i);
    for (const QByteArray &basura :
        { todos, QByteArray(5000, '\0'), QByteArray(5000, '"'), todos + "\nParametros\n" + todos,
            QByteArray("Parametros\nMARIO.NES,\"") + todos, QByteArray("Parametros\nMARIO.NES,s,e") }) {
        makeFile("program/Zembro.rom", basura);
        Juega();
        EXPECT_EQ(Argumentos(), QByteArrayList({ "mario.nes" }));
        EXPECT_EQ(bytes("program/Zembro.rom"), basura);
        EXPECT_FALSE(M.Ficheros.isOpen(1));
        ASSERT_EQ(unlink(place("out/arguments").constData()), 0);
    }
}

TEST_F(JugarTest, ABinaryNotesFileWithARecordOfTheGameGivesItsParameters)
{
    PonEmulador(1);
    PonROM("mario.nes");
    QByteArray todos;
    for (int i = 0; i < 256; ++i)
        todos += char(i);
    makeFile("program/Zembro.rom", todos + "\nParametros\n\1\2,\xff,\3,x\nMARIO.NES,s,e,-x\n");
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "mario.nes", "-x" }));
}

TEST_F(JugarTest, TheNotesFileIsOnlyRead_AndEveryFileIsClosed)
{
    PonEmulador(1);
    PonROM("mario.nes");
    PonParametros("MARIO.NES,s,e,-x\r\n");
    const auto antes = bytes("program/Zembro.rom");
    makeFile("program/other", "x");
    M.Ficheros.openForInput(2, path(u"program/other"_s));
    Juega();
    EXPECT_EQ(bytes("program/Zembro.rom"), antes);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
    EXPECT_FALSE(M.Ficheros.isOpen(2));
}

TEST_F(JugarTest, ANumberThatAFailureLeftInUseIsFreeAgain_AndTheLaunchGoesOn)
{
    PonEmulador(1);
    PonROM("mario.nes");
    PonParametros("MARIO.NES,s,e,-x\r\n");
    M.Ficheros.openForInput(1, path(u"program/Zembro.rom"_s));
    while (!M.Ficheros.atEnd(1))
        M.Ficheros.readLine(1);
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "mario.nes" }));
    EXPECT_FALSE(M.Ficheros.isOpen(1));
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "mario.nes", "-x" }));
}

TEST_F(JugarTest, TheCommandIsShownOnce_AfterTheChangeOfDirectoryAndBeforeTheStart)
{
    PonEmulador(0);
    PonROM("mario.nes");
    M.DebugMode = u"1"_s;
    respuestas.alDecir = [this] {
        EXPECT_EQ(host::currentDirectory(), path(u"emu"_s));
        EXPECT_FALSE(HuboJuego());
    };
    Juega();
    EXPECT_EQ(respuestas.dichos.size(), 1);
    EXPECT_TRUE(HuboJuego());
}

TEST_F(JugarTest, TheCommandIsShownInDebugMode1Alone)
{
    PonEmulador(0);
    PonROM("mario.nes");
    for (const QString &modo : { u"0"_s, u"2"_s, u""_s, u"10"_s, u"-1"_s, u"x"_s }) {
        M.DebugMode = modo;
        Juega();
        EXPECT_EQ(respuestas.dichos, QStringList()) << modo.toStdString();
        EXPECT_TRUE(HuboJuego());
        ASSERT_EQ(unlink(place("out/arguments").constData()), 0);
    }
}

TEST_F(JugarTest, ARowPastTheTablesHasNoType_AndStartsNothing)
{
    PonEmulador(0);
    PonROM("mario.nes");
    for (const int emulador : { 150, 151, 4000 }) {
        pantalla.llamadas.clear();
        pantalla.emulador = emulador; // the row is one more
        M.TipoEmu = u"0"_s;
        Juega();
        EXPECT_EQ(M.TipoEmu, QString());
        EXPECT_EQ(pantalla.llamadas, FinalDeSiempre);
        EXPECT_FALSE(HuboJuego());
    }
}

TEST_F(JugarTest, TheWorkingDirectoryStaysTheEmulators)
{
    PonEmulador(0);
    PonROM("mario.nes");
    Juega();
    EXPECT_EQ(host::currentDirectory(), path(u"emu"_s));
    EXPECT_EQ(M.TipoEmu, u"0"_s);
}

class TodosLosTipos : public JugarTest, public testing::WithParamInterface<int> { };

TEST_P(TodosLosTipos, AMissingEmulatorStartsNothing_AndSaysNothing)
{
    PonEmulador(GetParam(), u" touch bad"_s);
    PonROM("mario.nes");
    ASSERT_EQ(unlink(place("emu/emu.sh").constData()), 0);
    Juega();
    EXPECT_EQ(pantalla.llamadas, FinalDeSiempre);
    EXPECT_EQ(host::currentDirectory(), path(u"program"_s));
    EXPECT_FALSE(exists("program/bad"));
}

TEST_P(TodosLosTipos, AnEmulatorWithoutTheRightToRunStartsNothing)
{
    PonEmulador(GetParam());
    PonROM("mario.nes");
    setMode("emu/emu.sh", 0644);
    Juega();
    EXPECT_EQ(pantalla.llamadas, FinalDeSiempre);
    EXPECT_FALSE(HuboJuego());
}

TEST_P(TodosLosTipos, AMissingRomLeavesItsFieldEmpty_AndTheCommandStartsNevertheless)
{
    PonEmulador(GetParam(), u" -1"_s, u"-2"_s);
    Juega();
    EXPECT_TRUE(HuboJuego());
    EXPECT_EQ(pantalla.llamadasFueraDeLaEspera(), FinalDeSiempre);
    const QByteArrayList argumentos = Argumentos();
    if (GetParam() >= 5)
        EXPECT_EQ(argumentos, QByteArrayList({ "-1" }));
    else if (GetParam() == 0)
        EXPECT_EQ(argumentos, QByteArrayList({ "-1", place("roms/"), "-2" }));
    else
        EXPECT_EQ(argumentos, QByteArrayList({ "-1", "-2" }));
}

TEST_P(TodosLosTipos, AMissingRomDirectoryIsNoFailureEither)
{
    PonEmulador(GetParam(), u" -1"_s);
    M.Cat_ROM(3, 2) = u"ROM=/no/such/"_s;
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ "-1" }));
}

TEST_P(TodosLosTipos, ACrashOfAnEarlierRunIsSweptAway)
{
    PonEmulador(GetParam());
    makeDirectory("tmp/ZB-TMP");
    setMode("tmp/ZB-TMP", 0700);
    makeFile("tmp/ZB-TMP/left.nes");
    setMode("tmp/ZB-TMP/left.nes", 0444);
    HazDuranteElJuego("ls -A '" + place("tmp") + "' > \"$OUT/tmp\"\n");
    Juega();
    EXPECT_EQ(Anotado("tmp"), "");
    EXPECT_EQ(M.RutaTrabajo, path(u"tmp/ZB-TMP/"_s));
}

INSTANTIATE_TEST_SUITE_P(Tipos, TodosLosTipos, testing::Values(0, 1, 2, 3, 5, 6, 7, 8));

TEST_F(JugarTest, ANoteBehindAFirstOneWithoutAKeyIsPlayed)
{
    PonEmulador(0);
    PonROM("mario.nes");
    PonNota(0, QString(), u"x"_s);
    PonNota(1, u"MARIO.NES"_s, u"Super Mario"_s);
    pantalla.lista1 = u"Super Mario"_s;
    Juega();
    EXPECT_EQ(Argumentos(), QByteArrayList({ place("roms/mario.nes") }));
}

TEST_F(JugarTest, AFailureOfTheScreenSkipsItsStepAlone)
{
    PonEmulador(0);
    PonROM("mario.nes");
    pantalla.enLlamada = [](const QString &llamada) {
        if (llamada != u"MuestraCargando")
            throw host::Failure(host::InvalidProperty, llamada);
    };
    Juega();
    EXPECT_EQ(pantalla.llamadasFueraDeLaEspera(), FinalDeSiempre);
}

TEST_F(JugarTest, ASecondLaunchFromTheWatchRunsNested)
{
    PonEmulador(0);
    PonROM("mario.nes");
    PonROM("zelda.nes");
    HazDuranteElJuego("echo \"$1\" >> \"$OUT/played\"\n");
    PantallaDePrueba otra;
    otra.lista1 = u"zelda.nes"_s;
    bool hecho = false;
    pantalla.enLlamada = [&](const QString &llamada) {
        if (!hecho && llamada == u"LLena_INFO") {
            hecho = true;
            launch::Jugar(M, otra);
        }
    };
    Juega();
    EXPECT_EQ(otra.llamadas.last(), u"EnfocaLista1"_s);
    EXPECT_EQ(pantalla.llamadas.last(), u"EnfocaLista1"_s);
    const QByteArrayList jugados = Anotado("played").trimmed().split('\n');
    EXPECT_EQ(jugados.size(), 2);
    EXPECT_TRUE(jugados.contains(place("roms/zelda.nes")));
}

} // namespace
