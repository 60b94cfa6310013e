// zembro captures: pictures become captures of the games that they fit.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenCapturas();

} // namespace companion
