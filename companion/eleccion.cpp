#include "companion/eleccion.h"

#include "host/letters.h"

#include <QSet>

#include <functional>

namespace companion {

QList<qsizetype> Candidatos(const QStringList &nombres, const QString &texto)
{
    const QString mayus = host::upper(texto);
    const std::function<bool(const QString &)> pruebas[] = {
        [&](const QString &nombre) { return nombre == texto; },
        [&](const QString &nombre) { return host::upper(nombre) == mayus; },
        [&](const QString &nombre) { return host::upper(nombre).startsWith(mayus); },
        [&](const QString &nombre) { return host::upper(nombre).contains(mayus); },
    };
    for (const auto &prueba : pruebas) {
        QList<qsizetype> posiciones;
        QSet<QString> vistos;
        for (qsizetype i = 0; i < nombres.size(); ++i) {
            if (prueba(nombres[i]) && !vistos.contains(nombres[i])) {
                vistos.insert(nombres[i]);
                posiciones += i;
            }
        }
        if (!posiciones.isEmpty())
            return posiciones;
    }
    return {};
}

} // namespace companion
