#include "core/tamano.h"

#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr double Menor = 1;
constexpr double Mayor = 4;
constexpr double Paso = 0.25;
constexpr double MenorParte = 0.25; // of the factor of a desktop that draws everything four times as large

constexpr auto Clave = "Size = "_L1;
constexpr int LargoDeLinea = 64; // bytes of the file that are read

QString fichero()
{
    return host::programFile(u"Zembro.tam"_s);
}

} // namespace

double OtroTamano(double actual, bool mayor)
{
    // A factor a little off its quarter, as a quotient is, counts as that quarter.
    const double pasos = std::round(actual / Paso * 1000) / 1000;
    const double siguiente = mayor ? std::floor(pasos) + 1 : std::ceil(pasos) - 1;
    return std::clamp(siguiente * Paso, Menor, Mayor);
}

double FactorParaTamano(double tamano, double delEscritorio)
{
    const double visto = tamano < Menor ? tamano * delEscritorio : tamano;
    return std::clamp(visto, Menor, Mayor) / delEscritorio;
}

QString LineaDeTamano(double tamano)
{
    return Clave + QString::number(tamano, 'g', 6) + u"\r\n"_s;
}

std::optional<double> TamanoDeTexto(const QString &texto)
{
    if (!texto.startsWith(Clave))
        return std::nullopt;
    const qsizetype fin = texto.indexOf(u'\n');
    bool esNumero = false;
    const double tamano = texto.left(fin < 0 ? texto.size() : fin).sliced(Clave.size()).toDouble(&esNumero);
    // A text that is no number may still be read as an infinite one.
    return esNumero && tamano >= MenorParte && tamano <= Mayor ? std::optional(tamano) : std::nullopt;
}

std::optional<double> TamanoGuardado()
{
    try {
        return TamanoDeTexto(QString::fromLatin1(host::readBytes(fichero(), LargoDeLinea)));
    } catch (const host::Failure &) {
        return std::nullopt;
    }
}

void GuardaTamano(double tamano)
{
    host::NumberedFiles().replace(fichero(), u"Zembro.tmp"_s, LineaDeTamano(tamano));
}

double FactorDePantalla(int lineas)
{
    constexpr int Alta = 2000;
    constexpr int MuyAlta = 4000;
    return lineas >= MuyAlta ? 3 : lineas >= Alta ? 2 : 1;
}

} // namespace core
