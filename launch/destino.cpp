#include "launch/destino.h"

#include "host/retried.h"
#include "host/writebytes.h"

#include <cerrno>
#include <cstdio>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace launch {

using host::retried;

namespace {

constexpr std::int64_t MinimoLibre = 100 * 1024 * 1024;
const std::string EnCurso = "unpacking";
constexpr int EnDirectorio = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

std::int64_t espacioDelSistema(int descriptor)
{
    struct statvfs disco;
    if (retried([&] { return fstatvfs(descriptor, &disco); }) != 0)
        return 0;
    return std::int64_t(disco.f_bavail) * std::int64_t(disco.f_frsize);
}

EspacioLibre &espacioLibre()
{
    static EspacioLibre fuente = espacioDelSistema;
    return fuente;
}

} // namespace

void PonEspacioLibre(EspacioLibre fuente)
{
    espacioLibre() = fuente ? std::move(fuente) : espacioDelSistema;
}

QList<QByteArray> PartesDe(const QByteArray &nombre)
{
    QList<QByteArray> partes;
    for (const QByteArray &parte : QByteArray(nombre).replace('\\', '/').split('/')) {
        if (!parte.isEmpty() && parte != "." && parte != "..")
            partes << parte;
    }
    return partes;
}

FicheroNuevo::FicheroNuevo(const host::Descriptor &directorio)
    : m_directorio(directorio)
    , m_provisional(host::openScratchFile(directorio.number(), EnCurso))
{
}

FicheroNuevo::~FicheroNuevo()
{
    if (Abierto() && !m_provisional.name.empty())
        retried([this] { return unlinkat(m_directorio.number(), m_provisional.name.c_str(), 0); });
}

bool FicheroNuevo::Escribe(const char *bytes, std::int64_t total)
{
    if (espacioLibre()(m_directorio.number()) - total < MinimoLibre)
        return false;
    return host::writeBytes(m_provisional.file.number(), bytes, std::size_t(total));
}

bool FicheroNuevo::Termina(const QByteArray &nombre, bool soloLectura)
{
    struct stat estado;
    const int fichero = m_provisional.file.number();
    if (soloLectura && retried([&] { return fstat(fichero, &estado); }) == 0)
        retried([&] { return fchmod(fichero, estado.st_mode & 0555); });
    const int directorio = m_directorio.number();
    const auto renombra = [&] {
        return renameat(directorio, m_provisional.name.c_str(), directorio, nombre.constData());
    };
    if (retried(renombra) != 0)
        return false;
    m_provisional.name.clear();
    return true;
}

Destino::Destino(const QByteArray &ruta)
    : m_descriptor(retried([&] { return open(ruta.constData(), EnDirectorio); }))
{
    barre(m_descriptor, {});
}

void Destino::barre(const host::Descriptor &directorio, const QByteArray &lugar) const
{
    if (!directorio.isOpen() || m_barridos.contains(lugar))
        return;
    m_barridos.insert(lugar);
    host::sweepScratchFiles(directorio.number(), EnCurso);
}

bool Destino::QuedaSitio() const
{
    return espacioLibre()(m_descriptor.number()) >= MinimoLibre;
}

host::Descriptor Destino::Directorio(const QList<QByteArray> &partes) const
{
    const auto abre = [](const host::Descriptor &en, const char *nombre) {
        return host::Descriptor(retried([&] { return openat(en.number(), nombre, EnDirectorio); }));
    };
    host::Descriptor directorio = abre(m_descriptor, ".");
    for (const QByteArray &parte : partes) {
        retried([&] { return mkdirat(directorio.number(), parte.constData(), 0777); });
        directorio = abre(directorio, parte.constData());
        if (!directorio.isOpen())
            break;
    }
    barre(directorio, partes.join('/'));
    return directorio;
}

Destino::Ocupante Destino::QuienOcupa(const host::Descriptor &directorio, const QByteArray &nombre)
{
    struct stat estado;
    const auto mira = [&] {
        return fstatat(directorio.number(), nombre.constData(), &estado, AT_SYMLINK_NOFOLLOW);
    };
    // What can't be seen may be a file: nothing is replaced unasked.
    if (retried(mira) != 0)
        return errno == ENOENT || errno == ENAMETOOLONG ? Ocupante::Nadie : Ocupante::Fichero;
    return S_ISDIR(estado.st_mode) ? Ocupante::Directorio : Ocupante::Fichero;
}

} // namespace launch
