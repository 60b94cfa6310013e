// Additions to the two catalogue files, and an emulator configured anew.
#include "catalogosdeprueba.h"

#include "core/altas.h"

using namespace Qt::StringLiterals;

namespace {

core::EmuladorNuevo nuevo(const QString &nombre)
{
    return { nombre, u"WEB2=http://w"_s, u"/usr/bin/emu"_s, u"3"_s, u"/roms"_s, u"/captures/"_s, u"-a b"_s,
        u" -c"_s };
}

const QByteArray BloqueNuevo = "+New\r\nWEB2=http://w\r\nEXE=/usr/bin/emu\r\nXDI=3\r\nROM=/roms/\r\n"
                               "IMG=/captures/\r\nPAR1=-a b\r\nPAR2= -c\r\n";

class Altas : public CatalogosDePrueba {
protected:
    QByteArray ConSistemaEnBase(const QByteArray &bytes, const QString &sistema)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::ConSistemaEnBase(t, sistema); });
    }

    QByteArray ConEmuladorEnBase(const QByteArray &bytes, const QString &linea, const QString &emulador)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::ConEmuladorEnBase(t, linea, emulador); });
    }

    QByteArray ConSistema(const QByteArray &bytes, const core::SistemaNuevo &sistema)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::ConSistemaConfigurado(t, sistema); });
    }

    QByteArray ConEmulador(const QByteArray &bytes, const QString &linea, const core::EmuladorNuevo &emulador)
    {
        return Cambiado(
            bytes, [&](const QString &t) { return core::ConEmuladorConfigurado(t, linea, emulador); });
    }

    QByteArray ConCambiado(const QByteArray &bytes, const core::EmuladorNuevo &emulador)
    {
        return Cambiado(bytes, [&](const QString &t) { return core::ConEmuladorCambiado(t, emulador); });
    }
};

} // namespace

TEST_F(Altas, TheClosingLineIsAnApostropheAndSeventyHyphens)
{
    EXPECT_EQ(
        core::LineaDeCierre(), u"'----------------------------------------------------------------------"_s);
    EXPECT_EQ(core::LineaDeCierre().size(), 71);
}

TEST_F(Altas, ANewSystemOfTheDatabaseStandsAheadOfTheBracket_WithZipAloneAndNoEmulators)
{
    EXPECT_EQ(ConSistemaEnBase(Cabecera + Alfa + Fin, u"Nuevo Ñ"_s),
        Cabecera + Alfa + "-Nuevo \xD1\r\nWEB1=\r\n*.ZIP\r\n'\r\n" + Cierre + Fin);
}

TEST_F(Altas, ANewSystemKeepsItsNameAsTyped)
{
    EXPECT_EQ(ConSistemaEnBase("[", u" two  Words, \"q\" "_s),
        "- two  Words, \"q\" \r\nWEB1=\r\n*.ZIP\r\n'\r\n" + Cierre + "[");
}

TEST_F(Altas, ANewSystemStandsAheadOfEachBracket_AndNowhereWithoutOne)
{
    const QByteArray bloque = "-N\r\nWEB1=\r\n*.ZIP\r\n'\r\n" + Cierre;
    EXPECT_EQ(ConSistemaEnBase("[one]\nx\n[two]\n", u"N"_s), bloque + "[one]\nx\n" + bloque + "[two]\n");
    EXPECT_EQ(ConSistemaEnBase(" [one]\nx[", u"N"_s), " [one]\nx[");
}

TEST_F(Altas, ANewEmulatorOfTheDatabaseIsTheLastOfItsSystem)
{
    QByteArray esperado = Cabecera + Alfa + Beta + Gamma + Fin;
    esperado.replace("WEB2=http://b1\r\n", "WEB2=http://b1\r\n+New\r\nWEB2=\r\n");
    EXPECT_EQ(ConEmuladorEnBase(Cabecera + Alfa + Beta + Gamma + Fin, u"-Beta"_s, u"New"_s), esperado);
}

TEST_F(Altas, TheFirstEmulatorStandsBehindTheExtensions)
{
    const QByteArray vacio = ConSistemaEnBase("[\r\n", u"N"_s);
    EXPECT_EQ(ConEmuladorEnBase(vacio, u"-N"_s, u"E"_s),
        "-N\r\nWEB1=\r\n*.ZIP\r\n'\r\n+E\r\nWEB2=\r\n" + Cierre + "[\r\n");
}

TEST_F(Altas, ALoneApostropheClosesNoSystem)
{
    EXPECT_EQ(
        ConEmuladorEnBase("-S\n'\n' -\n'-short\n", u"-S"_s, u"E"_s), "-S\n'\n' -\n+E\r\nWEB2=\r\n'-short\n");
}

TEST_F(Altas, AnEmulatorIsAddedNowhere_WithoutThatVeryLine)
{
    const QByteArray bytes = Cabecera + Alfa + Fin;
    for (const QString &linea : { u"-alfa"_s, u"-Alfa "_s, u"-Alf"_s, u"Alfa"_s, u"-Delta"_s })
        EXPECT_EQ(ConEmuladorEnBase(bytes, linea, u"New"_s), bytes) << linea.toStdString();
}

TEST_F(Altas, AConfiguredSystemIsWrittenWhole)
{
    const core::SistemaNuevo sistema { u"Nova"_s, u"WEB1=http://nova"_s, { u"*.ZIP"_s, u"*.n1"_s },
        nuevo(u"New"_s) };
    const QByteArray antes = Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2" });
    EXPECT_EQ(ConSistema(antes + Fin, sistema),
        antes + "-Nova\r\nWEB1=http://nova\r\n*.ZIP\r\n*.n1\r\n'\r\n" + BloqueNuevo + Cierre + Fin);
}

TEST_F(Altas, ASystemThatTheDatabaseLacksGetsEmptyLinesForItsPagesAndNoExtensions)
{
    core::EmuladorNuevo emulador = nuevo(u"E"_s);
    emulador.web2.clear();
    EXPECT_EQ(ConSistema("[", { u"S"_s, {}, {}, emulador }),
        "-S\r\n\r\n'\r\n+E\r\n\r\nEXE=/usr/bin/emu\r\nXDI=3\r\nROM=/roms/\r\nIMG=/captures/\r\nPAR1=-a b\r\n"
        "PAR2= -c\r\n"
            + Cierre + "[");
}

TEST_F(Altas, TwoBracketsTakeTheConfiguredSystemTwice)
{
    const core::SistemaNuevo sistema { u"S"_s, u"WEB1="_s, {}, nuevo(u"New"_s) };
    const QByteArray bloque = "-S\r\nWEB1=\r\n'\r\n" + BloqueNuevo + Cierre;
    EXPECT_EQ(ConSistema("[a\n[b\n", sistema), bloque + "[a\n" + bloque + "[b\n");
}

TEST_F(Altas, AConfiguredEmulatorIsTheLastOfItsSystem_BehindALoneApostrophe)
{
    const QByteArray bytes =
        Cabecera + SistemaDe(CabezaAlfa, { "A1", "A2" }) + SistemaDe(CabezaBeta, { "B1" }) + Fin;
    QByteArray esperado = bytes;
    esperado.replace(BloqueDe("A2") + Cierre, BloqueDe("A2") + "'\r\n" + BloqueNuevo + Cierre);
    EXPECT_EQ(ConEmulador(bytes, u"-Alfa"_s, nuevo(u"New"_s)), esperado);
    esperado = bytes;
    esperado.replace(BloqueDe("B1") + Cierre, BloqueDe("B1") + "'\r\n" + BloqueNuevo + Cierre);
    EXPECT_EQ(ConEmulador(bytes, u"-Beta"_s, nuevo(u"New"_s)), esperado);
}

TEST_F(Altas, AConfiguredEmulatorOfAnUnknownSystemIsWrittenNowhere)
{
    const QByteArray bytes = SistemaDe(CabezaAlfa, { "A1" }) + Fin;
    EXPECT_EQ(ConEmulador(bytes, u"-ALFA"_s, nuevo(u"New"_s)), bytes);
    EXPECT_EQ(ConEmulador(bytes, QString(), nuevo(u"New"_s)), bytes);
}

TEST_F(Altas, AChangedEmulatorTakesThePlaceOfItsOldBlock)
{
    const QByteArray antes = Cabecera + CabezaAlfa + "'\r\n" + BloqueDe("A1") + "'\n";
    const QByteArray detras = "'\r\n" + BloqueDe("A3") + Cierre + Fin;
    EXPECT_EQ(ConCambiado(antes + BloqueDe("New") + detras, nuevo(u"New"_s)), antes + BloqueNuevo + detras);
}

TEST_F(Altas, TheLastEmulatorOfASystemKeepsTheClosingLineBehindIt)
{
    const QByteArray bytes = SistemaDe(CabezaAlfa, { "A1", "New" }) + SistemaDe(CabezaBeta, { "B1" }) + Fin;
    QByteArray esperado = bytes;
    esperado.replace(BloqueDe("New"), BloqueNuevo);
    EXPECT_EQ(ConCambiado(bytes, nuevo(u"New"_s)), esperado);
}

TEST_F(Altas, UnknownLinesOfAChangedBlockAreLost_AndThoseOfOthersStay)
{
    EXPECT_EQ(ConCambiado("x\n+Other\nmine\n'\n+New\nWEB2=\nmine\n\nEXE=old\n'-\nmine\n", nuevo(u"New"_s)),
        "x\n+Other\nmine\n'\n" + BloqueNuevo + "'-\nmine\n");
}

TEST_F(Altas, TheFirstBlockOfANameIsChanged_WhicheverSystemItBelongsTo)
{
    const QByteArray bytes = SistemaDe(CabezaAlfa, { "New" }) + SistemaDe(CabezaBeta, { "New" }) + Fin;
    EXPECT_EQ(ConCambiado(bytes, nuevo(u"New"_s)),
        CabezaAlfa + "'\r\n" + BloqueNuevo + Cierre + SistemaDe(CabezaBeta, { "New" }) + Fin);
}

TEST_F(Altas, AChangeNeedsTheNameAsItIsSpelled)
{
    const QByteArray bytes = SistemaDe(CabezaAlfa, { "NEW", "New ", "Ne" }) + Fin;
    EXPECT_EQ(ConCambiado(bytes, nuevo(u"New"_s)), bytes);
}

struct Directorio {
    QString texto;
    QByteArray escrito;
};

TEST_F(Altas, DirectoriesGetOneClosingSeparatorOfTheirOwnKind)
{
    const Directorio casos[] = { { u""_s, "" }, { u"/roms"_s, "/roms/" }, { u"/roms/"_s, "/roms/" },
        { u"/"_s, "/" }, { u"C:\\roms"_s, "C:\\roms\\" }, { u"C:\\roms\\"_s, "C:\\roms\\" },
        { u"C:\\"_s, "C:\\" }, { u"C:\\NoDir"_s, "C:\\NoDir\\" }, { u"roms"_s, "roms/" },
        { u"a\\b/c"_s, "a\\b/c/" }, { u"/a b "_s, "/a b /" } };
    for (const Directorio &caso : casos) {
        core::EmuladorNuevo emulador = nuevo(u"E"_s);
        emulador.rom = emulador.img = caso.texto;
        const QByteArray lineas = "+E\r\nWEB2=http://w\r\nEXE=/usr/bin/emu\r\nXDI=3\r\nROM=" + caso.escrito
            + "\r\nIMG=" + caso.escrito + "\r\nPAR1=-a b\r\nPAR2= -c\r\n";
        EXPECT_EQ(ConCambiado("+E\r\n'\r\n", emulador), lineas + "'\r\n") << caso.texto.toStdString();
    }
}

TEST_F(Altas, ATypeOfNoDigitIsWrittenEmpty)
{
    core::EmuladorNuevo emulador = nuevo(u"E"_s);
    emulador.tipo.clear();
    EXPECT_EQ(core::LineasDeEmulador(emulador).at(3), u"XDI="_s);
}

TEST_F(Altas, OtherLinesKeepTheirEndsAndBytes_InAFileOfLineFeedsWithoutALastEnd)
{
    EXPECT_EQ(ConEmulador("' \xF1\n-S\n+E\n'-\n[", u"-S"_s, nuevo(u"New"_s)),
        "' \xF1\n-S\n+E\n'\r\n" + BloqueNuevo + "'-\n[");
    EXPECT_EQ(ConCambiado("-S\n+New\nEXE=\xF1\n'", nuevo(u"New"_s)), "-S\n" + BloqueNuevo + "'");
}

TEST_F(Altas, ASystemWithoutAClosingLineGetsOne_AndTheNextOneNoEmulator)
{
    for (const QByteArray resto : { "-T\n+F\n'-\n[EOF]\n", "[EOF]\n'-\n", "" }) {
        EXPECT_EQ(
            ConEmuladorEnBase("-S\n'\n" + resto, u"-S"_s, u"E"_s), "-S\n'\n+E\r\nWEB2=\r\n" + Cierre + resto);
        EXPECT_EQ(ConEmulador("-S\n'\n+E\n" + resto, u"-S"_s, nuevo(u"New"_s)),
            "-S\n'\n+E\n'\r\n" + BloqueNuevo + Cierre + resto);
    }
}

TEST_F(Altas, AChangedEmulatorTakesNoOtherAlong_WhereNoApostropheEndsIt)
{
    for (const QByteArray resto : { "+F\nEXE=f\n'-\n", "-T\n'\n+F\n'-\n", "[EOF]\n'\n", "" })
        EXPECT_EQ(
            ConCambiado("-S\n'\n+New\nEXE=old\n" + resto, nuevo(u"New"_s)), "-S\n'\n" + BloqueNuevo + resto);
}

TEST_F(Altas, AChangedEmulatorHasNoOldValuesBehindAnApostropheOfTheUsersOwn)
{
    EXPECT_EQ(ConCambiado("+New\nEXE=old\n' mine\nROM=old\nmine\n'\n+F\nROM=f\n'-\n", nuevo(u"New"_s)),
        BloqueNuevo + "' mine\nmine\n'\n+F\nROM=f\n'-\n");
}
