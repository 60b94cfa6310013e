#include "finder/eleccion.h"

#include "core/catalogo.h"

#include "host/paths.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace finder {

bool EsMAME(const QString &exe)
{
    const QString nombre = exe.sliced(host::lastSeparator(exe) + 1);
    return nombre == u"mame" || nombre == u"mame64" || nombre == u"org.mamedev.MAME";
}

namespace {

// The systems that have an emulator of their own.
QSet<QString> conOtroEmulador(const std::vector<Hallazgo> &hallazgos, const core::Modulo &catalogo)
{
    QSet<QString> sistemas;
    for (const Hallazgo &hallazgo : hallazgos) {
        if (!hallazgo.deMAME)
            sistemas += hallazgo.sistema;
    }
    for (int s = 0; s <= catalogo.Indice_Sistema; ++s) {
        for (int e = 1; e <= core::TotalEmuladores(catalogo, s); ++e) {
            if (!EsMAME(core::Valor(catalogo.Cat_EXE(s, e), core::PrefijoRuta)))
                sistemas += core::Valor(catalogo.Cat_Nombre(s, 0), 1);
        }
    }
    return sistemas;
}

} // namespace

std::vector<Hallazgo> Elige(
    const std::vector<Hallazgo> &hallazgos, const core::Modulo &catalogo, const TieneJuegos &hayJuegos)
{
    QSet<QString> conJuegos;
    for (const Hallazgo &hallazgo : hallazgos) {
        if (!conJuegos.contains(hallazgo.sistema) && hayJuegos(hallazgo))
            conJuegos += hallazgo.sistema;
    }
    const QSet<QString> conOtro = conOtroEmulador(hallazgos, catalogo);
    std::vector<Hallazgo> elegidos;
    std::copy_if(
        hallazgos.begin(), hallazgos.end(), std::back_inserter(elegidos), [&](const Hallazgo &hallazgo) {
            const bool sobra = hallazgo.deMAME && hallazgo.pideROMs && conOtro.contains(hallazgo.sistema);
            return conJuegos.contains(hallazgo.sistema) && !sobra;
        });
    return ConMAMEDetras(std::move(elegidos));
}

std::vector<Hallazgo> ConMAMEDetras(std::vector<Hallazgo> hallazgos)
{
    auto desde = hallazgos.begin();
    while (desde != hallazgos.end()) {
        const auto hasta = std::find_if(desde, hallazgos.end(),
            [sistema = desde->sistema](const Hallazgo &hallazgo) { return hallazgo.sistema != sistema; });
        std::stable_partition(desde, hasta, [](const Hallazgo &hallazgo) { return !hallazgo.deMAME; });
        desde = hasta;
    }
    return hallazgos;
}

} // namespace finder
