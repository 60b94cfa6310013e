// The road from the selected ROM to the emulator's end.
#pragma once

#include "core/modulo.h"
#include "launch/cronica.h"
#include "launch/esperaremulador.h"
#include "launch/pantalla.h"
#include "launch/temporal.h"

namespace launch {

// Plays what stands selected, by the type of the selected emulator. Every error after the opening checks is
// ignored step by step: a step that failed is skipped, the next one runs. Blocks until the emulator has
// ended; the screen stays alive meanwhile, and a second call from its event loop runs nested in the first.
// What becomes of it is told on the standard error, and where host::tellAside says.
void Jugar(core::Modulo &M, Pantalla &pantalla);

// The same, told to `voz`. Yields what became of it.
Partida Jugar(core::Modulo &M, Pantalla &pantalla, const Voz &voz);

} // namespace launch
