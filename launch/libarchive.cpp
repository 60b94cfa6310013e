#include "launch/libarchive.h"

#include "host/failure.h"

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace launch::libarchive {

void *Direccion(const char *nombre)
{
    static void *const biblioteca = dlopen(LIBARCHIVE, RTLD_NOW | RTLD_LOCAL);
    void *direccion = biblioteca ? dlsym(biblioteca, nombre) : nullptr;
    if (!direccion)
        throw host::Failure(
            host::DeviceError, u"load the library that reads archives"_s, QStringLiteral(LIBARCHIVE));
    return direccion;
}

} // namespace launch::libarchive
