// The main screen over a catalogue that may have been changed by another program since its tables were read.
#pragma once

#include "core/modulo.h"

namespace mainscreen {
class Portada;
}

namespace maintenance {

// Reads the catalogue's tables alone anew, and leaves the combos inert. Returns the number of systems.
int leeSoloTablas(core::Modulo &M, mainscreen::Portada &P);

// The same, and the combos keep what they show, alive or not. Where the file was
// changed so that their entries no longer lead to what they name, all is read anew.
void releeTablas(core::Modulo &M, mainscreen::Portada &P);

// Reads all anew: tables, combos and the list. What stood selected is so again, if the file still has it.
void releeTodo(core::Modulo &M, mainscreen::Portada &P);

// True if each entry of the combos leads to the name that it shows, and none is missing.
bool combosAlDia(const core::Modulo &M, const mainscreen::Portada &P);

// What says that another program has changed the file, and that nothing was written.
void avisaDeCambio(const core::Modulo &M, mainscreen::Portada &P);

} // namespace maintenance
