// What --mend repairs, a file after the other.
#include "companion/revision.h"

#include "core/catalogo.h"
#include "core/notasremendadas.h"
#include "core/remiendos.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QString catalogoRemendado(const QString &texto)
{
    const QString limpio = core::SinRetornosSueltos(texto);
    return core::ConMarcaFinal(
        core::ConBloquesCerrados(core::ConSeparadoresFinales(limpio, EsRutaDeFichero)));
}

QString ajustesRemendados(const QString &texto)
{
    return core::ConAjustesEnSuSitio(core::SinRetornosSueltos(texto));
}

// The names of the catalogue's systems, as it is on the disk or repaired.
QStringList nombresDelCatalogo(const core::Modulo &M)
{
    const auto catalogo = core::CatalogoDe(TextoDelPrograma(M, u"Zembro.emu"_s));
    QStringList nombres;
    for (int s = 0; s <= catalogo->Indice_Sistema; ++s)
        nombres += core::Valor(catalogo->Cat_Nombre(s, 0), 1);
    return nombres;
}

QString notasRemendadas(const QString &texto, const core::Modulo &M)
{
    return core::NotasRemendadas(texto, nombresDelCatalogo(M), SistemasConocidos(M));
}

} // namespace

bool EsRutaDeFichero(const QString &valor)
{
    const QString ruta = core::RutaDeValor(valor);
    return host::exists(ruta) && !host::exists(host::withClosingSeparator(ruta));
}

std::vector<Remiendo> Remiendos(const core::Modulo &M)
{
    return { { u"Zembro.emu"_s, catalogoRemendado }, { u"Zembro.sye"_s, catalogoRemendado },
        { u"Zembro.cfg"_s, ajustesRemendados },
        { u"Zembro.rom"_s, [&M](const QString &texto) { return notasRemendadas(texto, M); } } };
}

} // namespace companion
