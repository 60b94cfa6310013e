// The files of the program directory.
#include "companion/revision.h"

#include "core/ajustes.h"
#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/idiomas.h"
#include "core/lineas.h"
#include "core/notas.h"
#include "core/remiendos.h"
#include "core/romelegida.h"
#include "core/textos.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/textsource.h"

#include <QSet>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace companion {

QString TextoDelPrograma(const core::Modulo &M, const QString &fichero)
{
    return M.Ficheros.textOf(host::programFile(fichero));
}

QStringList SistemasConocidos(const core::Modulo &M)
{
    QStringList nombres;
    for (const QString &fichero : { u"Zembro.emu"_s, u"Zembro.sye"_s }) {
        QString texto;
        try {
            texto = TextoDelPrograma(M, fichero);
        } catch (const host::Failure &) {
            continue; // a finding of its own
        }
        for (const core::LineaConFin &linea : core::EnLineas(texto)) {
            if (linea.linea.startsWith(u'-'))
                nombres += linea.linea.sliced(1).toString();
        }
    }
    nombres.removeDuplicates();
    return nombres;
}

namespace {

// The lines of the settings, counted from 0, and what the program writes at their beginning.
struct LineaDeAjuste {
    size_t indice;
    QStringView clave;
    QString core::Modulo::*valor;
};
constexpr LineaDeAjuste LineasDeAjustes[] = {
    { 11, u"LastSisUsed", &core::Modulo::UltimoSistema },
    { 12, u"LastEmuUsed", &core::Modulo::UltimoEmulador },
    { 13, u"SaveLastEmu&Sis", &core::Modulo::GuardarUltimo },
    { 14, u"TypeOfEditor", &core::Modulo::TypeOfEditor },
    { 15, u"MsgEndDOS", &core::Modulo::MsgEndDOS },
    { 16, u"LanguageFile", &core::Modulo::LanguageFile },
    { 17, u"DebugMode", &core::Modulo::DebugMode },
};
constexpr size_t LineaDeFiltros = 19;

class RevisorDeAjustes {
public:
    RevisorDeAjustes(const Sesion &sesion, Revision &revision)
        : M(sesion.M)
        , m_palabras(sesion.palabras)
        , m_texto(TextoDelPrograma(sesion.M, u"Zembro.cfg"_s))
        , m_lineas(core::EnLineas(m_texto))
        , m_revision(revision)
    {
    }

    bool Faltan();
    bool EnSuSitio();
    void Valores();
    void Filtros();

private:
    void halla(const QString &clase, size_t indice, const QString &dicho)
    {
        m_revision.push_back({ clase, u"Zembro.cfg"_s, static_cast<int>(indice) + 1, {}, dicho });
    }
    int Maximo(const LineaDeAjuste &ajuste) const;
    void Idioma(const QString &valor, size_t indice);

    const core::Modulo &M;
    const Palabras &m_palabras;
    const QString m_texto;
    const std::vector<core::LineaConFin> m_lineas;
    Revision &m_revision;
};

// Lines that stand nowhere. What they held nobody knows; what the program writes at first does.
bool RevisorDeAjustes::Faltan()
{
    const QString deSerie = core::AjustesPorDefecto(u"ZB-ENG.LNG"_s);
    const std::vector<core::LineaConFin> enteras = core::EnLineas(deSerie);
    bool falta = false;
    for (const LineaDeAjuste &ajuste : LineasDeAjustes) {
        if (std::ranges::any_of(m_lineas,
                [&](const core::LineaConFin &linea) { return linea.linea.startsWith(ajuste.clave); }))
            continue;
        falta = true;
        halla(u"setting-missing"_s, ajuste.indice,
            m_palabras.Zbo_FaltaAjuste.arg(ajuste.clave, enteras[ajuste.indice].linea));
    }
    return falta;
}

// The reader goes by the number of a line alone.
bool RevisorDeAjustes::EnSuSitio()
{
    const auto empieza = [&](size_t indice, QStringView con) {
        return indice < m_lineas.size() && m_lineas[indice].linea.startsWith(con);
    };
    for (const LineaDeAjuste &ajuste : LineasDeAjustes) {
        if (empieza(ajuste.indice, ajuste.clave))
            continue;
        halla(u"setting-out-of-place"_s, ajuste.indice, m_palabras.Zbo_OtroAjuste.arg(ajuste.clave));
        return false;
    }
    if (!empieza(LineaDeFiltros, u"[Filters]"))
        halla(u"setting-out-of-place"_s, LineaDeFiltros, m_palabras.Zbo_OtroAjuste.arg(u"[Filters]"));
    return true;
}

bool dentroDe(const QString &valor, int maximo)
{
    bool bien = false;
    const int numero = valor.toInt(&bien);
    return bien && numero >= 0 && numero <= maximo;
}

// The last number that a setting takes.
int RevisorDeAjustes::Maximo(const LineaDeAjuste &ajuste) const
{
    if (ajuste.clave != u"LastSisUsed" && ajuste.clave != u"LastEmuUsed")
        return 1;
    if (M.Indice_Sistema < 0 || (M.*ajuste.valor).toInt() == core::NingunEmulador)
        return core::NingunEmulador;
    if (ajuste.clave == u"LastSisUsed")
        return M.Indice_Sistema;
    const std::vector<int> sistemas = core::SistemasEnOrden(M);
    const int sistema = M.UltimoSistema.toInt();
    if (sistema < 0 || sistema > M.Indice_Sistema)
        return core::NingunEmulador; // told already
    return std::max(core::TotalEmuladores(M, sistemas[static_cast<size_t>(sistema)]) - 1, 0);
}

void RevisorDeAjustes::Valores()
{
    for (const LineaDeAjuste &ajuste : LineasDeAjustes) {
        const QString &valor = M.*ajuste.valor;
        if (ajuste.clave == u"MsgEndDOS")
            continue;
        if (ajuste.clave == u"LanguageFile")
            Idioma(valor, ajuste.indice);
        else if (!dentroDe(valor, Maximo(ajuste)))
            halla(u"setting-out-of-range"_s, ajuste.indice,
                m_palabras.Zbo_ValorNumero.arg(
                    QString::number(Maximo(ajuste)), m_lineas[ajuste.indice].linea));
    }
}

void RevisorDeAjustes::Idioma(const QString &valor, size_t indice)
{
    const QStringList ficheros = core::FicherosDeIdioma();
    const bool esta =
        std::ranges::any_of(ficheros, [&](const QString &fichero) { return host::sameName(fichero, valor); });
    if (!esta)
        halla(u"setting-out-of-range"_s, indice, m_palabras.Zbo_ValorIdioma.arg(ficheros.join(u", "_s)));
}

void RevisorDeAjustes::Filtros()
{
    size_t filtros = 0;
    for (size_t i = LineaDeFiltros + 1; i < m_lineas.size() && !m_lineas[i].linea.isEmpty(); ++i) {
        const QString filtro = m_lineas[i].linea.toString();
        if (filtro == u"[EOF]")
            halla(u"setting-out-of-place"_s, i, m_palabras.Zbo_EOFFiltro);
        else if (filtro != host::upper(filtro) || filtro.startsWith(u' '))
            halla(u"useless-filter"_s, i, m_palabras.Zbo_FiltroMalo.arg(filtro));
        if (++filtros == core::FiltrosMirados)
            halla(u"too-many-filters"_s, i, m_palabras.Zbo_MuchosFiltros);
    }
}

} // namespace

void RevisaAjustes(Sesion &sesion, Revision &revision)
{
    core::Modulo &M = sesion.M;
    const auto sinAjustes = [&] {
        revision.push_back({ u"no-settings"_s, u"Zembro.cfg"_s, 0, {}, sesion.palabras.Zbo_SinAjustes });
    };
    M.Ficheros.closeAll();
    try {
        if (TextoDelPrograma(M, u"Zembro.cfg"_s).trimmed().isEmpty())
            return sinAjustes();
    } catch (const host::Failure &fallo) {
        if (fallo.number() != host::FileNotFound)
            throw;
        return sinAjustes();
    }
    RevisorDeAjustes revisor(sesion, revision);
    if (core::EsPrimeraVez(M) || revisor.Faltan())
        return;
    const bool enSuSitio = revisor.EnSuSitio();
    try {
        core::LeeAjustes(M);
    } catch (const host::Failure &fallo) {
        M.Ficheros.closeAll();
        revision.push_back({ u"unreadable-settings"_s, u"Zembro.cfg"_s, 0, {},
            sesion.palabras.Zbo_AjustesMal.arg(TextoDe(fallo, sesion.palabras)) });
        return;
    }
    if (enSuSitio)
        revisor.Valores();
    revisor.Filtros();
}

} // namespace companion
