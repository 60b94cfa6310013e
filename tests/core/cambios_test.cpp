// Extensions and web addresses, changed in both catalogue files by one and the same function.
#include "catalogosdeprueba.h"

#include "core/altas.h"
#include "core/bajas.h"
#include "core/basededatos.h"

using namespace Qt::StringLiterals;

namespace {

class Cambios : public CatalogosDePrueba {
protected:
    QByteArray ConExtensiones(const QByteArray &bytes, const QString &sistema, const QString &respuesta)
    {
        return Cambiado(bytes, [&](const QString &t) {
            return core::ConExtensiones(t, sistema, core::PartirExtensiones(respuesta));
        });
    }

    QByteArray ConWeb1(const QByteArray &bytes, const QString &sistema, const QString &direccion)
    {
        return Cambiado(
            bytes, [&](const QString &t) { return core::ConWebDeSistema(t, sistema, direccion); });
    }

    QByteArray ConWeb2(
        const QByteArray &bytes, const QString &sistema, const QString &emulador, const QString &direccion)
    {
        return Cambiado(
            bytes, [&](const QString &t) { return core::ConWebDeEmulador(t, sistema, emulador, direccion); });
    }

    QByteArray Sustituido(QByteArray bytes, const QByteArray &viejo, const QByteArray &nuevo) const
    {
        EXPECT_EQ(bytes.count(viejo), 1);
        return bytes.replace(viejo, nuevo);
    }

    const QByteArray Base = Cabecera + Alfa + Beta + Gamma + Fin;
    const QByteArray Emu =
        Cabecera + SistemaDe(CabezaBeta, { "B1" }) + SistemaDe(CabezaAlfa, { "A1", "A2" }) + Fin;
};

} // namespace

TEST_F(Cambios, ExtensionsTypedInLowerCaseAreStoredInUpperCase_InBothFiles)
{
    const QByteArray viejas = "alfa\r\n*.ZIP\r\n*.BIN\r\n'\r\n";
    const QByteArray nuevas = "alfa\r\n*.ZIP\r\n*.\xD1\xDF"
                              "1\r\n*.C\r\n'\r\n";
    EXPECT_EQ(ConExtensiones(Base, u"Alfa"_s, u"zip,ñß1,c"_s), Sustituido(Base, viejas, nuevas));
    EXPECT_EQ(ConExtensiones(Emu, u"Alfa"_s, u"zip,ñß1,c"_s), Sustituido(Emu, viejas, nuevas));
}

TEST_F(Cambios, AnEmptyAnswerLeavesNoExtensionAndTheApostrophe)
{
    EXPECT_EQ(ConExtensiones(Base, u"Beta"_s, QString()), Sustituido(Base, "*.ROM\r\n'", "'"));
}

TEST_F(Cambios, NothingIsTrimmed_AndAnEmptyPieceEndsTheList)
{
    EXPECT_EQ(ConExtensiones(Base, u"Beta"_s, u" a , b.c ,,d"_s),
        Sustituido(Base, "*.ROM\r\n'", "*. A \r\n*. B.C \r\n'"));
    EXPECT_EQ(ConExtensiones(Base, u"Beta"_s, u"a,"_s), Sustituido(Base, "*.ROM\r\n'", "*.A\r\n'"));
    EXPECT_EQ(ConExtensiones(Base, u"Beta"_s, u",a"_s), Sustituido(Base, "*.ROM\r\n'", "'"));
}

TEST_F(Cambios, AllBetweenTheAddressAndTheApostropheGivesWay)
{
    EXPECT_EQ(ConExtensiones("-S\nmine\nWEB1=w\n*.A\nmine\n\n*.B\n' note\nmine\n'\n", u"S"_s, u"x"_s),
        "-S\nmine\nWEB1=w\n*.X\r\n'\r\nmine\n'\n");
}

TEST_F(Cambios, ExtensionsOfASystemThatTheFileLacksChangeNothing)
{
    for (const QString &sistema : { u"ALFA"_s, u"Alf"_s, u"Alfa "_s, u"Delta"_s, QString() })
        EXPECT_EQ(ConExtensiones(Base, sistema, u"x"_s), Base) << sistema.toStdString();
}

TEST_F(Cambios, The151stExtensionIsWritten_WithoutAClosingApostrophe)
{
    QString respuesta = u"e1"_s;
    QByteArray lineas = "*.E1\r\n";
    for (int i = 2; i <= 150; ++i) {
        respuesta += u",e%1"_s.arg(i);
        lineas += "*.E" + QByteArray::number(i) + "\r\n";
    }
    EXPECT_EQ(
        ConExtensiones(Base, u"Beta"_s, respuesta), Sustituido(Base, "*.ROM\r\n'\r\n", lineas + "'\r\n"));
    respuesta += u",last"_s;
    EXPECT_EQ(ConExtensiones(Base, u"Beta"_s, respuesta),
        Sustituido(Base, "*.ROM\r\n'\r\n", lineas + "*.LAST\r\n"));
}

TEST_F(Cambios, ASystemLeftWithoutEmulatorsKeepsItsClosingLine_AndTakesTheNextEmulator)
{
    const QByteArray beta = SistemaDe(CabezaBeta, { "B1" });
    const QByteArray cabeza = "-Alfa\r\nWEB1=http://alfa\r\n*.X\r\n'\r\n";
    const QByteArray cambiado = ConExtensiones(CabezaAlfa + Cierre + beta + Fin, u"Alfa"_s, u"x"_s);
    EXPECT_EQ(cambiado, cabeza + Cierre + beta + Fin);
    EXPECT_EQ(ConExtensiones(cambiado, u"Alfa"_s, u"x"_s), cambiado);
    EXPECT_EQ(
        Cambiado(cambiado, [](const QString &t) { return core::SinSistema(t, u"Alfa"_s); }), beta + Fin);

    const core::EmuladorNuevo nuevo { u"A1"_s, {}, {}, {}, {}, {}, {}, {} };
    const QByteArray bloque = "+A1\r\n\r\nEXE=\r\nXDI=\r\nROM=\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n";
    EXPECT_EQ(Cambiado(cambiado,
                  [&](const QString &t) { return core::ConEmuladorConfigurado(t, u"-Alfa"_s, nuevo); }),
        cabeza + "'\r\n" + bloque + Cierre + beta + Fin);
}

TEST_F(Cambios, ExtensionsKeepEmulatorsAndTheEndOfTheirSystem_WhateverTheBlockLacks)
{
    const QByteArray restos[] = { "'-\n+F\n", "'- x\n-T\nWEB1=t\n*.T\n'\n", "-T\nWEB1=t\n*.T\n'\n",
        "[EOF]\n'\n", "+E\nEXE=e\n'\n+F\n'-\n", "WEB1=late\n'-\n" };
    for (const QByteArray &resto : restos) {
        const QByteArray conWeb = resto.startsWith("WEB1") ? resto.first(10) : QByteArray();
        EXPECT_EQ(ConExtensiones("-S\nWEB1=w\n*.A\nmine\n" + resto, u"S"_s, u"x"_s),
            "-S\nWEB1=w\n" + (conWeb.isEmpty() ? QByteArray() : "*.A\nmine\n" + conWeb) + "*.X\r\n'\r\n"
                + resto.sliced(conWeb.size()))
            << resto.toStdString();
    }
}

TEST_F(Cambios, WithoutAnAddressOfTheSystemExtensionsChangeNothing)
{
    for (const QByteArray bytes : { "-S\n\n'\n+E\nWEB1=late\n*.A\n'-\n", "-S\n*.A\n-T\nWEB1=t\n*.A\n'\n'-\n",
             "-S\n[\nWEB1=\n*.A\n'\n" })
        EXPECT_EQ(ConExtensiones(bytes, u"S"_s, u"x"_s), bytes);
}

TEST_F(Cambios, ExtensionsGoIntoEachBlockOfTheSystem)
{
    EXPECT_EQ(ConExtensiones("-S\nWEB1=\n*.A\n'-\n-T\n'-\n-S\nWEB1=\n'\n'-\n", u"S"_s, u"x"_s),
        "-S\nWEB1=\n*.X\r\n'\r\n'-\n-T\n'-\n-S\nWEB1=\n*.X\r\n'\r\n'-\n");
}

TEST_F(Cambios, TheAddressOfASystemChangesInBothFiles_AndNoOther)
{
    EXPECT_EQ(ConWeb1(Base, u"Alfa"_s, u"https://ñ"_s),
        Sustituido(Base, "WEB1=http://alfa\r\n", "WEB1=https://\xF1\r\n"));
    EXPECT_EQ(ConWeb1(Emu, u"Alfa"_s, u"https://ñ"_s),
        Sustituido(Emu, "WEB1=http://alfa\r\n", "WEB1=https://\xF1\r\n"));
}

TEST_F(Cambios, AnAddressCanBeClearedAndSetWhereThereIsNone)
{
    EXPECT_EQ(ConWeb1(Base, u"Alfa"_s, QString()), Sustituido(Base, "WEB1=http://alfa", "WEB1="));
    EXPECT_EQ(
        ConWeb1(Base, u"Beta"_s, u"x"_s), Sustituido(Base, "-Beta\r\nWEB1=\r\n", "-Beta\r\nWEB1=x\r\n"));
}

TEST_F(Cambios, WhatStandsBetweenTheNameAndTheAddressGivesWay)
{
    EXPECT_EQ(ConWeb1("-S\nmine\nWEB1=old\n*.A\nWEB1=other\n", u"S"_s, u"new"_s),
        "-S\nWEB1=new\r\n*.A\nWEB1=other\n");
}

TEST_F(Cambios, TheAddressOfASystemThatTheFileLacksChangesNothing)
{
    for (const QString &sistema : { u"ALFA"_s, u"Alf"_s, u"Delta"_s })
        EXPECT_EQ(ConWeb1(Emu, sistema, u"x"_s), Emu) << sistema.toStdString();
}

TEST_F(Cambios, TheAddressOfAnEmulatorChangesInBothFiles_AndNoOther)
{
    EXPECT_EQ(ConWeb2(Base, u"Alfa"_s, u"A1"_s, u"ñ"_s), Sustituido(Base, "WEB2=http://a1", "WEB2=\xF1"));
    EXPECT_EQ(ConWeb2(Base, u"Gamma"_s, u"G2"_s, u"x"_s), Sustituido(Base, "WEB2=2", "WEB2=x"));
    EXPECT_EQ(ConWeb2(Emu, u"Alfa"_s, u"A2"_s, QString()), Sustituido(Emu, "WEB2=wA2", "WEB2="));
}

TEST_F(Cambios, AnEmulatorsAddressIsLookedForBehindItsSystem)
{
    const QByteArray bytes = "-One\n+E\nWEB2=1\n'-\n-Two\n+E\nWEB2=2\n+E\nWEB2=3\n";
    EXPECT_EQ(
        ConWeb2(bytes, u"Two"_s, u"E"_s, u"x"_s), "-One\n+E\nWEB2=1\n'-\n-Two\n+E\nWEB2=x\r\n+E\nWEB2=3\n");
    const QByteArray ajeno = "-One\n+F\nWEB2=\n'-\n-Two\n+E\nWEB2=2\n";
    EXPECT_EQ(ConWeb2(ajeno, u"One"_s, u"E"_s, u"x"_s), ajeno);
}

TEST_F(Cambios, AnEmulatorWithoutAnAddressGetsOne_AndNoOtherLosesIts)
{
    const QByteArray restos[] = { "\r\nEXE=e\n'\n+F\nWEB2=f\n'-\n", "\n'-\n-T\n+E\nWEB2=t\n'-\n[EOF]\n",
        "+F\nWEB2=f\n'-\n", "-T\n+E\nWEB2=t\n", "[EOF]\nWEB2=\n", "" };
    for (const QByteArray &resto : restos)
        EXPECT_EQ(ConWeb2("-S\n'\n+E\n" + resto, u"S"_s, u"E"_s, u"x"_s), "-S\n'\n+E\nWEB2=x\r\n" + resto)
            << resto.toStdString();
}

TEST_F(Cambios, WhatTheReaderKeepsStays_AheadOfAnAddress)
{
    EXPECT_EQ(ConWeb2("-S\n+E\nmine\nEXE=e\n' c\nWEB2=w\nROM=r\n'-\n", u"S"_s, u"E"_s, u"x"_s),
        "-S\n+E\nWEB2=x\r\nEXE=e\nROM=r\n'-\n");
    EXPECT_EQ(ConWeb1("-S\nmine\n*.A\nWEB1=w\n'-\n", u"S"_s, u"x"_s), "-S\nWEB1=x\r\n*.A\n'-\n");
    EXPECT_EQ(ConWeb1("-S\n*.A\n'\n+E\nmine\nWEB1=w\n'\n+F\n'-\n", u"S"_s, u"x"_s),
        "-S\nWEB1=x\r\n*.A\n'\n+E\nmine\n'\n+F\n'-\n");
}

TEST_F(Cambios, ASystemWithoutAnAddressGetsOne_AndNoOtherLosesIts)
{
    const QByteArray restos[] = { "\r\n*.A\n'\n+E\n'-\n-T\nWEB1=t\n", "*.A\n'-\n-T\nWEB1=t\n'-\n[\n",
        "-T\nWEB1=t\n", "[EOF]\nWEB1=\n", "" };
    for (const QByteArray &resto : restos)
        EXPECT_EQ(ConWeb1("-S\n" + resto, u"S"_s, u"x"_s), "-S\nWEB1=x\r\n" + resto) << resto.toStdString();
}

TEST_F(Cambios, AnEmulatorThatIsntConfiguredChangesNothing)
{
    EXPECT_EQ(ConWeb2(Emu, u"Gamma"_s, u"G1"_s, u"x"_s), Emu);
    EXPECT_EQ(ConWeb2(Emu, u"Alfa"_s, u"a1"_s, u"x"_s), Emu);
    EXPECT_EQ(ConWeb2(Emu, u"alfa"_s, u"A1"_s, u"x"_s), Emu);
}

TEST_F(Cambios, OtherLinesKeepTheirEnds)
{
    EXPECT_EQ(
        ConExtensiones("-S\nWEB1=\n*.A\n'\n+E\n'-\n[", u"S"_s, u"b"_s), "-S\nWEB1=\n*.B\r\n'\r\n+E\n'-\n[");
    EXPECT_EQ(ConWeb1("\n-S\nWEB1=\n[", u"S"_s, u"b"_s), "\n-S\nWEB1=b\r\n[");
    EXPECT_EQ(ConWeb2("\n-S\n+E\nWEB2=", u"S"_s, u"E"_s, u"b"_s), "\n-S\n+E\nWEB2=b\r\n");
}
