// Zembro.rom: the notes of each system, and the parameters of single games.
#include "companion/revision.h"

#include "core/clasedeprograma.h"
#include "core/lineas.h"
#include "core/lineasvacias.h"
#include "core/notas.h"
#include "core/notasremendadas.h"
#include "core/remiendos.h"
#include "core/repetidos.h"
#include "core/romelegida.h"
#include "core/rutas.h"

#include "host/letters.h"
#include "host/paths.h"
#include "host/textsource.h"

#include "launch/piezas.h"

#include <QSet>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

const QString Fichero = u"Zembro.rom"_s;
constexpr qsizetype CamposDeNota = 2;
constexpr qsizetype CamposDeParametros = 4;

// A line as the field reader takes it.
struct Registro {
    QStringList campos;
    bool abierto = false; // double quotes that the line doesn't close
    bool cortado = false; // text behind closing double quotes, which nobody reads
};

Registro registroDe(const QString &linea)
{
    Registro registro;
    host::TextSource fuente(linea);
    while (!fuente.atEnd()) {
        const QStringView resto = fuente.rest().trimmed();
        const qsizetype cierre = resto.startsWith(u'"') ? resto.indexOf(u'"', 1) : 0;
        registro.abierto = registro.abierto || cierre < 0;
        if (cierre > 0) {
            const QStringView detras = resto.sliced(cierre + 1);
            const qsizetype coma = detras.indexOf(u',');
            registro.cortado =
                registro.cortado || !detras.first(coma < 0 ? detras.size() : coma).trimmed().isEmpty();
        }
        registro.campos += fuente.readField();
    }
    return registro;
}

// The index of the heading of the parameters, or behind the last line.
size_t cabeceraDeParametros(const std::vector<core::LineaConFin> &lineas)
{
    const auto cabecera = std::ranges::find_if(lineas,
        [](const core::LineaConFin &linea) { return linea.linea.startsWith(core::CabeceraParametros); });
    return static_cast<size_t>(cabecera - lineas.begin());
}

// The names in the directories of games of a system's emulators.
class Ficheros {
public:
    Ficheros(const core::Modulo &M, const QString &sistema)
    {
        for (const Pareja &pareja : Parejas(M)) {
            if (pareja.nombreSistema != sistema)
                continue;
            try {
                const QString directorio = DirectorioDeJuegos(M, pareja);
                for (const QString &nombre : host::listFilesAndDirectories(directorio))
                    m_nombres.insert(host::upper(nombre));
                m_hay = true;
                m_enDOS += launch::ClavesEnDOS(
                    core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila)), directorio);
            } catch (const host::Failure &) {
                m_todos = false; // told of the pair
            }
        }
    }

    // False too where a directory can't be listed.
    bool Falta(const QString &clave) const
    {
        const QString mayus = host::upper(clave);
        return m_hay && m_todos && !m_nombres.contains(mayus) && !m_nombres.contains(mayus + u".ZIP"_s);
    }

    // Under a name of DOS, which a launch in it looks for.
    bool EsDeDOS(const QString &clave) const { return m_enDOS.contains(host::upper(clave)); }

private:
    QSet<QString> m_nombres;
    QSet<QString> m_enDOS;
    bool m_hay = false;
    bool m_todos = true;
};

class RevisorDeNotas {
public:
    // The lines are views into the text.
    RevisorDeNotas(const Sesion &sesion, const QString &texto, const std::vector<core::LineaConFin> &lineas,
        const QStringList &sistemas, Revision &revision)
        : M(sesion.M)
        , m_palabras(sesion.palabras)
        , m_texto(texto)
        , m_lineas(lineas)
        , m_sistemas(sistemas)
        , m_parametros(cabeceraDeParametros(lineas))
        , m_revision(revision)
    {
    }

    void Sistema(const QString &sistema, size_t desde);
    void Ajenas();
    void Parametros();

private:
    void halla(const QString &clase, const QString &dicho, size_t indice)
    {
        m_revision.push_back({ clase, Fichero, static_cast<int>(indice) + 1, {}, dicho });
    }
    bool estaEntero(const QString &linea, const Registro &registro, qsizetype campos, size_t indice);
    void parametrosDe(const QStringList &campos, size_t indice);
    const Ficheros &ficherosDe(const QString &sistema);

    const core::Modulo &M;
    const Palabras &m_palabras;
    const QString &m_texto;
    const std::vector<core::LineaConFin> &m_lineas;
    const QStringList m_sistemas; // known ones
    const size_t m_parametros; // the index of their heading
    Revision &m_revision;
    std::map<QString, Ficheros> m_ficheros;
    QSet<QString> m_anotadas; // keys of the notes, in upper case
    const std::unique_ptr<core::Modulo> m_sinNotas = std::make_unique<core::Modulo>();
};

const Ficheros &RevisorDeNotas::ficherosDe(const QString &sistema)
{
    auto suyos = m_ficheros.find(sistema);
    if (suyos == m_ficheros.end())
        suyos = m_ficheros.emplace(sistema, Ficheros(M, sistema)).first;
    return suyos->second;
}

bool RevisorDeNotas::estaEntero(
    const QString &linea, const Registro &registro, qsizetype campos, size_t indice)
{
    if (registro.abierto)
        halla(u"open-quotes"_s, m_palabras.Zbo_SinCerrar.arg(linea), indice);
    else if (registro.campos.size() != campos)
        halla(u"cut-record"_s, m_palabras.Zbo_Cortado.arg(linea), indice);
    else if (registro.campos.first().isEmpty())
        halla(u"no-name"_s, m_palabras.Zbo_SinClaveReg.arg(linea), indice);
    else {
        if (registro.cortado)
            halla(u"cut-record"_s, m_palabras.Zbo_TrasComillas.arg(linea), indice);
        return true;
    }
    return false;
}

// The records of one system, up to its apostrophe.
void RevisorDeNotas::Sistema(const QString &sistema, size_t desde)
{
    QSet<QString> vistas;
    int cuantas = 0;
    for (size_t i = desde; i < m_lineas.size(); ++i) {
        const QString linea = m_lineas[i].linea.toString();
        const Registro registro = registroDe(linea);
        if (registro.campos.value(0) == u"'" || core::AcabaLosSistemas(m_lineas, i, m_sistemas))
            return;
        // The table needs an empty one behind them. None of them shows then, so the rest can wait.
        if (!linea.isEmpty() && ++cuantas == core::MaxROMs)
            return halla(
                u"too-many-notes"_s, m_palabras.Zbo_MuchasNotas.arg(sistema).arg(core::MaxROMs - 1), i);
        if (m_sistemas.contains(linea))
            continue; // the block that it should have ended is a finding, and so is a second one
        if (linea.isEmpty() || !estaEntero(linea, registro, CamposDeNota, i))
            continue;
        const QString &clave = registro.campos.first();
        const QString mayus = host::upper(clave);
        if (vistas.contains(mayus))
            halla(u"name-twice"_s, m_palabras.Zbo_Repetido.arg(clave), i);
        else if (ficherosDe(sistema).Falta(clave))
            halla(u"note-without-file"_s, m_palabras.Zbo_SinFichero.arg(clave), i);
        vistas.insert(mayus);
        m_anotadas.insert(mayus);
    }
}

// Notes that no system's name stands above, and blocks of notes that no system bears the name of.
void RevisorDeNotas::Ajenas()
{
    const std::vector<core::SinCierre> tramos = core::NotasSinNombre(m_texto, m_sistemas);
    for (const core::SinCierre &tramo : tramos)
        halla(u"notes-without-name"_s, m_palabras.Zbo_SinCabecera.arg(m_lineas[tramo.inicio].linea),
            tramo.inicio);
    bool dentro = false;
    for (size_t i = 0; i < m_lineas.size(); ++i) {
        const QString linea = m_lineas[i].linea.toString();
        if (core::AcabaLosSistemas(m_lineas, i, m_sistemas) || i == m_parametros)
            return;
        const bool cabecera = m_sistemas.contains(linea);
        const bool suelta = std::ranges::any_of(
            tramos, [i](const core::SinCierre &tramo) { return i >= tramo.inicio && i < tramo.fin; });
        const bool cierra = core::CierraLasNotas(linea);
        const bool dice = !cierra && !linea.trimmed().isEmpty() && !linea.startsWith(u'\'');
        if (!dentro && !suelta && !cabecera && dice)
            halla(u"unknown-system"_s, m_palabras.Zbo_NotasAjenas.arg(linea), i);
        dentro = (dentro && !cierra) || (!suelta && dice);
    }
}

void RevisorDeNotas::parametrosDe(const QStringList &campos, size_t indice)
{
    const QString &clave = campos[0];
    if (campos[3].count(u'"') % 2 != 0)
        halla(u"open-quotes"_s, m_palabras.Zbo_ParComillas.arg(campos[3]), indice);
    const auto esSuya = [&](const Pareja &pareja) {
        return host::sameName(pareja.nombreSistema, campos[1])
            && host::sameName(pareja.nombreEmulador, campos[2]);
    };
    const std::vector<Pareja> parejas = Parejas(M);
    if (parejas.empty())
        return; // the catalogue has a finding of its own
    const auto suya = std::ranges::find_if(parejas, esSuya);
    if (suya == parejas.end())
        return halla(
            u"parameters-of-nobody"_s, m_palabras.Zbo_ParDeNadie.arg(clave, campos[1], campos[2]), indice);
    const Ficheros &ficheros = ficherosDe(suya->nombreSistema);
    const bool anotada = m_anotadas.contains(host::upper(clave));
    const bool enDOS = !anotada
        && core::ClaseDe(core::RutaDeLinea(M.Cat_EXE(suya->sistema, suya->fila)))
            == core::ClaseDePrograma::DOS;
    if (enDOS ? ficheros.EsDeDOS(clave) : !ficheros.Falta(clave)) {
        if (!anotada && !enDOS && !core::SeEncuentranSusParametros(*m_sinNotas, clave))
            halla(u"lost-parameters"_s, m_palabras.Zbo_ParPerdidos.arg(clave), indice);
    } else if (ficheros.Falta(clave)) {
        halla(u"parameters-without-file"_s, m_palabras.Zbo_ParSinFich.arg(clave), indice);
    } else {
        halla(u"lost-parameters"_s, m_palabras.Zbo_ParPerdidos.arg(clave), indice);
    }
}

void RevisorDeNotas::Parametros()
{
    const size_t fin = core::FinDeLosParametros(m_lineas);
    for (size_t i = m_parametros + 1; i < fin; ++i) {
        const QString linea = m_lineas[i].linea.toString();
        const Registro registro = registroDe(linea);
        if (registro.campos.value(0) == u"'")
            return;
        if (!linea.isEmpty() && estaEntero(linea, registro, CamposDeParametros, i))
            parametrosDe(registro.campos, i);
    }
    if (const std::optional<size_t> inicio = core::ParametrosSinCierre(m_texto))
        halla(u"block-without-end"_s, m_palabras.Zbo_SinCierrePar, *inicio);
    else
        halla(u"missing-mark"_s, m_palabras.Zbo_SinSeccion, std::max<size_t>(m_lineas.size(), 1) - 1);
}

// The systems of the catalogue, each once.
QStringList sistemasDe(const core::Modulo &M)
{
    QStringList nombres;
    for (const Pareja &pareja : Parejas(M))
        nombres += pareja.nombreSistema;
    nombres.removeDuplicates();
    return nombres;
}

// Without it nothing tells which blocks are nobody's.
bool hayBaseDeDatos(const core::Modulo &M)
{
    try {
        return TextoDelPrograma(M, u"Zembro.sye"_s).contains(u'-');
    } catch (const host::Failure &) {
        return false; // a finding of its own
    }
}

void Repetidos(
    const Palabras &palabras, const QString &texto, const QStringList &sistemas, Revision &revision)
{
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    const auto halla = [&](const QString &clase, const QString &dicho, const core::Repetido &uno) {
        revision.push_back({ clase, Fichero, static_cast<int>(uno.otro) + 1, {},
            dicho.arg(lineas[uno.otro].linea.toString()), static_cast<int>(uno.primero) + 1 });
    };
    for (const core::Repetido &uno : core::BloquesRepetidos(texto, sistemas))
        halla(u"block-twice"_s, palabras.Zbo_BloqueDoble, uno);
    for (const core::Repetido &uno : core::ParametrosRepetidos(texto))
        halla(u"parameters-twice"_s, palabras.Zbo_ParDobles, uno);
}

} // namespace

void RevisaNotas(Sesion &sesion, Revision &revision)
{
    const QString texto = TextoDelPrograma(sesion.M, Fichero);
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    const QStringList conocidos = SistemasConocidos(sesion.M);
    const int ultima = static_cast<int>(lineas.size());
    for (const core::SinCierre &hueco : core::NotasSinCierre(texto, conocidos))
        revision.push_back({ u"block-without-end"_s, Fichero, static_cast<int>(hueco.inicio) + 1, {},
            sesion.palabras.Zbo_SinApostrofo.arg(lineas[hueco.inicio].linea) });
    for (const size_t vacia : core::VaciasEntreRegistros(texto, conocidos))
        revision.push_back(
            { u"blank-line"_s, Fichero, static_cast<int>(vacia) + 1, {}, sesion.palabras.Zbo_LineaVacia });
    RevisorDeNotas revisor(sesion, texto, lineas, conocidos, revision);
    for (const QString &sistema : sistemasDe(sesion.M)) {
        const auto suya = std::ranges::find_if(
            lineas, [&](const core::LineaConFin &linea) { return linea.linea == sistema; });
        if (suya == lineas.end())
            revision.push_back({ u"system-without-notes"_s, Fichero, ultima, {},
                sesion.palabras.Zbo_SinNotas.arg(sistema) });
        else
            revisor.Sistema(sistema, static_cast<size_t>(suya - lineas.begin()) + 1);
    }
    if (hayBaseDeDatos(sesion.M))
        revisor.Ajenas();
    if (!core::TieneMarcaDeNotas(texto, conocidos))
        revision.push_back({ u"missing-mark"_s, Fichero,
            std::min(static_cast<int>(cabeceraDeParametros(lineas)) + 1, ultima), {},
            sesion.palabras.Zbo_SinMarcaNot });
    revisor.Parametros();
    Repetidos(sesion.palabras, texto, conocidos, revision);
}

} // namespace companion
