// Saving: refusals, the three kinds of save, and what the main screen shows then.

#include "grabaciontest.h"

#include "tests/support/ordinaryuser.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(GrabacionTest, WithoutAnExecutableItIsRefused)
{
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) { expectRefused(form, u"Msg_NoEXE"_s); });
}

TEST_F(GrabacionTest, WithoutARomDirectoryItIsRefused_ForPSXToo)
{
    begin();
    for (const auto &[system, name] : { std::pair(u"NES"_s, u"N1"_s), std::pair(u"PSX"_s, u"P2"_s) }) {
        configurePair(system, name, [this](forms::Form &form) {
            write(form, u"Casilla1"_s, u"/bin/emu"_s);
            expectRefused(form, u"Msg_NoDIR"_s);
        });
    }
}

TEST_F(GrabacionTest, AnArcadeWithoutAMarkIsRefused_TheFourthIsNone)
{
    begin();
    configurePair(u"Arcade"_s, u"Mame"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/emu"_s);
        write(form, u"Casilla2"_s, u"/roms"_s);
        expectRefused(form, u"Msg_Casillas"_s);
        mark(form, 4);
        expectRefused(form, u"Msg_Casillas"_s);
    });
}

TEST_F(GrabacionTest, AnArcadeStoredAsTypeEightIsRefusedAtOnce)
{
    catalogue = Top + configured("Arcade", "", emulator("Mame", { .type = "8", .roms = "/r/" })) + End;
    begin();
    configurePair(
        u"Arcade"_s, u"Mame"_s, [this](forms::Form &form) { expectRefused(form, u"Msg_Casillas"_s); });
}

TEST_F(GrabacionTest, ThePressShowsThePressedPictureAndTheReleaseSaves)
{
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        auto &disk = controlOf<forms::PictureButton>(form, u"Disco1"_s);
        press(disk);
        EXPECT_TRUE(disk.ShowsPressed());
        atModal(u"Caja"_s, [&disk](forms::Form &box) {
            EXPECT_FALSE(disk.ShowsPressed());
            click(controlOf<QWidget>(box, u"Flecha2"_s));
        });
        releaseAt(disk, QPoint(-50, 10));
    });
}

TEST_F(GrabacionTest, ANewSystemStandsAheadOfTheBracketAndIsListed)
{
    begin();
    configurePair(u"NES"_s, u"N2"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/My emu"_s);
        write(form, u"Casilla2"_s, files.path(u"a"_s));
        write(form, u"Casilla3"_s, files.path(u"red/"_s));
        write(form, u"Casilla4"_s, u"-f  x"_s);
        write(form, u"Casilla5"_s, u" -y"_s);
        saveWell(form);
    });
    const Block block { "/bin/My emu", "0", at(u"a/"_s), at(u"red/"_s), "-f  x", " -y" };
    expectCatalogue(Top + configured("NES", "http://nes", emulator("N2", block)) + End);
    EXPECT_EQ(systems().Text(), u"NES"_s);
    EXPECT_EQ(emulators().Text(), u"N2"_s);
    EXPECT_THAT(listed(), ElementsAre(u"one.bin"_s));
    EXPECT_EQ(capture(), QColor(Qt::red));
    EXPECT_EQ(word(), u"TXT_Jugar"_s);
    EXPECT_EQ(focused(), u"Lista1"_s);
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), u"ROM="_s + files.path(u"a/"_s).toUpper());
    EXPECT_EQ(M->Combo1Listo, 1);
    EXPECT_EQ(M->Combo2Listo, 1);
}

TEST_F(GrabacionTest, BothStepsAreHiddenUnderTheNotice_AndLoadedAnewTheNextTime)
{
    begin();
    configure([this](forms::Form &first) {
        select(controlOf<forms::ListBox>(first, u"Lista1"_s), u"NES"_s);
        atModal(u"Configuracion2"_s, [&, this](forms::Form &second) {
            writeMinimum(second, files.path(u"a"_s));
            atModal(u"Caja"_s, [&](forms::Form &notice) {
                EXPECT_FALSE(first.isVisible());
                EXPECT_FALSE(second.isVisible());
                EXPECT_TRUE(portada->isVisible());
                click(controlOf<QWidget>(notice, u"Aceptar2"_s));
            });
            save(second);
        });
        click(controlOf<QWidget>(first, u"Aceptar2"_s));
    });
    configure([](forms::Form &first) { EXPECT_EQ(captionOf(first, u"Texto5"_s), u"Arcade -> Fbn"_s); });
}

TEST_F(GrabacionTest, ASecondNewSystemIsSelectedWhateverItsPlace)
{
    withNes({ .roms = at(u"a/"_s) });
    configurePair(u"Arcade"_s, u"Fbn"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/fbn"_s);
        write(form, u"Casilla2"_s, files.path(u"b"_s));
        mark(form, 2);
        mark(form, 3);
        saveWithoutGames(form); // no archives there
    });
    expectCatalogue(catalogue.chopped(End.size())
        + configured("Arcade", "", emulator("Fbn", { "/bin/fbn", "3", at(u"b/"_s) })) + End);
    EXPECT_THAT(entries(systems()), ElementsAre(u"Arcade"_s, u"NES"_s));
    EXPECT_EQ(systems().Text(), u"Arcade"_s);
    EXPECT_EQ(emulators().Text(), u"Fbn"_s);
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(GrabacionTest, ANewEmulatorIsTheLastOfItsSystemAndListedByItsSelection)
{
    withNes({ .roms = at(u"a/"_s) });
    configurePair(u"NES"_s, u"N2"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/n2"_s);
        write(form, u"Casilla2"_s, files.path(u"b"_s));
        mark(form, 4);
        saveWell(form);
    });
    expectCatalogue(Top
        + configured("NES", "http://nes",
            emulator("N1", { .roms = at(u"a/"_s) }) + "'\r\n"
                + emulator("N2", { .exe = "/bin/n2", .type = "5", .roms = at(u"b/"_s) }))
        + End);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"N1"_s, u"N2"_s));
    EXPECT_EQ(emulators().Text(), u"N2"_s);
    EXPECT_THAT(listed(), ElementsAre(u"three.bin"_s, u"two.bin"_s));
    EXPECT_EQ(word(), u"TXT_Cargar"_s);
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(GrabacionTest, ANewEmulatorStaysUnlistedWhereTheOldSelectionNoLongerFits)
{
    // Two systems, the second of which was selected at the start and has gone since.
    catalogue = Top + configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) }))
        + configured("Own", "http://own", emulator("O1", { .roms = at(u"b/"_s) })) + End;
    Settings settings;
    settings.LastSisUsed = u"1"_s;
    files.writeSettings(settings);
    begin();
    files.write(u"Zembro.emu"_s,
        Top + configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) })) + End);
    portada->Llena_Combos();
    configurePair(u"NES"_s, u"N2"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/n2"_s);
        write(form, u"Casilla2"_s, files.path(u"a"_s));
        saveWell(form);
    });
    EXPECT_EQ(emulators().Text(), u"N2"_s);
    EXPECT_THAT(listed(), ElementsAre(u"three.bin"_s, u"two.bin"_s)); // the old list
    EXPECT_EQ(M->Combo2Listo, 0);
}

TEST_F(GrabacionTest, NothingChangedIsRefusedAndNothingTouched)
{
    withNes({ "/bin/emu", "0", at(u"a/"_s), at(u"red/"_s), "-a", "-b" });
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) { expectRefused(form, u"Msg_SinCambios"_s); });
}

TEST_F(GrabacionTest, ADirectoryWithoutItsSeparatorIsAChange_AndComesOutTheSame)
{
    withNes({ .roms = at(u"a/"_s) });
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla2"_s, files.path(u"a"_s));
        saveWell(form);
    });
    expectFilesUnchanged();
}

TEST_F(GrabacionTest, AChangedEmulatorTakesThePlaceOfItsOldBlock_AndTheCombosStay)
{
    catalogue = Top
        + configured("NES", "http://nes",
            emulator("N2", { .roms = "/n/" }) + "'\r\n" + emulator("N1", { .roms = at(u"a/"_s) }))
        + End;
    begin();
    pick(emulators(), u"N1"_s);
    ASSERT_THAT(listed(), ElementsAre(u"one.bin"_s));
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        mark(form, 4);
        saveWell(form);
    });
    expectCatalogue(Top
        + configured("NES", "http://nes",
            emulator("N2", { .roms = "/n/" }) + "'\r\n"
                + emulator("N1", { .exe = "/bin/other", .type = "5", .roms = at(u"a/"_s) }))
        + End);
    EXPECT_EQ(emulators().Text(), u"N1"_s);
    EXPECT_EQ(M->TipoEmu, u"5"_s);
    EXPECT_EQ(word(), u"TXT_Cargar"_s);
    EXPECT_EQ(M->Cat_EXE(0, 2), u"EXE=/bin/other"_s);
    EXPECT_EQ(M->Combo1Listo, 1);
    EXPECT_EQ(M->Combo2Listo, 1);
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(GrabacionTest, WhereNothingCanBeWrittenBothStepsStayWithWhatIsTyped)
{
    withNes({ .roms = at(u"a/"_s) });
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        atNotWritten();
        {
            const AsOrdinaryUser user(files.path());
            save(form);
        }
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla1"_s).Text(), u"/bin/other"_s);
        expectFilesUnchanged();
        saveWell(form); // where it can be written again
    });
}

TEST_F(GrabacionTest, AnotherRomDirectoryIsListedAtOnce)
{
    withNes({ .roms = at(u"a/"_s) });
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla2"_s, files.path(u"b/"_s));
        saveWell(form);
    });
    EXPECT_THAT(listed(), ElementsAre(u"three.bin"_s, u"two.bin"_s));
}

TEST_F(GrabacionTest, AnotherCaptureDirectoryShowsItsCapture)
{
    withNes({ .roms = at(u"a/"_s), .captures = at(u"red/"_s) });
    ASSERT_EQ(capture(), QColor(Qt::red));
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla3"_s, files.path(u"blue"_s));
        saveWell(form);
    });
    EXPECT_EQ(capture(), QColor(Qt::blue));
}

TEST_F(GrabacionTest, AnEmptyCaptureDirectoryIsNoFailure_AndShowsBlack)
{
    withNes({ .roms = at(u"a/"_s), .captures = at(u"red/"_s) });
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla3"_s, {});
        saveWell(form);
    });
    expectCatalogue(Top + configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) })) + End);
    EXPECT_EQ(capture(), QColor(Qt::black));
    EXPECT_EQ(zoomed(), QColor(Qt::black));
}

// Nothing asks for the capture or the list anew: the black picture is the saving's own.
TEST_F(GrabacionTest, WithoutACaptureDirectoryItShowsBlackAheadOfTheNotice_WhateverStoodThere)
{
    withNes({ .roms = at(u"a/"_s) });
    showRed();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        atModal(u"Caja"_s, [this](forms::Form &notice) {
            EXPECT_EQ(notice.Caption(), u"Msg_CFGGrabada0"_s);
            EXPECT_EQ(capture(), QColor(Qt::black));
            EXPECT_EQ(zoomed(), QColor(Qt::black));
            click(controlOf<QWidget>(notice, u"Aceptar2"_s));
        });
        save(form);
    });
}

TEST_F(GrabacionTest, WithoutACaptureDirectoryAnEmptyListLeavesThePictures)
{
    files.makeDirectory(u"none"_s);
    withNes({ .roms = at(u"none/"_s) });
    showRed();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        saveWithoutGames(form);
    });
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(capture(), QColor(Qt::red));
    EXPECT_EQ(zoomed(), QColor(Qt::red));
}

TEST_F(GrabacionTest, WithACaptureDirectoryThePicturesStay)
{
    withNes({ .roms = at(u"a/"_s), .captures = at(u"blue/"_s) });
    showRed();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        saveWell(form);
    });
    EXPECT_EQ(capture(), QColor(Qt::red));
    EXPECT_EQ(zoomed(), QColor(Qt::red));
}

TEST_F(GrabacionTest, EverySaveOfAChangeRemembersTheDirectoryInTheNextOfTwoSlots)
{
    withNes({ .roms = at(u"a/"_s) });
    const QString first = u"ROM="_s + files.path(u"a/"_s).toUpper();
    const QString second = u"ROM="_s + files.path(u"b/"_s).toUpper();
    ASSERT_EQ(M->IndiceRutas, 1);
    ASSERT_EQ(M->RutasROM(1), first);
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla2"_s, files.path(u"b"_s));
        saveWell(form);
    });
    EXPECT_EQ(M->IndiceRutas, 0); // behind the second
    EXPECT_EQ(M->RutasROM(1), first);
    EXPECT_EQ(M->RutasROM(2), second);
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        saveWell(form);
    });
    EXPECT_EQ(M->IndiceRutas, 1);
    EXPECT_EQ(M->RutasROM(1), second);
    EXPECT_EQ(M->RutasROM(2), second);
}

// Another pair than the selected one, so that the two directories differ.
TEST_F(GrabacionTest, OtherParametersBehindAnotherDirectoryReadTheListAnew)
{
    for (const QString &box : { u"Casilla4"_s, u"Casilla5"_s }) {
        renew();
        catalogue = Top
            + configured("NES", "http://nes",
                emulator("N1", { .roms = at(u"a/"_s) }) + "'\r\n" + emulator("N2", { .roms = at(u"b/"_s) }))
            + End;
        begin();
        pick(emulators(), u"N1"_s);
        ASSERT_THAT(listed(), ElementsAre(u"one.bin"_s));
        configurePair(u"NES"_s, u"N2"_s, [this, &box](forms::Form &form) {
            write(form, box, u"-z"_s);
            saveWell(form);
        });
        EXPECT_EQ(emulators().Text(), u"N2"_s);
        EXPECT_THAT(listed(), ElementsAre(u"three.bin"_s, u"two.bin"_s)) << box.toStdString();
    }
}

TEST_F(GrabacionTest, OtherParametersOfTheSameDirectoryLeaveTheListAsItIs)
{
    withNes({ .roms = at(u"a/"_s) });
    files.writeSize(u"a/later.bin"_s, 2048);
    for (const QString &box : { u"Casilla4"_s, u"Casilla5"_s }) {
        configurePair(u"NES"_s, u"N1"_s, [this, &box](forms::Form &form) {
            write(form, box, u"-z"_s);
            saveWell(form);
        });
        EXPECT_EQ(M->RutasROM(1), M->RutasROM(2));
        EXPECT_THAT(listed(), ElementsAre(u"one.bin"_s)) << box.toStdString();
    }
}

// A mark left behind would list the games at the next pick, though the directory is the same.
TEST_F(GrabacionTest, AChangedArcadeLeavesNoMarkOfHavingBeenConfigured)
{
    catalogue = Top + configured("Arcade", "", emulator("Mame", { .type = "3", .roms = at(u"b/"_s) })) + End;
    files.writeSize(u"b/game.zip"_s, 2048);
    begin();
    configurePair(u"Arcade"_s, u"Mame"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        saveWell(form);
    });
    expectCatalogue(
        Top + configured("Arcade", "", emulator("Mame", { "/bin/other", "3", at(u"b/"_s) })) + End);
    EXPECT_EQ(M->EmuConfigurado, 0);
}

TEST_F(GrabacionTest, TheGreyedParametersAreSavedAsTheyStand)
{
    withNes({ .roms = at(u"a/"_s) });
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla5"_s, u"-z"_s);
        mark(form, 4);
        saveWell(form);
    });
    expectCatalogue(Top
        + configured(
            "NES", "http://nes", emulator("N1", { .type = "5", .roms = at(u"a/"_s), .behind = "-z" }))
        + End);
}

TEST_F(GrabacionTest, AnEmulatorThatGetsItsGameAgainHasTheWordForPlaying)
{
    catalogue =
        Top + configured("Own", "http://own", emulator("O1", { .type = "6", .roms = at(u"games/"_s) })) + End;
    begin();
    ASSERT_EQ(word(), u"TXT_Cargar"_s);
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        mark(form, 4);
        saveWell(form);
    });
    const QByteArray changed = emulator("O1", { .type = "2", .roms = at(u"games/"_s) });
    expectCatalogue(Top + configured("Own", "http://own", changed) + End);
    EXPECT_EQ(M->TipoEmu, u"2"_s);
    EXPECT_EQ(word(), u"TXT_Jugar"_s);
}

TEST_F(GrabacionTest, APairThatIsntSelectedBecomesSo_AndKeepsTheOldListWhereOnlyTheExecutableChanged)
{
    catalogue = Top + configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) }))
        + configured("Own", "http://own", emulator("O1", { .roms = at(u"b/"_s) })) + End;
    begin();
    ASSERT_THAT(listed(), ElementsAre(u"one.bin"_s));
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/other"_s);
        saveWell(form);
    });
    EXPECT_EQ(systems().Text(), u"Own"_s);
    EXPECT_EQ(emulators().Text(), u"O1"_s);
    EXPECT_THAT(listed(), ElementsAre(u"one.bin"_s));
    EXPECT_EQ(M->Combo1Listo, 1);
    EXPECT_EQ(M->Combo2Listo, 1);
}

TEST_F(GrabacionTest, APairThatIsntSelected_IsListedWithItsCapture_WhereItsCaptureDirectoryChanged)
{
    catalogue = Top + configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) }))
        + configured("Own", "http://own", emulator("O1", { .roms = at(u"b/"_s), .captures = at(u"red/"_s) }))
        + End;
    files.writeSize(u"b/late.bin"_s, 1024);
    files.writeGif(u"blue/late.gif"_s, Qt::blue);
    begin();
    ASSERT_THAT(listed(), ElementsAre(u"one.bin"_s));
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        write(form, u"Casilla3"_s, files.path(u"blue"_s));
        saveWell(form);
    });
    EXPECT_EQ(systems().Text(), u"Own"_s);
    ASSERT_TRUE(listed().contains(u"late.bin"_s));
    list().SetText(u"late.bin"_s);
    EXPECT_EQ(capture(), QColor(Qt::blue));
}

TEST_F(GrabacionTest, OfTwoEmulatorsOfOneNameTheFirstInTheFileChanges_WithTheAddressOfTheRightSystem)
{
    database.replace("+O1\r\nWEB2=http://o1\r\n+N1\r\nWEB2=http://n1",
        "+O1\r\nWEB2=http://o1\r\n+N1\r\nWEB2=http://own-n1");
    const QByteArray second =
        configured("Own", "http://own", emulator("N1", { .exe = "/bin/second", .roms = "/s/" }));
    catalogue = Top + configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) })) + second + End;
    begin();
    configurePair(u"Own"_s, u"N1"_s, [this](forms::Form &form) {
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla1"_s).Text(), u"/bin/emu"_s);
        write(form, u"Casilla1"_s, u"/bin/new"_s);
        saveWell(form);
    });
    QByteArray changed = emulator("N1", { .exe = "/bin/new", .roms = at(u"a/"_s) });
    changed.replace("http://n1", "http://own-n1");
    expectCatalogue(Top + configured("NES", "http://nes", changed) + second + End);
}

TEST_F(GrabacionTest, AStoredTypeFromFiveOnSavedAtOnceIsAnotherOne)
{
    catalogue =
        Top + configured("Own", "http://own", emulator("O1", { .type = "5", .roms = at(u"games/"_s) })) + End;
    begin();
    // The list stays as it was: without files.
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) { saveWithoutGames(form); });
    const QByteArray changed = emulator("O1", { .type = "6", .roms = at(u"games/"_s) });
    expectCatalogue(Top + configured("Own", "http://own", changed) + End);
}

TEST_F(GrabacionTest, EveryCombinationOfMarksIsSavedAsItsDigit)
{
    const std::pair<QString, QByteArray> types[] = { { u""_s, "0" }, { u"1"_s, "1" }, { u"2"_s, "2" },
        { u"23"_s, "3" }, { u"4"_s, "5" }, { u"14"_s, "6" }, { u"24"_s, "7" }, { u"234"_s, "8" } };
    for (const auto &[marks, type] : types) {
        renew();
        begin();
        configurePair(u"Own"_s, u"O1"_s, [&, wanted = marks](forms::Form &form) {
            write(form, u"Casilla1"_s, u"/bin/emu"_s);
            write(form, u"Casilla2"_s, u"/none/"_s);
            for (const QChar number : wanted)
                mark(form, number.digitValue());
            saveWithoutGames(form);
        });
        expectCatalogue(
            Top + configured("Own", "http://own", emulator("O1", { .type = type, .roms = "/none/" })) + End);
    }
}

TEST_F(GrabacionTest, ASystemOfDiscsMayHaveNoRomDirectory)
{
    begin();
    configurePair(u"Play Station"_s, u"P1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/psx"_s);
        atModal(u"Caja"_s, [&form](forms::Form &box) {
            EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla2"_s).Text(), u"C:\\NoDir"_s);
            click(controlOf<QWidget>(box, u"Flecha2"_s));
        });
        save(form);
    });
    expectCatalogue(Top
        + configured("Play Station", "", emulator("P1", { .exe = "/bin/psx", .roms = "C:\\NoDir\\" })) + End);
    // Emptied again it counts as a change.
    configurePair(u"Play Station"_s, u"P1"_s, [this](forms::Form &form) {
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla2"_s).Text(), u"C:\\NoDir\\"_s);
        write(form, u"Casilla2"_s, {});
        saveWithoutGames(form);
    });
    expectCatalogue(Top
        + configured("Play Station", "", emulator("P1", { .exe = "/bin/psx", .roms = "C:\\NoDir\\" })) + End);
}

TEST_F(GrabacionTest, DirectoriesGetTheSeparatorOfTheirOwnKindOnce)
{
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"emu"_s);
        write(form, u"Casilla2"_s, u"D:\\ROMS\\"_s);
        write(form, u"Casilla3"_s, u"C:\\shots"_s);
        saveWithoutGames(form);
    });
    const Block block { "emu", "0", "D:\\ROMS\\", "C:\\shots\\" };
    expectCatalogue(Top + configured("NES", "http://nes", emulator("N1", block)) + End);
}

TEST_F(GrabacionTest, APairThatTheDatabaseLacksGetsEmptyLinesForItsPages)
{
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        database = "' all\r\n" + known("NES", "http://nes", { "N2" }) + "[EOF]\r\n";
        files.write(u"Zembro.sye"_s, database);
        write(form, u"Casilla1"_s, u"/bin/emu"_s);
        write(form, u"Casilla2"_s, files.path(u"a"_s));
        saveWell(form);
    });
    QByteArray block = emulator("N1", { .roms = at(u"a/"_s) });
    block.replace("WEB2=http://n1", "");
    expectCatalogue(Top + configured("NES", "http://nes", block) + End);
}

TEST_F(GrabacionTest, TwoBracketsTakeANewSystemTwice_AndTheFirstIsSelected)
{
    catalogue = Top + "[one]\r\n[two]\r\n";
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, u"/bin/emu"_s);
        write(form, u"Casilla2"_s, files.path(u"a"_s));
        saveWell(form);
    });
    const QByteArray block = configured("NES", "http://nes", emulator("N1", { .roms = at(u"a/"_s) }));
    expectCatalogue(Top + block + "[one]\r\n" + block + "[two]\r\n");
    EXPECT_THAT(entries(systems()), ElementsAre(u"NES"_s, u"NES"_s));
}
