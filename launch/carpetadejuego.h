// The directory that a compressed game is unpacked into beside its emulator, for one launch.
#pragma once

#include "host/helddirectory.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace launch {

// Where it would be: absolute, and whether it isn't there yet. None for a name that isn't one of its own, and
// where something else than a directory has it.
struct CarpetaPosible {
    QString ruta;
    bool nueva = true;
};
std::optional<CarpetaPosible> CarpetaQueSeHaria(const QString &ExeDir, const QString &Carpeta);

class CarpetaDeJuego {
public:
    // Makes the directory, unless it is there. Without a directory of the emulator, or without a name of its
    // own (which would mean that directory itself, or the one above), there is none, and nothing is made nor
    // removed.
    CarpetaDeJuego(const QString &ExeDir, const QString &Carpeta);

    // Absolute, as the disk spells it; empty if there is none.
    const QString &Ruta() const { return m_ruta; }

    // Deletes the plain files, in a directory that was there before this launch only those that it unpacked,
    // and removes the directory if nothing is left in it. Where another one has taken its place meanwhile,
    // nothing is touched.
    void Limpia(const QStringList &desempaquetados) const;

private:
    QString m_ruta;
    std::optional<host::HeldDirectory> m_directorio;
    bool m_nueva = false;
};

} // namespace launch
