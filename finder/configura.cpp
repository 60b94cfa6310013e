#include "finder/configura.h"

#include "finder/dedos.h"
#include "finder/eleccion.h"
#include "finder/incorporacion.h"
#include "finder/juegos.h"
#include "finder/pistas.h"
#include "finder/preparacion.h"

#include "core/rutas.h"
#include "core/ajustes.h"
#include "core/catalogo.h"
#include "core/lineas.h"
#include "core/notas.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

const QString Borrador = u"Zembro.tmp"_s;

QString textoDe(const QString &ruta)
{
    return host::decodeText(host::readBytes(ruta)).text;
}

// One run: what it has read, and what it makes of it.
class Trabajo {
public:
    explicit Trabajo(const Encargo &encargo)
        : m_encargo(encargo)
        , m_fichas(LeeFichas(encargo.tabla.isEmpty() ? TablaDelPrograma() : textoDe(encargo.tabla)))
    {
        LeeTablas(*m_base, textoDe(encargo.directorio + u"/Zembro.sye"_s));
    }

    // The text of the catalogue with what is chosen; the directories are there then.
    QString CatalogoCon(const QString &texto);

    // Changes a file of the directory, or only tells it. A file is rewritten also where nothing changes.
    void Cambia(const QString &ruta, const std::function<QString(const QString &)> &cambio);

    void EscribeNotas();
    void PonEnDescripciones();
    void ConservaSeleccion();

    Resultado resultado;

private:
    bool hayJuegos(const Hallazgo &hallazgo) const
    {
        return HayJuegos(hallazgo.emulador.rom, hallazgo.emulador.tipo.toInt(),
            ExtensionesDe(*m_base, *m_antes, hallazgo.sistema));
    }
    void avisaDeDescarte(const Descarte &descarte);
    Nota notaDe(const QString &sistema) const;

    const Encargo &m_encargo;
    const std::vector<Ficha> m_fichas;
    const std::unique_ptr<core::Modulo> m_base = std::make_unique<core::Modulo>();
    const std::unique_ptr<core::Modulo> m_antes = std::make_unique<core::Modulo>();
    const std::unique_ptr<core::Modulo> m_despues = std::make_unique<core::Modulo>();
    std::vector<Hallazgo> m_enLaMaquina; // configured or not
};

void leeCatalogo(core::Modulo &M, const QString &texto)
{
    try {
        LeeTablas(M, texto);
    } catch (const host::Failure &failure) {
        throw host::Failure(failure.number(),
            u"read the catalogue: it holds more than fits, or a line of an emulator ahead of the first system"_s);
    }
}

QString Trabajo::CatalogoCon(const QString &texto)
{
    leeCatalogo(*m_antes, texto);
    const Lugares lugares = LugaresDeLaMaquina();
    const auto ninguno = std::make_unique<core::Modulo>();
    const std::vector<FichaDOS> fichasDOS = LeeFichasDOS(TablaDOSDelPrograma());
    const std::vector<EnUnidad> enUnidades = RecorreUnidades(fichasDOS, host::drives());
    const auto busca = [&](const core::Modulo &catalogo) {
        std::vector<Hallazgo> todos = Busca(*m_base, catalogo, m_fichas, lugares, m_encargo.directorio);
        const std::vector<Hallazgo> deDOS = HallazgosDOS(*m_base, catalogo, enUnidades, m_encargo.directorio);
        todos.insert(todos.end(), deDOS.begin(), deDOS.end());
        return todos;
    };
    m_enLaMaquina = busca(*ninguno);
    const std::vector<Hallazgo> nuevos = busca(*m_antes);
    const std::vector<Hallazgo> elegidos = m_encargo.todo
        ? ConMAMEDetras(nuevos)
        : Elige(nuevos, *m_antes, [this](const Hallazgo &hallazgo) { return hayJuegos(hallazgo); });

    Incorporacion incorporacion = Incorpora(texto, *m_base, elegidos, m_encargo.directorio);
    leeCatalogo(*m_despues, incorporacion.texto);
    for (const Descarte &descarte : incorporacion.descartados)
        avisaDeDescarte(descarte);
    for (const Hallazgo &hallazgo : m_enLaMaquina)
        resultado.hechos += FaltaParaJuegos(hallazgo);
    for (const Hallazgo &hallazgo : incorporacion.puestos)
        resultado.hechos += FaltaPara(hallazgo);
    resultado.hechos.removeDuplicates();
    if (!m_encargo.ensayo) {
        for (const Hallazgo &hallazgo : m_enLaMaquina)
            PreparaJuegos(hallazgo);
        for (const Hallazgo &hallazgo : incorporacion.puestos)
            Prepara(hallazgo);
    }
    resultado.puestos = std::move(incorporacion.puestos);
    return incorporacion.texto;
}

void Trabajo::Cambia(const QString &ruta, const std::function<QString(const QString &)> &cambio)
{
    Cambio suyo { ruta.sliced(host::lastSeparator(ruta) + 1), {}, {} };
    const auto visto = [&](const QString &texto) {
        suyo.antes = texto;
        suyo.despues = cambio(texto);
        return suyo.despues;
    };
    if (m_encargo.ensayo)
        visto(textoDe(ruta));
    else
        host::NumberedFiles().rewrite(ruta, Borrador, visto);
    if (suyo.antes != suyo.despues)
        resultado.cambios.push_back(suyo);
}

void Trabajo::avisaDeDescarte(const Descarte &descarte)
{
    static const QString motivos[] = {
        u"the catalogue has no line that begins with [ behind its systems"_s,
        u"the list is full"_s,
        u"the catalogue has this system in other capitals"_s,
        u"a path that it needs can't be kept in the catalogue"_s,
        u"the last system of the catalogue has no emulator; remove it with its - button first"_s,
        u"the catalogue has lines there that would pass to it"_s,
    };
    resultado.avisos += u"%1: %2 is left out: %3."_s.arg(descarte.hallazgo.sistema,
        descarte.hallazgo.emulador.nombre, motivos[static_cast<int>(descarte.motivo)]);
}

// What the directory of a system's games says, by its emulators on this machine.
Nota Trabajo::notaDe(const QString &sistema) const
{
    Nota nota { sistema, ExtensionesDe(*m_base, *m_despues, sistema), {}, false };
    bool algunoAqui = false;
    for (const Hallazgo &hallazgo : m_enLaMaquina) {
        if (hallazgo.sistema != sistema)
            continue;
        const std::optional<QString> suyo =
            DirectorioDeJuegos(*m_despues, hallazgo.emulador.nombre, m_encargo.directorio);
        nota.faltaConfigurar |= !suyo;
        algunoAqui |= !suyo || *suyo == hallazgo.emulador.rom;
        if (suyo && *suyo != hallazgo.emulador.rom)
            nota.otroDirectorio = *suyo;
    }
    if (algunoAqui)
        nota.otroDirectorio.clear();
    return nota;
}

void Trabajo::EscribeNotas()
{
    QStringList vistos;
    for (const Hallazgo &hallazgo : m_enLaMaquina) {
        if (vistos.contains(hallazgo.sistema))
            continue;
        vistos += hallazgo.sistema;
        Nota nota = notaDe(hallazgo.sistema);
        if (!nota.otroDirectorio.isEmpty() && hayJuegos(hallazgo))
            resultado.avisos += u"%1: there are games in %2, but its emulator looks in %3."_s.arg(
                hallazgo.sistema, hallazgo.emulador.rom, nota.otroDirectorio);
        if (!FaltaNota(hallazgo.emulador.rom, nota))
            continue;
        // As the catalogue names it, so that it stays true in a copy of the program's directory.
        nota.otroDirectorio = core::ValorDeRuta(nota.otroDirectorio, m_encargo.directorio);
        try {
            if (!m_encargo.ensayo)
                EscribeNota(hallazgo.emulador.rom, nota);
            resultado.hechos += hallazgo.emulador.rom + NombreDeNota;
        } catch (const host::Failure &failure) {
            resultado.avisos += QString::fromUtf8(failure.what());
        }
    }
}

// A system that Zembro.rom doesn't know would list no game.
void Trabajo::PonEnDescripciones()
{
    const QString fichero = m_encargo.directorio + u"/Zembro.rom"_s;
    const auto faltan = [this](const QString &texto) {
        const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
        QStringList sistemas;
        for (const Hallazgo &hallazgo : resultado.puestos) {
            const bool esta = std::any_of(lineas.begin(), lineas.end(),
                [&hallazgo](const core::LineaConFin &linea) { return linea.linea == hallazgo.sistema; });
            if (!esta && !sistemas.contains(hallazgo.sistema))
                sistemas += hallazgo.sistema;
        }
        return sistemas;
    };
    if (!host::exists(fichero) || faltan(textoDe(fichero)).isEmpty())
        return;
    QStringList quedan;
    Cambia(fichero, [&](const QString &texto) {
        QString completo = texto;
        for (const QString &sistema : faltan(texto))
            completo = core::ConSistemaNuevo(completo, sistema);
        quedan = faltan(completo);
        return completo;
    });
    for (const QString &sistema : std::as_const(quedan))
        resultado.avisos += u"%1: its games aren't listed: Zembro.rom has no place for it."_s.arg(sistema);
}

void Trabajo::ConservaSeleccion()
{
    const QString fichero = m_encargo.directorio + u"/Zembro.cfg"_s;
    const auto cambiado = [this](const QString &texto) {
        return core::ConSeleccionEn(texto, *m_despues, *m_antes);
    };
    if (!host::exists(fichero))
        return;
    const QString texto = textoDe(fichero);
    if (cambiado(texto) != texto)
        Cambia(fichero, cambiado);
}

} // namespace

Resultado Configura(const Encargo &encargo)
{
    Trabajo trabajo(encargo);
    const bool nuevo = !encargo.catalogo.isEmpty();
    trabajo.Cambia(nuevo ? encargo.catalogo : encargo.directorio + u"/Zembro.emu"_s,
        [&trabajo](const QString &texto) { return trabajo.CatalogoCon(texto); });
    // The catalogue has them now: whatever else goes wrong is told beside what was done.
    const auto intenta = [&trabajo](void (Trabajo::*paso)()) {
        try {
            (trabajo.*paso)();
        } catch (const host::Failure &failure) {
            trabajo.resultado.avisos += QString::fromUtf8(failure.what());
        }
    };
    if (!nuevo)
        intenta(&Trabajo::ConservaSeleccion);
    intenta(&Trabajo::PonEnDescripciones);
    intenta(&Trabajo::EscribeNotas);
    return std::move(trabajo.resultado);
}

} // namespace finder
