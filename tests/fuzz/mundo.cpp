#include "mundo.h"

#include "tema.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"

#include <QTemporaryDir>

#include <algorithm>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace pelusa {

QByteArray Rincon()
{
    static const QTemporaryDir directorio(
        qEnvironmentVariableIsEmpty("TMPDIR") && access("/dev/shm", W_OK) == 0 ? u"/dev/shm/zembrolix-fuzz-XXXXXX"_s : QString());
    return directorio.path().toUtf8() + '/';
}

void PonFichero(const char *nombre, const QByteArray &bytes)
{
    static const QByteArray programa = [] {
        const QByteArray ruta = Rincon() + "program/";
        mkdir(ruta.constData(), 0700);
        mkdir((ruta + "LNG").constData(), 0700);
        host::setProgramDirectory(host::nameFromDisk(ruta.chopped(1)));
        return ruta;
    }();
    const int fichero = open((programa + nombre).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const bool escrito = write(fichero, bytes.constData(), size_t(bytes.size())) == bytes.size();
    close(fichero);
    Exige(escrito, "a file can be written to read it");
}

int Fallo(std::initializer_list<int> posibles, const char *operacion, const std::function<void()> &paso)
{
    try {
        paso();
        return 0;
    } catch (const host::Failure &fallo) {
        if (std::ranges::find(posibles, fallo.number()) == posibles.end())
            throw Incumplido(std::string(operacion) + " failed with " + fallo.what());
        return fallo.number();
    }
}

} // namespace pelusa
