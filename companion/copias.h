// Dated copies of the program's text files, in directories under "copias".
#pragma once

#include "host/failure.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace companion {

inline constexpr qsizetype MaxCopias = 20; // older ones go

// The bytes of files, by their names.
using Ficheros = QMap<QString, QByteArray>;

// The names of the copies, the newest first.
QStringList Copias();

// The program's files that a copy keeps, as they are. Under the lock that every rewrite takes.
Ficheros FicherosDePrograma();

// Those of a copy.
Ficheros FicherosDeCopia(const QString &copia);

// The path of a file of a copy.
QString RutaDeCopia(const QString &copia, const QString &fichero);

// Whether a copy of the ones holds the others too. What was selected last, which every end of the program
// writes anew, makes no difference.
bool SonIguales(const Ficheros &unos, const Ficheros &otros);

// The name of a copy made at that time of the clock, "2026-01-31_12-00-00": behind the newest one, also where
// the clock went back.
QString NombreDeCopia(const QString &ahora, const QString &masNueva);

struct Guardado {
    QString copia; // the new one, or the newest, which is equal
    bool nueva = false;
    Ficheros ficheros;
};

// Makes a copy where the newest isn't equal, and removes those past MaxCopias. A copy stands whole or not at
// all. Fails as what it does.
Guardado Guarda();

// What came of bringing files back.
struct Reposicion {
    QStringList repuestos; // that stand as the copy has them
    std::optional<host::Failure> fallo; // what kept the others
};

// Puts these files of a copy in the place of the program's, all of them or none: where one can't be written,
// or isn't as it was looked at, those ahead of it go back. What can't even go back is told.
Reposicion Repon(const QStringList &nombres, const Ficheros &deCopia, const Ficheros &actuales);

} // namespace companion
