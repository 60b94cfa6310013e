// What the form of an emulator means: marks and type, refusals, fields as saved, what the catalogue held.
#include "catalogosdeprueba.h"

#include "core/catalogo.h"
#include "core/configuracion.h"

#include "host/paths.h"

#include <QFile>

#include <cstring>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

core::Marcas marcas(const char *puestas)
{
    return { bool(std::strchr(puestas, '1')), bool(std::strchr(puestas, '2')),
        bool(std::strchr(puestas, '3')), bool(std::strchr(puestas, '4')) };
}

class Configuracion : public CatalogosDePrueba {
protected:
    void PonCatalogo(const QStringList &lineas)
    {
        core::LectorDeCatalogo lector(M);
        for (const QString &linea : lineas)
            lector.Linea(linea);
    }

    core::Webs Webs(const QByteArray &bytes, const QString &sistema, const QString &emulador)
    {
        Pon(u"Zembro.sye"_s, bytes);
        return core::LeeWebs(M, sistema, emulador);
    }

    QStringList Previos(const QByteArray &bytes, const QString &emulador)
    {
        Pon(u"Zembro.emu"_s, bytes);
        core::LeePrevios(M, emulador);
        return { M.EXE_Previo, M.XDI_Previo, M.ROM_Previo, M.IMG_Previo, M.PAR1_Previo, M.PAR2_Previo };
    }

    const core::Casillas Casillas { u"/bin/e"_s, u"/roms/"_s, u"/img/"_s, u"-1"_s, u"-2"_s };
};

} // namespace

TEST_F(Configuracion, EveryCombinationOfMarksHasItsDigit_OrNone)
{
    const struct {
        const char *puestas;
        QString tipo;
    } casos[] = { { "", u"0"_s }, { "1", u"1"_s }, { "2", u"2"_s }, { "23", u"3"_s }, { "4", u"5"_s },
        { "14", u"6"_s }, { "24", u"7"_s }, { "234", u"8"_s }, { "3", QString() }, { "12", QString() },
        { "13", QString() }, { "123", QString() }, { "34", QString() }, { "124", QString() },
        { "134", QString() }, { "1234", QString() } };
    for (const auto &caso : casos)
        EXPECT_EQ(core::MarcasATipo(marcas(caso.puestas)), caso.tipo) << caso.puestas;
}

TEST_F(Configuracion, AStoredDigitComesBackAsMarks_OneStepOnFrom5)
{
    const struct {
        QString tipo;
        const char *puestas;
    } casos[] = { { u"0"_s, "" }, { u"1"_s, "1" }, { u"2"_s, "2" }, { u"3"_s, "23" }, { u"4"_s, "" },
        { u"5"_s, "14" }, { u"6"_s, "24" }, { u"7"_s, "234" }, { u"8"_s, "" }, { u"9"_s, "" },
        { QString(), "" }, { u"x"_s, "" }, { u" 2 "_s, "2" }, { u"23"_s, "" }, { u"-1"_s, "" } };
    for (const auto &caso : casos)
        EXPECT_EQ(core::TipoAMarcas(caso.tipo), marcas(caso.puestas)) << caso.tipo.toStdString();
}

TEST_F(Configuracion, SavedAtOnceADigitFrom5OnIsAnotherOne)
{
    const std::pair<QString, QString> casos[] = { { u"0"_s, u"0"_s }, { u"1"_s, u"1"_s }, { u"2"_s, u"2"_s },
        { u"3"_s, u"3"_s }, { u"5"_s, u"6"_s }, { u"6"_s, u"7"_s }, { u"7"_s, u"8"_s }, { u"8"_s, u"0"_s } };
    for (const auto &[antes, despues] : casos)
        EXPECT_EQ(core::MarcasATipo(core::TipoAMarcas(antes)), despues) << antes.toStdString();
}

TEST_F(Configuracion, MarksLockOneAnother)
{
    const struct {
        const char *puestas;
        core::Cerrojos cerrojos;
    } casos[] = { { "", { true, true, false, true } }, { "1", { true, false, false, true } },
        { "2", { false, true, true, true } }, { "23", { false, true, true, true } },
        { "4", { true, true, false, false } }, { "14", { true, false, false, false } },
        { "24", { false, true, true, false } } };
    for (const auto &caso : casos)
        EXPECT_EQ(core::CerrojosDe(marcas(caso.puestas)), caso.cerrojos) << caso.puestas;
}

TEST_F(Configuracion, MarksThatNoLockForbidsHaveADigit)
{
    for (int i = 0; i < 16; ++i) {
        const core::Marcas m { bool(i & 1), bool(i & 2), bool(i & 4), bool(i & 8) };
        const core::Cerrojos c = core::CerrojosDe(m);
        if ((c.check1 || !m.check1) && (c.check2 || !m.check2) && (c.check3 || !m.check3)) {
            EXPECT_FALSE(core::MarcasATipo(m).isEmpty()) << i;
        }
    }
}

TEST_F(Configuracion, AFormIsRefusedWithoutAnExecutable)
{
    core::Casillas casillas = Casillas;
    casillas.exe.clear();
    EXPECT_EQ(core::RechazoDe(u"NES"_s, 0, casillas, {}), core::Rechazo::SinEXE);
    casillas.rom.clear();
    EXPECT_EQ(core::RechazoDe(u"Play Station"_s, 1, casillas, {}), core::Rechazo::SinEXE);
}

TEST_F(Configuracion, AFormIsRefusedWithoutARomDirectory_ButForOneSystem)
{
    core::Casillas casillas = Casillas;
    casillas.rom.clear();
    EXPECT_EQ(core::RechazoDe(u"Play Station"_s, 0, casillas, {}), core::Rechazo::Ninguno);
    for (const QString &sistema : { u"PSX"_s, u"play station"_s, u"NES"_s, QString() })
        EXPECT_EQ(core::RechazoDe(sistema, 1, casillas, {}), core::Rechazo::SinDirectorio)
            << sistema.toStdString();
}

TEST_F(Configuracion, AnArcadeNeedsAMarkOtherThanTheFourth)
{
    for (const char *puestas : { "", "4" }) {
        EXPECT_EQ(core::RechazoDe(u"Arcade"_s, 1, Casillas, marcas(puestas)), core::Rechazo::SinMarcas);
        EXPECT_EQ(core::RechazoDe(u"Arcade"_s, 0, Casillas, marcas(puestas)), core::Rechazo::Ninguno);
        EXPECT_EQ(core::RechazoDe(u"Arcade"_s, 2, Casillas, marcas(puestas)), core::Rechazo::Ninguno);
    }
    for (const char *puestas : { "1", "2", "3", "14" })
        EXPECT_EQ(core::RechazoDe(u"Arcade"_s, 1, Casillas, marcas(puestas)), core::Rechazo::Ninguno);
}

TEST_F(Configuracion, AnEmptyCaptureDirectoryIsNoReasonToRefuse)
{
    EXPECT_EQ(core::RechazoDe(u"NES"_s, 0, { u"e"_s, u"r"_s, {}, {}, {} }, {}), core::Rechazo::Ninguno);
}

TEST_F(Configuracion, AnEmptyRomDirectoryOfASystemOfDiscsBecomesOneThatIsntThere)
{
    EXPECT_EQ(core::DirectorioDeROMs(u"Play Station"_s, QString()), u"C:\\NoDir");
    EXPECT_EQ(core::DirectorioDeROMs(u"PSX"_s, QString()), u"C:\\NoDir");
    EXPECT_EQ(core::DirectorioDeROMs(u"NES"_s, QString()), QString());
    EXPECT_EQ(core::DirectorioDeROMs(u"Play Station"_s, u"/roms"_s), u"/roms");
}

TEST_F(Configuracion, AFormIsUnchangedWhereAllSixValuesAreTheSame)
{
    M.EXE_Previo = Casillas.exe;
    M.XDI_Previo = u"3"_s;
    M.ROM_Previo = Casillas.rom;
    M.IMG_Previo = Casillas.img;
    M.PAR1_Previo = Casillas.par1;
    M.PAR2_Previo = Casillas.par2;
    EXPECT_TRUE(core::SinCambios(M, Casillas, u"3"_s));
    EXPECT_FALSE(core::SinCambios(M, Casillas, u"2"_s));
    for (QString core::Casillas::*casilla : { &core::Casillas::exe, &core::Casillas::rom,
             &core::Casillas::img, &core::Casillas::par1, &core::Casillas::par2 }) {
        core::Casillas otras = Casillas;
        otras.*casilla += u' ';
        EXPECT_FALSE(core::SinCambios(M, otras, u"3"_s));
    }
}

TEST_F(Configuracion, ADirectoryWithoutItsClosingSeparatorIsAChange)
{
    M.ROM_Previo = u"/roms/"_s;
    EXPECT_TRUE(core::SinCambios(M, { {}, u"/roms/"_s, {}, {}, {} }, u"0"_s));
    EXPECT_FALSE(core::SinCambios(M, { {}, u"/roms"_s, {}, {}, {} }, u"0"_s));
}

TEST_F(Configuracion, TypesAreComparedAsNumbers)
{
    for (const auto &[previo, nuevo, igual] :
        { std::tuple { u""_s, u"0"_s, true }, { u"0"_s, u""_s, true }, { u" 3"_s, u"3"_s, true },
            { u"03"_s, u"3"_s, true }, { u"x"_s, u"0"_s, true }, { u"33"_s, u"3"_s, false } }) {
        M.XDI_Previo = previo;
        EXPECT_EQ(core::SinCambios(M, {}, nuevo), igual) << previo.toStdString();
    }
}

TEST_F(Configuracion, WhatIsShownAnewIsTheFirstThatApplies)
{
    using core::Renovacion;
    const auto tras = [this](
                          const QString &previo, const QString &nuevo, const char *cambios, bool otraRuta) {
        M.EXE_Previo = Casillas.exe;
        M.XDI_Previo = previo;
        M.ROM_Previo = Casillas.rom;
        M.IMG_Previo = Casillas.img;
        M.PAR1_Previo = Casillas.par1;
        M.PAR2_Previo = Casillas.par2;
        M.RutasROM(1) = u"ROM=/A/"_s;
        M.RutasROM(2) = otraRuta ? u"ROM=/B/"_s : u"ROM=/A/"_s;
        core::Casillas nuevas = Casillas;
        const std::pair<char, QString &> claves[] = { { 'e', nuevas.exe }, { 'r', nuevas.rom },
            { 'i', nuevas.img }, { '1', nuevas.par1 }, { '2', nuevas.par2 } };
        for (const auto &[clave, casilla] : claves)
            casilla += std::strchr(cambios, clave) ? u"x"_s : QString();
        return core::RenovacionTras(M, nuevas, nuevo);
    };
    for (const bool otraRuta : { false, true }) {
        EXPECT_EQ(tras(u"0"_s, u"0"_s, "r", otraRuta), Renovacion::Lista);
        EXPECT_EQ(tras(u"0"_s, u"0"_s, "ri12", otraRuta), Renovacion::Lista);
        EXPECT_EQ(tras(u"0"_s, u"0"_s, "e", otraRuta), Renovacion::Nada);
        for (const auto &[previo, nuevo] : { std::pair(u"1"_s, u"2"_s), std::pair(u"1"_s, u"3"_s),
                 std::pair(u"2"_s, u"1"_s), std::pair(u"3"_s, u"1"_s) })
            EXPECT_EQ(tras(previo, nuevo, "i", otraRuta), Renovacion::Lista);
        for (const auto &[previo, nuevo] : { std::pair(u"0"_s, u"1"_s), std::pair(u"1"_s, u"0"_s),
                 std::pair(u"2"_s, u"3"_s), std::pair(u"1"_s, u"7"_s), std::pair(u"6"_s, u"2"_s) })
            EXPECT_EQ(tras(previo, nuevo, "", otraRuta), Renovacion::Nada);
    }
    EXPECT_EQ(tras(u"0"_s, u"0"_s, "i", false), Renovacion::Captura);
    EXPECT_EQ(tras(u"0"_s, u"0"_s, "i12", true), Renovacion::CapturaYLista);
    for (const char *parametros : { "1", "2", "12" }) {
        EXPECT_EQ(tras(u"0"_s, u"0"_s, parametros, false), Renovacion::Nada);
        EXPECT_EQ(tras(u"0"_s, u"0"_s, parametros, true), Renovacion::Lista);
    }
}

TEST_F(Configuracion, TheAddressesAreTheWholeLinesOfThePair)
{
    const core::Webs webs = Webs(Cabecera + Alfa + Beta + Gamma + Fin, u"Gamma"_s, u"G2"_s);
    EXPECT_EQ(webs.sistema, u"WEB1=http://gamma");
    EXPECT_EQ(webs.emulador, u"WEB2=2");
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Configuracion, TheAddressComesFromTheRightSystem_WhereTwoHaveAnEmulatorOfTheName)
{
    EXPECT_EQ(Webs("-R\n+E\nWEB2=1\n-S\n+E\nWEB2=2\n-T\n+E\nWEB2=3\n", u"S"_s, u"E"_s).emulador, u"WEB2=2");
}

TEST_F(Configuracion, WithoutTheEmulatorTheLastSystemsAddressCounts_AndTheEmulatorHasNone)
{
    const core::Webs webs = Webs(Cabecera + Alfa + Beta + Gamma + Fin, u"Alfa"_s, u"None"_s);
    EXPECT_EQ(webs.sistema, u"WEB1=http://gamma");
    EXPECT_EQ(webs.emulador, QString());
}

TEST_F(Configuracion, WithoutTheSystemThereAreNoAddresses)
{
    const core::Webs webs = Webs(Alfa, u"alfa"_s, u"A1"_s);
    EXPECT_EQ(webs.sistema, QString());
    EXPECT_EQ(webs.emulador, QString());
}

TEST_F(Configuracion, AnEmptyDatabaseFails)
{
    EXPECT_EQ(NumeroDeFallo([this] { Webs("", u"S"_s, u"E"_s); }), host::PastEndOfFile);
}

TEST_F(Configuracion, ThePairIsLookedUpInTheCatalogue)
{
    EXPECT_EQ(core::SituacionDe(M, u"One"_s, u"E"_s), core::SinSistemaConfigurado);
    PonCatalogo({ u"-One"_s, u"+E1"_s, u"-Two"_s, u"+F1"_s, u"+F2"_s, u"-Empty"_s });
    EXPECT_EQ(core::SituacionDe(M, u"Two"_s, u"F2"_s), core::EmuladorYaConfigurado);
    EXPECT_EQ(M.Indice_Sistema, 1);
    EXPECT_EQ(M.Indice_Emulador, 2);
    EXPECT_EQ(core::SituacionDe(M, u"Two"_s, u"E1"_s), core::SinEmuladorConfigurado);
    EXPECT_EQ(M.Indice_Emulador, 3);
    EXPECT_EQ(core::SituacionDe(M, u"Two"_s, u"f1"_s), core::SinEmuladorConfigurado);
    EXPECT_EQ(core::SituacionDe(M, u"Empty"_s, u"E1"_s), core::SinEmuladorConfigurado);
    EXPECT_EQ(core::SituacionDe(M, u"two"_s, u"F1"_s), core::SinSistemaConfigurado);
    EXPECT_EQ(M.Indice_Sistema, 3);
}

TEST_F(Configuracion, TheLookUpSees150SystemsAnd150Emulators)
{
    QStringList lineas { u"-S0"_s };
    for (int i = 1; i <= 150; ++i)
        lineas += u"+E%1"_s.arg(i);
    for (int i = 1; i <= 150; ++i)
        lineas += u"-S%1"_s.arg(i);
    PonCatalogo(lineas);
    EXPECT_EQ(core::SituacionDe(M, u"S0"_s, u"E150"_s), core::EmuladorYaConfigurado);
    EXPECT_EQ(core::SituacionDe(M, u"S0"_s, u"E151"_s), core::SinEmuladorConfigurado);
    EXPECT_EQ(core::SituacionDe(M, u"S149"_s, u"E"_s), core::SinEmuladorConfigurado);
    EXPECT_EQ(core::SituacionDe(M, u"S150"_s, u"E"_s), core::SinSistemaConfigurado);
}

TEST_F(Configuracion, TheOldValuesAreThoseOfTheBlockBehindItsPrefixes)
{
    EXPECT_EQ(Previos(Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2" }) + Fin, u"A2"_s),
        (QStringList { u"/bin/A2"_s, u"0"_s, u"/roms/A2/"_s, QString(), u"-f A2"_s, QString() }));
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(Configuracion, OfTwoBlocksOfANameTheFirstInTheFileIsRead)
{
    EXPECT_EQ(Previos("+E\nEXE=1\nPAR2=1\n'\n+E\nEXE=2\nPAR2=2\n", u"E"_s)[0], u"1");
}

TEST_F(Configuracion, ReadingEndsAtTheLineOfTheSecondParameters)
{
    EXPECT_EQ(Previos("+E\nPAR2=a=b\nEXE=late\n", u"E"_s),
        (QStringList { QString(), QString(), QString(), QString(), QString(), u"a=b"_s }));
    // Without that line it reads on into the next block.
    EXPECT_EQ(Previos("+E\nEXE=1\n'\n+F\nEXE=2\nPAR2=2\n'\n+G\nEXE=3\n", u"E"_s)[0], u"2");
}

TEST_F(Configuracion, AValueThatTheBlockLacksStaysAsItWas)
{
    M.IMG_Previo = u"old"_s;
    EXPECT_EQ(Previos("EXE=0\n+E\nXDI=3 \nPAR2=\n", u"E"_s),
        (QStringList { QString(), u"3 "_s, QString(), u"old"_s, QString(), QString() }));
    EXPECT_EQ(Previos("+F\nEXE=0\nPAR2=0\n", u"E"_s)[0], QString());
}

TEST_F(Configuracion, AnEmptyCatalogueFails)
{
    EXPECT_EQ(NumeroDeFallo([this] { Previos("", u"E"_s); }), host::PastEndOfFile);
}

// By the rules of the host: both separators, any case, links followed.
TEST_F(Configuracion, APathIsMissedWhereNothingOfItsKindIs)
{
    Pon(u"Bin/Mame"_s, "x");
    PonDirectorio(u"ROMs"_s);
    ASSERT_TRUE(QFile::link(Ruta(u"ROMs"_s), Ruta(u"link"_s)));
    ASSERT_TRUE(QFile::link(Ruta(u"gone"_s), Ruta(u"broken"_s)));
    const QString aqui = Ruta({}) + u'/';
    const struct {
        QString ruta;
        bool ejecutable; // whether it is missed as one
        bool directorio;
    } casos[] = {
        { QString(), false, false },
        { aqui + u"Bin/Mame"_s, false, true },
        { aqui + u"bin/mame"_s, false, true },
        { aqui + u"BIN\\MAME"_s, false, true },
        { aqui + u"Bin/Mame/"_s, true, true },
        { aqui + u"Bin/Mam"_s, true, true },
        { aqui + u"ROMs"_s, true, false },
        { aqui + u"roms/"_s, true, false },
        { aqui + u"ROMS\\"_s, true, false },
        { aqui + u"link"_s, true, false },
        { aqui + u"broken"_s, true, true },
        { aqui + u"gone/"_s, true, true },
        { u"C:\\NoDir\\"_s, true, true },
        { u" "_s, true, true },
    };
    for (const auto &caso : casos) {
        EXPECT_EQ(core::FaltaEjecutable(caso.ruta), caso.ejecutable) << caso.ruta.toStdString();
        EXPECT_EQ(core::FaltaDirectorio(caso.ruta), caso.directorio) << caso.ruta.toStdString();
    }
}

// Where a launch would look: from the program's directory, never in the working directory or in PATH.
TEST_F(Configuracion, ABareNameIsOneOfTheProgramsDirectory)
{
    const QString antes = host::currentDirectory();
    Pon(u"Bin/Mame"_s, "x");
    PonDirectorio(u"ROMs"_s);
    EXPECT_FALSE(core::FaltaEjecutable(u"bin/mame"_s));
    EXPECT_FALSE(core::FaltaDirectorio(u"roms\\"_s));
    EXPECT_FALSE(core::FaltaDirectorio(u"ROMs"_s));
    host::changeDirectory(Ruta(u"Bin"_s));
    EXPECT_TRUE(core::FaltaEjecutable(u"mame"_s));
    EXPECT_TRUE(core::FaltaEjecutable(u"sh"_s));
    EXPECT_FALSE(core::FaltaDirectorio(u"roms/"_s));
    host::changeDirectory(antes);
}
