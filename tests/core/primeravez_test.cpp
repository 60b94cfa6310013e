// The settings of a new program directory, which nobody was asked for.
#include "directoriodeprograma.h"

#include "core/ajustes.h"
#include "core/primeravez.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList Idiomas { u"ZB-CAT.LNG"_s, u"ZB-DEU.LNG"_s, u"ZB-ENG.LNG"_s, u"ZB-ESP.LNG"_s,
    u"ZB-FRA.LNG"_s, u"ZB-ITA.LNG"_s, u"ZB-POR.LNG"_s };

struct Local {
    QString local;
    QString fichero;
};

class Locales : public testing::TestWithParam<Local> { };

TEST_P(Locales, ElIdiomaDelEntorno)
{
    EXPECT_EQ(core::IdiomaDeLocal(GetParam().local, Idiomas), GetParam().fichero);
}

INSTANTIATE_TEST_SUITE_P(Todos, Locales,
    testing::Values(Local { u"ca_ES.UTF-8@valencia"_s, u"ZB-CAT.LNG"_s },
        Local { u"de_AT"_s, u"ZB-DEU.LNG"_s }, Local { u"en_GB.UTF-8"_s, u"ZB-ENG.LNG"_s },
        Local { u"es"_s, u"ZB-ESP.LNG"_s }, Local { u"fr_CA.ISO-8859-1"_s, u"ZB-FRA.LNG"_s },
        Local { u"it_CH@euro"_s, u"ZB-ITA.LNG"_s }, Local { u"pt_BR.UTF-8"_s, u"ZB-POR.LNG"_s },
        Local { u"est_EE"_s, u"ZB-ENG.LNG"_s }, Local { u"ja_JP.UTF-8"_s, u"ZB-ENG.LNG"_s },
        Local { u"C.UTF-8"_s, u"ZB-ENG.LNG"_s }, Local { u"POSIX"_s, u"ZB-ENG.LNG"_s },
        Local { QString(), u"ZB-ENG.LNG"_s }, Local { u"_es"_s, u"ZB-ENG.LNG"_s }));

TEST(IdiomaDeLocal, SoloUnoQueHay)
{
    EXPECT_EQ(core::IdiomaDeLocal(u"es_ES.UTF-8"_s, { u"ZB-DEU.LNG"_s, u"ZB-ENG.LNG"_s }), u"ZB-ENG.LNG"_s);
    EXPECT_EQ(core::IdiomaDeLocal(u"es_ES.UTF-8"_s, { u"ZB-DEU.LNG"_s, u"ZB-FRA.LNG"_s }), u"ZB-DEU.LNG"_s);
    EXPECT_EQ(core::IdiomaDeLocal(u"es_ES.UTF-8"_s, {}), QString());
}

class Entorno : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char *variable : Variables) {
            m_antes += qgetenv(variable);
            qunsetenv(variable);
        }
    }
    void TearDown() override
    {
        for (int i = 0; i < m_antes.size(); ++i)
            qputenv(Variables[i], m_antes[i]);
    }

private:
    static constexpr const char *Variables[] = { "LC_ALL", "LC_MESSAGES", "LANG" };
    QList<QByteArray> m_antes;
};

TEST_F(Entorno, LaMasFuerteDeLasVariables)
{
    EXPECT_EQ(core::LocalDelEntorno(), QString());
    qputenv("LANG", "de_DE.UTF-8");
    EXPECT_EQ(core::LocalDelEntorno(), u"de_DE.UTF-8"_s);
    qputenv("LC_MESSAGES", "it_IT.UTF-8");
    EXPECT_EQ(core::LocalDelEntorno(), u"it_IT.UTF-8"_s);
    qputenv("LC_ALL", "fr_FR.UTF-8");
    EXPECT_EQ(core::LocalDelEntorno(), u"fr_FR.UTF-8"_s);
    qputenv("LC_ALL", "");
    EXPECT_EQ(core::LocalDelEntorno(), u"it_IT.UTF-8"_s);
}

const QByteArray Catalogo =
    "-Atari 2600\r\n'\r\n+Stella\r\n"
    "'----------------------------------------------------------------------\r\n"
    "-Amiga\r\n'\r\n+FS-UAE\r\n+Ami\r\n"
    "'----------------------------------------------------------------------\r\n[EOF]\r\n";

using PrimeraVez = DirectorioDePrograma;

TEST_F(PrimeraVez, SeEscribenConElParElegido)
{
    Pon(u"Zembro.emu"_s, Catalogo);
    Pon(u"Zembro.cfg"_s, "VACIO\r\n");
    EXPECT_TRUE(core::PonPrimerosAjustes(M, u"ZB-FRA.LNG"_s, u"Atari 2600"_s, u"Stella"_s));
    QByteArray esperado = core::AjustesPorDefecto(u"ZB-FRA.LNG"_s).toLatin1();
    esperado.replace("LastSisUsed = 0", "LastSisUsed = 1"); // in the sorted list Amiga stands ahead
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), esperado);
    EXPECT_FALSE(core::EsPrimeraVez(M));
}

TEST_F(PrimeraVez, LosQueHaySeQuedan)
{
    Pon(u"Zembro.emu"_s, Catalogo);
    const QByteArray suyos = core::AjustesPorDefecto(u"ZB-ITA.LNG"_s).toLatin1();
    Pon(u"Zembro.cfg"_s, suyos);
    EXPECT_FALSE(core::PonPrimerosAjustes(M, u"ZB-FRA.LNG"_s, u"Atari 2600"_s, u"Stella"_s));
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), suyos);
}

TEST_F(PrimeraVez, UnCatalogoSinElParTieneElPrimero)
{
    Pon(u"Zembro.emu"_s, "[EOF]\r\n");
    Pon(u"Zembro.cfg"_s, "VACIO\r\n");
    EXPECT_TRUE(core::PonPrimerosAjustes(M, u"ZB-ENG.LNG"_s, u"Atari 2600"_s, u"Stella"_s));
    EXPECT_THAT(Bytes(u"Zembro.cfg"_s), testing::HasSubstr("LastSisUsed = 0\r\n"));
}

TEST_F(PrimeraVez, SinCatalogoNoSeEscribeNada)
{
    Pon(u"Zembro.cfg"_s, "VACIO\r\n");
    EXPECT_EQ(
        NumeroDeFallo([&] { core::PonPrimerosAjustes(M, u"ZB-ENG.LNG"_s, u"Atari 2600"_s, u"Stella"_s); }),
        53);
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), "VACIO\r\n");
}

} // namespace
