#include "launch/fuentezip.h"

#include "launch/libarchive.h"

#include "host/retried.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace launch {

namespace {

constexpr std::size_t BloqueDelZIP = 65536;
constexpr std::int64_t MaxMiembros = 1'000'000;
// The record at the end, ahead of a comment, and that of a member.
constexpr std::int64_t LargoFin = 22;
constexpr std::int64_t MaxComentario = 65535;
constexpr std::int64_t LargoMiembro = 46;
constexpr std::int64_t LugarSistema = 5;

using Bytes = std::vector<unsigned char>;

std::int64_t largoDe(const host::Descriptor &fichero)
{
    struct stat estado;
    return host::retried([&] { return fstat(fichero.number(), &estado); }) == 0 ? std::int64_t(estado.st_size)
                                                                                : 0;
}

// Empty unless all of them are there.
Bytes leeEn(const host::Descriptor &fichero, std::int64_t lugar, std::int64_t total)
{
    if (lugar < 0)
        return {};
    Bytes bytes(static_cast<std::size_t>(total));
    std::size_t leidos = 0;
    while (leidos < bytes.size()) {
        const ssize_t n = pread(
            fichero.number(), bytes.data() + leidos, bytes.size() - leidos, lugar + std::int64_t(leidos));
        if (n == 0 || (n < 0 && errno != EINTR))
            return {};
        leidos += std::size_t(std::max<ssize_t>(n, 0));
    }
    return bytes;
}

std::int64_t numeroDe2(const unsigned char *bytes)
{
    return bytes[0] | (bytes[1] << 8);
}

std::int64_t numeroDe4(const unsigned char *bytes)
{
    return numeroDe2(bytes) | (numeroDe2(bytes + 2) << 16);
}

bool esMiembro(const Bytes &registro)
{
    return !registro.empty() && std::memcmp(registro.data(), "PK\1\2", 4) == 0;
}

// Where the first member's record stands, by the record at the end; -1 if there is none. Behind a program
// that unpacks itself only the length counts.
std::int64_t comienzoDelDirectorio(const host::Descriptor &fichero)
{
    const std::int64_t largo = largoDe(fichero);
    const std::int64_t desde = std::max<std::int64_t>(0, largo - LargoFin - MaxComentario);
    const Bytes cola = leeEn(fichero, desde, largo - desde);
    for (std::int64_t i = std::int64_t(cola.size()) - LargoFin; i >= 0; --i) {
        const unsigned char *fin = cola.data() + i;
        if (std::memcmp(fin, "PK\5\6", 4) != 0)
            continue;
        for (const std::int64_t lugar : { numeroDe4(fin + 16), desde + i - numeroDe4(fin + 12) }) {
            if (esMiembro(leeEn(fichero, lugar, LargoMiembro)))
                return lugar;
        }
    }
    return -1;
}

// The numbers 10 and 11 are both NTFS: the format's own list and its oldest free tool differ.
bool esComoFat(unsigned char sistema)
{
    return sistema == 6 || sistema == 10 || sistema == 11 || sistema == 14;
}

} // namespace

std::vector<std::int64_t> LugaresDeSistemasComoFat(const host::Descriptor &fichero)
{
    std::vector<std::int64_t> lugares;
    std::int64_t lugar = comienzoDelDirectorio(fichero);
    for (std::int64_t n = 0; n < MaxMiembros; ++n) {
        const Bytes miembro = leeEn(fichero, lugar, LargoMiembro);
        if (!esMiembro(miembro))
            break;
        if (esComoFat(miembro[LugarSistema]))
            lugares.push_back(lugar + LugarSistema);
        const unsigned char *largos = miembro.data() + 28; // of the name, of further fields, of the comment
        lugar += LargoMiembro + numeroDe2(largos) + numeroDe2(largos + 2) + numeroDe2(largos + 4);
    }
    return lugares;
}

FuenteZip::FuenteZip(host::Descriptor fichero)
    : m_fichero(std::move(fichero))
    , m_bloque(BloqueDelZIP)
{
}

bool FuenteZip::AbrePara(archive *archivo)
{
    // What is no plain file can't be looked into ahead, and its length would be a lie.
    struct stat estado;
    if (!Abierta() || host::retried([&] { return fstat(m_fichero.number(), &estado); }) != 0
        || !S_ISREG(estado.st_mode))
        return false;
    m_sistemas = LugaresDeSistemasComoFat(m_fichero);
    libarchive::read_set_callback_data(archivo, this);
    libarchive::read_set_read_callback(archivo, lee);
    libarchive::read_set_skip_callback(archivo, salta);
    libarchive::read_set_seek_callback(archivo, va);
    return libarchive::read_open1(archivo) == ARCHIVE_OK;
}

la_ssize_t FuenteZip::lee(archive *archivo, void *fuente, const void **bytes)
{
    auto *yo = static_cast<FuenteZip *>(fuente);
    ssize_t leidos = -1;
    do
        leidos = pread(yo->m_fichero.number(), yo->m_bloque.data(), BloqueDelZIP, yo->m_lugar);
    while (leidos < 0 && errno == EINTR);
    if (leidos < 0) {
        libarchive::set_error(archivo, errno, "the archive can't be read");
        return ARCHIVE_FATAL;
    }
    yo->cambiaSistemas(leidos);
    yo->m_lugar += leidos;
    *bytes = yo->m_bloque.data();
    return leidos;
}

void FuenteZip::cambiaSistemas(std::int64_t leidos)
{
    constexpr char Fat = 0;
    const auto primero = std::lower_bound(m_sistemas.begin(), m_sistemas.end(), m_lugar);
    for (auto lugar = primero; lugar != m_sistemas.end() && *lugar < m_lugar + leidos; ++lugar)
        m_bloque[std::size_t(*lugar - m_lugar)] = Fat;
}

la_int64_t FuenteZip::salta(archive *, void *fuente, la_int64_t total)
{
    auto *yo = static_cast<FuenteZip *>(fuente);
    const std::int64_t saltados = std::clamp<std::int64_t>(yo->largo() - yo->m_lugar, 0, total);
    yo->m_lugar += saltados;
    return saltados;
}

la_int64_t FuenteZip::va(archive *, void *fuente, la_int64_t lugar, int desde)
{
    auto *yo = static_cast<FuenteZip *>(fuente);
    const std::int64_t base = desde == SEEK_SET ? 0 : desde == SEEK_CUR ? yo->m_lugar : yo->largo();
    if (lugar < -base)
        return ARCHIVE_FATAL;
    return yo->m_lugar = base + lugar;
}

std::int64_t FuenteZip::largo() const
{
    return largoDe(m_fichero);
}

} // namespace launch
