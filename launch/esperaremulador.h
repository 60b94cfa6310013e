// The watch on a running process.
#pragma once

#include "core/modulo.h"
#include "launch/lineadeorden.h"
#include "launch/pantalla.h"

namespace launch {

// Starts a command line and stays in the watch until the process has ended; meanwhile the screen stays alive,
// and the window that a console leaves open behind its program is closed. A start that fails is the caller's:
// the failure passes through. The process lives on when this program ends.
void EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const LineaDeOrden &orden);

} // namespace launch
