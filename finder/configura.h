// Configures emulators that were found: the catalogue, what they need on the disk, and the last selection.
#pragma once

#include "finder/hallazgos.h"

namespace finder {

struct Encargo {
    QString tabla; // empty for the one that the program brings
    QString directorio; // of the program
    QString catalogo; // a new one, which isn't in its place yet; empty for the one in the directory
    bool todo = false; // also systems without games, and every machine of MAME
    bool ensayo = false; // writes nothing and makes nothing: only tells what it would do in the directory
};

struct Cambio {
    QString fichero; // its name
    QString antes;
    QString despues;
};

// What was done, or would be in a rehearsal.
struct Resultado {
    std::vector<Hallazgo> puestos;
    std::vector<Cambio> cambios; // of text files that were there
    QStringList hechos; // directories, closed by a separator, links and further files
    QStringList avisos; // what wasn't done, in English, one line each
};

// Adds to the catalogue, keeps what is there, and makes a directory of games for every system that the
// machine has an emulator of. With the catalogue in its place, what stood selected is selected still. Fails
// with the catalogue as it was if that can't be read or written, or a directory can't be made.
Resultado Configura(const Encargo &encargo);

} // namespace finder
