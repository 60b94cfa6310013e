// The files behind a list.
#pragma once

#include "companion/mundo.h"

#include <QString>

#include <vector>

namespace companion {

// A file that a list shows, or a directory.
struct FicheroListado {
    QString clave; // of its note
    QString nombre; // as the disk spells it
    QString entrada; // its description, if it has one
    bool descrito = false;
};

// Those of a list that has just been made, in its order; each once.
std::vector<FicheroListado> FicherosListados(
    const core::Modulo &M, const Pareja &pareja, const Listado &listado);

} // namespace companion
