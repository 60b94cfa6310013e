// zembro adopt DIR: takes an old program directory over.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenAdopcion();

} // namespace companion
