// How large everything is drawn: the factor by which the program multiplies the desktop's own. The one that
// the user has picked stands as the only line of Zembro.tam beside the executable, "Size = 1.5".
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace core {

// The size above or below this one, in quarters from 1 to 4.
double OtroTamano(double actual, bool mayor);

// The factor with which the screen comes up in the size that was picked, from the size in which it is shown
// now and the factor that it was started with, as the environment says it.
double FactorParaTamano(double pedido, double mostrado, const QByteArray &entorno);

// The line of a factor, and the factor of a text; none where the text begins otherwise, or with a factor that
// nobody could see or that no screen has room for.
QString LineaDeFactor(double factor);
std::optional<double> FactorDeTexto(const QString &texto);

// The factor that is kept; none where the file is missing or can't be read.
std::optional<double> FactorGuardado();

// Fails with what the host says where the file can't be written.
void GuardaFactor(double factor);

// The factor for a screen of so many lines on a desktop that draws everything at its own size.
double FactorDePantalla(int lineas);

} // namespace core
