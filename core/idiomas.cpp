#include "core/idiomas.h"

#include "core/arranque.h"

#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace core {

QStringList FicherosDeIdioma()
{
    return host::listFiles(host::programFile(u"LNG"_s), u"*.lng"_s).mid(0, MaxIdiomas);
}

QString CreditoDeIdioma(Modulo &M, const QString &fichero)
{
    const QString ruta = host::programFile(u"LNG/"_s + fichero);
    QString credito;
    LeeFichero(ruta, [&] {
        M.Ficheros.openForInput(1, ruta);
        while (!M.Ficheros.atEnd(1)) {
            const QString linea = M.Ficheros.readLine(1);
            if (!linea.startsWith(u"TXT_InfoLNG"))
                continue;
            credito = TextoDeLinea(linea);
            break;
        }
    });
    M.Ficheros.close(1);
    return credito;
}

} // namespace core
