#include "launch/carpetadejuego.h"

#include "launch/intenta.h"

#include "host/encoding.h"
#include "host/paths.h"

namespace launch {

namespace {

// A separator in a game's name would lead somewhere else.
bool esNombrePropio(const QString &nombre)
{
    return !nombre.isEmpty() && nombre != u"." && nombre != u".." && host::lastSeparator(nombre) < 0;
}

} // namespace

std::optional<CarpetaPosible> CarpetaQueSeHaria(const QString &ExeDir, const QString &Carpeta)
{
    if (ExeDir.isEmpty() || !esNombrePropio(Carpeta))
        return std::nullopt;
    const QString ruta = host::nameFromDisk(host::findForWriting(ExeDir + Carpeta));
    if (ruta.isEmpty())
        return std::nullopt;
    if (host::findOnDisk(ruta).isEmpty())
        return CarpetaPosible { ruta, true };
    bool directorio = false;
    Intenta([&] { directorio = (host::attributes(ruta) & host::DirectoryAttribute) != 0; });
    return directorio ? std::optional(CarpetaPosible { ruta, false }) : std::nullopt;
}

CarpetaDeJuego::CarpetaDeJuego(const QString &ExeDir, const QString &Carpeta)
{
    if (ExeDir.isEmpty() || !esNombrePropio(Carpeta))
        return;
    m_nueva = Intenta([&] { host::makeDirectory(ExeDir + Carpeta); });
    // Nothing is unpacked through a link: what lies behind it isn't ours to clean up.
    Intenta([&] {
        m_directorio.emplace(ExeDir + Carpeta);
        m_ruta = host::trueSpelling(ExeDir + Carpeta);
    });
}

void CarpetaDeJuego::Limpia(const QStringList &desempaquetados) const
{
    if (!m_directorio || !m_directorio->isAt(m_ruta))
        return;
    if (m_nueva)
        m_directorio->deleteFiles();
    else
        m_directorio->deleteFiles(desempaquetados);
    Intenta([&] { host::removeDirectory(m_ruta); });
}

} // namespace launch
