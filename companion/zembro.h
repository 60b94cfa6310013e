// zembro from its command line to its status.
#pragma once

#include "companion/sesion.h"

namespace companion {

// Runs the command that these arguments, without the program's name, ask for.
int Zembro(const QStringList &argumentos, const Consola &consola);

} // namespace companion
