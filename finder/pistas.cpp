#include "finder/pistas.h"

#include "finder/hallazgos.h"

#include "core/rutas.h"

#include "host/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

constexpr int SinMarcas = 0;

// The parameters by the marks of the form, as blanks depend on them; without marks as the table has it.
Parametros parametrosCon(Ficha ficha, const core::Marcas &marcas)
{
    const QString tipo = core::MarcasATipo(marcas);
    if (tipo.toInt() != SinMarcas)
        ficha.tipo = tipo;
    return ParametrosDe(ficha);
}

QString parametrosDelante(const Conocido &conocido, const QString &par1)
{
    const Ficha &ficha = conocido.ficha;
    if (!NucleoDe(ficha).isEmpty())
        return conocido.nucleo.isEmpty() ? QString() : ConNucleo(par1, conocido.nucleo);
    if (SeArrancaJuntoASusROMs(ficha))
        return conocido.enlace.isEmpty() ? QString() : ConEnlaceDeROMs(par1);
    return par1;
}

// A box holds one line.
QString siCabe(const QString &valor)
{
    const bool cabe = std::none_of(
        valor.begin(), valor.end(), [](QChar c) { return c < u' ' || c == u'\u2028' || c == u'\u2029'; });
    return cabe ? valor : QString();
}

} // namespace

Conocido Reconoce(const QString &sistema, const QString &emulador, const std::vector<Ficha> &fichas,
    const Lugares &lugares, const QString &directorio)
{
    Conocido conocido;
    conocido.roms = core::ValorDeRuta(RutaDeROMs(directorio, sistema), directorio);
    conocido.capturas = core::ValorDeRuta(RutaDeCapturas(directorio, sistema), directorio);
    const auto ficha = std::find_if(
        fichas.begin(), fichas.end(), [&](const Ficha &una) { return una.emulador == emulador; });
    if (ficha == fichas.end())
        return conocido;
    conocido.ficha = *ficha;
    const QString programa = RutaDePrograma(ficha->ejecutables, lugares);
    conocido.programa = core::ValorDeRuta(programa, directorio);
    const QString nucleo = NucleoDe(*ficha);
    if (!nucleo.isEmpty())
        conocido.nucleo = RutaDeNucleo(nucleo, lugares);
    if (SeArrancaJuntoASusROMs(*ficha) && !programa.isEmpty()) {
        const QString enlace =
            RutaDeArranque(directorio, emulador) + programa.sliced(host::lastSeparator(programa));
        conocido.enlace = host::exists(enlace) ? core::ValorDeRuta(enlace, directorio) : QString();
    }
    return conocido;
}

core::Casillas PistasDe(const Conocido &conocido, const core::Marcas &marcas)
{
    const Parametros parametros = parametrosCon(conocido.ficha, marcas);
    const QString par1 = parametrosDelante(conocido, parametros.par1);
    // Started alone it gets nothing behind a game.
    const QString par2 = marcas.check4 ? QString() : parametros.par2;
    return { siCabe(conocido.enlace.isEmpty() ? conocido.programa : conocido.enlace), siCabe(conocido.roms),
        siCabe(conocido.capturas), siCabe(par1), siCabe(par2) };
}

} // namespace finder
