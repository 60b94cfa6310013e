// Launches of programs for Windows, from the selection to the end, in the real Wine.
#include "tests/launch/escenario.h"
#include "tests/launch/zipdeprueba.h"

#include "launch/jugar.h"

#include "host/encoding.h"
#include "host/paths.h"
#include "host/process.h"
#include "host/windows.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int System = 3;
constexpr int Row = 2;

QString programs()
{
    return QStringLiteral(WINDOWS_PROGRAMS);
}

// Its yield runs the event loop, and it closes windows, as the main screen does.
class LiveScreen : public PantallaDePrueba {
public:
    void Cede(int descriptor, int milliseconds) override
    {
        PantallaDePrueba::Cede(descriptor, qMin(milliseconds, 20));
        QCoreApplication::processEvents();
    }
    void CierraVentana(const QString &title) override
    {
        closed += host::findWindow(title) != 0 ? 1 : 0;
        host::closeWindowTitled(title);
    }
    int closed = 0;
};

// One prefix for all: making it takes a quarter of a minute.
class LaunchesInWine : public Escenario {
protected:
    static std::unique_ptr<QTemporaryDir> s_home;

    static QString prefix() { return s_home->filePath(u"prefix"_s); }
    static void environment()
    {
        qputenv("HOME", QFile::encodeName(s_home->path()));
        qputenv("WINEPREFIX", QFile::encodeName(prefix()));
        qputenv("WINEDEBUG", "-all");
        qputenv("WINEDLLOVERRIDES", "mscoree,mshtml,winemenubuilder.exe=");
        host::rememberEnvironment();
    }
    static void SetUpTestSuite()
    {
        if (host::findInPath(u"wine"_s).isEmpty())
            return;
        s_home = std::make_unique<QTemporaryDir>();
        environment();
        EXPECT_EQ(QProcess::execute(u"wine"_s, { u"wineboot"_s, u"--init"_s }), 0);
        QProcess::execute(u"wineserver"_s, { u"--wait"_s });
    }
    static void TearDownTestSuite()
    {
        if (!s_home)
            return;
        s_home.reset();
    }

    LaunchesInWine()
    {
        for (const char *directory : { "old", "old/EMUS", "media", "media/ROMS" })
            makeDirectory(directory);
        makeFile("program/Zembro.uni", "C=" + place("old") + "/\r\nD=" + place("media") + "\r\n");
    }
    void SetUp() override
    {
        if (!s_home)
            GTEST_SKIP() << "Wine isn't installed.";
        if (!QFile::exists(programs() + u"/windows.exe"_s))
            GTEST_SKIP() << "There was no compiler for Windows to make the programs.";
        environment();
    }
    ~LaunchesInWine() override
    {
        if (!s_home)
            return;
        QFile::remove(prefix() + u"/dosdevices/d:"_s);
        // Its server has its socket in this test's temporary directory.
        QProcess::execute(u"wineserver"_s, { u"--kill"_s });
        QProcess::execute(u"wineserver"_s, { u"--wait"_s });
    }

    void PutProgram(const QByteArray &name, const QString &kind = u"windows"_s) const
    {
        QFile file(programs() + u'/' + kind + u".exe"_s);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        makeFile(name, file.readAll());
    }
    void Select(
        int type, const QString &exe, const QString &rom, const QString &par1 = {}, const QString &par2 = {})
    {
        M.Cat_XDI(System, Row) = u"XDI="_s + QString::number(type);
        M.Cat_EXE(System, Row) = u"EXE="_s + exe;
        M.Cat_ROM(System, Row) = u"ROM="_s + rom;
        M.Cat_PAR1(System, Row) = u"PAR1="_s + par1;
        M.Cat_PAR2(System, Row) = u"PAR2="_s + par2;
    }
    launch::Partida Play()
    {
        return launch::Jugar(M, live, [](const QString &) {});
    }
    QByteArrayList Told(const QByteArray &directory) const
    {
        QByteArrayList told = bytes(directory + "/OUT").value_or("no game").split('\0');
        told.removeLast();
        return told;
    }
    // A place as the drive Z has it.
    QByteArray OnZ(const QByteArray &name) const { return "Z:" + place(name).replace('/', '\\'); }

    LiveScreen live;
};

std::unique_ptr<QTemporaryDir> LaunchesInWine::s_home;

} // namespace

TEST_F(LaunchesInWine, AnOldCatalogueWorksAsItIs)
{
    PutProgram("old/EMUS/Nes.exe");
    makeFile("media/ROMS/mario.nes", "a game");
    Select(0, u"C:\\EMUS\\NES.EXE"_s, u"D:\\ROMS\\"_s, u"-X 1"_s);
    const launch::Partida run = Play();
    EXPECT_EQ(run.fallo, QString());
    EXPECT_THAT(
        Told("old/EMUS"), ElementsAre(OnZ("old/EMUS"), "-x", "1", OnZ("media/ROMS/mario.nes"), "a game"));
}

TEST_F(LaunchesInWine, TheDrivesOfThePrefixCount)
{
    ASSERT_TRUE(QFile::link(path(u"media"_s), prefix() + u"/dosdevices/d:"_s));
    QFile::remove(path(u"program/Zembro.uni"_s));
    PutProgram("media/Nes.exe");
    makeFile("media/ROMS/mario.nes", "a game");
    Select(0, u"D:\\nes.exe"_s, u"D:\\roms\\"_s);
    Play();
    EXPECT_THAT(Told("media"), ElementsAre("D:\\", "D:\\ROMS\\mario.nes", "a game"));
}

TEST_F(LaunchesInWine, ItsEndAndItsStatusAreSeen)
{
    for (const QString &kind : { u"windows"_s, u"console"_s }) {
        PutProgram("old/EMUS/Nes.exe", kind);
        Select(5, u"C:\\EMUS\\NES.EXE"_s, {}, u" -status 7"_s);
        const launch::Partida run = Play();
        EXPECT_TRUE(run.acabada);
        EXPECT_EQ(run.final.status, 7) << kind.toStdString();
    }
}

TEST_F(LaunchesInWine, NamesComeWhole)
{
    PutProgram("old/EMUS/The Emulator's #1.exe");
    Select(0, u"C:\\EMUS\\The Emulator's #1.exe"_s, u"D:\\ROMS\\"_s);
    for (const char *name : { "Super Mario (1).nes", "ni\xC3\xB1o \xE4\xB8\x80.nes", "a'b`c$d;e&f.nes",
             "100% %PATH%.nes", "-option.nes", "two  blanks.nes", "a.b.c", ".hidden.nes", "a^b~1!.nes" }) {
        makeFile(QByteArray("media/ROMS/") + name, name);
        live.lista1 = QString::fromUtf8(name);
        Play();
        EXPECT_THAT(
            Told("old/EMUS"), ElementsAre(OnZ("old/EMUS"), OnZ(QByteArray("media/ROMS/") + name), name));
    }
}

TEST_F(LaunchesInWine, NamesThatWindowsDoesntKnowAreOpenedToo)
{
    PutProgram("old/EMUS/Nes.exe");
    Select(0, u"C:\\EMUS\\NES.EXE"_s, u"D:\\ROMS\\"_s);
    for (const char *name : { "a\"b\".nes", "what?.nes", "a:b.nes", "a*.nes", "<a>|b.nes", "ends.", "ends ",
             "con.nes", "a\\b.nes", "ni\xA4os.nes", "ni\xF1os.nes", "a\nb.nes" }) {
        makeFile(QByteArray("media/ROMS/") + name, "a game");
        live.lista1 = host::nameFromDisk(name);
        Play();
        const QByteArrayList told = Told("old/EMUS");
        EXPECT_EQ(told.size(), 3) << name;
        EXPECT_EQ(told.value(2), "a game") << name << " as " << told.value(1).constData();
    }
}

TEST_F(LaunchesInWine, AnEmulatorInADirectoryOfAnyNameIsStarted)
{
    Select(5, {}, {}, u" fine"_s);
    for (const char *name : { "Emus For Nes", "ni\xC3\xB1os", "a'b %PATH% $c", "ni\xA4os" }) {
        makeDirectory(name);
        PutProgram(QByteArray(name) + "/Nes.exe");
        M.Cat_EXE(System, Row) = u"EXE="_s + host::nameFromDisk(place(name)) + u"/Nes.exe"_s;
        Play();
        EXPECT_THAT(Told(name).mid(1), ElementsAre("fine", "")) << name;
    }
}

TEST_F(LaunchesInWine, ParametersComeAsTheyStand)
{
    PutProgram("old/EMUS/Nes.exe");
    makeFile("media/ROMS/mario.nes", "a game");
    Select(0, u"C:\\EMUS\\NES.EXE"_s, u"D:\\ROMS\\"_s, u"\"two  words\" 100% %path% a&b ^ ; > x \u00F1"_s,
        u"\"a b\\\" c:\\x\\ \"\""_s);
    PonParametros("mario.nes,s,e,/Y\r\n");
    Play();
    EXPECT_THAT(Told("old/EMUS").mid(1),
        ElementsAre("two  words", "100%", "%path%", "a&b", "^", ";", ">", "x", "\xC3\xB1",
            OnZ("media/ROMS/mario.nes"), "a b\\", "c:\\x\\", "", "/Y", ""));
}

TEST_F(LaunchesInWine, AGameOutOfAZipIsThere)
{
    PutProgram("old/EMUS/Nes.exe");
    makeFile("media/ROMS/Super Mario (1).zip", Zip({ { "Super Mario Brothers.nes", "zipped" } }));
    PonExtensiones({ u"*.NES"_s });
    live.lista1 = u"Super Mario (1).zip"_s;
    Select(0, u"C:\\EMUS\\NES.EXE"_s, u"D:\\ROMS\\"_s);
    Play();
    const QByteArrayList told = Told("old/EMUS");
    EXPECT_TRUE(told.value(1).endsWith("\\Super Mario Brothers.nes")) << told.value(1).constData();
    EXPECT_EQ(told.value(2), "zipped");
    for (const QByteArray &left : host::listInDiskOrder(path(u"tmp"_s)))
        EXPECT_TRUE(left.startsWith("wine-")) << left.constData() << ", which isn't that of Wine's server";
}

TEST_F(LaunchesInWine, AGameUnpackedBesideItsEmulatorIsThere)
{
    PutProgram("old/EMUS/Nes.exe");
    makeFile("media/ROMS/Super Mario.zip", Zip({ { "one.rom", "zipped" } }));
    live.lista1 = u"Super Mario.zip"_s;
    Select(2, u"C:\\EMUS\\NES.EXE"_s, u"D:\\ROMS\\"_s, {}, u"super_mario\\one.rom"_s);
    Play();
    EXPECT_THAT(Told("old/EMUS").mid(1), ElementsAre("super_mario", "super_mario\\one.rom", "zipped"));
    EXPECT_FALSE(exists("old/EMUS/super_mario"));
}

TEST_F(LaunchesInWine, AWindowThatTellsItsEndIsClosed)
{
    PutProgram("old/EMUS/Nes.exe");
    makeFile("media/ROMS/mario.nes", "a game");
    Select(0, u"C:\\EMUS\\NES.EXE"_s, u"D:\\ROMS\\"_s, u"-window \"finalizado - NES\" -status 3"_s);
    const launch::Partida run = Play();
    EXPECT_GE(live.closed, 1);
    EXPECT_EQ(run.final.status, 3);
}
