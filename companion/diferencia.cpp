#include "companion/diferencia.h"

#include "core/lineas.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr size_t Contexto = 3;
constexpr size_t MaxTabla = 4'000'000; // of lines compared with lines; beyond, all of them are replaced

struct Paso {
    char signo; // ' ', '-', '+'
    QString linea;
};

using Vistas = std::span<const core::LineaConFin>;

// Lines that differ in their ends alone are shown with them, those of the rest aren't.
std::vector<QString> lineasDe(Vistas vistas, bool conFines)
{
    std::vector<QString> lineas;
    for (const core::LineaConFin &linea : vistas) {
        const QString fin = linea.fin.isEmpty() ? u"  \\ No newline at end of file"_s
            : linea.fin.size() > 1              ? u"\r"_s
                                                : QString();
        lineas.push_back(linea.linea.toString() + (conFines ? fin : QString()));
    }
    return lineas;
}

using Lineas = std::vector<QString>;

// The steps between two stretches, by their longest common subsequence.
void compara(const Lineas &a, const Lineas &b, std::vector<Paso> &pasos)
{
    const size_t n = a.size();
    const size_t m = b.size();
    const bool cabe = (n + 1) * (m + 1) <= MaxTabla;
    std::vector<unsigned> comunes(cabe ? (n + 1) * (m + 1) : 0);
    const auto en = [&](size_t i, size_t j) -> unsigned & { return comunes[i * (m + 1) + j]; };
    for (size_t i = n; cabe && i-- > 0;) {
        for (size_t j = m; j-- > 0;)
            en(i, j) = a[i] == b[j] ? en(i + 1, j + 1) + 1 : std::max(en(i + 1, j), en(i, j + 1));
    }
    size_t i = 0;
    size_t j = 0;
    while (i < n || j < m) {
        if (cabe && i < n && j < m && a[i] == b[j])
            pasos.push_back({ ' ', a[i++] }), ++j;
        else if (i < n && (!cabe || j == m || en(i + 1, j) >= en(i, j + 1)))
            pasos.push_back({ '-', a[i++] });
        else
            pasos.push_back({ '+', b[j++] });
    }
}

std::vector<Paso> pasosDe(const Lineas &a, const Lineas &b)
{
    size_t delante = 0;
    while (delante < a.size() && delante < b.size() && a[delante] == b[delante])
        ++delante;
    size_t detras = 0;
    while (detras < a.size() - delante && detras < b.size() - delante
        && a[a.size() - 1 - detras] == b[b.size() - 1 - detras])
        ++detras;
    const auto trozo = [&](const Lineas &lineas) {
        return Lineas(lineas.begin() + std::ptrdiff_t(delante), lineas.end() - std::ptrdiff_t(detras));
    };
    std::vector<Paso> pasos;
    for (size_t i = 0; i < delante; ++i)
        pasos.push_back({ ' ', a[i] });
    compara(trozo(a), trozo(b), pasos);
    for (size_t i = a.size() - detras; i < a.size(); ++i)
        pasos.push_back({ ' ', a[i] });
    return pasos;
}

// How many lines at the beginning and at the end of both are equal and no context of others: of a large file
// most of them.
std::pair<size_t, size_t> lejosDeTodoCambio(Vistas a, Vistas b)
{
    const auto iguales = [](const core::LineaConFin &una, const core::LineaConFin &otra) {
        return una.linea == otra.linea && una.fin == otra.fin;
    };
    const size_t corta = std::min(a.size(), b.size());
    size_t delante = 0;
    while (delante < corta && iguales(a[delante], b[delante]))
        ++delante;
    size_t detras = 0;
    while (detras < corta - delante && iguales(a[a.size() - 1 - detras], b[b.size() - 1 - detras]))
        ++detras;
    return { delante - std::min(delante, Contexto), detras - std::min(detras, Contexto) };
}

QString cabecera(size_t antes, size_t total, size_t despues, size_t totalDespues)
{
    const auto parte = [](size_t primera, size_t cuantas) {
        return QString::number(cuantas == 0 ? primera : primera + 1) + u',' + QString::number(cuantas);
    };
    return u"@@ -"_s + parte(antes, total) + u" +"_s + parte(despues, totalDespues) + u" @@"_s;
}

} // namespace

QStringList Diferencia(const QString &fichero, const QString &antes, const QString &despues)
{
    if (antes == despues)
        return {};
    const std::vector<core::LineaConFin> todasAntes = core::EnLineas(antes);
    const std::vector<core::LineaConFin> todasDespues = core::EnLineas(despues);
    const bool soloFines = std::ranges::equal(
        todasAntes, todasDespues, {}, &core::LineaConFin::linea, &core::LineaConFin::linea);
    const auto [saltadas, dejadas] = lejosDeTodoCambio(todasAntes, todasDespues);
    const auto cerca = [&, desde = saltadas, fuera = saltadas + dejadas](Vistas todas) {
        return lineasDe(todas.subspan(desde, todas.size() - fuera), soloFines);
    };
    const std::vector<Paso> pasos = pasosDe(cerca(todasAntes), cerca(todasDespues));
    std::vector<bool> visibles(pasos.size());
    for (size_t i = 0; i < pasos.size(); ++i) {
        if (pasos[i].signo == ' ')
            continue;
        const size_t hasta = std::min(pasos.size(), i + Contexto + 1);
        for (size_t k = i - std::min(i, Contexto); k < hasta; ++k)
            visibles[k] = true;
    }
    QStringList lineas;
    size_t deAntes = saltadas;
    size_t deDespues = saltadas;
    for (size_t i = 0; i < pasos.size();) {
        const size_t principio = i;
        QStringList trozo;
        size_t suyasAntes = 0;
        size_t suyasDespues = 0;
        while (i < pasos.size() && visibles[i] == visibles[principio]) {
            suyasAntes += pasos[i].signo != '+';
            suyasDespues += pasos[i].signo != '-';
            trozo += QLatin1Char(pasos[i].signo) + pasos[i].linea;
            ++i;
        }
        if (visibles[principio])
            lineas += QStringList { cabecera(deAntes, suyasAntes, deDespues, suyasDespues) } + trozo;
        deAntes += suyasAntes;
        deDespues += suyasDespues;
    }
    if (!lineas.isEmpty())
        lineas = QStringList { u"--- "_s + fichero, u"+++ "_s + fichero } + lineas;
    return lineas;
}

} // namespace companion
