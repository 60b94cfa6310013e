#include "core/ordburbuja.h"

#include "host/failure.h"
#include "host/letters.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace core {

void Ordenar(std::vector<QString> &Tabla, int Desde, int Hasta)
{
    if (Desde < 0 || Hasta >= static_cast<int>(Tabla.size()))
        throw host::Failure(host::OutOfRange, u"sort a table"_s, QString::number(Hasta));

    bool cambiado = true;
    for (int pasada = 1; pasada <= Hasta - 1 && cambiado; ++pasada) {
        cambiado = false;
        for (int j = Desde; j <= Hasta - pasada; ++j) {
            QString &este = Tabla[static_cast<size_t>(j)];
            QString &siguiente = Tabla[static_cast<size_t>(j) + 1];
            if (host::compareCodes(este, siguiente) > 0) {
                std::swap(este, siguiente);
                cambiado = true;
            }
        }
    }
}

} // namespace core
