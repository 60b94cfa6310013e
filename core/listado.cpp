#include "core/listado.h"

#include "core/rutas.h"

#include "host/lengths.h"

namespace core {

void VaciaLista(Modulo &M)
{
    for (Tabla<QString> *tabla : { &M.Arch_Nombre, &M.Arch_Mayus, &M.Nota_Clave, &M.Nota_Texto })
        tabla->vacia();
}

Recuento ListaDe(Modulo &M, int sistema, int fila, const QString &nombre, const std::function<void()> &leido)
{
    M.TipoEmu = TipoDe(M.Cat_XDI(sistema, fila));
    const int tipo = Numero(M.TipoEmu);
    const QString directorio = RutaExigida(M.Cat_ROM(sistema, fila));
    const int entradas = ExploraDirectorio(M, tipo, directorio);
    const int notas = CargaNotasEnMayusculas(M, nombre);
    const int extensiones = CargaExtensiones(M, sistema);
    leido();
    const host::LengthsIn largos(directorio);
    return Empareja(M, tipo, entradas, notas, extensiones,
        [&largos](const QStringList &nombres) { return largos.ofAll(nombres); });
}

} // namespace core
