// The table of commands. Help, man page, completions and the page of examples are made from it.
#pragma once

#include "companion/orden.h"

#include <span>

namespace companion {

// In the order in which the help lists them.
std::span<const Orden *const> Ordenes();

// The command of this name; null if there is none.
const Orden *OrdenDe(const QString &nombre);

} // namespace companion
