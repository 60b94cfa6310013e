// zembro list [SYSTEM [EMULATOR]].
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenLista();

} // namespace companion
