// The words in the language of the program directory.
#pragma once

#include "companion/palabras.h"

#include "core/modulo.h"

namespace companion {

// Reads the settings, which name the language, and the words, those of the program itself too. Where they
// can't be read, as before the first run, it is English.
Palabras LeeIdioma(core::Modulo &M);

} // namespace companion
