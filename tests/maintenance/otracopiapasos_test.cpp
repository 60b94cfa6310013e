// The two steps while another copy is at work: nothing that the user didn't name goes, and he sees what the
// files hold.

#include "otracopiatest.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

TEST_F(OtraCopiaTest, AnEmulatorThatHasGoneMeanwhile_AloneOrWithItsSystem_IsSaidToHave)
{
    for (const bool alone : { true, false }) {
        renew();
        catalogue = Top + End;
        const QByteArray before = database;
        begin();
        configure([&, this](forms::Form &form) {
            select(listOf(form, u"Lista1"_s), u"NES"_s);
            select(listOf(form, u"Lista2"_s), u"N2"_s);
            writeDatabase(database.replace(known("NES", "http://nes", { "N1", "N2" }),
                alone ? known("NES", "http://nes", { "N1" }) : QByteArray()));
            ASSERT_NE(before, database);
            atQuestion(u"Msg_BorrarEmu"_s, u"N2"_s, true);
            atChanged();
            press(form, u"Boton_Menos2"_s);
            expectFilesUnchanged();
            EXPECT_EQ(systemsOf(form).contains(u"NES"_s), alone);
        });
        database = before;
    }
}

// The lists don't lead to one another any more then, but nothing has changed.
TEST_F(OtraCopiaTest, OfAPairThatTheListsAloneMakeNoEmulatorGoes_AndNothingIsSaid)
{
    catalogue = Top + End;
    begin();
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"NES"_s);
        atInput(u"Msg_NuevaWWWROMS"_s, u"http://nes"_s, u"x"_s);
        press(form, u"Boton_W1"_s);
        database.replace("-NES\r\nWEB1=http://nes", "-NES\r\nWEB1=x");
        select(listOf(form, u"Lista1"_s), u"PSX"_s);
        EXPECT_EQ(pairOf(form), u"NES -> N1"_s);
        atQuestion(u"Msg_BorrarEmu"_s, u"N1"_s, true);
        press(form, u"Boton_Menos2"_s);
        expectFilesUnchanged();
    });
}

TEST_F(OtraCopiaTest, TheEmulatorsShownAreThoseOfTheDatabase_AfterAChangeOfTheirSystem)
{
    for (const QString &button : { u"Boton_W1"_s, u"Boton_W2"_s }) {
        renew();
        catalogue = Top + End;
        const QByteArray before = database;
        begin();
        configure([&, this](forms::Form &form) {
            select(listOf(form, u"Lista1"_s), u"NES"_s);
            select(listOf(form, u"Lista2"_s), u"N2"_s);
            writeDatabase(
                database.replace("+N1\r\nWEB2=http://n1", "+N0\r\nWEB2=http://n0\r\n+N1\r\nWEB2=http://n1"));
            ASSERT_NE(before, database);
            atModal(u"Caja"_s, [](forms::Form &box) {
                write(box, u"Casilla"_s, u"x"_s);
                click(controlOf<QWidget>(box, u"Aceptar2"_s));
            });
            press(form, button);
            EXPECT_THAT(entriesOf(listOf(form, u"Lista2"_s)), ElementsAre(u"N0"_s, u"N1"_s, u"N2"_s));
            EXPECT_EQ(pairOf(form), u"NES -> N2"_s);
            const QString offered = button == u"Boton_W2" ? u"x"_s : u"http://n2"_s;
            atInput(u"Msg_NuevaWWW"_s, offered, offered);
            press(form, u"Boton_W2"_s);
        });
        database = before;
    }
}

TEST_F(OtraCopiaTest, TheRecordsOfASystemStay_WhereTheDatabaseCantBeRewritten)
{
    catalogue = Top + End;
    begin();
    const auto end = endOfConfiguring([this](forms::Form &form) {
        // Elsewhere, where another's work takes the place of the scratch file.
        files.write(u"elsewhere/Zembro.sye"_s, database);
        files.write(u"elsewhere/Zembro.tmp/in_use"_s, {});
        files.remove(u"Zembro.sye"_s);
        ASSERT_TRUE(QFile::link(files.path(u"elsewhere/Zembro.sye"_s), files.path(u"Zembro.sye"_s)));
        select(listOf(form, u"Lista1"_s), u"NES"_s);
        atQuestion(u"Msg_BorrarSis"_s, u"NES"_s, true);
        press(form, u"Menos1"_s);
    });
    ASSERT_TRUE(end);
    expectFilesUnchanged();
}

TEST_F(OtraCopiaTest, ASystemAddedMeanwhileIsntAddedTwice)
{
    begin();
    configure([this](forms::Form &form) {
        writeDatabase(database.chopped(End.size()) + Added + End);
        atInput(u"Msg_AñadirSis"_s, {}, u"NEW"_s);
        atWarning(u"Msg_SisYaAñadido"_s);
        press(form, u"Mas1"_s);
        expectFilesUnchanged();
        EXPECT_TRUE(systemsOf(form).contains(u"New"_s));
    });
}

TEST_F(OtraCopiaTest, AnEmulatorAddedMeanwhileIsntAddedTwice)
{
    begin();
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"NES"_s);
        writeDatabase(database.replace("+N2", "+N3\r\nWEB2=\r\n+N2"));
        atInput(u"Msg_AñadirEmu"_s, {}, u"n3"_s);
        atWarning(u"Msg_EmuYaAñadido"_s);
        press(form, u"Boton_Mas2"_s);
        expectFilesUnchanged();
        EXPECT_THAT(entriesOf(listOf(form, u"Lista2"_s)), ElementsAre(u"N1"_s, u"N2"_s, u"N3"_s));
    });
}

TEST_F(OtraCopiaTest, AnEmulatorGoesToNoOtherSystem_WhereItsOwnHasGone)
{
    begin();
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"NES"_s);
        writeDatabase("' all\r\n" + known("Own", "http://own", { "O1", "N1" }) + End);
        atInput(u"Msg_AñadirEmu"_s, {}, u"N3"_s);
        atChanged();
        press(form, u"Boton_Mas2"_s);
        expectFilesUnchanged();
        EXPECT_THAT(systemsOf(form), ElementsAre(u"Own"_s));
    });
}

TEST_F(OtraCopiaTest, AnEmulatorGoesToItsOwnSystem_WhereTheOneAheadHasGoneMeanwhile)
{
    begin();
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"Arcade"_s);
        writeDatabase(database.replace(known("NES", "http://nes", { "N1", "N2" }), ""));
        atInput(u"Msg_NuevaWWWROMS"_s, {}, u"x"_s);
        press(form, u"Boton_W1"_s);
        writeDatabase(database.replace("-Arcade\r\nWEB1=", "-Arcade\r\nWEB1=x"));
        EXPECT_THAT(systemsOf(form), ElementsAre(u"Arcade"_s, u"Own"_s, u"Play Station"_s, u"PSX"_s));
        EXPECT_EQ(pairOf(form), u"Arcade -> Fbn"_s);
        atInput(u"Msg_AñadirEmu"_s, {}, u"Neo"_s);
        press(form, u"Boton_Mas2"_s);
        database.replace("WEB2=http://fbn\r\n", "WEB2=http://fbn\r\n+Neo\r\nWEB2=\r\n");
        expectFilesUnchanged();
    });
}

TEST_F(OtraCopiaTest, WhatTheOtherCopyHasConfiguredMeanwhileStaysInTheDatabase)
{
    catalogue = Top + End;
    begin();
    configure([this](forms::Form &form) {
        writeCatalogue(Top + own({ "O1" }) + End);
        select(listOf(form, u"Lista1"_s), u"Own"_s);
        select(listOf(form, u"Lista2"_s), u"O1"_s);
        atQuestion(u"Msg_BorrarEmu"_s, u"O1"_s, true);
        atWarning(u"Msg_YaAñadido"_s);
        press(form, u"Boton_Menos2"_s);
        atQuestion(u"Msg_BorrarSis"_s, u"Own"_s, true);
        atWarning(u"Msg_YaAñadido"_s);
        press(form, u"Menos1"_s);
        expectFilesUnchanged();
    });
}

TEST_F(OtraCopiaTest, ASystemThatHasGotAnEmulatorMeanwhileStaysInTheDatabase)
{
    catalogue = Top + End;
    begin();
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"NES"_s);
        writeDatabase(database.replace("+N2", "+N3\r\nWEB2=\r\n+N2"));
        atQuestion(u"Msg_BorrarSis"_s, u"NES"_s, true);
        atChanged();
        press(form, u"Menos1"_s);
        expectFilesUnchanged();
        EXPECT_THAT(entriesOf(listOf(form, u"Lista2"_s)), ElementsAre(u"N1"_s, u"N2"_s, u"N3"_s));
    });
}

TEST_F(OtraCopiaTest, WhatTheOtherCopyHasConfiguredMeanwhileGetsTheNewExtensionsAndAddress)
{
    catalogue = Top + End;
    begin();
    configure([this](forms::Form &form) {
        writeCatalogue(Top + own({ "O1" }) + End);
        select(listOf(form, u"Lista1"_s), u"Own"_s);
        atInput(u"Msg_EXT"_s, u"BIN,ZIP"_s, u"bin"_s);
        press(form, u"Boton_E"_s);
        atInput(u"Msg_NuevaWWWROMS"_s, u"http://own"_s, u"x"_s);
        press(form, u"Boton_W1"_s);
        for (QByteArray *file : { &database, &catalogue })
            file->replace("-Own\r\nWEB1=http://own\r\n*.BIN\r\n*.ZIP", "-Own\r\nWEB1=x\r\n*.BIN");
        expectFilesUnchanged();
    });
    EXPECT_THAT(entries(systems()), ElementsAre(u"Own"_s));
}

TEST_F(OtraCopiaTest, ThePairStaysSelected_WhereTheCombosNoLongerLeadToTheirNames)
{
    catalogue = Top + own({ "O1" }) + nes({ "N1", "N2" }) + End;
    begin();
    pick(systems(), u"NES"_s);
    pick(emulators(), u"N2"_s);
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"NES"_s);
        writeCatalogue(Top + nes({ "N1", "N2" }) + End);
        atInput(u"Msg_NuevaWWWROMS"_s, u"http://nes"_s, u"x"_s);
        press(form, u"Boton_W1"_s);
    });
    EXPECT_THAT(entries(systems()), ElementsAre(u"NES"_s));
    EXPECT_EQ(systems().Text() + u' ' + emulators().Text(), u"NES N2"_s);
    EXPECT_EQ(listed().size(), 2);
    EXPECT_EQ(M->Cat_Nombre(systems().ItemData(systems().ListIndex()), 2), u"+N2"_s);
}

TEST_F(OtraCopiaTest, ASystemThatHasGoneMeanwhileTakesNoExtensionsAndNoAddress)
{
    for (const QString &button : { u"Boton_E"_s, u"Boton_W1"_s, u"Boton_W2"_s }) {
        renew();
        begin();
        configure([&, this](forms::Form &form) {
            select(listOf(form, u"Lista1"_s), u"NES"_s);
            select(listOf(form, u"Lista2"_s), u"N1"_s);
            const QByteArray before = database;
            if (button == u"Boton_W2")
                writeDatabase(database.replace(
                    "-NES\r\nWEB1=http://nes\r\n*.BIN\r\n*.ZIP\r\n'\r\n+N1\r\nWEB2=http://n1\r\n",
                    "-NES\r\nWEB1=http://nes\r\n*.BIN\r\n*.ZIP\r\n'\r\n"));
            else
                writeDatabase(database.replace(known("NES", "http://nes", { "N1", "N2" }), ""));
            ASSERT_NE(before, database);
            atModal(u"Caja"_s, [](forms::Form &box) {
                write(box, u"Casilla"_s, u"x"_s);
                click(controlOf<QWidget>(box, u"Aceptar2"_s));
            });
            atChanged();
            press(form, button);
            expectFilesUnchanged();
            EXPECT_EQ(systemsOf(form).contains(u"NES"_s), button == u"Boton_W2");
            database = before;
        });
    }
}

// In the save.

TEST_F(OtraCopiaTest, TheKindOfASaveIsThatOfTheCatalogueAsItIsThen)
{
    const QByteArray saved = emulator("N2", { .exe = "/bin/emu", .roms = at(u"b/"_s) });
    const QByteArray first = emulator("N1", { .roms = at(u"a/"_s) });
    const QByteArray old = emulator("N2", { .exe = "/bin/old", .roms = at(u"a/"_s) });
    const QByteArray other = own({ "O1" });
    const QByteArray states[] = { other, other + configured("NES", "http://nes", first),
        other + configured("NES", "http://nes", first + "'\r\n" + old) };
    const QByteArray results[] = { other + configured("NES", "http://nes", saved),
        other + configured("NES", "http://nes", first + "'\r\n" + saved),
        other + configured("NES", "http://nes", first + "'\r\n" + saved) };
    for (int before = 0; before < 3; ++before) {
        for (int now = 0; now < 3; ++now) {
            SCOPED_TRACE(testing::Message() << before << " to " << now);
            renew();
            catalogue = Top + states[before] + End;
            begin();
            configurePair(u"NES"_s, u"N2"_s, [&, this](forms::Form &form) {
                EXPECT_EQ(M->Config2_Cambios, before);
                writeMinimum(form, files.path(u"b"_s));
                writeCatalogue(Top + states[now] + End);
                saveWell(form);
            });
            expectCatalogue(Top + results[now] + End);
            EXPECT_EQ(systems().Text() + u' ' + emulators().Text(), u"NES N2"_s);
            EXPECT_EQ(listed().size(), 2);
        }
    }
}

TEST_F(OtraCopiaTest, ASaveDoesntChangeAnEmulatorOfTheNameAddedToAnotherSystemMeanwhile)
{
    catalogue = Top + own({ "O1" }) + nes({ "N1", "N2" }) + End;
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/new"_s);
        writeCatalogue(Top + own({ "O1", "N1" }) + nes({ "N1", "N2" }) + End);
        atChanged();
        save(form);
    });
    expectFilesUnchanged();
    EXPECT_EQ(systems().Text(), u"NES"_s);
    pick(systems(), u"Own"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"N1"_s, u"O1"_s));
}

TEST_F(OtraCopiaTest, WhatTheOtherCopyHasSavedAlreadyIsNoChange)
{
    catalogue = Top + own({ "O1" }) + End;
    begin();
    configurePair(u"NES"_s, u"N2"_s, [this](forms::Form &form) {
        writeMinimum(form, files.path(u"b/"_s));
        writeCatalogue(Top + own({ "O1" }) + nes({ "N2" }) + End);
        expectRefused(form, u"Msg_SinCambios"_s);
    });
}

// The second step over a pair that it wasn't loaded for.

TEST_F(OtraCopiaTest, AfterARefusalTheSecondStepIsLoadedForThePairThatItIsShownFor)
{
    database = database.chopped(End.size()) + known("Void", "", {}) + End;
    begin();
    configure([this](forms::Form &first) {
        select(listOf(first, u"Lista1"_s), u"Void"_s);
        atWarning(u"Msg_NoEmuLD"_s);
        press(first, u"Aceptar2"_s);
    });
    configurePair(u"NES"_s, u"N2"_s, [this](forms::Form &form) {
        EXPECT_EQ(captionOf(form, u"Texto2"_s), u"NES -> N2"_s);
        EXPECT_EQ(captionOf(form, u"TXT_Grabar"_s), u"TXT_Grabar"_s);
        EXPECT_EQ(M->Config2_Cambios, 2);
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla2"_s).Text(), files.path(u"b/"_s));
        write(form, u"Casilla1"_s, u"/bin/new"_s);
        saveWell(form);
    });
    const QByteArray changed = emulator("N2", { .exe = "/bin/new", .roms = at(u"b/"_s) });
    expectCatalogue(Top
        + configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) }) + "'\r\n" + changed)
        + own({ "O1" }) + End);
}

// Names.

TEST_F(OtraCopiaTest, ANameThatTheFilesWouldntGiveBackIsRefused)
{
    begin();
    configure([this](forms::Form &form) {
        // The last two are lines of the notes as they are.
        for (const QString &name : { u"'"_s, u"fin"_s, u"Parametros"_s, u"[x"_s, u" "_s, u"a, \"b\""_s,
                 u"K,NES,N1,-p"_s, u"K,\"d\""_s }) {
            atInput(u"Msg_AñadirSis"_s, {}, name);
            atBadName();
            press(form, u"Mas1"_s);
        }
        for (const QString &name : { u"'"_s, u"-x"_s, u"+x"_s, u"[x"_s, u" "_s, u"\"b"_s }) {
            atInput(u"Msg_AñadirEmu"_s, {}, name);
            atBadName();
            press(form, u"Boton_Mas2"_s);
        }
        expectFilesUnchanged();
    });
}

TEST_F(OtraCopiaTest, ANameThatTheNotesUseAsARecordIsRefused)
{
    notes.replace("K,\"d\"\r\n", "LONE\r\n");
    begin();
    configure([this](forms::Form &form) {
        atInput(u"Msg_AñadirSis"_s, {}, u"LONE"_s);
        atBadName();
        press(form, u"Mas1"_s);
        expectFilesUnchanged();
    });
}

TEST_F(OtraCopiaTest, ANameThatStandsAheadOfTheFirstSystemOfTheNotesIsRefused)
{
    notes = "Notes of mine\r\n" + notes;
    begin();
    configure([this](forms::Form &form) {
        atInput(u"Msg_AñadirSis"_s, {}, u"Notes of mine"_s);
        atBadName();
        press(form, u"Mas1"_s);
        expectFilesUnchanged();
    });
}

TEST_F(OtraCopiaTest, ASystemOfANameFromEarlierGoesWithoutTheNotesOfOthers)
{
    for (const QByteArray name : { "'", "fin", "Parametros", "" }) {
        renew();
        const QByteArray before = database;
        database = database.chopped(End.size()) + known(name, "", {}) + End;
        begin();
        configure([&, this](forms::Form &form) {
            select(listOf(form, u"Lista1"_s), QString::fromLatin1(name));
            atQuestion(u"Msg_BorrarSis"_s, QString::fromLatin1(name), true);
            press(form, u"Menos1"_s);
        });
        expectFiles(before, catalogue, notes);
        database = before;
    }
}

// Actions that used to cost a neighbour its lines.

TEST_F(OtraCopiaTest, ASystemLeftWithoutEmulators_ThenWithOtherExtensions_GoesAlone)
{
    catalogue = Top + own({ "O1" }) + nes({ "N1", "N2" }) + End;
    begin();
    pick(systems(), u"Own"_s);
    remove(u"Menos2b"_s, [] {});
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"Own"_s);
        atInput(u"Msg_EXT"_s, u"BIN,ZIP"_s, u"bin"_s);
        press(form, u"Boton_E"_s);
    });
    database.replace("-Own\r\nWEB1=http://own\r\n*.BIN\r\n*.ZIP", "-Own\r\nWEB1=http://own\r\n*.BIN");
    expectCatalogue(Top + "-Own\r\nWEB1=http://own\r\n*.BIN\r\n'\r\n" + Closing + nes({ "N1", "N2" }) + End);
    remove(u"Menos2a"_s, [] {});
    expectCatalogue(Top + nes({ "N1", "N2" }) + End);
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        writeMinimum(form, files.path(u"a"_s));
        saveWell(form);
    });
}

TEST_F(OtraCopiaTest, AnAddressGoesToItsOwnEmulatorAlone)
{
    QByteArray saved = own({ "O1" });
    saved.replace("WEB2=http://o1", "");
    catalogue = Top + saved + nes({ "N1", "N2" }) + End;
    database.replace("+O1\r\nWEB2=http://o1\r\n", "+O1\r\nWEB2=\r\n");
    begin();
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"Own"_s);
        select(listOf(form, u"Lista2"_s), u"O1"_s);
        atInput(u"Msg_NuevaWWW"_s, {}, u"x"_s);
        press(form, u"Boton_W2"_s);
    });
    database.replace("+O1\r\nWEB2=\r\n", "+O1\r\nWEB2=x\r\n");
    catalogue.replace("+O1\r\n", "+O1\r\nWEB2=x\r\n");
    expectFilesUnchanged();
    // The pair isn't configured, an emulator of its name is.
    configure([this](forms::Form &form) {
        select(listOf(form, u"Lista1"_s), u"Own"_s);
        select(listOf(form, u"Lista2"_s), u"N1"_s);
        atInput(u"Msg_NuevaWWW"_s, u"http://n1"_s, u"y"_s);
        press(form, u"Boton_W2"_s);
    });
    database.replace("+O1\r\nWEB2=x\r\n+N1\r\nWEB2=http://n1", "+O1\r\nWEB2=x\r\n+N1\r\nWEB2=y");
    expectFilesUnchanged();
}
