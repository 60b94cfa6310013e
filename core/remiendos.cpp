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

QString ConSeparadoresFinales(const QString &texto)
{
    Copia copia;
    for (const LineaConFin &linea : EnLineas(texto)) {
        const bool directorio = linea.linea.startsWith(u"ROM=") || linea.linea.startsWith(u"IMG=");
        const QString entera = linea.linea.toString();
        const QString cerrada = directorio
            ? entera.first(PrefijoRuta) + host::withClosingSeparator(entera.sliced(PrefijoRuta))
            : entera;
        copia.Copiar({ cerrada, linea.fin });
    }
    return copia.Texto();
}

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
            huecos.push_back({ inicio, i });
        if (fin)
            break;
        if (cabecera)
            inicio = i;
        abierto = cabecera || (abierto && linea != u"'");
    }
    return huecos;
}

QString ConNotasCerradas(const QString &texto, const QStringList &sistemas)
{
    return conLineas(texto, NotasSinCierre(texto, sistemas), u"'"_s);
}

namespace {

bool esRegistroDeParametros(QStringView linea)
{
    constexpr int campos = 4;
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

} // namespace

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

std::optional<size_t> ParametrosSinCierre(const QString &texto)
{
    std::vector<LineaConFin> lineas = EnLineas(texto);
    lineas.resize(FinDeLosParametros(lineas));
    const auto cabecera = std::ranges::find_if(
        lineas, [](const LineaConFin &linea) { return linea.linea.startsWith(u"Parametros"); });
    if (cabecera == lineas.end())
        return std::nullopt;
    const bool soloRegistros = std::all_of(cabecera + 1, lineas.end(), [](const LineaConFin &linea) {
        return linea.linea.isEmpty() || esRegistroDeParametros(linea.linea);
    });
    return soloRegistros ? std::optional(size_t(cabecera - lineas.begin())) : std::nullopt;
}

QString ConParametrosCerrados(const QString &texto)
{
    const std::optional<size_t> inicio = ParametrosSinCierre(texto);
    if (!inicio)
        return texto;
    return conLineas(texto, { { *inicio, FinDeLosParametros(EnLineas(texto)) } }, u"'"_s);
}

} // namespace core
