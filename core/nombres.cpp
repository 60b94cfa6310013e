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

bool esTexto(QStringView linea)
{
    return !linea.isEmpty() && !linea.startsWith(u'\'');
}

// A header stands directly ahead of a note, whose description is in double quotes, or of the apostrophe.
bool esCabecera(const std::vector<LineaConFin> &lineas, size_t i)
{
    if (i + 1 == lineas.size() || !esTexto(lineas[i].linea))
        return false;
    return lineas[i + 1].linea == u"'" || lineas[i + 1].linea.contains(u",\"");
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
    enum { Delante, Fuera, EnSistema, EnParametros, EnCierre } lugar = Delante;
    int delCierre = 0;
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    for (size_t i = 0; i < lineas.size(); ++i) {
        const QStringView linea = lineas[i].linea;
        if (lugar == Delante && linea.startsWith(u'['))
            lugar = Fuera;
        else if (lugar == Delante && esCabecera(lineas, i)) // of two texts in a row either may be the header
            lugar = i > 0 && esTexto(lineas[i - 1].linea) ? EnSistema : Fuera;
        if (lugar != Fuera && !nombre.isEmpty() && linea == nombre)
            return true;
        if (lugar == EnCierre) {
            if (++delCierre == LineasDeCierre)
                lugar = Fuera;
        } else if (linea.startsWith(u"Parametros")) {
            lugar = EnParametros;
        } else if (linea.startsWith(u'\'') && lugar != Delante) {
            delCierre = 1;
            lugar = lugar == EnParametros ? EnCierre : Fuera;
        } else if (lugar == Fuera && !linea.isEmpty() && !linea.startsWith(u'[')) {
            lugar = EnSistema;
        }
    }
    return false;
}

} // namespace core
