// Descriptions of many games of a system at once.
#pragma once

#include <QString>

#include <vector>

namespace core {

struct Descripcion {
    QString clave;
    QString texto;
};

struct Descritas {
    QString texto; // of the whole file
    int nuevas = 0;
    int cambiadas = 0;
    std::vector<Descripcion> fuera; // no room, a text that another has, or one that wouldn't come back
};

// New ones stand first in the system's block, in their order, as many as a list can still be read with. One
// whose key is there stays as it is, or the first of its key is changed where it stands, if the record has
// its lines for itself. Without a block nothing changes.
enum class LasQueHay { Quedan, Cambian };
Descritas ConDescripciones(const QString &texto, const QString &sistema,
    const std::vector<Descripcion> &descripciones, LasQueHay lasQueHay);

} // namespace core
