// What --mend repairs, a file after the other.
#include "companion/revision.h"

#include "core/catalogo.h"
#include "core/notasremendadas.h"
#include "core/remiendos.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QString catalogoRemendado(const QString &texto)
{
    const QString limpio = core::SinRetornosSueltos(texto);
    return core::ConMarcaFinal(core::ConBloquesCerrados(core::ConSeparadoresFinales(limpio, LoQueHayEn)));
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

// Whether a directory of games holds one that any of these keys describes.
bool hayAlguno(const QString &directorio, const QStringList &claves)
{
    const QStringList nombres = host::listFilesAndDirectories(directorio);
    return std::ranges::any_of(nombres, [&](const QString &nombre) {
        const QString mayus = host::upper(nombre);
        return claves.contains(mayus) || (mayus.endsWith(u".ZIP") && claves.contains(mayus.chopped(4)));
    });
}

// The systems of a catalogue with games of these keys; none where a directory can't be listed.
QStringList sistemasConJuegos(const core::Modulo &catalogo, const QStringList &claves)
{
    QStringList enMayus;
    for (const QString &clave : claves)
        enMayus += host::upper(clave);
    QStringList sistemas;
    try {
        for (const Pareja &pareja : Parejas(catalogo)) {
            if (hayAlguno(DirectorioDeJuegos(catalogo, pareja), enMayus))
                sistemas += pareja.nombreSistema;
        }
    } catch (const host::Failure &) {
        return {};
    }
    sistemas.removeDuplicates();
    return sistemas;
}

QString notasRemendadas(const QString &texto, const core::Modulo &M)
{
    return core::NotasRemendadas(
        texto, nombresDelCatalogo(M), SistemasConocidos(M), [&M](const QStringList &claves) {
            const auto catalogo = core::CatalogoDe(TextoDelPrograma(M, u"Zembro.emu"_s));
            return sistemasConJuegos(*catalogo, claves);
        });
}

} // namespace

core::EnDisco LoQueHayEn(const QString &valor)
{
    const QString ruta = core::RutaDeValor(valor);
    if (valor.isEmpty() || !host::exists(ruta))
        return core::EnDisco::Nada;
    const bool directorio = host::exists(host::withClosingSeparator(ruta));
    return directorio ? core::EnDisco::Directorio : core::EnDisco::Fichero;
}

std::vector<Remiendo> Remiendos(const core::Modulo &M)
{
    return { { u"Zembro.emu"_s, catalogoRemendado }, { u"Zembro.sye"_s, catalogoRemendado },
        { u"Zembro.cfg"_s, ajustesRemendados },
        { u"Zembro.rom"_s, [&M](const QString &texto) { return notasRemendadas(texto, M); } } };
}

} // namespace companion
