#include "dostest.h"

#include "host/process.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr int System = 3;
constexpr int Row = 2;

QString programs()
{
    return QStringLiteral(DOS_PROGRAMS);
}

} // namespace

DosTest::DosTest()
{
    // Its own settings stay out of it, and it shows and plays nothing.
    qputenv("HOME", place("home"));
    qputenv("SDL_VIDEODRIVER", "dummy");
    qputenv("SDL_AUDIODRIVER", "dummy");
    qputenv("WINEPREFIX", place("wine"));
    makeDirectory("home");
    host::rememberEnvironment();
    PonPalabrasDeEncargo();
}

DosTest::~DosTest()
{
    for (const char *variable : { "SDL_VIDEODRIVER", "SDL_AUDIODRIVER", "WINEPREFIX" })
        qunsetenv(variable);
}

void DosTest::SetUp()
{
    if (host::findInPath(u"dosbox"_s).isEmpty() && host::findInPath(u"dosbox-x"_s).isEmpty())
        GTEST_SKIP() << "DOSBox isn't installed.";
    if (!QFile::exists(programs() + u"/tells.com"_s))
        GTEST_SKIP() << "There was no nasm to assemble the programs for DOS.";
}

void DosTest::PutProgram(const QByteArray &program, const QByteArray &name) const
{
    QFile file(programs() + u'/' + QString::fromLatin1(program));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    makeFile(name, file.readAll());
}

void DosTest::Select(
    int type, const QString &exe, const QString &rom, const QString &par1, const QString &par2)
{
    M.Cat_XDI(System, Row) = u"XDI="_s + QString::number(type);
    M.Cat_EXE(System, Row) = u"EXE="_s + exe;
    M.Cat_ROM(System, Row) = u"ROM="_s + rom;
    M.Cat_PAR1(System, Row) = u"PAR1="_s + par1;
    M.Cat_PAR2(System, Row) = u"PAR2="_s + par2;
}

void DosTest::NameDrives(const QByteArray &lines) const
{
    makeFile("program/Zembro.uni", lines);
}

QByteArrayList DosTest::Told(const QByteArray &directory) const
{
    return bytes(directory + "/OUT").value_or("no game").split('\0');
}

QStringList DosTest::Notices() const
{
    QStringList notices;
    for (const QString &call : pantalla.llamadas) {
        if (call.startsWith(u"Aviso "))
            notices << call.sliced(6);
    }
    return notices;
}
