// A change of a text file of the program: shown as a difference, or written where --write says so.
#pragma once

#include "companion/sesion.h"

#include <functional>

namespace companion {

// The option of every command that writes.
Opcion OpcionWrite();

// From the file's text to the new one. It may run twice, and decides by the text that it gets alone.
using CambioDeTexto = std::function<QString(const QString &texto)>;

// With --write rewrites the file beside the executable as the program does, through Zembro.tmp; else shows
// the difference. With --json the object tells "file", "changed", "written" and "diff", and the caller shows
// it. Yields Hallazgos where something would change and isn't written. Fails as NumberedFiles::rewrite.
int HazCambio(Sesion &sesion, const QString &fichero, const CambioDeTexto &cambio, QJsonObject &objeto);

} // namespace companion
