// The names that DOSBox shows DOS for the files of a directory: eight characters, a point, three.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace launch {

// For all the entries of a directory, "." and ".." apart, in the order in which the disk lists them: of names
// that collide the first one listed gets the lowest number. A pure function of that listing.
QByteArrayList NombresDOS(const QByteArrayList &entradas);

// A directory that is to be there under this name, in capitals and one that DOS opens: what it is called on
// the disk, and by DOS. One that is there under the name serves; where DOS knows something else by it, a
// number at its end tells them apart, whatever the order of the listing. `entradas` as above, without it.
struct NombreNuevo {
    QByteArray enDisco; // lower case where it is new
    QByteArray enDOS;
};
NombreNuevo NombreNuevoEnDOS(const QByteArrayList &entradas, const QByteArray &nombre);

// True if DOS opens a file of this name: of some names that it is shown it can't.
bool SeAbreEnDOS(const QByteArray &nombre);

// True for a device of DOS and Windows, in whatever directory: "CON.NES" is the keyboard too.
bool EsDispositivo(const QByteArray &nombre);

} // namespace launch
