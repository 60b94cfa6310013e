#include "maintenance/reescritura.h"

#include "host/failure.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace maintenance {

void reescribe(
    core::Modulo &modulo, const QString &fichero, const std::function<QString(const QString &)> &cambio)
{
    const QString ruta = host::programFile(fichero);
    modulo.Ficheros.rewrite(ruta, u"Zembro.tmp"_s, [&](const QString &texto) {
        if (texto.isEmpty())
            throw host::Failure(host::PastEndOfFile, u"rewrite a file"_s, ruta);
        return cambio(texto);
    });
}

} // namespace maintenance
