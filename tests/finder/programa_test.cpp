// The finder run as the assembling of a program directory runs it.

#include "maquina.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::HasSubstr;

namespace {

const QByteArray Closing = "'----------------------------------------------------------------------\r\n";
const QByteArray Catalogue = "' Comment\r\n[EOF]\r\n";

// The names of two emulators that no machine has.
class Finder : public testing::Test {
protected:
    Finder()
    {
        maquina.PonFichero(
            u"table"_s, "Nes Test\tno-such-nes\t0\t-\t-\nArcade Test\tno-such-arcade\t3\t-dir {roms}\t-\n");
        maquina.PonFichero(u"Zembro Dir/Zembro.sye"_s,
            "-Games/Home\r\nWEB1=w\r\n*.ZIP\r\n'\r\n+Nes Test\r\nWEB2=n\r\n" + Closing
                + "-Arcade\r\nWEB1=a\r\n*.ZIP\r\n'\r\n+Arcade Test\r\nWEB2=b\r\n" + Closing + "[EOF]\r\n");
        maquina.PonFichero(u"Zembro Dir/Zembro.emu"_s, Catalogue);
    }

    int run(const QStringList &arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, maquina.Ruta(u"bin"_s));
        environment.insert(u"HOME"_s, maquina.Ruta(u"home"_s));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(FINDER), arguments);
        EXPECT_TRUE(process.waitForFinished());
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
        return process.exitCode();
    }

    // For a new directory.
    int run()
    {
        return run({ maquina.Ruta(u"table"_s), maquina.Ruta(u"Zembro Dir"_s),
            maquina.Ruta(u"Zembro Dir/Zembro.emu"_s) });
    }
    void putGames() const
    {
        maquina.PonFichero(u"Zembro Dir/roms/Games-Home/game.zip"_s);
        maquina.PonFichero(u"Zembro Dir/roms/Arcade/game.zip"_s);
    }

    QByteArray catalogue() const { return maquina.Bytes(u"Zembro Dir/Zembro.emu"_s); }

    Maquina maquina;
    QByteArray output;
    QByteArray errors;
};

} // namespace

TEST_F(Finder, ConfiguresWhatIsThereAndMakesItsDirectories)
{
    putGames();
    maquina.PonPrograma(u"bin/no-such-nes"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    const QByteArray exe = maquina.Ruta(u"bin/no-such-nes"_s).toUtf8();
    EXPECT_EQ(catalogue(),
        "' Comment\r\n-Games/Home\r\nWEB1=w\r\n*.ZIP\r\n'\r\n+Nes Test\r\nWEB2=n\r\nEXE=" + exe
            + "\r\nXDI=0\r\nROM=roms/Games-Home/\r\nIMG=capturas/Games-Home/\r\nPAR1=\r\nPAR2=\r\n" + Closing
            + "[EOF]\r\n");
    EXPECT_EQ(maquina.Entradas(u"Zembro Dir"_s),
        QStringList({ u"Zembro.emu"_s, u"Zembro.sye"_s, u"capturas"_s, u"capturas/Games-Home"_s, u"roms"_s,
            u"roms/Arcade"_s, u"roms/Arcade/game.zip"_s, u"roms/Games-Home"_s, u"roms/Games-Home/LEEME.txt"_s,
            u"roms/Games-Home/game.zip"_s }));
    EXPECT_EQ(output, "Games/Home: Nes Test, " + exe + "\n");
}

TEST_F(Finder, ConfiguresNoSystemWithoutGamesButMakesItsDirectoryWithALineOfText)
{
    maquina.PonPrograma(u"bin/no-such-nes"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    EXPECT_EQ(catalogue(), Catalogue);
    EXPECT_EQ(maquina.Entradas(u"Zembro Dir"_s),
        QStringList({ u"Zembro.emu"_s, u"Zembro.sye"_s, u"roms"_s, u"roms/Games-Home"_s,
            u"roms/Games-Home/LEEME.txt"_s }));
    EXPECT_EQ(maquina.Bytes(u"Zembro Dir/roms/Games-Home/LEEME.txt"_s),
        "Los juegos de Games/Home (*.ZIP) van en este directorio; luego, ./zembro find --write en el del "
        "programa. / "
        "The games of Games/Home (*.ZIP) go into this directory; then run ./zembro find --write in the "
        "program's.\r\n");
    EXPECT_EQ(output, "");
    EXPECT_EQ(errors, "");
}

TEST_F(Finder, ChangesNothingWhereNoEmulatorIs)
{
    ASSERT_EQ(run(), 0) << errors.toStdString();
    EXPECT_EQ(catalogue(), Catalogue);
    EXPECT_EQ(maquina.Entradas(u"Zembro Dir"_s), QStringList({ u"Zembro.emu"_s, u"Zembro.sye"_s }));
    EXPECT_EQ(output, "");
}

TEST_F(Finder, ChangesNothingTheSecondTime)
{
    putGames();
    maquina.PonPrograma(u"bin/no-such-nes"_s);
    maquina.PonPrograma(u"bin/no-such-arcade"_s);
    ASSERT_EQ(run(), 0);
    EXPECT_EQ(output.count('\n'), 2);
    const QByteArray before = catalogue();
    const QStringList entries = maquina.Entradas(u"Zembro Dir"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    EXPECT_EQ(catalogue(), before);
    EXPECT_EQ(maquina.Entradas(u"Zembro Dir"_s), entries);
    EXPECT_EQ(output, "");
    EXPECT_EQ(errors, "");
}

TEST_F(Finder, LinksExecutableAndGamesWhereAnEmulatorGetsABareName)
{
    putGames();
    maquina.PonPrograma(u"bin/no-such-arcade"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    const QString start = u"Zembro Dir/arranque/Arcade Test/"_s;
    EXPECT_EQ(QFileInfo(maquina.Ruta(start + u"no-such-arcade"_s)).symLinkTarget(),
        maquina.Ruta(u"bin/no-such-arcade"_s));
    EXPECT_EQ(QFileInfo(maquina.Ruta(start + u"roms"_s)).symLinkTarget(),
        maquina.Ruta(u"Zembro Dir/roms/Arcade"_s));
    EXPECT_THAT(catalogue().toStdString(), HasSubstr("PAR1=-dir roms\r\n"));
    EXPECT_THAT(catalogue().toStdString(), HasSubstr("EXE=arranque/Arcade Test/no-such-arcade\r\n"));
}

TEST_F(Finder, LinksGamesSoThatTheyMoveWithTheDirectory)
{
    putGames();
    maquina.PonPrograma(u"bin/no-such-arcade"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    ASSERT_TRUE(QDir().rename(maquina.Ruta(u"Zembro Dir"_s), maquina.Ruta(u"Moved"_s)));
    const QFileInfo roms(maquina.Ruta(u"Moved/arranque/Arcade Test/roms"_s));
    EXPECT_EQ(roms.canonicalFilePath(), QFileInfo(maquina.Ruta(u"Moved/roms/Arcade"_s)).canonicalFilePath());
    EXPECT_TRUE(QFileInfo(maquina.Ruta(u"Moved/arranque/Arcade Test/roms/game.zip"_s)).isFile());
}

TEST_F(Finder, PutsALinkRightThatLeadsElsewhere)
{
    putGames();
    maquina.PonPrograma(u"bin/no-such-arcade"_s);
    const QString start = u"Zembro Dir/arranque/Arcade Test/"_s;
    ASSERT_TRUE(QDir().mkpath(maquina.Ruta(start)));
    ASSERT_TRUE(QFile::link(maquina.Ruta(u"gone"_s), maquina.Ruta(start + u"roms"_s)));
    ASSERT_EQ(run(), 0) << errors.toStdString();
    EXPECT_EQ(QFileInfo(maquina.Ruta(start + u"roms"_s)).symLinkTarget(),
        maquina.Ruta(u"Zembro Dir/roms/Arcade"_s));
}

TEST_F(Finder, LeavesTheCatalogueAsItWasWhereADirectoryCannotBeMade)
{
    maquina.PonPrograma(u"bin/no-such-nes"_s);
    maquina.PonFichero(u"Zembro Dir/roms"_s);
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(catalogue(), Catalogue);
    EXPECT_THAT(errors.toStdString(), HasSubstr("roms/Games-Home"));
}

TEST_F(Finder, FindsEmulatorsForDosBelowTheDrivesOfTheDirectory)
{
    maquina.PonFichero(u"old/EMUS/NESTICLE.EXE"_s, "MZ" + QByteArray(100'000, '\0'));
    maquina.PonFichero(u"Zembro Dir/Zembro.uni"_s, "C=../old\r\n");
    maquina.PonFichero(u"Zembro Dir/Zembro.sye"_s,
        "-NES\r\nWEB1=w\r\n*.NES\r\n'\r\n+Nes Test\r\nWEB2=n\r\n" + Closing + "[EOF]\r\n");
    maquina.PonFichero(u"Zembro Dir/roms/NES/game.nes"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    EXPECT_EQ(catalogue(),
        "' Comment\r\n-NES\r\nWEB1=w\r\n*.NES\r\n'\r\n+NESticle\r\nWEB2=\r\n"
        "EXE=C:\\EMUS\\NESTICLE.EXE\r\nXDI=0\r\nROM=roms/NES/\r\nIMG=capturas/NES/\r\nPAR1=\r\n"
        "PAR2=\r\n"
            + Closing + "[EOF]\r\n");
}

TEST_F(Finder, NamesTheFileThatIsMissing)
{
    EXPECT_EQ(run({ maquina.Ruta(u"none"_s), maquina.Ruta(u"Zembro Dir"_s),
                  maquina.Ruta(u"Zembro Dir/Zembro.emu"_s) }),
        1);
    EXPECT_THAT(errors.toStdString(), HasSubstr("/none"));
}

TEST_F(Finder, TakesTwoArgumentsOrThree)
{
    EXPECT_EQ(run({ maquina.Ruta(u"table"_s) }), 2);
    EXPECT_THAT(errors.toStdString(), HasSubstr("usage"));
}
