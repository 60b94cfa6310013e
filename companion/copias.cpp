#include "companion/copias.h"

#include "core/ajustes.h"
#include "core/lineas.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/renaming.h"
#include "host/replacement.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

const QString Formato = u"yyyy-MM-dd_HH-mm-ss"_s;
const QString Directorio = u"copias"_s;
const QString Borrador = u".a-medias"_s; // of a copy on its way, removed by the next one
const QString Provisional = u"Zembro.tmp"_s; // of a file on its way
const QString Ajustes = u"Zembro.cfg"_s;
const QStringList Nombres { Ajustes, u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.sye"_s, u"Zembro.uni"_s };

QString rutaDe(const QString &copia)
{
    return host::programFile(Directorio) + u'/' + copia;
}

Ficheros leidos(const QString &directorio)
{
    Ficheros ficheros;
    for (const QString &nombre : Nombres) {
        if (const std::optional<QByteArray> bytes = host::readIfThere(directorio + u'/' + nombre))
            ficheros[nombre] = *bytes;
    }
    return ficheros;
}

// The lock of every rewrite, for as long as it lives.
host::Replacement llave()
{
    return host::Replacement(host::programFile(u"Zembro.emu"_s), Provisional);
}

// The time of the clock that a copy is named after; invalid for another name.
QDateTime horaDe(const QString &copia)
{
    const QDateTime hora(QDate::fromString(copia.left(10), Formato.left(10)),
        QTime::fromString(copia.mid(11), Formato.mid(11)), Qt::UTC);
    return hora.toString(Formato) == copia ? hora : QDateTime();
}

// The settings' lines, those of the last selection without their values.
QStringList sinSeleccion(const QByteArray &bytes)
{
    QStringList claves;
    for (const QString &linea : core::LineasDeUltimaSeleccion(0, 0))
        claves += linea.chopped(1);
    const QString texto = host::decodeText(bytes).text;
    QStringList lineas;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        const auto suya =
            std::ranges::find_if(claves, [&](const QString &clave) { return linea.linea.startsWith(clave); });
        lineas += suya == claves.end() ? linea.linea.toString() + linea.fin.toString() : *suya;
    }
    return lineas;
}

// The files that a copy keeps, and what a writer that was killed has left of one; what else lies there stays,
// and so does its directory then.
void borra(const QString &copia)
{
    try {
        host::deleteFiles(rutaDe(copia), Nombres + QStringList { Provisional });
        host::removeDirectory(rutaDe(copia));
    } catch (const host::Failure &) {
        // It stays.
    }
}

void escribe(const QString &copia, const Ficheros &ficheros)
{
    if (!host::exists(host::programFile(Directorio)))
        host::makeDirectory(host::programFile(Directorio));
    if (host::exists(rutaDe(Borrador)))
        borra(Borrador);
    host::makeDirectory(rutaDe(Borrador));
    for (auto fichero = ficheros.begin(); fichero != ficheros.end(); ++fichero) {
        host::Replacement nuevo(rutaDe(Borrador) + u'/' + fichero.key(), Provisional);
        nuevo.read();
        nuevo.write(fichero.value());
        nuevo.commit();
    }
    host::renameDirectory(rutaDe(Borrador), copia);
}

} // namespace

QStringList Copias()
{
    QStringList copias;
    if (!host::exists(host::programFile(Directorio)))
        return copias;
    for (const QString &nombre : host::listDirectories(host::programFile(Directorio))) {
        if (horaDe(nombre).isValid())
            copias.prepend(nombre);
    }
    return copias;
}

Ficheros FicherosDePrograma()
{
    const host::Replacement cerrado = llave();
    return leidos(host::programDirectory());
}

Ficheros FicherosDeCopia(const QString &copia)
{
    return leidos(rutaDe(copia));
}

QString RutaDeCopia(const QString &copia, const QString &fichero)
{
    return rutaDe(copia) + u'/' + fichero;
}

bool SonIguales(const Ficheros &unos, const Ficheros &otros)
{
    if (unos.keys() != otros.keys())
        return false;
    return std::ranges::all_of(Nombres, [&](const QString &nombre) {
        return unos[nombre] == otros[nombre]
            || (nombre == Ajustes && sinSeleccion(unos[nombre]) == sinSeleccion(otros[nombre]));
    });
}

QString NombreDeCopia(const QString &ahora, const QString &masNueva)
{
    return ahora > masNueva ? ahora : horaDe(masNueva).addSecs(1).toString(Formato);
}

Guardado Guarda()
{
    const host::Replacement cerrado = llave();
    QStringList copias = Copias();
    Guardado guardado { copias.value(0), false, leidos(host::programDirectory()) };
    if (!copias.isEmpty() && SonIguales(guardado.ficheros, FicherosDeCopia(copias.first())))
        return guardado;
    guardado.copia = NombreDeCopia(QDateTime::currentDateTime().toString(Formato), guardado.copia);
    guardado.nueva = true;
    escribe(guardado.copia, guardado.ficheros);
    copias.prepend(guardado.copia);
    for (const QString &vieja : copias.mid(MaxCopias))
        borra(vieja);
    return guardado;
}

namespace {

// What has changed since it was looked at is in no copy, and stays.
void pon(const QString &fichero, const QByteArray &bytes, const std::optional<QByteArray> &visto)
{
    const QString ruta = host::programFile(fichero);
    host::Replacement nuevo(ruta, Provisional);
    if (nuevo.read() != visto)
        throw host::Failure(host::PathAccess, host::ChangedMeanwhile, ruta);
    nuevo.write(bytes);
    nuevo.commit();
}

std::optional<QByteArray> bytesDe(const Ficheros &ficheros, const QString &nombre)
{
    const auto suyo = ficheros.find(nombre);
    return suyo == ficheros.end() ? std::nullopt : std::optional(*suyo);
}

// True where it stands as before again.
bool vuelve(const QString &fichero, const QByteArray &puesto, const std::optional<QByteArray> &antes)
{
    try {
        if (antes) {
            pon(fichero, *antes, puesto);
        } else {
            const host::Replacement cerrado = llave();
            host::deleteFile(host::programFile(fichero));
        }
        return true;
    } catch (const host::Failure &) {
        return false;
    }
}

} // namespace

Reposicion Repon(const QStringList &nombres, const Ficheros &deCopia, const Ficheros &actuales)
{
    Reposicion reposicion;
    for (const QString &nombre : nombres) {
        try {
            pon(nombre, deCopia[nombre], bytesDe(actuales, nombre));
            reposicion.repuestos += nombre;
        } catch (const host::Failure &fallo) {
            reposicion.fallo = fallo;
            break;
        }
    }
    if (reposicion.fallo)
        reposicion.repuestos.removeIf([&](const QString &nombre) {
            return vuelve(nombre, deCopia[nombre], bytesDe(actuales, nombre));
        });
    return reposicion;
}

} // namespace companion
