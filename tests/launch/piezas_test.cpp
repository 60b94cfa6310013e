// The pieces of a command line as the disk gives them.
#include "launch/piezas.h"

#include "escenario.h"

using namespace Qt::StringLiterals;
using launch::Ruta;

namespace {

class PiezasTest : public Escenario { };

TEST_F(PiezasTest, TheProgramIsTheShortPathInLowerCase_AndTheDiskSpellingBesideIt)
{
    makeDirectory("emu/My Emus");
    makeFile("emu/My Emus/Super Emu.V2.SH");
    const launch::Programa p = launch::ProgramaDe(path(u"emu/My Emus/Super Emu.V2.SH"_s));
    EXPECT_EQ(p.ExeCorto.texto, Corta(u"emu/my_emus/super_emu_v2.sh"_s));
    EXPECT_EQ(p.ExeCorto.enDisco, path(u"emu/My Emus/Super Emu.V2.SH"_s));
    EXPECT_EQ(p.ExeNombre.texto, u"super_emu_v2.sh"_s);
    EXPECT_EQ(p.ExeNombre.enDisco, u"Super Emu.V2.SH"_s);
    EXPECT_EQ(p.ExeDir.texto, Corta(u"emu/my_emus/"_s));
    EXPECT_EQ(p.ExeDir.enDisco, path(u"emu/My Emus/"_s));
}

TEST_F(PiezasTest, TheProgramIsFoundWithBackslashesAndInAnyCase)
{
    makeFile("emu/Emu.exe");
    const QString escrito = path(u"EMU/emu.EXE"_s).replace(u'/', u'\\');
    EXPECT_EQ(launch::ProgramaDe(escrito).ExeCorto.enDisco, path(u"emu/Emu.exe"_s));
}

TEST_F(PiezasTest, ARelativeProgramGetsAnAbsolutePath)
{
    makeFile("program/near.sh");
    const launch::Programa p = launch::ProgramaDe(u"near.sh"_s);
    EXPECT_EQ(p.ExeCorto.enDisco, path(u"program/near.sh"_s));
    EXPECT_EQ(p.ExeDir.texto, Corta(u"program/"_s));
}

TEST_F(PiezasTest, AMissingProgramLeavesItsPiecesEmpty)
{
    for (const QString &exe : { path(u"emu/none.exe"_s), QString() }) {
        const launch::Programa p = launch::ProgramaDe(exe);
        EXPECT_EQ(p.ExeCorto.texto, QString());
        EXPECT_EQ(p.ExeCorto.enDisco, QString());
        EXPECT_EQ(p.ExeNombre.texto, QString());
        EXPECT_EQ(p.ExeDir.texto, QString());
        EXPECT_EQ(p.ExeDir.enDisco, QString());
    }
}

TEST_F(PiezasTest, TheTitleIsTheNameUpToItsFirstPoint_OrTheWholeName)
{
    EXPECT_EQ(launch::TituloDe(u"emu.exe"_s), u"emu"_s);
    EXPECT_EQ(launch::TituloDe(u"a.b.c"_s), u"a"_s);
    EXPECT_EQ(launch::TituloDe(u"stella"_s), u"stella"_s);
    EXPECT_EQ(launch::TituloDe(u".hidden"_s), QString());
    EXPECT_EQ(launch::TituloDe(QString()), QString());
}

TEST_F(PiezasTest, TheRomDirectoryKeepsItsClosingSeparator)
{
    const Ruta con = launch::RomDirDe(path(u"roms/"_s));
    EXPECT_EQ(con.texto, Corta(u"roms/"_s));
    EXPECT_EQ(con.enDisco, path(u"roms/"_s));
    EXPECT_EQ(launch::RomDirDe(path(u"roms"_s)).texto, Corta(u"roms"_s));
    EXPECT_EQ(launch::RomDirDe(path(u"none/"_s)).texto, QString());
    EXPECT_EQ(launch::RomDirDe(QString()).texto, QString());
}

TEST_F(PiezasTest, TheRomIsLookedForInLowerCase_AndItsShortNameTakesNoBlanks)
{
    PonROM("The Game. Part 2.NES");
    const Ruta rom = launch::RomCortoDe(launch::RomDirDe(path(u"roms/"_s)), u"THE GAME. PART 2.NES"_s);
    EXPECT_EQ(rom.texto, u"the_game__part_2.nes"_s);
    EXPECT_EQ(rom.enDisco, u"The Game. Part 2.NES"_s);
}

TEST_F(PiezasTest, OfTwoNamesThatDifferInCaseAlone_TheLowerCaseOneIsFound)
{
    PonROM("Mario.nes");
    PonROM("mario.nes");
    EXPECT_EQ(launch::RomCortoDe(launch::RomDirDe(path(u"roms/"_s)), u"Mario.nes"_s).enDisco, u"mario.nes"_s);
}

TEST_F(PiezasTest, OfRomsThatCollideEachKeepsItsOwnShortName)
{
    PonROM("A B.nes");
    PonROM("A_B.nes");
    const Ruta dir = launch::RomDirDe(path(u"roms/"_s));
    const Ruta primera = launch::RomCortoDe(dir, u"A B.nes"_s);
    const Ruta segunda = launch::RomCortoDe(dir, u"A_B.nes"_s);
    EXPECT_EQ(primera.enDisco, u"A B.nes"_s);
    EXPECT_EQ(segunda.enDisco, u"A_B.nes"_s);
    EXPECT_NE(primera.texto, segunda.texto);
}

TEST_F(PiezasTest, AMissingRomIsEmpty_AndSoIsAnEmptyName)
{
    const Ruta dir = launch::RomDirDe(path(u"roms/"_s));
    EXPECT_EQ(launch::RomCortoDe(dir, u"none.nes"_s).texto, QString());
    EXPECT_EQ(launch::RomCortoDe(dir, u"none.nes"_s).enDisco, QString());
    EXPECT_EQ(launch::RomCortoDe(dir, QString()).texto, QString());
}

TEST_F(PiezasTest, ALinkThatLeadsNowhereIsNeitherARomNorAProgram)
{
    makeLink("nowhere", "roms/game.nes");
    makeLink("nowhere", "emu/gone.sh");
    const Ruta rom = launch::RomCortoDe(launch::RomDirDe(path(u"roms/"_s)), u"game.nes"_s);
    EXPECT_EQ(rom.texto, QString());
    EXPECT_EQ(rom.enDisco, QString());
    const launch::Programa programa = launch::ProgramaDe(path(u"emu/gone.sh"_s));
    EXPECT_EQ(programa.ExeCorto.texto, QString());
    EXPECT_EQ(programa.ExeCorto.enDisco, QString());
}

TEST_F(PiezasTest, ABackslashInARomsNameBelongsToTheName)
{
    PonROM("a\\b.nes");
    const Ruta rom = launch::RomCortoDe(launch::RomDirDe(path(u"roms/"_s)), u"a\\b.nes"_s);
    EXPECT_EQ(rom.texto, u"a\\b.nes"_s);
    EXPECT_EQ(rom.enDisco, u"a\\b.nes"_s);
}

TEST_F(PiezasTest, TheBaseIsTheNameUpToItsFirstPoint_AndNothingWithoutAPoint)
{
    EXPECT_EQ(launch::RomBaseDe(u"mario.zip"_s), u"mario"_s);
    EXPECT_EQ(launch::RomBaseDe(u"a.b.zip"_s), u"a"_s);
    EXPECT_EQ(launch::RomBaseDe(u"mario"_s), QString());
    EXPECT_EQ(launch::RomBaseDe(u".zip"_s), QString());
    EXPECT_EQ(launch::RomBaseDe(QString()), QString());
}

} // namespace
