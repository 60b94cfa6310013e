// The start of the program, in its order, and what stands on the screen at its end.

#include "mundotest.h"

#include "tests/host/systemcalls.h"
#include "tests/support/witness.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

using ArranqueTest = MundoTest;

TEST_F(ArranqueTest, FirstPositionsSelectTheFirstSystemAndItsFirstEmulatorInSortedOrder)
{
    startAt(0, 0);
    EXPECT_THAT(entries(systems()), ElementsAre(u"alfa"_s, u"Medio"_s, u"Zeta"_s));
    EXPECT_EQ(systems().Text(), u"alfa"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Alto"_s, u"beta"_s));
    EXPECT_EQ(emulators().Text(), u"Alto"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_EQ(list().Text(), u"a.sms"_s);
    EXPECT_EQ(summary(), u"2 ROMS - 0.01MB"_s);
    EXPECT_EQ(info(), u"a.sms 5Kb  [NOR]"_s);
    EXPECT_EQ(word(), u"Jugar"_s);
}

TEST_F(ArranqueTest, SavedPositionsAreThoseOfTheListsNotOfTheCatalogue)
{
    startAt(Zeta, 0);
    EXPECT_EQ(systems().Text(), u"Zeta"_s);
    EXPECT_EQ(emulators().Text(), u"Uno"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    restart();
    EXPECT_EQ(systems().Text(), u"Zeta"_s);
}

TEST_F(ArranqueTest, SecondEmulatorIsRestored)
{
    startAt(Alfa, 1);
    EXPECT_EQ(emulators().Text(), u"beta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Un juego"_s));
}

TEST_F(ArranqueTest, MarkOfNoEmulatorLeavesTheSystemAlone)
{
    startWithoutEmulator(Medio);
    EXPECT_EQ(systems().Text(), u"Medio"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Dir"_s, u"Solo"_s));
    EXPECT_EQ(emulators().ListIndex(), -1);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(ArranqueTest, SystemWithOneEmulatorIsNotGivenItByTheStart)
{
    startWithoutEmulator(Zeta);
    EXPECT_EQ(systems().Text(), u"Zeta"_s);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
}

TEST_F(ArranqueTest, WithoutSavingItStartsWithTheFirstSystemAndNoEmulator)
{
    Settings settings;
    settings.SaveLast = u"0"_s;
    settings.LastSisUsed = u"2"_s;
    files.writeSettings(settings);
    start();
    EXPECT_EQ(M->UltimoSistema, u"0"_s);
    EXPECT_EQ(M->UltimoEmulador, u"696969"_s);
    EXPECT_EQ(systems().Text(), u"alfa"_s);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(M->IndiceRutas, 0);
}

TEST_F(ArranqueTest, EmptyCatalogueSaysThatThereAreNoROMs)
{
    files.writeCatalogue({});
    start();
    EXPECT_THAT(entries(systems()), IsEmpty());
    EXPECT_THAT(entries(emulators()), IsEmpty());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(ArranqueTest, EmulatorWithoutROMsSaysSoWithAComma)
{
    files.remove(u"zeta"_s);
    startAt(Zeta, 0);
    EXPECT_EQ(emulators().Text(), u"Uno"_s);
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(word(), u"Jugar"_s);
}

TEST_F(ArranqueTest, SettingsAreKept)
{
    Settings settings;
    settings.LastSisUsed = u"1"_s;
    settings.LastEmuUsed = u"1"_s;
    settings.TypeOfEditor = u"0"_s;
    settings.MsgEndDOS = u"Fin"_s;
    settings.DebugMode = u"1"_s;
    settings.Filters = { u"CFG"_s, u" HI"_s };
    files.writeSettings(settings);
    start();
    EXPECT_EQ(M->UltimoSistema, u"1"_s);
    EXPECT_EQ(M->UltimoEmulador, u"1"_s);
    EXPECT_EQ(M->GuardarUltimo, u"1"_s);
    EXPECT_EQ(M->TypeOfEditor, u"0"_s);
    EXPECT_EQ(M->MsgEndDOS, u"Fin"_s);
    EXPECT_EQ(M->LanguageFile, u"ZB-ESP.LNG"_s);
    EXPECT_EQ(M->DebugMode, u"1"_s);
    EXPECT_EQ(M->Filtros(0), u"CFG"_s);
    EXPECT_EQ(M->Filtros(1), u" HI"_s);
    EXPECT_EQ(M->Filtros(2), QString());
    EXPECT_EQ(M->FiltrosTexto, u"CFG, HI"_s);
}

// The first one takes longer to load than a list to fill.
TEST_F(ArranqueTest, HourglassIsShownOnceTheDiskTurnsOutToBeSlow)
{
    for (int i = 0; i < 40; ++i)
        files.writeSize(u"alfa/more%1.sms"_s.arg(i), 1024);
    QList<bool> shown;
    const Witness pointer(*portada, QEvent::CursorChange, [&] {
        if (portada->cursor().shape() == Qt::WaitCursor)
            shown << !QGuiApplication::overrideCursor();
    });
    {
        const systemcalls::SlowLooks slow(60'000'000);
        startAt(Alfa, 0);
    }
    ASSERT_THAT(shown, testing::SizeIs(testing::Ge(2))); // that of the list, and that of its first entry
    EXPECT_FALSE(shown.first());
    EXPECT_TRUE(shown.last());
    EXPECT_FALSE(QGuiApplication::overrideCursor());
    shown.clear();
    portada->Llena_Lista();
    EXPECT_THAT(shown, testing::AllOf(testing::SizeIs(testing::Ge(2)), testing::Each(true)));
}

TEST_F(ArranqueTest, WindowComesUpAheadOfTheCatalogue)
{
    QStringList steps;
    const Witness shown(*portada, QEvent::Show, [&] {
        EXPECT_EQ(M->Cat_Nombre(0, 0), QString());
        EXPECT_FALSE(control(u"TXT_Info"_s).isVisible());
        EXPECT_EQ(M->LanguageFile, u"ZB-ESP.LNG"_s);
        EXPECT_EQ(M->TXT_Jugar, u"Jugar"_s);
        EXPECT_EQ(word(), u"-----"_s);
        steps << u"shown"_s;
    });
    const Witness painted(control(u"TXT_Info"_s), QEvent::Paint, [&] {
        if (steps == QStringList { u"shown"_s }) {
            EXPECT_EQ(M->Cat_Nombre(0, 0), QString());
            EXPECT_EQ(systems().ListCount(), 0);
            EXPECT_EQ(info(), u"Ninguna ROM"_s);
            steps << u"painted"_s;
        }
    });
    startAt(Zeta, 0);
    EXPECT_THAT(steps, ElementsAre(u"shown"_s, u"painted"_s));
    EXPECT_TRUE(portada->isVisible());
    EXPECT_TRUE(control(u"TXT_Info"_s).isVisible());
    EXPECT_EQ(M->Cat_Nombre(0, 0), u"-Zeta"_s);
}

TEST_F(ArranqueTest, WordUnderThePlayButtonFollowsTheType)
{
    const struct {
        QString type;
        QString word;
    } cases[] = {
        { u"0"_s, u"Jugar"_s },
        { u"1"_s, u"Jugar"_s },
        { u"2"_s, u"Jugar"_s },
        { u"3"_s, u"Jugar"_s },
        { u"4"_s, u"-----"_s },
        { u"5"_s, u"Cargar"_s },
        { u"6"_s, u"Cargar"_s },
        { u"7"_s, u"Cargar"_s },
        { u"8"_s, u"Cargar"_s },
        { u"9"_s, u"-----"_s },
        { u""_s, u"-----"_s },
        { u"0 "_s, u"-----"_s },
    };
    for (const auto &expected : cases) {
        systemsOfCatalogue[0].emulators[0].type = expected.type;
        files.writeCatalogue(systemsOfCatalogue);
        Settings settings;
        settings.LastSisUsed = u"2"_s;
        files.writeSettings(settings);
        restart();
        EXPECT_EQ(word(), expected.word) << expected.type.toStdString();
    }
}

TEST_F(ArranqueTest, PartsOfTheEditorAreHiddenWhateverTheyWere)
{
    const QStringList parts { u"BotonARR"_s, u"BotonABJ"_s, u"FlechaE1"_s, u"FlechaE2"_s, u"Edit1"_s,
        u"Edit2"_s, u"BlocDeNotas1"_s, u"BlocDeNotas2"_s, u"Editor"_s };
    for (const QString &name : parts)
        control(name).show();
    startWithoutEmulator(); // a selected entry would hide one of them by itself
    for (const QString &name : parts)
        EXPECT_FALSE(control(name).isVisible()) << name.toStdString();
}

TEST_F(ArranqueTest, PictureOfTheCaptureShowsWhateverItWas)
{
    control(u"Graf_Imagen"_s).hide();
    startWithoutEmulator();
    EXPECT_TRUE(control(u"Graf_Imagen"_s).isVisible());
}

TEST_F(ArranqueTest, PlayButtonStartsWithoutAWord)
{
    files.writeCatalogue({});
    control<forms::Label>(u"TXT_Boton"_s).SetCaption(u"otra cosa"_s);
    start();
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(ArranqueTest, PicturesAreBlackUntilACaptureIsThere)
{
    startWithoutEmulator();
    EXPECT_EQ(capture(), QColor(Qt::black));
    EXPECT_EQ(zoomed(), QColor(Qt::black));
    EXPECT_EQ(M->ImagenCambio, 1);
    EXPECT_EQ(M->Lista1Cambio, 1);
}

TEST_F(ArranqueTest, CaptureOfTheFirstROMShowsFromTheStart)
{
    startAt(Zeta, 0);
    EXPECT_EQ(capture(), QColor(Qt::red));
    EXPECT_EQ(zoomed(), QColor(Qt::red));
    EXPECT_EQ(M->ImagenCambio, 0);
    EXPECT_EQ(M->Lista1Cambio, 0);
}

TEST_F(ArranqueTest, ROMLineOfTheSelectedEmulatorIsRemembered)
{
    startAt(Zeta, 0);
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), u"ROM="_s + files.path(u"zeta/"_s).toUpper());
    EXPECT_EQ(M->RutasROM(0), QString());
    EXPECT_EQ(M->RutasROM(2), QString());
}

TEST_F(ArranqueTest, FlagsGetTheirFirstValues)
{
    M->EmuConfigurado = M->CambioConfig1 = M->RestaurarROM = 1;
    startAt(Zeta, 0);
    EXPECT_EQ(M->ZoomActual, 2);
    EXPECT_EQ(M->EmuConfigurado, 0);
    EXPECT_EQ(M->CambioConfig1, 0);
    EXPECT_EQ(M->SoloTablas, 0);
    EXPECT_EQ(M->VerBaseDeDatos, 0);
    EXPECT_EQ(M->RestaurarROM, 0);
    EXPECT_EQ(M->Combo1Listo, 1);
    EXPECT_EQ(M->Combo2Listo, 1);
}

TEST_F(ArranqueTest, ListHasTheFocus)
{
    startAt(Zeta, 0);
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(ArranqueTest, EditorGetsTheColoursOfItsKind)
{
    const struct {
        QString kind;
        QColor paper;
        QColor ink;
    } cases[] = {
        { u"0"_s, QColor(0, 0, 192), QColor(192, 192, 192) },
        { u"1"_s, QColor(255, 255, 255), QColor(0, 0, 0) },
    };
    for (const auto &expected : cases) {
        Settings settings;
        settings.TypeOfEditor = expected.kind;
        files.writeSettings(settings);
        restart();
        const QPalette colours = control(u"Editor"_s).palette();
        EXPECT_EQ(colours.color(QPalette::Base), expected.paper) << expected.kind.toStdString();
        EXPECT_EQ(colours.color(QPalette::Text), expected.ink) << expected.kind.toStdString();
    }
}

TEST_F(ArranqueTest, LanguageFileIsFoundInAnyCase)
{
    Settings settings;
    settings.LanguageFile = u"zb-esp.lng"_s;
    files.writeSettings(settings);
    start();
    EXPECT_EQ(M->TXT_Jugar, u"Jugar"_s);
}

TEST_F(ArranqueTest, RequiredFilesAreFoundInAnyCase)
{
    files.remove(u"Cvtgif15.exe"_s);
    files.write(u"CVTGIF15.EXE"_s, "x");
    files.remove(u"LNG"_s);
    files.writeLines(u"lng/zb-esp.lng"_s, languageLines());
    start();
    EXPECT_EQ(M->TXT_Jugar, u"Jugar"_s);
}

TEST_F(ArranqueTest, WrittenSettingsShowNoFirstRun)
{
    start();
    EXPECT_FALSE(firstRunShown);
}

TEST_F(ArranqueTest, FirstRunComesAheadOfTheSettingsOnItsMark)
{
    files.write(u"Zembro.cfg"_s, "VACIO\r\n");
    portada->MuestraPrimeraInstalacion = [this] {
        EXPECT_EQ(M->LanguageFile, QString());
        EXPECT_FALSE(portada->isVisible());
        EXPECT_FALSE(M->Ficheros.isOpen(1));
        Settings settings;
        settings.LastSisUsed = u"2"_s;
        files.writeSettings(settings);
        firstRunShown = true;
    };
    start();
    EXPECT_TRUE(firstRunShown);
    EXPECT_EQ(systems().Text(), u"Zeta"_s);
}

TEST_F(ArranqueTest, FirstRunMarkCountsInAnyField)
{
    for (const QByteArray &text : { QByteArray("VACIO"), QByteArray("'\r\n\r\n[General]\r\nVACIO\r\n"),
             QByteArray("uno,dos , VACIO,tres\r\n"), QByteArray("a\r\n\"VACIO\"\r\n") }) {
        files.write(u"Zembro.cfg"_s, text);
        renew();
        firstRunShown = false;
        // What it leaves unwritten ends the start.
        EXPECT_TRUE(load());
        EXPECT_TRUE(firstRunShown) << text.toStdString();
    }
}

TEST_F(ArranqueTest, ValueThatReadsLikeTheFirstRunMarkIsNone)
{
    Settings settings;
    settings.MsgEndDOS = u"VACIO"_s;
    files.writeSettings(settings);
    start();
    EXPECT_FALSE(firstRunShown);
    EXPECT_EQ(M->MsgEndDOS, u"VACIO"_s);
}

TEST_F(ArranqueTest, OtherCaseIsNoFirstRunMark)
{
    Settings settings;
    settings.Filters = { u"Vacio"_s, u"VACIOS"_s };
    files.writeSettings(settings);
    start();
    EXPECT_FALSE(firstRunShown);
}

TEST_F(ArranqueTest, UnreadableCatalogueLeavesTheWindowStanding)
{
    files.write(u"Zembro.emu"_s, {});
    start();
    EXPECT_TRUE(portada->isVisible());
    EXPECT_THAT(entries(systems()), IsEmpty());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(ArranqueTest, PositionPastTheSystemsLeavesTheListsInert)
{
    startAt(3, 0);
    EXPECT_EQ(systems().Text(), QString());
    EXPECT_THAT(entries(emulators()), IsEmpty());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(M->IndiceRutas, 0);
    pick(systems(), u"Zeta"_s);
    EXPECT_THAT(entries(emulators()), IsEmpty());
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(ArranqueTest, PositionPastTheEmulatorsListsTheFirstAndLeavesTheListsInert)
{
    startAt(Alfa, 2);
    EXPECT_EQ(emulators().Text(), u"Alto"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_EQ(M->Combo1Listo, 0);
    pick(emulators(), u"beta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
}
