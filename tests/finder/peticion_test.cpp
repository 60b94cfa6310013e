// The finder asked to configure the rest in a program directory that is in use.

#include "core/ajustes.h"
#include "core/catalogo.h"

#include "maquina.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

const QByteArray Closing = "'----------------------------------------------------------------------\r\n";
// What the user has: an emulator of his own, ahead of and behind what can be found.
const QByteArray Mine =
    "' My words\r\n-Middle\r\nWEB1=\r\n*.MID\r\n'\r\n+Mine\r\nWEB2=\r\nEXE=/opt/mine\r\nXDI=0\r\n"
    "ROM=/my games/\r\nIMG=\r\nPAR1=-Big\r\nPAR2=\r\n'\r\n+Zeta\r\nWEB2=\r\nEXE=/opt/zeta\r\n"
    "XDI=0\r\nROM=/my games/\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n";
const QByteArray End = "[EOF]\r\n";

class Request : public testing::Test {
protected:
    Request()
    {
        maquina.PonFichero(u"table"_s,
            "Alpha\tno-such-alpha\t0\t-\t-\nBeta\tno-such-beta\t0\t-\t-\nNova\tno-such-nova\t0\t-\t-\n");
        maquina.PonFichero(u"Z/Zembro.sye"_s,
            "-Ahead\r\nWEB1=\r\n*.AHE\r\n'\r\n+Alpha\r\nWEB2=\r\n" + Closing
                + "-Middle\r\nWEB1=\r\n*.MID\r\n'\r\n+Beta\r\nWEB2=\r\n+Nova\r\nWEB2=\r\n" + Closing + End);
        maquina.PonFichero(u"Z/Zembro.emu"_s, Mine + Closing + End);
        maquina.PonFichero(u"Z/Zembro.rom"_s, "Middle\r\n'\r\n[Fin]\r\n");
        setSelection(0, 0);
        for (const QString &name : { u"alpha"_s, u"beta"_s, u"nova"_s })
            maquina.PonPrograma(u"bin/no-such-"_s + name);
    }

    void setSelection(int system, int emulator) const
    {
        const QString settings = core::ConAjuste(core::AjustesPorDefecto(u"ZB-ESP.LNG"_s),
            core::Ajuste::UltimaSeleccion, core::LineasDeUltimaSeleccion(system, emulator));
        maquina.PonFichero(u"Z/Zembro.cfg"_s, settings.toUtf8());
    }
    void putGame(const QString &system, const QString &name) const
    {
        maquina.PonFichero(u"Z/roms/"_s + system + u'/' + name);
    }

    void start(QProcess &process, const QStringList &words) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, maquina.Ruta(u"bin"_s));
        environment.insert(u"HOME"_s, maquina.Ruta(u"home"_s));
        process.setProcessEnvironment(environment);
        process.start(
            QStringLiteral(FINDER), words + QStringList { maquina.Ruta(u"table"_s), maquina.Ruta(u"Z"_s) });
    }
    int end(QProcess &process)
    {
        EXPECT_TRUE(process.waitForFinished());
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
        return process.exitCode();
    }
    int run(const QStringList &words = {})
    {
        QProcess process;
        start(process, words);
        return end(process);
    }

    QByteArray bytes(const QString &name) const { return maquina.Bytes(u"Z/"_s + name); }

    // What the program selects at its next start.
    QStringList selected() const
    {
        const QList<QByteArray> lines = bytes(u"Zembro.cfg"_s).split('\n');
        const auto number = [&lines](int line) {
            const QString text = QString::fromUtf8(lines.value(line)).trimmed();
            return text.sliced(text.lastIndexOf(u' ') + 1).toInt();
        };
        const auto M = core::CatalogoDe(QString::fromUtf8(bytes(u"Zembro.emu"_s)));
        QStringList systems;
        for (int s = 0; s <= M->Indice_Sistema; ++s)
            systems += M->Cat_Nombre(s, 0).sliced(1);
        QStringList sorted = systems;
        sorted.sort(Qt::CaseInsensitive);
        const QString system = sorted.value(number(11));
        QStringList emulators;
        const int row = static_cast<int>(systems.indexOf(system));
        for (int e = 1; row >= 0 && e <= core::TotalEmuladores(*M, row); ++e)
            emulators += M->Cat_Nombre(row, e).sliced(1);
        emulators.sort(Qt::CaseInsensitive);
        return { system, emulators.value(number(12)) };
    }

    QByteArray block(const QByteArray &name, const QByteArray &system) const
    {
        return "+" + name + "\r\nWEB2=\r\nEXE=" + maquina.Ruta(u"bin/no-such-"_s).toUtf8() + name.toLower()
            + "\r\nXDI=0\r\nROM=roms/" + system + "/\r\nIMG=capturas/" + system + "/\r\nPAR1=\r\nPAR2=\r\n";
    }

    Maquina maquina;
    QByteArray output;
    QByteArray errors;
};

} // namespace

TEST_F(Request, AddsTheSystemsWithGamesBesideWhatIsThereAndSaysSo)
{
    putGame(u"Ahead"_s, u"game.ahe"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    EXPECT_EQ(bytes(u"Zembro.emu"_s),
        Mine + Closing + "-Ahead\r\nWEB1=\r\n*.AHE\r\n'\r\n" + block("Alpha", "Ahead") + Closing + End);
    EXPECT_EQ(output, "Ahead: Alpha, " + maquina.Ruta(u"bin/no-such-alpha"_s).toUtf8() + "\n");
    EXPECT_EQ(errors, "");
    EXPECT_TRUE(QDir(maquina.Ruta(u"Z/capturas/Ahead"_s)).exists());
    EXPECT_FALSE(QDir(maquina.Ruta(u"Z/capturas/Middle"_s)).exists());
    EXPECT_TRUE(bytes(u"roms/Middle/LEEME.txt"_s).contains("./zembro find --write"));
}

TEST_F(Request, WithAllAddsSystemsWithoutGamesToo)
{
    ASSERT_EQ(run({ u"--all"_s }), 0) << errors.toStdString();
    EXPECT_EQ(bytes(u"Zembro.emu"_s),
        Mine + "'\r\n" + block("Beta", "Middle") + "'\r\n" + block("Nova", "Middle") + Closing
            + "-Ahead\r\nWEB1=\r\n*.AHE\r\n'\r\n" + block("Alpha", "Ahead") + Closing + End);
    EXPECT_EQ(output.count('\n'), 3);
    EXPECT_FALSE(bytes(u"roms/Middle/LEEME.txt"_s).contains("--find"));
}

TEST_F(Request, KeepsThePairThatWasSelectedSelected)
{
    ASSERT_EQ(selected(), QStringList({ u"Middle"_s, u"Mine"_s }));
    ASSERT_EQ(run({ u"--all"_s }), 0);
    EXPECT_EQ(selected(), QStringList({ u"Middle"_s, u"Mine"_s }));
    EXPECT_TRUE(
        bytes(u"Zembro.cfg"_s).contains("LastSisUsed = 1\r\nLastEmuUsed = 1\r\nSaveLastEmu&Sis = 1\r\n"));
}

TEST_F(Request, ChangesOfTheSettingsOnlyTheTwoPositions)
{
    setSelection(0, 1);
    const QByteArray before = bytes(u"Zembro.cfg"_s);
    ASSERT_EQ(run({ u"--all"_s }), 0);
    EXPECT_EQ(selected(), QStringList({ u"Middle"_s, u"Zeta"_s }));
    EXPECT_EQ(bytes(u"Zembro.cfg"_s),
        QByteArray(before).replace(
            "LastSisUsed = 0\r\nLastEmuUsed = 1", "LastSisUsed = 1\r\nLastEmuUsed = 3"));
}

TEST_F(Request, KeepsASystemWithoutAnEmulatorSelected)
{
    setSelection(0, core::NingunEmulador);
    ASSERT_EQ(run({ u"--all"_s }), 0);
    EXPECT_TRUE(bytes(u"Zembro.cfg"_s).contains("LastSisUsed = 1\r\nLastEmuUsed = 696969\r\n"));
}

TEST_F(Request, LeavesTheSettingsAlone_WhereTheyAreNotWrittenYetOrAreNotTheirs)
{
    for (const QByteArray &settings :
        { QByteArray("VACIO\r\n"), QByteArray(), QByteArray("[General]\r\nLastSisUsed = 0\r\n"),
            bytes(u"Zembro.cfg"_s).replace("SaveLastEmu&Sis = 1\r\n", ""),
            bytes(u"Zembro.cfg"_s).replace("MsgEndDOS = Finalizado", "MsgEndDOS = \"a\",VACIO") }) {
        maquina.PonFichero(u"Z/Zembro.emu"_s, Mine + Closing + End);
        maquina.PonFichero(u"Z/Zembro.cfg"_s, settings);
        ASSERT_EQ(run({ u"--all"_s }), 0) << errors.toStdString();
        EXPECT_EQ(bytes(u"Zembro.cfg"_s), settings);
    }
    ASSERT_TRUE(QFile::remove(maquina.Ruta(u"Z/Zembro.cfg"_s)));
    maquina.PonFichero(u"Z/Zembro.emu"_s, Mine + Closing + End);
    ASSERT_EQ(run({ u"--all"_s }), 0);
    EXPECT_FALSE(QFile::exists(maquina.Ruta(u"Z/Zembro.cfg"_s)));
}

TEST_F(Request, AddsNothingTheSecondTime)
{
    putGame(u"Ahead"_s, u"game.ahe"_s);
    putGame(u"Middle"_s, u"game.mid"_s);
    ASSERT_EQ(run(), 0);
    EXPECT_EQ(output.count('\n'), 3);
    const QByteArray catalogue = bytes(u"Zembro.emu"_s);
    const QByteArray settings = bytes(u"Zembro.cfg"_s);
    for (const QStringList &words : { QStringList(), QStringList(u"--all"_s) }) {
        ASSERT_EQ(run(words), 0);
        EXPECT_EQ(output, "");
        EXPECT_EQ(errors, "");
        EXPECT_EQ(bytes(u"Zembro.emu"_s), catalogue);
        EXPECT_EQ(bytes(u"Zembro.cfg"_s), settings);
    }
}

TEST_F(Request, GivesANewSystemItsPlaceAmongTheDescriptions)
{
    ASSERT_EQ(run({ u"--all"_s }), 0);
    EXPECT_EQ(bytes(u"Zembro.rom"_s), "Middle\r\n'\r\nAhead\r\n'\r\n[Fin]\r\n");
    EXPECT_EQ(errors, "");
}

TEST_F(Request, SaysThatGamesWillNotBeListed_WhereTheDescriptionsHaveNoRoom)
{
    maquina.PonFichero(u"Z/Zembro.rom"_s, "Middle\r\n'\r\n");
    ASSERT_EQ(run({ u"--all"_s }), 0);
    EXPECT_EQ(bytes(u"Zembro.rom"_s), "Middle\r\n'\r\n");
    EXPECT_THAT(errors.toStdString(), HasSubstr("Ahead: its games aren't listed"));
}

TEST_F(Request, TellsOfGamesThatTheirEmulatorDoesNotLookAt)
{
    putGame(u"Ahead"_s, u"game.ahe"_s);
    ASSERT_EQ(run({ u"--all"_s }), 0);
    const QByteArray elsewhere = bytes(u"Zembro.emu"_s).replace("ROM=roms/Ahead/", "ROM=elsewhere/");
    maquina.PonFichero(u"Z/Zembro.emu"_s, elsewhere);
    ASSERT_TRUE(QFile::remove(maquina.Ruta(u"Z/roms/Ahead/LEEME.txt"_s)));
    ASSERT_EQ(run(), 0);
    EXPECT_EQ(output, "");
    EXPECT_THAT(errors.toStdString(), HasSubstr("Ahead: there are games in "));
    EXPECT_THAT(bytes(u"roms/Ahead/LEEME.txt"_s).toStdString(), HasSubstr(" go into: elsewhere/\r\n"));
    EXPECT_EQ(bytes(u"Zembro.emu"_s), elsewhere);
}

TEST_F(Request, LeavesACatalogueThatCannotBeReadAsItIsAndSaysWhy)
{
    QByteArray systems;
    for (int s = 0; s < 152; ++s)
        systems += "-S" + QByteArray::number(s) + "\r\n";
    for (const QByteArray &catalogue : { "+early\r\n" + Mine + Closing + End, systems + End }) {
        maquina.PonFichero(u"Z/Zembro.emu"_s, catalogue);
        EXPECT_EQ(run({ u"--all"_s }), 1);
        EXPECT_EQ(bytes(u"Zembro.emu"_s), catalogue);
        EXPECT_THAT(errors.toStdString(), HasSubstr("read the catalogue"));
        EXPECT_EQ(output, "");
    }
}

TEST_F(Request, SaysWhatItLeavesOut)
{
    maquina.PonFichero(u"Z/Zembro.emu"_s, Mine + Closing);
    ASSERT_EQ(run({ u"--all"_s }), 0);
    EXPECT_EQ(output.count('\n'), 2);
    EXPECT_THAT(errors.toStdString(), HasSubstr("Ahead: Alpha is left out: the catalogue has no line"));
}

TEST_F(Request, KeepsTheCataloguesOwnBytes)
{
    // Windows-1252, line ends of both kinds, the mark at the end.
    const QByteArray before = "-Middle\n*.MID\n'\n+Canci\xF3n\x81\nEXE=/x\r\nROM=/\xE1/\n'--\n[EOF]\n\x1A";
    maquina.PonFichero(u"Z/Zembro.emu"_s, before);
    putGame(u"Ahead"_s, u"game.ahe"_s);
    ASSERT_EQ(run(), 0) << errors.toStdString();
    const QByteArray after = bytes(u"Zembro.emu"_s);
    EXPECT_TRUE(after.startsWith(before.chopped(7)));
    EXPECT_TRUE(after.endsWith(before.last(7)));
    EXPECT_THAT(after.toStdString(), HasSubstr("+Alpha\r\n"));
}

TEST_F(Request, WaitsWhileAnotherProgramWrites)
{
    putGame(u"Ahead"_s, u"game.ahe"_s);
    const int directory =
        open(QFile::encodeName(maquina.Ruta(u"Z"_s)).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_GE(directory, 0);
    ASSERT_EQ(flock(directory, LOCK_EX), 0);
    QProcess process;
    start(process, {});
    EXPECT_FALSE(process.waitForFinished(700));
    const QByteArray changed = QByteArray(Mine).replace("PAR1=-Big", "PAR1=-bigger") + Closing + End;
    maquina.PonFichero(u"Z/Zembro.emu"_s, changed);
    close(directory);
    ASSERT_EQ(end(process), 0) << errors.toStdString();
    EXPECT_THAT(bytes(u"Zembro.emu"_s).toStdString(), HasSubstr("PAR1=-bigger"));
    EXPECT_THAT(bytes(u"Zembro.emu"_s).toStdString(), HasSubstr("+Alpha"));
}
