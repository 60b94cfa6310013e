// zembro COMMAND: what a terminal or a script asks of the program directory.

#include "companion/zembro.h"

#include "host/encoding.h"
#include "host/process.h"

#include <clocale>
#include <cstdio>

#include <unistd.h>

int main(int argc, char **argv)
{
    // Names of members of archives need a UTF-8 locale.
    if (!std::setlocale(LC_ALL, "") || MB_CUR_MAX == 1)
        std::setlocale(LC_ALL, "C.UTF-8");
    host::rememberEnvironment();
    QStringList argumentos;
    for (int i = 1; i < argc; ++i)
        argumentos += host::nameFromDisk(argv[i]);
    const auto en = [](FILE *fichero) {
        return [fichero](const QByteArray &bytes) {
            std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), fichero);
        };
    };
    // What is said beside the answer stands where it is said.
    const auto error = [&](const QByteArray &bytes) {
        std::fflush(stdout);
        en(stderr)(bytes);
    };
    const auto queda = [] { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; };
    const auto esTerminal = [] { return isatty(STDOUT_FILENO) == 1; };
    return companion::Zembro(argumentos, { en(stdout), error, queda, esTerminal });
}
