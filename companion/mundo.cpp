#include "companion/mundo.h"

#include "companion/captura.h"
#include "companion/eleccion.h"

#include "core/catalogo.h"
#include "core/info.h"
#include "core/listado.h"
#include "core/notas.h"
#include "core/romelegida.h"
#include "core/rutas.h"

#include "host/lengths.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// What can't be had is left out.
template <typename Pregunta> void siSePuede(Pregunta &&pregunta)
{
    try {
        pregunta();
    } catch (const host::Failure &) {
        // It stays as it is.
    }
}

// The one position that is meant; else says why not.
std::optional<qsizetype> elUnico(
    const Sesion &sesion, const QStringList &nombres, const QString &texto, const QString &ninguno)
{
    const QList<qsizetype> posiciones = Candidatos(nombres, texto);
    if (posiciones.size() == 1)
        return posiciones.first();
    const Palabras &palabras = sesion.palabras;
    if (posiciones.isEmpty()) {
        sesion.Falla(ninguno.arg(texto.isEmpty() ? u"\"\""_s : texto));
        return std::nullopt;
    }
    QStringList lineas { texto.isEmpty() ? palabras.Zbo_Cuales : palabras.Zbo_Varios.arg(texto) };
    for (const qsizetype i : posiciones)
        lineas += nombres[i];
    sesion.Falla(lineas);
    return std::nullopt;
}

// Leaves those of the one name that is meant; none, told already, where it can't be told which.
void quedaUno(const Sesion &sesion, std::vector<Pareja> &parejas, QString Pareja::*nombre,
    const QString &texto, const QString &ninguno)
{
    QStringList nombres;
    for (const Pareja &pareja : parejas)
        nombres += pareja.*nombre;
    const std::optional<qsizetype> suya = elUnico(sesion, nombres, texto, ninguno);
    const QString elegido = suya ? nombres[*suya] : QString();
    std::erase_if(parejas, [&](const Pareja &pareja) { return !suya || pareja.*nombre != elegido; });
}

} // namespace

void LeeMundo(Sesion &sesion)
{
    core::Modulo &M = sesion.M;
    M.Ficheros.closeAll();
    core::LeeCatalogo(M);
    M.TotalSistemas = M.Indice_Sistema + 1;
}

std::vector<Pareja> Parejas(const core::Modulo &M)
{
    std::vector<Pareja> parejas;
    if (M.Indice_Sistema < 0)
        return parejas;
    for (const int sistema : core::SistemasEnOrden(M)) {
        for (const int fila : core::EmuladoresEnOrden(M, sistema))
            parejas.push_back({ sistema, fila, core::Valor(M.Cat_Nombre(sistema, 0), 1),
                core::Valor(M.Cat_Nombre(sistema, fila), 1) });
    }
    return parejas;
}

std::vector<Pareja> ParejasPedidas(Sesion &sesion, const QString &sistema, const QString &emulador)
{
    if (!sistema.isEmpty())
        return ParejasDelSistema(sesion, sistema, emulador);
    std::vector<Pareja> parejas = Parejas(sesion.M);
    if (!emulador.isEmpty() && !parejas.empty())
        quedaUno(sesion, parejas, &Pareja::nombreEmulador, emulador, sesion.palabras.Zbo_NoEmulador);
    return parejas;
}

std::vector<Pareja> ParejasDelSistema(Sesion &sesion, const QString &sistema, const QString &emulador)
{
    std::vector<Pareja> parejas = Parejas(sesion.M);
    quedaUno(sesion, parejas, &Pareja::nombreSistema, sistema, sesion.palabras.Zbo_NoSistema);
    if (!emulador.isEmpty() && !parejas.empty())
        quedaUno(sesion, parejas, &Pareja::nombreEmulador, emulador, sesion.palabras.Zbo_NoEmulador);
    return parejas;
}

std::optional<Pareja> ParejaPedida(Sesion &sesion, const QString &sistema, const QString &emulador)
{
    std::vector<Pareja> parejas = ParejasDelSistema(sesion, sistema, {});
    if (!parejas.empty())
        quedaUno(sesion, parejas, &Pareja::nombreEmulador, emulador, sesion.palabras.Zbo_NoEmulador);
    return parejas.empty() ? std::nullopt : std::optional(parejas.front());
}

QString DirectorioDeJuegos(const core::Modulo &M, const Pareja &pareja)
{
    return core::RutaDeLinea(M.Cat_ROM(pareja.sistema, pareja.fila));
}

QString DirectorioDeCapturas(const core::Modulo &M, const Pareja &pareja)
{
    return core::RutaExigida(M.Cat_IMG(pareja.sistema, pareja.fila));
}

int TipoDe(const core::Modulo &M, const Pareja &pareja)
{
    return core::Numero(core::TipoDe(M.Cat_XDI(pareja.sistema, pareja.fila)));
}

QString ProgramaPegado(const core::Modulo &M, const Pareja &pareja)
{
    const QString parametros = core::Valor(M.Cat_PAR1(pareja.sistema, pareja.fila), core::PrefijoParametro);
    const QString exe = core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila));
    const bool pegado =
        core::CargaSoloElEmulador(TipoDe(M, pareja)) && !parametros.isEmpty() && !parametros.startsWith(u' ');
    return pegado ? exe.sliced(host::lastSeparator(exe) + 1) + host::lower(parametros) : QString();
}

Listado Lista(Sesion &sesion, const Pareja &pareja)
{
    core::Modulo &M = sesion.M;
    M.Ficheros.closeAll();
    const auto cierra = qScopeGuard([&M] { M.Ficheros.closeAll(); }); // what a failure leaves open
    core::VaciaLista(M);
    Listado listado { core::ListaDe(M, pareja.sistema, pareja.fila, pareja.nombreSistema), {} };
    const core::Recuento &recuento = listado.recuento;
    listado.resumen = recuento.exploradas == 0
        ? core::ResumenVacio
        : core::Resumen(TipoDe(M, pareja), recuento.entradas.size(), recuento, M.TXT_Directorios);
    return listado;
}

LectorDeJuegos::LectorDeJuegos(const core::Modulo &modulo, const Pareja &pareja)
    : M(modulo)
    , m_tipo(TipoDe(modulo, pareja))
    , m_directorio(DirectorioDeJuegos(modulo, pareja))
    , m_notas(modulo)
    , m_largos(m_directorio)
    , m_nombres(m_directorio)
{
    siSePuede([&] {
        m_deCapturas = DirectorioDeCapturas(M, pareja);
        m_capturas.emplace(*m_deCapturas);
    });
}

QString LectorDeJuegos::RutaDe(const QString &entrada) const
{
    return m_directorio + core::FicheroDeEntrada(M, m_tipo, entrada, m_notas.Primera(entrada));
}

QString LectorDeJuegos::FicheroDe(const QString &entrada) const
{
    // A launch looks for it in lower case, so that of names that differ in case alone one is played.
    const QString ruta = RutaDe(entrada);
    QString enDisco = m_nombres.trueSpelling(m_directorio + host::lower(ruta.sliced(m_directorio.size())));
    if (enDisco.isEmpty())
        enDisco = m_nombres.trueSpelling(ruta);
    // Found paths are cut at the slash alone: a backslash in one belongs to a name.
    return enDisco.sliced(enDisco.lastIndexOf(u'/') + 1);
}

// It shows only where each of them can be read.
QString LectorDeJuegos::capturaDe(const QString &entrada) const
{
    QString ruta;
    if (!m_deCapturas)
        return ruta;
    siSePuede([&] {
        for (const QString &suya : core::CapturasDe(m_notas, entrada, m_tipo, *m_deCapturas)) {
            ruta = m_capturas->trueSpelling(suya);
            if (!ruta.isEmpty() && !SeMuestra(ruta))
                ruta.clear();
            if (ruta.isEmpty())
                return;
        }
    });
    return ruta;
}

QString LectorDeJuegos::CapturaBuscada(const QString &entrada) const
{
    QString ruta;
    siSePuede([&] {
        const QStringList rutas =
            core::CapturasDe(m_notas, entrada, m_tipo, m_deCapturas.value_or(QString()));
        ruta = rutas.isEmpty() ? QString() : rutas.last();
    });
    return ruta;
}

Juego LectorDeJuegos::De(const QString &entrada) const
{
    Juego juego { entrada, m_notas.Primera(entrada) >= 0, FicheroDe(entrada), {}, {}, capturaDe(entrada) };
    if (!core::UnDirectorioPorJuego(m_tipo))
        siSePuede([&] { juego.bytes = m_largos(RutaDe(entrada)); });
    siSePuede([&] {
        juego.datos = core::UltimaLineaDeInfo(
            m_notas, entrada, m_tipo, m_directorio,
            [&](const QStringList &nombres) { return m_largos.ofAll(nombres); },
            [&](const QString &ruta) { return m_largos.lists(ruta); });
    });
    return juego;
}

std::optional<QString> EntradaPedida(
    const Sesion &sesion, const Pareja &pareja, const Listado &listado, const QString &texto)
{
    const QStringList &entradas = listado.recuento.entradas;
    if (entradas.isEmpty() && texto.isEmpty()) {
        sesion.Falla(sesion.palabras.Zbo_NadaSeLanza);
        return std::nullopt;
    }
    // The whole name of a file is meant ahead of a part of another entry.
    if (PosicionDeNombre(entradas, texto) < 0) {
        const LectorDeJuegos juegos(sesion.M, pareja);
        QStringList ficheros;
        for (const QString &entrada : entradas)
            ficheros += juegos.FicheroDe(entrada);
        const qsizetype suyo = PosicionDeNombre(ficheros, texto);
        if (suyo >= 0)
            return entradas[suyo];
    }
    const std::optional<qsizetype> suya = elUnico(sesion, entradas, texto, sesion.palabras.Zbo_NoJuego);
    return suya ? std::optional(entradas[*suya]) : std::nullopt;
}

} // namespace companion
