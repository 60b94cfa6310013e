// The catalogue with emulators that were found, and what can't be put into it.
#pragma once

#include "finder/hallazgos.h"

namespace finder {

// Why an emulator isn't put into the catalogue.
enum class Motivo {
    SinFin, // no line that begins with "[" behind the last system
    Lleno, // as many systems, or emulators of its system, as the lists hold
    OtraGrafia, // the catalogue has its system in other capitals
    NoVuelve, // a path with a character that ends a line
    TrasSistemaVacio, // the system ahead has no emulator, and would take its extensions
    NoEncaja, // lines of the catalogue would pass to it, or its own to another
};

struct Descarte {
    Hallazgo hallazgo;
    Motivo motivo;
};

struct Incorporacion {
    QString texto;
    std::vector<Hallazgo> puestos;
    std::vector<Descarte> descartados;
};

// The catalogue's text with these emulators, block for block as saving each of them writes it, and each one
// once, whatever the catalogue has twice. Every line that was there stays, and the reader
// gives it to whom it gave it before. What lies below the program's directory is named from there, so that it
// moves along.
Incorporacion Incorpora(const QString &texto, const core::Modulo &base,
    const std::vector<Hallazgo> &hallazgos, const QString &directorio);

} // namespace finder
