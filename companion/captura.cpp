#include "companion/captura.h"

#include "converter/kind.h"

#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// No picture of any kind is shorter than what its kind is told by.
bool seVe(const QByteArray &bytes)
{
    using converter::Kind;
    const Kind clase = converter::kindOf(
        { reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()) });
    return bytes.size() >= qsizetype(converter::TellingBytes) && clase != Kind::None && clase != Kind::Pcx
        && clase != Kind::Tiff;
}

} // namespace

EstadoDeCaptura EstadoDe(const QString &ruta)
{
    struct stat estado { };
    const QByteArray enDisco = host::findOnDisk(ruta);
    if (enDisco.isEmpty() || lstat(enDisco.constData(), &estado) != 0)
        return EstadoDeCaptura::Ninguna;
    if (S_ISLNK(estado.st_mode) && stat(enDisco.constData(), &estado) != 0)
        return EstadoDeCaptura::EnlaceRoto;
    if (!S_ISREG(estado.st_mode))
        return EstadoDeCaptura::NoEsFichero;
    try {
        return seVe(host::readBytes(ruta, converter::TellingBytes)) ? EstadoDeCaptura::SeVe
                                                                    : EstadoDeCaptura::NoEsImagen;
    } catch (const host::Failure &) {
        return EstadoDeCaptura::Ilegible;
    }
}

bool SeReemplaza(EstadoDeCaptura estado)
{
    return estado == EstadoDeCaptura::NoEsImagen || estado == EstadoDeCaptura::EnlaceRoto;
}

QString TextoDe(EstadoDeCaptura estado, const QString &ruta, const Palabras &palabras)
{
    switch (estado) {
    case EstadoDeCaptura::EnlaceRoto:
        return palabras.Zbo_CapEnlace.arg(ruta);
    case EstadoDeCaptura::NoEsFichero:
        return palabras.Zbo_CapNoFich.arg(ruta);
    case EstadoDeCaptura::Ilegible:
        return palabras.Zbo_CapNoLee.arg(ruta);
    default:
        return palabras.Zbo_CapNoMuestra.arg(ruta);
    }
}

QString ClaseDe(EstadoDeCaptura estado)
{
    switch (estado) {
    case EstadoDeCaptura::EnlaceRoto:
        return u"capture-broken-link"_s;
    case EstadoDeCaptura::NoEsFichero:
        return u"capture-no-file"_s;
    case EstadoDeCaptura::Ilegible:
        return u"capture-unreadable"_s;
    default:
        return u"capture-no-picture"_s;
    }
}

} // namespace companion
