#include "companion/pantalla.h"

#include <poll.h>

#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace companion {

PantallaDeTexto::PantallaDeTexto(const Sesion &sesion, Pareja pareja, int entradas, QString entrada)
    : m_sesion(sesion)
    , m_pareja(std::move(pareja))
    , m_entradas(entradas)
    , m_entrada(std::move(entrada))
{
}

// No time to wait: it has ended, and its number may be another's by now.
void PantallaDeTexto::Cede(int descriptor, int milisegundos)
{
    pollfd fin[] { { descriptor, POLLIN, 0 }, { m_senales ? m_senales->descriptor() : -1, POLLIN, 0 } };
    poll(fin, std::size(fin), milisegundos);
    while (const std::optional<int> senal = m_senales ? m_senales->take() : std::nullopt) {
        m_entregada = senal;
        if (milisegundos > 0)
            host::signalSession(m_emulador, *senal);
    }
}

void PantallaDeTexto::Aviso(const QString &titulo, const QString &texto)
{
    m_sesion.Avisa(titulo + u": "_s + texto);
}

std::optional<Pedida> JuegoPedido(Sesion &sesion)
{
    LeeMundo(sesion);
    const std::optional<Pareja> pedida = ParejaPedida(sesion, sesion.Argumento(0), sesion.Argumento(1));
    if (!pedida)
        return std::nullopt;
    const Pareja &pareja = *pedida;
    const QString texto = sesion.Argumento(2);
    const bool sinJuego = core::CargaSoloElEmulador(TipoDe(sesion.M, pareja));
    if (sinJuego && texto.isEmpty())
        return Pedida { pareja, 0, {} };
    const Listado listado = Lista(sesion, pareja);
    const std::optional<QString> entrada = EntradaPedida(sesion, pareja, listado, texto);
    if (!entrada)
        return std::nullopt;
    return Pedida { pareja, static_cast<int>(listado.recuento.entradas.size()), *entrada };
}

} // namespace companion
