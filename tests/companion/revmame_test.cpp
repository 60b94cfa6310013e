// What zembro check asks MAME.
#include "mesaderevision.h"

#include "tests/launch/zipdeprueba.h"

#include "companion/revision.h"

#include <QFile>
#include <QJsonArray>
#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Check, AMachineWithoutItsROMsIsSaid)
{
    PonGuion(u"emu/mame"_s, "[ \"$1\" = -verifyroms ] && [ \"$2\" = a2600 ]\n");
    Cambia(u"Zembro.emu"_s, "emu/uno.sh\r\nXDI=NO.0", "emu/mame\r\nXDI=NO.0");
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=A7800 -cart");
    EXPECT_THAT(clases({ u"check"_s, u"Sis"_s, u"Uno"_s }), ElementsAre(u"machine-without-roms"_s));
    Cambia(u"Zembro.emu"_s, "PAR1=A7800 -cart", "PAR1=A2600 -cart");
    EXPECT_THAT(clases({ u"check"_s, u"Sis"_s, u"Uno"_s }), IsEmpty());
}

// A script in the place of MAME, which finds its ROMs where a launch would.
TEST_F(Check, TheMachineIsAskedForInTheDirectoryAndWithTheROMPathOfALaunch)
{
    PonGuion(u"emu/beside"_s, "exit 0\n");
    PonGuion(u"emu/mame"_s, "[ -e beside ] && [ \"$*\" = \"-verifyroms a7800 -rompath bios -rp more\" ]\n");
    Cambia(u"Zembro.emu"_s, "emu/uno.sh\r\nXDI=NO.0", "emu/mame\r\nXDI=NO.0");
    Cambia(u"Zembro.emu"_s, "PAR1=-a\r\nPAR2=", "PAR1=-rompath BIOS A7800 -cart\r\nPAR2=-w -rp more");
    EXPECT_THAT(clases(SisUno), IsEmpty());
    Borra(u"emu/beside"_s);
    EXPECT_THAT(clases(SisUno), ElementsAre(u"machine-without-roms"_s));
}

TEST_F(Check, AMachineWithoutItsROMsIsSaidWithTheDirectoryAndTheROMPathThatWereLookedAt)
{
    PonGuion(u"emu/mame"_s, "exit 2\n");
    Cambia(u"Zembro.emu"_s, "emu/uno.sh\r\nXDI=NO.0", "emu/mame\r\nXDI=NO.0");
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=-rompath BIOS A7800 -cart");
    const QByteArray emu = Ruta(u"emu/"_s).toUtf8();
    EXPECT_TRUE(dicho().contains("The machine a7800 of MAME lacks ROMs of its own; in the directory " + emu
        + ", where a launch starts it, this names them: " + emu + "mame -verifyroms a7800 -rompath bios\n"))
        << dicho().toStdString();
}

// A script in the place of MAME, which says of each set what MAME says; of one that isn't there it says
// nothing.
class CheckMAME : public Check {
protected:
    CheckMAME()
    {
        PonGuion(u"emu/mame"_s,
            "echo \"$PWD $*\" >> calls\n"
            "shift\n"
            "for set; do case $set in\n"
            "puckman) echo romset puckman is good;;\n"
            "pacman) echo 'romset pacman [puckman] is best available';;\n"
            "galaga) echo 'galaga  : 54xx.bin - NOT FOUND'; echo romset galaga is bad;;\n"
            "esac; done\n"
            "exit 2\n");
        Cambia(u"Zembro.emu"_s, "emu/uno.sh\r\nXDI=NO.0", "emu/mame\r\nXDI=NO.3");
        Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=-rompath BIOS");
        for (const QString &nombre : { u"Puckman.zip"_s, u"pacman.zip"_s, u"Galaga.zip"_s, u"gone.zip"_s })
            Pon(u"roms/"_s + nombre, Zip({ { "a.bin", "a" } }));
        Cambia(u"Zembro.rom"_s, "Sis\r\n", "Sis\r\nGALAGA,\"Galaga, the first\"\r\n");
    }
};

TEST_F(CheckMAME, GamesOfWhichItFindsNotAllROMsAreSaid_WhereItsParametersNameNoMachine)
{
    QJsonArray suyos;
    for (const QJsonValue &uno : Json(SisUno, companion::Hallazgos)[u"findings"_s].toArray()) {
        if (uno[u"kind"_s] == u"game-without-roms"_s)
            suyos += uno[u"text"_s];
    }
    const QString emu = Ruta(u"emu/"_s);
    const auto dicho = [&](const QString &entrada, const QString &romset) {
        return u"MAME doesn't find all ROMs of the game "_s + entrada + u"; in the directory "_s + emu
            + u", where a launch starts it, this names them: "_s + emu + u"mame -verifyroms "_s + romset
            + u" -rompath bios"_s;
    };
    EXPECT_EQ(
        suyos, QJsonArray({ dicho(u"Galaga, the first"_s, u"galaga"_s), dicho(u"gone.zip"_s, u"gone"_s) }));
    // One call for all, with the names that a launch hands on, behind one that shows whether it answers.
    const QByteArray antes = Ruta(u"emu"_s).toUtf8() + " -verifyroms galaga";
    EXPECT_EQ(
        Bytes(u"emu/calls"_s), antes + " -rompath bios\n" + antes + " gone pacman puckman -rompath bios\n");
}

TEST_F(CheckMAME, NothingIsSaidOfGamesWhereItTakesOneNameAlone_OrOneThatTheParametersName)
{
    PonGuion(u"emu/mame"_s, "[ $# = 4 ] && echo romset $2 is good; exit 2\n");
    EXPECT_FALSE(clases(SisUno).contains(u"game-without-roms"_s));
    PonGuion(u"emu/mame"_s, "exit 2\n");
    Cambia(u"Zembro.emu"_s, "PAR1=-rompath BIOS", "PAR1=NAOMI");
    EXPECT_FALSE(clases(SisUno).contains(u"game-without-roms"_s));
    EXPECT_TRUE(clases(SisUno).contains(u"machine-without-roms"_s));
}

// It isn't asked again, and of what it started nothing is left.
TEST_F(CheckMAME, OneThatDoesntAnswerIsSaidOnce_AndEndedWithAllThatItStarted)
{
    const auto antes = std::exchange(
        companion::Paciencia, { std::chrono::milliseconds(600), std::chrono::milliseconds(500) });
    PonGuion(u"emu/mame"_s, "echo x >> calls\nsleep 1000 & echo $! > child\nwait\n");
    const QStringList suyas = clases(SisUno);
    EXPECT_EQ(suyas.count(u"mame-unfinished"_s), 1) << suyas.join(u' ').toStdString();
    EXPECT_FALSE(suyas.contains(u"game-without-roms"_s));
    EXPECT_EQ(Bytes(u"emu/calls"_s), "x\n");
    const QString hijo = QString::fromLatin1(Bytes(u"emu/child"_s).trimmed());
    ASSERT_FALSE(hijo.isEmpty());
    // It ends a moment behind the signal, and whoever adopts it may take its time to bury it.
    const auto sigue = [&] {
        QFile estado(u"/proc/"_s + hijo + u"/stat"_s);
        return estado.open(QIODevice::ReadOnly) && !estado.readAll().contains(") Z");
    };
    for (int veces = 0; veces < 100 && sigue(); ++veces)
        QThread::msleep(20);
    EXPECT_FALSE(sigue());
    const QByteArray emu = Ruta(u"emu/"_s).toUtf8();
    EXPECT_TRUE(dicho().contains(
        "MAME wasn't done after 1 seconds and was ended, so nothing is known of its ROMs; to see what "
        "it waits for, in the directory "
        + emu + ", where a launch starts it, run " + emu + "mame -verifyroms galaga"))
        << dicho().toStdString();
    Cambia(u"Zembro.emu"_s, "PAR1=-rompath BIOS", "PAR1=NAOMI");
    EXPECT_EQ(clases(SisUno).count(u"mame-unfinished"_s), 1);
    companion::Paciencia = antes;
}

TEST_F(CheckMAME, OneThatSaysNothingOfAnySetIsSaidOnce_WithWhatItSays)
{
    struct Caso {
        QByteArray guion;
        QByteArray dicho;
    };
    const Caso casos[] = {
        { "exit 3\n",
            "MAME said nothing and ended with the status 3, so nothing is known of its ROMs; try whether it "
            "is "
            "a MAME at all: in the directory " },
        { "echo a; echo 'mame: no lib.so.7' >&2; exit 127\n",
            "MAME named no set of ROMs and ended with the status 127; mend what it said at last (mame: no "
            "lib.so.7), then in the directory " },
        { "kill -SEGV $$\n",
            "MAME was ended by the signal SIGSEGV and told nothing of its ROMs; try whether it always does "
            "so, "
            "and install it anew then: in the directory " },
    };
    for (const Caso &caso : casos) {
        PonGuion(u"emu/mame"_s, caso.guion);
        const QStringList suyas = clases(SisUno);
        EXPECT_EQ(suyas.count(u"mame-failed"_s), 1) << suyas.join(u' ').toStdString();
        EXPECT_FALSE(suyas.contains(u"game-without-roms"_s));
        const QByteArray emu = Ruta(u"emu/"_s).toUtf8();
        EXPECT_TRUE(dicho().contains(caso.dicho + emu + ", where a launch starts it, run " + emu
            + "mame -verifyroms galaga -rompath bios\n"))
            << dicho().toStdString();
    }
    // Of the machine that the parameters name too.
    PonGuion(u"emu/mame"_s, "echo 'mame: no lib.so.7' >&2; exit 127\n");
    Cambia(u"Zembro.emu"_s, "PAR1=-rompath BIOS", "PAR1=NAOMI");
    EXPECT_EQ(clases(SisUno).count(u"mame-failed"_s), 1);
    EXPECT_FALSE(clases(SisUno).contains(u"machine-without-roms"_s));
}

// It takes its time for each game, and hands on what it says at its end alone.
TEST_F(CheckMAME, OneThatIsSilentForLongIsWaitedFor_InProportionToTheGames)
{
    const auto antes = std::exchange(
        companion::Paciencia, { std::chrono::milliseconds(400), std::chrono::milliseconds(800) });
    PonGuion(u"emu/mame"_s,
        "shift; all=; for set; do [ $set = -rompath ] && break; sleep 0.4\n"
        "[ $set = gone ] || all=\"$all\\nromset $set is good\"; done; printf \"$all\\n\"; exit 2\n");
    const QStringList suyas = clases(SisUno);
    EXPECT_EQ(suyas.count(u"game-without-roms"_s), 1) << suyas.join(u' ').toStdString();
    EXPECT_EQ(suyas.count(u"mame-unfinished"_s), 0);
    companion::Paciencia = antes;
}

// Neither its memory nor its time are for one that says anything without end.
TEST_F(CheckMAME, OneThatSaysTooMuchIsEnded)
{
    const auto antes = std::exchange(
        companion::Paciencia, { std::chrono::milliseconds(300), std::chrono::milliseconds(10) });
    PonGuion(u"emu/mame"_s, "exec yes romset none is good\n");
    EXPECT_EQ(clases(SisUno).count(u"mame-unfinished"_s), 1);
    companion::Paciencia = antes;
}

TEST_F(CheckMAME, OfManyGamesTheFirstOnesAreAskedAbout_AndAllOfAPairThatIsAskedFor)
{
    PonGuion(u"emu/mame"_s,
        "echo $# >> calls\nshift\nfor set; do [ $set = gone ] || echo romset $set is good; done\nexit 2\n");
    for (int i = 0; i < 600; ++i)
        Pon(u"roms/game%1.zip"_s.arg(i), Zip({ { "a.bin", "a" } }));
    EXPECT_TRUE(dicho().contains("    MAME was asked about the ROMs of the first 500 games alone; not asked "
                                 "about: 104. check SYSTEM EMULATOR asks about all.\n"))
        << dicho().toStdString();
    EXPECT_EQ(Bytes(u"emu/calls"_s), "4\n" + QByteArray("103\n").repeated(5));
    Borra(u"emu/calls"_s);
    EXPECT_EQ(Json(SisUno, companion::Hallazgos)[u"pairs"_s][0][u"not_verified"_s].toInt(-1), 0);
    EXPECT_EQ(Bytes(u"emu/calls"_s), "4\n" + QByteArray("103\n").repeated(6) + "7\n");
}

TEST_F(Check, AMachineIsOneOfMAMEsByEachOfItsNames)
{
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=A7800 -cart");
    QByteArray antes = "uno.sh";
    for (const QByteArray nombre : { "mame", "mame64", "org.mamedev.MAME" }) {
        PonGuion(u"emu/"_s + QString::fromLatin1(nombre), "exit 2\n");
        Cambia(u"Zembro.emu"_s, "emu/" + antes + "\r\nXDI=NO.0", "emu/" + nombre + "\r\nXDI=NO.0");
        EXPECT_THAT(clases(SisUno), ElementsAre(u"machine-without-roms"_s)) << nombre.toStdString();
        antes = nombre;
    }
}
