#include "companion/cambio.h"

#include "companion/diferencia.h"

#include "host/paths.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace companion {

Opcion OpcionWrite()
{
    return { u"write"_s, {}, &Palabras::Zbo_OpWrite };
}

int HazCambio(Sesion &sesion, const QString &fichero, const CambioDeTexto &cambio, QJsonObject &objeto)
{
    const QString ruta = host::programFile(fichero);
    const bool escribe = sesion.Tiene(u"write"_s);
    const QString visto = host::decodeText(host::readBytes(ruta)).text;
    QString antes = visto;
    QString despues = cambio(visto);
    if (escribe && despues != visto) {
        sesion.M.Ficheros.closeAll();
        sesion.M.Ficheros.rewrite(ruta, u"Zembro.tmp"_s, [&](const QString &texto) {
            antes = texto;
            despues = cambio(texto);
            return despues;
        });
    }
    const QStringList diferencia = Diferencia(fichero, antes, despues);
    objeto[u"file"_s] = fichero;
    objeto[u"changed"_s] = antes != despues;
    objeto[u"written"_s] = escribe && antes != despues;
    objeto[u"diff"_s] = QJsonArray::fromStringList(diferencia);
    if (!sesion.EnJson() && !escribe)
        sesion.Escribe(diferencia);
    return antes == despues || escribe ? Bien : Hallazgos;
}

} // namespace companion
