// The fuzzer's main, of one topic.
#include "tema.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

const pelusa::Tema &tema()
{
    for (const pelusa::Tema &uno : pelusa::Temas()) {
        if (std::string_view(uno.nombre) == TEMA)
            return uno;
    }
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t total);

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // It sets the locale, which names in archives are read by.
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t total)
{
    static const pelusa::Tema &uno = tema();
    try {
        uno.probar({ bytes, total });
    } catch (const std::exception &fallo) {
        std::fprintf(stderr, "%s: %s\n", uno.nombre, fallo.what());
        std::abort();
    }
    return 0;
}
