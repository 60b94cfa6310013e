// How this folder changes the program's files.
#pragma once

#include "core/modulo.h"

#include <functional>
#include <optional>

namespace maintenance {

// Rewrites a file beside the program by a function from text to text, over Zembro.tmp. Fails with 62 for an
// empty file, else as NumberedFiles::rewrite.
void reescribe(
    core::Modulo &modulo, const QString &fichero, const std::function<QString(const QString &)> &cambio);

// The same, where the function may find in the text that nothing is to be written: it returns nothing then,
// and the file isn't touched. False then.
bool reescribeSi(core::Modulo &modulo, const QString &fichero,
    const std::function<std::optional<QString>(const QString &)> &cambio);

// The text of a file beside the program. Within a rewrite of another one it is read under the same lock.
// Fails with 62 for an empty file; the second one returns nothing for a file that isn't there.
QString textoDe(core::Modulo &modulo, const QString &fichero);
QString textoSiHay(core::Modulo &modulo, const QString &fichero);

// The number under which a file is read within a rewrite.
inline constexpr int NumeroDeLectura = 3;

} // namespace maintenance
