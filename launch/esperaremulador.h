// The watch on a running process.
#pragma once

#include "core/modulo.h"
#include "launch/lineadeorden.h"
#include "launch/pantalla.h"

#include "host/process.h"

#include <functional>

namespace launch {

// Stays until the process has ended; meanwhile the window that a console leaves open behind its program is
// closed by `cierra` (its title). Each pass waits by `cede` (a descriptor that wakes it, milliseconds), and
// runs `pasada`.
host::ProcessEnd Vigila(core::Modulo &M, host::Process proceso, const std::function<void(int, int)> &cede,
    const std::function<void()> &pasada, const std::function<void(const QString &)> &cierra);

// Starts a command line and stays in the watch until the process has ended; meanwhile the screen stays alive,
// and the window that a console leaves open behind its program is closed. A start that fails is the caller's:
// the failure passes through. Yields how it ended. The process lives on when this program ends.
host::ProcessEnd EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const LineaDeOrden &orden);
host::ProcessEnd EsperarEmulador(core::Modulo &M, Pantalla &pantalla, const QStringList &argumentos);

} // namespace launch
