// Whatever the user types, or has called a file, comes back from the file that it was written into, and takes
// nothing else along, or is refused.
#include "directoriodeprograma.h"

#include "core/ajustes.h"
#include "core/altas.h"
#include "core/catalogo.h"
#include "core/notas.h"
#include "core/romelegida.h"

#include "host/letters.h"
#include "host/paths.h"

#include <iterator>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int Pasos = 200;

class TextosDelUsuario : public DirectorioDePrograma {
protected:
    // A text that fits one line, as all text boxes give them.
    QString Texto()
    {
        static const QString piezas[] = { u"\""_s, u"\""_s, u","_s, u"="_s, u"'"_s, u"["_s, u"]"_s, u"-"_s,
            u"+"_s, u" "_s, u"  "_s, QString(QChar(0)), u"\t"_s, u"\u2028"_s, u"\U0001F47E"_s, u"\uF7E9"_s,
            u"\uFEFF"_s, u"\x1A"_s, u"\u0081"_s, u"ñ"_s, u"Ã±"_s, u"ゼ"_s, u"VACIO"_s, u"fin"_s,
            u"Parametros"_s, u"a"_s, u"B"_s, u"/"_s, u"\\"_s };
        QString texto;
        for (size_t i = m_azar() % 7; i > 0; --i)
            texto += piezas[m_azar() % std::size(piezas)];
        return texto;
    }
    bool Cara() { return m_azar() % 2 == 0; }

private:
    std::mt19937 m_azar { 11 };
};

// As the reader's own rules have it: in upper case, without blanks behind, up to the first that is blank.
QStringList leidos(const QStringList &filtros)
{
    QStringList leidos;
    for (const QString &filtro : filtros) {
        QString leido = host::upper(filtro);
        while (leido.endsWith(u' '))
            leido.chop(1);
        if (leido.isEmpty())
            break;
        leidos << leido;
    }
    return leidos;
}

} // namespace

TEST_F(TextosDelUsuario, ComeBackFromTheCatalogue)
{
    for (int paso = 0; paso < Pasos; ++paso) {
        const core::EmuladorNuevo otro { u"O"_s, u"WEB2=o"_s, u"o"_s, u"0"_s, u"o/"_s, u"o/"_s, u"o"_s,
            u"o"_s };
        const core::EmuladorNuevo nuevo { u"E"_s, u"WEB2=w"_s, Texto(), u"1"_s, Texto(), Texto(), Texto(),
            Texto() };
        const QString web1 = Texto();
        const QString web2 = Texto();
        const QString extension = Texto().remove(u',');
        Pon(u"Zembro.emu"_s, Cara() ? "' caf\xE9\r\n[EOF]\r\n" : "' caf\xC3\xA9\r\n[EOF]\r\n");
        Reescribe(u"Zembro.emu"_s, [&](const QString &texto) {
            QString con = core::ConSistemaConfigurado(texto, { u"S"_s, u"WEB1=x"_s, { u"*.ZIP"_s }, nuevo });
            con = core::ConEmuladorConfigurado(con, u"-S"_s, otro);
            con = core::ConSistemaConfigurado(con, { u"T"_s, u"WEB1=t"_s, { u"*.T"_s }, otro });
            con = core::ConWebDeSistema(con, u"S"_s, web1);
            con = core::ConWebDeEmulador(con, u"S"_s, u"E"_s, web2);
            return core::ConExtensiones(con, u"S"_s, { extension, u"Z"_s });
        });
        M.VerBaseDeDatos = 0;
        core::LeeCatalogo(M);
        ASSERT_EQ(core::Valor(M.Cat_EXE(0, 1), core::PrefijoRuta), nuevo.exe);
        ASSERT_EQ(core::Valor(M.Cat_ROM(0, 1), core::PrefijoRuta), host::withClosingSeparator(nuevo.rom));
        ASSERT_EQ(core::Valor(M.Cat_IMG(0, 1), core::PrefijoRuta), host::withClosingSeparator(nuevo.img));
        ASSERT_EQ(core::Valor(M.Cat_PAR1(0, 1), core::PrefijoParametro), nuevo.par1);
        ASSERT_EQ(core::Valor(M.Cat_PAR2(0, 1), core::PrefijoParametro), nuevo.par2);
        ASSERT_EQ(M.Cat_WEB1(0), u"WEB1="_s + web1);
        ASSERT_EQ(M.Cat_WEB2(0, 1), u"WEB2="_s + web2);
        ASSERT_EQ(M.Cat_EXT(0, 0), extension.isEmpty() ? QString() : u"*."_s + host::upper(extension));
        ASSERT_EQ(M.Cat_Nombre(0, 2), u"+O");
        ASSERT_EQ(M.Cat_PAR2(0, 2), u"PAR2=o");
        ASSERT_EQ(M.Cat_Nombre(1, 0), u"-T");
        ASSERT_EQ(M.Cat_Nombre(1, 1), u"+O");
    }
}

TEST_F(TextosDelUsuario, ComeBackFromTheNotes_OrAreRefused)
{
    int rechazadas = 0;
    for (int paso = 0; paso < Pasos; ++paso) {
        const QString clave = Texto();
        const QString descripcion = Texto();
        const core::Parametros suyos { Texto(), Texto(), Texto(), Texto() };
        Pon(u"Zembro.rom"_s,
            "' caf\xE9\r\nS\r\nOLD,\"Old\"\r\n'\r\nT\r\nT,\"t\"\r\n'\r\n[EOF]\r\nParametros especificos\r\n"
            "OLD,S,E,-o\r\n'\r\nfin\r\nfin,\"fin\"\r\n");
        Reescribe(u"Zembro.rom"_s, [&](const QString &texto) {
            return core::ConParametrosNuevos(
                core::ConDescripcionNueva(texto, u"S"_s, clave, descripcion), suyos);
        });
        const bool descrita = core::SePuedeDescribir(clave) && core::EsDescripcionEntera(descripcion);
        rechazadas += !descrita;
        M.Nota_Clave(2).clear();
        ASSERT_EQ(core::CargaNotas(M, u"S"_s), descrita ? 2 : 1);
        if (descrita) {
            ASSERT_EQ(M.Nota_Clave(0), host::upper(clave));
            const qsizetype comillas = descripcion.indexOf(u'"');
            ASSERT_EQ(M.Nota_Texto(0), comillas < 0 ? descripcion : descripcion.first(comillas));
        }
        ASSERT_EQ(M.Nota_Texto(descrita ? 1 : 0), u"Old");
        ASSERT_EQ(core::CargaNotas(M, u"T"_s), 1);
        ASSERT_EQ(M.Nota_Texto(0), u"t");
        M.Ficheros.openForInput(1, host::programFile(u"Zembro.rom"_s));
        const QString texto = M.Ficheros.rest(1);
        M.Ficheros.closeAll();
        host::TextSource primera(texto);
        ASSERT_EQ(core::ParametrosEscritos(primera, u"OLD"_s, u"S"_s, u"E"_s), u"-o");
        if (!core::RegistroDeParametros(suyos))
            continue;
        host::TextSource segunda(texto);
        ASSERT_EQ(core::ParametrosEscritos(segunda, suyos.clave, suyos.sistema, suyos.emulador), suyos.texto);
    }
    EXPECT_GT(rechazadas, Pasos / 20);
    EXPECT_LT(rechazadas, Pasos / 2);
}

TEST_F(TextosDelUsuario, ComeBackFromTheSettings_OrAreRefused)
{
    int todos = 0;
    for (int paso = 0; paso < Pasos; ++paso) {
        const QString fin = Texto();
        const QString idioma = Texto().remove(u'\0').remove(u'/') + u".lng"_s;
        const QString filtros = Texto();
        if (!core::VuelveMsgEndDOS(fin) || !core::VuelveIdioma(idioma) || !core::VuelvenFiltros(filtros)
            || filtros.isEmpty())
            continue;
        ++todos;
        Pon(u"Zembro.cfg"_s, "VACIO\r\n");
        Reescribe(u"Zembro.cfg"_s, [&](const QString &) {
            return core::ConFiltros(core::ConAjuste(core::AjustesPorDefecto(host::upper(idioma)),
                                        core::Ajuste::MsgEndDOS, { core::LineaDeMsgEndDOS(fin) }),
                core::FiltrosDeTexto(filtros));
        });
        ASSERT_FALSE(core::EsPrimeraVez(M));
        M.Filtros = core::Tabla<QString> { core::MaxSistemas };
        core::LeeAjustes(M);
        ASSERT_EQ(M.MsgEndDOS, fin);
        ASSERT_EQ(M.LanguageFile, host::upper(idioma));
        ASSERT_EQ(M.FiltrosTexto, leidos(core::FiltrosDeTexto(filtros)).join(u','));
    }
    EXPECT_GT(todos, Pasos / 10);
}

TEST_F(TextosDelUsuario, OfALanguageHideNoMarkThatTheEndWordsQuotesWouldShow)
{
    const QString idioma = u"X,\"A,VACIO,B\".LNG"_s;
    const QString fin = u"m,\""_s;
    EXPECT_TRUE(core::VuelveMsgEndDOS(fin));
    EXPECT_FALSE(core::VuelveIdioma(idioma));
}
