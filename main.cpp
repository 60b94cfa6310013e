// The assembler: makes the screens, joins them, starts the event loop.

#include "core/arranque.h"
#include "core/modulo.h"
#include "core/tamano.h"

#include "forms/application.h"
#include "forms/guard.h"
#include "forms/pictures.h"

#include "host/desktopquestions.h"
#include "host/display.h"
#include "host/fontsahead.h"
#include "host/process.h"

#include "mainscreen/portada.h"

#include "maintenance/bajas.h"
#include "maintenance/pasos.h"

#include "options/pantallas.h"
#include "options/primerainstalacion.h"

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// The toolkit takes it before its first window, from the environment. What the user set there stands.
std::optional<double> factorDelArranque(int argc, char **argv)
{
    if (!qEnvironmentVariableIsEmpty("QT_SCALE_FACTOR"))
        return std::nullopt;
    if (const std::optional<double> guardado = core::TamanoGuardado())
        return core::FactorParaTamano(*guardado, host::desktopFactor(argc, argv));
    const double dePantalla = core::FactorDePantalla(host::linesWithoutScale());
    return dePantalla > 1 ? std::optional(dePantalla) : std::nullopt;
}

} // namespace

int main(int argc, char **argv)
{
    host::rememberEnvironment();
    if (!host::hasDisplay()) {
        std::fputs("Zembrolix: there is no display to show the screen on.\n", stderr);
        return 1;
    }
    if (const std::optional<double> factor = factorDelArranque(argc, argv))
        qputenv("QT_SCALE_FACTOR", QByteArray::number(*factor, 'g', 12));
    host::DesktopQuestions preguntas;
    host::setQuestions(&preguntas);
    host::FontsAhead fuentes;
    forms::Application aplicacion(argc, argv, &fuentes);
    forms::Application::setWindowIcon(forms::artworkIcon(u"icono"_s));

    bool arrancando = true;
    forms::setFatalWords([&arrancando](const host::Failure &fallo) {
        return forms::FatalWords { core::TituloDeFallo, core::TextoDeFallo(fallo, arrancando) };
    });

    core::Modulo M;
    mainscreen::Portada portada(M);
    forms::FormHolder<options::PrimeraInstalacion> primera(
        [&M] { return std::make_unique<options::PrimeraInstalacion>(M); });
    maintenance::Bajas bajas(M, portada);
    maintenance::Pasos pasos(M, portada);
    options::Pantallas opciones(M, portada);
    portada.MuestraPrimeraInstalacion = [&primera] { primera.ShowModal(nullptr); };

    forms::guarded([&portada] { portada.Carga(); });
    arrancando = false;
    return forms::Application::exec();
}
