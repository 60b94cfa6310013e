#include "launch/esperaremulador.h"

#include "launch/ritmo.h"

#include "host/process.h"
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

void EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const LineaDeOrden &orden)
{
    host::Process proceso = host::Process::start(orden.Argumentos());
    RitmoDeBusqueda ritmo;
    bool terminado = false;
    do {
        terminado = proceso.hasEnded();
        pantalla.Cede(proceso.endDescriptor(), terminado ? 0 : int(RitmoDeBusqueda::Pausa.count()));
        pantalla.InfoEnNegro();
        if (pantalla.EntradasLista1() == 0)
            pantalla.MuestraNingunaROM();
        pantalla.LLena_INFO();
        if (!M.MsgEndDOS.isEmpty() && ritmo.Toca(std::chrono::steady_clock::now(), terminado))
            cierraConsola(M);
    } while (!terminado);
}

} // namespace launch
