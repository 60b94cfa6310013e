#include "launch/destino.h"

#include <cerrno>
#include <cstdio>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace launch {

namespace {

constexpr std::int64_t MinimoLibre = 100 * 1024 * 1024;
const std::string EnCurso = "unpacking";
constexpr int EnDirectorio = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

std::int64_t espacioDelSistema(int descriptor)
{
    struct statvfs disco;
    if (fstatvfs(descriptor, &disco) != 0)
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
        unlinkat(m_directorio.number(), m_provisional.name.c_str(), 0);
}

bool FicheroNuevo::Escribe(const char *bytes, std::int64_t total)
{
    if (espacioLibre()(m_directorio.number()) - total < MinimoLibre)
        return false;
    while (total > 0) {
        const ssize_t escritos = write(m_provisional.file.number(), bytes, size_t(total));
        if (escritos < 0 && errno != EINTR)
            return false;
        bytes += std::max<ssize_t>(escritos, 0);
        total -= std::max<ssize_t>(escritos, 0);
    }
    return true;
}

bool FicheroNuevo::Termina(const QByteArray &nombre, bool soloLectura)
{
    struct stat estado;
    if (soloLectura && fstat(m_provisional.file.number(), &estado) == 0)
        fchmod(m_provisional.file.number(), estado.st_mode & 0555);
    const int directorio = m_directorio.number();
    if (renameat(directorio, m_provisional.name.c_str(), directorio, nombre.constData()) != 0)
        return false;
    m_provisional.name.clear();
    return true;
}

Destino::Destino(const QByteArray &ruta)
    : m_descriptor(open(ruta.constData(), EnDirectorio))
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
    host::Descriptor directorio(openat(m_descriptor.number(), ".", EnDirectorio));
    for (const QByteArray &parte : partes) {
        mkdirat(directorio.number(), parte.constData(), 0777);
        directorio = host::Descriptor(openat(directorio.number(), parte.constData(), EnDirectorio));
        if (!directorio.isOpen())
            break;
    }
    barre(directorio, partes.join('/'));
    return directorio;
}

Destino::Ocupante Destino::QuienOcupa(const host::Descriptor &directorio, const QByteArray &nombre)
{
    struct stat estado;
    if (fstatat(directorio.number(), nombre.constData(), &estado, AT_SYMLINK_NOFOLLOW) != 0)
        return Ocupante::Nadie;
    return S_ISDIR(estado.st_mode) ? Ocupante::Directorio : Ocupante::Fichero;
}

} // namespace launch
