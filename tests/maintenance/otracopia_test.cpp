// Removals of the main screen while another copy is at work: nothing that the user didn't name goes, and he
// sees what the files hold.

#include "otracopiatest.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(OtraCopiaTest, AnEmulatorAddedMeanwhileStays_WhicheverWasToGo)
{
    for (const QString &named : { u"N1"_s, u"N2"_s }) {
        renew();
        catalogue = Top + nes({ "N1", "N2" }) + own({ "O1" }) + End;
        begin();
        pick(emulators(), named);
        remove(u"Menos2b"_s, [this] {
            writeCatalogue(Top + nes({ "N1", "N2", "N3" }) + own({ "O1" }) + End);
            atChanged();
        });
        expectFilesUnchanged();
        EXPECT_EQ(systems().Text(), u"NES"_s);
        EXPECT_THAT(entries(emulators()), ElementsAre(u"N1"_s, u"N2"_s, u"N3"_s));
        EXPECT_EQ(emulators().Text(), named);
        EXPECT_EQ(listed().size(), named == u"N1" ? 1 : 2);
        EXPECT_EQ(focused(), u"Combo2"_s);

        remove(u"Menos2b"_s, [] {});
        expectCatalogue(
            Top + (named == u"N1" ? nes({ "N2", "N3" }) : nes({ "N1", "N3" })) + own({ "O1" }) + End);
    }
}

TEST_F(OtraCopiaTest, TheNextSystemStays_WhereTheLastOfSeveralHasGoneMeanwhile)
{
    begin();
    pick(emulators(), u"N2"_s);
    remove(u"Menos2b"_s, [this] {
        writeCatalogue(Top + nes({ "N1" }) + own({ "O1" }) + End);
        atChanged();
    });
    expectFilesUnchanged();
    EXPECT_THAT(entries(emulators()), ElementsAre(u"N1"_s));
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(word(), u"-----"_s);
}

TEST_F(OtraCopiaTest, TheOnlyEmulatorStays_WhereItIsntTheOnlyOneAnyMore)
{
    begin();
    pick(systems(), u"Own"_s);
    remove(u"Menos2b"_s, [this] {
        writeCatalogue(Top + own({ "O1", "O2" }) + nes({ "N1", "N2" }) + End);
        atChanged();
    });
    expectFilesUnchanged();
    EXPECT_EQ(systems().Text(), u"Own"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"O1"_s, u"O2"_s));
}

TEST_F(OtraCopiaTest, ASystemThatHasChangedMeanwhileStays)
{
    begin();
    remove(u"Menos2a"_s, [this] {
        writeCatalogue(Top + nes({ "N1", "N2", "N3" }) + own({ "O1" }) + End);
        atChanged();
    });
    expectFilesUnchanged();
    EXPECT_EQ(focused(), u"Combo1"_s);
    remove(u"Menos2a"_s, [] {});
    expectCatalogue(Top + own({ "O1" }) + End);
    EXPECT_EQ(systems().Text(), u"Own"_s);
}

TEST_F(OtraCopiaTest, WhereTheSystemHasGoneMeanwhile_TheOthersAreShown)
{
    begin();
    remove(u"Menos2a"_s, [this] {
        writeCatalogue(Top + own({ "O1" }) + End);
        atChanged();
    });
    expectFilesUnchanged();
    EXPECT_THAT(entries(systems()), ElementsAre(u"Own"_s));
    EXPECT_EQ(systems().Text(), u"Own"_s);
    EXPECT_EQ(emulators().Text(), QString());
    EXPECT_THAT(listed(), IsEmpty());
    remove(u"Menos2a"_s, [this] {
        writeCatalogue(Top + End);
        atChanged();
    });
    expectFilesUnchanged();
    EXPECT_THAT(entries(systems()), IsEmpty());
    EXPECT_EQ(summary(), u"0 ROMS - 0,00MB"_s);
}

TEST_F(OtraCopiaTest, TheRightSystemIsShown_WhereOthersHaveComeOrGoneMeanwhile)
{
    begin();
    pick(systems(), u"Own"_s);
    remove(u"Menos2b"_s,
        [this] { writeCatalogue(Top + own({ "O1" }) + blocks("Arcade", "", { "Mame" }) + End); });
    EXPECT_EQ(systems().Text(), u"Own"_s);
    EXPECT_THAT(entries(systems()), ElementsAre(u"Arcade"_s, u"Own"_s));
    remove(u"Menos2a"_s, [this] { writeCatalogue(Top + blocks("Own", "http://own", {}) + End); });
    expectCatalogue(Top + End);
    EXPECT_THAT(entries(systems()), IsEmpty());
}

TEST_F(OtraCopiaTest, AnEmulatorOfTheSameNameAddedToAnotherSystemMeanwhileStays)
{
    catalogue = Top + own({ "O1" }) + nes({ "N1", "N2" }) + End;
    begin();
    pick(systems(), u"NES"_s);
    pick(emulators(), u"N1"_s);
    remove(u"Menos2b"_s, [this] {
        writeCatalogue(Top + own({ "O1", "N1" }) + nes({ "N1", "N2" }) + End);
        atChanged();
    });
    expectFilesUnchanged();
    EXPECT_EQ(systems().Text() + u' ' + emulators().Text(), u"NES N1"_s);
}

TEST_F(OtraCopiaTest, ASecondSystemOfTheNameAddedMeanwhileStays)
{
    begin();
    remove(u"Menos2a"_s, [this] {
        writeCatalogue(Top + nes({ "N1", "N2" }) + own({ "O1" }) + nes({ "N3" }) + End);
        atChanged();
    });
    expectFilesUnchanged();
}
