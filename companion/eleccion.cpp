#include "companion/eleccion.h"

#include "companion/imprimible.h"

#include "host/encoding.h"
#include "host/letters.h"

#include <QSet>

#include <algorithm>
#include <functional>
#include <numeric>
#include <vector>

namespace companion {

namespace {

// What stands for bytes that are no text, and what a terminal would obey, comes back from an answer
// otherwise.
bool seMuestraAsi(const QString &nombre, const QString &texto)
{
    return Imprimible(nombre) == texto || host::nameFromDisk(nombre.toUtf8()) == texto;
}

} // namespace

qsizetype PosicionDeNombre(const QStringList &nombres, const QString &texto)
{
    qsizetype posicion = nombres.indexOf(texto);
    for (qsizetype i = 0; posicion < 0 && i < nombres.size(); ++i) {
        if (seMuestraAsi(nombres[i], texto))
            posicion = i;
    }
    for (qsizetype i = 0; posicion < 0 && i < nombres.size(); ++i) {
        if (host::sameName(nombres[i], texto))
            posicion = i;
    }
    return posicion;
}

QList<qsizetype> Candidatos(const QStringList &nombres, const QString &texto)
{
    const QString mayus = host::upper(texto);
    const std::function<bool(const QString &)> pruebas[] = {
        [&](const QString &nombre) { return nombre == texto; },
        [&](const QString &nombre) { return seMuestraAsi(nombre, texto); },
        [&](const QString &nombre) { return host::upper(nombre) == mayus; },
        [&](const QString &nombre) { return host::upper(nombre).startsWith(mayus); },
        [&](const QString &nombre) { return host::upper(nombre).contains(mayus); },
    };
    for (const auto &prueba : pruebas) {
        QList<qsizetype> posiciones;
        QSet<QString> vistos;
        for (qsizetype i = 0; i < nombres.size(); ++i) {
            if (prueba(nombres[i]) && !vistos.contains(nombres[i])) {
                vistos.insert(nombres[i]);
                posiciones += i;
            }
        }
        if (!posiciones.isEmpty())
            return posiciones;
    }
    return {};
}

namespace {

// How many letters have to be changed, put in or left out.
qsizetype distancia(const QString &a, const QString &b)
{
    std::vector<qsizetype> fila(static_cast<size_t>(b.size()) + 1);
    std::iota(fila.begin(), fila.end(), qsizetype { 0 });
    for (qsizetype i = 0; i < a.size(); ++i) {
        qsizetype diagonal = fila[0]++;
        for (size_t j = 1; j < fila.size(); ++j) {
            const qsizetype cambiada = diagonal + (a[i] != b[qsizetype(j) - 1]);
            diagonal = fila[j];
            fila[j] = std::min({ cambiada, fila[j] + 1, fila[j - 1] + 1 });
        }
    }
    return fila.back();
}

} // namespace

QString MasParecido(const QStringList &nombres, const QString &texto, qsizetype letras)
{
    constexpr qsizetype larga = 255; // no name of a file is longer
    QString mejor;
    qsizetype menor = letras + 1;
    for (const QString &nombre : nombres) {
        if (nombre.size() > larga || texto.size() > larga)
            continue;
        const qsizetype suya = distancia(host::upper(nombre), host::upper(texto));
        if (suya < menor && suya < texto.size()) {
            menor = suya;
            mejor = nombre;
        }
    }
    return mejor;
}

} // namespace companion
