// The bytes of a ZIP on their way to the library. It takes the read-only mark and that of a directory from
// members made on FAT systems alone; those of VFAT, NTFS and HPFS, which are the same, are shown to it as
// such.
#pragma once

#include "host/descriptor.h"

#include <cstdint>
#include <vector>

#include <archive.h>

namespace launch {

// Where in the archive a byte names one of these systems, in ascending order. None where its directory isn't
// found.
std::vector<std::int64_t> LugaresDeSistemasComoFat(const host::Descriptor &fichero);

// Has to outlive the archive that it is opened for.
class FuenteZip {
public:
    explicit FuenteZip(host::Descriptor fichero);
    FuenteZip(const FuenteZip &) = delete;
    FuenteZip &operator=(const FuenteZip &) = delete;

    bool Abierta() const { return m_fichero.isOpen(); }

    // False if the library can't make anything of it.
    bool AbrePara(archive *archivo);

private:
    static la_ssize_t lee(archive *archivo, void *fuente, const void **bytes);
    static la_int64_t salta(archive *, void *fuente, la_int64_t total);
    static la_int64_t va(archive *, void *fuente, la_int64_t lugar, int desde);

    void cambiaSistemas(std::int64_t leidos);
    std::int64_t largo() const;

    host::Descriptor m_fichero;
    std::vector<std::int64_t> m_sistemas;
    std::vector<char> m_bloque;
    std::int64_t m_lugar = 0;
};

} // namespace launch
