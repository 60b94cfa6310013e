// Whether what the tables of the catalogue name still stands in the file that has just been read where it
// stood when they were: another program may have changed the file meanwhile.
#pragma once

#include "core/modulo.h"

#include <optional>

namespace core {

// Among the blocks of that name the one, from 0, that holds what this row does, line for line. None where the
// file has more or fewer blocks of the name than the tables.
std::optional<int> BloqueDeLaFila(const Modulo &M, int fila, const QString &texto);

// True if all blocks of this row's name hold what the tables do, one by one.
bool SonLosDeLasTablas(const Modulo &M, int fila, const QString &texto);

// True if the file's first block of this emulator's name is the one that the tables lead to: the one of this
// row, or, of several in the tables, the first of them, in a system that is as it was.
bool PrimeroDeLaFila(const Modulo &M, int fila, const QString &emulador, const QString &texto);

// The same of the pair that a save changes: its own system may be otherwise than the tables.
bool PrimeroDelSistema(
    const Modulo &M, const QString &sistema, const QString &emulador, const QString &texto);

} // namespace core
