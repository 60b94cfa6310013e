#include "companion/ayuda.h"

#include "companion/ordenes.h"
#include "companion/sesion.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QJsonObject enJson(const Orden &orden, const Palabras &palabras)
{
    return { { u"name"_s, orden.nombre }, { u"synopsis"_s, Sinopsis(orden) },
        { u"help"_s, palabras.*orden.ayuda } };
}

int ayuda(Sesion &sesion)
{
    const QString nombre = sesion.Argumento(0);
    const Orden *orden = OrdenDe(nombre);
    if (!nombre.isEmpty() && !orden)
        return sesion.Falla(sesion.palabras.Zbo_NoOrden.arg(nombre));
    QJsonArray ordenes;
    for (const Orden *una : Ordenes()) {
        if (!orden || una == orden)
            ordenes += enJson(*una, sesion.palabras);
    }
    if (sesion.EnJson())
        sesion.Json({ { u"commands"_s, ordenes } });
    else
        sesion.Escribe(orden ? AyudaDe(*orden, sesion.palabras) : AyudaDeTodo(sesion.palabras));
    return Bien;
}

} // namespace

const Orden &OrdenAyuda()
{
    static const Orden orden { u"help"_s, u"[COMMAND]"_s, &Palabras::Zbo_Help, {}, ayuda };
    return orden;
}

} // namespace companion
