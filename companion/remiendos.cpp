// What --mend repairs, a file after the other.
#include "companion/revision.h"

#include "core/catalogo.h"
#include "core/lineas.h"
#include "core/notas.h"
#include "core/remiendos.h"
#include "core/repetidos.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/paths.h"

#include <algorithm>

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

// With an empty block for each system of the catalogue that has none.
QString conBloques(QString texto, const core::Modulo &M)
{
    const auto catalogo = core::CatalogoDe(TextoDelPrograma(M, u"Zembro.emu"_s));
    for (int s = 0; s <= catalogo->Indice_Sistema; ++s) {
        const QString sistema = core::Valor(catalogo->Cat_Nombre(s, 0), 1);
        if (sistema.contains(u'\r'))
            continue; // which no line that is written here holds
        const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
        if (std::ranges::none_of(
                lineas, [&](const core::LineaConFin &linea) { return linea.linea == sistema; }))
            texto = core::ConSistemaNuevo(texto, sistema);
    }
    return texto;
}

QString notasRemendadas(const QString &texto, const core::Modulo &M)
{
    const QStringList sistemas = SistemasConocidos(M);
    const QString limpio = core::SinRetornosSueltos(texto);
    const QString cerradas = core::ConNotasCerradas(core::ConMarcaDeNotas(limpio, sistemas), sistemas);
    const QString conSeccion = core::ConCabeceraDeParametros(conBloques(cerradas, M), sistemas);
    return core::SinRepetidos(core::ConParametrosCerrados(conSeccion), sistemas);
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
