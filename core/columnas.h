// Whether a text needs letters of one width.
#pragma once

#include <QString>

namespace core {

// Blanks of a tab, at most.
inline constexpr int AnchoDeTabulador = 8;

// True for a text that holds drawings or tables: the lines and blocks of consoles, also where another code
// page made letters of them; three lines one under the other with a word, behind a gap, an upright stroke
// or, in the border of a table, a crossing in the same column; three lines one under the other that are signs
// rather than letters.
bool TieneColumnas(const QString &texto);

} // namespace core
