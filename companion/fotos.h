// The pictures that emulators take of their screens.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace companion {

// A picture of a kind that the converter reads, by its first bytes. False for what can't be read.
bool EsImagen(const QString &ruta);

// What the places in the table are told with.
struct Entorno {
    QString programa; // the path of the emulator
    QString trabajo; // the directory that it was started in
    QString juegos; // the directory of the games
};

// Where this emulator keeps the pictures that it takes, as it comes: paths that may not be there, and of
// whose subdirectories the next ones count too where they end in "/*". None where that isn't known.
QStringList LugaresDeFotos(const Entorno &entorno);

// The newest file of these places that was written between these times, and that `vale` takes; a missing end
// is now. None if there is none.
struct Intervalo {
    QDateTime desde;
    std::optional<QDateTime> hasta;
};
std::optional<QString> FotoMasNueva(const QStringList &lugares, const Intervalo &intervalo,
    const std::function<bool(const QString &ruta)> &vale);

} // namespace companion
