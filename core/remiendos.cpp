#include "core/remiendos.h"

#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/lineas.h"
#include "core/notas.h"

#include "host/paths.h"
#include "host/textsource.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int LargoDeCierre = 70;

QString conLineas(const QString &texto, const std::vector<SinCierre> &huecos, const QString &cierre)
{
    if (huecos.empty())
        return texto;
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    for (size_t i = 0; i <= lineas.size(); ++i) {
        if (std::ranges::any_of(huecos, [i](const SinCierre &hueco) { return hueco.fin == i; }))
            copia.Nueva(cierre);
        if (i < lineas.size())
            copia.Copiar(lineas[i]);
    }
    return copia.Texto();
}

} // namespace

namespace {

bool soloTieneRetornos(const QString &texto)
{
    return !texto.contains(u'\n') && texto.contains(u'\r');
}

} // namespace

std::vector<size_t> LineasConRetorno(const QString &texto)
{
    if (soloTieneRetornos(texto))
        return { 0 };
    std::vector<size_t> indices;
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (lineas[i].linea.endsWith(u'\r'))
            indices.push_back(i);
    }
    return indices;
}

QString SinRetornosSueltos(const QString &texto)
{
    if (soloTieneRetornos(texto))
        return QString(texto).replace(u'\r', u"\r\n"_s);
    // A file of any size comes back without a copy.
    if (!texto.contains(u"\r\r"_s) && !texto.endsWith(u'\r'))
        return texto;
    Copia copia;
    for (LineaConFin linea : EnLineas(texto)) {
        while (linea.linea.endsWith(u'\r'))
            linea.linea.chop(1);
        copia.Copiar(linea);
    }
    return copia.Texto();
}

std::vector<SinCierre> BloquesSinCierre(const QString &texto)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    std::vector<SinCierre> huecos;
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (!lineas[i].linea.startsWith(u'-'))
            continue;
        for (const Bloque &bloque : BloquesDe(lineas, lineas[i].linea)) {
            if (bloque.inicio == i && !bloque.cerrado)
                huecos.push_back({ i, bloque.fin });
        }
    }
    return huecos;
}

QString ConBloquesCerrados(const QString &texto)
{
    return conLineas(texto, BloquesSinCierre(texto), u'\'' + QString(LargoDeCierre, u'-'));
}

bool TieneMarcaFinal(const QString &texto)
{
    bool marca = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea.startsWith(u'-'))
            marca = false;
        else if (linea.linea.startsWith(u'['))
            marca = true;
    }
    return marca;
}

QString ConMarcaFinal(const QString &texto)
{
    if (TieneMarcaFinal(texto))
        return texto;
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    copia.Copiar(lineas, 0, lineas.size());
    copia.Nueva(u"[EOF]"_s);
    return copia.Texto();
}

namespace {

QString sinBlancos(QString valor)
{
    while (valor.endsWith(u' ') || valor.endsWith(u'\t'))
        valor.chop(1);
    return valor;
}

} // namespace

bool SobranBlancos(const QString &valor, const LoQueHay &hay)
{
    return sinBlancos(valor).size() < valor.size() && hay(valor) == EnDisco::Nada;
}

QString ConSeparadorFinal(const QString &valor, const LoQueHay &hay)
{
    if (!SobranBlancos(valor, hay))
        return hay(valor) == EnDisco::Fichero ? valor : host::withClosingSeparator(valor);
    const QString corto = sinBlancos(valor);
    return hay(corto) == EnDisco::Directorio ? host::withClosingSeparator(corto) : valor;
}

QString ConSeparadoresFinales(const QString &texto, const LoQueHay &hay)
{
    Copia copia;
    for (const LineaConFin &linea : EnLineas(texto)) {
        const QString entera = linea.linea.toString();
        const bool deRuta = linea.linea.startsWith(u"ROM=") || linea.linea.startsWith(u"IMG=");
        const QString cerrada =
            deRuta ? entera.first(PrefijoRuta) + ConSeparadorFinal(entera.sliced(PrefijoRuta), hay) : entera;
        copia.Copiar({ cerrada, linea.fin });
    }
    return copia.Texto();
}

namespace {

// Ahead of empty lines and rules, of an apostrophe and dashes: those would be read as notes.
size_t trasLasNotas(const std::vector<LineaConFin> &lineas, size_t inicio, size_t fin)
{
    while (fin > inicio + 1 && (lineas[fin - 1].linea.isEmpty() || lineas[fin - 1].linea.startsWith(u"'-")))
        --fin;
    return fin;
}

} // namespace

std::vector<SinCierre> NotasSinCierre(const QString &texto, const QStringList &sistemas)
{
    const QSet<QString> nombres(sistemas.begin(), sistemas.end());
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    std::vector<SinCierre> huecos;
    bool abierto = false;
    size_t inicio = 0;
    for (size_t i = 0; i < lineas.size(); ++i) {
        const QStringView linea = lineas[i].linea;
        const bool cabecera = nombres.contains(linea.toString());
        const bool fin = AcabaLosSistemas(lineas, i, sistemas);
        if (abierto && (cabecera || fin))
            huecos.push_back({ inicio, trasLasNotas(lineas, inicio, i) });
        if (fin)
            break;
        if (cabecera)
            inicio = i;
        abierto = cabecera || (abierto && !CierraLasNotas(linea));
    }
    return huecos;
}

QString ConNotasCerradas(const QString &texto, const QStringList &sistemas)
{
    return conLineas(texto, NotasSinCierre(texto, sistemas), u"'"_s);
}

bool TieneMarcaDeNotas(const QString &texto, const QStringList &sistemas)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (AcabaLosSistemas(lineas, i, sistemas))
            return true;
    }
    return false;
}

namespace {

constexpr int CamposDeNota = 2;
constexpr int CamposDeParametros = 4;

bool esRegistroDe(int campos, QStringView linea)
{
    // Quotes that the line doesn't close take in the lines behind it.
    if (linea.count(u'"') % 2 != 0 || linea.startsWith(u'['))
        return false;
    host::TextSource fuente(linea.toString());
    int leidos = 0;
    for (; !fuente.atEnd(); ++leidos) {
        if (fuente.readField().isEmpty() && leidos == 0)
            return false;
    }
    return leidos == campos;
}

size_t indiceDeParametros(const std::vector<LineaConFin> &lineas)
{
    const auto cabecera = std::ranges::find_if(
        lineas, [](const LineaConFin &linea) { return linea.linea.startsWith(u"Parametros"); });
    return static_cast<size_t>(cabecera - lineas.begin());
}

// Where the mark is missing: ahead of this line. None where what stands at the end may be something else than
// notes of a system.
std::optional<size_t> lugarDeLaMarca(const std::vector<LineaConFin> &lineas, const QStringList &sistemas)
{
    size_t lugar = indiceDeParametros(lineas);
    if (lugar < lineas.size()) {
        while (lugar > 0 && lineas[lugar - 1].linea.isEmpty())
            --lugar;
        return lugar;
    }
    const QSet<QString> nombres(sistemas.begin(), sistemas.end());
    bool dentro = false;
    for (const LineaConFin &linea : lineas) {
        const bool cabecera = nombres.contains(linea.linea.toString());
        const bool nota = dentro && esRegistroDe(CamposDeNota, linea.linea);
        if (!cabecera && !nota && !linea.linea.isEmpty() && !linea.linea.startsWith(u'\''))
            return std::nullopt;
        dentro = cabecera || (dentro && !CierraLasNotas(linea.linea));
    }
    return FinDeLosParametros(lineas);
}

} // namespace

QString ConMarcaDeNotas(const QString &texto, const QStringList &sistemas)
{
    if (TieneMarcaDeNotas(texto, sistemas))
        return texto;
    const std::optional<size_t> lugar = lugarDeLaMarca(EnLineas(texto), sistemas);
    return lugar ? conLineas(texto, { { *lugar, *lugar } }, u"[EOF]"_s) : texto;
}

size_t FinDeLosParametros(const std::vector<LineaConFin> &lineas)
{
    size_t fin = lineas.size();
    const auto esFinal = [](QStringView linea) {
        return linea.isEmpty() || linea == u"fin" || linea == u"fin,\"fin\"";
    };
    while (fin > 0 && esFinal(lineas[fin - 1].linea))
        --fin;
    return fin;
}

QString ConCabeceraDeParametros(const QString &texto, const QStringList &sistemas)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    size_t marca = 0;
    while (marca < lineas.size() && !AcabaLosSistemas(lineas, marca, sistemas))
        ++marca;
    if (marca == lineas.size() || indiceDeParametros(lineas) < lineas.size())
        return texto;
    const size_t fin = FinDeLosParametros(lineas);
    bool cerrados = false;
    for (size_t i = marca + 1; i < fin; ++i) {
        const QStringView linea = lineas[i].linea;
        if (cerrados || (!linea.isEmpty() && linea != u"'" && !esRegistroDe(CamposDeParametros, linea)))
            return texto;
        cerrados = linea == u"'";
    }
    return conLineas(texto, { { marca, marca + 1 } }, CabeceraParametros.toString());
}

std::optional<size_t> ParametrosSinCierre(const QString &texto)
{
    std::vector<LineaConFin> lineas = EnLineas(texto);
    lineas.resize(FinDeLosParametros(lineas));
    const size_t cabecera = indiceDeParametros(lineas);
    if (cabecera == lineas.size())
        return std::nullopt;
    const bool soloRegistros = std::all_of(
        lineas.begin() + std::ptrdiff_t(cabecera) + 1, lineas.end(), [](const LineaConFin &linea) {
            return linea.linea.isEmpty() || esRegistroDe(CamposDeParametros, linea.linea);
        });
    return soloRegistros ? std::optional(cabecera) : std::nullopt;
}

QString ConParametrosCerrados(const QString &texto)
{
    const std::optional<size_t> inicio = ParametrosSinCierre(texto);
    if (!inicio)
        return texto;
    return conLineas(texto, { { *inicio, FinDeLosParametros(EnLineas(texto)) } }, u"'"_s);
}

} // namespace core
