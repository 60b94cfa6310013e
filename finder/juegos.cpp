#include "finder/juegos.h"

#include "core/catalogo.h"
#include "core/lista.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

int filaDe(const core::Modulo &M, const QString &sistema)
{
    int s = 0;
    while (s <= M.Indice_Sistema && M.Cat_Nombre(s, 0) != u'-' + sistema)
        ++s;
    return s <= M.Indice_Sistema ? s : -1;
}

bool hayFicheros(const QStringList &nombres, const QStringList &extensiones)
{
    // By the rules of the main screen's list.
    const auto M = std::make_unique<core::Modulo>();
    const int total = static_cast<int>(std::min<qsizetype>(extensiones.size(), core::MaxSistemas));
    for (int k = 0; k < total; ++k)
        M->ExtActivas(k) = core::Valor(extensiones[k], 2);
    const core::ExtensionesEnVigor enVigor(*M, total);
    return std::any_of(nombres.begin(), nombres.end(),
        [&](const QString &nombre) { return enVigor.VecesQueEncaja(host::upper(nombre)) > 0; });
}

} // namespace

QStringList ExtensionesDe(const core::Modulo &base, const core::Modulo &catalogo, const QString &sistema)
{
    const int suya = filaDe(catalogo, sistema);
    const core::Modulo &M = suya >= 0 ? catalogo : base;
    const int s = suya >= 0 ? suya : filaDe(base, sistema);
    QStringList extensiones;
    for (int k = 0; s >= 0 && k < core::MaxSistemas && !M.Cat_EXT(s, k).isEmpty(); ++k)
        extensiones += M.Cat_EXT(s, k);
    return extensiones;
}

bool HayJuegos(const QString &directorio, int tipo, const QStringList &extensiones)
{
    try {
        if (core::UnDirectorioPorJuego(tipo))
            return !host::listDirectories(directorio).isEmpty();
        if (core::UnZipPorJuego(tipo))
            return !host::listFiles(directorio, u"*.zip"_s).isEmpty();
        QStringList ficheros = host::listFiles(directorio);
        ficheros.removeAll(NombreDeNota);
        return hayFicheros(ficheros, extensiones);
    } catch (const host::Failure &) {
        return false; // there is no such directory, or it can't be read
    }
}

std::optional<QString> DirectorioDeJuegos(
    const core::Modulo &catalogo, const QString &emulador, const QString &directorio)
{
    for (int s = 0; s <= catalogo.Indice_Sistema; ++s) {
        for (int e = 1; e <= core::TotalEmuladores(catalogo, s); ++e) {
            if (catalogo.Cat_Nombre(s, e) == u'+' + emulador)
                return core::RutaDeValor(core::Valor(catalogo.Cat_ROM(s, e), core::PrefijoRuta), directorio);
        }
    }
    return std::nullopt;
}

QString LineaDeNota(const Nota &nota)
{
    const QString tipos =
        nota.extensiones.isEmpty() ? QString() : u" ("_s + nota.extensiones.join(u' ') + u')';
    if (!nota.otroDirectorio.isEmpty())
        return u"Los juegos de %1%2 van en / The games of %1%2 go into: %3"_s.arg(
            nota.sistema, tipos, nota.otroDirectorio);
    const QString linea =
        u"Los juegos de %1%2 van en este directorio%3. / The games of %1%2 go into this directory%4."_s;
    return nota.faltaConfigurar
        ? linea.arg(nota.sistema, tipos, u"; luego, ./zembro find --write en el del programa"_s,
            u"; then run ./zembro find --write in the program's"_s)
        : linea.arg(nota.sistema, tipos, QString(), QString());
}

bool FaltaNota(const QString &directorio, const Nota &nota)
{
    return !host::exists(directorio + NombreDeNota) && !hayFicheros({ NombreDeNota }, nota.extensiones);
}

void EscribeNota(const QString &directorio, const Nota &nota)
{
    if (FaltaNota(directorio, nota))
        host::NumberedFiles().replace(
            directorio + NombreDeNota, u".LEEME.tmp"_s, LineaDeNota(nota) + u"\r\n"_s);
}

} // namespace finder
