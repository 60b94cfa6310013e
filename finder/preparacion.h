// What an emulator that was found needs on the disk.
#pragma once

#include "finder/hallazgos.h"

namespace finder {

// The directory of its games.
void PreparaJuegos(const Hallazgo &hallazgo);

// The directories of its games and captures, and the links that it is started by, if it needs them. What is
// there already stays, but for a link that leads elsewhere. Fails with 75 for what can't be made.
void Prepara(const Hallazgo &hallazgo);

// What they would make: directories, closed by a separator, and links.
QStringList FaltaParaJuegos(const Hallazgo &hallazgo);
QStringList FaltaPara(const Hallazgo &hallazgo);

} // namespace finder
