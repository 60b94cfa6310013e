#include "core/parrom.h"

#include "core/notas.h"

#include "host/letters.h"

namespace core {

namespace {

bool pasaALaSeccion(host::TextSource &fuente)
{
    while (!fuente.atEnd()) {
        if (fuente.readLine().startsWith(u"Parametros"))
            return true;
    }
    return false;
}

} // namespace

QString ParametrosDe(host::TextSource &fuente, const QString &clave)
{
    if (!pasaALaSeccion(fuente))
        return {};
    while (!fuente.atEnd()) {
        const QString claveLeida = fuente.readField();
        if (claveLeida == u"'")
            return {};
        CampoOVacio(fuente); // the system
        CampoOVacio(fuente); // the emulator
        const QString parametros = CampoOVacio(fuente);
        if (host::sameName(claveLeida, clave))
            return parametros;
    }
    return {};
}

} // namespace core
