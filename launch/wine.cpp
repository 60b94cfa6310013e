#include "launch/wine.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

bool seDiceEnWindows(QStringView ruta)
{
    for (const QStringView parte : ruta.split(u'/')) {
        const auto malo = [](QChar c) { return c < u' ' || QStringView(u"\\:*?\"<>|").contains(c); };
        if (parte.endsWith(u' ') || parte.endsWith(u'.') || std::ranges::any_of(parte, malo))
            return false;
    }
    return true;
}

} // namespace

QString RutaDeWindows(const QString &enDisco, const std::vector<host::Drive> &unidades)
{
    const QString cierre = enDisco.endsWith(u'/') ? u"/"_s : QString();
    const QString ruta = QDir::cleanPath(enDisco);
    const host::Drive *mejor = nullptr;
    for (const host::Drive &unidad : unidades) {
        const bool dentro =
            unidad.place == u"/" || ruta == unidad.place || ruta.startsWith(unidad.place + u'/');
        if (dentro && (!mejor || unidad.place.size() > mejor->place.size()))
            mejor = &unidad;
    }
    if (!mejor || !ruta.startsWith(u'/') || !seDiceEnWindows(ruta))
        return enDisco;
    QString resto = ruta.sliced(mejor->place == u"/" ? 0 : mejor->place.size());
    if (!resto.startsWith(u'/'))
        resto.prepend(u'/');
    if (!resto.endsWith(u'/'))
        resto += cierre;
    return mejor->letter + u":"_s + resto.replace(u'/', u'\\');
}

std::vector<host::Drive> UnidadesDeWine()
{
    const QString prefijo = host::winePrefix();
    const std::vector<host::Drive> &unidades = host::drivesOfWine(prefijo);
    if (!unidades.empty())
        return unidades;
    return { { u'C', prefijo + u"/drive_c"_s }, { u'Z', u"/"_s } };
}

} // namespace launch
