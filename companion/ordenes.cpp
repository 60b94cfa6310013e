#include "companion/ordenes.h"

#include "companion/adopcion.h"
#include "companion/ayuda.h"
#include "companion/capturas.h"
#include "companion/descripcion.h"
#include "companion/dicho.h"
#include "companion/encuentra.h"
#include "companion/exportacion.h"
#include "companion/jugada.h"
#include "companion/lista.h"
#include "companion/mudanza.h"
#include "companion/porque.h"
#include "companion/reposicion.h"
#include "companion/revisa.h"

#include <algorithm>

namespace companion {

std::span<const Orden *const> Ordenes()
{
    static const Orden *const ordenes[] = {
        &OrdenRevisa(),
        &OrdenDicha(),
        &OrdenJugada(),
        &OrdenPorque(),
        &OrdenEncuentra(),
        &OrdenLista(),
        &OrdenMudanza(),
        &OrdenGuardar(),
        &OrdenReponer(),
        &OrdenDescribir(),
        &OrdenCapturas(),
        &OrdenExportar(),
        &OrdenAdopcion(),
        &OrdenAyuda(),
    };
    return ordenes;
}

const Orden *OrdenDe(const QString &nombre)
{
    const std::span<const Orden *const> ordenes = Ordenes();
    const auto suya =
        std::ranges::find_if(ordenes, [&](const Orden *orden) { return orden->nombre == nombre; });
    return suya == ordenes.end() ? nullptr : *suya;
}

} // namespace companion
