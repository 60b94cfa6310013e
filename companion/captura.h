// What stands where the capture of a game is looked for.
#pragma once

#include "companion/palabras.h"

#include <QString>

namespace companion {

enum class EstadoDeCaptura {
    Ninguna, // nothing stands there
    SeVe, // a picture of a kind that the screen shows, whole
    SeVeEnParte, // one that is cut, and of a kind that the screen shows as far as it goes
    NoEsImagen,
    EnlaceRoto,
    NoEsFichero, // a directory, a pipe: nothing takes its place
    Ilegible, // nobody knows what it holds, so it stays
};

// Of the path as the disk has it, in any case.
EstadoDeCaptura EstadoDe(const QString &ruta);

// Whether the screen shows something of it: the same without reading what that takes no reading for.
bool SeMuestra(const QString &ruta);

// Whether a new capture may take the place of what stands there, without being told to.
bool SeReemplaza(EstadoDeCaptura estado);

// What is wrong with it and what to do, for a state in which something stands there that doesn't show; and
// the word of English for it.
QString TextoDe(EstadoDeCaptura estado, const QString &ruta, const Palabras &palabras);
QString ClaseDe(EstadoDeCaptura estado);

} // namespace companion
