// Removals from the catalogue files, from text to text, and the selection afterwards. Every line that stays
// comes out byte for byte.
#pragma once

#include "core/modulo.h"

namespace core {

// Both files: the system's block, closing line included.
QString SinSistema(const QString &texto, const QString &sistema);

// Zembro.sye: the emulator's "+" line and all up to its "WEB2" line, behind the system's "-" line.
QString SinEmuladorEnBase(const QString &texto, const QString &sistema, const QString &emulador);

// Zembro.emu.

// The one emulator of a system: the system stays, closed behind its extensions.
QString SinUnicoEmulador(const QString &texto, const QString &sistema);

// One that others of its system follow: the first block of that name in the file, whichever system that
// belongs to, with the line that ends it.
QString SinEmulador(const QString &texto, const QString &emulador);

// The last of the several of its system: from the apostrophe ahead of it up to the closing line, which stays.
// total: number of the system's emulators.
QString SinUltimoEmulador(const QString &texto, const QString &sistema, int total);

// The place from 0 of a system among the sorted names: its place in Combo1. Fails with 9 for a full table of
// 151 systems.
int PosicionParaBorrar(const Modulo &M, const QString &sistema);

// The place to select when the system at this place of so many has gone: the same one, or the one ahead of
// the last.
int PosicionTrasBorrar(int posicion, int total);

} // namespace core
