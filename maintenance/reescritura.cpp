#include "maintenance/reescritura.h"

#include "host/failure.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace maintenance {

namespace {

struct SinNadaQueEscribir { };

} // namespace

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

bool reescribeSi(core::Modulo &modulo, const QString &fichero,
    const std::function<std::optional<QString>(const QString &)> &cambio)
{
    try {
        reescribe(modulo, fichero, [&cambio](const QString &texto) {
            std::optional<QString> nuevo = cambio(texto);
            if (!nuevo)
                throw SinNadaQueEscribir();
            return *std::move(nuevo);
        });
    } catch (const SinNadaQueEscribir &) {
        // The rewrite was left in the middle, with its two numbers in use.
        modulo.Ficheros.close(1);
        modulo.Ficheros.close(2);
        return false;
    }
    return true;
}

QString textoDe(core::Modulo &modulo, const QString &fichero)
{
    const QString ruta = host::programFile(fichero);
    modulo.Ficheros.openForInput(NumeroDeLectura, ruta);
    const QString texto = modulo.Ficheros.rest(NumeroDeLectura);
    modulo.Ficheros.close(NumeroDeLectura);
    if (texto.isEmpty())
        throw host::Failure(host::PastEndOfFile, u"read a file"_s, ruta);
    return texto;
}

QString textoSiHay(core::Modulo &modulo, const QString &fichero)
{
    return host::exists(host::programFile(fichero)) ? textoDe(modulo, fichero) : QString();
}

} // namespace maintenance
