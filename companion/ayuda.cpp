#include "companion/ayuda.h"

#include "companion/completado.h"
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

// As it stands: scripts of ours hold nothing that a terminal obeys.
int completado(Sesion &sesion)
{
    static const struct {
        QString nombre;
        QString (*texto)();
    } clases[] = { { u"bash"_s, ParaBash }, { u"zsh"_s, ParaZsh }, { u"fish"_s, ParaFish },
        { u"man"_s, PaginaMan } };
    const QString pedida = sesion.Valor(u"completion"_s);
    for (const auto &clase : clases) {
        if (clase.nombre != pedida)
            continue;
        sesion.Escribe(clase.texto().chopped(1).split(u'\n'));
        return Bien;
    }
    return sesion.Falla(sesion.palabras.Zbo_Uso.arg(u"zembro help --completion bash|zsh|fish|man"_s));
}

int ayuda(Sesion &sesion)
{
    if (sesion.Tiene(u"completion"_s))
        return completado(sesion);
    const QString nombre = sesion.Argumento(0);
    const Orden *orden = OrdenDe(nombre);
    if (!nombre.isEmpty() && !orden)
        return sesion.Falla(sesion.palabras.Zbo_NoOrden.arg(nombre));
    DaAyuda(sesion, orden);
    return Bien;
}

} // namespace

void DaAyuda(const Sesion &sesion, const Orden *orden)
{
    QJsonArray ordenes;
    for (const Orden *una : Ordenes()) {
        if (!orden || una == orden)
            ordenes += enJson(*una, sesion.palabras);
    }
    if (sesion.EnJson())
        sesion.Json({ { u"commands"_s, ordenes } });
    else
        sesion.Escribe(orden ? AyudaDe(*orden, sesion.palabras) : AyudaDeTodo(sesion.palabras));
}

const Orden &OrdenAyuda()
{
    static const Orden orden { u"help"_s, u"[COMMAND]"_s, &Palabras::Zbo_Help,
        { { u"completion"_s, u"KIND"_s, &Palabras::Zbo_OpCompletion } }, ayuda, true };
    return orden;
}

} // namespace companion
