// Reading the database, and what its tables answer while a system is being chosen.
#include "catalogosdeprueba.h"

#include "core/basededatos.h"
#include "core/catalogo.h"

using namespace Qt::StringLiterals;

namespace {

class BaseDeDatos : public CatalogosDePrueba {
protected:
    void Lee(const QByteArray &bytes)
    {
        Pon(u"Zembro.sye"_s, bytes);
        core::LeeBaseDeDatos(M);
    }

    int FalloAlLeer(const QByteArray &bytes)
    {
        return NumeroDeFallo([&] { Lee(bytes); });
    }

    // The tables of the catalogue, from lines.
    void PonCatalogo(const QStringList &lineas)
    {
        core::LectorDeCatalogo lector(M);
        for (const QString &linea : lineas)
            lector.Linea(linea);
    }

    static QByteArray Lineas(const QByteArray &prefijo, int total)
    {
        QByteArray bytes;
        for (int i = 0; i < total; ++i)
            bytes += prefijo + QByteArray::number(i) + "\r\n";
        return bytes;
    }
};

} // namespace

TEST_F(BaseDeDatos, EveryLineGoesToItsTableWhole)
{
    Lee(Cabecera + Alfa + Gamma + Fin);
    EXPECT_EQ(M.BD_Nombre(0, 0), u"-Alfa");
    EXPECT_EQ(M.BD_Nombre(0, 1), u"+A1");
    EXPECT_EQ(M.BD_Nombre(0, 2), u"+A2");
    EXPECT_EQ(M.BD_Nombre(0, 3), QString());
    EXPECT_EQ(M.BD_WEB1(0), u"WEB1=http://alfa");
    EXPECT_EQ(M.BD_WEB2(0, 1), u"WEB2=http://a1");
    EXPECT_EQ(M.BD_WEB2(0, 2), u"WEB2=");
    EXPECT_EQ(M.BD_EXT(0, 0), u"*.ZIP");
    EXPECT_EQ(M.BD_EXT(0, 1), u"*.BIN");
    EXPECT_EQ(M.BD_EXT(0, 2), QString());
    EXPECT_EQ(M.BD_Nombre(1, 3), u"+G3");
    EXPECT_EQ(M.BD_WEB2(1, 3), u"WEB2=3");
    EXPECT_EQ(M.BD_EXT(1, 0), u"*.ZIP");
    EXPECT_EQ(M.BD_Nombre(2, 0), QString());
    EXPECT_EQ(M.BD_TotalSistemas, 2);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(BaseDeDatos, TheCatalogueAndItsTablesAreLeftAlone)
{
    PonCatalogo({ u"-C"_s, u"*.C"_s, u"+E"_s, u"EXE=e"_s });
    Lee(Alfa + "EXE=x\r\n");
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-C");
    EXPECT_EQ(M.Cat_EXT(0, 0), u"*.C");
    EXPECT_EQ(M.Cat_EXE(0, 1), u"EXE=e");
    EXPECT_EQ(M.Indice_Sistema, 0);
    EXPECT_EQ(M.Indice_Emulador, 1);
}

TEST_F(BaseDeDatos, NamesAreReadAnew_AndWhatElseARemovedSystemHadLingers)
{
    Lee(Alfa + Gamma + Fin);
    Lee(Beta + Fin);
    EXPECT_EQ(M.BD_Nombre(0, 0), u"-Beta");
    EXPECT_EQ(M.BD_Nombre(0, 2), QString());
    EXPECT_EQ(M.BD_Nombre(1, 0), QString());
    EXPECT_EQ(M.BD_EXT(0, 0), u"*.ROM");
    EXPECT_EQ(M.BD_EXT(0, 1), u"*.BIN");
    EXPECT_EQ(M.BD_WEB2(0, 2), u"WEB2=");
    EXPECT_EQ(M.BD_WEB1(1), u"WEB1=http://gamma");
    EXPECT_EQ(M.BD_TotalSistemas, 1);
}

TEST_F(BaseDeDatos, ASystemWithoutEmulatorsHandsItsCountOfExtensionsOn)
{
    Lee("-One\r\n*.A\r\n*.B\r\n'\r\n" + Cierre + "-Two\r\n*.C\r\n'\r\n+E\r\n" + Cierre + "-Three\r\n*.D\r\n");
    EXPECT_EQ(M.BD_EXT(1, 0), QString());
    EXPECT_EQ(M.BD_EXT(1, 2), u"*.C");
    EXPECT_EQ(M.BD_EXT(2, 0), u"*.D");
    EXPECT_EQ(NumeroDeFallo([this] { core::OfertaDeExtensiones(M, 1); }), host::InvalidArgument);
    EXPECT_EQ(core::ExtensionesDeBase(M, 1), QStringList());
}

TEST_F(BaseDeDatos, OfAChangeOnlyTheTablesAreRead)
{
    Lee(Alfa + Gamma);
    M.Lista1Lista = M.CambioConfig1 = 1;
    Lee(Beta);
    EXPECT_EQ(M.Lista1Lista, 0);
    EXPECT_EQ(M.BD_TotalSistemas, 2);
    EXPECT_EQ(M.BD_Nombre(0, 0), u"-Beta");
}

TEST_F(BaseDeDatos, TheTablesHold151Systems150EmulatorsAnd151Extensions)
{
    Lee(Lineas("-S", 150) + "-Last\r\n" + Lineas("*.E", 151) + Lineas("+E", 150));
    EXPECT_EQ(M.BD_TotalSistemas, 151);
    EXPECT_EQ(M.BD_Nombre(150, 150), u"+E149");
    EXPECT_EQ(M.BD_EXT(150, 150), u"*.E150");
    EXPECT_EQ(core::TotalEmuladoresDeBase(M, 150), 150);
    EXPECT_EQ(core::TotalEmuladoresDeBase(M, 149), 0);
}

TEST_F(BaseDeDatos, PastTheTablesReadingFailsAndLeavesTheNumberOpen)
{
    for (const QByteArray &bytes :
        { Lineas("-S", 152), "-S\r\n" + Lineas("+E", 151), "-S\r\n" + Lineas("*.E", 152) }) {
        EXPECT_EQ(FalloAlLeer(bytes), host::OutOfRange);
        EXPECT_TRUE(M.Ficheros.isOpen(1));
        M.Ficheros.closeAll();
    }
}

TEST_F(BaseDeDatos, ALineAheadOfTheFirstSystemFails)
{
    for (const QByteArray linea : { "+E", "WEB1=", "WEB2=", "*.A" }) {
        EXPECT_EQ(FalloAlLeer("' c\r\n" + linea + "\r\n"), host::OutOfRange) << linea.constData();
        M.Ficheros.closeAll();
    }
    EXPECT_EQ(FalloAlLeer("' c\r\nEXE=\r\nROM\r\n"), 0);
    EXPECT_EQ(M.BD_TotalSistemas, 0);
}

TEST_F(BaseDeDatos, AFileThatIsMissingOrEmptyFails)
{
    EXPECT_EQ(NumeroDeFallo([this] { core::LeeBaseDeDatos(M); }), host::FileNotFound);
    EXPECT_EQ(FalloAlLeer(""), host::PastEndOfFile);
}

TEST_F(BaseDeDatos, ASystemIsKnownByItsNameInAnyCase)
{
    Lee("-Colecovisi\xF3n \xF1\r\n-Two\r\n");
    EXPECT_TRUE(core::SistemaEnBase(M, u"COLECOVISIÓN Ñ"_s));
    EXPECT_TRUE(core::SistemaEnBase(M, u"two"_s));
    EXPECT_FALSE(core::SistemaEnBase(M, u"Tw"_s));
    EXPECT_FALSE(core::SistemaEnBase(M, u"-Two"_s));
    EXPECT_FALSE(core::SistemaEnBase(M, u"Two "_s));
    EXPECT_FALSE(core::SistemaEnBase(M, QString()));
}

TEST_F(BaseDeDatos, AnEmulatorIsKnownByItsNameInAnyCase_InItsSystemAlone)
{
    Lee(Alfa + Gamma);
    EXPECT_TRUE(core::EmuladorEnBase(M, 0, u"a2"_s));
    EXPECT_TRUE(core::EmuladorEnBase(M, 1, u"g3"_s));
    EXPECT_FALSE(core::EmuladorEnBase(M, 1, u"A2"_s));
    EXPECT_FALSE(core::EmuladorEnBase(M, 0, u"A"_s));
    EXPECT_FALSE(core::EmuladorEnBase(M, 2, u"A1"_s));
}

TEST_F(BaseDeDatos, TheLastOf150EmulatorsIsKnown)
{
    Lee("-S\r\n" + Lineas("+E", 150));
    EXPECT_TRUE(core::EmuladorEnBase(M, 0, u"E149"_s));
    EXPECT_FALSE(core::EmuladorEnBase(M, 0, u"E150"_s));
}

TEST_F(BaseDeDatos, AConfiguredSystemIsKnownByItsExactName)
{
    EXPECT_FALSE(core::SistemaEnCatalogo(M, u"One"_s));
    PonCatalogo({ u"-One"_s, u"+E"_s, u"-Two"_s });
    EXPECT_TRUE(core::SistemaEnCatalogo(M, u"One"_s));
    EXPECT_TRUE(core::SistemaEnCatalogo(M, u"Two"_s));
    EXPECT_FALSE(core::SistemaEnCatalogo(M, u"TWO"_s));
    EXPECT_FALSE(core::SistemaEnCatalogo(M, u"E"_s));
}

TEST_F(BaseDeDatos, TheSearchForASystemFails_WhereAllRowsAreOthers)
{
    QStringList sistemas;
    for (int i = 0; i < 151; ++i)
        sistemas += u"-S%1"_s.arg(i);
    PonCatalogo(sistemas);
    EXPECT_TRUE(core::SistemaEnCatalogo(M, u"S150"_s));
    EXPECT_EQ(NumeroDeFallo([this] { core::SistemaEnCatalogo(M, u"None"_s); }), host::OutOfRange);
}

TEST_F(BaseDeDatos, AConfiguredEmulatorIsKnownByItsExactName_UnderAnySystem)
{
    EXPECT_FALSE(core::EmuladorEnCatalogo(M, u"E"_s));
    PonCatalogo({ u"-One"_s, u"+E1"_s, u"+E2"_s, u"-Empty"_s, u"-Two"_s, u"+F"_s });
    for (const QString &nombre : { u"E1"_s, u"E2"_s, u"F"_s })
        EXPECT_TRUE(core::EmuladorEnCatalogo(M, nombre)) << nombre.toStdString();
    for (const QString &nombre : { u"e1"_s, u"E"_s, u"One"_s, u"Two"_s, QString() })
        EXPECT_FALSE(core::EmuladorEnCatalogo(M, nombre)) << nombre.toStdString();
}

TEST_F(BaseDeDatos, TheSearchForAnEmulatorTakes150Steps)
{
    // One step for the first row's name, then its emulators: the 149th takes the 150th step.
    QStringList lineas { u"-One"_s };
    for (int i = 1; i <= 150; ++i)
        lineas += u"+E%1"_s.arg(i);
    PonCatalogo(lineas);
    EXPECT_TRUE(core::EmuladorEnCatalogo(M, u"E149"_s));
    EXPECT_FALSE(core::EmuladorEnCatalogo(M, u"E150"_s));

    // Further rows are entered behind their names; each takes its emulators and the empty column.
    lineas.clear();
    for (int i = 1; i <= 76; ++i)
        lineas += QStringList { u"-S%1"_s.arg(i), u"+F%1"_s.arg(i) };
    PonCatalogo(lineas);
    EXPECT_TRUE(core::EmuladorEnCatalogo(M, u"F75"_s));
    EXPECT_FALSE(core::EmuladorEnCatalogo(M, u"F76"_s));
}

TEST_F(BaseDeDatos, TwentySevenSystemsAreKnown_AndTwoAreArcades)
{
    const QStringList conocidos = u"Atari 2600;Atari 5200;Lynx;Colecovision;Game Gear;Game Boy;"
                                  u"Mega Drive/Genesis;NES;Nintendo 64;Super Nintendo;PC-Engine/TG16;Vectrex;"
                                  u"Amiga;Atari ST;Amstrad CPC;MSX;Spectrum;Commodore 64;Master System;"
                                  u"Virtual Boy;Play Station;Amstrad PCW;Apple II;Macintosh;Sinclair QL;"
                                  u"X68000;Atari 7800"_s.split(u';');
    EXPECT_EQ(conocidos.size(), 27);
    for (const QString &sistema : conocidos) {
        EXPECT_EQ(core::OrigenDe(sistema), core::SistemaConocido) << sistema.toStdString();
        EXPECT_EQ(core::OrigenDe(sistema + u' '), core::OtroSistema) << sistema.toStdString();
        EXPECT_EQ(core::OrigenDe(sistema.toLower()), core::OtroSistema) << sistema.toStdString();
    }
    EXPECT_EQ(core::OrigenDe(u"Arcade"_s), core::SistemaRecreativo);
    EXPECT_EQ(core::OrigenDe(u"Neo-Geo"_s), core::SistemaRecreativo);
    for (const QString &sistema : { u"ARCADE"_s, u"Neo Geo"_s, u"Game Boy Advance"_s, u"PSX"_s, QString() })
        EXPECT_EQ(core::OrigenDe(sistema), core::OtroSistema) << sistema.toStdString();
}

TEST_F(BaseDeDatos, TheOfferIsWhatStandsBehindTheLastPoints)
{
    Lee("-S\r\n*.ZIP\r\n*.tar.gz\r\n*.\r\n*. A \r\n*..x\r\n");
    EXPECT_EQ(core::OfertaDeExtensiones(M, 0), u"ZIP,gz,, A ,x");
    EXPECT_EQ(M.ExtTexto, u"ZIP,gz,, A ,x,");
    EXPECT_EQ(M.ExtLargo, 14);
    Lee("-S\r\n*.A\r\n");
    EXPECT_EQ(core::OfertaDeExtensiones(M, 0), u"A,gz,, A ,x");
}

TEST_F(BaseDeDatos, NoOfferForASystemWithoutExtensions)
{
    Lee("-S\r\n");
    EXPECT_EQ(NumeroDeFallo([this] { core::OfertaDeExtensiones(M, 0); }), host::InvalidArgument);
    EXPECT_EQ(M.ExtLargo, 0);
}

TEST_F(BaseDeDatos, TheOfferTakesAll151Extensions_ANewBlock150)
{
    Lee("-S\r\n" + Lineas("*.E", 150));
    EXPECT_EQ(core::OfertaDeExtensiones(M, 0).count(u','), 149);
    EXPECT_EQ(core::ExtensionesDeBase(M, 0).size(), 150);
    EXPECT_EQ(core::ExtensionesDeBase(M, 0).last(), u"*.E149");
    Lee("-S\r\n" + Lineas("*.E", 151));
    EXPECT_EQ(core::OfertaDeExtensiones(M, 0).count(u','), 150);
    EXPECT_EQ(NumeroDeFallo([this] { core::ExtensionesDeBase(M, 0); }), host::OutOfRange);
}

TEST_F(BaseDeDatos, AnAnswerIsCutAtEveryComma)
{
    EXPECT_EQ(core::PartirExtensiones(u"zip"_s), (QStringList { u"zip"_s }));
    EXPECT_EQ(core::PartirExtensiones(u" a ,,b,"_s), (QStringList { u" a "_s, u""_s, u"b"_s, u""_s }));
    EXPECT_EQ(core::PartirExtensiones(QString()), (QStringList { QString() }));
    EXPECT_EQ(core::PartirExtensiones(QString(150, u',')).size(), 151);
    EXPECT_EQ(NumeroDeFallo([] { core::PartirExtensiones(QString(151, u',')); }), host::OutOfRange);
}

TEST_F(BaseDeDatos, SystemsOfATextAreThoseOfItsHyphens)
{
    const QString texto = u"' top\r\nOld\r\n-Two\r\n*.BIN\r\n+Emu\n-Ñu, \"x\"\r\n-\n'----\r\n -No\r\n-last"_s;
    EXPECT_EQ(
        core::SistemasDelTexto(texto), (QStringList { u"Two"_s, u"Ñu, \"x\""_s, QString(), u"last"_s }));
    for (const QString &suyo : { u"two"_s, u"ÑU, \"X\""_s, u"LAST"_s })
        EXPECT_TRUE(core::SistemaEnTexto(texto, suyo)) << suyo.toStdString();
    for (const QString &otro : { u"Emu"_s, u"ld"_s, u"No"_s, u"-Two"_s, u"Tw"_s })
        EXPECT_FALSE(core::SistemaEnTexto(texto, otro)) << otro.toStdString();
}
