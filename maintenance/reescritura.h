// How this folder changes the program's files.
#pragma once

#include "core/modulo.h"

#include <functional>

namespace maintenance {

// Rewrites a file beside the program by a function from text to text, over Zembro.tmp. Fails with 62 for an
// empty file, else as NumberedFiles::rewrite.
void reescribe(
    core::Modulo &modulo, const QString &fichero, const std::function<QString(const QString &)> &cambio);

} // namespace maintenance
