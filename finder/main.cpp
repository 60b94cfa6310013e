// BuscaEmuladores TABLE DIRECTORY CATALOGUE: configures the emulators of this machine in the catalogue of a
// new program directory, and makes the directories of their games. Says on the standard output what it has
// configured.

#include "finder/preparacion.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString textoDe(const QString &ruta)
{
    return host::decodeText(host::readBytes(ruta)).text;
}

void configura(const QString &tabla, const QString &directorio, const QString &catalogo)
{
    const std::vector<finder::Ficha> fichas = finder::LeeFichas(textoDe(tabla));
    const auto base = std::make_unique<core::Modulo>();
    finder::LeeTablas(*base, textoDe(directorio + u"/Zembro.sye"_s));
    std::vector<finder::Hallazgo> hallazgos;
    host::NumberedFiles ficheros;
    ficheros.rewrite(catalogo, u"Zembro.tmp"_s, [&](const QString &texto) {
        const auto configurado = std::make_unique<core::Modulo>();
        finder::LeeTablas(*configurado, texto);
        hallazgos = finder::Busca(*base, *configurado, fichas, finder::LugaresDeLaMaquina(), directorio);
        for (const finder::Hallazgo &hallazgo : hallazgos)
            finder::Prepara(hallazgo);
        return finder::CatalogoCon(texto, *base, hallazgos);
    });
    // Only now does the catalogue hold them: who is told of one takes it for done.
    for (const finder::Hallazgo &hallazgo : hallazgos)
        std::printf("%s: %s, %s\n", qPrintable(hallazgo.sistema), qPrintable(hallazgo.emulador.nombre),
            qPrintable(hallazgo.programa));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: BuscaEmuladores TABLE DIRECTORY CATALOGUE\n", stderr);
        return 2;
    }
    try {
        configura(host::nameFromDisk(argv[1]), host::nameFromDisk(argv[2]), host::nameFromDisk(argv[3]));
    } catch (const host::Failure &failure) {
        std::fprintf(stderr, "BuscaEmuladores: %s\n", failure.what());
        return 1;
    }
    return 0;
}
