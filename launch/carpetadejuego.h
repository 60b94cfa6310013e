// The directory that a compressed game is unpacked into beside its emulator, for one launch.
#pragma once

#include <QString>
#include <QStringList>

namespace launch {

class CarpetaDeJuego {
public:
    // Makes the directory, unless it is there. Without a directory of the emulator, or without a name (which
    // would mean that directory itself), there is none, and nothing is made nor removed.
    CarpetaDeJuego(const QString &ExeDir, const QString &Carpeta);

    // Absolute, as the disk spells it, so that it stays the same directory whatever happens around it; empty
    // if there is none.
    const QString &Ruta() const { return m_ruta; }

    // Deletes the plain files, in a directory that was there before this launch only those that it unpacked,
    // and removes the directory if nothing is left in it.
    void Limpia(const QStringList &desempaquetados) const;

private:
    QString m_ruta;
    bool m_nueva = false;
};

} // namespace launch
