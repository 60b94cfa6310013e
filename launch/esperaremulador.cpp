#include "launch/esperaremulador.h"

#include "host/process.h"
#include "host/windows.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace launch {

namespace {

constexpr auto Pausa = 250ms;

// Looks for the console that stayed open. Windows are searched four times a second at most, and always when
// told so.
class BuscadorDeConsola {
public:
    explicit BuscadorDeConsola(const core::Modulo &M)
        : m_modulo(M)
    {
    }

    void Pasada(bool siempre)
    {
        const auto ahora = std::chrono::steady_clock::now();
        if (m_modulo.MsgEndDOS.isEmpty() || (!siempre && ahora < m_siguiente))
            return;
        m_siguiente = ahora + Pausa;
        const host::WindowId ventana = host::findWindow(m_modulo.MsgEndDOS + u" - "_s + m_modulo.TituloDOS);
        if (ventana != 0)
            host::closeWindow(ventana);
    }

private:
    const core::Modulo &m_modulo;
    std::chrono::steady_clock::time_point m_siguiente {};
};

} // namespace

void EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const LineaDeOrden &orden)
{
    host::Process proceso = host::Process::start(orden.Argumentos());
    BuscadorDeConsola consola(M);
    bool terminado = false;
    do {
        terminado = proceso.hasEnded();
        pantalla.Cede(proceso.endDescriptor(), terminado ? 0 : int(Pausa.count()));
        pantalla.InfoEnNegro();
        if (pantalla.EntradasLista1() == 0)
            pantalla.MuestraNingunaROM();
        pantalla.LLena_INFO();
        consola.Pasada(terminado);
    } while (!terminado);
}

} // namespace launch
