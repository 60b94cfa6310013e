#include "core/nombres.h"

#include "core/campos.h"
#include "core/lineas.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int ComasDeRegistro = 3; // of a parameter record
constexpr int LineasDeCierre = 3; // of its section, the apostrophe included

bool esDeUnaLinea(const QString &nombre)
{
    const bool sinControles = std::none_of(nombre.begin(), nombre.end(), [](QChar c) { return c < u' '; });
    return sinControles && !nombre.trimmed().isEmpty();
}

bool empiezaPorUno(const QString &nombre, QStringView signos)
{
    return !nombre.isEmpty() && signos.contains(nombre[0]);
}

} // namespace

bool SirveDeSistema(const QString &nombre)
{
    return esDeUnaLinea(nombre) && CabeEnUnCampo(nombre) && !EsLineaDeNotas(nombre);
}

bool SirveDeEmulador(const QString &nombre)
{
    return esDeUnaLinea(nombre) && CabeEnUnCampo(nombre) && !empiezaPorUno(nombre, u"'[-+");
}

bool EsLineaDeNotas(const QString &nombre)
{
    return nombre.isEmpty() || empiezaPorUno(nombre, u"'[") || nombre.startsWith(u"Parametros")
        || nombre == u"fin" || nombre.endsWith(u",\"fin\"") || nombre.count(u',') >= ComasDeRegistro;
}

bool EsRegistroDeNotas(const QString &texto, const QString &nombre)
{
    enum { Fuera, EnSistema, EnParametros, EnCierre } lugar = Fuera;
    int delCierre = 0;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (lugar != Fuera && linea.linea == nombre)
            return true;
        if (lugar == EnCierre) {
            if (++delCierre == LineasDeCierre)
                lugar = Fuera;
        } else if (linea.linea.startsWith(u"Parametros")) {
            lugar = EnParametros;
        } else if (linea.linea.startsWith(u'\'')) {
            delCierre = 1;
            lugar = lugar == EnParametros ? EnCierre : Fuera;
        } else if (lugar == Fuera && !linea.linea.isEmpty() && !linea.linea.startsWith(u'[')) {
            lugar = EnSistema;
        }
    }
    return false;
}

} // namespace core
