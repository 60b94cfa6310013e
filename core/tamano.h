// How large everything is drawn. The size that the user has picked stands as the only line of Zembro.tam
// beside the executable, "Size = 1.5", as it is seen: on whatever desktop the program starts.
#pragma once

#include <QString>

#include <optional>

namespace core {

// The size above or below this one, in quarters from 1 to 4.
double OtroTamano(double actual, bool mayor);

// The factor by which the toolkit has to multiply the desktop's own, so that the screen comes up in this
// size, from 1 to 4. Less than 1 is what earlier versions wrote on a desktop that draws everything larger:
// that part of its factor.
double FactorParaTamano(double tamano, double delEscritorio);

// The line of a size, and the size of a text; none where the text begins otherwise, or with a number that
// can't be one.
QString LineaDeTamano(double tamano);
std::optional<double> TamanoDeTexto(const QString &texto);

// The size that is kept; none where the file is missing or can't be read.
std::optional<double> TamanoGuardado();

// Fails with what the host says where the file can't be written.
void GuardaTamano(double tamano);

// The factor for a screen of so many lines on a desktop that draws everything at its own size.
double FactorDePantalla(int lineas);

} // namespace core
