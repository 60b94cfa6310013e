// The captures of the pairs that the catalogue configures.
#include "companion/revision.h"

#include "core/catalogo.h"
#include "core/info.h"

#include "host/letters.h"
#include "host/paths.h"

#include <QHash>
#include <QSet>

#include <optional>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Letters and digits alone, without what stands in brackets.
QString soloNombre(const QString &nombre)
{
    QString resultado;
    int dentro = 0;
    for (const QChar letra : host::upper(nombre)) {
        dentro += letra == u'(' || letra == u'[';
        if (dentro == 0 && letra.isLetterOrNumber())
            resultado += letra;
        dentro -= (letra == u')' || letra == u']') && dentro > 0;
    }
    return resultado;
}

QString sinTerminacion(const QString &nombre)
{
    const qsizetype punto = nombre.lastIndexOf(u'.');
    return punto < 0 ? nombre : nombre.first(punto);
}

// Upper-cased names of the captures of a pair's games; none where they can't be told.
std::optional<QSet<QString>> capturasDe(Sesion &sesion, const Pareja &pareja)
{
    QSet<QString> nombres;
    try {
        const core::Modulo &M = sesion.M;
        for (const QString &entrada : Lista(sesion, pareja).recuento.entradas) {
            try {
                for (const QString &ruta :
                    core::CapturasDe(M, entrada, TipoDe(M, pareja), DirectorioDeCapturas(M, pareja)))
                    nombres.insert(host::upper(ruta.sliced(host::lastSeparator(ruta) + 1)));
            } catch (const host::Failure &) {
                // It has none.
            }
        }
    } catch (const host::Failure &) {
        return std::nullopt;
    }
    return nombres;
}

QString nombreDe(const Pareja &pareja)
{
    return pareja.nombreSistema + u" / "_s + pareja.nombreEmulador;
}

// The captures of a directory, by what they fit.
void revisaDirectorio(const Sesion &sesion, const QStringList &nombres, const QSet<QString> &capturas,
    const Pareja &pareja, Revision &revision)
{
    QSet<QString> presentes;
    for (const QString &nombre : nombres)
        presentes.insert(host::upper(nombre));
    QHash<QString, QString> esperadas; // by what they have in common with another spelling
    for (const QString &nombre : capturas) {
        if (!presentes.contains(nombre))
            esperadas.insert(soloNombre(sinTerminacion(nombre)), nombre);
    }
    for (const QString &nombre : nombres) {
        if (capturas.contains(host::upper(nombre)))
            continue;
        const QString otra = esperadas.value(soloNombre(sinTerminacion(nombre)));
        const QString clase = otra.isEmpty() ? u"capture-without-game"_s : u"capture-spelling"_s;
        const QString dicho = otra.isEmpty() ? sesion.palabras.Zbo_CapturaSola.arg(nombre)
                                             : sesion.palabras.Zbo_CapturaMal.arg(nombre, otra);
        revision.push_back(
            { clase, DirectorioDeCapturas(sesion.M, pareja) + nombre, 0, nombreDe(pareja), dicho });
    }
}

// Empty for none.
QString capturasEnDisco(const core::Modulo &M, const Pareja &pareja)
{
    const QString directorio = DirectorioDeCapturas(M, pareja);
    return directorio.isEmpty() ? QString() : host::directoryPath(directorio);
}

// Without its separator the directory's name runs into those of the captures.
bool estaCerrado(const core::Modulo &M, const Pareja &pareja)
{
    const QString directorio = DirectorioDeCapturas(M, pareja);
    return directorio == host::withClosingSeparator(directorio);
}

// The names of the captures that fit the games of all pairs with this directory; none where they can't be
// told.
std::optional<QSet<QString>> capturasDeTodas(Sesion &sesion, const QString &directorio)
{
    QSet<QString> capturas;
    for (const Pareja &otra : Parejas(sesion.M)) {
        try {
            if (capturasEnDisco(sesion.M, otra) != directorio)
                continue;
        } catch (const host::Failure &) {
            continue;
        }
        const std::optional<QSet<QString>> suyas =
            estaCerrado(sesion.M, otra) ? capturasDe(sesion, otra) : std::nullopt;
        if (!suyas)
            return std::nullopt;
        capturas += *suyas;
    }
    return capturas;
}

} // namespace

void RevisaCapturas(
    Sesion &sesion, const std::vector<Pareja> &parejas, const LineasDelCatalogo &lineas, Revision &revision)
{
    QSet<QString> vistos;
    for (const Pareja &pareja : parejas) {
        const LineasDeEmulador suyas = lineas.De(pareja.sistema, pareja.fila);
        if (suyas.IMG == 0)
            continue; // told of the file
        try {
            const QString directorio = capturasEnDisco(sesion.M, pareja);
            if (directorio.isEmpty() || vistos.contains(directorio))
                continue;
            vistos.insert(directorio);
            const QStringList nombres = host::listFiles(directorio, u"*.gif"_s);
            const std::optional<QSet<QString>> capturas = capturasDeTodas(sesion, directorio);
            // Where no game is listed, that is what is amiss.
            if (capturas && !capturas->isEmpty())
                revisaDirectorio(sesion, nombres, *capturas, pareja, revision);
        } catch (const host::Failure &fallo) {
            revision.push_back({ u"no-captures"_s, u"Zembro.emu"_s, suyas.IMG, nombreDe(pareja),
                sesion.palabras.Zbo_SinCapturas.arg(TextoDe(fallo, sesion.palabras)) });
        }
    }
}

} // namespace companion
