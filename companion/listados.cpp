#include "companion/listados.h"

#include "core/lista.h"
#include "core/romelegida.h"

#include "host/letters.h"
#include "host/paths.h"

#include <QHash>
#include <QSet>

namespace companion {

std::vector<FicheroListado> FicherosListados(
    const core::Modulo &M, const Pareja &pareja, const Listado &listado)
{
    const int tipo = TipoDe(M, pareja);
    const QSet<QString> entradas(listado.recuento.entradas.begin(), listado.recuento.entradas.end());
    QHash<QString, QString> enDisco; // directories are listed in upper case
    if (core::UnDirectorioPorJuego(tipo)) {
        for (const QString &nombre : host::listDirectories(DirectorioDeJuegos(M, pareja)))
            enDisco.insert(host::upper(nombre), nombre);
    }
    QHash<QString, QString> notas;
    for (int i = 0; i < M.Nota_Clave.tamaño() && !M.Nota_Clave(i).isEmpty(); ++i) {
        if (!notas.contains(M.Nota_Clave(i)))
            notas.insert(M.Nota_Clave(i), M.Nota_Texto(i));
    }
    std::vector<FicheroListado> ficheros;
    for (int i = 0; i < listado.recuento.exploradas; ++i) {
        const QString nombre = M.Arch_Nombre(i);
        const QString clave = core::ClaveNueva(tipo, nombre);
        const auto nota = notas.constFind(clave);
        const bool descrito = nota != notas.constEnd();
        const QString entrada = descrito ? *nota : nombre;
        if (!entrada.isEmpty() && entradas.contains(entrada))
            ficheros.push_back({ clave, enDisco.value(nombre, nombre), entrada, descrito });
    }
    return ficheros;
}

} // namespace companion
