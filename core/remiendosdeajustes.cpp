// The repair of the settings, which are read by the numbers of their lines.
#include "core/ajustes.h"
#include "core/remiendos.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr QStringView Claves[] = { u"LastSisUsed", u"LastEmuUsed", u"SaveLastEmu&Sis", u"TypeOfEditor",
    u"MsgEndDOS", u"LanguageFile", u"DebugMode" };
constexpr size_t LineasDeCabeza = 11; // ahead of the first of them
constexpr size_t LineaDeFiltros = 19; // that of their heading

struct Ajustes {
    QStringList lineas; // of the keys, in their order
    size_t primerFiltro = 0; // indices
    size_t trasLosFiltros = 0;
    bool enSuSitio = true;
};

bool esRelleno(QStringView linea)
{
    return linea.isEmpty() || linea.startsWith(u'\'') || linea == u"[General]" || linea == u"[Filters]";
}

size_t saltaRelleno(const std::vector<LineaConFin> &lineas, size_t desde)
{
    while (desde < lineas.size() && esRelleno(lineas[desde].linea))
        ++desde;
    return desde;
}

// None where something is missing, stands twice, or is none of theirs.
std::optional<Ajustes> ajustesDe(const std::vector<LineaConFin> &lineas)
{
    Ajustes ajustes;
    size_t i = 0;
    for (const QStringView clave : Claves) {
        i = saltaRelleno(lineas, i);
        if (i == lineas.size() || !lineas[i].linea.startsWith(clave))
            return std::nullopt;
        ajustes.enSuSitio = ajustes.enSuSitio && i == LineasDeCabeza + size_t(ajustes.lineas.size());
        ajustes.lineas += lineas[i].linea.toString();
        ++i;
    }
    ajustes.primerFiltro = saltaRelleno(lineas, i);
    ajustes.enSuSitio = ajustes.enSuSitio && ajustes.primerFiltro == LineaDeFiltros + 1;
    i = ajustes.primerFiltro;
    while (i < lineas.size() && !lineas[i].linea.isEmpty() && lineas[i].linea != u"[EOF]")
        ++i;
    ajustes.trasLosFiltros = i;
    return i == ajustes.primerFiltro ? std::nullopt : std::optional(ajustes);
}

} // namespace

QString ConAjustesEnSuSitio(const QString &texto)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const std::optional<Ajustes> ajustes = ajustesDe(lineas);
    if (!ajustes)
        return texto;
    const bool sinBlanco =
        ajustes->trasLosFiltros < lineas.size() && !lineas[ajustes->trasLosFiltros].linea.isEmpty();
    if (ajustes->enSuSitio && !sinBlanco)
        return texto;
    const QString deSerie = AjustesPorDefecto({});
    Copia copia;
    copia.Copiar(EnLineas(deSerie), 0, LineasDeCabeza);
    for (const QString &linea : ajustes->lineas)
        copia.Nueva(linea);
    copia.Nueva({});
    copia.Nueva(u"[Filters]"_s);
    copia.Copiar(lineas, ajustes->primerFiltro, ajustes->trasLosFiltros);
    if (sinBlanco)
        copia.Nueva({});
    copia.Copiar(lineas, ajustes->trasLosFiltros, lineas.size());
    return copia.Texto();
}

} // namespace core
