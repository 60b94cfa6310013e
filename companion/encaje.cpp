#include "companion/encaje.h"

#include "companion/rotulos.h"

#include "host/letters.h"

#include <QHash>

#include <initializer_list>

namespace companion {

namespace {

using Lugares = QHash<QString, qsizetype>; // of a picture, by a name

// Letters and digits alone: no file's name has the colon of a title, and many have no accents.
QString pelado(const QString &nombre)
{
    QString letras;
    for (const QChar letra : nombre.normalized(QString::NormalizationForm_KD)) {
        if (letra.isLetterOrNumber() || letra.isSurrogate())
            letras += letra;
    }
    return host::upper(letras);
}

void anota(Lugares &lugares, const QString &nombre, qsizetype imagen)
{
    if (!nombre.isEmpty() && !lugares.contains(nombre))
        lugares.insert(nombre, imagen);
}

std::optional<qsizetype> primero(const Lugares &lugares, std::initializer_list<QString> nombres)
{
    for (const QString &nombre : nombres) {
        const auto suya = lugares.constFind(nombre);
        if (!nombre.isEmpty() && suya != lugares.constEnd())
            return *suya;
    }
    return std::nullopt;
}

struct Imagenes {
    Lugares exactas; // in upper case
    Lugares peladas; // with what stands in brackets
    Lugares tituladas; // without it
};

Imagenes lasDe(const QStringList &nombres)
{
    Imagenes imagenes;
    for (qsizetype i = 0; i < nombres.size(); ++i) {
        const QString nombre = SinTerminacion(nombres[i]);
        anota(imagenes.exactas, host::upper(nombre), i);
        anota(imagenes.peladas, pelado(nombre), i);
        anota(imagenes.tituladas, pelado(RotuloDe(nombre).titulo), i);
    }
    return imagenes;
}

std::optional<qsizetype> laDe(const Nombrado &juego, const Imagenes &imagenes)
{
    const QString nombre = SinTerminacion(juego.fichero);
    if (const auto suya = primero(imagenes.exactas,
            { host::upper(nombre), host::upper(juego.fichero), host::upper(juego.captura) }))
        return suya;
    const QString titulo = pelado(RotuloDe(nombre).titulo);
    if (const auto suya = primero(imagenes.peladas, { pelado(nombre), titulo }))
        return suya;
    if (const auto suya = primero(imagenes.tituladas, { titulo }))
        return suya;
    const QString descripcion = pelado(juego.descripcion);
    if (const auto suya = primero(imagenes.peladas, { descripcion }))
        return suya;
    return primero(imagenes.tituladas, { descripcion, pelado(RotuloDe(juego.descripcion).titulo) });
}

} // namespace

std::vector<std::optional<qsizetype>> Encajan(const std::vector<Nombrado> &juegos, const QStringList &nombres)
{
    const Imagenes imagenes = lasDe(nombres);
    std::vector<std::optional<qsizetype>> encajadas;
    encajadas.reserve(juegos.size());
    for (const Nombrado &juego : juegos)
        encajadas.push_back(laDe(juego, imagenes));
    return encajadas;
}

} // namespace companion
