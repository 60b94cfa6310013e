#include "launch/wine.h"

#include "launch/apodado.h"
#include "launch/apodos.h"
#include "launch/nombresdos.h"

#include "host/encoding.h"
#include "host/process.h"

#include <QDir>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

constexpr char PrimerApodo = 'A';
constexpr char UltimoApodo = 'Z';

bool esMalo(QChar letra)
{
    return letra < u' ' || QStringView(u"\\:*?\"<>|").contains(letra);
}

QString nombreDe(const QString &ruta)
{
    return ruta.sliced(ruta.lastIndexOf(u'/') + 1);
}

} // namespace

bool SeDiceEnWindows(const QString &ruta)
{
    return std::ranges::all_of(QDir::cleanPath(ruta).split(u'/'), [](const QString &parte) {
        return !parte.endsWith(u' ') && !parte.endsWith(u'.') && !EsDispositivo(parte.toUtf8())
            && std::ranges::none_of(parte, esMalo);
    });
}

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
    if (!mejor || !ruta.startsWith(u'/') || !SeDiceEnWindows(ruta))
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

std::vector<UnidadesDOS::Montaje> ApodosDeWindows(const LineaDeOrden &orden)
{
    std::vector<UnidadesDOS::Montaje> apodos;
    char letra = PrimerApodo;
    for (std::size_t i = 1; i < orden.Piezas().size(); ++i) {
        const QString &enDisco = orden.Piezas()[i].enDisco;
        if (!enDisco.startsWith(u'/') || enDisco.endsWith(u'/') || SeDiceEnWindows(enDisco)
            || letra > UltimoApodo)
            continue;
        const QString nombre = nombreDe(enDisco);
        apodos.push_back({ letra++, host::nameToDisk(enDisco.chopped(nombre.size() + 1)), false,
            { { ApodoEnWindows(host::nameToDisk(nombre)), host::nameToDisk(nombre) } } });
    }
    return apodos;
}

QStringList ArgumentosDeWine(const Encargo &encargo, const std::function<QString(const QString &)> &lugarDe)
{
    const std::vector<host::Drive> unidades = UnidadesDeWine();
    const std::vector<LineaDeOrden::Pieza> &piezas = encargo.orden.Piezas();
    host::ArgumentSplitter divisor;
    for (std::size_t i = 1; i < piezas.size(); ++i) {
        if (piezas[i].ruta)
            divisor.addWhole(RutaDeWindows(lugarDe(piezas[i].enDisco), unidades));
        else
            divisor.addText(piezas[i].texto);
    }
    return QStringList { encargo.herramienta, RutaDeWindows(encargo.programa, unidades) }
    + divisor.arguments();
}

CarpetaDeWine::CarpetaDeWine(const Encargo &encargo)
{
    QHash<QString, QString> lugares;
    if (!encargo.apodos.empty() && m_carpeta.emplace().Ruta().isEmpty())
        return;
    for (const UnidadesDOS::Montaje &montaje : encargo.apodos) {
        const QByteArray lugar = HazCarpetaDeApodos(*m_carpeta, montaje);
        if (lugar.isEmpty())
            return;
        const UnidadesDOS::Apodo &apodo = montaje.apodos[0];
        lugares[host::nameFromDisk(montaje.lugar + '/' + apodo.fichero)] =
            host::nameFromDisk(lugar + '/' + apodo.nombre);
    }
    m_argumentos =
        ArgumentosDeWine(encargo, [&](const QString &enDisco) { return lugares.value(enDisco, enDisco); });
}

} // namespace launch
