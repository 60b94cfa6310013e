// What kind of program a file is, by its first bytes.
#pragma once

#include <QByteArray>
#include <QString>

namespace companion {

enum class ClaseDePrograma {
    DeEstaMaquina, // and scripts
    OtraMaquina, // a program of this system for another processor
    DOSoWindows,
    Desconocida,
};

// By a file's beginning; `propia` is the beginning of a program that runs here.
ClaseDePrograma ClasePorBytes(const QByteArray &principio, const QByteArray &propia);

// Of a file; Desconocida if it can't be read.
ClaseDePrograma ClaseDe(const QString &ruta);

} // namespace companion
