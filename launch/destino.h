// Where an archive is unpacked to. Everything goes through descriptors relative to the one of the
// destination, and no link is followed on the way: no member can lead out of it.
#pragma once

#include "host/descriptor.h"
#include "host/scratch.h"

#include <QByteArray>
#include <QList>
#include <QSet>

#include <cstdint>
#include <functional>

namespace launch {

// Free bytes of the disk that holds an open directory; a test sets another source, an empty one puts the
// system's back.
using EspacioLibre = std::function<std::int64_t(int descriptor)>;
void PonEspacioLibre(EspacioLibre fuente);

// The parts of a member's name. Both separators count; those of an absolute name, "." and ".." go.
QList<QByteArray> PartesDe(const QByteArray &nombre);

// A file on its way: written under a name of its own, and put in its place only when it is whole. Whatever is
// not finished is gone.
class FicheroNuevo {
public:
    explicit FicheroNuevo(const host::Descriptor &directorio);
    ~FicheroNuevo();
    FicheroNuevo(const FicheroNuevo &) = delete;
    FicheroNuevo &operator=(const FicheroNuevo &) = delete;

    bool Abierto() const { return m_provisional.file.isOpen(); }

    // False if it can't be written, or would leave too little of the disk.
    bool Escribe(const char *bytes, std::int64_t total);

    // Gives it its name, in the place of what has it; false if that can't be.
    bool Termina(const QByteArray &nombre, bool soloLectura);

private:
    const host::Descriptor &m_directorio;
    host::ScratchFile m_provisional; // without a name once it has its own
};

// A directory, not a link to one. What a killed run left unfinished in it, and in those below that are asked
// for, goes.
class Destino {
public:
    explicit Destino(const QByteArray &ruta);

    bool Abierto() const { return m_descriptor.isOpen(); }

    // Whether the disk has more room than must be left.
    bool QuedaSitio() const;

    // The directory that these parts lead to, made where it isn't there; closed if a part is no directory, or
    // a link.
    host::Descriptor Directorio(const QList<QByteArray> &partes) const;

    enum class Ocupante { Nadie, Fichero, Directorio }; // anything that is no directory counts as a file
    static Ocupante QuienOcupa(const host::Descriptor &directorio, const QByteArray &nombre);

private:
    void barre(const host::Descriptor &directorio, const QByteArray &lugar) const;

    host::Descriptor m_descriptor;
    mutable QSet<QByteArray> m_barridos;
};

} // namespace launch
