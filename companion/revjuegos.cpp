// The files of the games of a pair: whether they can be read, and what a launch would find in a ZIP.
#include "companion/revision.h"

#include "core/catalogo.h"
#include "core/lista.h"

#include "host/letters.h"
#include "host/paths.h"

#include "launch/busquedarom.h"
#include "launch/indicezip.h"

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr qsizetype MasLargaLaExtension = 3; // by more the list finds nothing

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

bool seEncuentra(const launch::IndiceZip &indice, const QStringList &extensiones)
{
    return launch::EligeFichero(launch::Candidatos(indice.ficheros, indice.ficheros), extensiones)
        .has_value();
}

QString extensionDe(const QString &nombre)
{
    const qsizetype punto = nombre.lastIndexOf(u'.');
    return punto < 0 ? QString() : host::upper(nombre.sliced(punto + 1));
}

// A text or a picture that comes with a game, or another archive: no launch is to find that.
bool esAcompanante(const QString &fichero)
{
    static const QStringList suyas { u"TXT"_s, u"DIZ"_s, u"NFO"_s, u"DOC"_s, u"RTF"_s, u"HTM"_s, u"HTML"_s,
        u"PDF"_s, u"MD"_s, u"INI"_s, u"XML"_s, u"URL"_s, u"SFV"_s, u"JPG"_s, u"JPEG"_s, u"PNG"_s, u"GIF"_s,
        u"BMP"_s, u"WEBP"_s, u"ZIP"_s };
    return suyas.contains(extensionDe(fichero));
}

// The extension with which a launch would find a game there; none if there is none such.
QString extensionQueFalta(const launch::IndiceZip &indice, const QStringList &extensiones)
{
    const qsizetype libre = extensiones.indexOf(QString());
    for (const QString &fichero : indice.ficheros) {
        QStringList conElla = extensiones;
        const QString extension = extensionDe(fichero);
        if (libre < 0 || extension.isEmpty() || extension.size() > MasLargaLaExtension
            || esAcompanante(fichero))
            continue;
        conElla[libre] = u"*."_s + extension;
        if (seEncuentra(indice, conElla))
            return conElla[libre];
    }
    return {};
}

// Why no game is found in it, and what would help: each was tried.
QString sinJuego(const Palabras &palabras, const QString &zip, const launch::IndiceZip &indice,
    const QStringList &extensiones)
{
    const auto conZip = launch::EligeFichero(
        launch::Candidatos(indice.ficheros, indice.ficheros), QStringList { u"*.ZIP"_s } + extensiones);
    if (conZip && !esAcompanante(*conZip))
        return palabras.Zbo_ZipPrimera.arg(zip, extensiones.value(0));
    const QString falta = extensionQueFalta(indice, extensiones);
    if (!falta.isEmpty())
        return palabras.Zbo_ZipSinJuego.arg(zip, falta);
    return (indice.enDirectorios ? palabras.Zbo_ZipCarpetas : palabras.Zbo_ZipNada).arg(zip);
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
        else if (eligeUno && !seEncuentra(*indice, extensiones))
            halla(u"zip-without-game"_s, nombre, sinJuego(palabras, nombre, *indice, extensiones));
    }
}

} // namespace companion
