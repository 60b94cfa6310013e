// zembro move: the paths of the catalogue after a directory went elsewhere.
#pragma once

#include "companion/orden.h"

#include <functional>
#include <vector>

namespace companion {

const Orden &OrdenMudanza();

// A path without the separators at its end; nothing is left of the root.
QString SinCierre(QString ruta);

// The text of a catalogue with the leading part of its EXE, ROM and IMG lines changed: whole components of
// it, either separator for the other. Both parts, and the program's directory, are without a closing
// separator. What comes to lie below that directory is named from there. All else stays as it is.
QString ConRutasMudadas(
    const QString &texto, const QString &viejo, const QString &nuevo, const QString &directorio);

// Where the program's directory, given without a closing separator, may have been, by the lines that lead
// elsewhere: what they name isn't there any more, or lies in another directory with a catalogue, and what
// they end in lies in this one. The place that most of them speak for is first.
using HayAlgo = std::function<bool(const QString &ruta)>;
QStringList LugaresViejos(const QString &texto, const QString &directorio, const HayAlgo &hay);

} // namespace companion
