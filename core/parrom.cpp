#include "core/parrom.h"

#include "core/notas.h"

#include "host/letters.h"

namespace core {

QString ParametrosDe(host::TextSource &fuente, const QString &clave)
{
    if (!fuente.passLine(u"Parametros"))
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
