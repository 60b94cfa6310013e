// Where a system's block lies among the lines of a catalogue file, and an emulator's lines within it. What
// changes a block keeps within it: the lines of another system, and the end of the data, are never touched.
#pragma once

#include "core/lineas.h"

#include <QString>

#include <optional>
#include <vector>

namespace core {

// Indices of lines. The block ends behind its closing line ("'-"); where it has none, ahead of what can't be
// its own, the next system or the end of the data.
struct Bloque {
    size_t inicio = 0; // its "-" line
    size_t fin = 0; // behind its last line
    bool cerrado = false;

    size_t cierre() const { return cerrado ? fin - 1 : fin; } // behind its last line but the closing one
};

// The blocks that this "-" line opens, in the file's order.
std::vector<Bloque> BloquesDe(const std::vector<LineaConFin> &lineas, QStringView lineaDeSistema);

// The index of the emulator's first "+" line in the block.
std::optional<size_t> LineaDeEmulador(
    const std::vector<LineaConFin> &lineas, const Bloque &bloque, const QString &emulador);

// True if the text has a block of this system, or of this emulator in one of its system.
bool TieneSistema(const QString &texto, const QString &sistema);
bool TieneEmulador(const QString &texto, const QString &sistema, const QString &emulador);

// The first index from `desde` to `hasta` (not included) of a line that begins so, else `hasta`.
size_t PrimeraConInicio(
    const std::vector<LineaConFin> &lineas, size_t desde, size_t hasta, QStringView inicio);

// Behind the lines that the reader gives to the emulator whose "+" line this is: the next line that begins
// with an apostrophe, a "+", a "-" or a "[", or the end.
size_t FinDeEmulador(const std::vector<LineaConFin> &lineas, size_t lineaDeEmulador);

// Copies from the line behind an emulator's: where an apostrophe of the user's own has cut its values in two,
// the rest of them is left out, as it would pass to another emulator. Returns the index of the first line
// that isn't copied yet.
size_t CopiaSinRestos(Copia &copia, const std::vector<LineaConFin> &lineas, size_t desde);

// True for a line of an emulator's own values: of EXE, XDI, ROM, IMG, PAR1, PAR2, WEB2.
bool EsValorDeEmulador(QStringView linea);

// True for a line that the reader of the catalogue keeps.
bool EsDelCatalogo(QStringView linea);

} // namespace core
