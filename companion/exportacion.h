// zembro export: the games for other programs.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenExportar();

} // namespace companion
