#include "launch/temporal.h"

#include "launch/intenta.h"

#include "host/encoding.h"
#include "host/paths.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

QString nombreDelPrograma()
{
    return u"zembrolix"_s;
}

} // namespace

QString DirectorioTemporal()
{
    return host::temporaryPath(nombreDelPrograma());
}

QString RutaZBTMP()
{
    const QString temporal = DirectorioTemporal();
    const QString actual = host::currentDirectory();
    if (temporal.isEmpty() && actual.isEmpty())
        return {};
    return (temporal.isEmpty() ? actual + u'/' : temporal) + u"ZB-TMP"_s;
}

bool EsDirectorioPropio(const QString &ruta)
{
    struct stat estado;
    return lstat(host::nameToDisk(ruta).constData(), &estado) == 0 && S_ISDIR(estado.st_mode)
        && estado.st_uid == geteuid();
}

void HazZBTMP(const QString &ruta)
{
    mkdir(host::nameToDisk(ruta).constData(), 0700);
}

void BarreZBTMP(core::Modulo &M)
{
    const QString ruta = RutaZBTMP();
    if (!EsDirectorioPropio(ruta) || host::attributes(ruta) != host::DirectoryAttribute)
        return;
    M.RutaTrabajo = ruta + u'/';
    for (const QString &nombre : host::listPlainFiles(ruta) + host::listDirectories(ruta)) {
        M.DirActual = nombre;
        Intenta([&] { host::clearAttributes(M.RutaTrabajo + nombre); });
    }
    VaciaZBTMP(ruta);
}

void VaciaZBTMP(const QString &ruta)
{
    if (!EsDirectorioPropio(ruta))
        return;
    Intenta([&] { host::deleteFiles(ruta); });
    Intenta([&] { host::removeDirectory(ruta); });
}

void RecogeTemporal()
{
    host::tidyTemporaryPath(nombreDelPrograma());
}

} // namespace launch
