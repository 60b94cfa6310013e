#include "companion/orden.h"

#include "companion/ordenes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

using Columnas = std::vector<std::pair<QString, QString>>;

QString conGuiones(const Opcion &opcion)
{
    return u"--"_s + opcion.nombre + (opcion.valor.isEmpty() ? QString() : u' ' + opcion.valor);
}

Columnas deOpciones(const std::vector<Opcion> &opciones, const Palabras &palabras)
{
    Columnas filas;
    for (const Opcion &opcion : opciones)
        filas.emplace_back(conGuiones(opcion), palabras.*opcion.ayuda);
    return filas;
}

QStringList alineadas(const Columnas &filas)
{
    qsizetype ancho = 0;
    for (const auto &[izquierda, derecha] : filas)
        ancho = std::max(ancho, izquierda.size());
    QStringList lineas;
    for (const auto &[izquierda, derecha] : filas)
        lineas += u"  "_s + izquierda.leftJustified(ancho + 2) + derecha;
    return lineas;
}

} // namespace

const std::vector<Opcion> &OpcionesComunes()
{
    static const std::vector<Opcion> opciones {
        { u"directory"_s, u"DIR"_s, &Palabras::Zbo_OpDir },
        { u"json"_s, {}, &Palabras::Zbo_OpJson },
        { u"help"_s, {}, &Palabras::Zbo_OpAyuda },
    };
    return opciones;
}

Cabida CabidaDe(const QString &argumentos)
{
    Cabida cabida;
    int entreCorchetes = 0;
    for (const QString &palabra : argumentos.split(u' ', Qt::SkipEmptyParts)) {
        entreCorchetes += int(palabra.count(u'['));
        ++cabida.maximo;
        cabida.minimo += entreCorchetes == 0 ? 1 : 0;
        entreCorchetes -= int(palabra.count(u']'));
    }
    return cabida;
}

QString Sinopsis(const Orden &orden)
{
    QStringList partes { u"zembro"_s, orden.nombre };
    if (!orden.argumentos.isEmpty())
        partes += orden.argumentos;
    for (const std::vector<Opcion> *opciones : { &orden.opciones, &OpcionesComunes() }) {
        for (const Opcion &opcion : *opciones)
            partes += u'[' + conGuiones(opcion) + u']';
    }
    return partes.join(u' ');
}

QStringList AyudaDe(const Orden &orden, const Palabras &palabras)
{
    Columnas opciones = deOpciones(orden.opciones, palabras);
    for (auto &fila : deOpciones(OpcionesComunes(), palabras))
        opciones.push_back(std::move(fila));
    opciones.emplace_back(u"--"_s, palabras.Zbo_OpFin);
    return QStringList { palabras.Zbo_Uso.arg(Sinopsis(orden)), QString(), palabras.*orden.ayuda, QString(),
        palabras.Zbo_Opciones }
    + alineadas(opciones);
}

QStringList AyudaDeTodo(const Palabras &palabras)
{
    Columnas ordenes;
    for (const Orden *orden : Ordenes())
        ordenes.emplace_back(orden->nombre + u' ' + orden->argumentos, palabras.*orden->ayuda);
    Columnas opciones = deOpciones(OpcionesComunes(), palabras);
    opciones.emplace_back(u"--version"_s, palabras.Zbo_OpVersion);
    return QStringList { palabras.Zbo_Uso.arg(u"zembro COMMAND ..."_s), QString(), palabras.Zbo_Ordenes }
    + alineadas(ordenes) + QStringList { QString(), palabras.Zbo_Opciones } + alineadas(opciones)
        + QStringList { QString(), palabras.Zbo_MasAyuda };
}

} // namespace companion
