// The end of the program by its arrow: what is saved, byte for byte, and the state that it is saved from.

#include "mundotest.h"

#include "tests/support/ordinaryuser.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QString Arrow = u"Flecha2"_s;

} // namespace

class SalidaTest : public MundoTest {
protected:
    // Ends the program by its arrow, regularly.
    void leave()
    {
        const std::optional<ProcessEnd> end = endOf([this] { click(control(Arrow)); });
        ASSERT_TRUE(end) << "the program goes on";
        EXPECT_EQ(end->status, 0);
        EXPECT_EQ(end->title, QString()) << end->text.toStdString();
        EXPECT_FALSE(portada->isVisible());
    }
    // What Zembro.cfg has to hold, all other lines as they were.
    void expectSaved(const QByteArray &system, const QByteArray &emulator)
    {
        EXPECT_EQ(files.read(u"Zembro.cfg"_s), before(system, emulator));
        EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
    }
    QByteArray before(const QByteArray &system, const QByteArray &emulator) const
    {
        return "'\r\n'\r\n'\r\n'\r\n'\r\n'\r\n'\r\n'\r\n'\r\n\r\n[General]\r\nLastSisUsed = " + system
            + "\r\nLastEmuUsed = " + emulator
            + "\r\nSaveLastEmu&Sis = 1\r\nTypeOfEditor = 1\r\nMsgEndDOS = Finalizado\r\nLanguageFile = "
              "ZB-ESP.LNG\r\nDebugMode = 0\r\n\r\n[Filters]\r\nCFG\r\nROMS\r\n\r\n[EOF]\r\n";
    }
};

TEST_F(SalidaTest, SavesThePositionsInTheSortedLists)
{
    startAt(Alfa, 0);
    pick(systems(), u"Zeta"_s);
    leave();
    expectSaved("2", "0");
}

TEST_F(SalidaTest, SavesThePositionOfTheEmulator)
{
    startAt(Zeta, 0);
    pick(systems(), u"alfa"_s);
    pick(emulators(), u"beta"_s);
    leave();
    expectSaved("0", "1");
}

TEST_F(SalidaTest, SavedSelectionComesBackAtTheNextStart)
{
    startAt(Zeta, 0);
    pick(systems(), u"Medio"_s);
    pick(emulators(), u"Solo"_s);
    leave();
    restart();
    EXPECT_EQ(systems().Text(), u"Medio"_s);
    EXPECT_EQ(emulators().Text(), u"Solo"_s);
}

// As the finder does it, called while the program is open.
TEST_F(SalidaTest, SavesThePositionsInTheCatalogueAsItIsByThen)
{
    startAt(Zeta, 0);
    pick(systems(), u"alfa"_s);
    pick(emulators(), u"beta"_s);
    systemsOfCatalogue.push_back({ u"Aaa"_s, { u"NES"_s }, { { u"One"_s, u"0"_s, {} } } });
    files.writeCatalogue(systemsOfCatalogue);
    leave();
    expectSaved("1", "1");
    restart();
    EXPECT_EQ(systems().Text(), u"alfa"_s);
    EXPECT_EQ(emulators().Text(), u"beta"_s);
}

TEST_F(SalidaTest, SavesThePositionsThatItKnows_WithoutACatalogue)
{
    startAt(Zeta, 0);
    pick(systems(), u"alfa"_s);
    pick(emulators(), u"beta"_s);
    files.remove(u"Zembro.emu"_s);
    leave();
    expectSaved("0", "1");
}

TEST_F(SalidaTest, SystemWithoutAnEmulatorSavesTheMark)
{
    startAt(Zeta, 0);
    pick(systems(), u"Medio"_s);
    leave();
    expectSaved("1", "696969");
}

TEST_F(SalidaTest, NothingSelectedSavesZeros)
{
    files.writeCatalogue({});
    startAt(5, 4);
    leave();
    expectSaved("0", "0");
}

TEST_F(SalidaTest, NothingIsWrittenWithoutTheSetting)
{
    Settings settings;
    settings.SaveLast = u"0"_s;
    settings.LastSisUsed = u"2"_s;
    files.writeSettings(settings);
    const QByteArray written = files.read(u"Zembro.cfg"_s);
    start();
    pick(systems(), u"Medio"_s);
    leave();
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), written);
}

TEST_F(SalidaTest, NameThatComesTwiceSavesItsFirstPosition)
{
    systemsOfCatalogue[0].name =
        u"ALFA"_s; // ahead of "alfa": equal in the list's order, and first in the file
    files.writeCatalogue(systemsOfCatalogue);
    startAt(0, 696969);
    ASSERT_THAT(entries(systems()), ElementsAre(u"ALFA"_s, u"alfa"_s, u"Medio"_s));
    pick(systems(), u"alfa"_s);
    leave();
    expectSaved("0", "696969");
}

TEST_F(SalidaTest, EmulatorIsLookedForInTheSystemOfItsExactName)
{
    systemsOfCatalogue[0].name = u"ALFA"_s;
    files.writeCatalogue(systemsOfCatalogue);
    startAt(1, 696969);
    pick(emulators(), u"beta"_s);
    leave();
    expectSaved("0", "1");
}

TEST_F(SalidaTest, LinesOfOthersAreKeptAndALineMoreIsDropped)
{
    files.write(u"Zembro.cfg"_s,
        "\xD1\n'\n'\n'\n'\n'\n'\n'\n'\n'\n[General]\nLastSisUsed = 2\nLastEmuUsed = 0\nSaveLastEmu&Sis = 1\n"
        "TypeOfEditor = 1\nMsgEndDOS = Ca\xF1\x6F\nLanguageFile = ZB-ESP.LNG\nDebugMode = "
        "0\nTail\n[Filters]\nCFG");
    start();
    leave();
    EXPECT_EQ(files.read(u"Zembro.cfg"_s),
        QByteArray("\xD1\n'\n'\n'\n'\n'\n'\n'\n'\n'\n[General]\nLastSisUsed = 2\r\nLastEmuUsed = "
                   "0\r\nSaveLastEmu&Sis = 1\n"
                   "TypeOfEditor = 1\nMsgEndDOS = Ca\xF1\x6F\nLanguageFile = ZB-ESP.LNG\nDebugMode = "
                   "0\nTail\n[Filters]\nCFG"));
}

TEST_F(SalidaTest, ArrowIsPressedFirstAndActsOnTheReleaseWhereverThatIs)
{
    startAt(Zeta, 0);
    auto &arrow = control<forms::PictureButton>(Arrow);
    press(arrow, Qt::RightButton);
    EXPECT_TRUE(arrow.ShowsPressed());
    EXPECT_TRUE(portada->isVisible());
    EXPECT_EQ(focused(), u"Lista1"_s);
    const std::optional<ProcessEnd> end =
        endOf([&] { releaseAt(arrow, QPoint(-200, -100), Qt::RightButton); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 0);
    EXPECT_FALSE(arrow.ShowsPressed());
    expectSaved("2", "0");
}

TEST_F(SalidaTest, WindowSystemsWishToCloseIsTheSameExit)
{
    startAt(Alfa, 0);
    pick(systems(), u"Zeta"_s);
    const std::optional<ProcessEnd> end = endOf([this] { wishClose(*portada); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 0);
    expectSaved("2", "0");
}

TEST_F(SalidaTest, ExitFromTheDatabaseSavesTheSelectionFromBefore)
{
    startAt(Medio, 1);
    ASSERT_THAT(listed(), ElementsAre(u"Gran uno"_s, u"G2"_s));
    clickRow(list(), 1);
    click(control(u"Check1"_s));
    pick(systems(), u"Nueva"_s);
    leave();
    expectSaved("1", "1");
    EXPECT_EQ(M->VerBaseDeDatos, 0);
    EXPECT_EQ(systems().Text(), u"Medio"_s);
    EXPECT_EQ(emulators().Text(), u"Solo"_s);
    EXPECT_EQ(M->Combo2Listo, 0);
    EXPECT_EQ(M->RestaurarROM, 1);
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
    EXPECT_TRUE(control(u"Boton1b"_s).isEnabled());
}

TEST_F(SalidaTest, ExitFromTheDatabaseSelectsTheROMFromBeforeAgain)
{
    startAt(Zeta, 0);
    clickRow(list(), 1);
    click(control(u"Check1"_s));
    pick(systems(),
        u"Base"_s); // several emulators: the ROM directory from before is forgotten, and is read again
    leave();
    expectSaved("2", "0");
    EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
    EXPECT_EQ(list().Text(), u"two.nes"_s);
}

TEST_F(SalidaTest, ExitFromTheDatabaseWithoutAnEmulatorSavesTheMark)
{
    startWithoutEmulator(Medio);
    click(control(u"Check1"_s));
    pick(systems(), u"Nueva"_s);
    leave();
    expectSaved("1", "696969");
}

TEST_F(SalidaTest, ExitFromTheDatabaseWithoutSavingRestoresAndWritesNothing)
{
    Settings settings;
    settings.SaveLast = u"0"_s;
    files.writeSettings(settings);
    start();
    pick(systems(), u"Zeta"_s);
    const QByteArray written = files.read(u"Zembro.cfg"_s);
    click(control(u"Check1"_s));
    leave();
    EXPECT_EQ(systems().Text(), u"Zeta"_s);
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), written);
}

TEST_F(SalidaTest, ExitFromTheDatabaseEndsInErrorWhereTheSavedSystemIsGone)
{
    startAt(Zeta, 0);
    const QByteArray written = files.read(u"Zembro.cfg"_s);
    click(control(u"Check1"_s));
    systemsOfCatalogue.erase(systemsOfCatalogue.begin());
    files.writeCatalogue(systemsOfCatalogue);
    const std::optional<ProcessEnd> end = endOf([this] { click(control(Arrow)); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_EQ(end->title, u"ERROR"_s);
    EXPECT_TRUE(end->text.startsWith(u"An unknown error has occurred. (ERR383)\n"))
        << end->text.toStdString();
    EXPECT_TRUE(end->text.endsWith(u": Zeta")) << end->text.toStdString();
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), written);
}

TEST_F(SalidaTest, FileLeftOpenByAListThatFailedEndsTheExitInError)
{
    files.writeNotes({});
    startAt(Zeta, 0);
    const QByteArray written = files.read(u"Zembro.cfg"_s);
    const std::optional<ProcessEnd> end = endOf([this] { click(control(Arrow)); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.startsWith(u"An unknown error has occurred. (ERR55)\n")) << end->text.toStdString();
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), written);
}

TEST_F(SalidaTest, CollectionThatCannotBeWrittenStartsAndEndsWithoutTheSaving)
{
    Settings settings;
    settings.SaveLast = u"0"_s;
    files.writeSettings(settings);
    const QByteArray written = files.read(u"Zembro.cfg"_s);
    {
        const AsOrdinaryUser user(files.path());
        start();
        pick(systems(), u"Zeta"_s);
        EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
        pick(systems(), u"Medio"_s);
        leave();
    }
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), written);
}

TEST_F(SalidaTest, SavingThatFailsNamesTheFileAndKeepsIt)
{
    startAt(Zeta, 0);
    pick(systems(), u"Medio"_s);
    const QByteArray written = files.read(u"Zembro.cfg"_s);
    QFile::setPermissions(
        files.path(u"Zembro.cfg"_s), QFile::ReadOwner); // alone, in a directory that takes more
    const auto end = endOf([this] { click(control(Arrow)); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_EQ(end->title, u"ERROR"_s);
    EXPECT_TRUE(end->text.contains(files.path(u"Zembro.cfg"_s))) << end->text.toStdString();
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), written);
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}
