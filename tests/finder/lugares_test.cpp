// Executables and cores in the directories of a machine.

#include "maquina.h"

#include <gmock/gmock.h>

#include <QFile>

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::Not;

TEST(Program, IsFoundInTheFirstDirectoryThatHasIt)
{
    const Maquina maquina;
    maquina.PonPrograma(u"games/emu"_s);
    EXPECT_EQ(finder::RutaDePrograma({ u"emu"_s }, maquina.Lugares()), maquina.Ruta(u"games/emu"_s));
    maquina.PonPrograma(u"bin/emu"_s);
    EXPECT_EQ(finder::RutaDePrograma({ u"emu"_s }, maquina.Lugares()), maquina.Ruta(u"bin/emu"_s));
}

TEST(Program, IsTheFirstOfItsNamesWhicheverDirectoryHasIt)
{
    const Maquina maquina;
    maquina.PonPrograma(u"bin/emu-sdl"_s);
    maquina.PonPrograma(u"games/emu-qt"_s);
    EXPECT_EQ(finder::RutaDePrograma({ u"emu-qt"_s, u"emu-sdl"_s }, maquina.Lugares()),
        maquina.Ruta(u"games/emu-qt"_s));
}

TEST(Program, IsNoFileWithoutTheRightToRunAndNoDirectory)
{
    const Maquina maquina;
    maquina.PonFichero(u"bin/emu"_s);
    maquina.PonFichero(u"games/emu/readme"_s);
    EXPECT_EQ(finder::RutaDePrograma({ u"emu"_s }, maquina.Lugares()), QString());
}

TEST(Core, IsAFileOfItsName)
{
    const Maquina maquina;
    maquina.PonFichero(u"cores/mgba_libretro.so"_s);
    EXPECT_EQ(finder::RutaDeNucleo(u"mgba"_s, maquina.Lugares()), maquina.Ruta(u"cores/mgba_libretro.so"_s));
    EXPECT_EQ(finder::RutaDeNucleo(u"gambatte"_s, maquina.Lugares()), QString());
}

TEST(Places, ArePathThenTheGamesThenFlatpaksExports)
{
    const QByteArray path = qgetenv("PATH");
    const QByteArray home = qgetenv("HOME");
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    qputenv("PATH", "/first:relative::/second");
    qputenv("HOME", "/home/nobody");
    qputenv("XDG_DATA_HOME", "");
    const QStringList plain = finder::LugaresDeLaMaquina().programas;
    qputenv("XDG_DATA_HOME", "/data");
    const QStringList moved = finder::LugaresDeLaMaquina().programas;
    qputenv("PATH", path);
    qputenv("HOME", home);
    qputenv("XDG_DATA_HOME", data);

    EXPECT_EQ(plain,
        QStringList({ u"/first"_s, u"/second"_s, u"/usr/games"_s, u"/usr/local/games"_s,
            u"/home/nobody/.local/share/flatpak/exports/bin"_s, u"/var/lib/flatpak/exports/bin"_s }));
    EXPECT_THAT(moved, Contains(u"/data/flatpak/exports/bin"_s));
    EXPECT_THAT(moved, Not(Contains(u"/home/nobody/.local/share/flatpak/exports/bin"_s)));
}
