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
// What was picked on a desktop that draws everything larger is kept as a part of that.
constexpr double MenorFactor = 0.25;

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

double FactorParaTamano(double pedido, double mostrado, const QByteArray &entorno)
{
    bool esNumero = false;
    const double propio = entorno.toDouble(&esNumero);
    const double delEscritorio = esNumero && propio > 0 ? mostrado / propio : mostrado;
    return pedido / delEscritorio;
}

QString LineaDeFactor(double factor)
{
    return Clave + QString::number(factor, 'g', 6) + u"\r\n"_s;
}

std::optional<double> FactorDeTexto(const QString &texto)
{
    if (!texto.startsWith(Clave))
        return std::nullopt;
    const qsizetype fin = texto.indexOf(u'\n');
    bool esNumero = false;
    const double factor = texto.left(fin < 0 ? texto.size() : fin).sliced(Clave.size()).toDouble(&esNumero);
    // A text that is no number may still be read as an infinite one.
    return esNumero && factor >= MenorFactor && factor <= Mayor ? std::optional(factor) : std::nullopt;
}

std::optional<double> FactorGuardado()
{
    try {
        return FactorDeTexto(QString::fromLatin1(host::readBytes(fichero(), LargoDeLinea)));
    } catch (const host::Failure &) {
        return std::nullopt;
    }
}

void GuardaFactor(double factor)
{
    host::NumberedFiles().replace(fichero(), u"Zembro.tmp"_s, LineaDeFactor(factor));
}

double FactorDePantalla(int lineas)
{
    constexpr int Alta = 2000;
    constexpr int MuyAlta = 4000;
    return lineas >= MuyAlta ? 3 : lineas >= Alta ? 2 : 1;
}

} // namespace core
