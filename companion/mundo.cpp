#include "companion/mundo.h"

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

QString capturaDe(const core::Modulo &M, const Pareja &pareja, const QString &entrada)
{
    QString ruta;
    siSePuede([&] {
        const QStringList rutas =
            core::CapturasDe(M, entrada, TipoDe(M, pareja), DirectorioDeCapturas(M, pareja));
        ruta = rutas.isEmpty() ? QString() : rutas.last();
    });
    return ruta.isEmpty() ? QString() : host::trueSpelling(ruta);
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

Listado Lista(Sesion &sesion, const Pareja &pareja)
{
    core::Modulo &M = sesion.M;
    M.Ficheros.closeAll();
    core::VaciaLista(M);
    Listado listado { core::ListaDe(M, pareja.sistema, pareja.fila, pareja.nombreSistema), {} };
    const core::Recuento &recuento = listado.recuento;
    listado.resumen = recuento.exploradas == 0
        ? core::ResumenVacio
        : core::Resumen(TipoDe(M, pareja), recuento.entradas.size(), recuento, M.TXT_Directorios);
    return listado;
}

Juego JuegoDe(const core::Modulo &M, const Pareja &pareja, const QString &entrada)
{
    const int tipo = TipoDe(M, pareja);
    const QString directorio = DirectorioDeJuegos(M, pareja);
    Juego juego { entrada, false, {}, {}, {}, capturaDe(M, pareja, entrada) };
    siSePuede([&] { juego.descrito = core::NotaConTexto(M, entrada) >= 0; });
    siSePuede([&] {
        const QString ruta = directorio + core::FicheroDeEntrada(M, tipo, entrada);
        const QString enDisco = host::trueSpelling(ruta);
        juego.fichero = enDisco.sliced(host::lastSeparator(enDisco) + 1);
        if (!core::UnDirectorioPorJuego(tipo))
            juego.bytes = host::fileLength(ruta);
    });
    siSePuede([&] {
        const host::LengthsIn largos(directorio);
        juego.datos = core::UltimaLineaDeInfo(
            M, entrada, tipo, directorio, [&](const QStringList &nombres) { return largos.ofAll(nombres); },
            [&](const QString &ruta) { return largos.lists(ruta); });
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
    if (Candidatos(entradas, texto).isEmpty()) {
        for (const QString &entrada : entradas) {
            if (host::sameName(JuegoDe(sesion.M, pareja, entrada).fichero, texto))
                return entrada;
        }
    }
    const std::optional<qsizetype> suya = elUnico(sesion, entradas, texto, sesion.palabras.Zbo_NoJuego);
    return suya ? std::optional(entradas[*suya]) : std::nullopt;
}

} // namespace companion
