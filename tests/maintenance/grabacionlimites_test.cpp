// Saving where a file or a table gives out.

#include "grabaciontest.h"

using namespace Qt::StringLiterals;
using testing::HasSubstr;

using GrabacionLimitesTest = GrabacionTest;

TEST_F(GrabacionLimitesTest, AMissingCatalogueEndsTheProgram_AndIsNamed)
{
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        files.remove(u"Zembro.emu"_s);
        writeMinimum(form, files.path(u"a"_s));
        const std::optional<ProcessEnd> end = endOf([&form] { save(form); });
        ASSERT_TRUE(end);
        EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR53)"));
        EXPECT_THAT(end->text.toStdString(), HasSubstr("Zembro.emu"));
    });
    EXPECT_EQ(files.read(u"Zembro.sye"_s), database);
}

TEST_F(GrabacionLimitesTest, AnEmptyFileEndsTheProgram_AndTheOtherStays)
{
    for (const QString &empty : { u"Zembro.emu"_s, u"Zembro.sye"_s }) {
        renew();
        begin();
        configurePair(u"NES"_s, u"N1"_s, [&, this](forms::Form &form) {
            writeMinimum(form, files.path(u"a"_s));
            files.write(empty, {});
            expectEnd(form, "(ERR62)");
        });
        const bool ofCatalogue = empty == u"Zembro.emu"_s;
        expectFiles(ofCatalogue ? database : QByteArray(), ofCatalogue ? QByteArray() : catalogue, notes);
    }
}

TEST_F(GrabacionLimitesTest, The152ndSystemIsWritten_AndEndsTheProgramAfterwards)
{
    catalogue = Top + manyConfigured(151) + End;
    begin();
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        writeMinimum(form, files.path(u"a"_s));
        expectEnd(form, "(ERR383)");
    });
    expectCatalogue(catalogue.chopped(End.size())
        + configured("Own", "http://own", emulator("O1", { .roms = at(u"a/"_s) })) + End);
}

// The search ends ahead of the last row of the table.
TEST_F(GrabacionLimitesTest, The151stSystemCountsAsNotConfigured_AndIsWrittenASecondTime)
{
    const QByteArray own = configured("Own", "http://own", emulator("O1", { .roms = at(u"a/"_s) }));
    catalogue = Top + manyConfigured(150) + own + End;
    begin();
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        EXPECT_EQ(M->Config2_Cambios, 0);
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"Casilla1"_s).Text(), QString());
        writeMinimum(form, files.path(u"a"_s));
        expectEnd(form, "(ERR383)");
    });
    expectCatalogue(Top + manyConfigured(150) + own + own + End);
}

TEST_F(GrabacionLimitesTest, The151stEmulatorIsWritten_AndEndsTheProgramAfterwards)
{
    QByteArray blocks = emulator("E1", { .roms = at(u"a/"_s) });
    for (int e = 2; e <= 150; ++e)
        blocks += "'\r\n" + emulator("E" + QByteArray::number(e), { .roms = at(u"a/"_s) });
    catalogue = Top + configured("NES", "http://nes", blocks) + End;
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        writeMinimum(form, files.path(u"a"_s));
        expectEnd(form, "(ERR383)");
    });
    blocks += "'\r\n" + emulator("N1", { .roms = at(u"a/"_s) });
    expectCatalogue(Top + configured("NES", "http://nes", blocks) + End);
}

TEST_F(GrabacionLimitesTest, ANewSystemOf151ExtensionsEndsTheProgram_AndTheCatalogueStays)
{
    QByteArray extensions;
    for (int i = 1; i <= 151; ++i)
        extensions += "*.E" + QByteArray::number(i) + "\r\n";
    database = "' all\r\n-Own\r\nWEB1=\r\n" + extensions + "'\r\n+O1\r\nWEB2=\r\n" + Closing + "[EOF]\r\n";
    begin();
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        writeMinimum(form, files.path(u"a"_s));
        expectEnd(form, "(ERR9)");
    });
    expectFilesUnchanged();
}

TEST_F(GrabacionLimitesTest, NothingIsSaved_WhereTheKindOfSaveIsUnknown)
{
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        M->Config2_Cambios = 3;
        writeMinimum(form, files.path(u"a"_s));
        save(form);
        EXPECT_TRUE(form.isVisible());
    });
    expectFilesUnchanged();
}

TEST_F(GrabacionLimitesTest, BehindASystemWithoutEmulatorsANewSystemIsSavedWithoutExtensions)
{
    database = "' all\r\n" + known("Empty", "", {}) + known("Own", "http://own", { "O1" }) + "[EOF]\r\n";
    begin();
    configurePair(u"Own"_s, u"O1"_s, [this](forms::Form &form) {
        writeMinimum(form, files.path(u"a"_s));
        saveWithoutGames(form); // none has an extension of the system
    });
    expectCatalogue(
        Top + "-Own\r\nWEB1=http://own\r\n'\r\n" + emulator("O1", { .roms = at(u"a/"_s) }) + Closing + End);
}

TEST_F(GrabacionLimitesTest, TheOldTailOfAShorterListIsSavedWithANewSystem)
{
    begin();
    configure([this](forms::Form &first) {
        atInput(u"Msg_EXT"_s, u"BIN,ZIP"_s, u"n64"_s);
        select(controlOf<forms::ListBox>(first, u"Lista1"_s), u"NES"_s);
        click(controlOf<QWidget>(first, u"Boton_E"_s));
    });
    database.replace("-NES\r\nWEB1=http://nes\r\n*.BIN\r\n*.ZIP", "-NES\r\nWEB1=http://nes\r\n*.N64");
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        writeMinimum(form, files.path(u"b"_s));
        saveWithoutGames(form);
    });
    expectCatalogue(Top + "-NES\r\nWEB1=http://nes\r\n*.N64\r\n*.ZIP\r\n'\r\n"
        + emulator("N1", { .roms = at(u"b/"_s) }) + Closing + End);
}

TEST_F(GrabacionLimitesTest, ASystemThatTheDatabaseNoLongerHasGetsEmptyLinesForItsPages)
{
    begin();
    configurePair(u"NES"_s, u"N1"_s, [this](forms::Form &form) {
        database = "' all\r\n" + known("Own", "http://own", { "N1" }) + "[EOF]\r\n";
        files.write(u"Zembro.sye"_s, database);
        writeMinimum(form, files.path(u"a"_s));
        saveWell(form);
    });
    QByteArray block = configured("NES", {}, emulator("N1", { .roms = at(u"a/"_s) }));
    block.replace("WEB1=\r\n", "\r\n").replace("WEB2=http://n1\r\n", "\r\n");
    expectCatalogue(Top + block + End);
}
