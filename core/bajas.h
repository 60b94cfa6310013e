// Removals from the catalogue files, from text to text, and the selection afterwards. Every line that stays
// comes out byte for byte.
#pragma once

#include "core/modulo.h"

#include <optional>

namespace core {

// Both files: the system's block, closing line included.
QString SinSistema(const QString &texto, const QString &sistema);

// Zembro.sye: the emulator's "+" line and all up to its "WEB2" line, in the system's block.
QString SinEmuladorEnBase(const QString &texto, const QString &sistema, const QString &emulador);

// Zembro.emu.

// The one emulator of a system: the system stays, closed behind its extensions.
QString SinUnicoEmulador(const QString &texto, const QString &sistema);

// One that others of its system follow: the first block of that name in the file, whichever system that
// belongs to, with the apostrophe that ends it. A closing line stays.
QString SinEmulador(const QString &texto, const QString &emulador);

// The last of the several of its system: from the apostrophe ahead of it up to the closing line, which stays.
// total: number of the system's emulators; the apostrophe of that number is where it begins, as long as the
// emulator ahead of it keeps all its lines.
QString SinUltimoEmulador(const QString &texto, const QString &sistema, int total);

// The same as the catalogue's tables ask for them, a system by its row, an emulator by its column. Nothing
// where the file that has just been read holds otherwise than the tables, line for line, what would go: it
// was changed since they were read.
std::optional<QString> SinSistemaDeLaFila(const Modulo &M, int fila, const QString &texto);
std::optional<QString> SinEmuladorDeLaFila(const Modulo &M, int fila, int columna, const QString &texto);

// The place from 0 of a system among the sorted names: its place in Combo1. Fails with 9 for a full table of
// 151 systems.
int PosicionParaBorrar(const Modulo &M, const QString &sistema);

// The place to select when the system at this place of so many has gone: the same one, or the one ahead of
// the last.
int PosicionTrasBorrar(int posicion, int total);

} // namespace core
