// What --mend repairs, a file after the other.
#include "companion/revision.h"

#include "core/catalogo.h"
#include "core/notasremendadas.h"
#include "core/remiendos.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QSet>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr qsizetype LargoDeExtension = 4; // with its point

QString catalogoRemendado(const QString &texto)
{
    const QString limpio = core::SinRetornosSueltos(texto);
    return core::ConMarcaFinal(core::ConBloquesCerrados(core::ConSeparadoresFinales(limpio, LoQueHayEn)));
}

QString ajustesRemendados(const QString &texto)
{
    return core::ConAjustesEnSuSitio(core::SinRetornosSueltos(texto));
}

QStringList nombresDelCatalogo(const core::Modulo &catalogo)
{
    QStringList nombres;
    for (int s = 0; s <= catalogo.Indice_Sistema; ++s)
        nombres += core::Valor(catalogo.Cat_Nombre(s, 0), 1);
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

// The names of a system's games, in upper case, and without the extension too; of the directories that can be
// listed.
QSet<QString> nombresDeJuegos(const core::Modulo &catalogo, const QString &sistema)
{
    QSet<QString> nombres;
    for (const Pareja &pareja : Parejas(catalogo)) {
        if (pareja.nombreSistema != sistema)
            continue;
        try {
            for (const QString &nombre :
                host::listFilesAndDirectories(DirectorioDeJuegos(catalogo, pareja))) {
                const QString mayus = host::upper(nombre);
                nombres << mayus << mayus.chopped(std::min<qsizetype>(LargoDeExtension, mayus.size()));
            }
        } catch (const host::Failure &) {
            continue; // told of the pair
        }
    }
    return nombres;
}

QString notasRemendadas(const QString &texto, const core::Modulo &M)
{
    const auto catalogo = core::CatalogoDe(TextoDelPrograma(M, u"Zembro.emu"_s));
    std::map<QString, QSet<QString>> nombres;
    const auto deQuien = [&](const QStringList &claves) { return sistemasConJuegos(*catalogo, claves); };
    const auto hay = [&](const QString &sistema, const QString &clave) {
        auto suyos = nombres.find(sistema);
        if (suyos == nombres.end())
            suyos = nombres.emplace(sistema, nombresDeJuegos(*catalogo, sistema)).first;
        return suyos->second.contains(clave);
    };
    return core::NotasRemendadas(
        texto, nombresDelCatalogo(*catalogo), SistemasConocidos(M), { deQuien, hay });
}

} // namespace

core::EnDisco LoQueHayEn(const QString &valor)
{
    const QString ruta = core::RutaDeValor(valor);
    if (valor.isEmpty() || !host::exists(ruta))
        return core::EnDisco::Nada;
    // What is found without the blanks at its end is something else: behind more of a path it isn't found.
    const auto acabaEnBlanco = [](const QString &una) { return una.endsWith(u' ') || una.endsWith(u'\t'); };
    if (acabaEnBlanco(ruta) && !acabaEnBlanco(host::trueSpelling(ruta)))
        return core::EnDisco::Nada;
    const bool directorio = host::exists(host::withClosingSeparator(ruta));
    return directorio ? core::EnDisco::Directorio : core::EnDisco::Fichero;
}

std::vector<Remiendo> Remiendos(const core::Modulo &M)
{
    std::vector<Remiendo> todos { { u"Zembro.emu"_s, catalogoRemendado },
        { u"Zembro.sye"_s, catalogoRemendado }, { u"Zembro.cfg"_s, ajustesRemendados },
        { u"Zembro.rom"_s, [&M](const QString &texto) { return notasRemendadas(texto, M); } } };
    for (Remiendo &uno : todos) {
        uno.cambio = [fichero = uno.fichero, cambio = uno.cambio](const QString &texto) {
            return SeReponeDeUnaCopia(fichero, texto) ? texto : cambio(texto);
        };
    }
    return todos;
}

} // namespace companion
