// PrimerosAjustes DIRECTORY SYSTEM EMULATOR: writes the settings of a new program directory, in the language
// of the environment and with this pair selected, so that the first start asks nothing. Settings that are
// there stay.

#include "core/idiomas.h"
#include "core/modulo.h"
#include "core/primeravez.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"

#include <cstdio>
#include <memory>

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: PrimerosAjustes DIRECTORY SYSTEM EMULATOR\n", stderr);
        return 2;
    }
    try {
        host::setProgramDirectory(host::directoryPath(host::nameFromDisk(argv[1])));
        const QString idioma = core::IdiomaDeLocal(core::LocalDelEntorno(), core::IdiomasEnMayusculas());
        // Without a language the first run says what is amiss.
        const auto M = std::make_unique<core::Modulo>();
        if (!idioma.isEmpty())
            core::PonPrimerosAjustes(*M, idioma, host::nameFromDisk(argv[2]), host::nameFromDisk(argv[3]));
    } catch (const host::Failure &failure) {
        std::fprintf(stderr, "PrimerosAjustes: %s\n", failure.what());
        return 1;
    }
    return 0;
}
