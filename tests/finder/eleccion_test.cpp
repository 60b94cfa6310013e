// Which emulators are configured without being asked for, and what counts as a game.

#include "finder/eleccion.h"
#include "finder/juegos.h"

#include "maquina.h"

#include <gmock/gmock.h>

#include <QDir>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

finder::Hallazgo found(const QString &system, const QString &name, bool mame = false, bool roms = false)
{
    finder::Hallazgo result;
    result.sistema = system;
    result.emulador.nombre = name;
    result.deMAME = mame;
    result.pideROMs = roms;
    return result;
}

QStringList names(const std::vector<finder::Hallazgo> &findings)
{
    QStringList names;
    for (const finder::Hallazgo &finding : findings)
        names += finding.emulador.nombre;
    return names;
}

QStringList chosen(const std::vector<finder::Hallazgo> &findings, const QString &catalogue = u"[EOF]"_s,
    const QStringList &withGames = { u"NES"_s, u"Amiga"_s })
{
    const auto M = std::make_unique<core::Modulo>();
    finder::LeeTablas(*M, catalogue);
    return names(finder::Elige(
        findings, *M, [&](const finder::Hallazgo &finding) { return withGames.contains(finding.sistema); }));
}

} // namespace

TEST(Choice, IsOfTheSystemsWithGames)
{
    const std::vector findings { found(u"NES"_s, u"A"_s), found(u"Amiga"_s, u"B"_s),
        found(u"Oric"_s, u"C"_s) };
    EXPECT_EQ(chosen(findings), QStringList({ u"A"_s, u"B"_s }));
    EXPECT_EQ(chosen(findings, u"[EOF]"_s, {}), QStringList());
}

TEST(Choice, HasMAMEBehindTheOthersOfItsSystem)
{
    const std::vector findings { found(u"NES"_s, u"M"_s, true), found(u"NES"_s, u"A"_s),
        found(u"NES"_s, u"B"_s), found(u"Amiga"_s, u"N"_s, true), found(u"Amiga"_s, u"C"_s) };
    const QStringList order { u"A"_s, u"B"_s, u"M"_s, u"C"_s, u"N"_s };
    EXPECT_EQ(chosen(findings), order);
    EXPECT_EQ(names(finder::ConMAMEDetras(findings)), order);
}

TEST(Choice, LeavesOutMAMEsMachineThatNeedsROMs_WhereAnotherEmulatorIs)
{
    const finder::Hallazgo mame = found(u"Amiga"_s, u"M"_s, true, true);
    EXPECT_EQ(chosen({ mame }), QStringList(u"M"_s));
    EXPECT_EQ(chosen({ mame, found(u"Amiga"_s, u"A"_s) }), QStringList(u"A"_s));
    EXPECT_EQ(chosen({ found(u"Amiga"_s, u"A"_s), found(u"NES"_s, u"M"_s, true, true) }),
        QStringList({ u"A"_s, u"M"_s }));
    EXPECT_EQ(chosen({ mame, found(u"Amiga"_s, u"N"_s, true, false) }), QStringList({ u"M"_s, u"N"_s }));
}

TEST(Choice, CountsTheEmulatorsThatAreConfigured)
{
    const finder::Hallazgo mame = found(u"Amiga"_s, u"M"_s, true, true);
    EXPECT_EQ(chosen({ mame }, u"-Amiga\n+Mine\nEXE=/opt/mine\n[EOF]"_s), QStringList());
    EXPECT_EQ(chosen({ mame }, u"-Amiga\n+Mine\nEXE=/usr/games/mame\n[EOF]"_s), QStringList(u"M"_s));
    EXPECT_EQ(chosen({ mame }, u"-Amiga\n[EOF]"_s), QStringList(u"M"_s));
    EXPECT_EQ(chosen({ mame }, u"-NES\n+Mine\nEXE=/opt/mine\n[EOF]"_s), QStringList(u"M"_s));
}

TEST(Games, AreWhatTheMainScreenWouldList)
{
    const Maquina maquina;
    const QString directory = maquina.Ruta(u"roms"_s) + u'/';
    const QStringList extensions { u"*.ZIP"_s, u"*.NES"_s };
    EXPECT_FALSE(finder::HayJuegos(directory, 0, extensions)); // no such directory
    maquina.PonFichero(u"roms/readme.txt"_s);
    maquina.PonFichero(u"roms/"_s + finder::NombreDeNota);
    EXPECT_FALSE(finder::HayJuegos(directory, 0, extensions));
    EXPECT_FALSE(finder::HayJuegos(directory, 1, extensions));
    EXPECT_FALSE(finder::HayJuegos(directory, 0, { u"*.PDF"_s }));
    EXPECT_TRUE(finder::HayJuegos(directory, 0, { u"*.TXT"_s }));
    maquina.PonFichero(u"roms/Game.Nes"_s);
    EXPECT_TRUE(finder::HayJuegos(directory, 0, extensions));
    EXPECT_TRUE(finder::HayJuegos(directory, 5, extensions));
    EXPECT_FALSE(finder::HayJuegos(directory, 3, extensions));
    maquina.PonFichero(u"roms/Game.Zip"_s);
    EXPECT_TRUE(finder::HayJuegos(directory, 3, extensions));
    EXPECT_TRUE(finder::HayJuegos(directory, 2, {}));
    ASSERT_TRUE(QDir().mkpath(directory + u"GAME"_s));
    EXPECT_TRUE(finder::HayJuegos(directory, 1, {}));
}

TEST(Games, AreNotTheLineOfTextWhateverTheExtensions)
{
    const Maquina maquina;
    maquina.PonFichero(u"roms/"_s + finder::NombreDeNota);
    EXPECT_FALSE(finder::HayJuegos(maquina.Ruta(u"roms"_s) + u'/', 0, { u"*.TXT"_s }));
}

TEST(LineOfText, SaysWhatGoesWhere)
{
    finder::Nota note { u"NES"_s, { u"*.ZIP"_s, u"*.NES"_s }, {}, false };
    EXPECT_EQ(finder::LineaDeNota(note),
        u"Los juegos de NES (*.ZIP *.NES) van en este directorio. / The games of NES (*.ZIP *.NES) go into "
        u"this "
        "directory.");
    note.otroDirectorio = u"/home/%1/nes/"_s;
    EXPECT_EQ(finder::LineaDeNota(note),
        u"Los juegos de NES (*.ZIP *.NES) van en / The games of NES (*.ZIP *.NES) go into: /home/%1/nes/");
}

TEST(LineOfText, IsWrittenOnceAndNeverWhereItWouldBeAGame)
{
    const Maquina maquina;
    maquina.PonFichero(u"roms/game"_s);
    const QString directory = maquina.Ruta(u"roms"_s) + u'/';
    finder::EscribeNota(directory, { u"NES"_s, { u"*.TXT"_s }, {}, false });
    EXPECT_EQ(maquina.Entradas(u"roms"_s), QStringList(u"game"_s));
    finder::EscribeNota(directory, { u"NES"_s, { u"*.NES"_s }, {}, false });
    const QByteArray line = maquina.Bytes(u"roms/"_s + finder::NombreDeNota);
    EXPECT_TRUE(line.contains("The games of NES (*.NES) go into this directory."));
    maquina.PonFichero(u"roms/"_s + finder::NombreDeNota, "mine");
    finder::EscribeNota(directory, { u"NES"_s, { u"*.NES"_s }, {}, false });
    EXPECT_EQ(maquina.Bytes(u"roms/"_s + finder::NombreDeNota), "mine");
    EXPECT_EQ(maquina.Entradas(u"roms"_s), QStringList({ finder::NombreDeNota, u"game"_s }));
}
