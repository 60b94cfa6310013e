#include "core/capturas.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace core {

QStringList CapturasPCX(const QString &directorio)
{
    if (host::findOnDisk(directorio).isEmpty())
        return {};
    QStringList nombres = host::listFilesAndDirectories(directorio);
    nombres.removeIf([](const QString &nombre) { return host::upper(nombre.right(3)) != u"PCX"; });
    if (nombres.size() > MaxCapturas)
        throw host::Failure(host::OutOfRange, u"list the captures"_s, directorio);
    return nombres;
}

QString TextoDeConversion(const TextosIdioma &textos, qsizetype capturas)
{
    const QString numero = u' ' + QString::number(capturas) + u' ';
    if (capturas == 1)
        return textos.Msg_IMGTrans1I + numero + textos.Msg_IMGTrans1D;
    return textos.Msg_IMGTransMI + numero + textos.Msg_IMGTransMD;
}

} // namespace core
