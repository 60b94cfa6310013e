#include "launch/esperaremulador.h"

#include "launch/ritmo.h"

#include "host/windows.h"

using namespace Qt::StringLiterals;

namespace launch {

namespace {

// The console's title as it is now: handlers that run meanwhile may have changed it.
void cierraConsola(const core::Modulo &M)
{
    const host::WindowId ventana = host::findWindow(M.MsgEndDOS + u" - "_s + M.TituloDOS);
    if (ventana != 0)
        host::closeWindow(ventana);
}

} // namespace

void Vigila(core::Modulo &M, host::Process proceso, const std::function<void(int, int)> &cede,
    const std::function<void()> &pasada)
{
    RitmoDeBusqueda ritmo;
    bool terminado = false;
    do {
        terminado = proceso.hasEnded();
        cede(proceso.endDescriptor(), terminado ? 0 : int(RitmoDeBusqueda::Pausa.count()));
        pasada();
        if (!M.MsgEndDOS.isEmpty() && ritmo.Toca(std::chrono::steady_clock::now(), terminado))
            cierraConsola(M);
    } while (!terminado);
}

void EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const LineaDeOrden &orden)
{
    Vigila(
        M, host::Process::start(orden.Argumentos()),
        [&pantalla](int descriptor, int milisegundos) { pantalla.Cede(descriptor, milisegundos); },
        [&pantalla] {
            pantalla.InfoEnNegro();
            if (pantalla.EntradasLista1() == 0)
                pantalla.MuestraNingunaROM();
            pantalla.LLena_INFO();
        });
}

} // namespace launch
