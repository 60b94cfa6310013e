// What kind of program a file is, by its first bytes.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace core {

enum class ClaseDePrograma {
    DeEstaMaquina, // and scripts
    OtraMaquina, // a program of this system for another processor
    DOS, // those with an extender too
    Windows, // of 16 bits too
    Desconocida,
};

// By a file's beginning and, where that tells nothing, by its name: what DOS runs without a header, ".com"
// and ".bat". `propia` is the beginning of a program that runs here.
ClaseDePrograma ClasePorBytes(const QByteArray &principio, const QByteArray &propia, QStringView nombre);

// Of a file; Desconocida if it can't be read.
ClaseDePrograma ClaseDe(const QString &ruta);

// Whether a program for Windows is one of 32 bits, or of 16, which needs the same.
bool EsDe32Bits(const QByteArray &principio);
bool EsDe32Bits(const QString &ruta);

} // namespace core
