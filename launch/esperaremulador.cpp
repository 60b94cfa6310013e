#include "launch/esperaremulador.h"

#include "launch/ritmo.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace launch {

host::ProcessEnd Vigila(core::Modulo &M, host::Process proceso, const std::function<void(int, int)> &cede,
    const std::function<void()> &pasada, const std::function<void(const QString &)> &cierra)
{
    RitmoDeBusqueda ritmo;
    bool terminado = false;
    do {
        terminado = proceso.hasEnded();
        cede(proceso.endDescriptor(), terminado ? 0 : int(RitmoDeBusqueda::Pausa.count()));
        pasada();
        // The console's title as it is now: handlers that ran meanwhile may have changed it.
        if (!M.MsgEndDOS.isEmpty() && ritmo.Toca(std::chrono::steady_clock::now(), terminado))
            cierra(M.MsgEndDOS + u" - "_s + M.TituloDOS);
    } while (!terminado);
    return proceso.end();
}

host::ProcessEnd EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const LineaDeOrden &orden)
{
    return EsperarEmulador(M, pantalla, orden.Argumentos());
}

host::ProcessEnd EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const QStringList &argumentos)
{
    host::Process proceso = host::Process::start(argumentos);
    pantalla.EnMarcha(proceso.id());
    return Vigila(
        M, std::move(proceso),
        [&pantalla](int descriptor, int milisegundos) { pantalla.Cede(descriptor, milisegundos); },
        [&pantalla] {
            pantalla.InfoEnNegro();
            if (pantalla.EntradasLista1() == 0)
                pantalla.MuestraNingunaROM();
            pantalla.LLena_INFO();
        },
        [&pantalla](const QString &titulo) { pantalla.CierraVentana(titulo); });
}

} // namespace launch
