#include "finder/lugares.h"

#include "host/encoding.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

QString deEntorno(const char *nombre)
{
    return host::nameFromDisk(qgetenv(nombre));
}

QStringList directoriosDeNucleos()
{
    const QDir bibliotecas(u"/usr/lib"_s);
    QStringList directorios { u"/usr/lib/libretro"_s, u"/usr/local/lib/libretro"_s };
    for (const QString &arquitectura : bibliotecas.entryList({ u"*-linux-gnu*"_s }, QDir::Dirs, QDir::Name))
        directorios += u"/usr/lib/"_s + arquitectura + u"/libretro"_s;
    return directorios;
}

} // namespace

Lugares LugaresDeLaMaquina()
{
    Lugares lugares;
    lugares.programas = deEntorno("PATH").split(u':');
    // A relative entry means another directory wherever the program is started.
    lugares.programas.removeIf([](const QString &directorio) { return !directorio.startsWith(u'/'); });
    lugares.programas << u"/usr/games"_s << u"/usr/local/games"_s;
    const QString casa = deEntorno("HOME");
    const QString datos = deEntorno("XDG_DATA_HOME");
    lugares.programas << (datos.isEmpty() ? casa + u"/.local/share"_s : datos) + u"/flatpak/exports/bin"_s
                      << u"/var/lib/flatpak/exports/bin"_s;
    lugares.nucleos = directoriosDeNucleos();
    return lugares;
}

QString RutaDePrograma(const QStringList &nombres, const Lugares &lugares)
{
    for (const QString &nombre : nombres) {
        const QString ruta = QStandardPaths::findExecutable(nombre, lugares.programas);
        if (!ruta.isEmpty())
            return ruta;
    }
    return {};
}

QString RutaDeNucleo(const QString &nombre, const Lugares &lugares)
{
    for (const QString &directorio : lugares.nucleos) {
        const QString ruta = directorio + u'/' + nombre + u"_libretro.so"_s;
        if (QFileInfo(ruta).isFile())
            return ruta;
    }
    return {};
}

} // namespace finder
