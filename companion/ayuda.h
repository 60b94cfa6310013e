// zembro help [COMMAND].
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenAyuda();

} // namespace companion
