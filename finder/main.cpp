// BuscaEmuladores [--all] TABLE DIRECTORY [CATALOGUE]: adds emulators of this machine to the catalogue of a
// program directory, and makes the directories of their games: those of the systems that have games there,
// with
// --all those of the others too. A CATALOGUE is a new one, which isn't in its place yet. Says on the standard
// output what it has configured, and on the standard error what it couldn't.

#include "finder/configura.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"

#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += host::nameFromDisk(argv[i]);
    const bool todo = arguments.removeAll(u"--all"_s) > 0;
    if (arguments.size() != 2 && arguments.size() != 3) {
        std::fputs("usage: BuscaEmuladores [--all] TABLE DIRECTORY [CATALOGUE]\n", stderr);
        return 2;
    }
    const auto say = [](FILE *where, const QString &text) {
        std::fprintf(where, "%s\n", host::nameToDisk(text).constData());
    };
    // The drives are those of the directory.
    host::setProgramDirectory(QDir::cleanPath(QDir::current().absoluteFilePath(arguments[1])));
    try {
        const finder::Resultado resultado =
            finder::Configura({ arguments[0], arguments[1], arguments.value(2), todo });
        for (const finder::Hallazgo &hallazgo : resultado.puestos)
            say(stdout, u"%1: %2, %3"_s.arg(hallazgo.sistema, hallazgo.emulador.nombre, hallazgo.programa));
        for (const QString &aviso : resultado.avisos)
            say(stderr, aviso);
    } catch (const host::Failure &failure) {
        std::fprintf(stderr, "BuscaEmuladores: %s\n", failure.what());
        return 1;
    }
    return 0;
}
