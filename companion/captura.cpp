#include "companion/captura.h"

#include "converter/kind.h"
#include "converter/wholeness.h"

#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <cstdint>
#include <span>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr qint64 MasBytes = 64 << 20; // the screen shows none with more

std::span<const std::uint8_t> vista(const QByteArray &bytes)
{
    return { reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()) };
}

// Of a picture that the screen shows; None for all else. None of any kind is shorter than what tells it.
converter::Kind claseQueSeVe(const QByteArray &principio)
{
    using converter::Kind;
    const Kind clase = converter::kindOf(vista(principio));
    const bool seVe =
        principio.size() >= qsizetype(converter::TellingBytes) && clase != Kind::Pcx && clase != Kind::Tiff;
    return seVe ? clase : Kind::None;
}

enum class Lectura { HastaElFin, LaQueHagaFalta };

// A PNG alone shows nothing where it is cut.
EstadoDeCaptura estadoDeImagen(const QString &ruta, Lectura lectura)
{
    using converter::Kind;
    const Kind clase = claseQueSeVe(host::readBytes(ruta, converter::TellingBytes));
    if (clase == Kind::None)
        return EstadoDeCaptura::NoEsImagen;
    if (lectura == Lectura::LaQueHagaFalta && clase != Kind::Png)
        return EstadoDeCaptura::SeVe;
    if (converter::isWhole(vista(host::readBytes(ruta, MasBytes)), clase))
        return EstadoDeCaptura::SeVe;
    return clase == Kind::Png ? EstadoDeCaptura::NoEsImagen : EstadoDeCaptura::SeVeEnParte;
}

EstadoDeCaptura estadoDe(const QString &ruta, Lectura lectura)
{
    struct stat estado { };
    const QByteArray enDisco = host::findOnDisk(ruta);
    if (enDisco.isEmpty() || lstat(enDisco.constData(), &estado) != 0)
        return EstadoDeCaptura::Ninguna;
    if (S_ISLNK(estado.st_mode) && stat(enDisco.constData(), &estado) != 0)
        return EstadoDeCaptura::EnlaceRoto;
    if (!S_ISREG(estado.st_mode))
        return EstadoDeCaptura::NoEsFichero;
    if (estado.st_size > MasBytes)
        return EstadoDeCaptura::NoEsImagen;
    try {
        return estadoDeImagen(ruta, lectura);
    } catch (const host::Failure &) {
        return EstadoDeCaptura::Ilegible;
    }
}

} // namespace

EstadoDeCaptura EstadoDe(const QString &ruta)
{
    return estadoDe(ruta, Lectura::HastaElFin);
}

bool SeMuestra(const QString &ruta)
{
    const EstadoDeCaptura estado = estadoDe(ruta, Lectura::LaQueHagaFalta);
    return estado == EstadoDeCaptura::SeVe || estado == EstadoDeCaptura::SeVeEnParte;
}

bool SeReemplaza(EstadoDeCaptura estado)
{
    return estado == EstadoDeCaptura::NoEsImagen || estado == EstadoDeCaptura::EnlaceRoto
        || estado == EstadoDeCaptura::SeVeEnParte;
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
    case EstadoDeCaptura::SeVeEnParte:
        return palabras.Zbo_CapCortada.arg(ruta);
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
    case EstadoDeCaptura::SeVeEnParte:
        return u"capture-cut"_s;
    default:
        return u"capture-no-picture"_s;
    }
}

} // namespace companion
