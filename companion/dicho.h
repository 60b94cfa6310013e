// zembro command SYSTEM EMULATOR [ENTRY]: what a launch would do.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenDicha();

} // namespace companion
