#include "companion/jugada.h"

#include "companion/pantalla.h"
#include "companion/porque.h"
#include "companion/preguntas.h"

#include "launch/jugar.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// As a shell tells of a program that a signal has ended.
constexpr int SobreSenal = 128;

int estadoDe(const launch::Partida &partida)
{
    if (!partida.fallo.isEmpty() || partida.argumentos.isEmpty())
        return NoPudo;
    return partida.final.signal ? SobreSenal + *partida.final.signal : partida.final.status.value_or(NoPudo);
}

int juega(Sesion &sesion)
{
    const std::optional<Pedida> pedida = JuegoPedido(sesion);
    if (!pedida)
        return NoPudo;
    const PreguntasDeTexto preguntas(sesion);
    PantallaDeTexto pantalla(sesion, pedida->pareja, pedida->entradas, pedida->entrada);
    launch::Partida partida = launch::Jugar(sesion.M, pantalla, [](const QString &) {});
    if (partida.argumentos.isEmpty() && partida.fallo.isEmpty())
        partida.fallo = sesion.palabras.Zbo_NadaSeLanza;
    if (sesion.EnJson()) {
        sesion.Json(PartidaEnJson(partida));
    } else if (!AcaboBien(partida)) {
        for (const QString &linea : CuentaPartida(partida, sesion.palabras))
            sesion.Avisa(linea);
    }
    return estadoDe(partida);
}

} // namespace

const Orden &OrdenJugada()
{
    static const Orden orden { u"play"_s, u"SYSTEM EMULATOR [ENTRY]"_s, &Palabras::Zbo_Play, {}, juega };
    return orden;
}

} // namespace companion
