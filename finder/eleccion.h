// Which of the emulators that were found are configured without being asked for.
#pragma once

#include "finder/hallazgos.h"

#include <functional>

namespace finder {

// Whether this is the program of MAME, by its name.
bool EsMAME(const QString &exe);

// Whether the directory of the games of what was found holds any.
using TieneJuegos = std::function<bool(const Hallazgo &hallazgo)>;

// Those of the systems with games. MAME's only where its machine needs no ROMs, or its system has no other
// emulator, neither found nor in the catalogue.
std::vector<Hallazgo> Elige(
    const std::vector<Hallazgo> &hallazgos, const core::Modulo &catalogo, const TieneJuegos &hayJuegos);

// System by system MAME's behind the others.
std::vector<Hallazgo> ConMAMEDetras(std::vector<Hallazgo> hallazgos);

} // namespace finder
