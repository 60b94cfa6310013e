#include "core/notasfuera.h"

#include "core/lineas.h"
#include "core/notas.h"
#include "core/notasremendadas.h"

#include "host/letters.h"
#include "host/textsource.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace core {

namespace {

struct NotaEnSuLinea {
    size_t indice = 0;
    QString duenyo; // the system whose block it stands in, if any
    bool delPrimero = false; // of its blocks, the one that is read
    QString clave; // in upper case
};

// Up to the parameters, also behind what ends the systems: a reader finds a block wherever it stands.
std::vector<NotaEnSuLinea> notasEnSuLinea(const QString &texto, const QStringList &conocidos)
{
    const QSet<QString> nombres(conocidos.begin(), conocidos.end());
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    std::vector<NotaEnSuLinea> notas;
    QSet<QString> vistos;
    QString duenyo;
    bool delPrimero = false;
    for (size_t i = 0; i < lineas.size(); ++i) {
        const QStringView linea = lineas[i].linea;
        if (linea.startsWith(CabeceraParametros))
            break;
        const QString entera = linea.toString();
        if (nombres.contains(entera)) {
            duenyo = entera;
            delPrimero = !vistos.contains(entera);
            vistos.insert(entera);
        } else if (CierraLasNotas(linea) || AcabaLosSistemas(lineas, i, conocidos)) {
            duenyo.clear();
        } else if (EsNotaEntera(linea)) {
            notas.push_back({ i, duenyo, delPrimero, host::upper(host::TextSource(entera).readField()) });
        }
    }
    return notas;
}

} // namespace

std::vector<NotasFuera> NotasFueraDeSitio(
    const QString &texto, const QStringList &delCatalogo, const QStringList &conocidos, const HayJuego &hay)
{
    const std::vector<NotaEnSuLinea> notas = notasEnSuLinea(texto, conocidos);
    QHash<QString, QSet<QString>> descritas;
    for (const NotaEnSuLinea &nota : notas) {
        if (nota.delPrimero && !nota.duenyo.isEmpty())
            descritas[nota.duenyo].insert(nota.clave);
    }
    std::vector<NotasFuera> fuera;
    for (const NotaEnSuLinea &nota : notas) {
        if (delCatalogo.contains(nota.duenyo) && hay(nota.duenyo, nota.clave))
            continue;
        const auto laEcha = [&](const QString &sistema) {
            return sistema != nota.duenyo && hay(sistema, nota.clave)
                && !descritas.value(sistema).contains(nota.clave);
        };
        // Where a game of that name is in several systems it goes with the notes ahead of it.
        if (!fuera.empty() && fuera.back().fin == nota.indice && laEcha(fuera.back().sistema)) {
            ++fuera.back().fin;
            continue;
        }
        const auto suyo = std::ranges::find_if(delCatalogo, laEcha);
        if (suyo != delCatalogo.end())
            fuera.push_back({ *suyo, nota.indice, nota.indice + 1 });
    }
    return fuera;
}

QStringList SistemasConNotasFuera(
    const QString &texto, const QStringList &delCatalogo, const QStringList &conocidos, const HayJuego &hay)
{
    QStringList sistemas;
    for (const NotasFuera &tramo : NotasFueraDeSitio(texto, delCatalogo, conocidos, hay))
        sistemas += tramo.sistema;
    sistemas.removeDuplicates();
    return sistemas;
}

} // namespace core
