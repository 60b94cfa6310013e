// zembro save, zembro restore: copies of the text files, and back.
#pragma once

#include "companion/orden.h"

namespace companion {

const Orden &OrdenGuardar();
const Orden &OrdenReponer();

} // namespace companion
