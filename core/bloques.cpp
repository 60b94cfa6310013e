#include "core/bloques.h"

#include <algorithm>
#include <iterator>

namespace core {

namespace {

bool acabaElBloque(QStringView linea)
{
    return linea.startsWith(u'-') || linea.startsWith(u'[');
}

Bloque bloqueDesde(const std::vector<LineaConFin> &lineas, size_t inicio)
{
    for (size_t i = inicio + 1; i < lineas.size(); ++i) {
        if (lineas[i].linea.startsWith(u"'-"))
            return { inicio, i + 1, true };
        if (acabaElBloque(lineas[i].linea))
            return { inicio, i, false };
    }
    return { inicio, lineas.size(), false };
}

} // namespace

std::vector<Bloque> BloquesDe(const std::vector<LineaConFin> &lineas, QStringView lineaDeSistema)
{
    std::vector<Bloque> bloques;
    if (!lineaDeSistema.startsWith(u'-'))
        return bloques;
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (lineas[i].linea == lineaDeSistema) {
            bloques.push_back(bloqueDesde(lineas, i));
            i = bloques.back().fin - 1;
        }
    }
    return bloques;
}

std::optional<size_t> LineaDeEmulador(
    const std::vector<LineaConFin> &lineas, const Bloque &bloque, const QString &emulador)
{
    const QString buscada = u'+' + emulador;
    for (size_t i = bloque.inicio; i < bloque.cierre(); ++i) {
        if (lineas[i].linea == buscada)
            return i;
    }
    return {};
}

bool TieneSistema(const QString &texto, const QString &sistema)
{
    return !BloquesDe(EnLineas(texto), u'-' + sistema).empty();
}

bool TieneEmulador(const QString &texto, const QString &sistema, const QString &emulador)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const std::vector<Bloque> bloques = BloquesDe(lineas, u'-' + sistema);
    return std::any_of(bloques.begin(), bloques.end(),
        [&](const Bloque &bloque) { return LineaDeEmulador(lineas, bloque, emulador).has_value(); });
}

size_t PrimeraConInicio(
    const std::vector<LineaConFin> &lineas, size_t desde, size_t hasta, QStringView inicio)
{
    while (desde < hasta && !lineas[desde].linea.startsWith(inicio))
        ++desde;
    return desde;
}

size_t FinDeEmulador(const std::vector<LineaConFin> &lineas, size_t lineaDeEmulador)
{
    size_t i = lineaDeEmulador + 1;
    while (i < lineas.size() && !acabaElBloque(lineas[i].linea) && !lineas[i].linea.startsWith(u'+')
        && !lineas[i].linea.startsWith(u'\''))
        ++i;
    return i;
}

size_t CopiaSinRestos(Copia &copia, const std::vector<LineaConFin> &lineas, size_t desde)
{
    for (; desde < lineas.size(); ++desde) {
        const QStringView linea = lineas[desde].linea;
        if (acabaElBloque(linea) || linea.startsWith(u'+') || linea.startsWith(u"'-"))
            break;
        if (!EsValorDeEmulador(linea))
            copia.Copiar(lineas[desde]);
    }
    return desde;
}

bool EsValorDeEmulador(QStringView linea)
{
    static constexpr QStringView claves[] = { u"EXE", u"XDI", u"ROM", u"IMG", u"PAR1", u"PAR2", u"WEB2" };
    return std::any_of(
        std::begin(claves), std::end(claves), [linea](QStringView clave) { return linea.startsWith(clave); });
}

bool EsDelCatalogo(QStringView linea)
{
    static constexpr QStringView claves[] = { u"-", u"+", u"*.", u"WEB1" };
    return EsValorDeEmulador(linea)
        || std::any_of(std::begin(claves), std::end(claves),
            [linea](QStringView clave) { return linea.startsWith(clave); });
}

} // namespace core
