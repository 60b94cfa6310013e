// zembro check [SYSTEM [EMULATOR]]; --mend shows what has one answer only, --mend --write does it.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenRevisa();

} // namespace companion
