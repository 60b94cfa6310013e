#include "launch/indicezip.h"

#include "host/encoding.h"
#include "host/paths.h"

#include <memory>

#include <archive.h>
#include <archive_entry.h>

namespace launch {

std::optional<IndiceZip> IndiceDe(const QString &ruta)
{
    constexpr std::size_t bloque = 65536;
    const std::unique_ptr<archive, decltype(&archive_read_free)> archivo(
        archive_read_new(), &archive_read_free);
    archive_read_support_format_zip_seekable(archivo.get());
    archive_read_set_options(archivo.get(), "zip:hdrcharset=CP437"); // of names that aren't marked as UTF-8
    if (archive_read_open_filename(archivo.get(), host::findOnDisk(ruta).constData(), bloque) != ARCHIVE_OK)
        return std::nullopt;
    IndiceZip indice;
    archive_entry *miembro = nullptr;
    int leido = archive_read_next_header(archivo.get(), &miembro);
    for (; leido == ARCHIVE_OK || leido == ARCHIVE_WARN;
         leido = archive_read_next_header(archivo.get(), &miembro)) {
        const char *nombre = archive_entry_pathname(miembro);
        if (!nombre || archive_entry_filetype(miembro) != AE_IFREG)
            continue;
        const QString suyo = host::nameFromDisk(nombre);
        indice.cifrado = indice.cifrado || archive_entry_is_data_encrypted(miembro);
        if (!suyo.contains(u'/'))
            indice.ficheros += suyo;
        else
            indice.enDirectorios = true;
    }
    return leido == ARCHIVE_EOF ? std::optional(indice) : std::nullopt;
}

} // namespace launch
