// Writing beside the program where that may be impossible: on a CD, or in a directory that belongs to another
// user.
#pragma once

#include "core/modulo.h"

#include <functional>

namespace mainscreen {

class Portada;

// Runs what writes. Where nothing can be written beside the file, tells so, and returns false: nothing has
// changed then. Every other failure goes on its way.
bool Escribe(core::Modulo &M, Portada &P, const std::function<void()> &escritura);

// The same at the exit, for what nobody asks to be kept: it tells so only where nothing else has told it
// before.
void EscribeAlSalir(core::Modulo &M, Portada &P, const std::function<void()> &escritura);

// Tells so; `texto` says what the directory is, or what isn't kept.
void AvisaDeSoloLectura(core::Modulo &M, Portada &P, const QString &texto);

} // namespace mainscreen
