// zembro play SYSTEM EMULATOR [ENTRY]: a launch without the screen.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenJugada();

} // namespace companion
