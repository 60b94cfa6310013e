// The list of an emulator's games as the main screen shows it, from its directory, the notes and the
// extensions.
#pragma once

#include "core/lista.h"
#include "core/modulo.h"

#include <functional>

namespace core {

// Empties the tables of the list.
void VaciaLista(Modulo &M);

// Fills the tables, which have to be empty, for the emulator in this row of a system's (1 is the first), and
// lists its games. TipoEmu is set. The system's notes are those of `nombre`; `leido` runs ahead of the
// matching. Fails with 5 for an emulator without a line for its directory, and as what it reads with.
Recuento ListaDe(
    Modulo &M, int sistema, int fila, const QString &nombre, const std::function<void()> &leido = [] {});

} // namespace core
