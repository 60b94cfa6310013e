#include "launch/indicezip.h"

#include "launch/libarchive.h"

#include "host/encoding.h"
#include "host/paths.h"

#include <memory>

namespace launch {

std::optional<IndiceZip> IndiceDe(const QString &ruta)
{
    constexpr std::size_t bloque = 65536;
    if (!libarchive::Esta())
        return std::nullopt;
    const auto cierra = [](archive *abierto) { libarchive::read_free(abierto); };
    const std::unique_ptr<archive, decltype(cierra)> archivo(libarchive::read_new(), cierra);
    libarchive::read_support_format_zip_seekable(archivo.get());
    libarchive::read_set_options(
        archivo.get(), "zip:hdrcharset=CP437"); // of names that aren't marked as UTF-8
    if (libarchive::read_open_filename(archivo.get(), host::findOnDisk(ruta).constData(), bloque)
        != ARCHIVE_OK)
        return std::nullopt;
    IndiceZip indice;
    archive_entry *miembro = nullptr;
    int leido = libarchive::read_next_header(archivo.get(), &miembro);
    for (; leido == ARCHIVE_OK || leido == ARCHIVE_WARN;
         leido = libarchive::read_next_header(archivo.get(), &miembro)) {
        const char *nombre = libarchive::entry_pathname(miembro);
        if (!nombre || libarchive::entry_filetype(miembro) != AE_IFREG)
            continue;
        const QString suyo = host::nameFromDisk(nombre);
        indice.cifrado = indice.cifrado || libarchive::entry_is_data_encrypted(miembro);
        if (!suyo.contains(u'/'))
            indice.ficheros += suyo;
        else
            indice.enDirectorios = true;
    }
    return leido == ARCHIVE_EOF ? std::optional(indice) : std::nullopt;
}

} // namespace launch
