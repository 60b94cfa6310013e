// zembro help [COMMAND].
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenAyuda();

class Sesion;

// The help of a command; of all where it is null.
void DaAyuda(const Sesion &sesion, const Orden *orden);

} // namespace companion
