#include "launch/libarchive.h"

#include "host/failure.h"

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace launch::libarchive {

namespace {

void *bibliotecaAbierta()
{
    static void *const biblioteca = dlopen(LIBARCHIVE, RTLD_NOW | RTLD_LOCAL);
    return biblioteca;
}

} // namespace

bool Esta()
{
    return bibliotecaAbierta() != nullptr;
}

void *Direccion(const char *nombre)
{
    void *direccion = Esta() ? dlsym(bibliotecaAbierta(), nombre) : nullptr;
    if (!direccion)
        throw host::Failure(
            host::DeviceError, u"load the library that reads archives"_s, QStringLiteral(LIBARCHIVE));
    return direccion;
}

} // namespace launch::libarchive
