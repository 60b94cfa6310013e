// Reading a catalogue: which line goes where, the limits, the files that can't be read to their end.
#include "directoriodeprograma.h"

#include "core/catalogo.h"
#include "core/lista.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray Catalogo = "' Systems and emulators\r\n"
                            "-Console One\r\n"
                            "WEB1=http://one.example/\r\n"
                            "*.BIN\r\n"
                            "*.ZIP\r\n"
                            "'\r\n"
                            "+Emulator A\r\n"
                            "WEB2=http://a.example/\r\n"
                            "EXE=/opt/a/emu\r\n"
                            "XDI=0\r\n"
                            "ROM=/roms/one/\r\n"
                            "IMG=/shots/one/\r\n"
                            "PAR1=-full\r\n"
                            "PAR2=-quiet\r\n"
                            "'\r\n"
                            "+Emulator B\r\n"
                            "WEB2=\r\n"
                            "EXE=/opt/b/emu\r\n"
                            "XDI=7\r\n"
                            "ROM=\r\n"
                            "IMG=\r\n"
                            "PAR1=\r\n"
                            "PAR2=\r\n"
                            "'----------------------------------------------------------------------\r\n"
                            "-Arcade\r\n"
                            "WEB1=\r\n"
                            "*.ZIP\r\n"
                            "'\r\n"
                            "+Emulator C\r\n"
                            "WEB2=\r\n"
                            "EXE=/opt/c/emu\r\n"
                            "XDI=3\r\n"
                            "ROM=/roms/arcade/\r\n"
                            "IMG=\r\n"
                            "PAR1=\r\n"
                            "PAR2=\r\n"
                            "'----------------------------------------------------------------------\r\n"
                            "[EOF]\r\n";

class LeeCatalogo : public DirectorioDePrograma {
protected:
    void Lee(const QByteArray &bytes)
    {
        Pon(u"Zembro.emu"_s, bytes);
        core::LeeCatalogo(M);
    }

    int FalloAlLeer(const QByteArray &bytes)
    {
        return NumeroDeFallo([&] { Lee(bytes); });
    }
};

QByteArray repetida(const QByteArray &linea, int veces)
{
    QByteArray bytes;
    for (int i = 0; i < veces; ++i)
        bytes += linea + QByteArray::number(i) + "\r\n";
    return bytes;
}

} // namespace

TEST_F(LeeCatalogo, KeepsEachLineWholeInItsTable)
{
    Lee(Catalogo);
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-Console One");
    EXPECT_EQ(M.Cat_WEB1(0), u"WEB1=http://one.example/");
    EXPECT_EQ(M.Cat_EXT(0, 0), u"*.BIN");
    EXPECT_EQ(M.Cat_EXT(0, 1), u"*.ZIP");
    EXPECT_EQ(M.Cat_Nombre(0, 1), u"+Emulator A");
    EXPECT_EQ(M.Cat_WEB2(0, 1), u"WEB2=http://a.example/");
    EXPECT_EQ(M.Cat_EXE(0, 1), u"EXE=/opt/a/emu");
    EXPECT_EQ(M.Cat_XDI(0, 1), u"XDI=0");
    EXPECT_EQ(M.Cat_ROM(0, 1), u"ROM=/roms/one/");
    EXPECT_EQ(M.Cat_IMG(0, 1), u"IMG=/shots/one/");
    EXPECT_EQ(M.Cat_PAR1(0, 1), u"PAR1=-full");
    EXPECT_EQ(M.Cat_PAR2(0, 1), u"PAR2=-quiet");
    EXPECT_EQ(M.Cat_Nombre(0, 2), u"+Emulator B");
    EXPECT_EQ(M.Cat_XDI(0, 2), u"XDI=7");
    EXPECT_EQ(M.Cat_ROM(0, 2), u"ROM=");
    EXPECT_EQ(M.Cat_Nombre(0, 3), QString());
    EXPECT_EQ(M.Cat_EXT(0, 2), QString());
    EXPECT_EQ(M.Cat_Nombre(1, 0), u"-Arcade");
    EXPECT_EQ(M.Cat_WEB1(1), u"WEB1=");
    EXPECT_EQ(M.Cat_EXT(1, 0), u"*.ZIP");
    EXPECT_EQ(M.Cat_EXT(1, 1), QString());
    EXPECT_EQ(M.Cat_EXE(1, 1), u"EXE=/opt/c/emu");
}

TEST_F(LeeCatalogo, CursorsStandAtTheLastSystemAndItsLastEmulator)
{
    Lee(Catalogo);
    EXPECT_EQ(M.Indice_Sistema, 1);
    EXPECT_EQ(M.Indice_Emulador, 1);
}

TEST_F(LeeCatalogo, ClosesTheFile)
{
    Lee(Catalogo);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(LeeCatalogo, ReadsTheDatabase_OnlyInItsView)
{
    Pon(u"Zembro.emu"_s, "-Configured\r\n");
    Pon(u"Zembro.sye"_s, "-Known\r\n");
    for (const auto &[vista, nombre] :
        { std::pair(0, u"-Configured"_s), std::pair(1, u"-Known"_s), std::pair(2, u"-Configured"_s) }) {
        M.VerBaseDeDatos = vista;
        core::LeeCatalogo(M);
        EXPECT_EQ(M.Cat_Nombre(0, 0), nombre) << vista;
    }
}

TEST_F(LeeCatalogo, OldTablesAreGone_AfterAReading)
{
    Lee(Catalogo);
    Lee("-Other\r\n+Emulator\r\n");
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-Other");
    EXPECT_EQ(M.Cat_Nombre(0, 1), u"+Emulator");
    EXPECT_EQ(M.Cat_Nombre(0, 2), QString());
    EXPECT_EQ(M.Cat_Nombre(1, 0), QString());
    EXPECT_EQ(M.Cat_WEB1(0), QString());
    for (const core::Tabla2<QString> *tabla :
        { &M.Cat_EXE, &M.Cat_XDI, &M.Cat_ROM, &M.Cat_IMG, &M.Cat_PAR1, &M.Cat_PAR2, &M.Cat_WEB2 })
        EXPECT_EQ((*tabla)(0, 1), QString());
    EXPECT_EQ(M.Cat_EXT(0, 0), QString());
}

TEST_F(LeeCatalogo, ALastLineWithoutEndStillCounts)
{
    Lee("-One\r\n+Emulator\r\nXDI=3");
    EXPECT_EQ(M.Cat_XDI(0, 1), u"XDI=3");
}

TEST_F(LeeCatalogo, LineFeedsAloneEndLinesToo)
{
    Lee("-One\n*.BIN\n'\n+Emulator\nXDI=3\n");
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-One");
    EXPECT_EQ(M.Cat_EXT(0, 0), u"*.BIN");
    EXPECT_EQ(M.Cat_XDI(0, 1), u"XDI=3");
}

TEST_F(LeeCatalogo, NothingIsTrimmedFromALine)
{
    Lee("-One \r\n*.BIN \r\n+ Emulator\r\nXDI=3 \r\n");
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-One ");
    EXPECT_EQ(M.Cat_EXT(0, 0), u"*.BIN ");
    EXPECT_EQ(M.Cat_Nombre(0, 1), u"+ Emulator");
    EXPECT_EQ(M.Cat_XDI(0, 1), u"XDI=3 ");
}

TEST_F(LeeCatalogo, NamesWithAccentsAreRead_InEitherEncoding)
{
    Lee("-Consola ma\xF1"
        "ana\r\n");
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-Consola mañana");
    Lee("-Consola ma\xC3\xB1"
        "ana\r\n");
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-Consola mañana");
}

TEST_F(LeeCatalogo, OnlyThePrefixCounts)
{
    Lee("-One\r\n+Emulator\r\nEXEC=a\r\nROMS\r\nXDIx\r\nIMGE\r\nPAR10\r\nPAR2b\r\nWEB1b\r\nWEB2b\r\n");
    EXPECT_EQ(M.Cat_EXE(0, 1), u"EXEC=a");
    EXPECT_EQ(M.Cat_ROM(0, 1), u"ROMS");
    EXPECT_EQ(M.Cat_XDI(0, 1), u"XDIx");
    EXPECT_EQ(M.Cat_IMG(0, 1), u"IMGE");
    EXPECT_EQ(M.Cat_PAR1(0, 1), u"PAR10");
    EXPECT_EQ(M.Cat_PAR2(0, 1), u"PAR2b");
    EXPECT_EQ(M.Cat_WEB1(0), u"WEB1b");
    EXPECT_EQ(M.Cat_WEB2(0, 1), u"WEB2b");
}

TEST_F(LeeCatalogo, PrefixesAreToldExactlyAndInTheFirstColumnOnly)
{
    Lee("-One\r\n+Emulator\r\nexe=a\r\n EXE=b\r\nPAR=c\r\nPAR3=d\r\nWEB=e\r\n*BIN\r\n.*\r\n "
        "-Two\r\n[EOF]\r\n\r\n");
    EXPECT_EQ(M.Indice_Sistema, 0);
    EXPECT_EQ(M.Indice_Emulador, 1);
    for (const core::Tabla2<QString> *tabla : { &M.Cat_EXE, &M.Cat_PAR1, &M.Cat_PAR2, &M.Cat_WEB2 })
        EXPECT_EQ((*tabla)(0, 1), QString());
    EXPECT_EQ(M.Cat_EXT(0, 0), QString());
    EXPECT_EQ(M.Cat_WEB1(0), QString());
}

TEST_F(LeeCatalogo, ANameThatLooksLikeAKeyIsANameAlone)
{
    Lee("-ROM=x\r\n+EXE\r\n");
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-ROM=x");
    EXPECT_EQ(M.Cat_Nombre(0, 1), u"+EXE");
    EXPECT_EQ(M.Cat_EXE(0, 1), QString());
    EXPECT_EQ(M.Cat_ROM(0, 1), QString());
}

TEST_F(LeeCatalogo, TheLastOfTwoEqualKeysStands)
{
    Lee("-One\r\n+Emulator\r\nEXE=a\r\nEXE=b\r\n");
    EXPECT_EQ(M.Cat_EXE(0, 1), u"EXE=b");
}

TEST_F(LeeCatalogo, ASystemNamedByTheSignAloneIsASystem)
{
    Lee("-\r\n-Two\r\n");
    EXPECT_EQ(M.Indice_Sistema, 1);
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-");
}

TEST_F(LeeCatalogo, LinesOfASystemWithoutEmulatorGoToItsOwnEntry)
{
    Lee("-One\r\nEXE=a\r\n+Emulator\r\nEXE=b\r\n");
    EXPECT_EQ(M.Cat_EXE(0, 0), u"EXE=a");
    EXPECT_EQ(M.Cat_EXE(0, 1), u"EXE=b");
}

TEST_F(LeeCatalogo, EntryZeroOfTheEmulatorsKeysIsEmpty_WhereTheyStandBehindAnEmulator)
{
    Lee(Catalogo);
    for (const core::Tabla2<QString> *tabla :
        { &M.Cat_EXE, &M.Cat_XDI, &M.Cat_ROM, &M.Cat_IMG, &M.Cat_PAR1, &M.Cat_PAR2, &M.Cat_WEB2 }) {
        EXPECT_EQ((*tabla)(0, 0), QString());
        EXPECT_EQ((*tabla)(1, 0), QString());
    }
}

TEST_F(LeeCatalogo, ExtensionsAreCountedOn_BehindASystemWithoutEmulators)
{
    Lee("-One\r\n*.A\r\n*.B\r\n-Two\r\n*.C\r\n+Emulator\r\n-Three\r\n*.D\r\n");
    EXPECT_EQ(M.Cat_EXT(0, 0), u"*.A");
    EXPECT_EQ(M.Cat_EXT(0, 1), u"*.B");
    EXPECT_EQ(M.Cat_EXT(1, 0), QString());
    EXPECT_EQ(M.Cat_EXT(1, 1), QString());
    EXPECT_EQ(M.Cat_EXT(1, 2), u"*.C");
    EXPECT_EQ(M.Cat_EXT(2, 0), u"*.D");
    EXPECT_EQ(core::CargaExtensiones(M, 1), 0);
}

TEST_F(LeeCatalogo, NoSystem_InAFileOfCommentsAndAMarker)
{
    Lee("' comment\r\n\r\n[EOF]\r\n");
    EXPECT_EQ(M.Indice_Sistema, -1);
    EXPECT_EQ(M.Indice_Emulador, -1);
    EXPECT_EQ(M.Cat_Nombre(0, 0), QString());
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(LeeCatalogo, FailsAsNotFoundAndLeavesTheTablesEmpty_WithoutTheFile)
{
    Lee(Catalogo);
    Borra(u"Zembro.emu"_s);
    EXPECT_EQ(NumeroDeFallo([this] { core::LeeCatalogo(M); }), host::FileNotFound);
    EXPECT_EQ(M.Cat_Nombre(0, 0), QString());
    EXPECT_EQ(M.Cat_WEB1(0), QString());
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(LeeCatalogo, FailsAtItsEnd_OnAnEmptyFile)
{
    EXPECT_EQ(FalloAlLeer(""), host::PastEndOfFile);
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(LeeCatalogo, TakesAHundredFiftyOneSystems)
{
    Lee(repetida("-System ", 151));
    EXPECT_EQ(M.Indice_Sistema, 150);
    EXPECT_EQ(M.Cat_Nombre(150, 0), u"-System 150");
}

TEST_F(LeeCatalogo, FailsAsOutOfRangeAndStaysOpen_AtTheNextSystem)
{
    EXPECT_EQ(FalloAlLeer(repetida("-System ", 152)), host::OutOfRange);
    EXPECT_EQ(M.Cat_Nombre(150, 0), u"-System 150");
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(LeeCatalogo, TakesAHundredFiftyEmulatorsOfASystem)
{
    Lee("-One\r\n" + repetida("+Emulator ", 150) + "EXE=last\r\n");
    EXPECT_EQ(M.Indice_Emulador, 150);
    EXPECT_EQ(M.Cat_EXE(0, 150), u"EXE=last");
    EXPECT_EQ(core::TotalEmuladores(M, 0), 150);
}

TEST_F(LeeCatalogo, FailsAsOutOfRangeAndStaysOpen_AtTheNextEmulator)
{
    EXPECT_EQ(FalloAlLeer("-One\r\n" + repetida("+Emulator ", 151)), host::OutOfRange);
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(LeeCatalogo, TakesAHundredFiftyOneExtensionsOfASystem)
{
    Lee("-One\r\n" + repetida("*.", 151));
    EXPECT_EQ(M.Cat_EXT(0, 150), u"*.150");
    EXPECT_EQ(core::CargaExtensiones(M, 0), 151);
}

TEST_F(LeeCatalogo, FailsAsOutOfRangeAndStaysOpen_AtTheNextExtension)
{
    EXPECT_EQ(FalloAlLeer("-One\r\n" + repetida("*.", 152)), host::OutOfRange);
    EXPECT_TRUE(M.Ficheros.isOpen(1));
}

TEST_F(LeeCatalogo, FailsAsOutOfRange_WhenSystemsWithoutEmulatorsHaveTooManyExtensionsTogether)
{
    EXPECT_EQ(
        FalloAlLeer("-One\r\n" + repetida("*.", 100) + "-Two\r\n" + repetida("*.", 52)), host::OutOfRange);
}

TEST_F(LeeCatalogo, FailsAsOutOfRangeAndStaysOpen_WhenALineOfASystemStandsAheadOfTheFirst)
{
    for (const QByteArray linea :
        { "+Emulator", "EXE=a", "XDI=0", "ROM=a", "IMG=a", "PAR1=", "PAR2=", "*.ZIP", "WEB1=", "WEB2=" }) {
        EXPECT_EQ(FalloAlLeer("' comment\r\n" + linea + "\r\n-One\r\n"), host::OutOfRange)
            << linea.constData();
        EXPECT_EQ(M.Cat_Nombre(0, 0), QString()) << linea.constData();
        EXPECT_TRUE(M.Ficheros.isOpen(1)) << linea.constData();
        M.Ficheros.closeAll();
    }
}

TEST_F(LeeCatalogo, NextReadingFails_AfterOneThatStoppedHalfWay)
{
    EXPECT_EQ(FalloAlLeer("EXE=a\r\n"), host::OutOfRange);
    EXPECT_EQ(FalloAlLeer(Catalogo), host::FileAlreadyOpen);
    EXPECT_EQ(M.Cat_Nombre(0, 0), QString());
    M.Ficheros.closeAll();
    EXPECT_EQ(FalloAlLeer(Catalogo), 0);
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-Console One");
}

TEST_F(LeeCatalogo, EmulatorsOfASystemEndAtTheFirstEmptyName)
{
    Lee(Catalogo);
    EXPECT_EQ(core::TotalEmuladores(M, 0), 2);
    EXPECT_EQ(core::TotalEmuladores(M, 1), 1);
    EXPECT_EQ(core::TotalEmuladores(M, 2), 0);
}
