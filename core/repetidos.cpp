#include "core/repetidos.h"

#include "core/lineas.h"
#include "core/modulo.h"
#include "core/notas.h"
#include "core/remiendos.h"

#include "host/letters.h"
#include "host/textsource.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <optional>

namespace core {

namespace {

using Lineas = std::vector<LineaConFin>;

constexpr qsizetype CamposDeNota = 2;
constexpr qsizetype CamposDeParametros = 4;

// The fields of a line that is a record of so many; none for another line, and for one whose double quotes
// take in what follows.
std::optional<QStringList> registroDe(QStringView linea, qsizetype cuantos)
{
    if (linea.count(u'"') % 2 != 0)
        return std::nullopt;
    host::TextSource fuente(linea.toString());
    QStringList campos;
    while (!fuente.atEnd())
        campos += fuente.readField();
    const bool esSuyo = campos.size() == cuantos && !campos.first().isEmpty() && campos.first() != u"'";
    return esSuyo ? std::optional(campos) : std::nullopt;
}

struct BloqueDeNotas {
    QString sistema;
    size_t cabecera = 0;
    size_t cierre = 0; // the line of its apostrophe
    bool cerrado = false;
};

std::vector<BloqueDeNotas> bloquesDe(const Lineas &lineas, const QStringList &sistemas)
{
    const QSet<QString> nombres(sistemas.begin(), sistemas.end());
    std::vector<BloqueDeNotas> bloques;
    for (size_t i = 0; i < lineas.size() && !AcabaLosSistemas(lineas, i, sistemas); ++i) {
        const QStringView linea = lineas[i].linea;
        if (linea.startsWith(CabeceraParametros))
            break;
        const bool dentro = !bloques.empty() && !bloques.back().cerrado;
        if (nombres.contains(linea.toString()))
            bloques.push_back({ linea.toString(), i, i, false });
        else if (dentro && CierraLasNotas(linea))
            bloques.back() = { bloques.back().sistema, bloques.back().cabecera, i, true };
    }
    return bloques;
}

// The descriptions by keys; none where a line is no record.
std::optional<QHash<QString, QString>> notasDe(const Lineas &lineas, const BloqueDeNotas &bloque)
{
    QHash<QString, QString> notas;
    for (size_t i = bloque.cabecera + 1; i < bloque.cierre; ++i) {
        const std::optional<QStringList> campos = registroDe(lineas[i].linea, CamposDeNota);
        if (!campos && !lineas[i].linea.isEmpty())
            return std::nullopt;
        if (campos && !notas.contains(host::upper(campos->at(0))))
            notas.insert(host::upper(campos->at(0)), campos->at(1));
    }
    return notas;
}

struct Union {
    BloqueDeNotas primero;
    BloqueDeNotas otro;
    std::vector<size_t> lineas; // of the second one, that move
};

std::optional<Union> unionDe(const Lineas &lineas, const BloqueDeNotas &primero, const BloqueDeNotas &otro)
{
    if (!primero.cerrado || !otro.cerrado)
        return std::nullopt;
    const std::optional<QHash<QString, QString>> antes = notasDe(lineas, primero);
    if (!antes || !notasDe(lineas, otro))
        return std::nullopt;
    Union suya { primero, otro, {} };
    for (size_t i = otro.cabecera + 1; i < otro.cierre; ++i) {
        const QStringList campos = registroDe(lineas[i].linea, CamposDeNota).value_or(QStringList());
        const auto nota = campos.isEmpty() ? antes->cend() : antes->constFind(host::upper(campos[0]));
        if (nota != antes->cend() && nota.value() != campos[1])
            return std::nullopt;
        if (nota == antes->cend() && !campos.isEmpty())
            suya.lineas.push_back(i);
    }
    // The table of notes takes no more.
    const bool caben = primero.cierre - primero.cabecera + suya.lineas.size() < size_t(MaxROMs);
    return caben ? std::optional(suya) : std::nullopt;
}

QString conUnion(const Lineas &lineas, const Union &suya)
{
    Copia copia;
    copia.Copiar(lineas, 0, suya.primero.cierre);
    for (const size_t i : suya.lineas)
        copia.Copiar(lineas[i]);
    copia.Copiar(lineas, suya.primero.cierre, suya.otro.cabecera);
    copia.Copiar(lineas, suya.otro.cierre + 1, lineas.size());
    return copia.Texto();
}

// The text with one more block united with the first of its name.
std::optional<QString> conOtraUnion(const QString &texto, const QStringList &sistemas)
{
    const Lineas lineas = EnLineas(texto);
    QHash<QString, BloqueDeNotas> primeros;
    for (const BloqueDeNotas &bloque : bloquesDe(lineas, sistemas)) {
        const auto primero = primeros.constFind(bloque.sistema);
        if (primero == primeros.cend())
            primeros.insert(bloque.sistema, bloque);
        else if (const std::optional<Union> suya = unionDe(lineas, *primero, bloque))
            return conUnion(lineas, *suya);
    }
    return std::nullopt;
}

struct Registro {
    size_t indice;
    Parametros parametros;
};

// Those that stand on a line each.
std::vector<Registro> registrosDeParametros(const Lineas &lineas)
{
    std::vector<Registro> registros;
    const auto cabecera = std::ranges::find_if(
        lineas, [](const LineaConFin &linea) { return linea.linea.startsWith(CabeceraParametros); });
    for (size_t i = size_t(cabecera - lineas.begin()) + 1; i < FinDeLosParametros(lineas); ++i) {
        host::TextSource fuente(lineas[i].linea.toString());
        if (!fuente.atEnd() && fuente.readField() == u"'")
            break;
        if (const std::optional<QStringList> campos = registroDe(lineas[i].linea, CamposDeParametros))
            registros.push_back({ i, { campos->at(0), campos->at(1), campos->at(2), campos->at(3) } });
    }
    return registros;
}

// The same for records that say the same.
QString loQueDice(const Parametros &registro)
{
    const QString juego = host::upper(registro.clave + u'\n' + registro.sistema + u'\n' + registro.emulador);
    return juego + u'\n' + registro.texto;
}

bool esDeLaMismaPareja(const Parametros &uno, const Parametros &otro)
{
    return host::sameName(uno.sistema, otro.sistema) && host::sameName(uno.emulador, otro.emulador);
}

QString sinParametrosIguales(const QString &texto)
{
    const Lineas lineas = EnLineas(texto);
    QSet<QString> dichos;
    Copia copia;
    size_t copiadas = 0; // nothing is, where all of them differ
    for (const Registro &registro : registrosDeParametros(lineas)) {
        const QString dicho = loQueDice(registro.parametros);
        if (dichos.contains(dicho)) {
            copia.Copiar(lineas, copiadas, registro.indice);
            copiadas = registro.indice + 1;
        }
        dichos.insert(dicho);
    }
    if (copiadas == 0)
        return texto;
    copia.Copiar(lineas, copiadas, lineas.size());
    return copia.Texto();
}

} // namespace

std::vector<Repetido> BloquesRepetidos(const QString &texto, const QStringList &sistemas)
{
    const Lineas lineas = EnLineas(texto);
    QHash<QString, size_t> primeros;
    std::vector<Repetido> repetidos;
    for (const BloqueDeNotas &bloque : bloquesDe(lineas, sistemas)) {
        const auto primero = primeros.constFind(bloque.sistema);
        if (primero == primeros.cend())
            primeros.insert(bloque.sistema, bloque.cabecera);
        else
            repetidos.push_back({ *primero, bloque.cabecera });
    }
    return repetidos;
}

std::vector<Repetido> ParametrosRepetidos(const QString &texto)
{
    const Lineas lineas = EnLineas(texto);
    QHash<QString, Registro> primeros;
    std::vector<Repetido> repetidos;
    for (const Registro &registro : registrosDeParametros(lineas)) {
        const QString clave = host::upper(registro.parametros.clave);
        const auto primero = primeros.constFind(clave);
        if (primero == primeros.cend())
            primeros.insert(clave, registro);
        else if (primero->parametros.texto != registro.parametros.texto
            || esDeLaMismaPareja(primero->parametros, registro.parametros))
            repetidos.push_back({ primero->indice, registro.indice });
    }
    return repetidos;
}

QString SinRepetidos(const QString &texto, const QStringList &sistemas)
{
    QString unido = texto;
    while (const std::optional<QString> otro = conOtraUnion(unido, sistemas))
        unido = *otro;
    return sinParametrosIguales(unido);
}

} // namespace core
