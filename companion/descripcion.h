// zembro describe: descriptions of all games of a system at once.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenDescribir();

} // namespace companion
