#include "companion/jugada.h"

#include "companion/pantalla.h"
#include "companion/porque.h"
#include "companion/preguntas.h"

#include "launch/jugar.h"

#include "host/descriptor.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// As a shell tells of a program that a signal has ended.
constexpr int SobreSenal = 128;

// While it stands, what programs that are started write to the standard output goes to the standard error:
// there the answer stands alone.
class SalidaReservada {
public:
    explicit SalidaReservada(bool reserva)
    {
        if (!reserva)
            return;
        std::fflush(stdout);
        m_salida = host::Descriptor(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
        if (m_salida.isOpen())
            dup2(STDERR_FILENO, STDOUT_FILENO);
    }
    ~SalidaReservada()
    {
        if (m_salida.isOpen())
            dup2(m_salida.number(), STDOUT_FILENO);
    }
    SalidaReservada(const SalidaReservada &) = delete;
    SalidaReservada &operator=(const SalidaReservada &) = delete;

private:
    host::Descriptor m_salida;
};

launch::Partida juega(Sesion &sesion, launch::Pantalla &pantalla)
{
    const SalidaReservada reservada(sesion.EnJson());
    return launch::Jugar(sesion.M, pantalla, [](const QString &) {});
}

int estadoDe(const launch::Partida &partida)
{
    if (!partida.fallo.isEmpty() || partida.argumentos.isEmpty())
        return NoPudo;
    return partida.final.signal ? SobreSenal + *partida.final.signal : partida.final.status.value_or(NoPudo);
}

int hazJugada(Sesion &sesion)
{
    const std::optional<Pedida> pedida = JuegoPedido(sesion);
    if (!pedida)
        return NoPudo;
    const PreguntasDeTexto preguntas(sesion);
    host::CaughtSignals senales;
    PantallaDeTexto pantalla(sesion, pedida->pareja, pedida->entradas, pedida->entrada);
    pantalla.Entrega(senales);
    launch::Partida partida = juega(sesion, pantalla);
    if (partida.argumentos.isEmpty() && partida.fallo.isEmpty())
        partida.fallo = sesion.palabras.Zbo_NadaSeLanza;
    if (sesion.EnJson()) {
        sesion.Json(PartidaEnJson(partida, sesion.palabras));
    } else {
        // Of a good end the last line: that, and after how long.
        const QStringList lineas = CuentaPartida(partida, sesion.palabras);
        for (const QString &linea : AcaboBien(partida) ? lineas.last(1) : lineas)
            sesion.Avisa(linea);
    }
    return pantalla.Entregada() ? SobreSenal + *pantalla.Entregada() : estadoDe(partida);
}

} // namespace

const Orden &OrdenJugada()
{
    static const Orden orden { u"play"_s, u"SYSTEM EMULATOR [ENTRY]"_s, &Palabras::Zbo_Play, {}, hazJugada };
    return orden;
}

} // namespace companion
