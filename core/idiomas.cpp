#include "core/idiomas.h"

#include "core/ajustes.h"
#include "core/arranque.h"

#include "host/letters.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

QString directorio()
{
    return host::programFile(u"LNG"_s);
}

QStringList todos()
{
    return host::listFiles(directorio(), u"*.lng"_s);
}

} // namespace

QStringList FicherosDeIdioma()
{
    QStringList ficheros = todos();
    ficheros.removeIf([](const QString &fichero) { return !VuelveIdioma(fichero); });
    return ficheros.mid(0, MaxIdiomas);
}

QStringList IdiomasEnMayusculas()
{
    if (host::findOnDisk(directorio()).isEmpty())
        return {};
    QStringList idiomas = todos();
    if (idiomas.size() > MaxIdiomas)
        throw host::Failure(host::OutOfRange, u"list the language files"_s, directorio());
    for (QString &idioma : idiomas)
        idioma = host::upper(idioma);
    return idiomas;
}

int PosicionDeIdioma(const QStringList &idiomas, const QString &LanguageFile)
{
    return int(idiomas.mid(0, MaxIdiomas - 1).indexOf(LanguageFile));
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
