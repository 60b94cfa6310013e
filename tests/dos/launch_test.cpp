// Launches of programs for DOS, from the selection to the end, in the real DOSBox.
#include "dostest.h"

#include "launch/apodado.h"

#include "host/encoding.h"
#include "host/paths.h"
#include "host/process.h"

#include "tests/launch/zipdeprueba.h"

#include <QSet>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LaunchesInDosBox : public DosTest {
protected:
    LaunchesInDosBox()
    {
        makeDirectory("old");
        makeDirectory("old/EMUS");
        makeDirectory("old/Emus For Nes");
        makeDirectory("media");
        makeDirectory("media/ROMS");
    }
    void NameBoth() const { NameDrives("C=" + place("old") + "/\r\nD=" + place("media") + "\r\n"); }
};

} // namespace

TEST_F(LaunchesInDosBox, AnOldCatalogueWorksAsItIs)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/Nes.com");
    makeFile("media/ROMS/mario.nes", "a game");
    Select(0, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\"_s, u"-X 1"_s);
    PonParametros("mario.nes,s,e,/Y\r\n");
    M.DebugMode = u"1"_s;
    Juega();
    EXPECT_THAT(Notices(), IsEmpty());
    EXPECT_THAT(Told("old/EMUS"), ElementsAre(" -x 1 D:\\ROMS\\MARIO.NES  /Y", "EMUS", ""));
    EXPECT_EQ(
        respuestas.dichos, QStringList { u"Zembrolix: c:\\emus\\nes.com -x 1 d:\\roms\\mario.nes  /Y"_s });
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty()) << "nothing is left";
}

TEST_F(LaunchesInDosBox, LongNamesAreHandedOverAsDosBoxShowsThem)
{
    NameBoth();
    PutProgram("tells.com", "old/Emus For Nes/The Emulator.com");
    makeFile("media/ROMS/Super Mario.nes", "first");
    makeFile("media/ROMS/Super Mario 2.nes", "second");
    Select(0, u"C:\\Emus for nes\\The Emulator.com"_s, u"D:\\ROMS\\"_s);
    for (const auto &[game, content] :
        { std::pair { u"Super Mario.nes"_s, "first" }, { u"Super Mario 2.nes"_s, "second" } }) {
        pantalla.lista1 = game;
        Juega();
        const QByteArrayList told = Told("old/Emus For Nes");
        ASSERT_EQ(told.size(), 3);
        EXPECT_TRUE(told[0].startsWith("  D:\\ROMS\\SUPERM~")) << told[0].constData();
        EXPECT_EQ(told[1], "EMUSFO~1");
        EXPECT_EQ(told[2], content);
    }
}

TEST_F(LaunchesInDosBox, PlacesOnNoDriveGetLettersOfTheirOwn)
{
    PutProgram("tells.com", "emu/nes.com");
    makeDirectory("my \"roms\" 100% [x]");
    makeFile("my \"roms\" 100% [x]/mario.nes", "a game");
    Select(0, path(u"emu/nes.com"_s), path(u"my \"roms\" 100% [x]/"_s));
    Juega();
    EXPECT_THAT(Told("emu"), ElementsAre("  D:\\MARIO.NES", "", "a game"));
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(LaunchesInDosBox, APlaceNamedInAnyBytesIsMounted)
{
    for (const QByteArray &name : { QByteArray("a\nmount e c:\n[autoexec]\nexit"), QByteArray("ni\xA4os"),
             QByteArray("ni\xC3\xB1os %PATH% 'x'"), QByteArray("a<b>c|d&e^f"), QByteArray(220, 'd') }) {
        makeDirectory(name);
        PutProgram("tells.com", name + "/nes.com");
        Select(5, host::nameFromDisk(place(name)) + u"/nes.com"_s, {}, u" fine"_s);
        Juega();
        EXPECT_THAT(Told(name), ElementsAre(" fine", "", "")) << name.constData();
    }
}

TEST_F(LaunchesInDosBox, WhatLiesTooDeepForDosIsADriveOfItsOwn)
{
    NameBoth();
    QByteArray deep = "old";
    for (int i = 0; i < 9; ++i) {
        deep += "/ABCDEFG" + QByteArray::number(i);
        makeDirectory(deep);
    }
    PutProgram("tells.com", deep + "/nes.com");
    makeFile(deep + "/mario.nes", "a game");
    Select(0, path(QString::fromLatin1(deep)) + u"/nes.com"_s, path(QString::fromLatin1(deep)) + u'/');
    Juega();
    EXPECT_THAT(Told(deep), ElementsAre("  E:\\MARIO.NES", "", "a game"));
}

TEST_F(LaunchesInDosBox, AGameOutOfAZipIsOnADriveToo)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeFile("media/ROMS/Super Mario (1).zip", Zip({ { "Super Mario Brothers.nes", "zipped" } }));
    PonExtensiones({ u"*.NES"_s });
    pantalla.lista1 = u"Super Mario (1).zip"_s;
    Select(0, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS"), ElementsAre("  E:\\SUPERM~1.NES", "EMUS", "zipped"));
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(LaunchesInDosBox, AGameUnpackedBesideItsEmulatorIsNamedInEight)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeFile("media/ROMS/Super Mario.zip", Zip({ { "one.rom", "zipped" } }));
    HazDuranteElJuego({});
    pantalla.lista1 = u"Super Mario.zip"_s;
    Select(2, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\"_s, {}, u"superm~1\\one.rom"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS"), ElementsAre("   superm~1 superm~1\\one.rom", "EMUS", "zipped"));
    EXPECT_FALSE(exists("old/EMUS/superm~1"));
}

TEST_F(LaunchesInDosBox, AGameIsNotUnpackedUnderTheShortNameOfAnotherDirectory)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeDirectory("old/EMUS/Final Fight Saves");
    makeFile("old/EMUS/Final Fight Saves/one.rom", "another's");
    makeFile("media/ROMS/Final Fantasy.zip", Zip({ { "one.rom", "zipped" } }));
    pantalla.lista1 = u"Final Fantasy.zip"_s;
    Select(2, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\"_s, {}, u"finalf~2\\one.rom"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS"), ElementsAre("   finalf~2 finalf~2\\one.rom", "EMUS", "zipped"));
    EXPECT_EQ(bytes("old/EMUS/Final Fight Saves/one.rom"), "another's");
    EXPECT_FALSE(exists("old/EMUS/finalf~2"));
}

TEST_F(LaunchesInDosBox, DrivesThatParametersNameAreThere)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeFile("media/bios.rom", "bios");
    Select(5, u"C:\\EMUS\\NES.COM"_s, {}, u" -b D:\\BIOS.ROM"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS"), ElementsAre(" -b d:\\bios.rom", "EMUS", "bios"));
}

TEST_F(LaunchesInDosBox, TheDriveOfTheGamesIsThereAlsoWhereTheLineDoesNotNameIt)
{
    NameBoth();
    makeFile("old/EMUS/GO.BAT", "@type D:\\ROMS\\MARIO.NES > C:\\FOUND\r\n");
    makeFile("media/ROMS/mario.nes", "a game");
    pantalla.lista1 = u"mario.nes"_s;
    for (const int type : { 0, 1, 3, 5, 6, 7, 8 }) {
        for (const QString &rom : { u"D:\\ROMS\\"_s, path(u"media/ROMS/"_s) }) {
            makeFile("old/FOUND", "nothing");
            Select(type, u"C:\\EMUS\\GO.BAT"_s, rom);
            Juega();
            EXPECT_EQ(bytes("old/FOUND"), "a game") << type << ' ' << rom.toStdString();
        }
    }
    EXPECT_THAT(Notices(), IsEmpty());
}

TEST_F(LaunchesInDosBox, ParametersComeAsTheyStand)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    Select(5, u"C:\\EMUS\\NES.COM"_s, {}, u" \"two  words\" 100% %path% a&b ^ ; , = + \u00F1"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS").value(0), " \"two  words\" 100% %path% a&b ^ ; , = + \xA4");
}

TEST_F(LaunchesInDosBox, OfReadOnlyPlacesNothingIsChanged)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeFile("media/ROMS/mario.nes", "a game");
    setMode("media", 0555);
    setMode("media/ROMS", 0555);
    Select(0, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS"), ElementsAre("  D:\\ROMS\\MARIO.NES", "EMUS", "a game"));
}

TEST_F(LaunchesInDosBox, ABatchFileEndsToo)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeFile("old/EMUS/GO.BAT", "@nes.com from %1\r\n");
    Select(5, u"C:\\EMUS\\go.bat"_s, {}, u" here"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS"), ElementsAre(" from here", "EMUS", ""));
}

TEST_F(LaunchesInDosBox, TheUsersOwnConfigurationLiesBelow)
{
    if (host::findInPath(u"dosbox"_s).isEmpty())
        GTEST_SKIP() << "Its kin keep theirs under the names of their releases.";
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeDirectory("home/.dosbox");
    makeDirectory("other");
    makeFile("home/.dosbox/dosbox-0.74-3.conf",
        "[autoexec]\nmount c \"" + place("other") + "\"\nmount x \"" + place("media")
            + "\"\nc:\necho kept > x:\\KEPT\n");
    Select(5, u"C:\\EMUS\\NES.COM"_s, {}, u" x"_s);
    Juega();
    EXPECT_THAT(Told("old/EMUS"), ElementsAre(" x", "EMUS", ""));
    EXPECT_TRUE(exists("media/KEPT"));
}

TEST_F(LaunchesInDosBox, ALineOf126CharactersGoes_OneOf127IsRefused)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    Select(5, u"C:\\EMUS\\NES.COM"_s, {}, u" "_s + QString(125, u'x'));
    Juega();
    EXPECT_EQ(Told("old/EMUS").value(0), ' ' + QByteArray(125, 'x'));
    Select(5, u"C:\\EMUS\\NES.COM"_s, {}, u" "_s + QString(126, u'x'));
    Juega();
    EXPECT_EQ(Told("old/EMUS").value(0), ' ' + QByteArray(125, 'x'));
    EXPECT_EQ(Notices(), QStringList { u"No: Length"_s });
}

TEST_F(LaunchesInDosBox, AGameWithAccentsIsOpened_AndWhatItSavesStaysBesideIt)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    // Saves beside the game, over what it finds there.
    const QByteArray nombre = launch::ApodoEnDOS("ni\xC3\xB1o.nes");
    makeFile("old/EMUS/GO.BAT",
        QByteArray("@nes.com %1\r\n@type E:\\NINO.SAV > C:\\FOUND\r\n@echo saved > E:\\NINO.SAV\r\n"
                   "@echo saved > E:\\NINO.ST1\r\n")
            .replace("NINO", nombre.first(8)));
    makeFile("media/ROMS/el ni\xC3\xB1o.nes", "another");
    makeFile("media/ROMS/ni\xC3\xB1o.nes", "the child");
    makeFile("media/ROMS/ni\xC3\xB1o.nes - .sav", "before");
    pantalla.lista1 = u"niño.nes"_s;
    Select(0, u"C:\\EMUS\\GO.BAT"_s, u"D:\\ROMS\\"_s);
    Juega();
    EXPECT_THAT(Notices(), IsEmpty());
    EXPECT_THAT(Told("old/EMUS"), ElementsAre(" E:\\" + nombre, "EMUS", "the child"));
    EXPECT_EQ(bytes("old/FOUND"), "before");
    EXPECT_EQ(bytes("media/ROMS/ni\xC3\xB1o.nes - .sav"), "saved\r\n");
    EXPECT_EQ(bytes("media/ROMS/ni\xC3\xB1o.nes - .ST1"), "saved\r\n");
    EXPECT_EQ(bytes("media/ROMS/ni\xC3\xB1o.nes"), "the child");
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(LaunchesInDosBox, WhatAGameWithAccentsSavesReplacesNoFileThatItDidNotSee)
{
    NameBoth();
    makeFile("old/EMUS/GO.BAT", "@del %1\r\n@echo new > %1\r\n@echo score > E:\\HISCORE.DAT\r\n");
    makeFile("media/ROMS/Espa\xC3\xB1"
             "a.gb",
        "played");
    makeFile("media/ROMS/Hiscore.dat", "two records");
    pantalla.lista1 = u"España.gb"_s;
    Select(0, u"C:\\EMUS\\GO.BAT"_s, u"D:\\ROMS\\"_s);
    Juega();
    EXPECT_EQ(bytes("media/ROMS/Hiscore.dat"), "two records");
    EXPECT_EQ(bytes("media/ROMS/Espa\xC3\xB1"
                    "a.gb - HISCORE.DAT"),
        "score\r\n");
    EXPECT_EQ(bytes("media/ROMS/Espa\xC3\xB1"
                    "a.gb"),
        "played");
    EXPECT_EQ(bytes("media/ROMS/Espa\xC3\xB1"
                    "a.gb - .NEW"),
        "new\r\n");
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

// Of a disk that was written with Windows's code page.
TEST_F(LaunchesInDosBox, ADirectoryWhoseNameIsNoUtf8IsReached)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    makeDirectory("media/ROMS/NI\xD1OS");
    makeFile("media/ROMS/NI\xD1OS/Super Mario.nes", "a game");
    makeFile("media/ROMS/NI\xD1OS/el ni\xF1o.nes", "a child");
    Select(0, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\Niños\\"_s);
    pantalla.lista1 = u"Super Mario.nes"_s;
    Juega();
    EXPECT_THAT(Notices(), IsEmpty());
    EXPECT_THAT(Told("old/EMUS"), ElementsAre("  E:\\SUPERM~1.NES", "EMUS", "a game"));
    pantalla.lista1 = host::nameFromDisk("el ni\xF1o.nes");
    Juega();
    EXPECT_THAT(
        Told("old/EMUS"), ElementsAre("  E:\\" + launch::ApodoEnDOS("el ni\xF1o.nes"), "EMUS", "a child"));
}

// Which no drive of one game's own keeps apart.
TEST_F(LaunchesInDosBox, GamesOfLikeNamesAreToldApartInTheEmulatorsOwnDirectory)
{
    NameBoth();
    makeDirectory("old/SAVES");
    makeFile("old/EMUS/GO.BAT", "@copy %1 C:\\SAVES > NUL\r\n");
    Select(0, u"C:\\EMUS\\GO.BAT"_s, u"D:\\ROMS\\"_s);
    const QByteArrayList juegos { "Pok\xC3\xA9mon Plata.gb", "Pok\xC3\xA9mon Perla.gb",
        "Pok\xC3\xA9mon Perla.gbc", "\xE3\x82\xBD.gb", "\xE3\x83\x8B.gb" };
    for (const QByteArray &juego : juegos) {
        makeFile("media/ROMS/" + juego, juego);
        pantalla.lista1 = QString::fromUtf8(juego);
        Juega();
    }
    EXPECT_THAT(Notices(), IsEmpty());
    QSet<QByteArray> bases;
    for (const QByteArray &juego : juegos) {
        EXPECT_EQ(bytes("old/SAVES/" + launch::ApodoEnDOS(juego)), juego);
        bases.insert(launch::ApodoEnDOS(juego).first(8));
    }
    EXPECT_EQ(bases.size(), juegos.size());
}

TEST_F(LaunchesInDosBox, TheRecordOfAGameWithAccentsGoesOnInOneFile)
{
    NameBoth();
    makeFile("old/EMUS/ADD.BAT", "@echo again >> E:\\HISCORE.DAT\r\n");
    makeFile("old/EMUS/ANEW.BAT",
        "@E:\r\n@copy HISCORE.DAT NEW.DAT > NUL\r\n@echo anew >> NEW.DAT\r\n@del HISCORE.DAT\r\n"
        "@ren NEW.DAT HISCORE.DAT\r\n");
    makeFile("media/ROMS/ni\xC3\xB1o.nes", "the child");
    makeFile("media/ROMS/Hiscore.dat", "another's");
    pantalla.lista1 = u"niño.nes"_s;
    for (const QString &emulador : { u"ADD"_s, u"ADD"_s, u"ANEW"_s, u"ADD"_s }) {
        Select(0, u"C:\\EMUS\\"_s + emulador + u".BAT"_s, u"D:\\ROMS\\"_s);
        Juega();
    }
    EXPECT_EQ(bytes("media/ROMS/ni\xC3\xB1o.nes - HISCORE.DAT"), "again\r\nagain\r\nanew\r\nagain\r\n");
    EXPECT_EQ(bytes("media/ROMS/Hiscore.dat"), "another's");
    EXPECT_THAT(host::listInDiskOrder(path(u"media/ROMS"_s)), testing::SizeIs(3));
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(LaunchesInDosBox, WhatAGameWithAccentsRenamesKeepsItsBytes)
{
    NameBoth();
    makeFile("old/EMUS/GO.BAT",
        QByteArray("@E:\r\n@ren NINO.SV2 NINO.SV3\r\n@ren NINO.SV1 NINO.SV2\r\n@echo new state B > "
                   "E:\\NINO.SV1\r\n")
            .replace("NINO", launch::ApodoEnDOS("Ni\xC3\xB1o malo.nes").first(8)));
    makeFile("media/ROMS/Ni\xC3\xB1o malo.nes", "the child");
    makeFile("media/ROMS/Ni\xC3\xB1o malo.nes - .SV1", "precious state A");
    makeFile("media/ROMS/Ni\xC3\xB1o malo.nes - .sv2", "earlier state");
    pantalla.lista1 = u"Niño malo.nes"_s;
    Select(0, u"C:\\EMUS\\GO.BAT"_s, u"D:\\ROMS\\"_s);
    Juega();
    EXPECT_EQ(bytes("media/ROMS/Ni\xC3\xB1o malo.nes - .SV1"), "new state B\r\n");
    EXPECT_EQ(bytes("media/ROMS/Ni\xC3\xB1o malo.nes - .sv2"), "precious state A");
    EXPECT_EQ(bytes("media/ROMS/Ni\xC3\xB1o malo.nes - .SV3"), "earlier state");
    EXPECT_THAT(host::listInDiskOrder(path(u"media/ROMS"_s)), testing::SizeIs(4));
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(LaunchesInDosBox, WhatAGameWithAccentsSavesInDirectoriesIsThereAtTheNextRun)
{
    NameBoth();
    makeFile("old/EMUS/GO.BAT",
        "@type E:\\SAVES\\SLOT1\\GAME.SAV > C:\\FOUND\r\n@md E:\\SAVES\r\n@md E:\\SAVES\\SLOT1\r\n"
        "@echo saved > E:\\SAVES\\SLOT1\\GAME.SAV\r\n");
    makeFile("media/ROMS/ni\xC3\xB1o.nes", "the child");
    pantalla.lista1 = u"niño.nes"_s;
    Select(0, u"C:\\EMUS\\GO.BAT"_s, u"D:\\ROMS\\"_s);
    Juega();
    EXPECT_EQ(bytes("media/ROMS/SAVES/SLOT1/GAME.SAV"), "saved\r\n");
    Juega();
    EXPECT_EQ(bytes("old/FOUND"), "saved\r\n");
    EXPECT_THAT(host::listInDiskOrder(path(u"media/ROMS"_s)), testing::SizeIs(2));
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(LaunchesInDosBox, GamesWhoseNamesComeOutAlikeSaveApart)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    const QByteArrayList names { "Pok\xC3\xA9mon Azul.gb", "Pok\xC3\xA9mon Amarillo.gb", "con.gb", "aux.gb",
        "Espa\xC3\xB1"
        "a.gb",
        "Espana.gb" };
    for (const QByteArray &name : names)
        makeFile("media/ROMS/" + name, name);
    Select(0, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\"_s);
    QSet<QByteArray> handed;
    for (const QByteArray &name : names) {
        pantalla.lista1 = host::nameFromDisk(name);
        Juega();
        const QByteArrayList told = Told("old/EMUS");
        EXPECT_EQ(told.value(2), name);
        handed.insert(told.value(0).sliced(told.value(0).lastIndexOf('\\') + 1));
    }
    EXPECT_EQ(handed.size(), names.size());
}

// As old disks have them: in code page 437 or 1252, in no encoding at all, or made to break a line of DOS.
TEST_F(LaunchesInDosBox, GamesOfAnyBytesAreListedAndPlayed)
{
    NameBoth();
    PutProgram("tells.com", "old/EMUS/nes.com");
    const QByteArrayList names { "ni\xA4o.nes", "ni\xF1o.nes", "\xA4\xF1.nes", "\x80\xFF\xFE.NES",
        "\xEF\x80\x80private.nes", "cut \xC3.nes", "100% %PATH%.nes", "a;b,c=d+e[f].nes",
        "<in >out |pipe.nes", "-x \"q\".nes", "two\nlines.nes", "echo off&exit.nes", ".hid.nes", "con.nes",
        "aux", "a.b.nes." };
    for (const QByteArray &name : names)
        makeFile("media/ROMS/" + name, name);
    Select(0, u"C:\\EMUS\\NES.COM"_s, u"D:\\ROMS\\"_s);
    QStringList listed = host::listFiles(path(u"media/ROMS"_s));
    EXPECT_EQ(listed.removeAll(u".hid.nes"_s), 0) << "hidden names aren't listed";
    EXPECT_EQ(listed.size(), names.size() - 1);
    for (const QString &name : std::as_const(listed)) {
        pantalla.lista1 = name;
        Juega();
        EXPECT_EQ(Told("old/EMUS").value(2), host::nameToDisk(name)) << Told("old/EMUS").value(0).constData();
        makeFile("old/EMUS/OUT", "no game");
    }
    EXPECT_THAT(Notices(), IsEmpty());
    EXPECT_THAT(host::listInDiskOrder(path(u"tmp"_s)), IsEmpty());
}

TEST_F(LaunchesInDosBox, DirectoriesAndArchivesOfAnyBytesToo)
{
    makeDirectory("media/ju\xA4gos");
    makeDirectory("old/em\xFA");
    NameDrives("C=" + place("old") + "\r\nD=" + place("media") + "\r\n");
    PutProgram("tells.com", "old/em\xFA/nes.com");
    makeFile("media/ju\xA4gos/ni\xA4o.zip", Zip({ { "ni\xA4o.nes", "zipped" } }));
    PonExtensiones({ u"*.NES"_s });
    Select(0, u"C:\\"_s + host::nameFromDisk("em\xFA") + u"\\NES.COM"_s,
        u"D:\\"_s + host::nameFromDisk("ju\xA4gos") + u"\\"_s);
    pantalla.lista1 = host::nameFromDisk("ni\xA4o.zip");
    Juega();
    EXPECT_THAT(Notices(), IsEmpty());
    EXPECT_EQ(Told("old/em\xFA").value(2), "zipped");
}
