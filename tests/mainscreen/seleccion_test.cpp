// Picking a system and an emulator: what is listed, what is said, where the focus goes.

#include "mundotest.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

using SistemaTest = MundoTest;

TEST_F(SistemaTest, OneEmulatorIsSelectedAndListedAtOnce)
{
    startAt(Alfa, 0);
    pick(systems(), u"Zeta"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Uno"_s));
    EXPECT_EQ(emulators().Text(), u"Uno"_s);
    EXPECT_EQ(emulators().ItemData(0), 0);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    EXPECT_EQ(list().Text(), u"Juego uno"_s);
    EXPECT_EQ(summary(), u"2 ROMS - 0.0MB"_s);
    EXPECT_EQ(info(), u"ONE.NES 1Kb  [NOR]"_s);
    EXPECT_EQ(word(), u"Jugar"_s);
    EXPECT_EQ(capture(), QColor(Qt::red));
    EXPECT_EQ(focused(), u"Combo1"_s);
}

TEST_F(SistemaTest, SeveralEmulatorsEmptyTheListUntilOneIsPicked)
{
    startAt(Zeta, 0);
    pick(systems(), u"alfa"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Alto"_s, u"beta"_s));
    EXPECT_EQ(emulators().ItemData(0), 1); // by the catalogue's order
    EXPECT_EQ(emulators().ItemData(1), 0);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_EQ(capture(), QColor(Qt::black));
    EXPECT_EQ(zoomed(), QColor(Qt::black));
    EXPECT_EQ(focused(), u"Combo1"_s);
}

TEST_F(SistemaTest, NoEmulatorAtAllIsLikeSeveral)
{
    systemsOfCatalogue[1].emulators.clear();
    files.writeCatalogue(systemsOfCatalogue);
    startAt(Zeta, 0);
    pick(systems(), u"alfa"_s);
    EXPECT_THAT(entries(emulators()), IsEmpty());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(SistemaTest, PickingTheSystemThatShowsTakesItsEmulatorAway)
{
    startAt(Alfa, 0);
    ASSERT_EQ(emulators().Text(), u"Alto"_s);
    pick(systems(), u"alfa"_s);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
}

TEST_F(SistemaTest, SystemWithoutANameOrEmulatorsHasNoROMs)
{
    systemsOfCatalogue.push_back({ QString(), {}, {} });
    files.writeCatalogue(systemsOfCatalogue);
    startAt(3, 0); // behind the nameless one
    M->Combo1Previo = u"x"_s;
    pick(systems(), QString());
    EXPECT_THAT(entries(emulators()), IsEmpty());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s)); // nothing has cleared it
    EXPECT_EQ(focused(), u"Combo1"_s);
}

TEST_F(SistemaTest, NamelessSystemEqualsTheTextOfTheLastChangeAndIsNotSeen)
{
    systemsOfCatalogue.push_back({ QString(), {}, {} });
    files.writeCatalogue(systemsOfCatalogue);
    startAt(3, 0);
    pick(systems(), QString());
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Uno"_s));
    EXPECT_EQ(summary(), u"2 ROMS - 0.0MB"_s);
}

TEST_F(SistemaTest, EmptyListSaysSoBeforeAnEmulatorIsSelected)
{
    startWithoutEmulator(Alfa);
    control<forms::Label>(u"TXT_Info"_s).SetCaption(u"otra cosa"_s);
    M->Combo2Listo = 0; // so the one emulator isn't listed
    pick(systems(), u"Zeta"_s);
    EXPECT_EQ(emulators().Text(), u"Uno"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
}

TEST_F(SistemaTest, FilledListLeavesTheLineToTheEmulator)
{
    startAt(Alfa, 0);
    control<forms::Label>(u"TXT_Info"_s).SetCaption(u"otra cosa"_s);
    M->Combo2Listo = 0;
    pick(systems(), u"Zeta"_s);
    EXPECT_EQ(info(), u"otra cosa"_s);
}

TEST_F(SistemaTest, RestoringKeepsTheSummary)
{
    startAt(Zeta, 0);
    M->RestaurarROM = 1;
    pick(systems(), u"alfa"_s);
    EXPECT_EQ(summary(), u"2 ROMS - 0.0MB"_s);
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(SistemaTest, NothingHappensUntilTheListIsReady)
{
    startAt(Zeta, 0);
    M->Combo1Listo = 0;
    pick(systems(), u"alfa"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Uno"_s));
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
}

TEST_F(SistemaTest, SelectionThatEqualsTheTextOfTheLastChangeIsNotSeen)
{
    startAt(Zeta, 0);
    EXPECT_EQ(M->Combo1Previo, QString());
    M->Combo1Previo = u"alfa"_s;
    pick(systems(), u"alfa"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Uno"_s));
    pick(systems(), u"Medio"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Dir"_s, u"Solo"_s));
}

TEST_F(SistemaTest, PicksRaiseNoChangeNotifications)
{
    startAt(Zeta, 0);
    pick(systems(), u"alfa"_s);
    pick(emulators(), u"beta"_s);
    EXPECT_EQ(M->Combo1Previo, QString());
    EXPECT_EQ(M->Combo2Previo, QString());
}

TEST_F(SistemaTest, KeysPickLikeTheMouse)
{
    startAt(Medio, 0);
    systems().setFocus();
    strike(*portada, Qt::Key_Down);
    EXPECT_EQ(systems().Text(), u"Zeta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
}

TEST_F(SistemaTest, GivesWayOnceTheEmulatorsAreCleared)
{
    startAt(Medio, 0);
    systems().setFocus();
    int seen = -1;
    QTimer::singleShot(0, portada.get(), [&] {
        seen = emulators().ListCount();
        EXPECT_EQ(systems().Text(), u"Zeta"_s);
    });
    strike(*portada, Qt::Key_Down);
    EXPECT_EQ(seen, 0);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Uno"_s));
}

TEST_F(SistemaTest, ListsAreForPickingOnly)
{
    EXPECT_FALSE(systems().isEditable());
    EXPECT_FALSE(emulators().isEditable());
}

class EmuladorTest : public MundoTest {
protected:
    // What shows that the directory was read again.
    void addROM(const QString &name) { files.writeSize(name, 10); }
};

TEST_F(EmuladorTest, AnotherDirectoryIsListed)
{
    startAt(Alfa, 0);
    pick(emulators(), u"beta"_s);
    EXPECT_EQ(M->TipoEmu, u"2"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Un juego"_s));
    EXPECT_EQ(list().Text(), u"Un juego"_s);
    EXPECT_EQ(summary(), u"1 ROMS - 0.0MB"_s);
    EXPECT_EQ(info(), u"GAME.ZIP  3Kb [ZIP]"_s);
    EXPECT_EQ(word(), u"Jugar"_s);
    EXPECT_EQ(focused(), u"Combo2"_s);
}

TEST_F(EmuladorTest, GivesWayOnceAheadOfTheListing)
{
    startAt(Alfa, 0);
    emulators().setFocus();
    QStringList seen;
    QTimer::singleShot(0, portada.get(), [&] {
        EXPECT_EQ(emulators().Text(), u"beta"_s);
        EXPECT_TRUE(list().isEnabled());
        seen = listed();
    });
    strike(*portada, Qt::Key_Down);
    EXPECT_THAT(seen, ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_THAT(listed(), ElementsAre(u"Un juego"_s));
}

TEST_F(EmuladorTest, EachChangeOfDirectoryIsListedAndRemembered)
{
    startAt(Alfa, 0);
    const QString alto = u"ROM="_s + files.path(u"alfa/"_s).toUpper();
    const QString beta = u"ROM="_s + files.path(u"alfazip/"_s).toUpper();
    EXPECT_EQ(M->IndiceRutas, 1);
    pick(emulators(), u"beta"_s);
    EXPECT_EQ(M->IndiceRutas, 0);
    EXPECT_EQ(M->RutasROM(1), alto);
    EXPECT_EQ(M->RutasROM(2), beta);
    pick(emulators(), u"Alto"_s);
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), alto);
    EXPECT_EQ(M->RutasROM(2), beta);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    pick(emulators(), u"beta"_s);
    EXPECT_EQ(M->IndiceRutas, 0);
    EXPECT_THAT(listed(), ElementsAre(u"Un juego"_s));
    EXPECT_EQ(M->RutasROM(0), QString());
}

TEST_F(EmuladorTest, SharedDirectoryKeepsTheListOfTheFirstWithTheTypeOfTheSecond)
{
    startAt(Medio, 0);
    clickRow(list(), 1);
    ASSERT_EQ(list().Text(), u"G2"_s);
    files.makeDirectory(u"medio/G3"_s);
    pick(emulators(), u"Solo"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Gran uno"_s, u"G2"_s));
    EXPECT_EQ(list().Text(), u"G2"_s);
    EXPECT_EQ(M->TipoEmu, u"6"_s);
    EXPECT_EQ(word(), u"Cargar"_s);
    EXPECT_EQ(summary(), u"2 directorios"_s);
}

TEST_F(EmuladorTest, PickingTheEmulatorThatShowsDoesNotListAgain)
{
    startAt(Alfa, 0);
    addROM(u"alfa/c.sms"_s);
    pick(emulators(), u"Alto"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
}

TEST_F(EmuladorTest, DirectoriesThatDifferInCaseAloneCountAsShared)
{
    systemsOfCatalogue[1].emulators[0].roms = files.path(u"ALFA/"_s);
    files.writeCatalogue(systemsOfCatalogue);
    files.makeDirectory(u"ALFA"_s);
    startAt(Alfa, 0);
    pick(emulators(), u"beta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_EQ(M->TipoEmu, u"2"_s);
}

TEST_F(EmuladorTest, SharedDirectoryWithAnEmptyListSaysThatThereAreNoROMs)
{
    files.remove(u"medio"_s);
    startAt(Medio, 0);
    control<forms::Label>(u"TXT_InfoRoms"_s).SetCaption(u"otra cosa"_s);
    pick(emulators(), u"Solo"_s);
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
}

TEST_F(EmuladorTest, SystemWithSeveralInBetweenMakesTheNextPickListAgain)
{
    startAt(Alfa, 0);
    addROM(u"alfa/c.sms"_s);
    pick(systems(), u"Medio"_s);
    EXPECT_EQ(M->IndiceRutas, 0);
    EXPECT_EQ(M->RutasROM(2), QString());
    pick(systems(), u"alfa"_s);
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), QString());
    pick(emulators(), u"Alto"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s, u"c.sms"_s));
    EXPECT_EQ(M->IndiceRutas, 0);
    EXPECT_EQ(M->RutasROM(2), u"ROM="_s + files.path(u"alfa/"_s).toUpper());
}

TEST_F(EmuladorTest, ClearedSlotIsTheNextInTurn)
{
    startAt(Alfa, 0);
    M->IndiceRutas = 2; // never left so by a pick; the rule holds all the same
    pick(systems(), u"Medio"_s);
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), QString());
}

TEST_F(EmuladorTest, MarkOfAConfiguredEmulatorListsAgain)
{
    startAt(Alfa, 0);
    addROM(u"alfa/c.sms"_s);
    M->EmuConfigurado = 1;
    pick(emulators(), u"Alto"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s, u"c.sms"_s));
    EXPECT_EQ(M->IndiceRutas, 1);
}

TEST_F(EmuladorTest, MarkOfAConfiguredEmulatorDoesNothingButList)
{
    startAt(Alfa, 0);
    M->EmuConfigurado = 1;
    systems().setFocus();
    bool listing = false;
    QTimer::singleShot(0, portada.get(), [&] { listing = !list().isEnabled(); });
    // By a key, so that the focus is where the selection leaves it.
    emulators().setFocus();
    strike(*portada, Qt::Key_Down);
    EXPECT_EQ(emulators().Text(), u"beta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Un juego"_s));
    EXPECT_TRUE(listing) << "it gave way ahead of the listing";
    EXPECT_NE(focused(), u"Combo2"_s);
    EXPECT_EQ(M->RutasROM(1), u"ROM="_s + files.path(u"alfa/"_s).toUpper());
    EXPECT_EQ(M->RutasROM(2), QString());
}

TEST_F(EmuladorTest, NothingIsListedUntilTheListIsReadyButTypeAndWordFollow)
{
    startAt(Alfa, 0);
    M->Combo2Listo = 0;
    systemsOfCatalogue[1].emulators[0].type = u"7"_s;
    M->Cat_XDI(1, 1) = u"XDI=7"_s;
    pick(emulators(), u"beta"_s);
    EXPECT_EQ(M->TipoEmu, u"7"_s);
    EXPECT_EQ(word(), u"Cargar"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_EQ(M->IndiceRutas, 1);
}

TEST_F(EmuladorTest, AnyOtherReadinessListsWhateverTheDirectory)
{
    startAt(Alfa, 0);
    addROM(u"alfa/c.sms"_s);
    M->Combo2Listo = 2;
    pick(emulators(), u"Alto"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s, u"c.sms"_s));
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(focused(), u"Combo2"_s);
}

TEST_F(EmuladorTest, SelectionThatEqualsTheTextOfTheLastChangeIsNotListed)
{
    startAt(Alfa, 0);
    M->Combo2Previo = u"beta"_s;
    pick(emulators(), u"beta"_s);
    EXPECT_EQ(M->TipoEmu, u"2"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
}

TEST_F(EmuladorTest, WordFollowsTheTypeAndStaysWhereTheTypeHasNone)
{
    const struct {
        QString type;
        QString before;
        QString word;
    } cases[] = {
        { u"0"_s, u"antes"_s, u"Jugar"_s },
        { u"1"_s, u"antes"_s, u"Jugar"_s },
        { u"2"_s, u"antes"_s, u"Jugar"_s },
        { u"3"_s, u"antes"_s, u"Jugar"_s },
        { u"4"_s, u"antes"_s, u"antes"_s },
        { u"5"_s, u"antes"_s, u"Cargar"_s },
        { u"6"_s, u"antes"_s, u"Cargar"_s },
        { u"7"_s, u"antes"_s, u"Cargar"_s },
        { u"8"_s, u"antes"_s, u"Cargar"_s },
        { u"="_s, u"antes"_s, u"antes"_s },
    };
    startAt(Alfa, 0);
    for (const auto &expected : cases) {
        M->Cat_XDI(1, 1) = u"XDI="_s + expected.type;
        control<forms::Label>(u"TXT_Boton"_s).SetCaption(expected.before);
        pick(emulators(), u"beta"_s);
        EXPECT_EQ(M->TipoEmu, expected.type);
        EXPECT_EQ(word(), expected.word) << expected.type.toStdString();
    }
}

TEST_F(EmuladorTest, NamelessEmulatorCostsTheWordUntilTheLanguageIsReadAgain)
{
    systemsOfCatalogue[1].emulators[0].name = QString();
    files.writeCatalogue(systemsOfCatalogue);
    startWithoutEmulator(Alfa);
    pick(emulators(), u"Alto"_s);
    ASSERT_EQ(word(), u"Jugar"_s);
    pick(emulators(), QString());
    EXPECT_EQ(M->TXT_Jugar, u"-----"_s);
    EXPECT_EQ(M->TipoEmu, u"0"_s); // of the one before
    EXPECT_EQ(word(), u"-----"_s);
    pick(emulators(), u"Alto"_s);
    EXPECT_EQ(word(), u"-----"_s);
    portada->Textos();
    pick(emulators(), u"Alto"_s);
    EXPECT_EQ(word(), u"Jugar"_s);
}

TEST_F(EmuladorTest, NamelessEmulatorEqualsTheTextOfTheLastChangeAndIsNotSeen)
{
    systemsOfCatalogue[1].emulators[0].name = QString();
    files.writeCatalogue(systemsOfCatalogue);
    startWithoutEmulator(Alfa);
    pick(emulators(), u"Alto"_s);
    pick(emulators(), QString());
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_EQ(summary(), u"2 ROMS - 0.01MB"_s);
}

TEST_F(EmuladorTest, NamelessEmulatorThatIsSeenAsksForOneBeforeAnyScan)
{
    systemsOfCatalogue[1].emulators[0].name = QString();
    files.writeCatalogue(systemsOfCatalogue);
    startWithoutEmulator(Alfa);
    ASSERT_EQ(M->NumLista, 0);
    M->Combo2Previo = u"x"_s;
    control<forms::Label>(u"TXT_Info"_s).SetCaption(u"otra cosa"_s);
    control<forms::Label>(u"TXT_InfoRoms"_s).SetCaption(u"otra cosa"_s);
    pick(emulators(), QString());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(focused(), u"Combo2"_s);
    // After a scan the line is left alone.
    pick(emulators(), u"Alto"_s);
    control<forms::Label>(u"TXT_Info"_s).SetCaption(u"otra cosa"_s);
    pick(emulators(), QString());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"otra cosa"_s);
}
