// What is found on a machine, and the catalogue with it, whole and byte for byte.

#include "finder/incorporacion.h"

#include "maquina.h"

#include <gmock/gmock.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString Database = uR"('
-NES
WEB1=http://nes
*.ZIP
*.NES
'
+Nestopia
WEB2=http://nestopia
+FCEUX
WEB2=http://fceux
'----------------------------------------------------------------------
-Mega Drive/Genesis
WEB1=http://md
*.ZIP
*.MD
'
+RetroArch MD
WEB2=http://ra
'----------------------------------------------------------------------
-Arcade
WEB1=http://arcade
*.ZIP
'
+MAME
WEB2=http://mame
'----------------------------------------------------------------------
[EOF]
)"_s;

const QString Closing = u"'----------------------------------------------------------------------\r\n"_s;
const QString Empty = u"' Comment\r\n[EOF]\r\n"_s;

std::vector<finder::Ficha> cards()
{
    return finder::LeeFichas(u"Nestopia\tnestopia\t0\t-\t-\n"
                             "FCEUX\tfceux\t0\t--pal 0\t-x\n"
                             "RetroArch MD\tretroarch\t0\t--libretro {nucleo:picodrive}\t-\n"
                             "MAME\tmame\t3\t-rompath {roms}\t-w\n"
                             "Unknown\tunknown\t0\t-\t-\n"_s);
}

class Findings : public testing::Test {
protected:
    std::vector<finder::Hallazgo> search(const QString &catalogue) const
    {
        const auto base = std::make_unique<core::Modulo>();
        finder::LeeTablas(*base, Database);
        const auto configured = std::make_unique<core::Modulo>();
        finder::LeeTablas(*configured, catalogue);
        return finder::Busca(*base, *configured, cards(), maquina.Lugares(), u"/Zembro Dir"_s);
    }

    // As the finder rewrites it.
    QString with(const QString &catalogue) const
    {
        const auto base = std::make_unique<core::Modulo>();
        finder::LeeTablas(*base, Database);
        return finder::Incorpora(catalogue, *base, search(catalogue), u"/Zembro Dir"_s).texto;
    }

    QString exe(const QString &name) const { return u"EXE="_s + maquina.Ruta(name) + u"\r\n"_s; }

    Maquina maquina;
};

} // namespace

TEST_F(Findings, AreNoneOnAMachineWithoutEmulators)
{
    EXPECT_TRUE(search(Empty).empty());
    EXPECT_EQ(with(Empty), Empty);
}

TEST_F(Findings, AreBlocksOfTheCatalogueInTheOrderOfTheDatabase)
{
    maquina.PonPrograma(u"games/fceux"_s);
    maquina.PonPrograma(u"bin/nestopia"_s);
    maquina.PonPrograma(u"bin/unknown"_s);
    EXPECT_EQ(with(Empty),
        u"' Comment\r\n-NES\r\nWEB1=http://nes\r\n*.ZIP\r\n*.NES\r\n'\r\n+Nestopia\r\nWEB2=http://nestopia\r\n"_s
            + exe(u"bin/nestopia"_s)
            + u"XDI=0\r\nROM=roms/NES/\r\nIMG=capturas/NES/\r\nPAR1=\r\nPAR2=\r\n"
              "'\r\n+FCEUX\r\nWEB2=http://fceux\r\n"_s
            + exe(u"games/fceux"_s)
            + u"XDI=0\r\nROM=roms/NES/\r\nIMG=capturas/NES/\r\nPAR1=--pal 0\r\nPAR2=-x\r\n"_s + Closing
            + u"[EOF]\r\n"_s);
}

TEST_F(Findings, NeedTheCoreToo)
{
    maquina.PonPrograma(u"bin/retroarch"_s);
    EXPECT_TRUE(search(Empty).empty());
    maquina.PonFichero(u"cores/picodrive_libretro.so"_s);
    const auto found = search(Empty);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].emulador.par1, u"--libretro "_s + maquina.Ruta(u"cores/picodrive_libretro.so"_s));
}

TEST_F(Findings, HaveAHyphenForEachSlashInTheDirectoriesOfTheirSystem)
{
    maquina.PonPrograma(u"bin/retroarch"_s);
    maquina.PonFichero(u"cores/picodrive_libretro.so"_s);
    const auto found = search(Empty);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].sistema, u"Mega Drive/Genesis");
    EXPECT_EQ(found[0].emulador.rom, u"/Zembro Dir/roms/Mega Drive-Genesis/");
    EXPECT_EQ(found[0].emulador.img, u"/Zembro Dir/capturas/Mega Drive-Genesis/");
}

// What such an emulator gets is relative to the directory it is started in, so that capitals and blanks on
// the way to the program don't matter.
TEST_F(Findings, StartAnEmulatorThatGetsABareNameBesideItsGames)
{
    maquina.PonPrograma(u"games/mame"_s);
    const auto found = search(Empty);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].programa, maquina.Ruta(u"games/mame"_s));
    EXPECT_EQ(found[0].arranque, u"/Zembro Dir/arranque/MAME");
    EXPECT_EQ(found[0].emulador.exe, u"/Zembro Dir/arranque/MAME/mame");
    EXPECT_EQ(found[0].emulador.tipo, u"3");
    EXPECT_EQ(found[0].emulador.par1, u"-rompath roms");
    EXPECT_EQ(found[0].emulador.par2, u" -w");
}

TEST_F(Findings, LeaveOutWhatIsConfiguredUnderWhicheverSystem)
{
    maquina.PonPrograma(u"bin/nestopia"_s);
    maquina.PonPrograma(u"bin/fceux"_s);
    const QString mine = u"-My own system\r\n'\r\n+Nestopia\r\nEXE=/mine\r\n"_s + Closing + u"[EOF]\r\n"_s;
    const auto found = search(mine);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].emulador.nombre, u"FCEUX");
}

TEST_F(Findings, StandBehindTheEmulatorsThatTheirSystemHasAlready)
{
    maquina.PonPrograma(u"bin/fceux"_s);
    const QString before = u"-NES\r\nWEB1=mine\r\n*.NES\r\n'\r\n+Nestopia\r\nWEB2=\r\nEXE=/mine\r\nXDI=0\r\n"
                           "ROM=/my roms/\r\nIMG=\r\nPAR1=-My\r\nPAR2=\r\n"_s;
    EXPECT_EQ(with(before + Closing + u"[EOF]\r\n"_s),
        before + u"'\r\n+FCEUX\r\nWEB2=http://fceux\r\n"_s + exe(u"bin/fceux"_s)
            + u"XDI=0\r\nROM=roms/NES/\r\nIMG=capturas/NES/\r\nPAR1=--pal 0\r\nPAR2=-x\r\n"_s + Closing
            + u"[EOF]\r\n"_s);
}

TEST_F(Findings, AreNoneInTheCatalogueThatHasThemAll)
{
    for (const QString &name : { u"nestopia"_s, u"fceux"_s, u"retroarch"_s, u"mame"_s })
        maquina.PonPrograma(u"bin/"_s + name);
    maquina.PonFichero(u"cores/picodrive_libretro.so"_s);
    ASSERT_EQ(search(Empty).size(), 4U);
    const QString full = with(Empty);
    EXPECT_TRUE(search(full).empty());
    EXPECT_EQ(with(full), full);
}
