#include "companion/perdidos.h"

#include "core/catalogo.h"
#include "core/lineas.h"

#include "host/failure.h"
#include "host/paths.h"

#include "launch/shell.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr int Varias = 2; // one line alone may as well be mistyped

// The path that a line leads to; of a program its directory. Empty where it isn't written whole.
QString caminoDe(QStringView linea)
{
    const bool programa = linea.startsWith(u"EXE=");
    if (!programa && !linea.startsWith(u"ROM=") && !linea.startsWith(u"IMG="))
        return {};
    const QString ruta = linea.sliced(core::PrefijoRuta).toString();
    if (!ruta.startsWith(u'/'))
        return {};
    return SinCierre(programa ? ruta.first(ruta.lastIndexOf(u'/')) : ruta);
}

// Up to the first component that isn't there.
QString loPerdidoDe(const QString &camino, const HayAlgo &hay)
{
    for (qsizetype corte = 1; corte > 0;) {
        corte = camino.indexOf(u'/', corte);
        const QString inicio = corte < 0 ? camino : camino.first(corte);
        if (!inicio.isEmpty() && !hay(inicio))
            return inicio;
        corte += corte > 0;
    }
    return {};
}

// The one directory beside `viejo` that holds what all of these paths end in.
QString lugarNuevo(
    const QString &viejo, const QStringList &caminos, const HayAlgo &hay, const DirectoriosDe &directorios)
{
    const QString encima = viejo.first(viejo.lastIndexOf(u'/') + 1);
    QStringList buenos;
    for (const QString &nombre : directorios(encima)) {
        const bool todos = std::ranges::all_of(caminos, [&](const QString &camino) {
            return camino.size() > viejo.size() && hay(encima + nombre + camino.sliced(viejo.size()));
        });
        if (todos)
            buenos += encima + nombre;
    }
    return buenos.size() == 1 ? buenos.first() : QString();
}

int primeraCon(const QString &texto, const QString &viejo)
{
    int numero = 0;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        ++numero;
        const QString camino = caminoDe(linea.linea);
        if (camino == viejo || camino.startsWith(viejo + u'/'))
            return numero;
    }
    return 0;
}

} // namespace

std::vector<Perdido> LugaresPerdidos(
    const QString &texto, const HayAlgo &hay, const DirectoriosDe &directorios)
{
    struct Lugar {
        Perdido perdido;
        QStringList caminos;
    };
    std::vector<Lugar> lugares;
    int numero = 0;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        ++numero;
        QString camino = caminoDe(linea.linea);
        if (!camino.isEmpty() && !hay(camino))
            camino = SinCierre(camino.trimmed()); // blanks behind it are no other place
        const QString viejo = camino.isEmpty() ? QString() : loPerdidoDe(camino, hay);
        if (viejo.isEmpty())
            continue;
        auto suyo = std::ranges::find(lugares, viejo, [](const Lugar &lugar) { return lugar.perdido.viejo; });
        if (suyo == lugares.end())
            suyo = lugares.insert(lugares.end(), { .perdido = { viejo, {}, 0, numero }, .caminos = {} });
        ++suyo->perdido.lineas;
        suyo->caminos += camino;
    }
    std::vector<Perdido> perdidos;
    for (Lugar &lugar : lugares) {
        if (lugar.perdido.lineas < Varias)
            continue;
        lugar.perdido.nuevo = lugarNuevo(lugar.perdido.viejo, lugar.caminos, hay, directorios);
        perdidos.push_back(lugar.perdido);
    }
    std::ranges::stable_sort(perdidos, std::greater(), &Perdido::lineas);
    return perdidos;
}

std::vector<Perdido> LugaresPerdidos(const QString &texto)
{
    const auto hay = [](const QString &ruta) { return host::exists(ruta); };
    const QString directorio = SinCierre(host::programDirectory());
    std::vector<Perdido> perdidos;
    for (const QString &viejo : LugaresViejos(texto, directorio, hay)) {
        const QString mudado = ConRutasMudadas(texto, viejo, directorio, directorio);
        const auto lineas = core::EnLineas(texto);
        const auto otras = core::EnLineas(mudado);
        Perdido suyo { viejo, directorio, 0, primeraCon(texto, viejo) };
        for (size_t i = 0; i < lineas.size() && i < otras.size(); ++i)
            suyo.lineas += lineas[i].linea != otras[i].linea;
        perdidos.push_back(suyo);
    }
    const auto directorios = [](const QString &donde) {
        try {
            return host::listDirectories(donde);
        } catch (const host::Failure &) {
            return QStringList(); // it tells nothing
        }
    };
    for (const Perdido &otro : LugaresPerdidos(texto, hay, directorios)) {
        const bool dicho = std::ranges::any_of(perdidos, [&](const Perdido &uno) {
            return uno.viejo == otro.viejo || uno.viejo.startsWith(otro.viejo + u'/');
        });
        if (!dicho)
            perdidos.push_back(otro);
    }
    return perdidos;
}

QString TextoDe(const Perdido &perdido, const Palabras &palabras)
{
    return palabras.Zbo_LugarPerdido.arg(
        perdido.viejo, QString::number(perdido.lineas), OrdenDeMudanza(perdido));
}

QString OrdenDeMudanza(const Perdido &perdido)
{
    return launch::EnShell({ u"zembro"_s, u"move"_s, u"--old"_s, perdido.viejo, u"--new"_s,
        perdido.nuevo.isEmpty() ? u"NEWPLACE"_s : perdido.nuevo });
}

} // namespace companion
