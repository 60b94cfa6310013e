// zembro find [--all]: emulators that came to the machine since.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenEncuentra();

} // namespace companion
