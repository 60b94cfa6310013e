#include "companion/clasedeprograma.h"

#include "host/failure.h"
#include "host/numberedfiles.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr qsizetype Cabecera = 20; // of an ELF file, up to the machine
constexpr qsizetype Clase = 4; // 32 or 64 bits
constexpr qsizetype Maquina = 18; // two bytes

} // namespace

ClaseDePrograma ClasePorBytes(const QByteArray &principio, const QByteArray &propia)
{
    if (principio.startsWith("#!"))
        return ClaseDePrograma::DeEstaMaquina;
    if (principio.startsWith("MZ"))
        return ClaseDePrograma::DOSoWindows;
    if (!principio.startsWith("\x7f"
                              "ELF")
        || principio.size() < Cabecera)
        return ClaseDePrograma::Desconocida;
    // A processor of 64 bits may run the programs of its small brother, which needs its libraries.
    const bool igual =
        principio.mid(Maquina, 2) == propia.mid(Maquina, 2) && principio[Clase] == propia[Clase];
    return igual ? ClaseDePrograma::DeEstaMaquina : ClaseDePrograma::OtraMaquina;
}

ClaseDePrograma ClaseDe(const QString &ruta)
{
    try {
        return ClasePorBytes(host::readBytes(ruta, Cabecera), host::readBytes(u"/proc/self/exe"_s, Cabecera));
    } catch (const host::Failure &) {
        return ClaseDePrograma::Desconocida;
    }
}

} // namespace companion
