#include "companion/plandecapturas.h"

#include "companion/encaje.h"
#include "companion/fotos.h"
#include "companion/listados.h"
#include "companion/rotulos.h"

#include "core/info.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Empty for a name that can't be cut at its point, for a type without captures, and for a name that would
// lead out of the directory.
QString capturaDe(int tipo, const QString &directorio, const FicheroListado &fichero)
{
    const core::FichaDeROM ficha { fichero.descrito ? fichero.clave : fichero.entrada, fichero.descrito };
    try {
        const QString ruta = core::RutaDeCaptura(tipo, directorio, ficha);
        return host::lastSeparator(QStringView(ruta).sliced(std::min(directorio.size(), ruta.size()))) < 0
            ? ruta
            : QString();
    } catch (const host::Failure &) {
        return {};
    }
}

bool pareceImagen(const QString &nombre)
{
    return host::fitsPattern(nombre, u"*.png;*.jpg;*.jpeg;*.bmp;*.webp;*.pcx;*.tif;*.tiff;*.gif"_s);
}

} // namespace

std::vector<JuegoConCaptura> JuegosConCaptura(Sesion &sesion, const Pareja &pareja, const QString &directorio)
{
    const Listado listado = Lista(sesion, pareja);
    std::vector<JuegoConCaptura> juegos;
    for (const FicheroListado &fichero : FicherosListados(sesion.M, pareja, listado)) {
        juegos.push_back({ fichero.entrada, fichero.nombre, fichero.descrito ? fichero.entrada : QString(),
            capturaDe(TipoDe(sesion.M, pareja), directorio, fichero) });
    }
    return juegos;
}

Nombrado NombradoDe(const JuegoConCaptura &juego)
{
    const QString captura = juego.captura.sliced(host::lastSeparator(juego.captura) + 1);
    return { juego.fichero, SinTerminacion(captura), juego.descripcion };
}

QStringList PosiblesImagenes(const QString &directorio, const std::optional<QStringList> &sueltos)
{
    const QString base = host::withClosingSeparator(directorio);
    QStringList imagenes;
    for (const QString &nombre : host::listFiles(directorio)) {
        if (sueltos && host::fitsPattern(nombre, u"*.gif"_s) && !sueltos->contains(nombre))
            continue;
        if (pareceImagen(nombre) || EsImagen(base + nombre))
            imagenes += nombre;
    }
    return imagenes;
}

Plan PlanDeCapturas(const std::vector<JuegoConCaptura> &juegos, const QString &directorio,
    const QStringList &imagenes, bool rehace, QSet<QString> &hechas)
{
    std::vector<Nombrado> nombrados;
    for (const JuegoConCaptura &juego : juegos)
        nombrados.push_back(NombradoDe(juego));
    const std::vector<std::optional<qsizetype>> encajadas = Encajan(nombrados, imagenes);
    const QString base = host::withClosingSeparator(directorio);
    Plan plan;
    for (size_t i = 0; i < juegos.size(); ++i) {
        const JuegoConCaptura &juego = juegos[i];
        if (encajadas[i])
            plan.usadas += imagenes[*encajadas[i]];
        const QString suya = host::upper(juego.captura);
        const EstadoDeCaptura estado =
            juego.captura.isEmpty() ? EstadoDeCaptura::Ninguna : EstadoDe(juego.captura);
        const bool libre = estado == EstadoDeCaptura::Ninguna || SeReemplaza(estado);
        const bool seHace = encajadas[i] && !juego.captura.isEmpty()
            && (libre || (rehace && estado == EstadoDeCaptura::SeVe));
        if (hechas.contains(suya)) {
            ++plan.compartidas;
        } else if (estado == EstadoDeCaptura::SeVe && !seHace) {
            ++plan.habia;
        } else if (seHace) {
            hechas += suya;
            plan.nuevas.push_back({ juego.entrada, base + imagenes[*encajadas[i]], juego.captura,
                estado != EstadoDeCaptura::Ninguna && estado != EstadoDeCaptura::SeVe });
        } else {
            ++plan.sinImagen;
            if (estado != EstadoDeCaptura::Ninguna)
                plan.malas.push_back({ juego.captura, estado });
        }
    }
    return plan;
}

} // namespace companion
