#include "finder/hallazgos.h"

#include "core/catalogo.h"

#include "host/paths.h"
#include "host/textsource.h"

#include <QHash>

#include <optional>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

// The emulator of a card with its paths, if all of it is on the machine.
std::optional<Hallazgo> hallazgoDe(
    const Ficha &ficha, const QString &sistema, const Lugares &lugares, const QString &directorio)
{
    Hallazgo hallazgo;
    hallazgo.sistema = sistema;
    hallazgo.deMAME = EsDeMAME(ficha);
    hallazgo.pideROMs = ficha.pideROMs;
    hallazgo.programa = RutaDePrograma(ficha.ejecutables, lugares);
    if (hallazgo.programa.isEmpty())
        return std::nullopt;

    Parametros parametros = ParametrosDe(ficha);
    const QString nucleo = NucleoDe(ficha);
    if (!nucleo.isEmpty()) {
        const QString ruta = RutaDeNucleo(nucleo, lugares);
        if (ruta.isEmpty())
            return std::nullopt;
        parametros.par1 = ConNucleo(parametros.par1, ruta);
    }

    core::EmuladorNuevo &emulador = hallazgo.emulador;
    emulador.exe = hallazgo.programa;
    if (SeArrancaJuntoASusROMs(ficha)) {
        hallazgo.arranque = RutaDeArranque(directorio, ficha.emulador);
        emulador.exe = hallazgo.arranque + hallazgo.programa.sliced(host::lastSeparator(hallazgo.programa));
        parametros.par1 = ConEnlaceDeROMs(parametros.par1);
    }
    emulador.nombre = ficha.emulador;
    emulador.tipo = ficha.tipo;
    emulador.rom = RutaDeROMs(directorio, sistema);
    emulador.img = RutaDeCapturas(directorio, sistema);
    emulador.par1 = parametros.par1;
    emulador.par2 = parametros.par2;
    return hallazgo;
}

} // namespace

QSet<QString> NombresConfigurados(const core::Modulo &catalogo)
{
    QSet<QString> nombres;
    for (int s = 0; s <= catalogo.Indice_Sistema; ++s) {
        for (int e = 1; e <= core::TotalEmuladores(catalogo, s); ++e)
            nombres += catalogo.Cat_Nombre(s, e);
    }
    return nombres;
}

QString NombreDeDirectorio(QString sistema)
{
    return sistema.replace(u'/', u'-');
}

QString RutaDeROMs(const QString &directorio, const QString &sistema)
{
    return directorio + u"/roms/"_s + NombreDeDirectorio(sistema) + u'/';
}

QString RutaDeCapturas(const QString &directorio, const QString &sistema)
{
    return directorio + u"/capturas/"_s + NombreDeDirectorio(sistema) + u'/';
}

QString RutaDeArranque(const QString &directorio, const QString &emulador)
{
    return directorio + u"/arranque/"_s + NombreDeDirectorio(emulador);
}

void LeeTablas(core::Modulo &M, const QString &texto)
{
    core::LectorDeCatalogo lector(M);
    host::TextSource fuente(texto);
    while (!fuente.atEnd())
        lector.Linea(fuente.readLine());
}

std::vector<Hallazgo> Busca(const core::Modulo &base, const core::Modulo &catalogo,
    const std::vector<Ficha> &fichas, const Lugares &lugares, const QString &directorio)
{
    QHash<QString, const Ficha *> porNombre;
    for (const Ficha &ficha : fichas)
        porNombre[u'+' + ficha.emulador] = &ficha;
    const QSet<QString> configurados = NombresConfigurados(catalogo);

    std::vector<Hallazgo> hallazgos;
    for (int s = 0; s <= base.Indice_Sistema; ++s) {
        for (int e = 1; e <= core::TotalEmuladores(base, s); ++e) {
            const QString &nombre = base.Cat_Nombre(s, e);
            if (!porNombre.contains(nombre) || configurados.contains(nombre))
                continue;
            std::optional<Hallazgo> hallazgo =
                hallazgoDe(*porNombre[nombre], core::Valor(base.Cat_Nombre(s, 0), 1), lugares, directorio);
            if (!hallazgo)
                continue;
            hallazgo->emulador.web2 = base.Cat_WEB2(s, e);
            hallazgos.push_back(*hallazgo);
        }
    }
    return hallazgos;
}

} // namespace finder
