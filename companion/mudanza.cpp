#include "companion/mudanza.h"

#include "companion/cambio.h"
#include "companion/perdidos.h"

#include "core/catalogo.h"
#include "core/lineas.h"
#include "core/rutas.h"

#include "host/paths.h"

#include <QJsonArray>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

const QString Catalogo = u"Zembro.emu"_s;

bool esSeparador(QChar letra)
{
    return letra == u'/' || letra == u'\\';
}

bool igualEnUnaRuta(QChar una, QChar otra)
{
    return una == otra || (esSeparador(una) && esSeparador(otra));
}

// What follows the leading part, with its separator.
std::optional<QStringView> restoTras(QStringView inicio, QStringView ruta)
{
    if (ruta.size() < inicio.size() || (ruta.size() > inicio.size() && !esSeparador(ruta[inicio.size()])))
        return std::nullopt;
    for (qsizetype i = 0; i < inicio.size(); ++i) {
        if (!igualEnUnaRuta(ruta[i], inicio[i]))
            return std::nullopt;
    }
    return ruta.sliced(inicio.size());
}

// What lies below the program's directory is named from there, unless that would be read as another place.
QString valorDe(const QString &ruta, const QString &directorio)
{
    const std::optional<QStringView> resto = restoTras(directorio, ruta);
    if (!resto || resto->isEmpty())
        return ruta;
    const QStringView valor = resto->sliced(1);
    return core::EsRutaRelativa(valor) ? valor.toString() : ruta;
}

// The path of a line that holds one.
std::optional<QStringView> rutaDeLinea(QStringView linea)
{
    for (const QStringView clave : { u"EXE=", u"ROM=", u"IMG=" }) {
        if (linea.startsWith(clave) && linea.size() > core::PrefijoRuta)
            return linea.sliced(core::PrefijoRuta);
    }
    return std::nullopt;
}

// The leading part of a path whose longest rest lies in the directory.
std::optional<QString> lugarViejo(const QString &ruta, const QString &directorio, const HayAlgo &hay)
{
    if (!ruta.startsWith(u'/') || restoTras(directorio, ruta))
        return std::nullopt;
    const bool perdida = !hay(ruta);
    for (qsizetype i = 0; i < ruta.size(); ++i) {
        const QString inicio = ruta.first(i);
        const QString resto = ruta.sliced(i);
        const bool hayResto = esSeparador(ruta[i]) && SinCierre(resto).size() > 1;
        if (hayResto && (perdida || hay(inicio + u'/' + Catalogo)) && hay(directorio + resto))
            return inicio;
    }
    return std::nullopt;
}

struct Mudanza {
    QString viejo;
    QString nuevo;
};

// None, told already, where it can't be told from where to where.
std::optional<Mudanza> pedida(const Sesion &sesion)
{
    const QString nuevo = sesion.Tiene(u"new"_s) ? sesion.Valor(u"new"_s) : host::programDirectory();
    const QString viejo = sesion.Valor(u"old"_s);
    if (!sesion.Tiene(u"old"_s)) {
        sesion.Falla(sesion.palabras.Zbo_MueveOld);
        return std::nullopt;
    }
    if (nuevo.isEmpty() || viejo.isEmpty()) {
        sesion.Falla(sesion.palabras.Zbo_MueveVacio.arg(viejo.isEmpty() ? u"--old"_s : u"--new"_s));
        return std::nullopt;
    }
    if (nuevo.contains(u'\n') || nuevo.contains(u'\r')) {
        sesion.Falla(sesion.palabras.Zbo_MuevePide);
        return std::nullopt;
    }
    if (!host::exists(core::RutaDeValor(nuevo)))
        sesion.Avisa(sesion.palabras.Zbo_NoHay.arg(nuevo));
    return Mudanza { SinCierre(viejo), SinCierre(nuevo) };
}

std::optional<Mudanza> encontrada(const Sesion &sesion)
{
    const QString directorio = SinCierre(host::programDirectory());
    const QString texto = host::decodeText(host::readBytes(host::programFile(Catalogo))).text;
    const QStringList lugares =
        LugaresViejos(texto, directorio, [](const QString &ruta) { return host::exists(ruta); });
    if (lugares.size() == 1)
        return Mudanza { lugares.first(), directorio };
    if (lugares.isEmpty())
        return Mudanza { directorio, directorio };
    sesion.Falla(QStringList { sesion.palabras.Zbo_MueveVarios } + lugares);
    return std::nullopt;
}

// Places that aren't there, each with the command that would change its lines.
QStringList perdidos(QJsonObject &objeto, const Palabras &palabras)
{
    const QString texto = host::decodeText(host::readBytes(host::programFile(Catalogo))).text;
    QStringList dichos;
    QJsonArray todos;
    for (const Perdido &perdido : LugaresPerdidos(texto)) {
        dichos += TextoDe(perdido, palabras);
        QJsonObject uno { { u"old"_s, perdido.viejo }, { u"lines"_s, perdido.lineas },
            { u"command"_s, OrdenDeMudanza(perdido) } };
        if (!perdido.nuevo.isEmpty())
            uno[u"new"_s] = perdido.nuevo;
        todos += uno;
    }
    objeto[u"lost"_s] = todos;
    return dichos;
}

int muda(Sesion &sesion)
{
    const bool dicha = sesion.Tiene(u"old"_s) || sesion.Tiene(u"new"_s);
    const std::optional<Mudanza> mudanza = dicha ? pedida(sesion) : encontrada(sesion);
    if (!mudanza)
        return NoPudo;
    QJsonObject objeto { { u"old"_s, mudanza->viejo }, { u"new"_s, mudanza->nuevo } };
    int estado = HazCambio(
        sesion, Catalogo,
        [&](const QString &texto) {
            return ConRutasMudadas(
                texto, mudanza->viejo, mudanza->nuevo, SinCierre(host::programDirectory()));
        },
        objeto);
    const bool cambia = objeto[u"changed"_s].toBool();
    const QStringList dichos = dicha || cambia ? QStringList() : perdidos(objeto, sesion.palabras);
    if (!dichos.isEmpty())
        estado = Hallazgos;
    if (sesion.EnJson())
        sesion.Json(objeto);
    else if (!dichos.isEmpty())
        sesion.Escribe(dichos);
    else if (!cambia)
        sesion.Escribe(sesion.palabras.Zbo_NadaCambia);
    else
        sesion.Escribe((estado == Bien ? sesion.palabras.Zbo_Movido : sesion.palabras.Zbo_Moveria)
                           .arg(mudanza->viejo, mudanza->nuevo));
    return estado;
}

} // namespace

const Orden &OrdenMudanza()
{
    static const Orden orden { u"move"_s, {}, &Palabras::Zbo_Move,
        { { u"old"_s, u"PREFIX"_s, &Palabras::Zbo_OpOld }, { u"new"_s, u"PREFIX"_s, &Palabras::Zbo_OpNew },
            OpcionWrite() },
        muda };
    return orden;
}

QString SinCierre(QString ruta)
{
    while (!ruta.isEmpty() && esSeparador(ruta.back()))
        ruta.chop(1);
    return ruta;
}

QString ConRutasMudadas(
    const QString &texto, const QString &viejo, const QString &nuevo, const QString &directorio)
{
    if (viejo == nuevo)
        return texto;
    core::Copia copia;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        const std::optional<QStringView> ruta = rutaDeLinea(linea.linea);
        const std::optional<QStringView> resto = ruta ? restoTras(viejo, *ruta) : std::nullopt;
        if (!resto) {
            copia.Copiar(linea);
            continue;
        }
        const QString nueva =
            linea.linea.first(core::PrefijoRuta).toString() + valorDe(nuevo + resto->toString(), directorio);
        copia.Copiar({ nueva, linea.fin });
    }
    return copia.Texto();
}

QStringList LugaresViejos(const QString &texto, const QString &directorio, const HayAlgo &hay)
{
    struct Lugar {
        QString ruta;
        int lineas = 0;
    };
    std::vector<Lugar> lugares;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        const std::optional<QStringView> ruta = rutaDeLinea(linea.linea);
        const std::optional<QString> viejo =
            ruta ? lugarViejo(ruta->toString(), directorio, hay) : std::nullopt;
        if (!viejo)
            continue;
        auto suyo = std::ranges::find(lugares, *viejo, &Lugar::ruta);
        if (suyo == lugares.end())
            suyo = lugares.insert(lugares.end(), { *viejo, 0 });
        ++suyo->lineas;
    }
    std::ranges::stable_sort(lugares, std::greater(), &Lugar::lineas);
    QStringList rutas;
    for (const Lugar &lugar : lugares)
        rutas += lugar.ruta;
    return rutas;
}

} // namespace companion
