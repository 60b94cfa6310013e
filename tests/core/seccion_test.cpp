// The section of parameters under a change of one game's and under the removal of a system: whatever isn't
// meant keeps its meaning, and what follows the section its bytes.
#include "directoriodeprograma.h"

#include "core/notas.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString Cabecera = u"Parametros especificos\r\n"_s;
const QString Cierre = u"'\r\nfin\r\nfin,\"fin\"\r\n"_s;
const QString Nadie = u"nobody's"_s;

QString cambiado(const QString &texto)
{
    return core::ConParametrosCambiados(texto, { Nadie, u"s"_s, u"e"_s, u"-n"_s });
}

QString sinSistema(const QString &texto)
{
    return core::SinParametrosDeSistema(texto, Nadie);
}

std::vector<core::Parametros> registros(const QString &texto)
{
    host::TextSource fuente(texto.sliced(texto.indexOf(Cabecera) + Cabecera.size()));
    std::vector<core::Parametros> leidos;
    for (core::RegistroLeido leido = core::LeeRegistro(fuente); !leido.EsCierre();
         leido = core::LeeRegistro(fuente))
        leidos.push_back(leido.campos);
    return leidos;
}

class TrasLaSeccion : public testing::TestWithParam<QString> { };

class RegistroAjeno : public testing::TestWithParam<std::pair<QString, QString>> { };

} // namespace

TEST_P(TrasLaSeccion, EveryByteStays)
{
    for (const QString &fin : { u"\r\n"_s, u"\n"_s }) {
        QString detras = GetParam();
        detras.replace(u"\r\n"_s, fin);
        const QString texto = Cabecera + u"A,s,e,-a\r\n"_s + detras;
        EXPECT_EQ(cambiado(texto), texto);
        EXPECT_EQ(sinSistema(texto), texto);
    }
}

INSTANTIATE_TEST_SUITE_P(Bloques, TrasLaSeccion,
    testing::Values(u"'\r\nfin\r\nfin,\"fin\"\r\nConsole\r\nA.BIN,\"a\"\r\n'\r\n"_s,
        u"'\r\nConsole\r\nA.BIN,\"a\"\r\nB.BIN,\"b\"\r\n'\r\n[EOF]\r\n"_s,
        u"'\r\nConsole\r\n\"ADDAMS FAMILY, THE.NES\",\"The family\"\r\nB.BIN,\"b\"\r\n'\r\n"_s,
        u"'\r\nConsole\r\n\" A \",\"a\"\r\n'\r\n"_s, u"'\r\nConsole\r\n\"[A].NES\",\"a\"\r\n'\r\n"_s,
        u"'\r\nCon, sole\r\nA.BIN,\"a\"\r\n'\r\n"_s, u"'\r\nCon, sole\r\n\"A, B\",\"a\"\r\n'\r\n"_s,
        u"'\r\n\"Con\" sole\r\nA.BIN,\"a\"\r\n'\r\n"_s, u"'\r\n Console \r\nA.BIN,\"a\"\r\n'\r\n"_s,
        // A system without notes, whose apostrophe and the header behind it are fields of the closing record.
        u"'\r\nTwo\r\n'\r\nThree\r\nB.BIN,\"b\"\r\n'\r\n"_s,
        u"'\r\nTwo\r\n'\r\nTh, ree\r\nB.BIN,\"b\"\r\n'\r\n"_s, u"'\r\nT,wo\r\n'\r\nThree\r\n'\r\n"_s,
        // Fewer lines of the closing record's own than it has fields: the last of them is the next header.
        u"'\r\n\r\n\r\nBBB\r\nPRISMA.BIN,\"P\"\r\n'\r\n"_s,
        u"'\r\nfin\r\nfin\r\nBBB\r\nPRISMA.BIN,\"P\"\r\n'\r\n"_s,
        u"'\r\n\r\nfin\r\nBBB\r\nPRISMA.BIN,\"P\"\r\n'\r\n"_s, u"'\r\nfin\r\nBBB\r\n"_s, u"'\r\nBBB\r\n"_s,
        // Descriptions that the field reader cuts, or runs on with.
        u"'\r\nConsole\r\nA.BIN,\"a \"b\" c, d\"\r\nB.BIN,\"b\"\r\n'\r\n"_s,
        u"'\r\nConsole\r\nA.BIN,\"a\r\nB.BIN,\"b\"\r\n'\r\n"_s,
        u"'\r\nConsole\r\nA.BIN,plain , more\r\nB.BIN,\"b\"\r\n'\r\n"_s,
        u"'\r\nConsole\r\nA.BIN\r\na \"b\" c\r\n'\r\n"_s, u"'\r\nConsole\r\nA.BIN\r\n'\r\nThree\r\n'\r\n"_s,
        u"',fin\r\nConsole\r\nA.BIN,\"a\"\r\n'\r\n"_s));

TEST_P(RegistroAjeno, KeepsItsFields)
{
    const auto &[leido, escrito] = GetParam();
    const QString texto = Cabecera + leido + Cierre;
    const QString esperado = Cabecera + escrito + Cierre;
    for (const auto cambio : { cambiado, sinSistema }) {
        EXPECT_EQ(cambio(texto), esperado);
        EXPECT_EQ(registros(cambio(texto)), registros(texto));
        EXPECT_EQ(cambio(esperado), esperado);
    }
}

INSTANTIATE_TEST_SUITE_P(Registros, RegistroAjeno,
    testing::Values(std::pair(u"A,s,e,\"-a, b\"\r\n"_s, u"A,s,e,\"-a, b\"\r\n"_s),
        std::pair(u"A,\"s, t\", \" e\",\"  -x \"\r\n"_s, u"A,\"s, t\",\" e\",\"  -x \"\r\n"_s),
        std::pair(u"\" A\",\"s\",\"\",\"\"\r\n"_s, u"\" A\",s,,\r\n"_s),
        // What can't be written anew stays as it stands.
        std::pair(u"A,s,e,\"-a\r\n-b\"\r\n  B , s,e,-b\r\n"_s, u"A,s,e,\"-a\r\n-b\"\r\nB,s,e,-b\r\n"_s),
        std::pair(u"A,s,e,-a,B,s,\"f\ng\",\"-b\",C,s,e,-c\n"_s,
            u"A,s,e,-a\r\nB,s,\"f\ng\",\"-b\"\r\nC,s,e,-c\r\n"_s),
        // An empty field alone ahead of its comma.
        std::pair(u"A,s,\"e\nf\"\n,B,s,e,-b\n"_s, u"A,s,\"e\nf\"\n\"\"\r\nB,s,e,-b\r\n"_s),
        std::pair(u"[a \"b\"].nes,s,e,-x\n"_s, u"[a \"b\"].nes,s,e,-x\n"_s)));

TEST(Seccion, AClosingRecordOnOneLineGoesOnThreeOrFour)
{
    EXPECT_EQ(cambiado(Cabecera + u"',fin,fin,fin\n'x\n"_s), Cabecera + Cierre + u"'x\n"_s);
    EXPECT_EQ(sinSistema(Cabecera + u"',Two,',Three\n'\n"_s), Cabecera + u"'\r\nTwo\r\n'\r\nThree\r\n'\n"_s);
}

TEST(Seccion, AFieldThatRunsToTheEndOfTheFileStaysWhole)
{
    const QString texto = Cabecera + u"A,s,e,\"a\r\nb,"_s;
    EXPECT_EQ(sinSistema(texto), texto);
}

TEST(Seccion, RecordsComeBackAsTheyWereWritten_WhateverTheirFieldsHold)
{
    std::mt19937 azar(7);
    const QString signos = u"ab \",'[=\n\rñ"_s;
    const auto campo = [&] {
        QString texto;
        for (auto largo = azar() % 5; largo > 0; --largo)
            texto += signos[azar() % signos.size()];
        return texto;
    };
    int escritos = 0;
    QString texto = u"Console\r\n'\r\n[\r\n"_s + Cabecera + Cierre;
    for (int paso = 0; paso < 4000; ++paso) {
        const core::Parametros nuevos { campo(), campo(), campo(), campo() };
        const QString con = core::ConParametrosNuevos(texto, nuevos);
        if (con == texto)
            continue;
        ++escritos;
        ASSERT_EQ(cambiado(con), con);
        ASSERT_EQ(sinSistema(con), con);
        const std::vector<core::Parametros> leidos = registros(con);
        ASSERT_EQ(leidos.size(), 1u);
        ASSERT_EQ(leidos[0].clave, nuevos.clave);
        ASSERT_EQ(leidos[0].sistema, nuevos.sistema);
        ASSERT_EQ(leidos[0].emulador, nuevos.emulador);
        if (!nuevos.texto.contains(u'"')) {
            ASSERT_EQ(leidos[0].texto, nuevos.texto);
        }
        ASSERT_EQ(core::SinParametrosDeSistema(con, nuevos.sistema), texto);
        ASSERT_EQ(core::ConParametrosCambiados(con, { nuevos.clave, u"s"_s, u"e"_s, {} }), texto);
    }
    EXPECT_GT(escritos, 300);
}
