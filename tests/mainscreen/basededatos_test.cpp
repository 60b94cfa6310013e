// The view of the database: in, about, and out again.

#include "mundotest.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QStringList SwitchedOff { u"Boton1b"_s, u"Boton2b"_s, u"Boton3b"_s, u"Boton4b"_s, u"Boton5b"_s,
    u"Boton6b"_s, u"BotonC2"_s, u"BotonD2"_s, u"Menos2a"_s, u"Menos2b"_s, u"E1"_s, u"D1"_s, u"BotonA2"_s,
    u"BotonB2"_s, u"JugarB1"_s, u"Lista1"_s };
const QStringList LeftOn { u"Combo1"_s, u"Combo2"_s, u"Check1"_s, u"Flecha2"_s, u"WEB2"_s };

} // namespace

class BaseDeDatosTest : public MundoTest {
protected:
    void enter()
    {
        ASSERT_FALSE(control<forms::CheckBox>(u"Check1"_s).isChecked());
        click(control(u"Check1"_s));
        ASSERT_TRUE(control<forms::CheckBox>(u"Check1"_s).isChecked());
    }
    void leave()
    {
        click(control(u"Check1"_s));
        ASSERT_FALSE(control<forms::CheckBox>(u"Check1"_s).isChecked());
    }
};

TEST_F(BaseDeDatosTest, EnteringSavesTheSelection)
{
    startAt(Zeta, 0);
    clickRow(list(), 1);
    enter();
    EXPECT_EQ(M->SistemaGuardado, u"Zeta"_s);
    EXPECT_EQ(M->EmuladorGuardado, u"Uno"_s);
    EXPECT_EQ(M->ROMGuardada, u"two.nes"_s);
}

TEST_F(BaseDeDatosTest, EnteringShowsAllSystemsAndNoEmulatorSelected)
{
    startAt(Zeta, 0);
    enter();
    EXPECT_EQ(M->VerBaseDeDatos, 1);
    EXPECT_EQ(M->UltimoSistema, u"0"_s);
    EXPECT_EQ(M->UltimoEmulador, u"696969"_s);
    EXPECT_THAT(entries(systems()), ElementsAre(u"alfa"_s, u"Base"_s, u"Nueva"_s));
    EXPECT_EQ(systems().Text(), u"alfa"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"Alto"_s, u"beta"_s));
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"Base de datos"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(0, 0, 128));
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_EQ(capture(), QColor(Qt::black));
    EXPECT_EQ(zoomed(), QColor(Qt::red));
}

TEST_F(BaseDeDatosTest, EnteringSwitchesOffWhatPlaysAndConfigures)
{
    startAt(Zeta, 0);
    enter();
    for (const QString &name : SwitchedOff)
        EXPECT_FALSE(control(name).isEnabled()) << name.toStdString();
    for (const QString &name : LeftOn)
        EXPECT_TRUE(control(name).isEnabled()) << name.toStdString();
}

TEST_F(BaseDeDatosTest, EnteringWithoutADatabaseLeavesEmptyLists)
{
    startAt(Zeta, 0);
    files.remove(u"Zembro.sye"_s);
    enter();
    EXPECT_THAT(entries(systems()), IsEmpty());
    EXPECT_THAT(entries(emulators()), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"Base de datos"_s);
}

TEST_F(BaseDeDatosTest, PickedSystemWithSeveralEmulatorsKeepsTheTitleOfTheView)
{
    startAt(Zeta, 0);
    enter();
    pick(systems(), u"Base"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"B1"_s, u"B2"_s));
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"Base de datos"_s);
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_EQ(focused(), u"Combo1"_s);
}

TEST_F(BaseDeDatosTest, PickedSystemWithOneEmulatorSelectsItAndListsNothing)
{
    startAt(Zeta, 0);
    enter();
    pick(systems(), u"Nueva"_s);
    EXPECT_EQ(emulators().Text(), u"Solita"_s);
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"---"_s);
    EXPECT_EQ(info(), u"Base de datos"_s);
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(BaseDeDatosTest, PickedEmulatorIsNotListed)
{
    startAt(Zeta, 0);
    enter();
    const int slot = M->IndiceRutas;
    pick(emulators(), u"beta"_s);
    EXPECT_EQ(emulators().Text(), u"beta"_s);
    EXPECT_EQ(M->TipoEmu, QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"---"_s);
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_EQ(M->IndiceRutas, slot);
}

TEST_F(BaseDeDatosTest, NamelessEmulatorAsksForOneAndThenSaysThatNothingIsListed)
{
    files.writeDatabase({ { u"Base"_s, {}, { { QString(), {}, {} }, { u"B1"_s, {}, {} } } } });
    startAt(Zeta, 0);
    enter();
    pick(emulators(), QString());
    EXPECT_EQ(summary(), u"---"_s);
    // With entries in the list the second rule is out, and the first one shows.
    list().AddItem(u"x"_s);
    pick(emulators(), QString());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
}

TEST_F(BaseDeDatosTest, LeavingRestoresSystemEmulatorAndROM)
{
    startAt(Zeta, 0);
    clickRow(list(), 1);
    enter();
    pick(systems(), u"Base"_s);
    leave();
    EXPECT_EQ(M->VerBaseDeDatos, 0);
    EXPECT_THAT(entries(systems()), ElementsAre(u"alfa"_s, u"Medio"_s, u"Zeta"_s));
    EXPECT_EQ(systems().Text(), u"Zeta"_s);
    EXPECT_EQ(emulators().Text(), u"Uno"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    EXPECT_EQ(list().Text(), u"two.nes"_s);
    EXPECT_EQ(summary(), u"2 ROMS - 0.0MB"_s);
    EXPECT_EQ(info(), u"two.nes 2Kb  [NOR]"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
    EXPECT_EQ(word(), u"Jugar"_s);
    EXPECT_EQ(M->Combo1Listo, 1);
    EXPECT_EQ(M->Combo2Listo, 1);
    EXPECT_EQ(M->RestaurarROM, 0);
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(BaseDeDatosTest, LeavingRestoresTheEmulatorOfSeveral)
{
    startAt(Alfa, 1);
    enter();
    leave();
    EXPECT_EQ(systems().Text(), u"alfa"_s);
    EXPECT_EQ(emulators().Text(), u"beta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Un juego"_s));
    EXPECT_EQ(list().Text(), u"Un juego"_s);
    EXPECT_EQ(summary(), u"1 ROMS - 0.0MB"_s);
    EXPECT_EQ(word(), u"Jugar"_s);
}

TEST_F(BaseDeDatosTest, LeavingAtOnceListsThoughTheDirectoryIsTheSame)
{
    startAt(Zeta, 0);
    enter();
    leave();
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    EXPECT_EQ(list().Text(), u"Juego uno"_s);
}

TEST_F(BaseDeDatosTest, LeavingEnablesAllAgainAlsoWhereNothingIsListed)
{
    startWithoutEmulator(Medio);
    enter();
    leave();
    for (const QString &name : SwitchedOff + LeftOn)
        EXPECT_TRUE(control(name).isEnabled()) << name.toStdString();
}

TEST_F(BaseDeDatosTest, LeavingShowsTheWordOfATypeThatOnlyLoads)
{
    startAt(Medio, 1);
    enter();
    leave();
    EXPECT_EQ(emulators().Text(), u"Solo"_s);
    EXPECT_EQ(word(), u"Cargar"_s);
    EXPECT_THAT(listed(), ElementsAre(u"Gran uno"_s, u"G2"_s));
}

TEST_F(BaseDeDatosTest, LeavingWithoutAnEmulatorAsksForOne)
{
    startWithoutEmulator(Medio);
    enter();
    leave();
    EXPECT_EQ(systems().Text(), u"Medio"_s);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(summary(), u"Elige emulador"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
    EXPECT_EQ(word(), u"-----"_s);
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(BaseDeDatosTest, LeavingWithNothingSavedLeavesNothingSelected)
{
    files.writeCatalogue({});
    start();
    enter();
    EXPECT_EQ(M->SistemaGuardado, QString());
    pick(systems(), u"Nueva"_s);
    leave();
    EXPECT_EQ(systems().Text(), QString());
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(BaseDeDatosTest, LeavingSelectsNoSystemWhereNoneStoodSelected)
{
    startAt(3, 0); // past the last
    ASSERT_EQ(systems().Text(), QString());
    enter();
    ASSERT_EQ(systems().Text(), u"alfa"_s);
    leave();
    EXPECT_THAT(entries(systems()), ElementsAre(u"alfa"_s, u"Medio"_s, u"Zeta"_s));
    EXPECT_EQ(systems().ListIndex(), -1);
    EXPECT_THAT(entries(emulators()), IsEmpty());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(BaseDeDatosTest, ROMThatIsGoneLeavesNoEntrySelected)
{
    startAt(Zeta, 0);
    clickRow(list(), 1);
    enter();
    files.remove(u"zeta/two.nes"_s);
    leave();
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s));
    EXPECT_EQ(list().ListIndex(), -1);
    // Not even on the way: the first entry's facts and capture would have stayed.
    EXPECT_EQ(info(), u"Añadiendo"_s);
    EXPECT_EQ(capture(), QColor(Qt::black));
    EXPECT_EQ(zoomed(), QColor(Qt::black));
}

TEST_F(BaseDeDatosTest, EmptyListSaysSoOnLeaving)
{
    startAt(Zeta, 0);
    enter();
    files.remove(u"zeta"_s);
    leave();
    EXPECT_EQ(emulators().Text(), u"Uno"_s);
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
}

TEST_F(BaseDeDatosTest, SavedSystemThatIsGoneEndsTheProgram)
{
    startAt(Zeta, 0);
    enter();
    systemsOfCatalogue.erase(systemsOfCatalogue.begin());
    files.writeCatalogue(systemsOfCatalogue);
    const std::optional<ProcessEnd> end = endOf([this] { click(control(u"Check1"_s)); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_EQ(end->title, u"ERROR"_s);
    EXPECT_TRUE(end->text.startsWith(u"An unknown error has occurred. (ERR383)\n"))
        << end->text.toStdString();
    EXPECT_TRUE(end->text.endsWith(u": Zeta")) << end->text.toStdString();
}

TEST_F(BaseDeDatosTest, SavedEmulatorThatIsGoneEndsTheProgram)
{
    startAt(Alfa, 1);
    enter();
    systemsOfCatalogue[1].emulators.erase(systemsOfCatalogue[1].emulators.begin());
    files.writeCatalogue(systemsOfCatalogue);
    const std::optional<ProcessEnd> end = endOf([this] { click(control(u"Check1"_s)); });
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.startsWith(u"An unknown error has occurred. (ERR383)\n"))
        << end->text.toStdString();
    EXPECT_TRUE(end->text.endsWith(u": beta")) << end->text.toStdString();
}

TEST_F(BaseDeDatosTest, FileLeftOpenEmptiesTheLists)
{
    files.writeNotes({});
    startAt(Zeta, 0);
    enter();
    EXPECT_THAT(entries(systems()), IsEmpty());
    EXPECT_THAT(entries(emulators()), IsEmpty());
}
