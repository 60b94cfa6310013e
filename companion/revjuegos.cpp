// The files of the games of a pair: whether they can be read, and what a launch would find in a ZIP.
#include "companion/revision.h"

#include "core/catalogo.h"
#include "core/lista.h"

#include "host/letters.h"
#include "host/paths.h"

#include "launch/busquedarom.h"
#include "launch/indicezip.h"

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

bool seLee(const QString &ruta)
{
    return faccessat(AT_FDCWD, host::findOnDisk(ruta).constData(), R_OK, AT_EACCESS) == 0;
}

QStringList extensionesDe(const core::Modulo &M, int sistema)
{
    QStringList extensiones;
    for (int k = 0; k < M.Cat_EXT.columnas(); ++k)
        extensiones += M.Cat_EXT(sistema, k);
    return extensiones;
}

// Of the ones that a system would have to have.
QString extensionDe(const QString &nombre)
{
    return u"*."_s + host::upper(nombre.sliced(nombre.lastIndexOf(u'.') + 1).left(3));
}

bool esTexto(const QString &fichero)
{
    return QStringList { u"*.TXT"_s, u"*.DIZ"_s, u"*.NFO"_s, u"*.DOC"_s, u"*.HTM"_s, u"*.PDF"_s, u"*.MD"_s }
        .contains(extensionDe(fichero));
}

// Why no game is found among these files, and what to do.
QString sinJuego(
    const Palabras &palabras, const QString &zip, const QStringList &ficheros, const QStringList &extensiones)
{
    // The others are tried with each file.
    const QString primera = extensiones.value(0);
    const auto esDePrimera = [&](const QString &uno) { return host::upper(uno).endsWith(primera.mid(1)); };
    if (primera.size() > 2 && primera != u"*.ZIP" && std::ranges::any_of(ficheros, esDePrimera))
        return palabras.Zbo_ZipPrimera.arg(zip, primera);
    const auto juego = std::ranges::find_if_not(ficheros, esTexto);
    return palabras.Zbo_ZipSinJuego.arg(
        zip, extensionDe(juego == ficheros.end() ? ficheros.value(0) : *juego));
}

} // namespace

void RevisaJuegos(const Sesion &sesion, const Pareja &pareja, const QString &directorio,
    const QStringList &nombres, Revision &revision)
{
    const Palabras &palabras = sesion.palabras;
    const int tipo = TipoDe(sesion.M, pareja);
    const QStringList extensiones = extensionesDe(sesion.M, pareja.sistema);
    const auto halla = [&](const QString &clase, const QString &nombre, const QString &dicho) {
        revision.push_back({ clase, directorio + nombre, 0,
            pareja.nombreSistema + u" / "_s + pareja.nombreEmulador, dicho });
    };
    for (const QString &nombre : nombres) {
        if (!seLee(directorio + nombre)) {
            halla(u"game-unreadable"_s, nombre, palabras.Zbo_JuegoNoLee.arg(nombre));
            continue;
        }
        if (!host::upper(nombre).endsWith(u"ZIP") || core::UnDirectorioPorJuego(tipo))
            continue;
        const std::optional<launch::IndiceZip> indice = launch::IndiceDe(directorio + nombre);
        const bool eligeUno = core::FicherosSueltos(tipo) && !core::CargaSoloElEmulador(tipo);
        if (!indice)
            halla(u"zip-damaged"_s, nombre, palabras.Zbo_ZipRoto.arg(nombre));
        else if (indice->cifrado && !core::CargaSoloElEmulador(tipo))
            halla(u"zip-encrypted"_s, nombre, palabras.Zbo_ZipCifrado.arg(nombre));
        else if (eligeUno
            && !launch::EligeFichero(launch::Candidatos(indice->ficheros, indice->ficheros), extensiones))
            halla(u"zip-without-game"_s, nombre, sinJuego(palabras, nombre, indice->ficheros, extensiones));
    }
}

} // namespace companion
